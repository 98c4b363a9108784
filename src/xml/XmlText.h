// XML built by hand as text, and read out of text.
#pragma once

#include <QString>
#include <QStringView>

namespace ostrand {

/// `2 * level` blanks, "<", name, ">" and CR LF on demand.
QString XmlOpenTag(const QString &name, int level, bool with_break = true);
/// The same with "</".
QString XmlCloseTag(const QString &name, int level, bool with_break = true);
/// A tag with a value; the empty text for an empty value. With `encode` the value goes through EncodeEntities; a `type`
/// gives the attribute Type.
QString XmlTextTag(const QString &name, const QString &value, int level, bool encode = true, const QString &type = {},
                   bool with_break = true);

/// Replaces the five characters of markup, and those characters of Windows-1252 that the table knows, by entities, and
/// each CR LF by "&#13;&#10;".
QString EncodeEntities(QStringView text);
/// Replaces entities by their characters; an entity that the table does not know goes. An ampersand whose next
/// semicolon is six or more characters away stands.
QString DecodeEntities(QStringView text);

/// What lies between the first `<tag`, up to its ">", and the next `</tag>`, found without regard to case; empty when
/// a part is missing. With `decode` it goes through DecodeEntities.
QString ExtractTag(QStringView text, QStringView tag, bool decode = false);

} // namespace ostrand
