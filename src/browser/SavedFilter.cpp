// listSeries by a saved query.
#include "browser/Browser.h"
#include "browser/KeySet.h"
#include "browser/ListFilling.h"
#include "browser/TitleQueries.h"
#include "browser/TitleRows.h"
#include "database/DatabaseFunctions.h"
#include "queries/QueryVariables.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString SavedStatement(Session &session, const QString &name) {
    if (!session.Database) {
        throw sql::SqlError(sql::ErrorCode::CannotOpenDatabase, u"No database is open."_s);
    }
    return session.Database
        ->OpenRecordset(u"SELECT SQLStatement FROM SQLQueries WHERE Name = '%1'"_s.arg(EscapeSql(name)))
        .Text(u"SQLStatement");
}

/// Adds the titles that a statement gives. A title that it gives twice ends the list there with an error.
void AddTitles(Session &session, const QString &statement, std::vector<TitleRow> &rows) {
    sql::Recordset record = session.Database->OpenRecordset(statement);
    if (record.IsEmpty()) {
        return;
    }
    const TitleRowReader reader(session.view, record);
    KeySet keys;
    for (; !record.Eof(); record.MoveNext()) {
        TitleRow row = reader.GroupRow(0, 0);
        if (!keys.Add(row.key)) {
            throw sql::SqlError(sql::ErrorCode::DuplicateKey, u"The title '%1' comes twice."_s.arg(row.key));
        }
        rows.push_back(std::move(row));
    }
}

} // namespace

void ShowSavedFilter(Browser &browser) {
    Session &session = browser.session;
    // Stays set when the user cancels, deliberately.
    browser.SpecialOrder = true;
    QString statement;
    std::vector<TitleRow> rows;
    bool begun = false;
    try {
        statement = NormalizeSqlBooleans(SavedStatement(session, browser.comboFilter_text));
        bool cancelled = false;
        const QString resolved = ResolveQueryVariables(session, SelectedColType(browser), statement, cancelled);
        if (cancelled || resolved.isEmpty()) {
            return;
        }
        statement = resolved;
        BeginList(browser);
        begun = true;
        AddTitles(session, statement, rows);
    } catch (const sql::SqlError &) {
        if (begun) {
            browser.listSeries.Assign(std::move(rows));
            Q_EMIT browser.CurrentRowChanged();
        }
        ShowMessage(session, {.text = Translate(session, u"SQL Query is invalid!"_s),
                              .title = Translate(session, u"SQL Query invalid!"_s),
                              .icon = MessageIcon::Warning});
        Trace(session, u"SpecialProfileOrder, Invalid SQL query: "_s + statement, kTraceError);
        return;
    }
    ShowSpecialOrder(browser, std::move(rows));
}

} // namespace ostrand
