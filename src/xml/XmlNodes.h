// Reading and writing through the document model.
#pragma once

#include "xml/XmlValues.h"

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

namespace ostrand {

/// The text of an element with all that is in it.
QString XmlNodeText(const pugi::xml_node &node);
/// The text of the first child element `name`; `preset` when it is missing, or empty while `preset` is not.
QString XmlChildText(const pugi::xml_node &node, const char *name, const QString &preset = {});
/// The text of the first attribute of that name, a prefix before ":" left aside; else `preset`.
QString XmlAttribute(const pugi::xml_node &node, const char *name, const QString &preset = {});
/// The markup of a node with all that is in it.
QString XmlMarkup(const pugi::xml_node &node);

/// UTF-8 without the characters that XML 1.0 cannot hold: control characters, halves of surrogate pairs, the two
/// non-characters at the end of the plane.
QByteArray XmlUtf8(QStringView text);
/// The text without those characters.
QString XmlAllowed(QStringView text);

/// Appends a text of CR, LF and two blanks per level.
void XmlAddIndent(pugi::xml_node parent, int level);
/// Appends an indent and a new element, and returns the element.
pugi::xml_node XmlAddElement(pugi::xml_node parent, const char *name, int level);
/// The same with a copy of an element that exists, of this or another document.
pugi::xml_node XmlAddExisting(pugi::xml_node parent, const pugi::xml_node &element, int level);
/// The same with a value as its text. A text that is empty adds nothing with `skip_empty`, and the result is null.
/// False reads as "False" unless empty texts are skipped.
pugi::xml_node XmlAddTextElement(pugi::xml_node parent, const char *name, const FieldValue &value, int level,
                                 FieldType type = FieldType::Text, bool skip_empty = false);
/// The same for a database column. With `skip_default` a long integer 0 and the date 1899-12-30 count as empty too.
pugi::xml_node XmlAddFieldElement(pugi::xml_node parent, const char *name, const XmlField &field, int level,
                                  bool skip_default = false);
void XmlSetAttribute(pugi::xml_node node, const char *name, const QString &value);

/// The text of a value element, empty where nothing is to be written; the rule behind both writers.
QString XmlElementText(const FieldValue &value, FieldType type, bool skip_empty);
QString XmlFieldText(const XmlField &field, bool skip_default);

/// The bytes of a document: the header as given, the root as it is built, closed by its own line, and CR LF.
QByteArray XmlDocumentBytes(const QString &header, pugi::xml_node root);
/// Writes them in place of the file; false on a fault.
bool XmlSaveDocument(const QString &path, const QString &header, pugi::xml_node root);

} // namespace ostrand
