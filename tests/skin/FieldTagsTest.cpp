#include "SkinFixture.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FieldTags : public SkinTest {};

TEST_F(FieldTags, ShowTheColumnAsItStands) {
    const struct {
        QString column, text;
    } cases[] = {
        {u"ColNo"_s, u"7"_s},  {u"Medium"_s, u"DVD"_s}, {u"ProdYear"_s, u"1999"_s}, {u"SortTitle"_s, u"Amber, The"_s},
        {u"EasterEggs"_s, {}}, // NULL
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Produce(GetField, Row(), c.column), c.text) << qPrintable(c.column);
    }
    SetColumn(u"Key_1"_s, u"SortTitle"_s, u"<b>&\r\n"_s);
    EXPECT_EQ(Produce(GetField, Row(), u"SortTitle"_s), u"<b>&\r\n"_s) << "nothing is escaped";
}

TEST_F(FieldTags, AreTranslatedOnRequest) {
    TranslateAs(u"Italy"_s, u"Italien"_s);
    const struct {
        const char *name;
        QString tag, text;
    } cases[] = {
        {"without the attribute", u"<DP NAME=\"X\">"_s, u"Italy"_s},
        {"yes", u"<DP NAME=\"X\" Translate=\"yes\">"_s, u"Italien"_s},
        {"True", u"<DP NAME=\"X\" Translate=\"True\">"_s, u"Italien"_s},
        {"a number", u"<DP NAME=\"X\" Translate=\"1\">"_s, u"Italien"_s},
        {"no", u"<DP NAME=\"X\" Translate=\"no\">"_s, u"Italy"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Produce(GetTranslatedField, Row(), u"CountryOfOrigin"_s, c.tag), c.text) << c.name;
    }
    EXPECT_THROW(Produce(GetTranslatedField, Row(), u"CountryOfOrigin"_s, u"<DP NAME=\"X\" Translate=\"maybe\">"_s),
                 SkinFailure);
}

TEST_F(FieldTags, ShowLineEndsAsBreaks) {
    SetColumn(u"Key_1"_s, u"Overview"_s, u"One\r\nTwo\nThree"_s);
    EXPECT_EQ(Produce(GetFieldWithBreaks, Row(), u"Overview"_s), u"One<br/>Two\nThree"_s);
    EXPECT_EQ(Produce(GetFieldWithBreaks, Row(u"E1"_s, true), u"Overview"_s), u"Rain"_s);
}

TEST_F(FieldTags, NotesMayNameFilesBesideTheProgram) {
    SetColumn(u"Key_1"_s, u"Notes"_s, u"See\r\n<img src=\"..\\Images\\a.jpg\">, ../b"_s);
    const QString folder = PathToFileUrl(session.DataFolder + u'/');
    EXPECT_EQ(Produce(GetNotes, Row(), u"Notes"_s),
              u"See<br/><img src=\""_s + folder + u"Images\\a.jpg\">, "_s + folder + u'b');
    EXPECT_EQ(Produce(GetNotes, Row(u"E1"_s, true), u"Notes"_s), u"Wind"_s);
}

TEST_F(FieldTags, OfAMissingColumnOrRowFail) {
    EXPECT_THROW(Produce(GetField, Row(u"E1"_s, true), u"ColNo"_s), sql::SqlError);
    EXPECT_THROW(Produce(GetField, Row(u"Key_none"_s), u"ColNo"_s), sql::SqlError);
}

TEST_F(FieldTags, AnEpisodesRowHasTheNamesOfAProfiles) {
    const sql::Recordset row = Row(u"E1"_s, true);
    EXPECT_EQ(row.Text(u"Title"), u"Storm"_s);
    EXPECT_EQ(row.Text(u"OriginalTitle"), u"Sturm"_s);
    EXPECT_EQ(row.Text(u"Released"), u"2001-03-04"_s);
    EXPECT_EQ(row.Text(u"EpisodeID"), u"E1"_s);
}

} // namespace
} // namespace ostrand
