#include "collection_files/Rekeying.h"

#include "collection_files/ImportProfile.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr auto kKeyColumns = std::to_array<std::pair<const char *, const char *>>({
    {"Features", "ProfileID"},       {"Studios", "ProfileID"},
    {"Genres", "ProfileID"},         {"Discs", "ProfileID"},
    {"Tags", "ProfileID"},           {"CastCrew", "ProfileID"},
    {"AdditionalInfo", "ProfileID"}, {"Subtitles", "ProfileID"},
    {"AudioFormats", "ProfileID"},   {"VideoFormat", "ProfileID"},
    {"SRPInfo", "ProfileID"},        {"PurchaseInfo", "ProfileID"},
    {"Events", "ProfileID"},         {"Profile2Episodes", "ProfileID"},
    {"BoxSet", "BoxSetID"},          {"BoxSet", "ChildID"},
    {"Regions", "ProfileID"},        {"Locks", "ProfileID"},
    {"Reviews", "ProfileID"},        {"LoanInfo", "ProfileID"},
    {"MetaInfo", "ProfileID"},
});

struct RekeyingIndex {
    QLatin1String name;
    QLatin1String table;
    QLatin1String column;
};

constexpr auto kIndexes = std::to_array<RekeyingIndex>({
    {QLatin1String("rekeying_Discs"), QLatin1String("Discs"), QLatin1String("DiscIDSideA")},
    {QLatin1String("rekeying_Profiles"), QLatin1String("Profiles"), QLatin1String("UPC")},
});

sql::Recordset Select(Session &session, const QString &condition) {
    return session.Database->OpenRecordset(QString(u"SELECT * FROM Profiles WHERE "_s + condition));
}

FoundProfile FindByKey(const ImportProfile &profile) {
    const sql::Recordset rows = profile.GetSession().Database->OpenRecordset(
        QString(u"SELECT ProfileID, MD5 FROM Profiles WHERE ProfileID = '"_s + EscapeSql(profile.key) + u'\''));
    return rows.Eof() ? FoundProfile{} : FoundProfile{.exists = true, .key = rows.Text(0), .md5 = rows.Text(1)};
}

/// Gives a row the new key with all that hangs on it.
FoundProfile MoveToKey(const ImportProfile &profile, sql::Recordset &row) {
    row.Edit();
    ConvertProfileData(profile.GetSession(), row.Text(u"ProfileID"), profile.key);
    row.Set(u"ProfileID", profile.key);
    row.Update();
    return {.exists = true, .key = profile.key, .md5 = row.Text(u"MD5")};
}

/// The disc identifier in the key of a profile that was made from one.
QString DiscIdOf(const QString &id) {
    QString disc_id = id;
    disc_id.remove(u'I');
    const qsizetype dot = disc_id.lastIndexOf(u'.');
    return dot < 0 ? disc_id : disc_id.left(dot);
}

FoundProfile FindByDisc(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    const sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT *, p.ProfileID as [ProfileID], p.Description as [Description] FROM Profiles p INNER JOIN "
                "Discs d ON p.ProfileID = d.ProfileID WHERE d.DiscIDSideA = '"_s +
                EscapeSql(DiscIdOf(profile.id)) + u'\''));
    const FoundProfile by_key = FindByKey(profile);
    // A row that has the key already stays what it is: two profiles of one disc are not made one.
    if (rows.Eof() || by_key.exists) {
        return by_key;
    }
    sql::Recordset row = Select(session, u"ProfileID = '"_s + EscapeSql(rows.Text(u"ProfileID")) + u'\'');
    if (row.Eof()) {
        return by_key;
    }
    FoundProfile found = MoveToKey(profile, row);
    found.wants_tag = true;
    return found;
}

/// The UPC in its older form.
QString OldUpc(const QString &upc) {
    QString old = upc.size() == 15 ? upc.right(13) : upc;
    if (old.size() == 13) {
        old.remove(0, 1);
    }
    return old;
}

FoundProfile FindByUpc(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    FoundProfile by_key = FindByKey(profile);
    const QString upc = OldUpc(profile.upc);
    if (upc == profile.upc) {
        by_key.wants_tag = true;
        return by_key;
    }
    if (by_key.exists) {
        ShowMessage(session, {.text = Translate(session, u"ProfileID"_s) + u' ' + profile.key + u' ' +
                                      Translate(session, u"is already used!"_s),
                              .title = Translate(session, u"Duplicate ProfileID"_s),
                              .icon = MessageIcon::Warning});
        return by_key;
    }
    sql::Recordset row =
        Select(session, u"UPC = '"_s + EscapeSql(upc) + u"' AND Locality ='"_s + EscapeSql(profile.locality) + u'\'');
    return row.Eof() ? FoundProfile{} : MoveToKey(profile, row);
}

} // namespace

RekeyingIndexes::RekeyingIndexes(Session &session) : session_(session) {
    for (const RekeyingIndex &index : kIndexes) {
        // One that an import left which was killed serves as well.
        if (!session.Database->FindTable(QString(index.table))->FindIndex(QString(index.name))) {
            session.Database->Execute(
                QString(u"CREATE INDEX "_s + index.name + u" ON "_s + index.table + u" ("_s + index.column + u')'));
        }
    }
}

RekeyingIndexes::~RekeyingIndexes() {
    for (const RekeyingIndex &index : kIndexes) {
        try {
            session_.Database->DropIndex(QString(index.table), QString(index.name));
        } catch (const sql::SqlError &error) {
            Trace(session_, u"ImportProfilerData: "_s + error.Text(), kTraceError);
        }
    }
}

void ConvertProfileData(Session &session, const QString &old_key, const QString &new_key) {
    Trace(session, u"ConvertProfileData("_s + old_key + u", "_s + new_key + u')', kTraceEntry);
    for (const auto &[table, column] : kKeyColumns) {
        const QString name = QString::fromLatin1(column);
        session.Database->Execute(QString(u"UPDATE "_s + QString::fromLatin1(table) + u" SET "_s + name + u" = '"_s +
                                          EscapeSql(new_key) + u"' WHERE "_s + name + u" = '"_s + EscapeSql(old_key) +
                                          u'\''));
    }
}

FoundProfile FindProfileRow(const ImportProfile &profile, bool rekey) {
    if (!rekey || profile.id.startsWith(u'M')) {
        return FindByKey(profile);
    }
    return profile.id.startsWith(u'I') ? FindByDisc(profile) : FindByUpc(profile);
}

} // namespace ostrand
