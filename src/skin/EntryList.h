// Texts of entries with a divider between them.
#pragma once

#include "skin/TagCall.h"

namespace ostrand {

/// Adds entries to a tag's text, each with the divider behind it. A failure between two entries leaves the text with
/// its last divider, as what was built until then counts.
class EntryList {
public:
    EntryList(QString &text, QString divider) : text_(text), divider_(std::move(divider)) {}

    void Add(const QString &entry) { text_ += entry + divider_; }
    void AddUnbroken(const QString &entry) { Add(Unbroken(entry)); }
    /// Removes an unbroken entry wherever it stands.
    void RemoveUnbroken(const QString &entry) { text_.remove(Unbroken(entry) + divider_); }
    /// Takes the last divider away.
    void End() {
        if (!text_.isEmpty()) {
            text_.chop(divider_.size());
        }
    }

private:
    static QString Unbroken(const QString &entry) {
        return QStringLiteral("<NOBR>") + entry + QStringLiteral("</NOBR>");
    }

    QString &text_;
    QString divider_;
};

/// The rows of a table that belong to the profile.
inline sql::Recordset ProfileRows(const TagCall &call, const QString &table, const QString &rest = {}) {
    return call.Rows(QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE ProfileID = ") +
                     call.QuotedKey() + rest);
}

} // namespace ostrand
