// Reads a big XML file element by element, without ever holding it whole.
#pragma once

#include "xml/MarkupDigest.h"
#include "xml/XmlEventReader.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <pugixml.hpp>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ostrand {

/// What a scan looks for: children `element` of the root `root`, and in each of them the text of its first child
/// `text_child` and whether it has a child `marked_child`.
struct ScanQuery {
    std::string root;
    std::string element;
    std::string text_child;
    std::string marked_child;
};

struct ScannedElement {
    using Digest = std::array<char, 16>;

    qint64 offset = 0; ///< bytes, of the "<" of its start tag
    qint64 length = 0; ///< bytes, up to and with the ">" of its end
    qint32 line = 0;
    qint32 copy = 0; ///< place among the elements that one entity reference stands for
    bool marked = false;
    /// UTF-8; empty where there is none and where it is too long to be an identifier.
    std::string text;
    /// MD5 of the markup as it lies in the file: of each UTF-16 unit the low byte.
    Digest digest{};

    /// The digest as 32 lower-case hexadecimal digits.
    QString DigestText() const;
};

/// Two passes over one file: Scan tells that the whole of it is well formed and where its elements lie; Read builds
/// the tree of one of them. Depth is limited in the trees, and nothing outside the file is ever fetched.
class ElementScanner {
public:
    ElementScanner(const QString &path, ScanQuery query);

    /// Reads the file to its end. `between` is called now and then; false from it stops the scan, which is a fault
    /// without a reason.
    XmlResult Scan(const std::function<bool()> &between = {});
    const std::vector<ScannedElement> &Elements() const { return elements_; }

    /// Builds the tree of an element that Scan found, its root being the element. Text that is only white space
    /// between child elements is left out. Empty when the file has changed in the meantime.
    std::optional<pugi::xml_document> Read(const ScannedElement &element);

private:
    class Pass;

    std::optional<pugi::xml_document> ReadPlain(const ScannedElement &element);
    std::optional<pugi::xml_document> ReadAny(const ScannedElement &element);

    QFile file_;
    ScanQuery query_;
    std::vector<ScannedElement> elements_;
    MarkupEncoding encoding_;
    bool own_entities_ = false; // a document type declaration may define some
    QByteArray prolog_;         // what stands before the first child of the root and is needed to read one
};

} // namespace ostrand
