#include "people/CrossLinks.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "sql/Collation.h"

#include <QRegularExpression>
#include <QScopeGuard>

#include <array>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

void InsertAlias(Session &session, const QString &common_name, const QString &alias_name, int birth_year,
                 const QString &comment) {
    session.Database->Execute(QString(u"INSERT INTO Alias (AliasName, CommonName, BirthYear, Comment) VALUES ('"_s +
                                      EscapeSql(alias_name) + u"', '"_s + EscapeSql(common_name) + u"', '"_s +
                                      QString::number(birth_year) + u"', '"_s + EscapeSql(comment) + u"')"_s));
    if (session.progress.IsLoaded() && session.progress.Details()) {
        session.progress.SetDetail(common_name + u" <- "_s + alias_name);
    }
}

/// Names compare as they do in the table, where "Strauß" is "STRAUSS".
bool IsSameName(const QString &left, const QString &right) {
    return sql::Compare(left, right) == 0;
}

/// The common name of the first row under a condition; nothing without a row.
std::optional<QString> LinkedTo(Session &session, const QString &condition, int birth_year) {
    const sql::Recordset rows =
        session.Database->OpenRecordset(QString(u"SELECT AliasName, CommonName FROM Alias WHERE "_s + condition +
                                                u" AND BirthYear = "_s + QString::number(birth_year)));
    if (rows.Eof()) {
        return std::nullopt;
    }
    return rows.Text(1);
}

void Refuse(Session &session, bool silent, const QString &text, const QString &title) {
    if (!silent) {
        ShowMessage(session, {.text = text, .title = title, .icon = MessageIcon::Warning});
    }
}

/// The proposed alias is a common name: the pair is turned round, so that its group keeps its name. The aliases that
/// the other name has itself come along, since no name is both an alias and a common name.
void LinkTurnedRound(Session &session, const QString &common_name, const QString &alias_name, int birth_year,
                     const QString &comment) {
    const sql::Database::Bracket bracket(*session.Database);
    session.Database->Execute(QString(u"UPDATE Alias SET CommonName = '"_s + EscapeSql(alias_name) +
                                      u"' WHERE CommonName = '"_s + EscapeSql(common_name) + u"' AND BirthYear = "_s +
                                      QString::number(birth_year)));
    InsertAlias(session, alias_name, common_name, birth_year, comment);
    Trace(session,
          u"Invalid Link Entry: Alias "_s + alias_name + u" is already used as a CommonName. Imported "_s +
              common_name + u" as Alias for "_s + alias_name + u" instead"_s,
          kTraceInfo);
}

/// The proposed common name is an alias already, of `present`.
void LinkBelowAlias(Session &session, const QString &common_name, const QString &alias_name, int birth_year,
                    bool silent, const QString &comment, const QString &present) {
    const QString quoted = u'\'' + EscapeSql(alias_name) + u'\'';
    const bool taken =
        LinkedTo(session, u"(AliasName = "_s + quoted + u" OR CommonName = "_s + quoted + u')', birth_year).has_value();
    QString trace = u"Invalid Link Entry: CommonName "_s + common_name + u" is already used as an AliasName for "_s +
                    present + u" and cannot be imported as CommonName for "_s + alias_name;
    if (taken) {
        Refuse(session, silent,
               Translate(session, u"Invalid Link Entry!"_s) + u'\n' + common_name + u' ' +
                   Translate(session, u"is already used as an AliasName"_s) + u'\n' +
                   Translate(session, u"Therefore it cannot be used as a common name. Link from "_s) + alias_name +
                   u' ' + Translate(session, u"not imported!"_s),
               Translate(session, u"Invalid Link Entry"_s));
    } else {
        InsertAlias(session, present, alias_name, birth_year, comment);
        trace += u". Linked Alias "_s + alias_name + u" to CommonName "_s + present + u" instead."_s;
    }
    Trace(session, trace, kTraceInfo);
}

void RefuseDuplicate(Session &session, const QString &common_name, const QString &alias_name, bool silent,
                     const QString &present) {
    Refuse(session, silent,
           Translate(session, u"Duplicate Link Entry!"_s) + u'\n' + alias_name + u' ' +
               Translate(session, u"already linked to "_s) + present + u"! "_s + Translate(session, u"Link to"_s) +
               u' ' + common_name + u' ' + Translate(session, u"not imported!"_s),
           {});
    Trace(session,
          u"Invalid Link Entry: Alias "_s + alias_name + u" is already linked to CommonName "_s + present +
              u". Link to "_s + common_name + u" not imported"_s,
          kTraceInfo);
}

// The titles that rule 3 takes away, as they can end a word before a blank.
constexpr std::array<QStringView, 22> kTitleEnds = {
    u"sir",       u"lady",     u"madame",   u"capt.",     u"lt.",   u"captain", u"mr.", u"miss",
    u"mrs.",      u"ms.",      u"mr",       u"mrs",       u"dr.",   u"ssgt.",   u"dr",  u"corporal",
    u"constable", u"sergeant", u"reverend", u"professor", u"prof.", u"dame"};
constexpr std::array<QStringView, 3> kMoreTitleEnds = {u"inspector", u"senator", u"sen."};

bool MayHoldTitle(QStringView name) {
    const auto ends_in = [](QStringView text, const auto &titles) {
        return std::any_of(titles.begin(), titles.end(),
                           [&](QStringView title) { return text.endsWith(title, Qt::CaseInsensitive); });
    };
    for (qsizetype blank = name.indexOf(u' ', 2); blank > 0; blank = name.indexOf(u' ', blank + 1)) {
        const QStringView before = name.first(blank);
        if (ends_in(before, kTitleEnds) || ends_in(before, kMoreTitleEnds)) {
            return true;
        }
    }
    return false;
}

bool MayHoldSuffix(QStringView name) {
    if (name.endsWith(u'\n')) {
        name.chop(1);
    }
    if (name.endsWith(u'.')) {
        name.chop(1);
    }
    return name.endsWith(u" jr", Qt::CaseInsensitive) || name.endsWith(u" sr", Qt::CaseInsensitive);
}

bool MayHoldInitials(QStringView name) {
    return name.size() > 5 && name[1] == u'.' && name[3] == u'.' && name[4] == u' ';
}

/// A row of the clean-up that stands alone: no second known year under that name or an alias of it.
bool HasOtherYear(Session &session, const QString &table, const QString &name, const QString &year, bool aliases) {
    const QString quoted = u'\'' + EscapeSql(name) + u'\'';
    const QString other_year = u"c.BirthYear <> "_s + year + u" AND c.BirthYear <> 0"_s;
    if (!session.Database
             ->OpenRecordset(
                 QString(u"SELECT c.Name FROM "_s + table + u" c WHERE c.Name = "_s + quoted + u" AND "_s + other_year))
             .Eof()) {
        return true;
    }
    return aliases && !session.Database
                           ->OpenRecordset(QString(u"SELECT c.Name FROM Alias a INNER JOIN "_s + table +
                                                   u" c ON c.Name = a.AliasName WHERE a.CommonName = "_s + quoted +
                                                   u" AND "_s + other_year))
                           .Eof();
}

void RemoveYear(Session &session, const QString &name, const QString &year) {
    session.progress.SetDetail(Translate(session, u"Removing BY of "_s) + name);
    Trace(session, u"Removing BY of "_s + name, kTraceInfo);
    for (const auto &table : {u"CastCrew"_s, u"TVCastCrew"_s}) {
        session.Database->Execute(QString(u"UPDATE "_s + table + u" SET BirthYear = 0 WHERE Name = '"_s +
                                          EscapeSql(name) + u"' AND BirthYear = "_s + year));
    }
}

} // namespace

QString GetCommonName(Session &session, const QString &name, int birth_year) {
    QString statement = u"SELECT CommonName FROM Alias WHERE AliasName = '"_s + EscapeSql(name) + u'\'';
    if (birth_year != 0) {
        statement += u" AND BirthYear = "_s + QString::number(birth_year);
    }
    const sql::Recordset rows = session.Database->OpenRecordset(statement);
    return rows.Eof() ? name : rows.Text(0);
}

void LinkAlias(Session &session, const QString &common_name, const QString &alias_name, int birth_year, bool silent,
               const QString &comment) {
    if (common_name.isEmpty() || alias_name.isEmpty() || IsSameName(common_name, alias_name)) {
        return;
    }
    const QString quoted_common = u'\'' + EscapeSql(common_name) + u'\'';
    const QString quoted_alias = u'\'' + EscapeSql(alias_name) + u'\'';

    if (const auto present = LinkedTo(session, u"AliasName = "_s + quoted_common, birth_year)) {
        LinkBelowAlias(session, common_name, alias_name, birth_year, silent, comment, *present);
        return;
    }
    if (const auto present = LinkedTo(session, u"AliasName = "_s + quoted_alias, birth_year)) {
        if (!IsSameName(*present, common_name)) {
            RefuseDuplicate(session, common_name, alias_name, silent, *present);
        }
        return;
    }
    if (LinkedTo(session, u"CommonName = "_s + quoted_alias, birth_year)) {
        // The first step has settled that the common name is no alias, so nothing stands against the turned pair.
        LinkTurnedRound(session, common_name, alias_name, birth_year, comment);
        return;
    }
    InsertAlias(session, common_name, alias_name, birth_year, comment);
}

QString NormalizedName(const QString &name) {
    // Runs once for every credit of an import; the expressions are for the few that one of them can match.
    if (!MayHoldInitials(name) && !MayHoldSuffix(name) && !MayHoldTitle(name)) {
        return name;
    }
    static const QRegularExpression initials(u"^([A-Za-z0-9_]\\.)([A-Za-z0-9_]\\. .+)"_s);
    static const QRegularExpression suffix(u"(.*?),?( [js]r)\\.?$"_s, QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression title(
        u"(sir|lady|madame|capt\\.|lt\\.|captain|mr\\.|miss|mrs\\.|ms\\.|mr|mrs|dr\\.|ssgt\\.|dr|corporal|constable|sergeant|reverend|professor|prof\\.|dame|inspector|senator|sen\\.) (.+)"_s,
        QRegularExpression::CaseInsensitiveOption);

    QString text = name;
    if (const auto match = initials.match(text); match.hasMatch()) {
        text = match.captured(1) + u' ' + match.captured(2);
    }
    if (const auto match = suffix.match(text); match.hasMatch()) {
        text = match.captured(1) + u',' + match.captured(2) + u'.';
    }
    if (const auto match = title.match(text); match.hasMatch()) {
        text = match.captured(2);
    }
    return text;
}

void LinkNormalizedName(Session &session, const QString &name, int birth_year) {
    const QString normalized = NormalizedName(name);
    if (normalized != name) {
        LinkAlias(session, normalized, name, birth_year, true, {});
    }
}

void RemoveUnneededBirthYears(Session &session) {
    Trace(session, u"RemoveUnneededBirthYears()"_s, kTraceEntry);
    frmProgress &progress = session.progress;
    const QString title = Translate(session, u"Removing unneeded BirthYears"_s);
    // Inside another job its window is used and left open.
    const bool own_window = !progress.IsLoaded();
    if (own_window) {
        progress.Load(title);
    } else {
        progress.SetTitle(title);
    }
    const auto close = qScopeGuard([&] {
        if (own_window) {
            progress.UnloadForm(false);
        }
    });
    progress.SetLine(Translate(session, u"Removing unneeded BirthYears..."_s));
    progress.SetDetail(Translate(session, u"Identify BirthYears"_s));

    sql::Database &database = *session.Database;
    sql::Recordset rows =
        database.OpenRecordset(u"SELECT Name, BirthYear FROM CastCrew WHERE BirthYear <> 0 UNION SELECT Name, "
                               "BirthYear FROM TVCastCrew WHERE BirthYear <> 0");
    const bool aliases = database.RecordCount(u"Alias") > 0;
    const bool episodes = database.RecordCount(u"TVCastCrew") > 0;
    const QString total = QString::number(rows.RecordCount());
    const QString checking = u' ' + Translate(session, u"Checking BY"_s);
    int done = 0;
    for (; !rows.Eof() && !progress.ProgressCancelled(); rows.MoveNext()) {
        const QString name = rows.Text(0);
        const QString year = rows.Text(1);
        if (!HasOtherYear(session, u"CastCrew"_s, name, year, aliases) &&
            !(episodes && HasOtherYear(session, u"TVCastCrew"_s, name, year, aliases))) {
            RemoveYear(session, name, year);
        }
        ++done;
        progress.SetCounter(QString::number(done) + u'/' + total + checking);
        session.services.pump.Turn();
        database.FlushIfDue();
    }
    Trace(session, u"RemoveUnneededBirthYears: "_s, kTraceExit);
}

} // namespace ostrand
