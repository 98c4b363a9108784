#include "database/TitlesDue.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QLocale>

#include <cmath>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

int DaysOverdue(const Session &session, double due) {
    return int(std::floor(session.services.clock.Now()) - std::floor(due));
}

} // namespace

bool IsOverdue(Session &session, double due, const QString &user, const QString &profile_id) {
    if (DaysOverdue(session, due) < 0) {
        return false;
    }
    return session.Database
        ->OpenRecordset(u"SELECT * FROM Events WHERE UserID = '"_s + EscapeSql(user) + u"' AND EventTimeStamp >= "_s +
                        QString::number(due, 'g', QLocale::FloatingPointShortest) +
                        u" AND EventType = 'Returned' AND ProfileID = '"_s + EscapeSql(profile_id) + u'\'')
        .IsEmpty();
}

std::unique_ptr<ListTable> TitlesDue(Session &session) {
    const auto text = [&session](const QString &english) { return Translate(session, english); };
    auto table = std::make_unique<ListTable>(
        text(u"Titles due to be returned"_s),
        QStringList{text(u"Title due"_s), text(u"UPC"_s), text(u"due from"_s), text(u"day(s) overdue"_s)});
    table->again = [&session] { return TitlesDue(session); };
    if (!session.Database) {
        return table;
    }
    std::vector<ListTableRow> titles;
    sql::Recordset rows =
        session.Database->OpenRecordset(u"SELECT UserID, LoanedDue, Title, UPC, l.ProfileID FROM LoanInfo l LEFT JOIN "
                                        u"Profiles p ON l.ProfileID = p.ProfileID ORDER BY LoanedDue DESC, SortTitle");
    for (; !rows.Eof(); rows.MoveNext()) {
        if (rows.IsNull(u"LoanedDue")) {
            continue;
        }
        const double due = rows.Real(u"LoanedDue");
        const QString user = rows.Text(u"UserID");
        const QString id = rows.Text(u"ProfileID");
        if (IsOverdue(session, due, user, id)) {
            const QString days = QString::number(DaysOverdue(session, due)).rightJustified(3, u'0');
            titles.push_back({{rows.Text(u"Title"), rows.Text(u"UPC"), user, days}, id, ListRowKind::Movie});
        }
    }
    table->Assign(std::move(titles));
    return table;
}

void ShowTitlesDue(Session &session) {
    Trace(session, u"ShowTitlesDue()"_s, kTraceEntry);
    try {
        std::unique_ptr<ListTable> table = TitlesDue(session);
        if (table->rowCount() > 0 && session.window.ShowListView) {
            session.window.ShowListView(std::move(table));
        }
    } catch (const sql::SqlError &error) {
        Trace(session, u"ShowTitlesDue: "_s + error.Text(), kTraceError);
    }
    Trace(session, u"ShowTitlesDue()"_s, kTraceExit);
}

} // namespace ostrand
