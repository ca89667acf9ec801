#include "paediatrics/anthropometry/medidas.h"

#include <gtest/gtest.h>

using paediatrics::CalcularIMC;

TEST(Medidas, bodyMassIndexOfWhatWasMeasured)
{
    EXPECT_NEAR(CalcularIMC(70000, 175), 22.857, 0.001);
    EXPECT_EQ(CalcularIMC(12000, 0), 0);
    EXPECT_EQ(CalcularIMC(0, 90), 0);
    EXPECT_EQ(CalcularIMC(basic::Null{}, 90), 0);
    EXPECT_EQ(CalcularIMC(12000, basic::Null{}), 0);
}
