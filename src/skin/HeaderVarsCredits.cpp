#include "skin/HeaderVars.h"

#include "people/CrossLinks.h"
#include "people/HeadshotFiles.h"
#include "people/Name.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

bool HasImage(const TagCall &call, const QString &name, qint64 birth_year) {
    int alternate = 0;
    return !call.session.HeadshotPath.isEmpty() &&
           !FindHeadshot(call.session, call.skin.headshots, name, QString::number(birth_year), alternate).isEmpty();
}

sql::Recordset CreditRows(const TagCall &call, bool cast) {
    const QString from = call.is_episode ? u"TVCastCrew WHERE EpisodeID = "_s : u"CastCrew WHERE ProfileID = "_s;
    const QString kind = cast ? u"true"_s : call.is_episode ? u"no"_s : u"false"_s;
    return call.Rows(u"SELECT * FROM "_s + from + call.QuotedKey() + u" AND IsCast = "_s + kind +
                     u" ORDER BY Position"_s);
}

ScriptCredit ReadCredit(const TagCall &call, const sql::Recordset &row) {
    ScriptCredit credit;
    credit.credited_name = row.Text(u"Name");
    credit.role = row.Text(u"Role");
    credit.is_divider = credit.role.startsWith(u"[Div"_s);
    if (credit.is_divider) {
        return credit;
    }
    credit.is_voice = row.Boolean(u"IsVoice");
    credit.is_uncredited = row.Boolean(u"IsUncredited");
    credit.is_credit_only = row.Boolean(u"IsCreditOnly");
    credit.birth_year = row.Integer(u"BirthYear");
    credit.common_name = GetCommonName(call.session, credit.credited_name, int(credit.birth_year));
    credit.has_image = HasImage(call, credit.credited_name, credit.birth_year);
    return credit;
}

QStringList NameParts(const ScriptCredit &credit) {
    Name name;
    if (!credit.is_divider) {
        name.SetFullName(credit.common_name);
    }
    return {ScriptString(name.FirstName()), ScriptString(name.MiddleName()), ScriptString(name.LastName())};
}

/// The caption of a divider, or the name as credited where it is not the common one.
QString CreditedAs(const ScriptCredit &credit) {
    return ScriptString(credit.credited_name == credit.common_name ? QString() : credit.credited_name);
}

QStringList Tail(const ScriptCredit &credit) {
    return {ScriptFlag(credit.has_image), QString::number(credit.birth_year)};
}

QString CastEntry(const ScriptCredit &credit) {
    const QString role = credit.is_divider ? QString() : credit.role;
    return ScriptNew(u"DP_CastEntry"_s, NameParts(credit) +
                                            QStringList{ScriptString(role), ScriptFlag(credit.is_voice),
                                                        ScriptFlag(credit.is_uncredited), CreditedAs(credit)} +
                                            Tail(credit));
}

QString CrewEntry(const TagCall &call, const ScriptCredit &credit) {
    QString type;
    QString subtype;
    QString custom_role;
    if (!credit.is_divider) {
        type = CrewRoleMaps::CreditType(credit.role);
        subtype = credit.role;
        if (type.isEmpty()) { // collection files call such a role custom
            type = u"Other"_s;
            subtype = u"Custom"_s;
            custom_role = credit.role;
        }
    }
    return ScriptNew(u"DP_CrewEntry"_s,
                     NameParts(credit) +
                         QStringList{ScriptString(type), ScriptString(subtype), CreditedAs(credit),
                                     ScriptString(call.Translated(type)), ScriptString(call.Translated(subtype)),
                                     ScriptString(custom_role)} +
                         Tail(credit));
}

} // namespace

std::vector<ScriptCredit> ReadScriptCredits(const TagCall &call, bool cast) {
    std::vector<ScriptCredit> credits;
    for (sql::Recordset rows = CreditRows(call, cast); !rows.Eof(); rows.MoveNext()) {
        credits.push_back(ReadCredit(call, rows));
    }
    return credits;
}

void WriteCast(const TagCall &call, ScriptWriter &script) {
    script.Section(u"Cast - NOTE: Dividers are cast entries with no name; creditedAs is the caption"_s);
    QStringList entries;
    for (const ScriptCredit &credit : ReadScriptCredits(call, true)) {
        entries.append(CastEntry(credit));
    }
    script.List(u"DP_CastEntries"_s, entries);
}

void WriteCrew(const TagCall &call, ScriptWriter &script) {
    script.Section(u"Crew - NOTE: Dividers are crew entries with no name; creditedAs is the caption"_s);
    QStringList entries;
    for (const ScriptCredit &credit : ReadScriptCredits(call, false)) {
        entries.append(CrewEntry(call, credit));
    }
    script.List(u"DP_CrewEntries"_s, entries);
}

} // namespace ostrand
