// Entry of the unit test programs: an application object first, so that widgets and paint devices work, and
// nothing is shown. A list of the tests is given without one.
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    for (const auto &[name, value] :
         {std::pair("QT_QPA_PLATFORM", "offscreen"), std::pair("XDG_RUNTIME_DIR", "/tmp")})
        if (!qEnvironmentVariableIsSet(name))
            qputenv(name, value);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
