#include "queries/SqlConsole.h"

#include "queries/DisplayText.h"

namespace ostrand {

std::optional<SqlFormat> ParseSqlFormat(const QString &name) {
    static constexpr struct {
        const char16_t *name;
        SqlFormat format;
    } kFormats[] = {{u"text", SqlFormat::Text}, {u"csv", SqlFormat::Csv}, {u"json", SqlFormat::Json}};
    for (const auto &row : kFormats) {
        if (name == QStringView(row.name)) {
            return row.format;
        }
    }
    return std::nullopt;
}

SqlConsole::SqlConsole(sql::Database &database, SqlFormat format, Sink output, Sink errors) :
    database_(database), format_(format), output_(std::move(output)), errors_(std::move(errors)) {}

bool SqlConsole::Run(const QString &statement) {
    interrupted_ = false;
    try {
        RunChecked(statement);
        return true;
    } catch (const sql::SqlError &error) {
        interrupted_ = error.Code() == sql::ErrorCode::Interrupted;
        WriteFault(error);
        return false;
    }
}

void SqlConsole::RunChecked(const QString &statement) {
    if (!database_.GivesRows(statement)) {
        const int count = database_.Execute(statement);
        if (format_ == SqlFormat::Json) {
            output_("{\"ok\":true}\n");
        } else if (format_ == SqlFormat::Text) {
            output_("OK (" + QByteArray::number(count) + (count == 1 ? " row" : " rows") + " changed)\n");
        }
        return;
    }
    sql::Recordset rows = database_.OpenRecordset(statement);
    switch (format_) {
    case SqlFormat::Text:
        WriteRowsAsText(rows, output_);
        break;
    case SqlFormat::Csv:
        WriteRowsAsCsv(rows, output_);
        break;
    case SqlFormat::Json:
        WriteRowsAsJson(rows, output_);
        break;
    }
}

void SqlConsole::WriteFault(const sql::SqlError &error) {
    const QByteArray position = QByteArray::number(error.Position());
    if (format_ == SqlFormat::Json) {
        output_("{\"error\":" + JsonString(error.Text()) + ",\"position\":" + position + "}\n");
        return;
    }
    QByteArray line = "Error " + QByteArray::number(error.Number()) + ": " + HarmlessText(error.Text()).toUtf8();
    if (error.Position() >= 0) {
        line += " (at position " + position + ')';
    }
    errors_(line + '\n');
}

} // namespace ostrand
