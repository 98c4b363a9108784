#include "skin/Barcode.h"

#include "shell/Session.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr const char16_t *kParities[] = {u"LLLLLL", u"LLGLGG", u"LLGGLG", u"LLGGGL", u"LGLLGG",
                                         u"LGGLLG", u"LGGGLL", u"LGLGLG", u"LGLGGL", u"LGGLGL"};

// The bars of the digits 0 to 9 by parity.
constexpr const char16_t *kLeft[] = {u"0001101", u"0011001", u"0010011", u"0111101", u"0100011",
                                     u"0110001", u"0101111", u"0111011", u"0110111", u"0001011"};
constexpr const char16_t *kLeftEven[] = {u"0100111", u"0110011", u"0011011", u"0100001", u"0011101",
                                         u"0111001", u"0000101", u"0010001", u"0001001", u"0010111"};
constexpr const char16_t *kRight[] = {u"1110010", u"1100110", u"1101100", u"1000010", u"1011100",
                                      u"1001110", u"1010000", u"1000100", u"1001000", u"1110100"};

QString Bars(QChar parity, QChar digit) {
    const int value = digit.digitValue();
    return QString::fromUtf16(parity == u'L' ? kLeft[value] : parity == u'G' ? kLeftEven[value] : kRight[value]);
}

/// A digit with the parity that it is drawn in: L, G or R.
struct BarcodeElement {
    QChar parity;
    QChar digit;
};

/// The digits that have bars of their own, left half first. The first of 13 digits only chooses the parities.
QList<BarcodeElement> Elements(const QString &digits) {
    const QString parity = GetBarcodeParity(digits);
    const QString drawn = digits.right(12);
    const qsizetype half = drawn.size() / 2;
    QList<BarcodeElement> elements;
    for (qsizetype i = 0; i < drawn.size(); ++i) {
        elements.append({i < half ? parity.at(i) : QChar(u'R'), drawn.at(i)});
    }
    return elements;
}

/// The folder of the images, wherever the program's own files lie.
QString ImageFolder(const Session &session) {
    const QString images = u"/html/images/"_s;
    for (const QString &folder : session.services.folders.Resources()) {
        if (QFileInfo(folder + images).isDir()) {
            return folder + images;
        }
    }
    return session.ProgramFolder + images;
}

} // namespace

QString BarcodeDigits(const QString &number) {
    QString digits = number;
    digits.remove(u'-').remove(u' ');
    const bool numeric =
        std::all_of(digits.cbegin(), digits.cend(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    const bool drawable = digits.size() == 8 || digits.size() == 12 || digits.size() == 13;
    return numeric && drawable ? digits : QString();
}

QString GetBarcodeParity(const QString &digits) {
    switch (digits.size()) {
    case 8:
        return u"LLLL"_s;
    case 12:
        return u"LLLLLL"_s;
    case 13: {
        const int first = digits.at(0).digitValue();
        return first < 0 ? QString() : QString::fromUtf16(kParities[first]);
    }
    default:
        return {};
    }
}

QString RenderBarcodeImages(const QString &number, const QString &folder, const QString &height) {
    const QString digits = BarcodeDigits(number);
    if (digits.isEmpty()) {
        return {};
    }
    const auto image = [&](const QString &name) {
        return u"<img src='"_s + folder + name + u".png' HEIGHT="_s + height + u"/>"_s;
    };
    const QList<BarcodeElement> elements = Elements(digits);
    QString text = image(digits.size() == 13 ? u'B' + digits.left(1) : u"B"_s) + image(u"S"_s);
    for (qsizetype i = 0; i < elements.size(); ++i) {
        if (i == elements.size() / 2) {
            text += image(u"M"_s);
        }
        text += image(QString(elements.at(i).parity) + elements.at(i).digit);
    }
    return text + image(u"E"_s) + image(u"B"_s);
}

QString EncodeBarcodeBits(const QString &number) {
    const QString digits = BarcodeDigits(number);
    if (digits.isEmpty()) {
        return {};
    }
    const QList<BarcodeElement> elements = Elements(digits);
    QString text = u"101,"_s;
    for (qsizetype i = 0; i < elements.size(); ++i) {
        if (i == elements.size() / 2) {
            text += u"01010,"_s;
        }
        text += Bars(elements.at(i).parity, elements.at(i).digit) + u',';
    }
    return text + u"101"_s;
}

void GetBarcode(const TagCall &call, QString &text) {
    const QString folder = call.options.offline ? u"../common/"_s : PathToFileUrl(ImageFolder(call.session));
    text += RenderBarcodeImages(call.Field(u"UPC"), folder, call.Text(u"HEIGHT", u"120"_s));
}

} // namespace ostrand
