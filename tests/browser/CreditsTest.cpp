#include "browser/Credits.h"

#include "BrowserFixture.h"

#include "browser/CollectionTabs.h"
#include "browser/CreditCommands.h"
#include "browser/ProfileInfos.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CreditsTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        browser.tabMain = QStringList{u"Cast/Crew"_s, u"Details"_s, u"Audio/Video"_s};
        session.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
        session.view.mCrewTreeView = false;
        session.HeadshotPath = Path(u"headshots/"_s);
        QDir().mkpath(session.HeadshotPath);
        AddProfile(u"P1"_s);
    }

    struct Added {
        QString name, role;
        bool cast = true;
        /// "c" uncredited, "v" voice, "o" credit only, "r" regular
        QString flags = {};
        QString year = u"0"_s;
    };
    void Add(const QString &id, const Added &credit) {
        const bool episode = id.startsWith(u'E');
        const auto flag = [&](char16_t letter) { return credit.flags.contains(letter) ? u"True"_s : u"False"_s; };
        Run(u"INSERT INTO "_s + (episode ? u"TVCastCrew (EpisodeID, IsRegular, "_s : u"CastCrew (ProfileID, "_s) +
            u"Name, Role, Position, IsCast, BirthYear, IsUncredited, IsVoice, IsCreditOnly) VALUES ('"_s + id +
            (episode ? u"', "_s + flag(u'r') : u"'"_s) + u", '"_s + EscapeSql(credit.name) + u"', '"_s +
            EscapeSql(credit.role) + u"', "_s + QString::number(++positions_[id]) + u", "_s +
            (credit.cast ? u"True"_s : u"False"_s) + u", "_s + (credit.year.isEmpty() ? u"NULL"_s : credit.year) +
            u", "_s + flag(u'c') + u", "_s + flag(u'v') + u", "_s + flag(u'o') + u')');
    }
    void AddCrew(const QString &id, const QString &name, const QString &role) { Add(id, {name, role, false}); }
    void AddEpisode(const QString &id, const QString &title = u"Dust"_s) {
        Run(u"INSERT INTO TVSeries (SeriesID, OriginalTitle, Title, SortTitle) VALUES ('S1', '', 'Harbour', 'Harbour')"_s);
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('%1', 'S1', '1', "
            "'1', '%2')"_s.arg(id, title));
    }

    static QStringList Lines(const CreditList &list) {
        QStringList lines;
        for (int row = 0; row < list.rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < list.columnCount(); ++column) {
                texts += list.index(row, column).data().toString();
            }
            lines += texts.join(u'|');
        }
        return lines;
    }
    QStringList Cast() { return Lines(browser.credits.ListCast); }
    QStringList Crew() { return Lines(browser.credits.ListCrew); }
    QStringList CastTexts() {
        QStringList texts;
        for (const CreditRow &row : browser.credits.ListCast.Rows()) {
            texts += row.text + (row.caption ? u"!"_s : QString());
        }
        return texts;
    }
    /// Each node with a blank for each level above it.
    QStringList Tree(const QModelIndex &parent = {}, int level = 0) {
        QStringList lines;
        const CrewTree &tree = browser.credits.treeCrew;
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            const QModelIndex node = tree.index(row, 0, parent);
            EXPECT_EQ(node.parent(), parent);
            lines += QString(level, u' ') + node.data().toString() +
                     (node.data(CrewTree::CaptionRole).toBool() ? u"!"_s : QString());
            lines += Tree(node, level + 1);
        }
        return lines;
    }
    void Touch(const QString &name) {
        QFile file(session.HeadshotPath + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')"_s.arg(english, shown));
    }

private:
    QHash<QString, int> positions_;
};

TEST_F(CreditsTest, OfAProfileStandInTheirOrder) {
    Add(u"P1"_s, {u"Mara Hale"_s, u"Keeper"_s});
    AddCrew(u"P1"_s, u"Ned Poole"_s, u"Director"_s);
    Add(u"P1"_s, {u"Al Roe"_s, u"Diver"_s});
    UpdateCredits(browser, u"P1"_s);
    EXPECT_EQ(Cast(), (QStringList{u"Mara Hale|Keeper|  1"_s, u"Al Roe|Diver|  3"_s}));
    EXPECT_EQ(Crew(), (QStringList{u"Ned Poole|Director|  2"_s}));
    EXPECT_EQ(browser.credits.treeCrew.rowCount(), 0);
}

TEST_F(CreditsTest, TellRolesMarksAndTags) {
    const struct {
        const char *name;
        QString role, flags, year, text, letters, tag;
    } cases[] = {
        {"plain", u"Keeper"_s, {}, u"1950"_s, u"W\u00E4rter"_s, {}, u"1950"_s},
        {"uncredited", u"Keeper"_s, u"c"_s, u"0"_s, u"W\u00E4rter (uncredited)"_s, u"c"_s, u"0"_s},
        {"voice", u"Keeper"_s, u"v"_s, u"0"_s, u"W\u00E4rter (Stimme)"_s, u"v"_s, u"0"_s},
        {"credit only", u"Keeper"_s, u"o"_s, u"0"_s, u"W\u00E4rter (credit only)"_s, u"o"_s, u"0"_s},
        {"all", u"Cook"_s, u"cvo"_s, u"0"_s, u"Cook (uncredited) (Stimme) (credit only)"_s, u"cvo"_s, u"0"_s},
        {"a mark without a role", {}, u"v"_s, u"0"_s, u"(Stimme)"_s, u"v"_s, u"0"_s},
        {"two marks without a role", {}, u"cv"_s, u"0"_s, u"(uncredited) (Stimme)"_s, u"cv"_s, u"0"_s},
        {"no year", u"Cook"_s, {}, {}, u"Cook"_s, {}, {}},
    };
    TranslateAs(u"Keeper"_s, u"W\u00E4rter"_s);
    TranslateAs(u"(voice)"_s, u"(Stimme)"_s);
    for (const auto &c : cases) {
        Run(u"DELETE FROM CastCrew");
        Add(u"P1"_s, {u"Mara Hale"_s, c.role, true, c.flags, c.year});
        UpdateCredits(browser, u"P1"_s);
        ASSERT_EQ(browser.credits.ListCast.rowCount(), 1) << c.name;
        const QModelIndex row = browser.credits.ListCast.index(0, CreditList::Role);
        EXPECT_EQ(row.data().toString(), c.text) << c.name;
        EXPECT_EQ(row.data(Qt::ToolTipRole).toString(), c.text) << c.name;
        EXPECT_EQ(row.siblingAtColumn(0).data(Qt::ToolTipRole).toString(), u"Mara Hale"_s) << c.name;
        EXPECT_EQ(row.data(CreditList::NameRole).toString(), u"Mara Hale"_s) << c.name;
        EXPECT_EQ(row.data(CreditList::BirthYearRole).toString(), c.tag) << c.name;
        EXPECT_EQ(row.data(CreditList::FlagsRole).toString(), c.letters) << c.name;
    }
}

TEST_F(CreditsTest, OfAnEpisodeTellRegulars) {
    AddEpisode(u"E1"_s, u"Day's End"_s.replace(u'\'', u"''"_s));
    Add(u"E1"_s, {u"Mara Hale"_s, u"Keeper"_s, true, u"vr"_s});
    UpdateTVCredits(browser, {}, {}, {}, u"E1"_s);
    ASSERT_EQ(Cast(), (QStringList{u"Mara Hale|Keeper (voice)|  1"_s}));
    EXPECT_EQ(browser.credits.ListCast.Rows()[0].flags, u"vr"_s);
    UpdateTVCredits(browser, {}, {}, {}, u"E2"_s);
    EXPECT_EQ(Cast(), QStringList());
    UpdateTVCredits(browser, u"S1"_s, u"1"_s, u"Day's End"_s, {});
    EXPECT_EQ(Cast(), (QStringList{u"Mara Hale|Keeper (voice)|  1"_s})) << "an episode told by its titles";
}

TEST_F(CreditsTest, OfDividersMakeGroups) {
    using Credits = std::vector<Added>;
    const struct {
        const char *name;
        Credits credits;
        QStringList texts; // "!" marks captions
    } cases[] = {
        {"a nameless divider at first", {{{}, u"[Divider]"_s}}, {QString()}},
        {"a caption at first", {{u"The House"_s, u"[Divider]"_s}, {u"A"_s, u"R"_s}}, {u"The House!"_s, u"A"_s}},
        {"a caption below others",
         {{u"A"_s, u"R"_s}, {u"The House"_s, u"[Divider]"_s}, {u"B"_s, u"R"_s}},
         {u"A"_s, {}, u"The House!"_s, u"B"_s}},
        {"a nameless divider below others",
         {{u"A"_s, u"R"_s}, {{}, u"[Divider]"_s}, {u"B"_s, u"R"_s}},
         {u"A"_s, {}, u"B"_s}},
        {"a group and its end",
         {{u"Crowd"_s, u"[DivGroup]"_s}, {u"A"_s, u"R"_s}, {{}, u"[DivEnd]"_s}, {u"B"_s, u"R"_s}},
         {u"Crowd!"_s, u"  A"_s, {}, u"B"_s}},
        {"a group ends at a divider",
         {{u"Crowd"_s, u"[DivGroup]"_s}, {u"A"_s, u"R"_s}, {u"Rest"_s, u"[Divider]"_s}, {u"B"_s, u"R"_s}},
         {u"Crowd!"_s, u"  A"_s, {}, u"Rest!"_s, u"B"_s}},
        {"a group ends at an episode",
         {{u"Crowd"_s, u"[DivGroup]"_s}, {u"A"_s, u"R"_s}, {u"2. Dusk"_s, u"[DivEpisode]"_s}, {u"B"_s, u"R"_s}},
         {u"Crowd!"_s, u"  A"_s, {}, u"2. Dusk!"_s, u"B"_s}},
        {"groups do not nest",
         {{u"One"_s, u"[DivGroup]"_s}, {u"A"_s, u"R"_s}, {u"Two"_s, u"[DivGroup]"_s}, {u"B"_s, u"R"_s}},
         {u"One!"_s, u"  A"_s, {}, u"Two!"_s, u"  B"_s}},
        {"a team indents too", {{u"Unit"_s, u"[DivTeam]"_s}, {u"A"_s, u"R"_s}}, {u"Unit!"_s, u"  A"_s}},
        {"an end at first", {{{}, u"[DivEnd]"_s}, {u"A"_s, u"R"_s}}, {QString(), u"A"_s}},
        {"captions are translated", {{u"Guests"_s, u"[Divider]"_s}}, {u"G\u00E4ste!"_s}},
    };
    TranslateAs(u"Guests"_s, u"G\u00E4ste"_s);
    for (const bool cast : {true, false}) {
        for (const auto &c : cases) {
            Run(u"DELETE FROM CastCrew");
            for (Added credit : c.credits) {
                credit.cast = cast;
                Add(u"P1"_s, credit);
            }
            UpdateCredits(browser, u"P1"_s);
            QStringList texts;
            for (const CreditRow &row : (cast ? browser.credits.ListCast : browser.credits.ListCrew).Rows()) {
                texts += row.text + (row.caption ? u"!"_s : QString());
            }
            EXPECT_EQ(texts, c.texts) << c.name << (cast ? "" : " in the crew");
        }
    }
}

TEST_F(CreditsTest, RowsOfDividersAreNoPersons) {
    Add(u"P1"_s, {u"Crowd"_s, u"[DivGroup]"_s});
    UpdateCredits(browser, u"P1"_s);
    const CreditRow &row = browser.credits.ListCast.Rows().front();
    EXPECT_EQ(row.name, QString());
    EXPECT_EQ(row.role, QString());
    EXPECT_EQ(row.position_text, QString());
    EXPECT_EQ(row.position, 1) << "it keeps its place in the order";
    EXPECT_EQ(browser.credits.ListCast.index(0, 0).data(Qt::ToolTipRole).toString(), u"Crowd"_s);
}

TEST_F(CreditsTest, ShowNamesInTheOrderThatIsChosen) {
    Add(u"P1"_s, {u"Mara Ann Hale"_s, u"Keeper"_s});
    Add(u"P1"_s, {u"Crowd Two"_s, u"[DivGroup]"_s});
    Add(u"P1"_s, {u"Al Roe"_s, u"Diver"_s});
    session.view.mReverseCredit = true;
    UpdateCredits(browser, u"P1"_s);
    EXPECT_EQ(CastTexts(), (QStringList{u"Hale, Mara Ann"_s, {}, u"Crowd Two!"_s, u"  Roe, Al"_s}));
    EXPECT_EQ(browser.credits.ListCast.Rows()[0].name, u"Mara Ann Hale"_s);
}

TEST_F(CreditsTest, AreSortedByAClickOnAHeader) {
    for (const QString &name : {u"Cy"_s, u"al"_s, u"Bo"_s}) {
        Add(u"P1"_s, {name, name == u"Bo"_s ? u"A"_s : u"Z"_s});
    }
    UpdateCredits(browser, u"P1"_s);
    CreditList &list = browser.credits.ListCast;
    const QPersistentModelIndex al = list.index(1, 0);
    const struct {
        int column;
        QStringList names;
    } clicks[] = {
        {CreditList::Name, {u"Cy"_s, u"Bo"_s, u"al"_s}},     {CreditList::Name, {u"al"_s, u"Bo"_s, u"Cy"_s}},
        {CreditList::Role, {u"al"_s, u"Cy"_s, u"Bo"_s}},     {CreditList::Position, {u"Cy"_s, u"al"_s, u"Bo"_s}},
        {CreditList::Position, {u"Bo"_s, u"al"_s, u"Cy"_s}}, {7, {u"Bo"_s, u"al"_s, u"Cy"_s}},
    };
    for (const auto &click : clicks) {
        list.SortByHeader(click.column);
        EXPECT_EQ(CastTexts(), click.names) << click.column;
        EXPECT_EQ(al.data().toString(), u"al"_s);
    }
    UpdateCredits(browser, u"P1"_s);
    EXPECT_EQ(CastTexts(), (QStringList{u"Cy"_s, u"al"_s, u"Bo"_s})) << "filled anew, in credit order";
    EXPECT_EQ(list.SortColumn(), int(CreditList::Position));
}

TEST_F(CreditsTest, BeyondAThousandStandInOrder) {
    for (const int position : {2, 999, 1000, 1200}) {
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('P1', 'N%1', 'R', %1, True)"_s.arg(
            position));
    }
    UpdateCredits(browser, u"P1"_s);
    CreditList &list = browser.credits.ListCast;
    list.SortByHeader(CreditList::Position);
    list.SortByHeader(CreditList::Position);
    EXPECT_EQ(CastTexts(), (QStringList{u"N2"_s, u"N999"_s, u"N1000"_s, u"N1200"_s}));
}

TEST_F(CreditsTest, CrewStandsBelowItsCategories) {
    session.view.mCrewTreeView = true;
    const struct {
        const char *name;
        std::vector<std::pair<QString, QString>> crew;
        bool hide;
        QStringList tree;
    } cases[] = {
        {"in the order of the mapping",
         {{u"Ann"_s, u"Composer"_s}, {u"Bob"_s, u"Director"_s}, {u"Cy"_s, u"Writer"_s}},
         false,
         {u"Direction"_s, u" Bob: Director"_s, u"Writing"_s, u" Cy: Writer"_s, u"Music"_s, u" Ann: Composer"_s}},
        {"by position within one",
         {{u"Ann"_s, u"Writer"_s}, {u"Bob"_s, u"Story By"_s}, {u"Ann"_s, u"Screenwriter"_s}},
         false,
         {u"Writing"_s, u" Ann: Writer"_s, u" Bob: Story By"_s, u" Ann: Screenwriter"_s}},
        {"roles compare without case", {{u"Ann"_s, u"DIRECTOR"_s}}, false, {u"Direction"_s, u" Ann: DIRECTOR"_s}},
        {"the misspelt role is mapped, the right one is not",
         {{u"Ann"_s, u"Sound Effects Edtior"_s}, {u"Bob"_s, u"Sound Effects Editor"_s}},
         false,
         {u"Sound"_s, u" Ann: Sound Effects Edtior"_s, u"Other"_s, u" Bob: Sound Effects Editor"_s}},
        {"unassigned crew is hidden",
         {{u"Ann"_s, u"Director"_s}, {u"Bob"_s, u"Baker"_s}},
         true,
         {u"Direction"_s, u" Ann: Director"_s}},
        {"each team has the categories",
         {{u"Ann"_s, u"Director"_s},
          {u"Unit Two"_s, u"[DivTeam]"_s},
          {u"Bob"_s, u"Director"_s},
          {u"Cy"_s, u"Baker"_s},
          {u"Unit Three"_s, u"[DivTeam]"_s},
          {u"Di"_s, u"Writer"_s}},
         false,
         {u"Direction"_s, u" Ann: Director"_s, u"Unit Two!"_s, u" Direction"_s, u"  Bob: Director"_s, u" Other"_s,
          u"  Cy: Baker"_s, u"Unit Three!"_s, u" Writing"_s, u"  Di: Writer"_s}},
        {"a team ends",
         {{u"Unit Two"_s, u"[DivTeam]"_s}, {u"Bob"_s, u"Director"_s}, {{}, u"[DivEnd]"_s}, {u"Ann"_s, u"Director"_s}},
         false,
         {u"Direction"_s, u" Ann: Director"_s, u"Unit Two!"_s, u" Direction"_s, u"  Bob: Director"_s}},
        {"a team of nobody", {{u"Unit Two"_s, u"[DivTeam]"_s}}, false, {}},
        {"other dividers are no members",
         {{u"Crowd"_s, u"[DivGroup]"_s}, {u"Ann"_s, u"Director"_s}, {u"X"_s, u"[Divider]"_s}},
         false,
         {u"Direction"_s, u" Ann: Director"_s}},
        {"nobody", {}, false, {}},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM CastCrew");
        for (const auto &[name, role] : c.crew) {
            AddCrew(u"P1"_s, name, role);
        }
        session.view.mHideUnassignedCrew = c.hide;
        UpdateCredits(browser, u"P1"_s);
        EXPECT_EQ(Tree(), c.tree) << c.name;
        EXPECT_EQ(Crew(), QStringList()) << c.name;
        session.view.mCrewTreeView = false;
        UpdateCredits(browser, u"P1"_s);
        EXPECT_GE(Crew().size(), qsizetype(c.crew.size())) << c.name << ": the flat list leaves nobody out";
        session.view.mCrewTreeView = true;
    }
}

TEST_F(CreditsTest, NodesOfTheCrewHaveKeysAndTags) {
    session.view.mCrewTreeView = true;
    Add(u"P1"_s, {u"Ann Lee"_s, u"Director"_s, false, {}, u"1950"_s});
    Add(u"P1"_s, {u"Bob"_s, u"Director"_s, false, {}, {}});
    TranslateAs(u"Direction"_s, u"Regie"_s);
    TranslateAs(u"Director"_s, u"Regisseur"_s);
    session.view.mReverseCredit = true;
    UpdateCredits(browser, u"P1"_s);
    EXPECT_EQ(Tree(), (QStringList{u"Regie"_s, u" Lee, Ann: Regisseur"_s, u" Bob: Regisseur"_s}));
    const QModelIndex category = browser.credits.treeCrew.index(0, 0);
    QStringList keys = {category.data(CrewTree::KeyRole).toString()};
    QStringList tags = {category.data(CrewTree::TagRole).toString()};
    for (int row = 0; row < 2; ++row) {
        const QModelIndex node = browser.credits.treeCrew.index(row, 0, category);
        keys += node.data(CrewTree::KeyRole).toString();
        tags += node.data(CrewTree::TagRole).toString();
    }
    EXPECT_EQ(keys, (QStringList{u"N1"_s, u"N2"_s, u"N3"_s}));
    EXPECT_EQ(tags, (QStringList{{}, u"Ann Lee|1950"_s, u"Bob|"_s}));
}

TEST_F(CreditsTest, OfABoxsetMayHoldThoseOfItsChildren) {
    AddProfile(u"P2"_s, u"SortTitle = 'Zed'"_s);
    AddProfile(u"P3"_s, u"SortTitle = 'Amber'"_s);
    AddChild(u"P2"_s, u"P1"_s);
    AddChild(u"P3"_s, u"P1"_s);
    AddEpisode(u"E1"_s);
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('P1', 'E1')");
    Add(u"P1"_s, {u"Own"_s, u"R"_s});
    Add(u"P2"_s, {u"Last"_s, u"R"_s});
    Add(u"P3"_s, {u"First"_s, u"R"_s});
    Add(u"E1"_s, {u"Guest"_s, u"R"_s, true, u"r"_s});
    AddCrew(u"P3"_s, u"Ann"_s, u"Director"_s);
    ShowCredits(browser, u"P1"_s, false);
    EXPECT_EQ(CastTexts(), QStringList{u"Own"_s});
    session.view.mShowFullBoxsetCredits = true;
    RefillCredits(browser);
    EXPECT_EQ(CastTexts(), (QStringList{u"Own"_s, u"First"_s, u"Last"_s, u"Guest"_s}));
    EXPECT_EQ(browser.credits.ListCast.Rows()[3].flags, u"r"_s);
    EXPECT_EQ(Crew(), QStringList{u"Ann|Director|  2"_s});
    EXPECT_EQ(browser.credits.cast.size(), 4u);
    session.view.mCrewTreeView = true;
    RefillCredits(browser);
    EXPECT_EQ(Tree(), (QStringList{u"Direction"_s, u" Ann: Director"_s}));
}

TEST_F(CreditsTest, MarkPersonsWithHeadshots) {
    Touch(u"Mara Hale.jpg"_s);
    Touch(u"Al Roe(1950).jpg"_s);
    Touch(u"Common.jpg"_s);
    Touch(u"Noyear.jpg"_s);
    Touch(u"Only_1.jpg"_s);
    Touch(u"Crowd.jpg"_s);
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Alias', 'Common', 0)");
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Old', 'Common', 1930)");
    const struct {
        const char *name;
        QString person, year, role;
        bool marked;
    } cases[] = {
        {"by name", u"Mara Hale"_s, u"0"_s, u"R"_s, true},
        {"whatever the case", u"MARA HALE"_s, u"0"_s, u"R"_s, true},
        {"by name and year", u"Al Roe"_s, u"1950"_s, u"R"_s, true},
        {"of another year", u"Al Roe"_s, u"1960"_s, u"R"_s, false},
        {"of no year", u"Al Roe"_s, u"0"_s, u"R"_s, false},
        {"by the common name", u"Alias"_s, u"0"_s, u"R"_s, true},
        {"by the common name of any year", u"Old"_s, u"0"_s, u"R"_s, true},
        {"by the common name of that year", u"Old"_s, u"1930"_s, u"R"_s, true},
        {"not by that of another year", u"Old"_s, u"1931"_s, u"R"_s, false},
        {"without the year", u"Noyear"_s, u"1950"_s, u"R"_s, true},
        {"an alternate is none", u"Only"_s, u"0"_s, u"R"_s, false},
        {"none", u"Nobody"_s, u"0"_s, u"R"_s, false},
        {"a caption is nobody", u"Crowd"_s, u"0"_s, u"[DivGroup]"_s, false},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM CastCrew");
        Add(u"P1"_s, {c.person, c.role, true, {}, c.year});
        Add(u"P1"_s, {c.person, c.role == u"R"_s ? u"Director"_s : c.role, false, {}, c.year});
        UpdateCredits(browser, u"P1"_s);
        const QModelIndex row = browser.credits.ListCast.index(0, 0);
        EXPECT_EQ(row.data(CreditList::HeadshotRole).toBool(), c.marked) << c.name;
        session.view.mCrewTreeView = true;
        UpdateCredits(browser, u"P1"_s);
        const CrewTree &tree = browser.credits.treeCrew;
        EXPECT_EQ(tree.index(0, 0, tree.index(0, 0)).data(CrewTree::HeadshotRole).toBool(), c.marked) << c.name;
        session.view.mCrewTreeView = false;
    }
    session.view.HighlightHeadshots = false;
    Run(u"UPDATE CastCrew SET Name = 'Mara Hale'");
    UpdateCredits(browser, u"P1"_s);
    EXPECT_FALSE(browser.credits.ListCast.index(0, 0).data(CreditList::HeadshotRole).toBool());
}

TEST_F(CreditsTest, CostNoStatementForEachRow) {
    session.UseUserDefinedStrings = true;
    const auto statements_for = [&](int credits) {
        Run(u"DELETE FROM CastCrew");
        for (int i = 0; i < credits; ++i) {
            Add(u"P1"_s, {u"Name %1"_s.arg(i), u"Role %1"_s.arg(i)});
        }
        UpdateCredits(browser, u"P1"_s);
        EXPECT_EQ(browser.credits.ListCast.rowCount(), credits);
        int statements = 0;
        session.Database->SetObserver([&statements](QStringView) { ++statements; });
        UpdateCredits(browser, u"P1"_s);
        session.Database->SetObserver({});
        return statements;
    };
    EXPECT_EQ(statements_for(200), statements_for(5));
    EXPECT_LE(statements_for(200), 3);
}

TEST_F(CreditsTest, AreFoundWithoutASearchThroughTables) {
    AddProfile(u"P2"_s);
    AddChild(u"P2"_s, u"P1"_s);
    AddEpisode(u"E1"_s);
    Add(u"P1"_s, {u"Mara Hale"_s, u"Keeper"_s});
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('M. Hale', 'Mara Hale', 0)");
    session.view.mShowFullBoxsetCredits = true;
    session.UseUserDefinedStrings = true;
    QStringList statements;
    session.Database->SetObserver([&statements](QStringView statement) { statements += statement.toString(); });
    GetProfileInfos(browser, u"P1"_s, false, false);
    GetProfileInfos(browser, u"E1"_s, true, false);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"0"_s);
    session.Database->SetObserver({});
    statements.removeDuplicates();
    EXPECT_GT(statements.size(), 10);
    for (const QString &statement : statements) {
        if (statement.contains(u"FROM Awards"_s)) {
            continue; // a name may stand anywhere among the nominees
        }
        for (const QString &step : session.Database->QueryPlan(statement)) {
            EXPECT_FALSE(step.startsWith(u"SCAN"_s)) << qPrintable(statement) << "\n" << qPrintable(step);
        }
    }
}

TEST_F(CreditsTest, OfATitleThatIsChosenAreShown) {
    Add(u"P1"_s, {u"Mara Hale"_s, u"Keeper"_s});
    AddProfile(u"P2"_s);
    GetProfileInfos(browser, u"P1|2"_s, false, false);
    EXPECT_EQ(CastTexts(), QStringList{u"Mara Hale"_s});
    GetProfileInfos(browser, u"P2"_s, false, true);
    EXPECT_EQ(CastTexts(), QStringList{u"Mara Hale"_s}) << "kept";
    GetProfileInfos(browser, u"P2"_s, false, false);
    EXPECT_EQ(CastTexts(), QStringList()) << "a title without credits";
    GetProfileInfos(browser, u"P1"_s, false, false);
    GetProfileInfos(browser, u"gone"_s, false, false);
    EXPECT_EQ(CastTexts(), QStringList());
}

TEST_F(CreditsTest, ComeWhenTheirTabIsSelected) {
    Add(u"P1"_s, {u"Mara Hale"_s, u"Keeper"_s});
    AddProfile(u"P2"_s);
    Add(u"P2"_s, {u"Al Roe"_s, u"Diver"_s});
    GetProfileInfos(browser, u"P1"_s, false, false);
    SelectMainTab(browser, 2);
    EXPECT_EQ(CastTexts(), QStringList{u"Mara Hale"_s});
    GetProfileInfos(browser, u"P2"_s, false, false);
    EXPECT_EQ(CastTexts(), QStringList()) << "not read while the tab is hidden";
    SelectMainTab(browser, 1);
    EXPECT_EQ(CastTexts(), QStringList{u"Al Roe"_s});
    GetProfileInfos(browser, u"P1"_s, false, true);
    SelectMainTab(browser, 3);
    SelectMainTab(browser, 1);
    EXPECT_EQ(CastTexts(), QStringList{u"Al Roe"_s}) << "credits that were kept stay";
}

TEST_F(CreditsTest, ReportAFaultToTheirCaller) {
    Run(u"DROP TABLE CastCrew");
    EXPECT_THROW(UpdateCredits(browser, u"P1"_s), sql::SqlError);
}

} // namespace
} // namespace ostrand
