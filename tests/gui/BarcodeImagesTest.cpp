// The pieces that pages put barcodes together from, read as a scanner does.
#include "skin/Barcode.h"

#include <QImage>
#include <QMap>
#include <QPainter>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr int kModule = 2;
constexpr int kHeight = 120;

QImage Piece(const QString &name) {
    return QImage(QStringLiteral(OSTRAND_SOURCE_DIR "/resources/html/images/") + name + u".png"_s);
}

/// The images that the markup names, side by side.
QImage Compose(const QString &number) {
    static const QRegularExpression source(u"'i/(\\w+)\\.png'"_s);
    QList<QImage> pieces;
    int width = 0;
    for (auto match = source.globalMatch(RenderBarcodeImages(number, u"i/"_s, u"120"_s)); match.hasNext();) {
        pieces.append(Piece(match.next().captured(1)));
        width += pieces.last().width();
    }
    QImage barcode(width, kHeight, QImage::Format_RGB32);
    QPainter painter(&barcode);
    int left = 0;
    for (const QImage &piece : pieces) {
        painter.drawImage(left, 0, piece);
        left += piece.width();
    }
    return barcode;
}

bool IsDark(const QImage &image, int x, int y) {
    return qGray(image.pixel(x, y)) < 128;
}

/// One scan line through the bars, "1" for a dark module.
QString Modules(const QImage &image, int y) {
    QString modules;
    for (int x = kModule / 2; x < image.width(); x += kModule) {
        modules += IsDark(image, x, y) ? u'1' : u'0';
    }
    return modules;
}

/// The widths of white and dark stripes of a line, in pixels, without the margins.
QList<int> Stripes(const QImage &image, int y) {
    QList<int> stripes;
    for (int x = 1, width = 1; x < image.width(); ++x, ++width) {
        if (IsDark(image, x, y) != IsDark(image, x - 1, y)) {
            stripes.append(width);
            width = 0;
        }
    }
    return stripes.mid(1);
}

/// Reads a number from the widths of its stripes alone; "?" for a digit that is none. The first of 13 digits is left
/// out, it only shows in the parities, which `parities` gets.
QString ReadStripes(const QList<int> &stripes, QString *parities) {
    // By the relative widths of the four stripes of a digit in the left half; even parity has them in reverse.
    static const QMap<QString, int> digits{{u"3211"_s, 0}, {u"2221"_s, 1}, {u"2122"_s, 2}, {u"1411"_s, 3},
                                           {u"1132"_s, 4}, {u"1231"_s, 5}, {u"1114"_s, 6}, {u"1312"_s, 7},
                                           {u"1213"_s, 8}, {u"3112"_s, 9}};
    QString number;
    const qsizetype count = (stripes.size() - 11) / 4;
    for (qsizetype i = 0; i < count; ++i) {
        const bool right = i >= count / 2;
        const qsizetype at = 3 + i * 4 + (right ? 5 : 0);
        QString widths;
        for (qsizetype stripe = at; stripe < at + 4; ++stripe) {
            widths += QString::number(stripes.value(stripe) / kModule);
        }
        QString reversed = widths;
        std::reverse(reversed.begin(), reversed.end());
        const bool odd = digits.contains(widths);
        const int digit = odd ? digits.value(widths) : digits.value(reversed, -1);
        number += digit < 0 ? u"?"_s : QString::number(digit);
        *parities += right ? QString() : odd ? u"L"_s : u"G"_s;
    }
    return number;
}

TEST(BarcodeImages, AreAllThere) {
    QStringList names{u"B"_s, u"S"_s, u"M"_s, u"E"_s};
    for (int digit = 0; digit < 10; ++digit) {
        for (const QString &kind : {u"B"_s, u"L"_s, u"G"_s, u"R"_s}) {
            names.append(kind + QString::number(digit));
        }
    }
    for (const QString &name : names) {
        const QImage image = Piece(name);
        ASSERT_FALSE(image.isNull()) << name.toStdString();
        EXPECT_EQ(image.height(), kHeight) << name.toStdString();
        EXPECT_EQ(image.width() % kModule, 0) << name.toStdString();
    }
}

TEST(BarcodeImages, PutTogetherGiveTheBitsOfTheNumber) {
    for (const QString &number : {u"4006381333931"_s, u"0123456789012"_s, u"9876543210987"_s, u"012345678905"_s,
                                  u"12345670"_s, u"98765432"_s}) {
        SCOPED_TRACE(number.toStdString());
        const QImage barcode = Compose(number);
        const QString bits = EncodeBarcodeBits(number).remove(u',');
        const QString margin(number.size() == 13 ? 11 : 9, u'0');
        for (const int y : {0, 40, 80}) {
            EXPECT_EQ(Modules(barcode, y), margin + bits + QString(9, u'0')) << y;
        }
    }
}

TEST(BarcodeImages, ReadBackAsTheNumber) {
    for (int first = 0; first < 10; ++first) {
        const QString number = QString::number(first) + u"012345678987"_s;
        QString parities;
        EXPECT_EQ(ReadStripes(Stripes(Compose(number), 50), &parities), number.mid(1));
        EXPECT_EQ(parities, GetBarcodeParity(number));
    }
    for (const QString &number : {u"012345678905"_s, u"12345670"_s}) {
        QString parities;
        EXPECT_EQ(ReadStripes(Stripes(Compose(number), 50), &parities), number);
        EXPECT_EQ(parities, QString(number.size() / 2, u'L'));
    }
}

TEST(BarcodeImages, HaveSharpBars) {
    const QImage barcode = Compose(u"4006381333931"_s);
    for (const int width : Stripes(barcode, 50)) {
        EXPECT_EQ(width % kModule, 0);
        EXPECT_LE(width, 4 * kModule);
    }
    for (int x = 0; x < barcode.width(); ++x) {
        EXPECT_EQ(IsDark(barcode, x, 0), IsDark(barcode, x, 90)) << x;
    }
}

TEST(BarcodeImages, LetTheGuardsReachBetweenTheDigits) {
    for (const QString &guard : {u"S"_s, u"M"_s, u"E"_s}) {
        EXPECT_TRUE(Modules(Piece(guard), 105).contains(u'1')) << guard.toStdString();
        EXPECT_FALSE(Modules(Piece(guard), kHeight - 1).contains(u'1')) << guard.toStdString();
    }
}

/// The part of a piece below the bars, or of a margin the whole, as one text.
QString Figure(const QString &name) {
    const QImage image = Piece(name);
    QString figure;
    for (int y = 104; y < kHeight; ++y) {
        const QString row = Modules(image, y);
        // The margin's digit stands as far from the right end as any other.
        figure += row.mid(row.size() > 7 ? (row.size() - 5) / 2 : 1, 5);
    }
    return figure;
}

TEST(BarcodeImages, ShowTheirDigit) {
    QStringList figures;
    for (int digit = 0; digit < 10; ++digit) {
        const QString number = QString::number(digit);
        const QString figure = Figure(u'L' + number);
        EXPECT_GT(figure.count(u'1'), 10) << digit;
        EXPECT_FALSE(figures.contains(figure)) << digit;
        for (const QString &kind : {u"B"_s, u"G"_s, u"R"_s}) {
            EXPECT_EQ(Figure(kind + number), figure) << (kind + number).toStdString();
        }
        figures.append(figure);
        EXPECT_FALSE(Modules(Piece(u'B' + number), 50).contains(u'1')) << digit;
    }
    EXPECT_FALSE(Figure(u"B"_s).contains(u'1'));
}

} // namespace
} // namespace ostrand
