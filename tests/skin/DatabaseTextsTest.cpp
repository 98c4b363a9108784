// Texts of the database reach a page as they stand, whatever is in them, and an episode's rows are its own.

#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// What a page could take for something else.
const QString kTexts[] = {
    u"<b>bold</b> & &amp; plain"_s,
    u"</script><script>x()</script><!-- -->"_s,
    u"\"double\" 'single' `back`"_s,
    u"<DP NAME=\"TITLE\"/>"_s,
    u"back\\slash %20 %1 ${x}"_s,
    u"line\nfeed\ttab"_s,
    u"separators \u2028 and \u2029"_s,
    u"Z\u00FCrich \u4E2D \U0001F3AC"_s,
    u" blanks around "_s,
    u"yes"_s,
    u"BREAK"_s,
};

class DatabaseTextsTest : public ProfileTagTest {
protected:
    static QString Quoted(const QString &text) { return u'\'' + EscapeSql(text) + u'\''; }
    void AddRowTo(const QString &key, const QString &table, const QString &columns, const QString &values) {
        ASSERT_EQ(Run(u"INSERT INTO %1 (ProfileID, %2) VALUES (%3, %4)"_s.arg(table, columns, Quoted(key)).arg(values)),
                  1)
            << qPrintable(table);
    }
};

TEST_F(DatabaseTextsTest, ColumnsOfTheRow) {
    const struct {
        const char *name;
        TagProducer producer;
        QString column;
        QString attributes;
    } cases[] = {
        {"field", GetField, u"SortTitle"_s, {}},
        {"translated field", GetTranslatedField, u"CaseType"_s, u"Translate=\"YES\""_s},
        {"breaks", GetFieldWithBreaks, u"Overview"_s, {}},
        {"notes", GetNotes, u"Notes"_s, {}},
        {"title", GetDPTitle, u"Title"_s, {}},
        {"title's stand-in", GetDPTitle, u"OriginalTitle"_s, {}},
        {"description", GetDPTitle, u"Description"_s, u"ShowTitle=\"NO\" ShowDesc=\"YES\""_s},
        {"original title", GetDPOriginalTitle, u"OriginalTitle"_s, {}},
        {"custom title", GetOSVCustomTitle, u"CustomTitle"_s, {}},
        {"original sort title", GetOSVOriginalSortTitle, u"OriginalSortTitle"_s, {}},
        {"rating", GetDPRating, u"Rating"_s, {}},
        {"ownership", GetDPOwnership, u"ColType"_s, {}},
        {"number", GetDPUPC, u"UPC"_s, {}},
    };
    for (const auto &c : cases) {
        for (const QString &text : kTexts) {
            SetProfile(c.column + u" = "_s + Quoted(text));
            EXPECT_EQ(Produce(c.producer, c.attributes, c.column), text) << c.name;
        }
        for (const QString &nothing : {u"''"_s, u"NULL"_s}) {
            SetProfile(c.column + u" = "_s + (c.column == u"Title"_s ? u"''"_s : nothing));
            EXPECT_EQ(Produce(c.producer, c.attributes, c.column), QString()) << c.name;
        }
    }
}

TEST_F(DatabaseTextsTest, RowsOfTables) {
    const struct {
        const char *name;
        TagProducer producer;
        QString argument;
        QString attributes;
        QString table;
        QString columns;
        QString values; ///< with %1 for the text
        QString shown;
    } cases[] = {
        {"genre", GetDPList, u"Genres"_s, {}, u"Genres"_s, u"Genre"_s, u"%1"_s, u"%1"_s},
        {"feature", GetDPList, u"Features"_s, {}, u"Features"_s, u"Feature"_s, u"%1"_s, u"%1"_s},
        {"subtitle", GetDPList, u"Subtitles"_s, {}, u"Subtitles"_s, u"Subtitle"_s, u"%1"_s, u"%1"_s},
        {"studio", GetDPStudios, {}, {}, u"Studios"_s, u"Studio, Type"_s, u"%1, 'T'"_s, u"<NOBR>%1</NOBR>"_s},
        {"type of a studio",
         GetDPStudios,
         {},
         u"ShowType=\"YES\""_s,
         u"Studios"_s,
         u"Studio, Type"_s,
         u"'S', %1"_s,
         u"<NOBR>S (%1)</NOBR>"_s},
        {"media company",
         GetDPStudios,
         u"Media Company"_s,
         {},
         u"Studios"_s,
         u"Studio, Type"_s,
         u"%1, 'Media Company'"_s,
         u"<NOBR>%1</NOBR>"_s},
        {"publisher", GetDPMediaPublisher, {}, {}, u"Studios"_s, u"Studio, Type"_s, u"%1, 'Media Company'"_s, u"%1"_s},
        {"tag", GetOSVTags, {}, {}, u"Tags"_s, u"TagName"_s, u"%1"_s, u"<NOBR>%1</NOBR>"_s},
        {"tag with its parents",
         GetOSVTags,
         {},
         u"UseFullName=\"YES\" RemoveParents=\"YES\""_s,
         u"Tags"_s,
         u"TagName, FullyQualifiedName"_s,
         u"'T', %1"_s,
         u"<NOBR>%1</NOBR>"_s},
        {"video standard", GetDPVidStandard, {}, {}, u"VideoFormat"_s, u"VideoStandard"_s, u"%1"_s, u"%1"_s},
        {"language",
         GetDPAudioFormats,
         {},
         {},
         u"AudioFormats"_s,
         u"OrderPos, Language, Compression"_s,
         u"1, %1, 'C'"_s,
         u"%1: C"_s},
        {"compression",
         GetDPAudioFormats,
         {},
         {},
         u"AudioFormats"_s,
         u"OrderPos, Language, Compression"_s,
         u"1, 'L', %1"_s,
         u"L: %1"_s},
        {"channels",
         GetDPAudioFormats,
         {},
         {},
         u"AudioFormats"_s,
         u"OrderPos, Language, Compression, Channels"_s,
         u"1, 'L', 'C', %1"_s,
         u"L: C %1"_s},
        {"disc",
         GetDPDiscs,
         {},
         u"ShowDescriptions=\"YES\""_s,
         u"Discs"_s,
         u"DiscNo, Description"_s,
         u"1, %1"_s,
         u"%1"_s},
        {"label", GetDPDiscs, {}, u"ShowLabels=\"YES\""_s, u"Discs"_s, u"DiscNo, LabelSideA"_s, u"1, %1"_s, u"%1"_s},
    };
    for (const auto &c : cases) {
        for (const QString &text : kTexts) {
            Clear(c.table);
            AddRow(c.table, c.columns, QString(c.values).replace(u"%1"_s, Quoted(text)));
            EXPECT_EQ(Produce(c.producer, c.attributes, c.argument), QString(c.shown).replace(u"%1"_s, text)) << c.name;
        }
    }
}

TEST_F(DatabaseTextsTest, NamesOfPeople) {
    for (const QString &text : kTexts) {
        for (const QString &table : {u"CastCrew"_s, u"LoanInfo"_s, u"Events"_s, u"Users"_s}) {
            Clear(table);
        }
        Run(u"INSERT INTO Users (UserID) VALUES (%1)"_s.arg(Quoted(text)));
        AddRow(u"LoanInfo"_s, u"UserID"_s, Quoted(text));
        AddRow(u"Events"_s, u"EventID, EventType, UserID"_s, u"1, 'Watched', "_s + Quoted(text));
        EXPECT_EQ(Produce(GetDPLoanedTo), text);
        EXPECT_EQ(Produce(GetDPLastWatched, {}, u"UserID"_s), text);

        const QString ann = u"<A HREF=\"blank.html?actorid=Ann|\">Ann</A>"_s;
        const QString role = u"Position, Name, Role, IsCast"_s;
        AddRow(u"CastCrew"_s, role, u"1, 'Ann', "_s + Quoted(text) + u", Yes"_s);
        AddRow(u"CastCrew"_s, role, u"2, 'Ann', "_s + Quoted(text) + u", No"_s);
        EXPECT_EQ(Produce(GetDPCast, u"ShowRoles=\"YES\" RoleDivider=\":\""_s),
                  QString(u"<NOBREAK>"_s + ann + u':' + text + u"</NOBREAK>"_s));
        EXPECT_EQ(Produce(GetDPStandardCrew, u"ShowRoles=\"YES\" RoleDivider=\":\""_s, u"Other"_s),
                  QString(u"<NOBREAK>"_s + ann + u':' + text + u"</NOBREAK>"_s));
        Clear(u"CastCrew"_s);
        AddRow(u"CastCrew"_s, role, u"1, "_s + Quoted(text) + u", '[Divider]', Yes"_s);
        AddRow(u"CastCrew"_s, role, u"2, "_s + Quoted(text) + u", '[Divider]', No"_s);
        EXPECT_EQ(Produce(GetDPCast), QString(u"<NOBREAK>"_s + text + u"</NOBREAK>"_s));
        EXPECT_EQ(Produce(GetDPStandardCrew, {}, u"Art"_s), QString(u"<NOBREAK>"_s + text + u"</NOBREAK>"_s));
    }
}

TEST_F(DatabaseTextsTest, AnEpisodeHasRowsOfItsOwn) {
    const QString key = u"OSVE'1"_s;
    for (const QString &list : {u"Genre"_s, u"Feature"_s, u"Subtitle"_s}) {
        AddRow(list + u's', list, u"'of the profile'"_s);
        AddRowTo(key, list + u's', list, u"'of the episode'"_s);
        EXPECT_EQ(ProduceForEpisode(GetDPList, {}, list + u's'), u"of the episode"_s);
    }
    Run(u"INSERT INTO Users (UserID) VALUES ('Bo')");
    AddRowTo(key, u"Studios"_s, u"Studio, Type"_s, u"'Alder', 'Film'"_s);
    AddRowTo(key, u"Studios"_s, u"Studio, Type"_s, u"'Press', 'Media Company'"_s);
    AddRowTo(key, u"Tags"_s, u"TagName"_s, u"'Seen'"_s);
    AddRowTo(key, u"Locks"_s, u"LockName"_s, u"'Cast'"_s);
    AddRowTo(key, u"VideoFormat"_s, u"VideoStandard, F16X9"_s, u"'PAL', Yes"_s);
    AddRowTo(key, u"AudioFormats"_s, u"OrderPos, Language, Compression, Channels"_s, u"1, 'Dutch', 'DTS-HD', 'Mono'"_s);
    AddRowTo(key, u"Reviews"_s, u"Film"_s, u"0"_s);
    AddRowTo(key, u"Events"_s, u"EventID, UserID, EventType, EventTimeStamp"_s, u"1, 'Bo', 'Watched', #2020-01-02#"_s);
    const struct {
        const char *name;
        TagProducer producer;
        QString argument;
        QString text;
    } cases[] = {
        {"studios", GetDPStudios, {}, u"<NOBR>Alder</NOBR>"_s},
        {"media companies", GetDPStudios, u"Media Company"_s, u"<NOBR>Press</NOBR>"_s},
        {"publisher", GetDPMediaPublisher, {}, u"Press"_s},
        {"tags", GetOSVTags, {}, u"<NOBR>Seen</NOBR>"_s},
        {"lock", GetDPLock, u"Cast"_s, u"Locked"_s},
        {"widescreen", GetDPWidescreen, {}, u"Anamorphic Widescreen"_s},
        {"video standard", GetDPVidStandard, {}, u"PAL"_s},
        {"video formats", GetDPVidFormats, {}, u"Anamorphic Widescreen"_s},
        {"audio formats", GetDPAudioFormats, {}, u"Dutch: DTS-HD 1"_s},
        {"review",
         GetDPReview,
         {},
         u"<TABLE CELLPADDING=0 CELLSPACING=0 WIDTH=100 HEIGHT=20 BORDER=1 BGCOLOR=\"\"><TR>"
         "<TD WIDTH=100></TD></TR></TABLE>"_s},
        {"watched by", GetDPLastWatched, u"UserID"_s, u"Bo"_s},
        {"watched on", GetDPLastWatched, u"EventTimestamp"_s, u"2020-01-02"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(ProduceForEpisode(c.producer, {}, c.argument), c.text) << c.name;
    }
}

} // namespace
} // namespace ostrand
