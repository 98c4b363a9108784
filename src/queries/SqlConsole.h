// Runs statements on a database and writes what they give as text.
#pragma once

#include "sql/Database.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace ostrand {

enum class SqlFormat { Text, Csv, Json };

/// The format of a name ("text", "csv", "json"); nothing for any other.
std::optional<SqlFormat> ParseSqlFormat(const QString &name);

/// Text: an aligned table with a heading and a line with the count. CSV: RFC 4180 with a heading; NULL is an empty
/// field, the empty text one in quotes. JSON: one object a line for each statement. All in UTF-8.
class SqlConsole {
public:
    /// Takes output in pieces; false ends the output of the statement.
    using Sink = std::function<bool(const QByteArray &)>;

    /// `errors` takes the faults in the formats for which they do not belong into the output.
    SqlConsole(sql::Database &database, SqlFormat format, Sink output, Sink errors);

    /// Runs a statement and writes its result or its fault; false for a fault.
    bool Run(const QString &statement);
    /// True when the last statement was ended by an interrupt.
    bool Interrupted() const { return interrupted_; }

private:
    void RunChecked(const QString &statement);
    void WriteFault(const sql::SqlError &error);

    sql::Database &database_;
    SqlFormat format_;
    Sink output_;
    Sink errors_;
    bool interrupted_ = false;
};

/// Writers of a result set from its first row.
bool WriteRowsAsText(sql::Recordset &rows, const SqlConsole::Sink &output);
bool WriteRowsAsCsv(sql::Recordset &rows, const SqlConsole::Sink &output);
bool WriteRowsAsJson(sql::Recordset &rows, const SqlConsole::Sink &output);
/// A text as a JSON string with its quotes.
QByteArray JsonString(QStringView text);

} // namespace ostrand
