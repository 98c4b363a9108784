// The writers of result sets.

#include "queries/DisplayText.h"
#include "queries/SqlConsole.h"
#include "sql/Conversion.h"

#include <QLocale>

#include <cmath>

namespace ostrand {

namespace {

using sql::Kind;
using sql::Value;

constexpr qsizetype kChunk = qsizetype(64) * 1024;

/// Collects output and hands it on in larger pieces.
class Buffer {
public:
    explicit Buffer(const SqlConsole::Sink &output) : output_(output) {}

    Buffer &operator<<(const QByteArray &bytes) {
        bytes_ += bytes;
        return *this;
    }
    Buffer &operator<<(char c) {
        bytes_ += c;
        return *this;
    }
    /// Between rows: hands on what is due; false when nobody takes it any more.
    bool Drain(bool all = false) {
        if (alive_ && !bytes_.isEmpty() && (all || bytes_.size() >= kChunk)) {
            alive_ = output_(bytes_);
            bytes_.clear();
        }
        return alive_;
    }

private:
    const SqlConsole::Sink &output_;
    QByteArray bytes_;
    bool alive_ = true;
};

/// The number in the fewest digits that read back as the same.
QByteArray NumberText(const Value &value) {
    if (value.GetType() == Value::Type::Integer) {
        return QByteArray::number(value.Integer());
    }
    return QString::number(value.Real(), 'g', QLocale::FloatingPointShortest).toLatin1();
}

bool IsNumber(const Value &value) {
    return value.GetType() == Value::Type::Integer || value.GetType() == Value::Type::Real;
}

/// True for a cell that is shown as a number, not as a date or a truth value.
bool ShowsNumber(Kind kind, const Value &value) {
    return IsNumber(value) && kind != Kind::Date && kind != Kind::Boolean;
}

QString CellText(const sql::Recordset &rows, int column) {
    const Kind kind = rows.Fields()[size_t(column)].kind;
    const Value &value = rows.Get(column);
    return ShowsNumber(kind, value) ? QString::fromLatin1(NumberText(value)) : rows.Text(column);
}

// --- text -----------------------------------------------------------------------------------------------------------

constexpr int kWidestPadding = 60; // longer cells are written whole, but do not widen the others

QByteArray Padded(const QString &text, int width, bool right, bool last) {
    const QByteArray blanks(std::max(0, width - DisplayWidth(text)), ' ');
    if (right) {
        return blanks + text.toUtf8();
    }
    return last ? text.toUtf8() : text.toUtf8() + blanks;
}

QList<int> ColumnWidths(sql::Recordset &rows) {
    QList<int> widths;
    for (const sql::Field &field : rows.Fields()) {
        widths.append(DisplayWidth(HarmlessText(field.label)));
    }
    for (; !rows.Eof(); rows.MoveNext()) {
        for (int column = 0; column < widths.size(); ++column) {
            const int width = DisplayWidth(HarmlessText(CellText(rows, column)));
            widths[column] = std::max(widths[column], std::min(width, kWidestPadding));
        }
    }
    if (rows.RecordCount() > 0) {
        rows.MoveFirst();
    }
    return widths;
}

} // namespace

bool WriteRowsAsText(sql::Recordset &rows, const SqlConsole::Sink &output) {
    const QList<int> widths = ColumnWidths(rows);
    const int count = int(widths.size());
    Buffer buffer(output);
    for (int column = 0; column < count; ++column) {
        const sql::Field &field = rows.Fields()[size_t(column)];
        buffer << (column > 0 ? "  " : "")
               << Padded(HarmlessText(field.label), widths[column], sql::IsNumber(field.kind), column + 1 == count);
    }
    buffer << '\n';
    for (int column = 0; column < count; ++column) {
        buffer << (column > 0 ? "  " : "") << QByteArray(widths[column], '-');
    }
    buffer << '\n';
    for (; !rows.Eof() && buffer.Drain(); rows.MoveNext()) {
        for (int column = 0; column < count; ++column) {
            const bool right = ShowsNumber(rows.Fields()[size_t(column)].kind, rows.Get(column));
            buffer << (column > 0 ? "  " : "")
                   << Padded(HarmlessText(CellText(rows, column)), widths[column], right, column + 1 == count);
        }
        buffer << '\n';
    }
    const int row_count = rows.RecordCount();
    buffer << '(' << QByteArray::number(row_count) << (row_count == 1 ? " row" : " rows") << ")\n";
    return buffer.Drain(true);
}

// --- csv ------------------------------------------------------------------------------------------------------------

namespace {

QByteArray CsvField(const QString &text) {
    const bool quoted = text.isEmpty() || text.contains(u',') || text.contains(u'"') || text.contains(u'\r') ||
                        text.contains(u'\n') || text.front().isSpace() || text.back().isSpace();
    if (!quoted) {
        return text.toUtf8();
    }
    return '"' + QString(text).replace(u'"', QStringLiteral("\"\"")).toUtf8() + '"';
}

} // namespace

bool WriteRowsAsCsv(sql::Recordset &rows, const SqlConsole::Sink &output) {
    Buffer buffer(output);
    const int count = int(rows.Fields().size());
    for (int column = 0; column < count; ++column) {
        buffer << (column > 0 ? "," : "") << CsvField(rows.Fields()[size_t(column)].label);
    }
    buffer << "\r\n";
    for (; !rows.Eof() && buffer.Drain(); rows.MoveNext()) {
        for (int column = 0; column < count; ++column) {
            buffer << (column > 0 ? "," : "")
                   << (rows.IsNull(column) ? QByteArray() : CsvField(CellText(rows, column)));
        }
        buffer << "\r\n";
    }
    return buffer.Drain(true);
}

// --- json -----------------------------------------------------------------------------------------------------------

QByteArray JsonString(QStringView text) {
    static constexpr char kHex[] = "0123456789abcdef";
    QByteArray result = "\"";
    for (const char c : text.toUtf8()) {
        switch (c) {
        case '"':
            result += "\\\"";
            break;
        case '\\':
            result += "\\\\";
            break;
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\t':
            result += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
                result += "\\u00";
                result += kHex[c >> 4];
                result += kHex[c & 15];
            } else {
                result += c;
            }
        }
    }
    return result + '"';
}

namespace {

QByteArray JsonType(Kind kind) {
    switch (kind) {
    case Kind::Integer:
        return "integer";
    case Kind::Real:
        return "real";
    case Kind::Date:
        return "date";
    case Kind::Boolean:
        return "boolean";
    case Kind::Text:
    case Kind::Memo:
    case Kind::Null:
    case Kind::Unknown:
        return "text";
    }
    return "text";
}

QByteArray JsonValue(Kind kind, const Value &value) {
    switch (value.GetType()) {
    case Value::Type::Null:
        return "null";
    case Value::Type::Text:
        return JsonString(value.Text());
    case Value::Type::Integer:
    case Value::Type::Real:
        break;
    }
    if (kind == Kind::Date) {
        return JsonString(sql::DateToIso(value.Real()));
    }
    if (kind == Kind::Boolean) {
        return value.Real() != 0 ? "true" : "false";
    }
    return std::isfinite(value.Real()) ? NumberText(value) : "null";
}

} // namespace

bool WriteRowsAsJson(sql::Recordset &rows, const SqlConsole::Sink &output) {
    Buffer buffer(output);
    const std::vector<sql::Field> &fields = rows.Fields();
    buffer << "{\"columns\":[";
    for (size_t column = 0; column < fields.size(); ++column) {
        buffer << (column > 0 ? "," : "") << "{\"name\":" << JsonString(fields[column].label) << ",\"type\":\""
               << JsonType(fields[column].kind) << "\"}";
    }
    buffer << "],\"rows\":[";
    bool first = true;
    for (; !rows.Eof() && buffer.Drain(); rows.MoveNext()) {
        buffer << (first ? "[" : ",[");
        first = false;
        for (size_t column = 0; column < fields.size(); ++column) {
            buffer << (column > 0 ? "," : "") << JsonValue(fields[column].kind, rows.Get(int(column)));
        }
        buffer << ']';
    }
    buffer << "]}\n";
    return buffer.Drain(true);
}

} // namespace ostrand
