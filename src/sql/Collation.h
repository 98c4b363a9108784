// The one text order of the engine.
#pragma once

#include <QByteArray>
#include <QStringView>

#include <string_view>

namespace ostrand::sql {

/// Raised whenever the order changes; a file made with another version wants its indexes built anew.
inline constexpr int kCollationVersion = 1;

/// Compares two texts in the general sort order of code page 1252: letters without case first (æ as ae, œ as oe, ß as
/// ss, þ as th), then accents, then the places of apostrophe and hyphen, which do not count at first. Trailing blanks
/// do not count. Negative, 0 or positive.
int Compare(QStringView left, QStringView right);
/// The same over UTF-8, without copying.
int CompareUtf8(std::string_view left, std::string_view right);
/// A key for sorting or looking up many texts: keys stand to each other, byte by byte, as Compare finds their texts.
QByteArray SortKey(QStringView text);
/// Puts such a key behind what is in `key` already.
void AppendSortKey(QStringView text, QByteArray &key);

} // namespace ostrand::sql
