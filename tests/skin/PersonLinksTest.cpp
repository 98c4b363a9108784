// The linked name of a person and the picture beside it.
#include "skin/PersonLinks.h"

#include "ProducerFixture.h"
#include "skin/TextConversion.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class PersonLinksTest : public ProducerTest {
protected:
    TagCall Call(const sql::Recordset &row, const QString &attributes = {}) {
        return {session, skin, options, row, profile_id, false, u"<OSV NAME=\"X\" "_s + attributes + u'>'};
    }
    QString Link(const QString &name, const QString &birth_year, const PersonStyle &style = {}) {
        const sql::Recordset row = Row(false);
        return displayCrossLink(Call(row), name, birth_year, style);
    }
    QString Headshot(const QString &name, const QString &width, int birth_year) {
        const sql::Recordset row = Row(false);
        return GetOSVHeadshot(Call(row), name, width, birth_year);
    }
    QString Url(const QString &file) const { return PathToFileUrl(session.HeadshotPath + file); }
};

TEST_F(PersonLinksTest, EachPartOfANameHasItsColour) {
    const struct {
        QString name;
        QString plain;
        QString coloured;
    } cases[] = {
        {u"Ann Lee"_s, u"Ann Lee"_s, u"<FONT COLOR='#000080'>Ann</FONT> <FONT COLOR='#008000'>Lee</FONT>"_s},
        {u"Ann Marie Lee"_s, u"Ann Marie Lee"_s,
         u"<FONT COLOR='#000080'>Ann</FONT> <FONT COLOR='#800000'>Marie</FONT> <FONT COLOR='#008000'>Lee</FONT>"_s},
        {u"Corvo"_s, u"Corvo"_s, u"<FONT COLOR='#000080'>Corvo</FONT>"_s},
        {u""_s, u""_s, u""_s},
        {u"The Brook Choir"_s, u"The Brook Choir"_s, u"<FONT COLOR='#000080'>The Brook Choir</FONT>"_s},
        {u"<b>Ann</b> 100%"_s, u"<b>Ann</b> 100%"_s,
         u"<FONT COLOR='#000080'><b>Ann</b></FONT> <FONT COLOR='#008000'>100%</FONT>"_s},
        {u"Ann \"Bo\" O'Lee"_s, u"Ann \"Bo\" O'Lee"_s,
         u"<FONT COLOR='#000080'>Ann</FONT> <FONT COLOR='#800000'>\"Bo\"</FONT> <FONT COLOR='#008000'>O'Lee</FONT>"_s},
    };
    for (const auto &c : cases) {
        const QString opening = u"<A HREF=\"blank.html?actorid="_s + c.name + u"|1950\">"_s;
        EXPECT_EQ(Link(c.name, u"1950"_s), opening + c.plain + u"</A>"_s);
        EXPECT_EQ(Link(c.name, u"1950"_s, {.color_names = true}), opening + c.coloured + u"</A>"_s);
    }
}

TEST_F(PersonLinksTest, TheBirthYearIsShownWhenItIsKnown) {
    const struct {
        QString year;
        QString shown;
    } cases[] = {{u""_s, u"Ann Lee"_s}, {u"0"_s, u"Ann Lee"_s}, {u"1950"_s, u"Ann Lee (1950)"_s}};
    for (const auto &c : cases) {
        const QString opening = u"<A HREF=\"blank.html?actorid=Ann Lee|"_s + c.year + u"\">"_s;
        EXPECT_EQ(Link(u"Ann Lee"_s, c.year, {.show_birth_years = true}), opening + c.shown + u"</A>"_s);
        EXPECT_EQ(Link(u"Ann Lee"_s, c.year), opening + u"Ann Lee</A>"_s);
    }
}

TEST_F(PersonLinksTest, TheSiteLinksToTheCommonNameOrNotAtAll) {
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Anny O''Lee', 'Ann O''Lee', 1950)");
    options.offline = true;
    EXPECT_EQ(Link(u"Anny O'Lee"_s, u"1950"_s), u"Anny O'Lee"_s);
    options.chkGenerateCrosslinks = true;
    EXPECT_EQ(Link(u"Anny O'Lee"_s, u"1950"_s),
              u"<a href=\"#\" onclick=\"displayCrossLink('person-ann_olee'); return false;\">Anny O'Lee</a>"_s);
    // Year 0 finds the link of any year, another year does not.
    EXPECT_TRUE(Link(u"Anny O'Lee"_s, {}).contains(u"'person-ann_olee'"_s));
    EXPECT_TRUE(Link(u"Anny O'Lee"_s, u"1960"_s).contains(u"'person-anny_olee'"_s));
}

TEST_F(PersonLinksTest, ThePictureStandsInFrontOrBehind) {
    folder.Write(u"heads/Ann Lee.jpg"_s, "x");
    const QString link = u"<A HREF=\"blank.html?actorid=Ann Lee|\">Ann Lee</A>"_s;
    const QString image = u"<IMG SRC='"_s + Url(u"Ann Lee.jpg"_s) + u"' WIDTH=30>"_s;
    PersonStyle style{.show_headshot = true, .headshot_width = u"30"_s};
    EXPECT_EQ(Link(u"Ann Lee"_s, {}, style), image + u"  "_s + link);
    style.headshot_right = true;
    EXPECT_EQ(Link(u"Ann Lee"_s, {}, style), link + u' ' + image);
    style.show_headshot = false;
    EXPECT_EQ(Link(u"Ann Lee"_s, {}, style), link);
}

TEST_F(PersonLinksTest, NoPictureLeavesNoBlank) {
    for (const bool right : {false, true}) {
        EXPECT_EQ(
            Link(u"Bo Tarn"_s, u"0"_s, {.show_headshot = true, .headshot_width = u"30"_s, .headshot_right = right}),
            u"<A HREF=\"blank.html?actorid=Bo Tarn|0\">Bo Tarn</A>"_s);
    }
}

TEST_F(PersonLinksTest, PicturesAreFiledUnderTheCommonNameAndTheYear) {
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Anny', 'Ann Lee', 1950)");
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Tarny', 'Bo Tarn', 0)");
    for (const auto &file : {u"Ann Lee(1950).jpg"_s, u"Bo Tarn.jpg"_s, u"Tarny(1960).jpg"_s, u"Cy_1.jpg"_s,
                             u"Dee -Dee.jpg"_s, u"EVE MOOR.JPG"_s}) {
        folder.Write(u"heads/"_s + file, "x");
    }
    const struct {
        QString name;
        int year;
        QString file; ///< empty without a picture
    } cases[] = {
        {u"Anny"_s, 1950, u"Ann Lee(1950).jpg"_s},
        {u"Ann Lee"_s, 1950, u"Ann Lee(1950).jpg"_s},
        {u"Ann Lee"_s, 0, {}},
        {u"Anny"_s, 0, {}},
        {u"Tarny"_s, 0, u"Bo Tarn.jpg"_s},
        {u"Bo Tarn"_s, 1960, {}}, // a picture without the year is no picture of one with it
        {u"Tarny"_s, 1960, u"Tarny(1960).jpg"_s},
        {u"Cy"_s, 0, {}}, // further pictures do not stand in
        {u"Dee:?Dee"_s, 0, u"Dee -Dee.jpg"_s},
        {u"Eve Moor"_s, 0, u"EVE MOOR.JPG"_s},
        {u""_s, 0, {}},
        {u"../heads/nobody"_s, 0, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Headshot(c.name, u"80"_s, c.year),
                  c.file.isEmpty() ? QString() : u"<IMG SRC='"_s + Url(c.file) + u"' WIDTH=80>"_s)
            << qPrintable(c.name) << c.year;
    }
}

TEST_F(PersonLinksTest, TheSiteHasItsOwnCopiesOfPictures) {
    const QString path = folder.Write(u"heads/Ann O'Lee.jpg"_s, "x");
    QStringList copied;
    options.offline = true;
    options.copy_headshot = [&](const QString &file) { copied.append(file); };
    EXPECT_EQ(Headshot(u"Ann O'Lee"_s, u"50%"_s, 0), u"<IMG SRC='../Headshots/Ann%20O%27Lee.jpg' WIDTH=50%>"_s);
    EXPECT_EQ(copied, QStringList(path));
    EXPECT_EQ(Headshot(u"Bo Tarn"_s, u"50"_s, 0), QString());
    EXPECT_EQ(copied, QStringList(path));

    options.opUseCoverScansLocally = true;
    EXPECT_EQ(Headshot(u"Ann O'Lee"_s, u"80"_s, 0), u"<IMG SRC='"_s + Url(u"Ann O'Lee.jpg"_s) + u"' WIDTH=80>"_s);
    EXPECT_EQ(copied, QStringList(path));

    options.offline = false;
    options.opUseCoverScansLocally = false;
    EXPECT_EQ(Headshot(u"Ann O'Lee"_s, u"80"_s, 0), u"<IMG SRC='"_s + Url(u"Ann O'Lee.jpg"_s) + u"' WIDTH=80>"_s);
    EXPECT_EQ(copied, QStringList(path));

    options.offline = true;
    options.copy_headshot = {};
    EXPECT_EQ(Headshot(u"Ann O'Lee"_s, u"80"_s, 0), u"<IMG SRC='../Headshots/Ann%20O%27Lee.jpg' WIDTH=80>"_s);
}

TEST_F(PersonLinksTest, TheHeadshotTagReadsNameWidthAndYear) {
    folder.Write(u"heads/Ann Lee.jpg"_s, "x");
    folder.Write(u"heads/Ann Lee(1950).jpg"_s, "x");
    const QString plain = u"<IMG SRC='"_s + Url(u"Ann Lee.jpg"_s) + u"' WIDTH="_s;
    const QString with_year = u"<IMG SRC='"_s + Url(u"Ann Lee(1950).jpg"_s) + u"' WIDTH="_s;
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {{}, {}},
        {u"CreditName=\"Ann Lee\""_s, plain + u"80>"_s},
        {u"CreditName=\"Ann Lee\" Width=\"120\""_s, plain + u"120>"_s},
        {u"CreditName=\"Ann Lee\" Width=\"3em\""_s, plain + u"3em>"_s},
        {u"CreditName=\"Ann Lee\" BirthYear=\"1950\""_s, with_year + u"80>"_s},
        {u"CreditName=\"Ann Lee\" BirthYear=\"fifty\""_s, plain + u"80>"_s},
        {u"CreditName=\"Bo Tarn\""_s, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Render(GetHeadshotDisplay, c.attributes), c.text) << qPrintable(c.attributes);
    }
}

TEST_F(PersonLinksTest, TheFolderIsReadOnceForManyPersons) {
    for (int i = 0; i < 500; ++i) {
        Link(u"Person %1"_s.arg(i), u"1950"_s, {.show_headshot = true, .headshot_width = u"30"_s});
    }
    EXPECT_EQ(skin.headshots.Reads(), 1);
}

TEST_F(PersonLinksTest, PersonsAreLookedUp) {
    options.offline = true;
    options.chkGenerateCrosslinks = true;
    EXPECT_EQ(Scans([&] {
                  Link(u"Ann Lee"_s, u"1950"_s, {.show_headshot = true});
                  Link(u"Ann Lee"_s, {}, {.show_headshot = true});
              }),
              QStringList());
}

} // namespace
} // namespace ostrand
