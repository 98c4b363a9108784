// Who saw a profile, and who has it.

#include "database/TitlesDue.h"
#include "skin/EntryList.h"
#include "skin/SkinTags.h"

#include <cmath>

namespace ostrand {

using namespace Qt::StringLiterals;

void GetDPLastWatched(const TagCall &call, QString &text) {
    const sql::Recordset rows =
        ProfileRows(call, u"Events"_s, u" AND EventType = 'Watched' ORDER BY EventTimeStamp DESC"_s);
    if (!rows.Eof()) {
        text = rows.Text(call.argument);
    }
}

void GetDPLoanedTo(const TagCall &call, QString &text) {
    if (call.is_episode) {
        return;
    }
    const sql::Recordset rows = ProfileRows(call, u"LoanInfo"_s);
    if (rows.Eof()) {
        text = call.Text(u"IfNotLoaned");
        return;
    }
    text = call.Text(u"IfLoaned");
    if (text.isEmpty()) {
        text = rows.Text(u"UserID");
    }
}

void GetDPLoanedDue(const TagCall &call, QString &text) {
    if (call.is_episode) {
        return;
    }
    const QString if_overdue = call.Text(u"IfOverdue");
    const sql::Recordset rows = ProfileRows(call, u"LoanInfo"_s);
    if (rows.Eof()) {
        return;
    }
    const bool overdue = !rows.IsNull(u"LoanedDue") &&
                         IsOverdue(call.session, std::floor(rows.Real(u"LoanedDue")), rows.Text(u"UserID"), call.key);
    // The attribute's text is for loans that are not overdue, whatever its name says: deliberate.
    if (overdue) {
        text = if_overdue.isEmpty() ? QString() : rows.Text(u"LoanedDue");
    } else {
        text = if_overdue.isEmpty() ? rows.Text(u"LoanedDue") : if_overdue;
    }
}

} // namespace ostrand
