#include "platform_qt/DesktopColours.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

double Luminance(const QColor &color) {
    return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2) +
           0.0722 * std::pow(color.blueF(), 2.2);
}

double Contrast(const QColor &a, const QColor &b) {
    const double bright = std::max(Luminance(a), Luminance(b));
    return (bright + 0.05) / (std::min(Luminance(a), Luminance(b)) + 0.05);
}

TEST(DesktopColours, FollowTheDesktop) {
    const QPalette given = QApplication::palette();
    DesktopColours colours;
    constexpr struct {
        uint scheme;
        bool dark;
    } kCases[] = {{1, true}, {2, false}, {1, true}, {0, false}};
    for (const auto &c : kCases) {
        colours.Apply(c.scheme);
        const QPalette now = QApplication::palette();
        EXPECT_EQ(now.color(QPalette::Window).lightness() < 128, c.dark) << c.scheme;
        EXPECT_EQ(now.color(QPalette::Window) == given.color(QPalette::Window), !c.dark) << c.scheme;
    }
}

TEST(DesktopColours, TheDarkPaletteCanBeRead) {
    const QPalette dark = DarkPalette();
    constexpr struct {
        QPalette::ColorRole text, ground;
        double least;
    } kPairs[] = {
        {QPalette::WindowText, QPalette::Window, 7},    {QPalette::Text, QPalette::Base, 7},
        {QPalette::ButtonText, QPalette::Button, 7},    {QPalette::ToolTipText, QPalette::ToolTipBase, 7},
        {QPalette::Link, QPalette::Base, 4.5},          {QPalette::HighlightedText, QPalette::Highlight, 3},
        {QPalette::PlaceholderText, QPalette::Base, 3},
    };
    for (const auto &pair : kPairs) {
        EXPECT_GE(Contrast(dark.color(pair.text), dark.color(pair.ground)), pair.least) << pair.text;
    }
}

} // namespace
} // namespace ostrand
