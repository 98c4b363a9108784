#include "base/IniFile.h"

#include "base/Files.h"
#include "base/Text.h"

#include <QFile>
#include <QStringList>

namespace ostrand {

namespace {

const QString kBreak = QStringLiteral("\r\n");

struct Range {
    qsizetype begin = -1;
    qsizetype end = -1;
};

/// The text of a section from its "[" to the line break before the next "[" at a line start.
Range FindSection(const QString &text, const QString &section) {
    const qsizetype begin = text.indexOf(u'[' + section + u']', 0, Qt::CaseInsensitive);
    if (begin < 0)
        return {};
    const qsizetype next = text.indexOf(kBreak + u'[', begin);
    return {begin, next < 0 ? text.size() : next};
}

/// The section's text with the key's line replaced or added.
QString ReplacedLine(const QString &section_text, const QString &start, const QString &value) {
    QString result;
    bool matched = false;
    for (const QString &line : section_text.split(kBreak)) {
        const bool matches = line.startsWith(start, Qt::CaseInsensitive);
        matched = matched || matches;
        result += (matches ? start + value : line) + kBreak;
    }
    if (matched)
        result.chop(kBreak.size());
    else
        result += start + value;
    return result;
}

} // namespace

QString IniFile::Find(const QString &text, const QString &section, const QString &key, const QString &preset) {
    const Range range = FindSection(text, section);
    if (range.begin < 0)
        return preset;
    const QStringView part = QStringView(text).mid(range.begin, range.end - range.begin);
    const QString start = kBreak + key + u'=';
    const qsizetype found = part.indexOf(start, 0, Qt::CaseInsensitive);
    if (found < 0)
        return preset;
    const qsizetype from = found + start.size();
    const qsizetype to = part.indexOf(kBreak, from);
    return part.mid(from, to < 0 ? -1 : to - from).toString();
}

QString IniFile::Replaced(const QString &text, const QString &section, const QString &key, const QString &value) {
    const QString start = key + u'=';
    const Range range = FindSection(text, section);
    if (range.begin >= 0) {
        const QString section_text = text.mid(range.begin, range.end - range.begin);
        return text.left(range.begin) + ReplacedLine(section_text, start, value) + text.mid(range.end);
    }
    const QString gap = text.isEmpty() || text.endsWith(kBreak) ? QString() : kBreak;
    return text + gap + u'[' + section + u']' + kBreak + start + value;
}

std::optional<QString> IniFile::ReadAll() const {
    const std::optional<QByteArray> content = ReadFile(path_);
    return content ? std::optional(DecodeUserText(*content)) : std::nullopt;
}

QString IniFile::Get(const QString &section, const QString &key, const QString &preset) const {
    return Find(ReadAll().value_or(QString()), section, key, preset);
}

void IniFile::Set(const QString &section, const QString &key, const QString &value) const {
    const std::optional<QString> text = ReadAll();
    if (!text && QFile::exists(path_))
        return; // what cannot be read now must not be replaced
    ReplaceFile(path_, EncodeUserText(Replaced(text.value_or(QString()), section, key, value)));
}

} // namespace ostrand
