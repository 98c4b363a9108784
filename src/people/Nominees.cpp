#include "people/Nominees.h"

#include "database/DatabaseFunctions.h"
#include "people/ProgressJob.h"
#include "skin/TextConversion.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr int kLongestNominee = 255;

/// The persons alone: without the function word in front of a colon.
QString PersonsOf(const QString &nominees) {
    const qsizetype colon = nominees.indexOf(u':');
    QString persons = colon > 0 ? nominees.mid(colon + 1) : nominees;
    if (persons.startsWith(u' ')) {
        persons.remove(0, 1);
    }
    return persons;
}

/// A name without a remark in brackets and the blank before it.
QString WithoutRemark(const QString &name) {
    const qsizetype bracket = name.indexOf(u'(');
    return bracket >= 2 ? name.left(bracket - 1) : name;
}

/// Adjusts the nominees of one row; true when they changed.
bool AdjustRow(Session &session, sql::Recordset &row, int nominee) {
    const QString before = row.Text(nominee);
    const QString after = SetCommonNameForNominees(session, before).left(kLongestNominee);
    if (after == before) {
        return false;
    }
    row.Edit();
    row.Set(nominee, after);
    row.Update();
    Trace(session, u'"' + before + u"\" -> \""_s + after + u'"', kTraceInfo);
    return true;
}

} // namespace

QString SetCommonNameForNominees(Session &session, const QString &nominees) {
    QString text = nominees;
    for (const QString &part : SplitNominees(PersonsOf(nominees))) {
        const QString name = WithoutRemark(part);
        if (name.isEmpty()) {
            continue;
        }
        const sql::Recordset links = session.Database->OpenRecordset(
            QString(u"SELECT CommonName FROM Alias WHERE AliasName = '"_s + EscapeSql(name) + u'\''));
        if (!links.Eof()) {
            text.replace(name, links.Text(0)); // inside a longer name too
        }
    }
    return text;
}

void AdjustAwardData(Session &session) {
    const sql::Recordset count =
        session.Database->OpenRecordset(u"SELECT Count(*) as CountN FROM Awards WHERE Nominee <> ''");
    if (count.Integer(u"CountN") == 0) {
        return;
    }
    int adjusted = 0;
    {
        ProgressJob job(session, u"Checking Nominees..."_s, count.Integer(u"CountN"));
        sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM Awards WHERE Nominee <> ''");
        const int nominee = rows.Ordinal(u"Nominee");
        for (; !rows.Eof() && !job.Cancelled(); rows.MoveNext()) {
            adjusted += AdjustRow(session, rows, nominee) ? 1 : 0;
            job.Step();
            session.Database->FlushIfDue();
        }
    }
    ShowMessage(session, {.text = Translate(session, u"Adjusted"_s) + u' ' + QString::number(adjusted) + u' ' +
                                  Translate(session, u"Nominee entries"_s)});
}

} // namespace ostrand
