// The schema of a new collection, read back from the catalogue of the engine.
#include "CollectionFixture.h"

#include "database/Schema.h"

namespace ostrand {

namespace {

struct ExpectedTable {
    QStringView name;
    QStringView columns; ///< each with its kind, the length of a text, "!" where it takes no NULL by its declaration
    QStringView key;
    QStringView references;
};

constexpr ExpectedTable kExpectedTables[] = {
    {u"DbInfo", u"InfoName Text(255), InfoValue Memo, Comment Text(255)", u"InfoName", u""},
    {u"Profiles",
     u"ProfileID Text(255)!, Medium Text(255), Title Text(255)!, OriginalTitle Text(255), "
     u"SortTitle Text(255), OriginalSortTitle Text(255), CustomTitle Text(255), "
     u"CustomSortTitle Text(255), Description Text(255), ColNo Text(255), ColType Text(255), "
     u"UPC Text(255), ProfileTimestamp Date, Rating Text(255), RatingSystem Text(255), "
     u"RatingDetails Text(255), ProdYear Integer, Released Date, Runtime Integer, CaseType Text(255), "
     u"Overview Memo, Notes Memo, Eastereggs Memo, LastEdited Date, WishListPriority Integer, "
     u"DataSource Text(255), Locality Text(255), CountryOfOrigin Text(255), CountAs Integer, "
     u"MD5 Text(255)",
     u"ProfileID", u""},
    {u"CastCrew",
     u"Name Text(255)!, Role Text(255), ProfileID Text(255)!, Position Integer!, BirthYear Integer, "
     u"IsUncredited Boolean, IsVoice Boolean, IsCast Boolean, IsCreditOnly Boolean",
     u"ProfileID, Name, Position, IsCast", u""},
    {u"TVCastCrew",
     u"Name Text(255)!, Role Text(255), Position Integer!, EpisodeID Text(255)!, BirthYear Integer, "
     u"IsUncredited Boolean, IsVoice Boolean, IsCast Boolean, IsRegular Boolean, IsCreditOnly Boolean",
     u"EpisodeID, Name, Position, IsCast", u""},
    {u"TVSeries",
     u"SeriesID Text(255)!, OriginalTitle Text(255)!, Title Text(255)!, SortTitle Text(255), "
     u"OriginalSortTitle Text(255)",
     u"SeriesID", u""},
    {u"Episodes",
     u"EpisodeID Text(255)!, EpisodeNo Text(255), EpisodeTitle Text(255), "
     u"EpisodeOriginalTitle Text(255), Season Text(255), Overview Memo, Runtime Integer, "
     u"Rating Text(255), RatingSystem Text(255), RatingDetails Text(255), Airdate Date, Notes Memo, "
     u"SeriesID Text(255)!",
     u"EpisodeID", u""},
    {u"Profile2Episodes", u"ProfileID Text(255)!, EpisodeID Text(255)!", u"ProfileID, EpisodeID", u""},
    {u"BoxSet", u"ChildID Text(255)!, BoxSetID Text(255)!", u"ChildID", u""},
    {u"Discs",
     u"ProfileID Text(255)!, DiscNo Integer!, Description Text(255), DiscIDSideA Text(255), "
     u"LabelSideA Text(255), DescriptionSideB Text(255), DiscIDSideB Text(255), LabelSideB Text(255), "
     u"DualSided Boolean, DualLayered Boolean, DualLayeredSideB Boolean, Flipper Boolean, "
     u"Location Text(255), Slot Text(255)",
     u"ProfileID, DiscNo", u""},
    {u"Regions", u"ProfileID Text(255)!, Region Integer!", u"ProfileID, Region", u""},
    {u"Locks", u"ProfileID Text(255)!, LockName Text(255)", u"ProfileID, LockName", u""},
    {u"VideoFormat",
     u"ProfileID Text(255)!, AspectRatio Text(4), VideoStandard Text(255), LetterBox Boolean, "
     u"PanAndScan Boolean, FullFrame Boolean, F16X9 Boolean",
     u"ProfileID", u""},
    {u"Features", u"ProfileID Text(255)!, Feature Text(255)", u"ProfileID, Feature", u""},
    {u"Studios", u"ProfileID Text(255)!, Studio Text(255)!, Type Text(255)!", u"ProfileID, Studio, Type", u""},
    {u"Genres", u"ProfileID Text(255)!, Genre Text(255)", u"ProfileID, Genre", u""},
    {u"Subtitles", u"ProfileID Text(255)!, Subtitle Text(255)", u"ProfileID, Subtitle", u""},
    {u"AudioFormats",
     u"ProfileID Text(255)!, OrderPos Integer!, Language Text(255), Compression Text(255), "
     u"Channels Text(255)",
     u"ProfileID, OrderPos", u""},
    {u"Reviews", u"ProfileID Text(255), Film Integer, Video Integer, Audio Integer, Extras Integer", u"ProfileID", u""},
    {u"Currencies", u"CurrencyID Text(255)!, CurrencyName Text(255), CurrencySymbol Text(255)", u"CurrencyID", u""},
    {u"Retailers", u"Name Text(255), Type Text(255), Website Text(255)", u"Name", u""},
    {u"SRPInfo", u"ProfileID Text(255), SRPValue Real, CurrencyID Text(5)", u"ProfileID",
     u"CurrencyID Currencies.CurrencyID"},
    {u"PurchaseInfo",
     u"ProfileID Text(255), Price Real, CurrencyID Text(5), PurchaseDate Date, PurchasePlace Text(255)", u"ProfileID",
     u"CurrencyID Currencies.CurrencyID, PurchasePlace Retailers.Name"},
    {u"Users", u"UserID Text(255)!, PhoneNumber Text(255), EmailAddress Text(255), IsActive Boolean", u"UserID", u""},
    {u"LoanInfo", u"ProfileID Text(255), UserID Text(255)!, LoanedDue Date", u"ProfileID", u"UserID Users.UserID"},
    {u"Events",
     u"EventID Integer!, ProfileID Text(255)!, UserID Text(255)!, EventType Text(255), "
     u"EventTimeStamp Date, Comment Text(255)",
     u"EventID", u"UserID Users.UserID"},
    {u"Tags", u"ProfileID Text(255), TagName Text(255)!, FullyQualifiedName Text(255)", u"ProfileID, TagName", u""},
    {u"AdditionalInfo", u"ProfileID Text(255)!, InfoName Text(255), InfoValue Memo, InfoType Text(255)",
     u"ProfileID, InfoName", u""},
    {u"MetaInfo", u"ProfileID Text(255)!, InfoName Text(255), InfoValue Memo", u"ProfileID, InfoName", u""},
    {u"Alias", u"AliasName Text(255)!, CommonName Text(255)!, BirthYear Integer, Comment Text(255)",
     u"AliasName, BirthYear", u""},
    {u"Awards",
     u"Award Text(255)!, Year Integer!, Category Text(255), MovieTitle Text(255)!, Won Boolean, "
     u"Nominee Text(255), MovieYear Integer",
     u"", u""},
    {u"SQLQueries", u"Name Text(255)!, SQLStatement Memo!", u"Name", u""},
    {u"Translation", u"OriginalString Text(255), UserString Text(255)!", u"OriginalString", u""},
};

struct ExpectedIndex {
    QStringView name;
    QStringView table;
    QStringView columns;
    bool unique;
};

constexpr ExpectedIndex kExpectedIndexes[] = {
    {u"idx_AdditionalInfo_ProfileIDInfoName", u"AdditionalInfo", u"ProfileID, InfoName", true},
    {u"idx_MetaInfo_ProfileIDInfoName", u"MetaInfo", u"ProfileID, InfoName", true},
    {u"idx_Episodes_EpisodeID", u"Episodes", u"EpisodeID", true},
    {u"idx_Episodes_SeriesIDSeason", u"Episodes", u"SeriesID, Season", false},
    {u"idx_Alias_AliasName", u"Alias", u"AliasName, BirthYear", true},
    {u"idx_Alias_CommonName", u"Alias", u"CommonName", false},
    {u"idx_AudioFormats_ProfileID", u"AudioFormats", u"ProfileID", false},
    {u"idx_BoxSet_BoxsetID", u"BoxSet", u"BoxSetID", false},
    {u"idx_BoxSet_ChildID", u"BoxSet", u"ChildID", true},
    {u"idx_CastCrew_ProfileID", u"CastCrew", u"ProfileID", false},
    {u"idx_CastCrew_Name", u"CastCrew", u"Name", false},
    {u"idx_Discs_ProfileID", u"Discs", u"ProfileID", false},
    {u"idx_Events_ProfileID", u"Events", u"ProfileID", false},
    {u"idx_Events_EventID", u"Events", u"EventID", true},
    {u"idx_Features_ProfileID", u"Features", u"ProfileID", false},
    {u"idx_Genres_ProfileID", u"Genres", u"ProfileID", false},
    {u"idx_LoanInfo_ProfileID", u"LoanInfo", u"ProfileID", true},
    {u"idx_Locks_ProfileID", u"Locks", u"ProfileID", false},
    {u"idx_Profile2Episodes_ProfileID", u"Profile2Episodes", u"ProfileID", false},
    {u"idx_Profile2Episodes_EpisodeID", u"Profile2Episodes", u"EpisodeID", false},
    {u"idx_Profiles_ProfileID", u"Profiles", u"ProfileID", true},
    {u"idx_PurchaseInfo_ProfileID", u"PurchaseInfo", u"ProfileID", true},
    {u"idx_Regions_ProfileID", u"Regions", u"ProfileID", false},
    {u"idx_Reviews_ProfileID", u"Reviews", u"ProfileID", true},
    {u"idx_SRPInfo_ProfileID", u"SRPInfo", u"ProfileID", true},
    {u"idx_Studios_ProfileID", u"Studios", u"ProfileID", false},
    {u"idx_Subtitles_ProfileID", u"Subtitles", u"ProfileID", false},
    {u"idx_Tags_ProfileID", u"Tags", u"ProfileID", false},
    {u"idx_Translation_OriginalString", u"Translation", u"OriginalString", true},
    {u"idx_Translation_UserString", u"Translation", u"UserString", false},
    {u"idx_TVCastCrew_EpisodeID", u"TVCastCrew", u"EpisodeID", false},
    {u"idx_TVCastCrew_Name", u"TVCastCrew", u"Name", false},
    {u"idx_TVSeries_SeriesID", u"TVSeries", u"SeriesID", true},
    {u"idx_Users_UserID", u"Users", u"UserID", true},
    {u"idx_VideoFormat_ProfileID", u"VideoFormat", u"ProfileID", true},
    {u"idx_Awards_MovieTitle_Year", u"Awards", u"MovieTitle, Year", false},
    {u"idx_Awards_Nominee", u"Awards", u"Nominee", false},
};

QString KindName(const sql::ColumnInfo &column) {
    switch (column.kind) {
    case sql::Kind::Text:
        return QStringLiteral("Text(%1)").arg(column.length);
    case sql::Kind::Memo:
        return QStringLiteral("Memo");
    case sql::Kind::Integer:
        return QStringLiteral("Integer");
    case sql::Kind::Real:
        return QStringLiteral("Real");
    case sql::Kind::Date:
        return QStringLiteral("Date");
    case sql::Kind::Boolean:
        return QStringLiteral("Boolean");
    default:
        return QStringLiteral("?");
    }
}

QString ColumnTexts(const sql::TableInfo &table) {
    QStringList texts;
    for (const sql::ColumnInfo &column : table.columns) {
        texts << column.name + u' ' + KindName(column) + (column.not_null ? QStringLiteral("!") : QString());
    }
    return texts.join(QStringLiteral(", "));
}

QString ReferenceTexts(const sql::TableInfo &table) {
    QStringList texts;
    for (const sql::ReferenceInfo &reference : table.references) {
        texts << reference.columns.join(u'+') + u' ' + reference.parent_table + u'.' +
                     reference.parent_columns.join(u'+');
    }
    return texts.join(QStringLiteral(", "));
}

class SchemaTest : public CollectionTest {
protected:
    void SetUp() override { Create(); }
};

} // namespace

TEST_F(SchemaTest, EveryTableHasItsColumnsKeyAndReferences) {
    for (const ExpectedTable &expected : kExpectedTables) {
        SCOPED_TRACE(expected.name.toString().toStdString());
        const sql::TableInfo *table = session.Database->FindTable(expected.name);
        ASSERT_TRUE(table);
        EXPECT_EQ(ColumnTexts(*table), expected.columns);
        EXPECT_EQ(ReferenceTexts(*table), expected.references);
        const sql::IndexInfo *key = table->PrimaryKey();
        EXPECT_EQ(key ? key->columns.join(QStringLiteral(", ")) : QString(), expected.key);
    }
}

TEST_F(SchemaTest, TablesComeInTheOrderOfTheirMaking) {
    QStringList names;
    for (const sql::TableInfo &table : session.Database->GetCatalogue().Tables()) {
        names << table.name;
    }
    EXPECT_EQ(
        names.join(u' '),
        QStringLiteral("Alias Awards SQLQueries Currencies Users Profile2Episodes Translation DbInfo AdditionalInfo "
                       "MetaInfo Events Retailers Profiles TVSeries CastCrew Episodes TVCastCrew BoxSet Discs Regions "
                       "Locks VideoFormat Features Studios Genres Subtitles AudioFormats Reviews SRPInfo PurchaseInfo "
                       "LoanInfo Tags"));
}

TEST_F(SchemaTest, EveryIndexIsThere) {
    for (const ExpectedIndex &expected : kExpectedIndexes) {
        SCOPED_TRACE(expected.name.toString().toStdString());
        const sql::TableInfo *table = session.Database->FindTable(expected.table);
        ASSERT_TRUE(table);
        const sql::IndexInfo *index = table->FindIndex(expected.name);
        ASSERT_TRUE(index);
        EXPECT_EQ(index->columns.join(QStringLiteral(", ")), expected.columns);
        EXPECT_EQ(index->unique, expected.unique);
        EXPECT_FALSE(index->primary);
    }
}

TEST_F(SchemaTest, IndexesAreMadeInTheOrderOfTheList) {
    const std::span<const IndexSpec> made = SchemaIndexes();
    ASSERT_EQ(made.size(), std::size(kExpectedIndexes));
    for (size_t i = 0; i < made.size(); ++i) {
        EXPECT_EQ(made[i].name, kExpectedIndexes[i].name) << i;
    }
}

TEST_F(SchemaTest, OnlyAwardsHasNoKey) {
    for (const sql::TableInfo &table : session.Database->GetCatalogue().Tables()) {
        EXPECT_EQ(table.PrimaryKey() == nullptr, table.name == u"Awards") << table.name.toStdString();
    }
}

TEST_F(SchemaTest, ANewDatabaseTellsThePresentVersionAndNothingElse) {
    EXPECT_EQ(Rows(u"SELECT InfoName, InfoValue, Comment FROM DbInfo"), QStringList(QStringLiteral("Schema|90|")));
}

} // namespace ostrand
