#include "database/Upgrade.h"

#include "database/DatabaseFunctions.h"
#include "database/Schema.h"
#include "shell/Session.h"

#include <QScopeGuard>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// A chain that runs: the open database and the version that it had.
struct Chain {
    Session &session;
    int version;

    sql::Database &Db() const { return *session.Database; }

    void Run(const QString &statement) const {
        Trace(session, statement, kTraceInfo);
        Db().Execute(statement);
    }
    void Drop(std::initializer_list<QLatin1StringView> tables) const {
        for (const QLatin1StringView table : tables) {
            Run(u"DROP TABLE %1"_s.arg(table));
        }
    }
    void Create(QStringView table) const { Run(SchemaTable(table).CreateStatement()); }
    void Recreate(QStringView table) const {
        Run(u"DROP TABLE %1"_s.arg(table));
        Create(table);
    }
    /// CreateProfileTables makes today's tables in the middle of the chain, so that a column may be there already.
    void AddColumn(QStringView table, QStringView column, QStringView type) const {
        const sql::TableInfo *info = Db().FindTable(table);
        if (!info || info->IndexOf(column) < 0) {
            Run(u"ALTER TABLE %1 ADD COLUMN %2 %3"_s.arg(table, column, type));
        }
    }
    /// Leaves an index alone that is there, and one whose table or columns only a later step makes.
    void CreateIndex(const IndexSpec &index) const {
        const sql::TableInfo *table = Db().FindTable(index.table);
        if (!table || table->FindIndex(index.name)) {
            return;
        }
        for (const QStringView column : index.columns.split(u',')) {
            if (table->IndexOf(column.trimmed()) < 0) {
                return;
            }
        }
        Run(index.CreateStatement());
    }
    void DropIndex(QStringView index, QStringView table) const {
        const sql::TableInfo *info = Db().FindTable(table);
        if (info && info->FindIndex(index)) {
            Run(u"DROP INDEX %1 ON %2"_s.arg(index, table));
        }
    }
    void AddKey(QStringView table, QStringView columns) const {
        Run(u"ALTER Table %1 ADD PRIMARY KEY (%2)"_s.arg(table, columns));
    }
    void ForgetHashes() const { Run(u"Update Profiles SET MD5 = ''"_s); }
};

void RenewPrices(const Chain &chain) {
    chain.Drop({"SRPInfo"_L1, "PurchaseInfo"_L1, "Currencies"_L1});
    for (const QStringView table : {u"Retailers", u"Currencies", u"SRPInfo", u"PurchaseInfo"}) {
        chain.Create(table);
    }
}

void DropOldCredits(const Chain &chain) {
    if (chain.version >= 33) {
        chain.Drop({"CastCrew"_L1, "TVCastCrew"_L1});
        return;
    }
    for (const QLatin1StringView table : {"Cast"_L1, "Crew"_L1, "TVCast"_L1, "TVCrew"_L1}) {
        try {
            chain.Drop({table});
        } catch (const sql::SqlError &) {
            // not every file of that age has them
        }
    }
}

void RenewProfileTables(const Chain &chain) {
    DropOldCredits(chain);
    chain.Drop({"Episodes"_L1, "TVSeries"_L1, "Discs"_L1, "Reviews"_L1, "Genres"_L1, "Subtitles"_L1, "VideoFormat"_L1,
                "AudioFormats"_L1, "Features"_L1, "Locks"_L1, "Tags"_L1, "SRPInfo"_L1, "LoanInfo"_L1, "PurchaseInfo"_L1,
                "Studios"_L1, "Regions"_L1, "BoxSet"_L1});
    if (chain.version < 46) {
        chain.Drop({"Events"_L1});
    }
    chain.Drop({"Profiles"_L1});
    CreateProfileTables(chain.session);
    if (chain.version < 46) {
        chain.Run(u"CREATE TABLE Events (EventID long PRIMARY KEY NOT NULL, ProfileID varchar NOT NULL, "
                  "UserID varchar NOT NULL REFERENCES Users(UserID), EventType varchar, EventTimeStamp date)"_s);
    }
}

void RenewAwards(const Chain &chain) {
    chain.Drop({"Awards"_L1});
    chain.Run(u"CREATE TABLE Awards (AwardID long PRIMARY KEY,Award varchar NOT NULL,Year integer NOT NULL, "
              "Category varchar, MovieTitle varchar NOT NULL, Won varchar(1), Nominee varchar)"_s);
}

void AddIndexes(const Chain &chain) {
    if (chain.version < 48) {
        for (const IndexSpec &index : SchemaIndexes()) {
            chain.CreateIndex(index);
        }
        return;
    }
    chain.CreateIndex({u"idx_Awards_AwardID", u"Awards", u"AwardID", true});
    chain.CreateIndex(SchemaIndex(u"idx_Awards_MovieTitle_Year"));
    chain.CreateIndex(SchemaIndex(u"idx_Awards_Nominee"));
}

void RenewEpisodes(const Chain &chain) {
    chain.Run(u"DELETE FROM TVCastCrew"_s);
    chain.Drop({"Episodes"_L1});
    chain.Run(u"DELETE FROM TVSeries"_s);
    chain.Run(u"CREATE TABLE Episodes (EpisodeID varchar NOT NULL UNIQUE PRIMARY KEY, EpisodeNo varchar, "
              "EpisodeTitle varchar, EpisodeOriginalTitle varchar, Season varchar, Overview memo, Runtime integer, "
              "Rating varchar, Airdate date, Notes memo, SeriesID varchar NOT NULL)"_s);
}

void RenewLocks(const Chain &chain) {
    chain.Recreate(u"Locks");
}

void RenewProfiles(const Chain &chain) {
    chain.Drop({"Profiles"_L1});
    chain.Run(u"CREATE TABLE Profiles (ProfileID varchar NOT NULL UNIQUE PRIMARY KEY, Medium varchar, "
              "Title varchar NOT NULL, OriginalTitle varchar, SortTitle varchar, OriginalSortTitle varchar, "
              "Description varchar, ColNo varchar, ColType varchar, UPC varchar, ProfileTimestamp date, "
              "Rating varchar, ProdYear integer, Released date, Runtime integer, CaseType varchar, Overview memo, "
              "Notes memo, Eastereggs memo, LastEdited date, WishListPriority integer, DataSource varchar, "
              "Locality varchar)"_s);
}

void RenewSeries(const Chain &chain) {
    chain.Recreate(u"TVSeries");
}

void RenewRegions(const Chain &chain) {
    chain.Recreate(u"Regions");
}

void AddKeys(const Chain &chain) {
    static constexpr struct {
        QStringView table;
        QStringView key;
        bool empty_first = true;
    } kKeys[] = {
        {u"CastCrew", u"ProfileID, Name, Position"},
        {u"TVCastCrew", u"EpisodeID, Name, Position"},
        {u"Discs", u"ProfileID, DiscNo"},
        {u"VideoFormat", u"ProfileID"},
        {u"Features", u"ProfileID, Feature"},
        {u"Genres", u"ProfileID, Genre"},
        {u"Subtitles", u"ProfileID, Subtitle"},
        {u"AudioFormats", u"ProfileID, OrderPos"},
        {u"Reviews", u"ProfileID", false},
        {u"Tags", u"ProfileID, TagName"},
    };
    chain.AddKey(u"AdditionalInfo", u"ProfileID, InfoName");
    if (chain.version <= 46) {
        return; // CreateProfileTables has made them with their keys
    }
    for (const auto &row : kKeys) {
        if (row.empty_first) {
            chain.Run(u"DELETE FROM %1"_s.arg(row.table));
        }
        chain.AddKey(row.table, row.key);
    }
}

void RenewStudios(const Chain &chain) {
    chain.Recreate(u"Studios");
}

void RenewAliasComment(const Chain &chain) {
    chain.Run(u"ALTER TABLE Alias DROP COLUMN Comment"_s);
    chain.AddColumn(u"Alias", u"Comment", u"varchar");
}

void MergeCredits(const Chain &chain) {
    chain.Drop({"CastCrew"_L1, "TVCastCrew"_L1});
    static constexpr struct {
        QStringView table;
        QStringView key;
    } kTables[] = {{u"CastCrew", u"ProfileID"}, {u"TVCastCrew", u"EpisodeID"}};
    for (const auto &[table, key] : kTables) {
        chain.Run(
            u"CREATE TABLE %1 (Name varchar NOT NULL,Role varchar, Position integer NOT NULL, "
            "%2 varchar NOT NULL, IsCast varchar(3), PRIMARY KEY (%2, Name, Position, IsCast))"_s.arg(table, key));
    }
    chain.Drop({"AdditionalInfo"_L1});
    chain.Run(u"CREATE TABLE AdditionalInfo (ProfileID varchar NOT NULL, InfoName varchar, InfoValue memo, "
              "PRIMARY KEY (ProfileID, InfoName))"_s);
}

void KeyAssignments(const Chain &chain) {
    RemoveAutoIndexes(chain.session, u"Profile2Episodes"_s);
    chain.Run(u"ALTER TABLE Profile2Episodes DROP COLUMN ID"_s);
    chain.Run(u"ALTER TABLE Profile2Episodes ADD PRIMARY KEY (ProfileID, EpisodeID)"_s);
}

void AddEventComment(const Chain &chain) {
    chain.AddColumn(u"Events", u"Comment", u"varchar");
}

/// Takes the marks out of a role; true where there was one.
bool TakeMarks(QString &role, QStringView mark, std::initializer_list<QLatin1StringView> forms) {
    if (!role.contains(mark, Qt::CaseInsensitive)) {
        return false;
    }
    for (const QLatin1StringView form : forms) {
        role.replace(form, ""_L1);
    }
    return true;
}

void ReadMarksOfRoles(const Chain &chain, const QString &table) {
    sql::Recordset rows = chain.Db().OpenRecordset(table);
    for (; !rows.Eof(); rows.MoveNext()) {
        QString role = rows.Text(u"Role");
        rows.Edit();
        rows.Set(u"BirthYear", 0);
        if (TakeMarks(role, u"(voice)", {" (Voice)"_L1, " (voice)"_L1, "(voice)"_L1})) {
            rows.Set(u"IsVoice", u"True"_s);
            rows.Set(u"Role", role);
        }
        if (TakeMarks(role, u"(uncr",
                      {" (uncredited)"_L1, " (Uncredited)"_L1, " (uncr)"_L1, " (uncr.)"_L1, " (uncred.)"_L1,
                       "(uncredited)"_L1})) {
            rows.Set(u"IsUncredited", u"True"_s);
            rows.Set(u"Role", role);
        }
        rows.Update();
    }
}

void AddBirthYears(const Chain &chain) {
    for (const QStringView table : {u"Alias", u"CastCrew", u"TVCastCrew"}) {
        chain.AddColumn(table, u"BirthYear", u"integer");
    }
    for (const QStringView table : {u"CastCrew", u"TVCastCrew"}) {
        chain.AddColumn(table, u"IsUncredited", u"varchar");
        chain.AddColumn(table, u"IsVoice", u"varchar");
    }
    chain.AddColumn(u"Profiles", u"CountryOfOrigin", u"varchar");
    chain.Run(u"UPDATE Alias SET BirthYear = 0 WHERE BirthYear Is NULL"_s);
    ReadMarksOfRoles(chain, u"CastCrew"_s);
    ReadMarksOfRoles(chain, u"TVCastCrew"_s);
    WriteDbInfo(chain.session, u"LastTVUpdate"_s, u"0"_s, u"Last downloaded online TV update revision"_s);
}

void AddSecondSideLayers(const Chain &chain) {
    chain.AddColumn(u"Discs", u"DualLayeredSideB", u"varchar(5)");
}

void KeyAliasesByYear(const Chain &chain) {
    RemoveAutoIndexes(chain.session, u"Alias"_s);
    chain.DropIndex(u"idx_Alias_AliasName", u"Alias");
    chain.DropIndex(u"idx_Alias_CommonName", u"Alias");
    chain.Run(u"UPDATE Alias SET BirthYear = 0 WHERE BirthYear Is NULL"_s);
    chain.Run(u"ALTER TABLE Alias ADD PRIMARY KEY (AliasName, BirthYear)"_s);
    chain.CreateIndex(SchemaIndex(u"idx_Alias_AliasName"));
    chain.CreateIndex(SchemaIndex(u"idx_Alias_CommonName"));
    chain.AddColumn(u"Discs", u"DescriptionSideB", u"varchar");
}

void ConvertFlagsOf(const Chain &chain, const QString &table,
                    std::initializer_list<std::pair<QLatin1StringView, QLatin1StringView>> columns) {
    RemoveAutoIndexes(chain.session, table);
    for (const auto &[column, true_value] : columns) {
        ChangeColumnToYesNo(chain.session, table, column, true_value);
    }
}

void ConvertTextFlags(const Chain &chain) {
    for (const QString &table : {u"CastCrew"_s, u"TVCastCrew"_s}) {
        ConvertFlagsOf(chain, table,
                       {{"IsUncredited"_L1, "True"_L1}, {"IsVoice"_L1, "True"_L1}, {"IsCast"_L1, "yes"_L1}});
        const QString owner = table == u"CastCrew" ? u"ProfileID"_s : u"EpisodeID"_s;
        chain.AddKey(table, QString(owner + ", Name, Position, IsCast"_L1));
    }
    ConvertFlagsOf(chain, u"Awards"_s, {{"Won"_L1, "X"_L1}});
    ConvertFlagsOf(chain, u"Discs"_s,
                   {{"DualSided"_L1, "True"_L1},
                    {"Flipper"_L1, "True"_L1},
                    {"DualLayered"_L1, "True"_L1},
                    {"DualLayeredSideB"_L1, "True"_L1}});
    ConvertFlagsOf(chain, u"VideoFormat"_s,
                   {{"LetterBox"_L1, "True"_L1},
                    {"PanAndScan"_L1, "True"_L1},
                    {"FullFrame"_L1, "True"_L1},
                    {"F16X9"_L1, "True"_L1}});
    // Their keys went with the indexes told with the columns; a new database has them.
    chain.AddKey(u"Discs", u"ProfileID, DiscNo");
    chain.AddKey(u"VideoFormat", u"ProfileID");
}

void ConvertTextFlagsWithProgress(const Chain &chain) {
    frmProgress &progress = chain.session.progress;
    const QString line = Translate(chain.session, u"Updating database..."_s);
    const bool own = !progress.IsLoaded();
    if (own) {
        progress.Load(line);
    }
    const auto close = qScopeGuard([&] {
        if (own) {
            progress.UnloadForm(false);
        }
    });
    progress.SetLine(line);
    ConvertTextFlags(chain);
}

void DropAwardNumbers(const Chain &chain) {
    RemoveAutoIndexes(chain.session, u"Awards"_s);
    chain.DropIndex(u"idx_Awards_AwardID", u"Awards");
    chain.Db().DropColumn(u"Awards", u"AwardID");
}

void AddHashes(const Chain &chain) {
    chain.AddColumn(u"Profiles", u"MD5", u"varchar");
}

void AddRegulars(const Chain &chain) {
    chain.AddColumn(u"TVCastCrew", u"IsRegular", u"yesno");
    MarkYesNoColumns(chain.session);
}

void AddMovieYear(const Chain &chain) {
    chain.AddColumn(u"Awards", u"MovieYear", u"integer");
}

void AddRatingSystem(const Chain &chain) {
    chain.AddColumn(u"Profiles", u"RatingSystem", u"varchar");
    chain.AddColumn(u"Profiles", u"RatingDetails", u"varchar");
}

void AddEpisodeRatingSystem(const Chain &chain) {
    chain.AddColumn(u"Episodes", u"RatingSystem", u"varchar");
    chain.AddColumn(u"Episodes", u"RatingDetails", u"varchar");
}

void RenewVideoStandard(const Chain &chain) {
    chain.Run(u"ALTER TABLE VideoFormat DROP COLUMN VideoStandard"_s);
    chain.AddColumn(u"VideoFormat", u"VideoStandard", u"varchar");
    chain.ForgetHashes();
}

void NameMedia(const Chain &chain) {
    chain.AddColumn(u"AdditionalInfo", u"InfoType", u"varchar");
    chain.ForgetHashes();
    static constexpr struct {
        QStringView before;
        QStringView now;
    } kMedia[] = {{u"BluRay", u"Blu-ray Disc"}, {u"HDDVD", u"HD DVD"}, {u"HDDVD/DVD", u"HD DVD/DVD"}};
    for (const auto &[before, now] : kMedia) {
        chain.Run(u"Update Profiles SET Medium = '%1' WHERE Medium = '%2'"_s.arg(now, before));
    }
}

void AddCounts(const Chain &chain) {
    chain.AddColumn(u"Profiles", u"CountAs", u"integer");
    chain.Run(u"UPDATE Profiles SET CountAs = 1 WHERE CountAs Is NULL"_s);
    chain.ForgetHashes();
}

void MoveRatingsToMetaInfo(const Chain &chain) {
    chain.Create(u"MetaInfo");
    chain.CreateIndex(SchemaIndex(u"idx_MetaInfo_ProfileIDInfoName"));
    const QString ratings = u" FROM AdditionalInfo WHERE InfoName = 'RatingAge' OR InfoName = 'RatingVariant'"_s;
    sql::Recordset rows = chain.Db().OpenRecordset(QString(u"SELECT *"_s + ratings));
    for (; !rows.Eof(); rows.MoveNext()) {
        WriteMetaInfo(chain.session, rows.Text(u"ProfileID"), rows.Text(u"InfoName"), rows.Text(u"InfoValue"));
    }
    chain.Run(u"DELETE"_s + ratings);
}

void AddCreditOnly(const Chain &chain) {
    chain.AddColumn(u"CastCrew", u"IsCreditOnly", u"yesno");
    chain.AddColumn(u"TVCastCrew", u"IsCreditOnly", u"yesno");
}

void AddActiveUsers(const Chain &chain) {
    chain.AddColumn(u"Users", u"IsActive", u"yesno");
    chain.Run(u"Update Users SET IsActive = true"_s);
}

void ForgetHashes(const Chain &chain) {
    chain.ForgetHashes();
}

void AddCustomTitles(const Chain &chain) {
    chain.AddColumn(u"Profiles", u"CustomTitle", u"varchar");
    chain.AddColumn(u"Profiles", u"CustomSortTitle", u"varchar");
}

/// A step runs for versions below its bound.
struct Step {
    int below;
    void (*run)(const Chain &);
};

// In the order of the program's history, which is not that of the bounds. A step counts on what those before it left.
constexpr Step kSteps[] = {
    {66, RenewPrices},
    {47, RenewProfileTables},
    {46, RenewAwards},
    {69, AddIndexes},
    {51, RenewEpisodes},
    {60, RenewLocks},
    {53, RenewProfiles},
    {55, RenewSeries},
    {59, RenewRegions},
    {60, AddKeys},
    {62, RenewStudios},
    {64, RenewAliasComment},
    {68, MergeCredits},
    {71, KeyAssignments},
    {72, AddEventComment},
    {73, AddBirthYears},
    {74, AddSecondSideLayers},
    {75, KeyAliasesByYear},
    {76, ConvertTextFlagsWithProgress},
    {77, DropAwardNumbers},
    {78, AddHashes},
    {79, AddRegulars},
    {80, AddMovieYear},
    {81, AddRatingSystem},
    {82, AddEpisodeRatingSystem},
    {83, RenewVideoStandard},
    {84, NameMedia},
    {85, AddCounts},
    {86, MoveRatingsToMetaInfo},
    {87, AddCreditOnly},
    {88, AddActiveUsers},
    {89, ForgetHashes},
    {90, AddCustomTitles},
};

bool AskToDelete(Session &session) {
    const MessageAnswer answer = ShowMessage(
        session, {.text = Translate(session, u"Existing incompatible data will be deleted!"_s) + "\r\n"_L1 +
                          Translate(session, u"Personal data Episode Assignments and SQL Queries will NOT be lost. "
                                             "Continue Now?"_s),
                  .title = Translate(session, u"Delete old data"_s),
                  .icon = MessageIcon::Question,
                  .buttons = MessageButtons::YesNo,
                  .neutral = MessageAnswer::No});
    return answer == MessageAnswer::Yes;
}

void RunSteps(const Chain &chain) {
    for (const Step &step : kSteps) {
        if (chain.version < step.below) {
            step.run(chain);
        }
    }
    // Tables that the chain made anew have lost their indexes.
    for (const IndexSpec &index : SchemaIndexes()) {
        chain.CreateIndex(index);
    }
    WriteDbInfo(chain.session, u"Schema"_s, QString::number(kSchemaVersion), u"Database Schema"_s);
}

bool RunChain(Session &session, int version) {
    if (version > kSchemaVersion) {
        ShowMessage(session, {.text = Translate(session, u"Database version too high!"_s) + "\r\n"_L1 +
                                      Translate(session, u"Use the current version of the Ostrand."_s),
                              .title = Translate(session, u"Cannot open database"_s),
                              .icon = MessageIcon::Critical});
        return false;
    }
    if (version < 69 && !AskToDelete(session)) {
        session.EndProgram = true;
        return false;
    }
    // One durable whole: a process that dies in the middle, and a step that fails, leave the old version.
    session.Database->Flush();
    sql::Database::Bracket bracket(*session.Database);
    try {
        RunSteps({session, version});
    } catch (const sql::SqlError &) {
        bracket.Abandon();
        throw;
    }
    return true;
}

} // namespace

bool UpgradeDatabase(Session &session, int version) {
    Trace(session, u"UpgradeDatabase(%1)"_s.arg(version), kTraceEntry);
    const bool done = RunChain(session, version);
    Trace(session, done ? u"UpgradeDatabase: True"_s : u"UpgradeDatabase: False"_s, kTraceExit);
    return done;
}

void RemoveAutoIndexes(Session &session, const QString &table) {
    const sql::TableInfo *info = session.Database->FindTable(table);
    if (!info) {
        return;
    }
    const std::vector<sql::IndexInfo> indexes = info->indexes;
    for (auto index = indexes.rbegin(); index != indexes.rend(); ++index) {
        if (index->name.startsWith("Index"_L1, Qt::CaseInsensitive)) {
            session.Database->DropIndex(table, index->name);
        }
    }
}

void ChangeColumnToYesNo(Session &session, const QString &table, const QString &column, const QString &true_value) {
    const QString old_column = column + "_old"_L1;
    sql::Database &database = *session.Database;
    database.RenameColumn(table, column, old_column);
    database.Execute(u"ALTER TABLE %1 ADD COLUMN %2 yesno"_s.arg(table, column));
    const QString wanted = true_value.toLower();
    sql::Recordset rows = database.OpenRecordset(table);
    const int old_place = rows.Ordinal(old_column);
    for (; !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(old_place).toLower() == wanted) { // the new column is false as it stands
            rows.Edit();
            rows.Set(column, true);
            rows.Update();
        }
    }
    database.Execute(u"ALTER TABLE %1 DROP COLUMN %2"_s.arg(table, old_column));
}

} // namespace ostrand
