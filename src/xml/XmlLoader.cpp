#include "xml/XmlLoader.h"

namespace ostrand {

namespace {

/// Builds the document of the events.
class Builder : public XmlEventHandler {
public:
    Builder(pugi::xml_document &document, XmlWhitespace whitespace) : node_(document), whitespace_(whitespace) {}

    void StartElement(const char *name, const std::vector<XmlEventAttribute> &attributes) override {
        FlushText();
        node_ = node_.append_child(name);
        for (const XmlEventAttribute &attribute : attributes)
            node_.append_attribute(attribute.name).set_value(attribute.value);
    }

    void EndElement(const char *) override {
        FlushText();
        node_ = node_.parent();
    }

    void Characters(const char *text, int length) override { text_.append(text, size_t(length)); }

private:
    void FlushText() {
        const bool blank = text_.find_first_not_of(" \t\r\n") == std::string::npos;
        if (!text_.empty() && (!blank || whitespace_ == XmlWhitespace::Keep))
            node_.append_child(pugi::node_pcdata).set_value(text_.c_str());
        text_.clear();
    }

    pugi::xml_node node_;
    XmlWhitespace whitespace_;
    std::string text_;
};

XmlResult Checked(XmlResult result, pugi::xml_document &document) {
    if (!result.ok)
        document.reset();
    return result;
}

} // namespace

XmlResult XmlLoadFile(const QString &path, pugi::xml_document &document, XmlWhitespace whitespace) {
    document.reset();
    Builder builder(document, whitespace);
    return Checked(XmlReadFile(path, builder), document);
}

XmlResult XmlLoadBytes(const QByteArray &bytes, pugi::xml_document &document, XmlWhitespace whitespace) {
    document.reset();
    Builder builder(document, whitespace);
    return Checked(XmlReadBytes(bytes, builder), document);
}

} // namespace ostrand
