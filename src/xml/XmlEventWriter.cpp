#include "xml/XmlEventWriter.h"

#include "base/Files.h"
#include "xml/XmlNodes.h"

namespace ostrand {

namespace {

constexpr qsizetype kFlushAt = 1 << 16;

/// Escapes markup; in an attribute also what a reader would turn into a blank.
QByteArray Escaped(const QString &text, bool attribute) {
    const QByteArray bytes = XmlUtf8(text);
    QByteArray result;
    result.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else if (c == '>')
            result += "&gt;";
        else if (attribute && c == '"')
            result += "&quot;";
        else if (attribute && (c == '\t' || c == '\r' || c == '\n'))
            result += "&#" + QByteArray::number(int(c)) + ';';
        else
            result += c;
    }
    return result;
}

QByteArray NameBytes(QAnyStringView name) {
    return name.toString().toUtf8();
}

} // namespace

XmlEventWriter::XmlEventWriter(const QString &path) : file_(path) {
    failed_ = !file_.open(QIODevice::WriteOnly);
}

void XmlEventWriter::StartDocument() {
    Put("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n");
}

void XmlEventWriter::Comment(const QString &text) {
    Put("<!--" + XmlUtf8(QString(text).replace(QStringLiteral("--"), QStringLiteral("- -"))) + "-->\n");
}

void XmlEventWriter::StartElement(QAnyStringView name, const XmlAttributeList &attributes) {
    CloseStartTag();
    if (!open_.empty()) {
        open_.back().has_elements = true;
        open_.back().has_content = true;
        Break(open_.size());
    }
    Put('<' + NameBytes(name));
    for (const auto &[key, value] : attributes)
        Put(' ' + key.toUtf8() + "=\"" + Escaped(value, true) + '"');
    open_.emplace_back();
    start_tag_open_ = true;
}

void XmlEventWriter::Characters(const QString &text) {
    const QByteArray bytes = Escaped(text, false);
    if (bytes.isEmpty() || open_.empty())
        return;
    CloseStartTag();
    open_.back().has_content = true;
    Put(bytes);
}

void XmlEventWriter::EndElement(QAnyStringView name) {
    if (open_.empty())
        return;
    const Level level = open_.back();
    open_.pop_back();
    if (!level.has_content) {
        start_tag_open_ = false;
        Put("/>");
    } else {
        if (level.has_elements)
            Break(open_.size());
        Put("</" + NameBytes(name) + '>');
    }
    if (open_.empty())
        Put("\r\n");
}

bool XmlEventWriter::Finish() {
    Flush();
    if (failed_ || !open_.empty()) {
        file_.cancelWriting();
        return false;
    }
    failed_ = !CommitFile(file_);
    return !failed_;
}

void XmlEventWriter::Break(size_t level) {
    Put("\r\n" + QByteArray(qsizetype(level) * 2, ' '));
}

void XmlEventWriter::CloseStartTag() {
    if (start_tag_open_)
        Put(">");
    start_tag_open_ = false;
}

void XmlEventWriter::Put(const QByteArray &bytes) {
    pending_ += bytes;
    if (pending_.size() >= kFlushAt)
        Flush();
}

void XmlEventWriter::Flush() {
    if (!failed_ && file_.write(pending_) != pending_.size())
        failed_ = true;
    pending_.clear();
}

namespace {

void WriteElement(XmlEventWriter &handler, QAnyStringView name, const QString &text, bool skip) {
    const QString allowed = XmlAllowed(text);
    if (allowed.isEmpty() && skip)
        return;
    handler.StartElement(name);
    handler.Characters(allowed);
    handler.EndElement(name);
}

} // namespace

void XmlWriteTextElement(XmlEventWriter &handler, QAnyStringView name, const FieldValue &value, FieldType type,
                         bool skip_empty) {
    WriteElement(handler, name, XmlElementText(value, type, skip_empty), skip_empty);
}

void XmlWriteFieldElement(XmlEventWriter &handler, QAnyStringView name, const XmlField &field, bool skip_default) {
    WriteElement(handler, name, XmlFieldText(field, skip_default), skip_default);
}

} // namespace ostrand
