// Texts, patterns and numbers from outside go through all that reads and writes them. The first byte chooses the
// decimal mark, the next eight are a number, a line break parts text and pattern.

#include "sql/Collation.h"
#include "sql/Conversion.h"
#include "sql/Format.h"
#include "sql/Like.h"
#include "sql/SqlError.h"

#include <cstdlib>
#include <cstring>

using namespace ostrand::sql;

namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void CheckConversions(const QString &text, QChar mark) {
    if (const auto number = TextToNumber(text, mark)) {
        Require(TextToNumber(NumberToText(*number, mark), mark).has_value() || *number > 1e307 || *number < -1e307);
    }
    if (const auto date = TextToDate(text, mark)) {
        Require(TextToDate(DateToIso(*date), mark).has_value());
    }
    DateLiteral(text);
    TextToBoolean(text, mark);
}

void CheckOrder(std::string_view left, std::string_view right) {
    Require(CompareUtf8(left, right) == -CompareUtf8(right, left));
    const QString first = QString::fromUtf8(left.data(), qsizetype(left.size()));
    const QString second = QString::fromUtf8(right.data(), qsizetype(right.size()));
    Require(Compare(first, second) == CompareUtf8(first.toStdString(), second.toStdString()));
    Require(Compare(first, first) == 0);
}

void CheckLike(std::string_view text, const QString &pattern) {
    try {
        const LikePattern like(pattern);
        const QString wide = QString::fromUtf8(text.data(), qsizetype(text.size()));
        Require(like.MatchesUtf8(text) == like.Matches(wide));
    } catch (const SqlError &error) {
        Require(error.Code() == ErrorCode::InvalidPattern);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    constexpr size_t kHead = 1 + sizeof(double);
    if (size < kHead) {
        return 0;
    }
    const QChar mark = data[0] % 2 == 0 ? u'.' : u',';
    double number = 0;
    std::memcpy(&number, data + 1, sizeof number);
    const std::string_view rest(reinterpret_cast<const char *>(data) + kHead, size - kHead);
    const size_t end = rest.find('\n');
    const std::string_view text = rest.substr(0, end);
    const std::string_view second = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    const QString wide = QString::fromUtf8(text.data(), qsizetype(text.size()));
    const QString pattern = QString::fromUtf8(second.data(), qsizetype(second.size()));

    CheckConversions(wide, mark);
    CheckOrder(text, second);
    CheckLike(text, pattern);
    KindOfPattern(pattern);
    FormatNumber(number, pattern, mark);
    FormatDate(number, pattern, WeekRule());
    FormatText(wide, pattern);
    NumberToText(number, mark);
    DateToText(number);
    return 0;
}
