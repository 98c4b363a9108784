// The document loader: what it takes can be written and loaded again as the same.

#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

#include <cstdlib>

using namespace ostrand;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes(bytes, document, XmlWhitespace::Keep);
    if (!result.ok) {
        if (result.reason.isEmpty() || result.source.size() > 200)
            std::abort();
        return 0;
    }
    const QString markup = XmlMarkup(document.document_element());
    pugi::xml_document again;
    if (!XmlLoadBytes(markup.toUtf8(), again, XmlWhitespace::Keep).ok)
        std::abort();
    return 0;
}
