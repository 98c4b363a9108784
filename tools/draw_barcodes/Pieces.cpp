#include "Pieces.h"

#include "Digits.h"

#include <algorithm>

namespace ostrand::barcodes {

namespace {

using namespace Qt::StringLiterals;

// In pixels. The height is the one that pages ask for by themselves, so that nothing is scaled there.
constexpr int kModule = 2;
constexpr int kHeight = 120;
constexpr int kDigitTop = kHeight - kDigitRows * kModule - 2;
constexpr int kBarBottom = kDigitTop - 3;
constexpr int kGuardBottom = kDigitTop + kDigitRows * kModule / 2;

// In modules: what readers need of white beside the bars. The digit in front of EAN-13 takes two more.
constexpr int kMargin = 9;
constexpr int kDigitMargin = 11;

constexpr const char *kLeftOdd[] = {"0001101", "0011001", "0010011", "0111101", "0100011",
                                    "0110001", "0101111", "0111011", "0110111", "0001011"};

/// Bars for white and white for bars.
QString Inverted(const QString &modules) {
    QString inverted;
    for (const QChar module : modules) {
        inverted += module == u'1' ? u'0' : u'1';
    }
    return inverted;
}

QString Reversed(const QString &modules) {
    QString reversed = modules;
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

} // namespace

QList<Piece> AllPieces() {
    QList<Piece> pieces{{u"B"_s, QString(kMargin, u'0')},
                        {u"S"_s, u"101"_s, true},
                        {u"M"_s, u"01010"_s, true},
                        {u"E"_s, u"101"_s, true}};
    for (int digit = 0; digit < 10; ++digit) {
        const QString left = QString::fromLatin1(kLeftOdd[digit]);
        const QString right = Inverted(left);
        const QString number = QString::number(digit);
        pieces.append({u'B' + number, QString(kDigitMargin, u'0'), false, digit});
        pieces.append({u'L' + number, left, false, digit});
        pieces.append({u'G' + number, Reversed(right), false, digit});
        pieces.append({u'R' + number, right, false, digit});
    }
    return pieces;
}

QImage Draw(const Piece &piece) {
    QImage image(int(piece.modules.size()) * kModule, kHeight, QImage::Format_Mono);
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    image.fill(0);
    for (int x = 0; x < image.width(); ++x) {
        const bool bar = piece.modules.at(x / kModule) == u'1';
        for (int y = 0; bar && y < (piece.is_guard ? kGuardBottom : kBarBottom); ++y) {
            image.setPixel(x, y, 1);
        }
    }
    if (piece.digit >= 0) {
        const int left = (int(piece.modules.size()) - kDigitColumns) / 2;
        for (int y = 0; y < kDigitRows * kModule; ++y) {
            for (int x = 0; x < kDigitColumns * kModule; ++x) {
                if (DigitPixel(piece.digit, x / kModule, y / kModule)) {
                    image.setPixel(left * kModule + x, kDigitTop + y, 1);
                }
            }
        }
    }
    return image;
}

} // namespace ostrand::barcodes
