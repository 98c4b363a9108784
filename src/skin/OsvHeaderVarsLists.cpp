#include "skin/OsvHeaderVars.h"

#include "database/CrewRoleMaps.h"
#include "skin/AwardRows.h"
#include "skin/HeaderVars.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The value of a column as script.
QString Quoted(const sql::Recordset &row, QStringView column) {
    return ScriptString(row.Text(column));
}

QString OsvCastEntry(const ScriptCredit &credit) {
    // The caption stands as the name and as the credited name.
    const QString name = ScriptString(credit.is_divider ? credit.credited_name : credit.common_name);
    const QString role = ScriptString(credit.is_divider ? QString() : credit.role);
    return ScriptNew(u"OSV_CastEntry"_s, {name, role, ScriptFlag(credit.is_voice), ScriptFlag(credit.is_uncredited),
                                          ScriptFlag(credit.is_credit_only), ScriptString(credit.credited_name),
                                          ScriptFlag(credit.has_image), QString::number(credit.birth_year)});
}

QString OsvCrewEntry(const ScriptCredit &credit) {
    const QString name = ScriptString(credit.is_divider ? credit.credited_name : credit.common_name);
    const QString known_type = CrewRoleMaps::CreditType(credit.role);
    const QString type = credit.is_divider ? QString() : known_type.isEmpty() ? u"Other"_s : known_type;
    const QString subtype = credit.is_divider ? QString() : credit.role;
    return ScriptNew(u"OSV_CrewEntry"_s,
                     {name, ScriptString(type), ScriptString(subtype), ScriptString(credit.credited_name),
                      ScriptFlag(credit.has_image), QString::number(credit.birth_year)});
}

} // namespace

QStringList OsvCast(const TagCall &call) {
    QStringList entries;
    for (const ScriptCredit &credit : ReadScriptCredits(call, true)) {
        entries.append(OsvCastEntry(credit));
    }
    return entries;
}

QStringList OsvCrew(const TagCall &call) {
    QStringList entries;
    for (const ScriptCredit &credit : ReadScriptCredits(call, false)) {
        entries.append(OsvCrewEntry(credit));
    }
    return entries;
}

QStringList OsvAwards(const TagCall &call) {
    QStringList entries;
    for (std::optional<sql::Recordset> rows = FindAwards(call); rows && !rows->Eof(); rows->MoveNext()) {
        entries.append(ScriptNew(u"OSV_AwardEntry"_s, {Quoted(*rows, u"Award"), QString::number(rows->Integer(u"Year")),
                                                       Quoted(*rows, u"Category"), Quoted(*rows, u"MovieTitle"),
                                                       ScriptFlag(rows->Boolean(u"Won")), Quoted(*rows, u"Nominee")}));
    }
    return entries;
}

QStringList OsvAudioTracks(const TagCall &call) {
    QStringList entries;
    for (sql::Recordset rows = KeyRows(call, u"AudioFormats"_s, u" ORDER BY OrderPos"_s); !rows.Eof();
         rows.MoveNext()) {
        const QString translated = ScriptString(call.Translated(rows.Text(u"Language")));
        entries.append(ScriptNew(u"OSV_AudioTrack"_s, {Quoted(rows, u"Language"), translated,
                                                       Quoted(rows, u"Compression"), Quoted(rows, u"Channels")}));
    }
    return entries;
}

QStringList OsvAdditionalInfos(const TagCall &call) {
    QStringList entries;
    for (sql::Recordset rows = KeyRows(call, u"AdditionalInfo"_s); !rows.Eof(); rows.MoveNext()) {
        entries.append(ScriptNew(u"OSV_AdditionalInfo"_s,
                                 {Quoted(rows, u"InfoName"), Quoted(rows, u"InfoValue"), Quoted(rows, u"InfoType")}));
    }
    return entries;
}

QStringList OsvLinks(const TagCall &call) {
    QStringList entries;
    for (sql::Recordset rows = KeyRows(call, u"AdditionalInfo"_s, u" AND InfoType = 'Link'"_s); !rows.Eof();
         rows.MoveNext()) {
        entries.append(ScriptNew(u"OSV_Link"_s, {Quoted(rows, u"InfoName"), Quoted(rows, u"InfoValue")}));
    }
    return entries;
}

QStringList OsvEvents(const TagCall &call) {
    QStringList entries;
    for (sql::Recordset rows = KeyRows(call, u"Events"_s, u" ORDER BY EventTimeStamp, UserID"_s); !rows.Eof();
         rows.MoveNext()) {
        // The user stands in front of the date, unlike in the type's parameters: deliberate, skins count on it.
        entries.append(
            ScriptNew(u"OSV_Event"_s, {Quoted(rows, u"EventType"), Quoted(rows, u"UserID"),
                                       ScriptDateTime(rows.Get(u"EventTimestamp")), Quoted(rows, u"Comment")}));
    }
    return entries;
}

} // namespace ostrand
