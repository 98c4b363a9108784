// Builds a tree from the events of the parser, so that encodings and entities are read as anywhere else.
#pragma once

#include "xml/ExpatParser.h"

#include <QByteArrayView>

#include <pugixml.hpp>

#include <string>

namespace ostrand {

/// Takes one element of a document: that of the given depth (1 is the root) which comes `skip` behind the first.
/// Comments and processing instructions are left out, CDATA is text, texts of nothing but white space are dropped.
class TreeBuilder {
public:
    explicit TreeBuilder(int depth, int skip);
    TreeBuilder(const TreeBuilder &) = delete;
    TreeBuilder &operator=(const TreeBuilder &) = delete;

    /// The next piece of the document; false when it is not well formed.
    bool Feed(QByteArrayView bytes);
    /// True when the element wanted has come to its end.
    bool IsDone() const { return done_; }
    pugi::xml_document &Document() { return document_; }

private:
    static TreeBuilder &Of(void *data) { return *static_cast<TreeBuilder *>(data); }
    static void XMLCALL OnStart(void *data, const XML_Char *name, const XML_Char **attributes);
    static void XMLCALL OnEnd(void *data, const XML_Char *);
    static void XMLCALL OnText(void *data, const XML_Char *text, int length);

    void FlushText();

    ExpatParser parser_;
    pugi::xml_document document_;
    pugi::xml_node node_;
    std::string text_;
    qint64 wanted_depth_;
    qint64 depth_ = 0;
    int skip_;
    bool done_ = false;
};

} // namespace ostrand
