// Reading XML into the document model.
#pragma once

#include "xml/XmlEventReader.h"

#include <pugixml.hpp>

namespace ostrand {

/// Texts of nothing but white space are dropped, or kept.
enum class XmlWhitespace { Drop, Keep };

/// Loads a document. Its root is `document.document_element()`; after a fault the document is empty. Comments and
/// processing instructions are left out, and neighbouring texts joined.
XmlResult XmlLoadFile(const QString &path, pugi::xml_document &document,
                      XmlWhitespace whitespace = XmlWhitespace::Drop);
XmlResult XmlLoadBytes(const QByteArray &bytes, pugi::xml_document &document,
                       XmlWhitespace whitespace = XmlWhitespace::Drop);

} // namespace ostrand
