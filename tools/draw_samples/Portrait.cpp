#include "Portrait.h"

#include "Dice.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

namespace ostrand::samples {

using namespace Qt::StringLiterals;

namespace {

constexpr int kWidth = 120;
constexpr int kHeight = 160;

struct Face {
    QColor skin;
    QColor hair;
    QColor coat;
    int haircut = 0;
    int extra = 0;
};

Face ChooseFace(Dice &dice) {
    static const std::array<QRgb, 7> kSkins{0xf1c9a5, 0xe3a983, 0xc98d62, 0x9a6542, 0x6f4630, 0xf6d9c0, 0xd9a27a};
    static const std::array<QRgb, 7> kHair{0x2b1d14, 0x5a3a22, 0xa66a2e, 0xd9b25f, 0x9c9a97, 0xe6e2dc, 0x7a2d1f};
    static const std::array<QRgb, 6> kCoats{0x26415e, 0x6b2737, 0x3c5a3d, 0x5b4a7a, 0x2f2f35, 0xb0713a};
    return {QColor(kSkins[static_cast<std::size_t>(dice.Roll(7))]),
            QColor(kHair[static_cast<std::size_t>(dice.Roll(7))]),
            QColor(kCoats[static_cast<std::size_t>(dice.Roll(6))]), dice.Roll(5), dice.Roll(6)};
}

void DrawBody(QPainter &painter, const Face &face) {
    painter.setBrush(face.coat);
    QPainterPath shoulders;
    shoulders.moveTo(6, 164);
    shoulders.cubicTo(10, 122, 38, 118, 60, 118);
    shoulders.cubicTo(82, 118, 110, 122, 114, 164);
    painter.drawPath(shoulders);
    painter.setBrush(face.skin.darker(112));
    painter.drawRoundedRect(QRectF(48, 96, 24, 32), 10, 10);
    painter.setBrush(QColor(0xf5, 0xf2, 0xea));
    painter.drawPolygon(QPolygonF({{48, 119}, {60, 140}, {72, 119}, {66, 117}, {60, 126}, {54, 117}}));
}

void DrawHairBehind(QPainter &painter, const Face &face) {
    painter.setBrush(face.hair.darker(115));
    if (face.haircut == 1) {
        painter.drawRoundedRect(QRectF(24, 40, 72, 88), 32, 34);
    } else if (face.haircut == 2) {
        painter.drawEllipse(QPointF(60, 62), 45, 44);
    } else if (face.haircut == 3) {
        painter.drawEllipse(QPointF(60, 26), 17, 15);
    }
}

void DrawHairInFront(QPainter &painter, const Face &face, double parting) {
    if (face.haircut == 4) {
        return;
    }
    painter.setBrush(face.hair);
    QPainterPath hair;
    hair.moveTo(29, 72);
    hair.cubicTo(26, 22, 94, 22, 91, 72);
    hair.cubicTo(86, 50, 74, 47, parting, 46);
    hair.cubicTo(46, 47, 34, 52, 29, 72);
    painter.drawPath(hair);
}

void DrawEyes(QPainter &painter, Dice &dice) {
    const QColor iris = QColor::fromHsv(dice.Roll(2) == 0 ? 205 : 30, 120, 110);
    for (const double x : {47.0, 73.0}) {
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(x, 72), 6.5, 4.2);
        painter.setBrush(iris);
        painter.drawEllipse(QPointF(x, 72), 3, 3.4);
    }
}

void DrawFeatures(QPainter &painter, const Face &face, Dice &dice) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(face.hair.darker(125), 2.6, Qt::SolidLine, Qt::RoundCap));
    const double lift = dice.Between(-2, 2);
    painter.drawLine(QPointF(40, 63 + lift), QPointF(53, 62));
    painter.drawLine(QPointF(67, 62), QPointF(80, 63 + lift));
    painter.setPen(QPen(face.skin.darker(140), 2, Qt::SolidLine, Qt::RoundCap));
    QPainterPath nose(QPointF(60, 72));
    nose.quadTo(QPointF(dice.Roll(2) == 0 ? 67 : 53, 88), QPointF(59, 88));
    painter.drawPath(nose);
    painter.setPen(QPen(QColor(0x9c, 0x3d, 0x3a), 2.6, Qt::SolidLine, Qt::RoundCap));
    const double smile = dice.Between(-1, 7);
    QPainterPath mouth(QPointF(50, 98));
    mouth.quadTo(QPointF(60, 98 + smile), QPointF(70, 98));
    painter.drawPath(mouth);
    painter.setPen(Qt::NoPen);
}

void DrawExtra(QPainter &painter, const Face &face) {
    if (face.extra == 0) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(0x22, 0x22, 0x26), 2.2));
        painter.drawEllipse(QPointF(47, 72), 11, 9.5);
        painter.drawEllipse(QPointF(73, 72), 11, 9.5);
        painter.drawLine(QPointF(58, 71), QPointF(62, 71));
        painter.setPen(Qt::NoPen);
    } else if (face.extra == 1) {
        painter.setBrush(face.hair);
        painter.drawPie(QRectF(44, 88, 17, 12), 0, 180 * 16);
        painter.drawPie(QRectF(59, 88, 17, 12), 0, 180 * 16);
    } else if (face.extra == 2) {
        painter.setBrush(face.coat.darker(140));
        painter.drawRoundedRect(QRectF(20, 40, 80, 9), 4, 4);
        painter.drawRoundedRect(QRectF(34, 12, 52, 32), 8, 8);
        painter.setBrush(QColor(0xe0, 0xc0, 0x60));
        painter.drawRect(QRectF(34, 34, 52, 6));
    }
}

void DrawBackground(QPainter &painter, Dice &dice) {
    const int hue = dice.Roll(360);
    QLinearGradient gradient(0, 0, kWidth, kHeight);
    gradient.setColorAt(0, QColor::fromHsv(hue, 60, 235));
    gradient.setColorAt(1, QColor::fromHsv((hue + 30) % 360, 110, 150));
    painter.fillRect(QRectF(0, 0, kWidth, kHeight), gradient);
    painter.setBrush(QColor(255, 255, 255, 45));
    painter.drawEllipse(dice.Point(10, 110, 20, 90), 52, 52);
}

void DrawPerson(QPainter &painter, const Face &face, Dice &dice) {
    painter.setPen(Qt::NoPen);
    DrawHairBehind(painter, face);
    DrawBody(painter, face);
    painter.setBrush(face.skin.darker(106));
    painter.drawEllipse(QPointF(30, 76), 5, 9);
    painter.drawEllipse(QPointF(90, 76), 5, 9);
    painter.setBrush(face.skin);
    painter.drawEllipse(QPointF(60, 74), 31, 39);
    DrawHairInFront(painter, face, dice.Between(52, 68));
    DrawEyes(painter, dice);
    DrawFeatures(painter, face, dice);
    DrawExtra(painter, face);
}

// Bands, whose names begin with the article, are shown as three.
void DrawBand(QPainter &painter, Dice &dice) {
    for (int i = 0; i < 3; ++i) {
        painter.save();
        painter.translate(i == 2 ? 26 : -8 + 62 * i, i == 2 ? 58 : 8);
        painter.scale(0.62, 0.62);
        DrawPerson(painter, ChooseFace(dice), dice);
        painter.restore();
    }
}

} // namespace

QImage DrawPortrait(const QString &name) {
    // An alternate shows the same face before another background.
    Dice face_dice(name.section(u'_', 0, 0));
    Dice background_dice(name);
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    DrawBackground(painter, background_dice);
    if (name.startsWith("The "_L1)) {
        DrawBand(painter, face_dice);
    } else {
        DrawPerson(painter, ChooseFace(face_dice), face_dice);
    }
    return image;
}

} // namespace ostrand::samples
