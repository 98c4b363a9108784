#include "Cover.h"

#include "Scenery.h"

namespace ostrand::samples {

using namespace Qt::StringLiterals;

namespace {

constexpr int kWidth = 260;
constexpr int kHeight = 370;

QImage Canvas() {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QFont TitleFont(Dice &dice) {
    QFont font(dice.Roll(2) == 0 ? u"DejaVu Serif"_s : u"DejaVu Sans"_s);
    font.setBold(true);
    if (dice.Roll(3) == 0) {
        font.setStretch(QFont::SemiCondensed);
    }
    return font;
}

bool Fits(const QFont &font, const QRectF &area, int flags, const QString &text) {
    const QFontMetricsF metrics(font);
    const QRectF need = metrics.boundingRect(area, flags, text);
    if (need.height() > area.height()) {
        return false;
    }
    for (const QString &word : text.split(u' ')) {
        if (metrics.horizontalAdvance(word) > area.width()) {
            return false;
        }
    }
    return true;
}

void WriteFitting(QPainter &painter, QFont font, const QRectF &area, int largest, const QString &text) {
    const int flags = Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextWordWrap;
    for (int size = largest; size >= 8; --size) {
        font.setPixelSize(size);
        if (Fits(font, area, flags, text)) {
            break;
        }
    }
    painter.setFont(font);
    painter.drawText(area, flags, text);
}

void WriteTitle(QPainter &painter, const CoverText &text, const Palette &palette, Dice &dice) {
    const QRectF area(0, 0, kWidth, 112);
    QColor band = palette.dark;
    band.setAlpha(dice.Roll(2) == 0 ? 235 : 190);
    painter.fillRect(area, band);
    painter.fillRect(QRectF(0, 112, kWidth, 4), palette.accent);
    painter.setPen(palette.paper);
    const QString shown = dice.Roll(2) == 0 ? text.title.toUpper() : text.title;
    WriteFitting(painter, TitleFont(dice), area.adjusted(14, 12, -14, -10), 34, shown);
}

void WriteFoot(QPainter &painter, const CoverText &text, const Palette &palette) {
    const QRectF area(0, kHeight - 40, kWidth, 40);
    painter.fillRect(area, palette.dark);
    painter.setPen(palette.light);
    QString line = text.director.isEmpty() ? text.genre : u"A film by "_s + text.director;
    line += u" · "_s + text.year;
    WriteFitting(painter, QFont(u"DejaVu Sans"_s), area.adjusted(10, 4, -10, text.trait.isEmpty() ? -4 : -18), 12,
                 line);
    if (!text.trait.isEmpty()) {
        QFont bold(u"DejaVu Sans"_s);
        bold.setBold(true);
        painter.setPen(palette.accent);
        WriteFitting(painter, bold, area.adjusted(10, 20, -10, -4), 11, text.trait.toUpper());
    }
}

void DrawStripes(QPainter &painter, const QRectF &area, Dice &dice) {
    painter.fillRect(area, Qt::white);
    for (double x = area.left() + 5; x < area.right() - 6;) {
        const int width = 1 + dice.Roll(3);
        painter.fillRect(QRectF(x, area.top() + 4, width, area.height() - 8), Qt::black);
        x += width + 1 + dice.Roll(3);
    }
}

} // namespace

QImage DrawFront(const CoverText &text) {
    Dice dice(text.title + text.year);
    const Palette palette = ChoosePalette(text.genre, text.black_and_white, dice);
    QImage image = Canvas();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawScenery(painter, QRectF(0, 0, kWidth, kHeight), text.genre, palette, dice);
    WriteTitle(painter, text, palette, dice);
    WriteFoot(painter, text, palette);
    return image;
}

QImage DrawBack(const CoverText &text) {
    Dice dice(text.title + text.year);
    const Palette palette = ChoosePalette(text.genre, text.black_and_white, dice);
    QImage image = Canvas();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), palette.dark);
    painter.setPen(palette.accent);
    WriteFitting(painter, TitleFont(dice), QRectF(14, 10, kWidth - 28, 46), 20, text.title);
    painter.setPen(palette.paper);
    WriteFitting(painter, QFont(u"DejaVu Sans"_s), QRectF(18, 60, kWidth - 36, 130), 13, text.tagline);
    for (int i = 0; i < 3; ++i) {
        const QRectF still(12 + 80 * i, 200, 76, 84);
        painter.save();
        painter.setClipRect(still);
        painter.translate(still.topLeft());
        painter.scale(0.3, 0.3);
        DrawScenery(painter, QRectF(0, -60, kWidth, kHeight), text.genre, palette, dice);
        painter.restore();
    }
    DrawStripes(painter, QRectF(kWidth - 110, kHeight - 68, 96, 54), dice);
    painter.setPen(palette.light);
    QFont small(u"DejaVu Sans"_s);
    WriteFitting(painter, small, QRectF(12, kHeight - 68, 130, 54), 10,
                 text.genre + u"\n"_s + text.year + u"\nNot for real sale"_s);
    return image;
}

} // namespace ostrand::samples
