#include "xml/XmlNodes.h"

#include "base/Files.h"

#include <cstring>
#include <string_view>

namespace ostrand {

namespace {

constexpr unsigned kAsBuilt = pugi::format_raw | pugi::format_no_declaration;

class ByteWriter : public pugi::xml_writer {
public:
    void write(const void *data, size_t size) override {
        bytes.append(static_cast<const char *>(data), qsizetype(size));
    }
    QByteArray bytes;
};

QByteArray MarkupBytes(const pugi::xml_node &node) {
    ByteWriter writer;
    node.print(writer, "", kAsBuilt, pugi::encoding_utf8);
    return writer.bytes;
}

bool IsAllowed(char16_t c) {
    return c >= 0x20 ? c < 0xFFFE : c == u'\t' || c == u'\n' || c == u'\r';
}

/// Whether all units are ones that XML can hold and none is half of a pair.
bool AllAllowed(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return IsAllowed(c.unicode()) && !c.isSurrogate(); });
}

/// The element's next node in the order of the document, below `root`; null behind the last.
pugi::xml_node NextNode(pugi::xml_node node, const pugi::xml_node &root) {
    if (node.first_child())
        return node.first_child();
    while (node != root && !node.next_sibling())
        node = node.parent();
    return node == root ? pugi::xml_node() : node.next_sibling();
}

} // namespace

QString XmlAllowed(QStringView text) {
    if (AllAllowed(text))
        return text.toString();
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            result += c;
            result += text[++i];
        } else if (IsAllowed(c.unicode()) && !c.isSurrogate()) {
            result += c;
        }
    }
    return result;
}

QByteArray XmlUtf8(QStringView text) {
    return AllAllowed(text) ? text.toUtf8() : XmlAllowed(text).toUtf8();
}

QString XmlNodeText(const pugi::xml_node &node) {
    const pugi::xml_node first = node.first_child();
    if (!first)
        return {};
    if (first.type() == pugi::node_pcdata && !first.next_sibling())
        return QString::fromUtf8(first.value());
    QByteArray text;
    for (pugi::xml_node next = first; next; next = NextNode(next, node))
        if (next.type() == pugi::node_pcdata || next.type() == pugi::node_cdata)
            text += next.value();
    return QString::fromUtf8(text);
}

QString XmlChildText(const pugi::xml_node &node, const char *name, const QString &preset) {
    const pugi::xml_node child = node.child(name);
    if (!child)
        return preset;
    QString text = XmlNodeText(child);
    return text.isEmpty() ? preset : text;
}

QString XmlAttribute(const pugi::xml_node &node, const char *name, const QString &preset) {
    const std::string_view wanted = name;
    for (const pugi::xml_attribute &attribute : node.attributes()) {
        const std::string_view own = attribute.name();
        if (!own.ends_with(wanted))
            continue;
        const std::size_t colon = own.find(':');
        if (own.size() == wanted.size() ? colon == own.npos : colon + 1 + wanted.size() == own.size())
            return QString::fromUtf8(attribute.value());
    }
    return preset;
}

QString XmlMarkup(const pugi::xml_node &node) {
    return QString::fromUtf8(MarkupBytes(node));
}

void XmlAddIndent(pugi::xml_node parent, int level) {
    const std::string text = "\r\n" + std::string(size_t(std::max(0, level)) * 2, ' ');
    parent.append_child(pugi::node_pcdata).set_value(text.c_str());
}

pugi::xml_node XmlAddElement(pugi::xml_node parent, const char *name, int level) {
    XmlAddIndent(parent, level);
    return parent.append_child(name);
}

pugi::xml_node XmlAddExisting(pugi::xml_node parent, const pugi::xml_node &element, int level) {
    XmlAddIndent(parent, level);
    return parent.append_copy(element);
}

QString XmlElementText(const FieldValue &value, FieldType type, bool skip_empty) {
    // A column that is written even when it is false says so; one that is skipped when empty is skipped when false.
    return IsEmptyValue(value) ? QString() : XmlFormatValue(value, type, !skip_empty);
}

QString XmlFieldText(const XmlField &field, bool skip_default) {
    const QString text = XmlElementText(field.value, field.type, skip_default);
    const bool is_default = (field.type == FieldType::Long && text == QStringLiteral("0")) ||
                            (field.type == FieldType::Date && text == QStringLiteral("1899-12-30"));
    return skip_default && is_default ? QString() : text;
}

namespace {

pugi::xml_node AddWithText(pugi::xml_node parent, const char *name, const QString &text, int level, bool skip) {
    const QByteArray bytes = XmlUtf8(text);
    if (bytes.isEmpty() && skip)
        return {};
    const pugi::xml_node element = XmlAddElement(parent, name, level);
    if (!bytes.isEmpty())
        element.text().set(bytes.constData());
    return element;
}

} // namespace

pugi::xml_node XmlAddTextElement(pugi::xml_node parent, const char *name, const FieldValue &value, int level,
                                 FieldType type, bool skip_empty) {
    return AddWithText(parent, name, XmlElementText(value, type, skip_empty), level, skip_empty);
}

pugi::xml_node XmlAddFieldElement(pugi::xml_node parent, const char *name, const XmlField &field, int level,
                                  bool skip_default) {
    return AddWithText(parent, name, XmlFieldText(field, skip_default), level, skip_default);
}

void XmlSetAttribute(pugi::xml_node node, const char *name, const QString &value) {
    pugi::xml_attribute attribute = node.attribute(name);
    if (!attribute)
        attribute = node.append_attribute(name);
    attribute.set_value(XmlUtf8(value).constData());
}

QByteArray XmlDocumentBytes(const QString &header, pugi::xml_node root) {
    return XmlUtf8(header) + MarkupBytes(root) + "\r\n";
}

bool XmlSaveDocument(const QString &path, const QString &header, pugi::xml_node root) {
    return ReplaceFile(path, XmlDocumentBytes(header, root));
}

} // namespace ostrand
