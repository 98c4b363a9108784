#include "database/Schema.h"

#include <QtGlobal>

namespace ostrand {

namespace {

constexpr TableSpec kBeforeVersion[] = {
    {u"Alias", u"AliasName varchar NOT NULL, CommonName varchar NOT NULL, BirthYear integer, Comment varchar, "
               u"PRIMARY KEY (AliasName, BirthYear)"},
    {u"Awards", u"Award varchar NOT NULL, Year integer NOT NULL, Category varchar, MovieTitle varchar NOT NULL, "
                u"Won yesno, Nominee varchar, MovieYear integer"},
    {u"SQLQueries", u"Name varchar NOT NULL UNIQUE PRIMARY KEY, SQLStatement memo NOT NULL"},
    {u"Currencies", u"CurrencyID varchar NOT NULL UNIQUE PRIMARY KEY, CurrencyName varchar, CurrencySymbol varchar"},
    {u"Users", u"UserID varchar NOT NULL UNIQUE PRIMARY KEY, PhoneNumber varchar, EmailAddress varchar, "
               u"IsActive yesno"},
    {u"Profile2Episodes",
     u"ProfileID varchar NOT NULL, EpisodeID varchar NOT NULL, PRIMARY KEY (ProfileID, EpisodeID)"},
    {u"Translation", u"OriginalString varchar UNIQUE PRIMARY KEY, UserString varchar NOT NULL"},
    {u"DbInfo", u"InfoName varchar PRIMARY KEY, InfoValue memo, Comment varchar"},
};

constexpr TableSpec kAfterVersion[] = {
    {u"AdditionalInfo", u"ProfileID varchar NOT NULL, InfoName varchar, InfoValue memo, InfoType varchar, "
                        u"PRIMARY KEY (ProfileID, InfoName)"},
    {u"MetaInfo", u"ProfileID varchar NOT NULL, InfoName varchar, InfoValue memo, "
                  u"PRIMARY KEY (ProfileID, InfoName)"},
    {u"Events", u"EventID long PRIMARY KEY NOT NULL, ProfileID varchar NOT NULL, "
                u"UserID varchar NOT NULL REFERENCES Users(UserID), EventType varchar, EventTimeStamp date, "
                u"Comment varchar"},
    {u"Retailers", u"Name varchar PRIMARY KEY, Type varchar, Website varchar"},
};

constexpr TableSpec kProfileTables[] = {
    {u"Profiles", u"ProfileID varchar NOT NULL UNIQUE PRIMARY KEY, Medium varchar, Title varchar NOT NULL, "
                  u"OriginalTitle varchar, SortTitle varchar, OriginalSortTitle varchar, CustomTitle varchar, "
                  u"CustomSortTitle varchar, Description varchar, ColNo varchar, ColType varchar, UPC varchar, "
                  u"ProfileTimestamp date, Rating varchar, RatingSystem varchar, RatingDetails varchar, "
                  u"ProdYear integer, Released date, Runtime integer, CaseType varchar, Overview memo, Notes memo, "
                  u"Eastereggs memo, LastEdited date, WishListPriority integer, DataSource varchar, "
                  u"Locality varchar, CountryOfOrigin varchar, CountAs integer, MD5 varchar"},
    {u"TVSeries", u"SeriesID varchar NOT NULL UNIQUE PRIMARY KEY, OriginalTitle varchar NOT NULL, "
                  u"Title varchar NOT NULL, SortTitle varchar, OriginalSortTitle varchar"},
    {u"CastCrew", u"Name varchar NOT NULL, Role varchar, ProfileID varchar NOT NULL, Position integer NOT NULL, "
                  u"BirthYear integer, IsUncredited yesno, IsVoice yesno, IsCast yesno, IsCreditOnly yesno, "
                  u"PRIMARY KEY (ProfileID, Name, Position, IsCast)"},
    {u"Episodes", u"EpisodeID varchar NOT NULL UNIQUE PRIMARY KEY, EpisodeNo varchar, EpisodeTitle varchar, "
                  u"EpisodeOriginalTitle varchar, Season varchar, Overview memo, Runtime integer, Rating varchar, "
                  u"RatingSystem varchar, RatingDetails varchar, Airdate date, Notes memo, "
                  u"SeriesID varchar NOT NULL"},
    {u"TVCastCrew", u"Name varchar NOT NULL, Role varchar, Position integer NOT NULL, EpisodeID varchar NOT NULL, "
                    u"BirthYear integer, IsUncredited yesno, IsVoice yesno, IsCast yesno, IsRegular yesno, "
                    u"IsCreditOnly yesno, PRIMARY KEY (EpisodeID, Name, Position, IsCast)"},
    {u"BoxSet", u"ChildID varchar PRIMARY KEY UNIQUE NOT NULL, BoxSetID varchar NOT NULL"},
    {u"Discs", u"ProfileID varchar NOT NULL, DiscNo integer NOT NULL, Description varchar, DiscIDSideA varchar, "
               u"LabelSideA varchar, DescriptionSideB varchar, DiscIDSideB varchar, LabelSideB varchar, "
               u"DualSided yesno, DualLayered yesno, DualLayeredSideB yesno, Flipper yesno, Location varchar, "
               u"Slot varchar, PRIMARY KEY (ProfileID, DiscNo)"},
    {u"Regions", u"ProfileID varchar NOT NULL, Region integer NOT NULL, PRIMARY KEY (ProfileID, Region)"},
    {u"Locks", u"ProfileID varchar NOT NULL, LockName varchar, PRIMARY KEY (ProfileID, LockName)"},
    {u"VideoFormat", u"ProfileID varchar NOT NULL PRIMARY KEY, AspectRatio varchar(4), VideoStandard varchar, "
                     u"LetterBox yesno, PanAndScan yesno, FullFrame yesno, F16X9 yesno"},
    {u"Features", u"ProfileID varchar NOT NULL, Feature varchar, PRIMARY KEY (ProfileID, Feature)"},
    {u"Studios", u"ProfileID varchar NOT NULL, Studio varchar NOT NULL, Type varchar NOT NULL, "
                 u"PRIMARY KEY (ProfileID, Studio, Type)"},
    {u"Genres", u"ProfileID varchar NOT NULL, Genre varchar, PRIMARY KEY (ProfileID, Genre)"},
    {u"Subtitles", u"ProfileID varchar NOT NULL, Subtitle varchar, PRIMARY KEY (ProfileID, Subtitle)"},
    {u"AudioFormats", u"ProfileID varchar NOT NULL, OrderPos integer NOT NULL, Language varchar, Compression varchar, "
                      u"Channels varchar, PRIMARY KEY (ProfileID, OrderPos)"},
    {u"Reviews", u"ProfileID varchar PRIMARY KEY, Film integer, Video integer, Audio integer, Extras integer"},
    {u"SRPInfo", u"ProfileID varchar PRIMARY KEY, SRPValue NUMERIC, "
                 u"CurrencyID varchar(5) REFERENCES Currencies(CurrencyID)"},
    {u"PurchaseInfo", u"ProfileID varchar PRIMARY KEY, Price NUMERIC, "
                      u"CurrencyID varchar(5) REFERENCES Currencies(CurrencyID), PurchaseDate date, "
                      u"PurchasePlace varchar REFERENCES Retailers(Name)"},
    {u"LoanInfo", u"ProfileID varchar PRIMARY KEY, UserID varchar NOT NULL REFERENCES Users(UserID), "
                  u"LoanedDue date"},
    {u"Tags", u"ProfileID varchar, TagName varchar NOT NULL, FullyQualifiedName varchar, "
              u"PRIMARY KEY (ProfileID, TagName)"},
};

constexpr IndexSpec kIndexes[] = {
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

} // namespace

QString TableSpec::CreateStatement() const {
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(name, columns);
}

QString IndexSpec::CreateStatement() const {
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(unique ? QStringLiteral("UNIQUE ") : QString(), name, table, columns);
}

std::span<const TableSpec> TablesBeforeVersion() {
    return kBeforeVersion;
}

std::span<const TableSpec> TablesAfterVersion() {
    return kAfterVersion;
}

std::span<const TableSpec> ProfileTables() {
    return kProfileTables;
}

std::span<const IndexSpec> SchemaIndexes() {
    return kIndexes;
}

const TableSpec &SchemaTable(QStringView name) {
    for (const auto tables : {TablesBeforeVersion(), TablesAfterVersion(), ProfileTables()}) {
        for (const TableSpec &table : tables) {
            if (table.name == name) {
                return table;
            }
        }
    }
    qFatal("The schema has no table of that name.");
}

const IndexSpec &SchemaIndex(QStringView name) {
    for (const IndexSpec &index : kIndexes) {
        if (index.name == name) {
            return index;
        }
    }
    qFatal("The schema has no index of that name.");
}

} // namespace ostrand
