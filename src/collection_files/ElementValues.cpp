#include "collection_files/ElementValues.h"

#include "sql/Conversion.h"

#include <cmath>
#include <limits>

namespace ostrand {

bool IsTrue(const QString &text) {
    return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

bool ReadBoolean(const QString &text) {
    // The two words of nearly every file need no parser.
    if (text.isEmpty() || text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) {
        return false;
    }
    return IsTrue(text) || sql::TextToBoolean(text, u'.').value_or(false);
}

int ReadNumber(const QString &text) {
    bool whole = false;
    if (const int number = text.toInt(&whole); whole) {
        return number;
    }
    const double number = std::nearbyint(sql::TextToNumber(text, u'.').value_or(0));
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return fits ? int(number) : 0;
}

} // namespace ostrand
