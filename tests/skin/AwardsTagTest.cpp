// The awards of a page.
#include "ProducerFixture.h"
#include "skin/TextConversion.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class AwardsTagTest : public ProducerTest {
protected:
    void SetUp() override {
        ProducerTest::SetUp();
        Run(u"UPDATE Profiles SET ProdYear = 1999");
    }
    void Award(const QString &award, int year, const QString &category, const QString &nominee, bool won = false,
               const QString &title = u"Quiet Harbour"_s) {
        const auto quoted = [](const QString &text) { return u'\'' + EscapeSql(text) + u'\''; };
        Run(QString(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Nominee, Won) VALUES ("_s +
                    QStringList({quoted(award), QString::number(year), quoted(category), quoted(title), quoted(nominee),
                                 won ? u"true"_s : u"false"_s})
                        .join(u',') +
                    u')'));
    }
    static QString Link(const QString &name) {
        return u"<A HREF=\"blank.html?actorid="_s + name + u"|0\">"_s + name + u"</A>"_s;
    }
    /// The years of the awards that are found.
    QString Years(bool is_episode = false) {
        return Render(GetOSVAwards,
                      u"ShowAwardName=\"no\" ShowCategory=\"no\" ShowNominees=\"no\" Divider=\";\" SubDivider2=\"<>\" "
                      "SubDivider3=\"<>\""_s,
                      {}, is_episode)
            .remove(u"<><NOBR></NOBR><>"_s);
    }
    /// The names of one award's nominees.
    QString Nominees(const QString &nominee, const QString &attributes = {}) {
        Run(u"DELETE FROM Awards");
        Award(u"Gull"_s, 1999, u"Best"_s, nominee);
        const QString text =
            Render(GetOSVAwards, u"ShowAwardName=\"no\" ShowCategory=\"no\" ShowYear=\"no\" SubDivider2=\"|\" "
                                 "ColorNames=\"no\" "_s +
                                     attributes);
        EXPECT_TRUE(text.startsWith(u"<NOBR></NOBR>|"_s));
        return text.mid(14);
    }
};

TEST_F(AwardsTagTest, NothingFoundIsToldWhenATitleIsThere) {
    const QString attribute = u"IfNoAwards=\"none\""_s;
    EXPECT_EQ(Render(GetOSVAwards), QString());
    EXPECT_EQ(Render(GetOSVAwards, attribute), u"none"_s);
    EXPECT_EQ(Render(GetOSVAwards, attribute + u" GetAwardList=\"yes\""_s), u"none"_s);
    EXPECT_EQ(Render(GetOSVAwards, attribute, {}, kEpisode), u"none"_s);
    Run(u"DELETE FROM TVSeries");
    EXPECT_EQ(Render(GetOSVAwards, attribute, {}, kEpisode), u"none"_s);
    Run(u"UPDATE Profiles SET Title = ''");
    EXPECT_EQ(Render(GetOSVAwards, attribute), QString());
    Run(u"UPDATE Episodes SET EpisodeTitle = NULL");
    EXPECT_EQ(Render(GetOSVAwards, attribute, {}, kEpisode), QString());
}

TEST_F(AwardsTagTest, AFilmFindsTheCeremoniesOfItsYears) {
    for (const int year : {1997, 1998, 1999, 2000, 2001, 2002, 0}) {
        Award(u"Gull"_s, year, u"Best"_s, {});
    }
    Award(u"Gull"_s, 1999, u"Best"_s, {}, false, u"Quiet Harbour 2"_s);
    EXPECT_EQ(Years(), u"1998;1999;2000;2001"_s);
    for (const auto &unknown : {u"0"_s, u"NULL"_s}) {
        Run(QString(u"UPDATE Profiles SET ProdYear = "_s + unknown));
        EXPECT_EQ(Years(), u"0;1997;1998;1999;2000;2001;2002"_s);
    }
}

TEST_F(AwardsTagTest, TheOriginalTitleComesFirst) {
    Award(u"Gull"_s, 1999, u"Best"_s, {}, false, u"Stiller O'Hafen"_s);
    Award(u"Gull"_s, 2000, u"Best"_s, {});
    EXPECT_EQ(Years(), u"2000"_s);
    Run(u"UPDATE Profiles SET OriginalTitle = 'STILLER O''HAFEN'");
    EXPECT_EQ(Years(), u"1999"_s);
}

TEST_F(AwardsTagTest, AnEpisodeFindsItsSeriesAwardsThatNameIt) {
    Award(u"Gull"_s, 1980, u"Best"_s, u"\"Low Water\": Ann Lee"_s, false, u"Tideline"_s);
    Award(u"Gull"_s, 1981, u"Best"_s, u"\"High Water\": Ann Lee"_s, false, u"Tideline"_s);
    Award(u"Gull"_s, 1982, u"Best"_s, u"Bo for Ebbe's 5*"_s, false, u"Tideline"_s);
    Award(u"Gull"_s, 1983, u"Best"_s, u"\"Low Water\": Ann Lee"_s, false, u"Low Water"_s);
    Award(u"Gull"_s, 1984, u"Best"_s, u"\"Low Water\": Ann Lee"_s, false, u"Gezeiten"_s);
    EXPECT_EQ(Years(kEpisode), u"1980"_s);
    Run(u"UPDATE TVSeries SET OriginalTitle = 'Gezeiten'");
    EXPECT_EQ(Years(kEpisode), u"1984"_s);
    Run(u"UPDATE TVSeries SET OriginalTitle = ''");
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = 'Ebbe''s 5'");
    EXPECT_EQ(Years(kEpisode), u"1982"_s);
    // A title is a pattern as it stands.
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = '?igh w*r'");
    EXPECT_EQ(Years(kEpisode), u"1981"_s);
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = '[Pilot'");
    EXPECT_THROW(Years(kEpisode), sql::SqlError);
}

TEST_F(AwardsTagTest, AttributesShapeTheList) {
    Award(u"Gull"_s, 1999, u"Film"_s, u"Ann Lee"_s, true);
    Award(u"Gull"_s, 2000, u"Actor"_s, u"Bo Tarn & Cy"_s);
    Award(u"Tern's"_s, 1999, u"Film"_s, {}, true);
    folder.Write(u"heads/Cy.jpg"_s, "x");
    const QString image = u"<IMG SRC='"_s + PathToFileUrl(session.HeadshotPath + u"Cy.jpg"_s) + u"' WIDTH="_s;
    const QString ann = Link(u"Ann Lee"_s);
    const QString bo = Link(u"Bo Tarn"_s);
    const QString cy = Link(u"Cy"_s);
    const auto lines = [](const QStringList &entries) { return entries.join(u"<br/>"_s); };
    const QString plain = u"ColorNames=\"no\" "_s;
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {plain,
         lines({u"Gull - 2000 - Actor - <NOBR></NOBR> - "_s + bo + u", "_s + cy,
                u"Gull - 1999 - Film - <NOBR>X</NOBR> - "_s + ann, u"Tern's - 1999 - Film - <NOBR>X</NOBR> - "_s})},
        {u"ShowOnlyAward=\"Tern's\""_s, u"Tern's - 1999 - Film - <NOBR>X</NOBR> - "_s},
        {u"ShowOnlyAward=\"Heron\" IfNoAwards=\"none\""_s, u"none"_s},
        {u"ShowNominees=\"no\" IfWon=\"won\" IfNotWon=\"nominated\" Divider=\"; \""_s,
         u"Gull - 2000 - Actor - <NOBR>nominated</NOBR> - ; Gull - 1999 - Film - <NOBR>won</NOBR> - ; "
         "Tern's - 1999 - Film - <NOBR>won</NOBR> - "_s},
        {u"ShowNominees=\"no\" ShowOnlyAward=\"Tern's\" SubDivider1=\"1\" SubDivider2=\"2\" SubDivider3=\"3\" "
         "SubDivider4=\"4\""_s,
         u"Tern's119992Film3<NOBR>X</NOBR>4"_s},
        // Without the name the year still has the second divider.
        {u"ShowNominees=\"no\" ShowOnlyAward=\"Tern's\" SubDivider1=\"1\" SubDivider2=\"2\" SubDivider3=\"3\" "
         "SubDivider4=\"4\" ShowAwardName=\"no\""_s,
         u"19992Film3<NOBR>X</NOBR>4"_s},
        {u"ShowNominees=\"no\" ShowOnlyAward=\"Tern's\" SubDivider1=\"1\" SubDivider2=\"2\" SubDivider3=\"3\" "
         "SubDivider4=\"4\" ShowYear=\"no\""_s,
         u"Tern's1Film2<NOBR>X</NOBR>3"_s},
        {u"ShowNominees=\"no\" ShowOnlyAward=\"Tern's\" SubDivider1=\"1\" SubDivider2=\"2\" SubDivider3=\"3\" "
         "SubDivider4=\"4\" ShowCategory=\"no\""_s,
         u"Tern's119992<NOBR>X</NOBR>3"_s},
        {u"ShowOnlyAward=\"Tern's\" ShowYear=\"no\" ShowCategory=\"no\" ShowAwardName=\"no\" SubDivider2=\"2\""_s,
         u"<NOBR>X</NOBR>2"_s},
        {u"GetAwardList=\"yes\""_s, u"Gull<br/>Tern's"_s},
        {u"GetAwardList=\"yes\" Divider=\", \" ShowAwardName=\"no\" NameAwardOnce=\"yes\""_s, u"Gull, Tern's"_s},
        {u"GetAwardList=\"yes\" ShowOnlyAward=\"Gull\""_s, u"Gull"_s},
        {u"NameAwardOnce=\"yes\" ShowNominees=\"no\""_s,
         u"Gull - 2000 - Actor - <NOBR></NOBR> - <br/>1999 - Film - <NOBR>X</NOBR> - "
         "Tern's - 1999 - Film - <NOBR>X</NOBR> - "_s},
        {u"NameAwardOnce=\"yes\" NameOnlyOnceDivider=\"<hr/>\" ShowNominees=\"no\" Divider=\"; \""_s,
         u"Gull - 2000 - Actor - <NOBR></NOBR> - ; 1999 - Film - <NOBR>X</NOBR> - <hr/>"
         "Tern's - 1999 - Film - <NOBR>X</NOBR> - "_s},
        {u"NameAwardOnce=\"yes\" NameOnlyOnceDivider=\"<hr/>\" ShowNominees=\"no\" ShowAwardName=\"no\" "
         "ShowCategory=\"no\" ShowYear=\"no\" SubDivider2=\".\" Divider=\";\""_s,
         u"<NOBR></NOBR>.;<NOBR>X</NOBR>.<hr/><NOBR>X</NOBR>."_s},
        {u"NameOnlyOnceDivider=\"<hr/>\" GetAwardList=\"yes\""_s, u"Gull<br/>Tern's"_s},
        {plain + u"NomineesDivider=\" / \" ShowOnlyAward=\"gull\" ShowYear=\"no\" ShowCategory=\"no\""_s,
         lines({u"Gull - <NOBR></NOBR> - "_s + bo + u" / "_s + cy, u"Gull - <NOBR>X</NOBR> - "_s + ann})},
        {u"ShowOnlyAward=\"Gull\" ShowYear=\"no\" ShowCategory=\"no\" ShowAwardName=\"no\" ShowHeadshot=\"yes\""_s,
         lines({u"<NOBR></NOBR> - <A HREF=\"blank.html?actorid=Bo Tarn|0\"><FONT COLOR='#000080'>Bo</FONT> "
                "<FONT COLOR='#008000'>Tarn</FONT></A>, "_s +
                    image + u"30>  <A HREF=\"blank.html?actorid=Cy|0\"><FONT COLOR='#000080'>Cy</FONT></A>"_s,
                u"<NOBR>X</NOBR> - <A HREF=\"blank.html?actorid=Ann Lee|0\"><FONT COLOR='#000080'>Ann</FONT> "
                "<FONT COLOR='#008000'>Lee</FONT></A>"_s})},
        {plain + u"ShowOnlyAward=\"Gull\" ShowAwardName=\"no\" ShowCategory=\"no\" ShowHeadshot=\"yes\" "
                 "HeadshotRight=\"yes\" HeadshotWidth=\"12\""_s,
         lines({u"2000 - <NOBR></NOBR> - "_s + bo + u", "_s + cy + u' ' + image + u"12>"_s,
                u"1999 - <NOBR>X</NOBR> - "_s + ann})},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Render(GetOSVAwards, c.attributes), c.text) << qPrintable(c.attributes);
    }
}

TEST_F(AwardsTagTest, AnAwardCalledNoneCountsAsNamed) {
    Award(u"None"_s, 1999, u"Film"_s, {});
    Award(u"Tern"_s, 1999, u"Film"_s, {});
    EXPECT_EQ(Render(GetOSVAwards, u"NameAwardOnce=\"yes\" NameOnlyOnceDivider=\"<hr/>\" ShowNominees=\"no\""_s),
              u"1999 - Film - <NOBR></NOBR> - <br/>Tern - 1999 - Film - <NOBR></NOBR> - "_s);
}

TEST_F(AwardsTagTest, NomineesAreTakenApart) {
    const struct {
        QString nominee;
        QString text;
    } cases[] = {
        {{}, {}},
        {u"Ann Lee"_s, Link(u"Ann Lee"_s)},
        {u"Ann Lee, Bo Tarn; Cy and Dee"_s,
         Link(u"Ann Lee"_s) + u", "_s + Link(u"Bo Tarn"_s) + u", "_s + Link(u"Cy"_s) + u", "_s + Link(u"Dee"_s)},
        {u"Bo Tarn, Jr"_s, Link(u"Bo Tarn Jr"_s)},
        {u"Ann Lee (song)"_s, Link(u"Ann Lee"_s) + u" (song)"_s},
        {u"Ann Lee (song) (lyrics) more"_s, Link(u"Ann Lee"_s) + u" (song)"_s},
        {u"Ann Lee ()"_s, Link(u"Ann Lee"_s)},
        {u"Ann Lee (song"_s, Link(u"Ann Lee (song"_s)},
        {u"Ann Lee) (song"_s, Link(u"Ann Lee) (song"_s)},
        {u"Ann) Lee (song)"_s, Link(u"Ann) Lee"_s) + u" (song)"_s},
        {u"(song)"_s, Link({}) + u" (song)"_s},
        {u"A(song)"_s, Link({}) + u" (song)"_s},
        {u"\"Low Water\": Ann Lee"_s, u"\"Low Water\": "_s + Link(u"Ann Lee"_s)},
        {u"\"Low Water\": Ann Lee, Bo (grip)"_s,
         u"\"Low Water\": "_s + Link(u"Ann Lee"_s) + u", \"Low Water\": "_s + Link(u"Bo"_s) + u" (grip)"_s},
        {u"\"Low Water\":"_s, {}},
        {u"\"Low Water\": "_s, {}},
        {u"Song \"Low\": \"Deep\": Ann"_s, u"Song \"Low\": "_s + Link(u"\"Deep\": Ann"_s)},
        {u"Music: Ann Lee"_s, Link(u"Music: Ann Lee"_s)},
        {u"\"Low Water\" Ann"_s, Link(u"\"Low Water\" Ann"_s)},
        {u"Ann,"_s, Link(u"Ann"_s) + u", "_s + Link({})},
        {u"A|B 100% <b>O'Lee"_s, Link(u"A"_s) + u", "_s + Link(u"B 100% <b>O'Lee"_s)},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Nominees(c.nominee), c.text) << qPrintable(c.nominee);
    }
    EXPECT_EQ(Nominees(u"Ann, Bo"_s, u"NomineesDivider=\"BREAK\""_s), Link(u"Ann"_s) + u"<br/>"_s + Link(u"Bo"_s));
}

TEST_F(AwardsTagTest, TheSiteHasItsOwnLinks) {
    options.offline = true;
    EXPECT_EQ(Nominees(u"Ann Lee (song)"_s), u"Ann Lee (song)"_s);
    options.chkGenerateCrosslinks = true;
    EXPECT_EQ(Nominees(u"Ann Lee (song)"_s),
              u"<a href=\"#\" onclick=\"displayCrossLink('person-ann_lee'); return false;\">Ann Lee</a> (song)"_s);
}

TEST_F(AwardsTagTest, ATruthValueIsNeeded) {
    for (const auto &name : {u"GetAwardList"_s, u"ShowAwardName"_s, u"ShowCategory"_s, u"ShowYear"_s, u"ShowNominees"_s,
                             u"NameAwardOnce"_s, u"ColorNames"_s, u"ShowHeadshot"_s, u"HeadshotRight"_s}) {
        EXPECT_THROW(Render(GetOSVAwards, name + u"=\"perhaps\""_s), SkinFailure) << qPrintable(name);
    }
}

TEST_F(AwardsTagTest, AwardsAreLookedUpByTitle) {
    Award(u"Gull"_s, 1999, u"Film"_s, u"\"Low Water\": Ann Lee"_s);
    EXPECT_EQ(Scans([&] {
                  Render(GetOSVAwards);
                  Render(GetOSVAwards, u"ShowOnlyAward=\"Gull\""_s);
                  Render(GetOSVAwards, u"GetAwardList=\"yes\""_s);
                  Run(u"UPDATE Profiles SET ProdYear = 0 WHERE ProfileID = 'Key_1'");
                  Render(GetOSVAwards);
                  Render(GetOSVAwards, {}, {}, kEpisode);
                  Render(GetOSVAwards, u"GetAwardList=\"yes\""_s, {}, kEpisode);
              }),
              QStringList());
    for (
        const auto &statement :
        {u"SELECT *  FROM Awards WHERE MovieTitle = 'Tideline' AND Nominee LIKE '*Low Water*' ORDER BY Award, Category, Year"_s,
         u"SELECT *  FROM Awards WHERE MovieTitle = 'Quiet Harbour' AND (Year BETWEEN 1998 AND 2001) ORDER BY Award, "
         "Category, Year"_s}) {
        EXPECT_TRUE(session.Database->QueryPlan(statement).join(u'\n').contains(u"idx_Awards_MovieTitle_Year"_s));
    }
}

} // namespace
} // namespace ostrand
