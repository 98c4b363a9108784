#include "Scenery.h"

#include <QPainterPath>
#include <QStringList>

#include <cmath>
#include <vector>

namespace ostrand::samples {

using namespace Qt::StringLiterals;

namespace {

using Scene = void (*)(QPainter &, const QRectF &, const Palette &, Dice &);

void Fill(QPainter &painter, const QRectF &area, const QColor &top, const QColor &bottom) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(area, gradient);
}

void Wave(QPainter &painter, const QRectF &area, double height, double depth, double phase, const QColor &color) {
    QPainterPath path;
    path.moveTo(area.bottomLeft());
    for (double x = area.left(); x <= area.right() + 4; x += 4) {
        path.lineTo(x, height + depth * std::sin(phase + x / area.width() * 7.0));
    }
    path.lineTo(area.bottomRight());
    path.closeSubpath();
    painter.fillPath(path, color);
}

void Sea(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.middle, palette.light);
    painter.setBrush(palette.accent);
    const double radius = dice.Between(28, 52);
    painter.drawEllipse(QPointF(area.width() * dice.Between(0.25, 0.75), area.height() * 0.45), radius, radius);
    for (int i = 0; i < 6; ++i) {
        QColor color = palette.dark;
        color.setAlpha(70 + 30 * i);
        const double depth = dice.Between(4, 12);
        Wave(painter, area, area.height() * (0.52 + 0.08 * i), depth, dice.Between(0, 6), color);
    }
}

void Rays(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.light, palette.middle);
    const QPointF centre =
        dice.Point(area.width() * 0.3, area.width() * 0.7, area.height() * 0.5, area.height() * 0.75);
    const int count = 10 + dice.Roll(8);
    painter.setBrush(palette.accent);
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * M_PI * i / count;
        const double half = M_PI / count / 2;
        const QPolygonF ray({centre, centre + 600 * QPointF(std::cos(angle - half), std::sin(angle - half)),
                             centre + 600 * QPointF(std::cos(angle + half), std::sin(angle + half))});
        painter.drawPolygon(ray);
    }
    painter.setBrush(palette.dark);
    painter.drawEllipse(centre, 58, 58);
    painter.setBrush(palette.paper);
    painter.drawEllipse(centre, 36, 36);
    painter.setBrush(palette.dark);
    painter.drawEllipse(centre + dice.Point(-12, 12, -12, 12), 14, 14);
}

void City(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.dark, palette.middle);
    painter.setBrush(palette.paper);
    const QPointF moon(area.width() * dice.Between(0.2, 0.8), area.height() * 0.42);
    painter.drawEllipse(moon, 30, 30);
    for (int row = 0; row < 2; ++row) {
        for (double x = -10; x < area.width();) {
            const double width = dice.Between(22, 46);
            const double height = area.height() * dice.Between(0.16, 0.42) * (row == 0 ? 1.25 : 0.9);
            const QRectF house(x, area.bottom() - height, width, height);
            painter.setBrush(row == 0 ? palette.middle.darker(135) : palette.dark.darker(140));
            painter.drawRect(house);
            painter.setBrush(palette.accent);
            for (double y = house.top() + 8; y < house.bottom() - 8; y += 13) {
                for (double window = house.left() + 6; window < house.right() - 8; window += 11) {
                    if (dice.Roll(3) == 0) {
                        painter.drawRect(QRectF(window, y, 5, 7));
                    }
                }
            }
            x += width + 3;
        }
    }
}

void Space(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.dark.darker(160), palette.dark);
    painter.setBrush(palette.paper);
    for (int i = 0; i < 90; ++i) {
        const double size = dice.Between(0.4, 1.6);
        painter.drawEllipse(dice.Point(0, area.width(), 0, area.height()), size, size);
    }
    const QPointF planet(area.width() * dice.Between(0.3, 0.7), area.height() * 0.62);
    const double radius = dice.Between(56, 84);
    QRadialGradient glow(planet - QPointF(radius / 3, radius / 3), radius * 1.6);
    glow.setColorAt(0, palette.light);
    glow.setColorAt(1, palette.middle.darker(170));
    painter.setBrush(glow);
    painter.drawEllipse(planet, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.save();
    painter.translate(planet);
    painter.rotate(dice.Between(-25, 25));
    painter.setPen(QPen(palette.accent, 5));
    painter.drawArc(QRectF(-radius * 1.6, -radius * 0.4, radius * 3.2, radius * 0.8), 160 * 16, 220 * 16);
    painter.restore();
    painter.setPen(Qt::NoPen);
}

void Hills(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.light, palette.paper);
    painter.setBrush(palette.accent);
    painter.drawEllipse(QPointF(area.width() * dice.Between(0.2, 0.8), area.height() * 0.48), 34, 34);
    const std::array<QColor, 3> colors{palette.middle.lighter(125), palette.middle, palette.dark};
    for (int i = 0; i < 3; ++i) {
        const double depth = dice.Between(14, 30);
        Wave(painter, area, area.height() * (0.6 + 0.11 * i), depth, dice.Between(0, 6), colors[i]);
    }
    painter.setBrush(palette.dark.darker(130));
    const double house = area.width() * dice.Between(0.2, 0.6);
    painter.drawRect(QRectF(house, area.height() * 0.76, 44, 30));
    painter.setBrush(palette.accent);
    painter.drawPolygon(QPolygonF({{house - 6, area.height() * 0.76},
                                   {house + 22, area.height() * 0.76 - 24},
                                   {house + 50, area.height() * 0.76}}));
    painter.setBrush(palette.paper);
    painter.drawRect(QRectF(house + 17, area.height() * 0.76 + 8, 10, 10));
}

void Circles(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    painter.fillRect(area, palette.paper);
    const std::array<QColor, 4> colors{palette.dark, palette.middle, palette.light, palette.accent};
    const double cell = area.width() / 4;
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 4; ++column) {
            const QRectF tile(column * cell, row * cell, cell, cell);
            painter.fillRect(tile, colors[dice.Roll(4)]);
            painter.setBrush(colors[dice.Roll(4)]);
            const int shape = dice.Roll(4);
            if (shape == 0) {
                painter.drawEllipse(tile.adjusted(8, 8, -8, -8));
            } else if (shape < 3) {
                painter.drawPie(QRectF(tile.left() - (shape == 1 ? 0 : cell), tile.top(), cell * 2, cell * 2),
                                shape == 1 ? 90 * 16 : 0, 90 * 16);
            } else {
                painter.drawPolygon(QPolygonF({tile.topLeft(), tile.topRight(), tile.bottomLeft()}));
            }
        }
    }
}

void Rain(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.middle, palette.dark);
    painter.setPen(QPen(palette.light, 1.4));
    for (int i = 0; i < 110; ++i) {
        const QPointF drop = dice.Point(0, area.width(), 0, area.height());
        painter.drawLine(drop, drop + QPointF(-4, 13));
    }
    const QPointF top(area.width() * dice.Between(0.35, 0.65), area.height() * 0.52);
    painter.setPen(QPen(palette.dark.darker(150), 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(top, top + QPointF(0, 118));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.accent);
    painter.drawPie(QRectF(top.x() - 78, top.y() - 8, 156, 130), 0, 180 * 16);
    painter.setBrush(palette.accent.darker(120));
    painter.drawPie(QRectF(top.x() - 26, top.y() - 8, 52, 130), 0, 180 * 16);
}

void Spiral(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    painter.fillRect(area, palette.dark);
    const QPointF centre(area.width() / 2 + dice.Between(-30, 30), area.height() * 0.6);
    const int rings = 9;
    for (int i = rings; i > 0; --i) {
        painter.setBrush(i % 2 != 0 ? palette.accent : palette.dark);
        const double size = 21.0 * i;
        painter.drawEllipse(centre + dice.Point(-5, 5, -5, 5), size, size * 0.92);
    }
    painter.setBrush(palette.paper);
    painter.drawEllipse(centre, 11, 11);
}

void Forest(QPainter &painter, const QRectF &area, const Palette &palette, Dice &dice) {
    Fill(painter, area, palette.dark, palette.light);
    for (int row = 0; row < 4; ++row) {
        const QColor color = palette.dark.lighter(170 - 30 * row);
        painter.setBrush(color);
        for (int i = 0; i < 12 - row; ++i) {
            const double x = dice.Between(-10, area.width() + 10);
            const double height = dice.Between(60, 120) + 18 * row;
            const double foot = area.height() * (0.72 + 0.09 * row);
            painter.drawPolygon(QPolygonF({{x - height / 5, foot}, {x, foot - height}, {x + height / 5, foot}}));
        }
        painter.drawRect(QRectF(0, area.height() * (0.715 + 0.09 * row), area.width(), area.height()));
    }
    for (int i = 0; i < 3; ++i) {
        const QPointF cap = dice.Point(30, area.width() - 30, area.height() * 0.8, area.height() * 0.92);
        painter.setBrush(palette.paper);
        painter.drawRect(QRectF(cap.x() - 4, cap.y(), 8, 22));
        painter.setBrush(palette.accent);
        painter.drawPie(QRectF(cap.x() - 19, cap.y() - 15, 38, 34), 0, 180 * 16);
    }
}

std::vector<Scene> ScenesOf(const QString &genre) {
    const QStringList space{u"Science-Fiction"_s};
    const QStringList dark{u"Horror"_s};
    const QStringList crime{u"Crime"_s, u"Suspense/Thriller"_s, u"Mystery"_s};
    if (space.contains(genre)) {
        return {Space, Space, Rays, Spiral};
    }
    if (dark.contains(genre)) {
        return {Forest, Forest, Spiral};
    }
    if (crime.contains(genre)) {
        return {City, City, Rain};
    }
    if (genre == "Drama"_L1 || genre == "Romance"_L1) {
        return {Sea, Hills, Rain};
    }
    if (genre == "Action"_L1) {
        return {City, Rays};
    }
    return {Circles, Hills, Sea, Rays, Rain};
}

Palette Grey() {
    return {QColor(0x1c, 0x1c, 0x1e), QColor(0x5a, 0x5a, 0x5d), QColor(0xb4, 0xb4, 0xb2), QColor(0xde, 0xd9, 0xcc),
            QColor(0xf4, 0xf1, 0xe8)};
}

} // namespace

Palette ChoosePalette(const QString &genre, bool black_and_white, Dice &dice) {
    if (black_and_white) {
        return Grey();
    }
    if (genre == "Horror"_L1) {
        return {QColor(0x14, 0x2a, 0x22), QColor(0x2f, 0x5d, 0x46), QColor(0x9b, 0xb5, 0x6b), QColor(0xc9, 0x3a, 0x2c),
                QColor(0xf2, 0xe9, 0xd0)};
    }
    const std::array<Palette, 8> palettes{
        Palette{QColor(0x12, 0x2c, 0x4a), QColor(0x2f, 0x6f, 0x9f), QColor(0x9c, 0xd0, 0xe0), QColor(0xf4, 0xa3, 0x40),
                QColor(0xfb, 0xf3, 0xe0)},
        Palette{QColor(0x4a, 0x15, 0x2c), QColor(0xa8, 0x32, 0x4a), QColor(0xf0, 0x9a, 0x7e), QColor(0xf8, 0xd1, 0x5c),
                QColor(0xff, 0xf4, 0xe6)},
        Palette{QColor(0x1f, 0x3a, 0x3d), QColor(0x3e, 0x85, 0x80), QColor(0xa9, 0xd8, 0xc2), QColor(0xee, 0x6c, 0x4d),
                QColor(0xf7, 0xf3, 0xe3)},
        Palette{QColor(0x2d, 0x1e, 0x4f), QColor(0x6a, 0x4c, 0x9c), QColor(0xc3, 0xa6, 0xdd), QColor(0xff, 0xc8, 0x57),
                QColor(0xf9, 0xf0, 0xff)},
        Palette{QColor(0x3b, 0x2a, 0x1a), QColor(0x9a, 0x5b, 0x2e), QColor(0xe3, 0xb5, 0x77), QColor(0xc7, 0x3e, 0x1d),
                QColor(0xfb, 0xf2, 0xdf)},
        Palette{QColor(0x22, 0x31, 0x2b), QColor(0x6f, 0x8f, 0x46), QColor(0xd7, 0xdd, 0x8c), QColor(0xe8, 0x5d, 0x75),
                QColor(0xfc, 0xfa, 0xe8)},
        Palette{QColor(0x10, 0x1d, 0x42), QColor(0x23, 0x4f, 0xb0), QColor(0x8f, 0xb8, 0xff), QColor(0xff, 0x5d, 0x5d),
                QColor(0xf4, 0xf7, 0xff)},
        Palette{QColor(0x33, 0x2b, 0x3a), QColor(0x7d, 0x5a, 0x74), QColor(0xe6, 0xb8, 0xa2), QColor(0x3f, 0xb8, 0xaf),
                QColor(0xfb, 0xf5, 0xee)},
    };
    return palettes[static_cast<std::size_t>(dice.Roll(static_cast<int>(palettes.size())))];
}

void DrawScenery(QPainter &painter, const QRectF &area, const QString &genre, const Palette &palette, Dice &dice) {
    painter.setPen(Qt::NoPen);
    const std::vector<Scene> scenes = ScenesOf(genre);
    scenes[static_cast<std::size_t>(dice.Roll(static_cast<int>(scenes.size())))](painter, area, palette, dice);
}

} // namespace ostrand::samples
