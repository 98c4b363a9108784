// The settings file of the installation.
#pragma once

#include <QString>

#include <optional>

namespace ostrand {

/// Sections of key=value lines that end in CR LF. The file is read whole at each call, and written whole at each Set,
/// so that what a user edits by hand meanwhile counts. Values are not trimmed and there are no comments. Faults of
/// reading give the preset, faults of writing are ignored. A file that cannot be read is not written.
class IniFile {
public:
    explicit IniFile(QString path) : path_(std::move(path)) {}

    /// The value; empty when the key exists with an empty one, `preset` when section or key are missing.
    QString Get(const QString &section, const QString &key, const QString &preset) const;
    /// Replaces the line of the key with its new spelling, or adds it behind the section, or adds the section.
    void Set(const QString &section, const QString &key, const QString &value) const;

    /// The same on a text.
    static QString Find(const QString &text, const QString &section, const QString &key, const QString &preset);
    static QString Replaced(const QString &text, const QString &section, const QString &key, const QString &value);

private:
    /// Nothing where the file is missing or cannot be read.
    std::optional<QString> ReadAll() const;

    QString path_;
};

} // namespace ostrand
