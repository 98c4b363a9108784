// Text files in UTF-8 with a byte order mark, and texts kept in small XML files.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace ostrand {

/// One UTF-16 unit as one to three bytes; half of a surrogate pair as three bytes, as it stands.
QByteArray CharToUtf8(char16_t code);
/// All units of a text in order; so a character beyond the first plane takes six bytes.
QByteArray StringToUtf8(QStringView text);
/// Writes the byte order mark and the text in place of the file; false on a fault.
bool WriteUtf8File(const QString &path, const QString &text);
/// The text of a UTF-8 file without its first character, which is taken for the byte order mark unseen. Empty for an
/// empty path or file, or one that cannot be read. Pairs of surrogates in three bytes each are joined.
QString ReadUtf8File(const QString &path);

/// UTF-16 or UTF-8 by the first byte, 255 or 239.
bool IsUnicodeFile(const QString &path);

/// The text of the root element `Text` of an XML file; empty when it cannot be read.
QString ReadUnicodeText(const QString &path);
/// Keeps a text there; false on a fault.
bool WriteUnicodeText(const QString &text, const QString &path);

} // namespace ostrand
