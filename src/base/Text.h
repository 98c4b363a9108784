// Texts between bytes and characters, file names made of texts, comparison without case.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace ostrand {

/// Text of the user's own files (settings, log, command files): UTF-8 when the bytes are valid UTF-8, else
/// Windows-1252. A byte order mark of UTF-8 is dropped.
QString DecodeUserText(QByteArrayView bytes);
/// UTF-8 without a byte order mark.
QByteArray EncodeUserText(QStringView text);

/// The character of a Windows-1252 byte. The five bytes without a character give the control character of their
/// number, so that no byte is lost.
char16_t Windows1252ToUnicode(unsigned char byte);
/// The Windows-1252 byte of a character, -1 when it has none.
int UnicodeToWindows1252(char16_t character);
QString DecodeWindows1252(QByteArrayView bytes);

/// A file name of any text: ":" becomes " -", the double quote "'"; "?", "\", "/", "*", "<", ">" and control characters
/// go. A name of dots and blanks alone gets "_" for each dot, so that no result names a folder above.
QString SafeFileName(QStringView text);

bool EqualsIgnoringCase(QStringView a, QStringView b);
bool StartsWithIgnoringCase(QStringView text, QStringView start);
/// The position of the first occurrence at or behind `from`, -1 without one.
qsizetype IndexOfIgnoringCase(QStringView text, QStringView part, qsizetype from = 0);

} // namespace ostrand
