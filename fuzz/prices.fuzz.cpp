// Small readers of values: prices, dates, entities, pseudo-tags.

#include "base/Dates.h"
#include "base/Text.h"
#include "xml/XmlText.h"
#include "xml/XmlValues.h"

#include <cstdlib>

using namespace ostrand;

namespace {

void CheckPrice(const QString &text, QChar mark) {
    const QString price = ParsePrice(text, mark);
    const QString number = price.left(price.indexOf(u'|'));
    if (number.count(mark) > 1)
        std::abort();
    for (const QChar c : number)
        if (c != mark && (c < u'0' || c > u'9'))
            std::abort();
}

void CheckDate(const QString &text) {
    const auto days = DayCountFromText(XmlParseDate(text));
    if (days && DayCountFromText(DayCountToDateTime(*days)) != days)
        std::abort();
    XmlFormatValue(text, FieldType::Date);
    XmlFormatValue(text, FieldType::Float);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString text = DecodeUserText(QByteArrayView(data, qsizetype(size)));
    CheckPrice(text, u'.');
    CheckPrice(text, u',');
    CheckDate(text);
    if (DecodeEntities(text).size() > text.size())
        std::abort();
    // A line break is the one thing that is written and not read.
    const QString line = QString(text).remove(u'\r');
    if (DecodeEntities(EncodeEntities(line)) != line)
        std::abort();
    ExtractTag(text, u"COUNTRY", true);
    ExtractTag(text, QStringView(text).left(3));
    return 0;
}
