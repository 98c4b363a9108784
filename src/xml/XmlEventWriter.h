// Writing XML as a stream.
#pragma once

#include "xml/XmlValues.h"

#include <QAnyStringView>
#include <QSaveFile>
#include <QString>

#include <utility>
#include <vector>

namespace ostrand {

using XmlAttributeList = std::vector<std::pair<QString, QString>>;

/// Writes UTF-8 with automatic indentation: each element on a line of its own, two blanks per level, CR LF. The file
/// stands under its name only after `Finish`; until then the old one stays. A fault of writing shows in `Finish`.
class XmlEventWriter {
public:
    explicit XmlEventWriter(const QString &path);

    /// False when the file could not be created.
    bool IsOpen() const { return file_.isOpen(); }
    /// The declaration.
    void StartDocument();
    /// A comment line above the root; it ends in LF alone.
    void Comment(const QString &text);
    void StartElement(QAnyStringView name, const XmlAttributeList &attributes = {});
    void Characters(const QString &text);
    /// Closes the innermost element with the name given, which the caller answers for.
    void EndElement(QAnyStringView name);
    /// Puts the file in its place; false on any fault, which leaves the old file.
    bool Finish();
    QString ErrorText() const { return file_.errorString(); }

private:
    struct Level {
        bool has_elements = false;
        bool has_content = false;
    };
    void Break(size_t level);
    void CloseStartTag();
    void Put(const QByteArray &bytes);
    void Flush();

    QSaveFile file_;
    QByteArray pending_;
    std::vector<Level> open_;
    bool start_tag_open_ = false;
    bool failed_ = false;
};

/// An element with a value as its text; the rules of XmlAddTextElement and XmlAddFieldElement.
void XmlWriteTextElement(XmlEventWriter &handler, QAnyStringView name, const FieldValue &value,
                         FieldType type = FieldType::Text, bool skip_empty = false);
void XmlWriteFieldElement(XmlEventWriter &handler, QAnyStringView name, const XmlField &field,
                          bool skip_default = false);

} // namespace ostrand
