#include "queries/QueryTool.h"

#include "base/Files.h"
#include "base/Text.h"
#include "database/DatabaseFunctions.h"
#include "queries/QueryVariables.h"
#include "queries/ResultText.h"
#include "queries/StatementWatch.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"
#include "sql/Collation.h"

#include <QDir>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kLineBreak = "\r\n"_L1;

QString TypeSuffix(sql::Kind kind) {
    switch (kind) {
    case sql::Kind::Integer:
        return u" [int]"_s;
    case sql::Kind::Boolean:
        return u" [bool]"_s;
    case sql::Kind::Date:
        return u" [date]"_s;
    case sql::Kind::Real:
        return u" [double]"_s;
    case sql::Kind::Text:
    case sql::Kind::Memo:
    case sql::Kind::Null:
    case sql::Kind::Unknown:
        break;
    }
    return {};
}

QStringList FieldsOf(const sql::TableInfo &table) {
    QStringList fields(table.name);
    for (const sql::ColumnInfo &column : table.columns) {
        fields.append(column.name + TypeSuffix(column.kind));
    }
    return fields;
}

/// "Line 2, column 5", of a text with any line ends.
QString PlaceText(const QString &text, int position, const QString &line_word, const QString &column_word) {
    const QString before = QString(text.left(position)).replace(kLineBreak, "\n"_L1).replace(u'\r', u'\n');
    const qsizetype line_start = before.lastIndexOf(u'\n') + 1;
    return u"%1 %2, %3 %4"_s.arg(line_word)
        .arg(before.count(u'\n') + 1)
        .arg(column_word)
        .arg(before.size() - line_start + 1);
}

/// Where a place of a statement stands in the text that the statement was made from; -1 where that cannot be told. What
/// stands before the first variable, or behind the last, is the same in both.
int PlaceInSource(const QString &text, const QString &statement, int position) {
    if (position < 0 || position > statement.size()) {
        return -1;
    }
    if (text.startsWith(QStringView(statement).left(position))) {
        return position;
    }
    const QStringView source = QStringView(text).left(text.contains(u';') ? text.indexOf(u';') : text.size());
    const QStringView behind = QStringView(statement).mid(position);
    return source.endsWith(behind) ? int(source.size() - behind.size()) : -1;
}

constexpr int kManyRows = 10000; ///< fewer are written before a window could be read

/// The progress window over a large result that is written.
class RowsWritten {
public:
    RowsWritten(Session &session, int total) :
        session_(session), total_(total), shown_(total > kManyRows && !session.progress.IsLoaded()) {
        if (shown_) {
            row_ = Translate(session, u"Row"_s) + u' ';
            of_total_ = u' ' + Translate(session, u"of"_s) + u' ' + QString::number(total);
            session.progress.Load(Translate(session, u"Save Result"_s));
        }
    }

    /// False when the rest is not wanted any more.
    bool Show(int done) {
        if (!shown_) {
            return true;
        }
        session_.progress.SetLine(row_ + QString::number(done) + of_total_);
        session_.progress.SetBar(done, total_);
        session_.services.pump.Turn();
        return !session_.progress.ProgressCancelled() && !session_.EndProgram;
    }

    void Close() {
        if (shown_) {
            session_.progress.UnloadForm(false);
        }
    }

private:
    Session &session_;
    int total_;
    bool shown_;
    QString row_, of_total_;
};

/// The database keeps lines as CR LF.
QString WithLineEnds(QString text) {
    return text.replace(kLineBreak, "\n"_L1).replace("\n"_L1, kLineBreak);
}

} // namespace

QueryTool::QueryTool(Session &session) : session_(session) {
    ShowCounts();
}

QString QueryTool::Translated(const char16_t *english) const {
    return Translate(session_, QString::fromUtf16(english));
}

bool QueryTool::RequireDatabase() {
    textError.clear();
    fault_.reset();
    changed_ = -1;
    usage_shown_ = false;
    error_position = -1;
    ShowCounts();
    if (!session_.Database) {
        textError = Translated(u"No open database!");
    }
    return session_.Database != nullptr;
}

void QueryTool::ShowCounts() {
    caption = Translated(u"SQL Query");
    if (records_ >= 0) {
        caption += " ("_L1 + QString::number(records_) + u' ' + Translated(u"records") + u')';
    }
    labelInfo = changed_ < 0 ? QString() : Translated(u"Rows changed:") + u' ' + QString::number(changed_);
}

void QueryTool::TellFault(const sql::SqlError &error, const QString &statement) {
    fault_ = Fault{error.Text(), statement, error.Position()};
    ShowFault();
}

void QueryTool::ShowFault() {
    textError = fault_->text;
    if (!fault_->statement.isEmpty() && fault_->position >= 0 && fault_->position <= fault_->statement.size()) {
        textError +=
            kLineBreak + PlaceText(fault_->statement, fault_->position, Translated(u"Line"), Translated(u"column"));
    }
}

template <typename Action>
bool QueryTool::Try(Action action) {
    if (!RequireDatabase()) {
        return false;
    }
    try {
        action();
        return true;
    } catch (const sql::SqlError &error) {
        Trace(session_, u"frmSQLQuery: "_s + error.Text(), kTraceError);
        TellFault(error, {});
        return false;
    }
}

void QueryTool::UpdateQueryList() {
    listQueries.clear();
    if (!session_.Database) {
        return;
    }
    try {
        sql::Recordset names = session_.Database->OpenRecordset(u"SELECT Name FROM SQLQueries");
        for (; !names.Eof(); names.MoveNext()) {
            listQueries.append(names.Text(0));
        }
    } catch (const sql::SqlError &error) {
        TellFault(error, {});
    }
}

void QueryTool::Run(const QString &statement) {
    const StatementWatch watch(session_);
    const bool select = statement.trimmed().startsWith("select"_L1, Qt::CaseInsensitive);
    if (select || session_.Database->GivesRows(statement)) {
        sql::Recordset rows = session_.Database->OpenRecordset(statement);
        records_ = rows.RecordCount();
        tables_listed_ = false;
        ShowCounts();
        listQueryResult.Assign(std::move(rows));
        return;
    }
    changed_ = session_.Database->Execute(statement);
    ShowCounts();
}

void QueryTool::SendQuery(const QString &text, const QString &col_type) {
    if (!session_.Database) {
        RequireDatabase();
        return;
    }
    bool cancelled = false;
    const QString statement = ResolveQueryVariables(session_, col_type, text, cancelled);
    if (statement.trimmed().isEmpty() || !RequireDatabase()) {
        return;
    }
    try {
        Run(statement);
    } catch (const sql::SqlError &error) {
        Trace(session_, u"SendQuery: "_s + error.Text(), kTraceError);
        TellFault(error, statement);
        error_position = PlaceInSource(text, statement, error.Position());
    }
    UpdateQueryList(); // the statement may have changed them
}

void QueryTool::ListTables() {
    Try([this] {
        ShowTables();
        ShowUsage();
    });
}

void QueryTool::ShowTables() {
    std::vector<QStringList> rows;
    qsizetype widest = 1;
    for (const sql::TableInfo &table : session_.Database->GetCatalogue().Tables()) {
        if (!table.name.startsWith("MSys"_L1)) {
            rows.push_back(FieldsOf(table));
            widest = std::max(widest, rows.back().size());
        }
    }
    QStringList columns(widest, Translated(u"Field"));
    columns.front() = Translated(u"Tables");
    listQueryResult.Assign(columns, std::move(rows));
    records_ = -1;
    tables_listed_ = true;
    ShowCounts();
}

void QueryTool::ShowUsage() {
    usage_shown_ = true;
    textError = QStringList{Translated(u"Usage:"),
                            Translated(u"Single quotes inside of values must be replaced by two single quotes"),
                            Translated(u"Example: Role = 'T'Pol' has to be Role = 'T''Pol'"),
                            Translated(u"Wildcard is the asterisk:"),
                            Translated(u"Example: SELECT Name FROM Cast WHERE Name LIKE 'An*'"),
                            Translated(u"Using variables: $VariableName$")}
                    .join(kLineBreak);
}

QString QueryTool::SaveQuery(const QString &statement) {
    if (!RequireDatabase()) {
        return {};
    }
    bool cancelled = false;
    const QString name =
        InputText(session_, Translated(u"Enter a name for the query:"), Translated(u"Query Name"), cancelled, {});
    if (cancelled || name.isEmpty()) {
        return {};
    }
    const auto known = std::find_if(listQueries.begin(), listQueries.end(),
                                    [&](const QString &other) { return sql::Compare(other, name) == 0; });
    const QString value = EscapeSql(WithLineEnds(statement));
    QString change =
        "INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('"_L1 + EscapeSql(name) + "', '"_L1 + value + "')"_L1;
    if (known != listQueries.end()) {
        const QString question =
            Translated(u"Query with name") + u' ' + name + u' ' + Translated(u"does already exist! Replace existing?");
        if (ShowMessage(session_, {.text = question,
                                   .title = Translated(u"Name exists"),
                                   .icon = MessageIcon::Question,
                                   .buttons = MessageButtons::YesNo,
                                   .neutral = MessageAnswer::No}) != MessageAnswer::Yes) {
            return {};
        }
        change = "UPDATE SQLQueries SET SQLStatement = '"_L1 + value + "' WHERE Name = '"_L1 + EscapeSql(name) + u'\'';
    }
    const QString kept = known == listQueries.end() ? name : *known;
    const bool done = Try([&] { session_.Database->Execute(change); });
    UpdateQueryList();
    return done ? kept : QString();
}

QString QueryTool::SavedStatement(const QString &name) {
    QString statement;
    Try([&] {
        const sql::Recordset row = session_.Database->OpenRecordset(
            QString("SELECT SQLStatement FROM SQLQueries WHERE Name = '"_L1 + EscapeSql(name) + u'\''));
        statement = row.Eof() ? QString() : row.Text(0);
    });
    return statement;
}

bool QueryTool::DeleteQuery(const QString &name) {
    if (name.isEmpty() || !RequireDatabase() ||
        ShowMessage(session_, {.text = Translated(u"Do you really want to delete") + " '"_L1 + name + "'?"_L1,
                               .title = Translated(u"Delete Query"),
                               .icon = MessageIcon::Question,
                               .buttons = MessageButtons::YesNo,
                               .neutral = MessageAnswer::No}) != MessageAnswer::Yes) {
        return false;
    }
    const bool done = Try([&] {
        session_.Database->Execute(QString("DELETE FROM SQLQueries WHERE Name = '"_L1 + EscapeSql(name) + u'\''));
    });
    UpdateQueryList();
    return done;
}

void QueryTool::SaveResult() {
    const QString path = session_.services.dialogs.SaveFile(
        {.title = Translated(u"Save Result"),
         .initial = QDir(session_.DataFolder).filePath(u"Result.txt"_s),
         .filters = {Translated(u"Text File") + "|*.txt"_L1, Translated(u"All Files") + "|*.*"_L1}});
    if (path.isEmpty()) {
        return;
    }
    bool cancelled = false;
    QString divider = InputText(session_,
                                Translated(u"Which divider should be used for columns?") + kLineBreak +
                                    Translated(u"(Enter 'tab' for tabulator)"),
                                Translated(u"Divider"), cancelled, u"|"_s);
    if (cancelled) {
        return;
    }
    if (divider.compare("tab"_L1, Qt::CaseInsensitive) == 0) {
        divider = u'\t';
    }
    QString fault;
    ResultLines lines(listQueryResult, divider);
    RowsWritten progress(session_, listQueryResult.rowCount());
    const auto next = [&]() -> std::optional<QByteArray> {
        return progress.Show(lines.Done()) ? std::optional(EncodeUserText(lines.Next())) : std::nullopt;
    };
    const bool written = ReplaceFile(path, next, &fault);
    progress.Close();
    if (!written && !fault.isEmpty()) {
        ShowMessage(session_, {.text = Translated(u"The file cannot be written:") + u' ' + path + kLineBreak + fault,
                               .title = Translated(u"Save Result"),
                               .icon = MessageIcon::Critical});
    }
}

void QueryTool::DatabaseChanged() {
    listQueryResult.Clear();
    records_ = -1;
    tables_listed_ = false;
    RequireDatabase();
    textError.clear();
    UpdateQueryList();
}

void QueryTool::TranslateTexts() {
    ShowCounts();
    if (fault_) {
        ShowFault();
    } else if (usage_shown_) {
        ShowUsage();
    }
    if (tables_listed_ && session_.Database) {
        ShowTables();
    }
}

QString QueryTool::FilterTemplate() {
    return u"SELECT p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, p.OriginalSortTitle, p.CustomTitle, "
           u"p.CustomSortTitle, p.Description FROM Profiles p WHERE p.Title LIKE '*$Substring$*'"_s;
}

} // namespace ostrand
