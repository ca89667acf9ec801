#include "platform/forms/application.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/wrong.h"

#include <QPalette>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

/// What is to be read stands out from its ground by 4.5 to 1 at least, as the guidelines for readable pages
/// ask.
TEST(Contrast, everythingToBeReadStandsOut)
{
    forms::Application::dress();
    const QPalette palette = QApplication::palette();
    const auto colour = [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
        return palette.color(group, role);
    };
    using enum QPalette::ColorRole;
    struct Pair {
        const char *what;
        QColor ink, ground;
    };
    std::vector<Pair> pairs;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto ground : {Base, AlternateBase, Window}) {
            pairs.push_back({"text", colour(group, Text), colour(group, ground)});
            pairs.push_back({"hint", colour(group, PlaceholderText), colour(group, ground)});
            pairs.push_back(
                {"selection and its surroundings", colour(group, Highlight), colour(group, ground)});
            pairs.push_back(
                {"row that stands back", forms::RowLook::standingBack().ink, colour(group, ground)});
            pairs.push_back({"what is wrong", QColor(forms::wrongInk), colour(group, ground)});
        }
        pairs.push_back({"selected text", colour(group, HighlightedText), colour(group, Highlight)});
        pairs.push_back({"button", colour(group, ButtonText), colour(group, Button)});
        pairs.push_back({"tool tip", colour(group, ToolTipText), colour(group, ToolTipBase)});
    }
    for (const Pair &pair : pairs)
        EXPECT_GE(contrast(pair.ink, pair.ground), 4.5) << pair.what << ": " << pair.ink.name().toStdString()
                                                        << " on " << pair.ground.name().toStdString();
}
