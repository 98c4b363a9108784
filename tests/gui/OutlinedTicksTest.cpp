// Tick boxes on light and dark ground.
#include "platform_qt/OutlinedTicks.h"

#include "platform_qt/DesktopColours.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>

#include <memory>

#include <gtest/gtest.h>

namespace ostrand {

namespace {

/// How much the strongest pixel of an empty tick box differs from the ground around it, 0 to 255.
int Contrast(const QStyle &style, QStyle::PrimitiveElement element, const QPalette &palette) {
    const QColor ground = palette.color(QPalette::Base);
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(ground);
    QStyleOptionButton option;
    option.palette = palette;
    option.rect = QRect(3, 3, 14, 14);
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter);
    painter.end();
    int most = 0;
    for (int x = 0; x < image.width(); ++x) {
        most = std::max(most, std::abs(image.pixelColor(x, 10).lightness() - ground.lightness()));
    }
    return most;
}

TEST(OutlinedTicks, TickBoxesCanBeSeenOnDarkGround) {
    const OutlinedTicks style(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette dark = DarkPalette();
    for (const auto element :
         {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorItemViewItemCheck, QStyle::PE_IndicatorRadioButton}) {
        EXPECT_GE(Contrast(style, element, dark), 60) << element;
    }
}

TEST(OutlinedTicks, LightGroundKeepsTheBoxesOfTheStyle) {
    const OutlinedTicks style(QStyleFactory::create(QStringLiteral("Fusion")));
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette light(QColor(240, 240, 240));
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        EXPECT_EQ(Contrast(style, element, light), Contrast(*plain, element, light)) << element;
    }
}

} // namespace

} // namespace ostrand
