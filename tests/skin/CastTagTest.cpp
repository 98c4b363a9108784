// The cast of a page.
#include "ProducerFixture.h"
#include "skin/TextConversion.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CastTagTest : public ProducerTest {
protected:
    /// Adds a credit; `flags` of the letters v, u and o.
    void Credit(const QString &name, const QString &role, const QString &flags = {}, const QString &birth_year = {}) {
        const auto flag = [&](QChar letter) { return flags.contains(letter) ? u"true"_s : u"false"_s; };
        for (const auto &target : {u"CastCrew (ProfileID, "_s, u"TVCastCrew (EpisodeID, "_s}) {
            Run(QString(u"INSERT INTO "_s + target +
                        u"Name, Role, Position, IsCast, IsVoice, IsUncredited, IsCreditOnly, BirthYear) VALUES ('"_s +
                        EscapeSql(target.startsWith(u'C') ? profile_id : episode_id) + u"', '"_s + EscapeSql(name) +
                        u"', '"_s + EscapeSql(role) + u"', "_s + QString::number(++position) + u", true, "_s +
                        flag(u'v') + u", "_s + flag(u'u') + u", "_s + flag(u'o') + u", "_s +
                        (birth_year.isEmpty() ? u"NULL"_s : birth_year) + u')'));
        }
    }
    static QString Link(const QString &name, const QString &year = {}) {
        return u"<A HREF=\"blank.html?actorid="_s + name + u'|' + year + u"\">"_s + name + u"</A>"_s;
    }
    static QString Entry(const QString &inner) { return u"<NOBREAK>"_s + inner + u"</NOBREAK>"_s; }
    QString Cast(const QString &attributes = {}) {
        const QString text = Render(GetDPCast, attributes);
        // The same of an episode's credits.
        EXPECT_EQ(Render(GetDPCast, attributes, {}, kEpisode), text) << qPrintable(attributes);
        return text;
    }

    int position = 0;
};

TEST_F(CastTagTest, WithoutCastThereIsNoText) {
    EXPECT_EQ(Cast(), QString());
    Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('Key_1', 'Bo', 'Writer', 1, false)");
    Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('Key_2', 'Cy', 'Hero', 1, true)");
    EXPECT_EQ(Cast(), QString());
}

TEST_F(CastTagTest, AttributesShapeAnEntry) {
    Credit(u"Ann Lee"_s, u"Nora"_s, {}, u"1950"_s);
    Credit(u"Bo Tarn"_s, {});
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Ann Lee', 'Anna Lee', 1950)");
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Bo Tarn', 'Bob Tarn', 1971)");
    folder.Write(u"heads/Anna Lee(1950).jpg"_s, "x");
    const QString ann = Link(u"Ann Lee"_s, u"1950"_s);
    const QString bo = Link(u"Bo Tarn"_s);
    const QString image =
        u"<IMG SRC='"_s + PathToFileUrl(session.HeadshotPath + u"Anna Lee(1950).jpg"_s) + u"' WIDTH="_s;
    const QString common = Entry(Link(u"Anna Lee"_s, u"1950"_s)) + u", "_s + Entry(Link(u"Bob Tarn"_s));
    const QString plain = Entry(ann) + u", "_s + Entry(bo);
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {{}, plain},
        {u"ShowRoles=\"NO\" RolesFirst=\"yes\" RoleDivider=\"x\" RoleClass=\"r\""_s, plain},
        {u"ShowRoles=\"yes\""_s, Entry(ann + u" as Nora"_s) + u", "_s + Entry(bo)},
        {u"ShowRoles=\"1\""_s, Entry(ann + u" as Nora"_s) + u", "_s + Entry(bo)},
        {u"ShowRoles=\"yes\" RolesFirst=\"yes\""_s, Entry(u"Nora as "_s + ann) + u", "_s + Entry(bo)},
        {u"ShowRoles=\"yes\" RoleDivider=\": \""_s, Entry(ann + u": Nora"_s) + u", "_s + Entry(bo)},
        {u"ShowRoles=\"yes\" RoleDivIfBlank=\"yes\""_s, Entry(ann + u" as Nora"_s) + u", "_s + Entry(bo + u" as "_s)},
        {u"ShowRoles=\"yes\" RoleDivIfBlank=\"yes\" RolesFirst=\"yes\""_s,
         Entry(u"Nora as "_s + ann) + u", "_s + Entry(u" as "_s + bo)},
        {u"Divider=\"BREAK\""_s, Entry(ann) + u"<br/>"_s + Entry(bo)},
        {u"Divider=\"\""_s, plain},
        {u"ColorNames=\"yes\" MaxList=\"0\""_s,
         Entry(u"<A HREF=\"blank.html?actorid=Ann Lee|1950\"><FONT COLOR='#000080'>Ann</FONT> "
               "<FONT COLOR='#008000'>Lee</FONT></A>"_s) +
             u", "_s +
             Entry(u"<A HREF=\"blank.html?actorid=Bo Tarn|\"><FONT COLOR='#000080'>Bo</FONT> "
                   "<FONT COLOR='#008000'>Tarn</FONT></A>"_s)},
        {u"ShowHeadshot=\"yes\""_s, Entry(image + u"30>  "_s + ann) + u", "_s + Entry(bo)},
        {u"ShowHeadshot=\"yes\" HeadshotWidth=\"45\""_s, Entry(image + u"45>  "_s + ann) + u", "_s + Entry(bo)},
        {u"ShowHeadshot=\"yes\" HeadshotRight=\"yes\""_s, Entry(ann + u' ' + image + u"30>"_s) + u", "_s + Entry(bo)},
        {u"UseCommonName=\"yes\""_s, common},
        {u"AsCredited=\"no\""_s, common},
        {u"AsCredited=\"yes\" UseCommonName=\"no\""_s, plain},
        {u"AsCredited=\"yes\" UseCommonName=\"yes\""_s, common},
        {u"ShowBirthYears=\"yes\""_s,
         Entry(u"<A HREF=\"blank.html?actorid=Ann Lee|1950\">Ann Lee (1950)</A>"_s) + u", "_s + Entry(bo)},
        {u"NameClass=\"n\" ShowRoles=\"yes\""_s, Entry(u"<SPAN CLASS=\"n\">"_s + ann + u"</SPAN> as Nora"_s) + u", "_s +
                                                     Entry(u"<SPAN CLASS=\"n\">"_s + bo + u"</SPAN>"_s)},
        // An empty role in a span does not count as empty any more.
        {u"RoleClass=\"r\" ShowRoles=\"yes\""_s, Entry(ann + u" as <SPAN CLASS=\"r\">Nora</SPAN>"_s) + u", "_s +
                                                     Entry(bo + u" as <SPAN CLASS=\"r\"></SPAN>"_s)},
        // These two belong to the crew tags.
        {u"Prefix=\"P\" Suffix=\"S\""_s, plain},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Cast(c.attributes), c.text) << qPrintable(c.attributes);
    }
}

TEST_F(CastTagTest, MarkersTellTheKindOfARole) {
    const struct {
        QString flags;
        QString role;
    } cases[] = {
        {{}, u" as R"_s},
        {u"v"_s, u" as R (voice)"_s},
        {u"u"_s, u" as R (uncredited)"_s},
        {u"o"_s, u" as R (credit only)"_s},
        {u"vo"_s, u" as R (voice) (credit only)"_s},
        {u"uo"_s, u" as R (uncredited) (credit only)"_s},
        {u"vu"_s, u" as R (voice, uncredited)"_s},
        {u"vuo"_s, u" as R (voice, uncredited)"_s},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM CastCrew");
        Run(u"DELETE FROM TVCastCrew");
        Credit(u"Ann"_s, u"R"_s, c.flags);
        EXPECT_EQ(Cast(u"ShowRoles=\"yes\""_s), Entry(Link(u"Ann"_s) + c.role)) << qPrintable(c.flags);
        EXPECT_EQ(Cast(u"ShowRoles=\"yes\" RoleTypes=\"no\""_s), Entry(Link(u"Ann"_s) + u" as R"_s));
        EXPECT_EQ(Cast(u"RoleTypes=\"yes\""_s), Entry(Link(u"Ann"_s)));
    }
}

TEST_F(CastTagTest, MarkersAreTranslatedAndStandWithoutARoleToo) {
    TranslateTo(u"(voice, uncredited)"_s, u"(Stimme, ungenannt)"_s);
    Credit(u"Ann"_s, {}, u"vu"_s);
    EXPECT_EQ(Cast(u"ShowRoles=\"yes\""_s), Entry(Link(u"Ann"_s) + u" as  (Stimme, ungenannt)"_s));
}

TEST_F(CastTagTest, AGroupMarksItsMembers) {
    Credit(u"Ann"_s, u"Nora"_s);
    Credit(u"The Crew"_s, u"[DivGroup]"_s);
    Credit(u"Bo"_s, u"Tom"_s);
    Credit(u"Cy"_s, u"The Crew"_s);
    Credit({}, u"[DivEnd]"_s);
    Credit(u"Dee"_s, u"The Crew"_s);
    EXPECT_EQ(Cast(u"ShowRoles=\"yes\""_s),
              QStringList({Entry(Link(u"Ann"_s) + u" as Nora"_s), Entry(u"The Crew"_s),
                           u"<NOBREAK>* "_s + Link(u"Bo"_s) + u" as Tom</NOBREAK>"_s, Entry(u"* "_s + Link(u"Cy"_s)),
                           Entry({}), Entry(Link(u"Dee"_s) + u" as The Crew"_s)})
                  .join(u", "_s));
    // Captions that are left out begin no group, and leave an element that is never closed.
    const QString open = u"<NOBREAK>"_s;
    EXPECT_EQ(Cast(u"ShowRoles=\"yes\" ShowNoDividers=\"yes\""_s),
              Entry(Link(u"Ann"_s) + u" as Nora"_s) + u", "_s + open + Entry(Link(u"Bo"_s) + u" as Tom"_s) + u", "_s +
                  Entry(Link(u"Cy"_s) + u" as The Crew"_s) + u", "_s + open +
                  Entry(Link(u"Dee"_s) + u" as The Crew"_s));
}

TEST_F(CastTagTest, EveryOtherCaptionEndsAGroup) {
    for (const auto &role : {u"[DivEnd]"_s, u"[Divider]"_s, u"[DivEpisode]"_s, u"[DivGroup2]"_s, u"[Div"_s}) {
        Run(u"DELETE FROM CastCrew");
        Run(u"DELETE FROM TVCastCrew");
        Credit(u"Team"_s, u"[DivGroup]"_s);
        Credit(u"Part 2"_s, role);
        Credit(u"Ann"_s, u"Team"_s);
        EXPECT_EQ(Cast(u"ShowRoles=\"yes\" DividerClass=\"d\""_s), Entry(u"<SPAN CLASS=\"d\">Team</SPAN>"_s) + u", "_s +
                                                                       Entry(u"<SPAN CLASS=\"d\">Part 2</SPAN>"_s) +
                                                                       u", "_s + Entry(Link(u"Ann"_s) + u" as Team"_s));
    }
    // Another case is no caption.
    Run(u"DELETE FROM CastCrew");
    Run(u"DELETE FROM TVCastCrew");
    Credit(u"Ann"_s, u"[div]"_s);
    EXPECT_EQ(Cast(u"ShowRoles=\"yes\""_s), Entry(Link(u"Ann"_s) + u" as [div]"_s));
}

TEST_F(CastTagTest, TheLastDividerIsCutFromWhateverStandsLast) {
    Credit(u"Ann"_s, {});
    Credit(u"End"_s, u"[DivEnd]"_s);
    EXPECT_EQ(Cast(u"ShowNoDividers=\"yes\""_s), Entry(Link(u"Ann"_s)) + u", <NOBREA"_s);
    Run(u"DELETE FROM CastCrew WHERE Name = 'Ann'");
    EXPECT_EQ(Render(GetDPCast, u"ShowNoDividers=\"yes\" Divider=\"----------\""_s), QString());
}

TEST_F(CastTagTest, OneMoreThanTheLimitIsPrinted) {
    Credit(u"Part 1"_s, u"[Divider]"_s);
    QStringList all = {Entry(u"Part 1"_s)};
    for (const auto &name : {u"Ann"_s, u"Bo"_s, u"Cy"_s, u"Dee"_s, u"Eve"_s}) {
        Credit(name, {});
        all.append(Entry(Link(name)));
    }
    Credit(u"Part 2"_s, u"[Divider]"_s);
    all.append(Entry(u"Part 2"_s));
    const struct {
        QString limit;
        int entries; ///< with the caption in front, which does not count
    } cases[] = {{u"0"_s, 7}, {u"1"_s, 3},  {u"3"_s, 5},   {u"4"_s, 6},
                 {u"5"_s, 7}, {u"99"_s, 7}, {u"few"_s, 7}, {u"-1"_s, 2}};
    for (const auto &c : cases) {
        EXPECT_EQ(Cast(u"MaxList=\""_s + c.limit + u'"'), all.mid(0, c.entries).join(u", "_s)) << qPrintable(c.limit);
    }
}

TEST_F(CastTagTest, NamesAndRolesStandAsTheyAre) {
    profile_id = u"Key_'1"_s;
    Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_''1', 'X')");
    Credit(u"A'nn \"Bo\" <i>100%</i>"_s, u"%1 & <b>'"_s);
    Credit({}, {});
    EXPECT_EQ(Cast(u"ShowRoles=\"yes\" UseCommonName=\"yes\" ShowHeadshot=\"yes\""_s),
              Entry(Link(u"A'nn \"Bo\" <i>100%</i>"_s) + u" as %1 & <b>'"_s) + u", "_s + Entry(Link({})));
}

TEST_F(CastTagTest, NamesOfEveryKindAreColoured) {
    const auto span = [](const char *colour, const QString &part) {
        return u"<FONT COLOR='#%1'>%2</FONT>"_s.arg(QLatin1String(colour), part);
    };
    const struct {
        QString name;
        QString text;
    } cases[] = {
        {{}, {}},
        {u"Corvo"_s, span("000080", u"Corvo"_s)},
        {u"\u00C9mile O'Brien"_s, span("000080", u"\u00C9mile"_s) + u' ' + span("008000", u"O'Brien"_s)},
        {u"Ann </script> \"Lee\""_s,
         span("000080", u"Ann"_s) + u' ' + span("800000", u"</script>"_s) + u' ' + span("008000", u"\"Lee\""_s)},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM CastCrew");
        Run(u"DELETE FROM TVCastCrew");
        Credit(c.name, {}, {}, u"1950"_s);
        EXPECT_EQ(Cast(u"ColorNames=\"yes\" ShowHeadshot=\"yes\" HeadshotRight=\"yes\""_s),
                  Entry(u"<A HREF=\"blank.html?actorid="_s + c.name + u"|1950\">"_s + c.text + u"</A>"_s))
            << qPrintable(c.name);
    }
}

TEST_F(CastTagTest, AnAttributeThatIsNoTruthValueFails) {
    for (const auto &name :
         {u"ShowRoles"_s, u"RolesFirst"_s, u"RoleDivIfBlank"_s, u"RoleTypes"_s, u"ColorNames"_s, u"ShowHeadshot"_s,
          u"HeadshotRight"_s, u"UseCommonName"_s, u"AsCredited"_s, u"ShowNoDividers"_s, u"ShowBirthYears"_s}) {
        EXPECT_THROW(Render(GetDPCast, name + u"=\"perhaps\""_s), SkinFailure) << qPrintable(name);
    }
}

TEST_F(CastTagTest, AHugeCastIsRenderedByLookUps) {
    {
        const sql::Database::Bracket bracket(*session.Database);
        for (int i = 0; i < 10000; ++i) {
            Run(QString(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('Key_1', 'Person %1', "
                        "'Role', %1, true)"_s)
                    .arg(i));
        }
    }
    const QString attributes =
        u"ShowRoles=\"yes\" UseCommonName=\"yes\" ShowHeadshot=\"yes\" ColorNames=\"yes\" ShowBirthYears=\"yes\""_s;
    int statements = 0;
    session.Database->SetObserver([&](QStringView) { ++statements; });
    const QString text = Render(GetDPCast, attributes);
    session.Database->SetObserver({});
    EXPECT_EQ(text.count(u"<NOBREAK>"), 10000);
    EXPECT_TRUE(text.endsWith(u"</NOBREAK>"_s));
    // The row, the credits, and for each person the common name and that of the picture.
    EXPECT_EQ(statements, 2 + 2 * 10000);
    EXPECT_EQ(skin.headshots.Reads(), 1);

    Run(u"DELETE FROM CastCrew WHERE Position > 3");
    EXPECT_EQ(Scans([&] {
                  Render(GetDPCast, attributes);
                  Render(GetDPCast, attributes, {}, kEpisode);
              }),
              QStringList());
}

} // namespace
} // namespace ostrand
