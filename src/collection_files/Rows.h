// Rows of the side tables, written by statements as everything else is.
#pragma once

#include <QLatin1String>
#include <QString>

#include <initializer_list>

namespace ostrand {

struct ImportProfile;
struct Session;

/// The column that joins every table to its profile.
inline constexpr QLatin1String kProfileID("ProfileID");

/// A value as it stands in a statement: texts and numbers in quotes, truth values bare.
class RowValue {
public:
    RowValue(const QString &text); // NOLINT(google-explicit-constructor)
    RowValue(int number);          // NOLINT(google-explicit-constructor)
    RowValue(bool truth);          // NOLINT(google-explicit-constructor)
    static RowValue Null();
    /// NULL for the empty text.
    static RowValue TextOrNull(const QString &text);

    const QString &Sql() const { return sql_; }

private:
    QString sql_;
};

struct ColumnValue {
    QLatin1String column;
    RowValue value;
};

/// A row that breaks a key, a NOT NULL or a reference is dropped silently.
void InsertRow(Session &session, QLatin1String table, std::initializer_list<ColumnValue> values);
/// Deletes the rows whose column `key_column` holds the profile's key.
void DeleteRows(const ImportProfile &profile, QLatin1String table, QLatin1String key_column);
/// Writes an entry of MetaInfo; an empty value removes it.
void StoreMetaInfo(const ImportProfile &profile, const QString &name, const QString &value);

} // namespace ostrand
