// The picture of a cover, without its text.
#pragma once

#include "Dice.h"

#include <QColor>
#include <QPainter>

#include <array>

namespace ostrand::samples {

/// Background from dark to light, and two colours that stand out from it.
struct Palette {
    QColor dark;
    QColor middle;
    QColor light;
    QColor accent;
    QColor paper;
};

Palette ChoosePalette(const QString &genre, bool black_and_white, Dice &dice);
void DrawScenery(QPainter &painter, const QRectF &area, const QString &genre, const Palette &palette, Dice &dice);

} // namespace ostrand::samples
