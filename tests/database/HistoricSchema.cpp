#include "HistoricSchema.h"

#include "database/Schema.h"
#include "sql/Database.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

bool Names(const QString &definition, const QString &column) {
    return definition.section(u' ', 0, 0).compare(column, Qt::CaseInsensitive) == 0;
}

} // namespace

HistoricSchema::HistoricSchema(int version) : version_(version) {
    for (const auto tables : {TablesBeforeVersion(), TablesAfterVersion(), ProfileTables()}) {
        for (const TableSpec &table : tables) {
            Add(table.name.toString(), table.columns.toString());
        }
    }
    for (const IndexSpec &index : SchemaIndexes()) {
        indexes_ << index.CreateStatement();
    }
    for (int bound = 90; bound > version; --bound) {
        Undo(bound);
    }
}

void HistoricSchema::Add(const QString &table, const QString &columns) {
    const qsizetype key = columns.indexOf(", PRIMARY KEY ("_L1);
    Table made;
    made.columns = columns.left(key).split(u", "_s);
    made.key = key < 0 ? QString() : columns.mid(key + 2);
    if (!order_.contains(table)) {
        order_ << table;
    }
    tables_[table] = made;
}

void HistoricSchema::DropColumns(const QString &table, const QStringList &columns) {
    for (const QString &column : columns) {
        tables_[table].columns.removeIf([&](const QString &definition) { return Names(definition, column); });
    }
}

void HistoricSchema::Retype(const QString &table, const QStringList &columns, const QString &definition) {
    for (QString &told : tables_[table].columns) {
        for (const QString &column : columns) {
            if (Names(told, column)) {
                told = column + u' ' + definition;
            }
        }
    }
}

void HistoricSchema::Undo(int bound) {
    UndoNewest(bound);
    UndoPeople(bound);
    UndoRenewed(bound);
    UndoOldest(bound);
}

void HistoricSchema::UndoNewest(int bound) {
    static const QMap<int, QMap<QString, QStringList>> kAdded = {
        {90, {{u"Profiles"_s, {u"CustomTitle"_s, u"CustomSortTitle"_s}}}},
        {88, {{u"Users"_s, {u"IsActive"_s}}}},
        {87, {{u"CastCrew"_s, {u"IsCreditOnly"_s}}, {u"TVCastCrew"_s, {u"IsCreditOnly"_s}}}},
        {85, {{u"Profiles"_s, {u"CountAs"_s}}}},
        {84, {{u"AdditionalInfo"_s, {u"InfoType"_s}}}},
        {82, {{u"Episodes"_s, {u"RatingSystem"_s, u"RatingDetails"_s}}}},
        {81, {{u"Profiles"_s, {u"RatingSystem"_s, u"RatingDetails"_s}}}},
        {80, {{u"Awards"_s, {u"MovieYear"_s}}}},
        {79, {{u"TVCastCrew"_s, {u"IsRegular"_s}}}},
        {78, {{u"Profiles"_s, {u"MD5"_s}}}},
        {75, {{u"Discs"_s, {u"DescriptionSideB"_s}}}},
        {74, {{u"Discs"_s, {u"DualLayeredSideB"_s}}}},
        {73,
         {{u"Alias"_s, {u"BirthYear"_s}},
          {u"CastCrew"_s, {u"BirthYear"_s, u"IsUncredited"_s, u"IsVoice"_s}},
          {u"TVCastCrew"_s, {u"BirthYear"_s, u"IsUncredited"_s, u"IsVoice"_s}},
          {u"Profiles"_s, {u"CountryOfOrigin"_s}}}},
        {72, {{u"Events"_s, {u"Comment"_s}}}},
    };
    const auto added = kAdded.value(bound);
    for (auto table = added.begin(); table != added.end(); ++table) {
        DropColumns(table.key(), table.value());
    }
    if (bound == 86) {
        tables_.remove(u"MetaInfo"_s);
    }
    if (bound == 83) {
        Retype(u"VideoFormat"_s, {u"VideoStandard"_s}, u"varchar(4)"_s);
    }
    if (bound == 76) {
        UndoFlags();
    }
}

void HistoricSchema::UndoFlags() {
    for (const QString &table : {u"CastCrew"_s, u"TVCastCrew"_s}) {
        Retype(table, {u"IsUncredited"_s, u"IsVoice"_s}, u"varchar"_s);
        Retype(table, {u"IsCast"_s}, u"varchar(3)"_s);
    }
    Retype(u"Awards"_s, {u"Won"_s}, u"varchar(1)"_s);
    Retype(u"Discs"_s, {u"DualSided"_s, u"Flipper"_s, u"DualLayered"_s, u"DualLayeredSideB"_s}, u"varchar(5)"_s);
    Retype(u"VideoFormat"_s, {u"LetterBox"_s, u"PanAndScan"_s, u"FullFrame"_s, u"F16X9"_s}, u"varchar(5)"_s);
}

void HistoricSchema::UndoPeople(int bound) {
    switch (bound) {
    case 77:
        tables_[u"Awards"_s].columns.prepend(u"AwardID long PRIMARY KEY"_s);
        indexes_ << u"CREATE UNIQUE INDEX idx_Awards_AwardID ON Awards (AwardID)"_s;
        break;
    case 75:
        Retype(u"Alias"_s, {u"AliasName"_s}, u"varchar NOT NULL PRIMARY KEY"_s);
        tables_[u"Alias"_s].key.clear();
        indexes_.replaceInStrings(u"ON Alias (AliasName, BirthYear)"_s, u"ON Alias (AliasName)"_s);
        break;
    case 71:
        tables_[u"Profile2Episodes"_s].columns.prepend(u"ID long PRIMARY KEY"_s);
        tables_[u"Profile2Episodes"_s].key.clear();
        break;
    case 69:
        indexes_.removeIf([](const QString &index) { return index.contains(u"ON Awards"_s); });
        break;
    case 68:
        Add(u"CastCrew"_s, u"ProfileID varchar NOT NULL, Name varchar NOT NULL, Role varchar, Position integer, "
                           "PRIMARY KEY (ProfileID, Name, Position)"_s);
        Add(u"TVCastCrew"_s, u"EpisodeID varchar NOT NULL, Name varchar NOT NULL, Role varchar, Position integer, "
                             "PRIMARY KEY (EpisodeID, Name, Position)"_s);
        Add(u"AdditionalInfo"_s, u"ProfileID varchar NOT NULL, InfoName varchar, InfoValue varchar, "
                                 "PRIMARY KEY (ProfileID, InfoName)"_s);
        break;
    case 64:
        Retype(u"Alias"_s, {u"Comment"_s}, u"varchar(50)"_s);
        break;
    default:
        break;
    }
}

void HistoricSchema::UndoRenewed(int bound) {
    switch (bound) {
    case 66:
        tables_.remove(u"Retailers"_s);
        Add(u"SRPInfo"_s, u"ProfileID varchar PRIMARY KEY, SRPValue varchar, CurrencyID varchar"_s);
        Add(u"PurchaseInfo"_s, u"ProfileID varchar PRIMARY KEY, Price varchar, PurchaseDate date"_s);
        break;
    case 62:
        Add(u"Studios"_s, u"ProfileID varchar NOT NULL, Studio varchar"_s);
        break;
    case 60:
        Add(u"Locks"_s, u"ProfileID varchar NOT NULL, LockName varchar"_s);
        for (const QString &table : {u"AdditionalInfo"_s, u"CastCrew"_s, u"TVCastCrew"_s, u"Discs"_s, u"Features"_s,
                                     u"Genres"_s, u"Subtitles"_s, u"AudioFormats"_s, u"Tags"_s}) {
            tables_[table].key.clear();
        }
        Retype(u"VideoFormat"_s, {u"ProfileID"_s}, u"varchar NOT NULL"_s);
        Retype(u"Reviews"_s, {u"ProfileID"_s}, u"varchar"_s);
        break;
    case 59:
        Add(u"Regions"_s, u"ProfileID varchar NOT NULL, Region varchar(1)"_s);
        break;
    case 55:
        Add(u"TVSeries"_s, u"SeriesID varchar NOT NULL PRIMARY KEY, Title varchar"_s);
        break;
    case 53:
        DropColumns(u"Profiles"_s, {u"DataSource"_s, u"Locality"_s});
        break;
    case 51:
        DropColumns(u"Episodes"_s, {u"Notes"_s});
        break;
    default:
        break;
    }
}

void HistoricSchema::UndoOldest(int bound) {
    switch (bound) {
    case 48:
        indexes_.clear();
        break;
    case 47:
        DropColumns(u"Discs"_s, {u"Location"_s, u"Slot"_s});
        break;
    case 46:
        Add(u"Events"_s, u"EventID varchar PRIMARY KEY, ProfileID varchar, UserID varchar, EventType varchar"_s);
        Add(u"Awards"_s, u"Award varchar, Year integer, MovieTitle varchar"_s);
        break;
    case 33:
        for (const QString &table : {u"Cast"_s, u"Crew"_s, u"TVCast"_s}) { // one of the four is missing
            Add(table, u"Name varchar, Role varchar, OwnerID varchar"_s);
        }
        tables_.remove(u"CastCrew"_s);
        tables_.remove(u"TVCastCrew"_s);
        tables_.remove(u"DbInfo"_s);
        tables_.remove(u"AdditionalInfo"_s);
        break;
    default:
        break;
    }
}

void HistoricSchema::Build(sql::Database &database) const {
    for (const QString &name : order_) {
        if (Has(name)) {
            const Table &table = tables_[name];
            const QStringList parts = table.columns + (table.key.isEmpty() ? QStringList() : QStringList(table.key));
            database.Execute(QString(u"CREATE TABLE %1 (%2)"_s.arg(name, parts.join(u", "_s))));
        }
    }
    for (const QString &index : indexes_) {
        if (Has(index.section(u" ON "_s, 1).section(u' ', 0, 0))) {
            database.Execute(index);
        }
    }
    if (Has(u"DbInfo"_s)) {
        database.Execute(QString(u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Schema', '%1')"_s.arg(version_)));
    }
}

QString HistoricSchema::Insert(const QString &table, const QList<std::pair<QString, QString>> &values) const {
    if (!Has(table)) {
        return {};
    }
    QStringList names;
    QStringList texts;
    for (const auto &[name, value] : values) {
        for (const QString &definition : tables_[table].columns) {
            if (Names(definition, name)) {
                names << name;
                texts << value;
            }
        }
    }
    return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table, names.join(u", "_s), texts.join(u", "_s));
}

} // namespace ostrand
