#include "browser/Appearances.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class Appearances : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Film(u"P1"_s, u"Amber"_s, u"Zed"_s);
        Film(u"P2"_s, u"Birch"_s, u"Birch"_s);
        for (const char16_t *statement : {
                 u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle) VALUES ('S1', 'Harbour', 'Hafen', "
                 u"'Harbour, The')",
                 u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle) "
                 u"VALUES ('E1', 'S1', '2', '3', 'Storm', 'Sturm')",
                 u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeOriginalTitle) VALUES ('E2', "
                 u"'S1', '1', '4', 'Ebbe')",
             }) {
            Run(statement);
        }
    }

    void Film(const QString &id, const QString &title, const QString &sort) {
        Run(u"INSERT INTO Profiles (ProfileID, Title, SortTitle) VALUES ('%1', '%2', '%3')"_s.arg(id, title, sort));
    }
    /// `year` empty for NULL; `marks` holds "v" and "u" for the two flags.
    void Credit(const QString &id, const QString &name, const QString &role, bool cast = true,
                const QString &year = u"0"_s, const QString &marks = {}) {
        const bool episode = id.startsWith(u'E');
        const auto flag = [](bool on) { return on ? u"True"_s : u"False"_s; };
        Run(u"INSERT INTO %1 (%2, Name, Role, Position, IsCast, BirthYear, IsVoice, IsUncredited) VALUES "
            "('%3', '%4', '%5', %6, %7, %8, %9, "_s.arg(episode ? u"TVCastCrew"_s : u"CastCrew"_s,
                                                        episode ? u"EpisodeID"_s : u"ProfileID"_s, id, EscapeSql(name),
                                                        EscapeSql(role), QString::number(++position_), flag(cast),
                                                        year.isEmpty() ? u"NULL"_s : year, flag(marks.contains(u'v'))) +
            flag(marks.contains(u'u')) + u')');
    }
    void Alias(const QString &alias, const QString &common, int year = 0) {
        Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('%1', '%2', %3)"_s
                .arg(EscapeSql(alias), EscapeSql(common))
                .arg(year));
    }
    /// Each row as "key: its texts joined by |".
    QStringList Find(const QString &name, int year = 0) {
        const auto rows = GetAppearances(session, name, year);
        if (!rows) {
            return {u"untouched"_s};
        }
        QStringList lines;
        for (const ListTableRow &row : *rows) {
            lines += row.key + u": "_s + row.texts.join(u'|');
        }
        return lines;
    }

private:
    int position_ = 0;
};

TEST_F(Appearances, HaveTheirTexts) {
    Credit(u"P1"_s, u"Mara Hale"_s, u"Keeper"_s);
    Credit(u"E1"_s, u"Mara Hale"_s, u"Guest"_s);
    EXPECT_EQ(Find(u"Mara Hale"_s),
              (QStringList{u"E1: Harbour|Guest|Storm||Harbour, The - 2 - 3"_s, u"P1: Amber|Keeper|||Zed"_s}));
    const auto rows = GetAppearances(session, u"Mara Hale"_s, 0);
    EXPECT_EQ(int((*rows)[0].kind), int(ListRowKind::Episode));
    EXPECT_EQ(int((*rows)[1].kind), int(ListRowKind::Movie));
}

TEST_F(Appearances, AreSortedByTheirHiddenText) {
    for (const QString &id : {u"P1"_s, u"P2"_s, u"E1"_s, u"E2"_s}) {
        Credit(id, u"Mara Hale"_s, u"R"_s);
    }
    EXPECT_EQ(Find(u"Mara Hale"_s),
              (QStringList{u"P2: Birch|R|||Birch"_s, u"E2: Harbour|R|* Ebbe||Harbour, The - 1 - 4"_s,
                           u"E1: Harbour|R|Storm||Harbour, The - 2 - 3"_s, u"P1: Amber|R|||Zed"_s}));
}

TEST_F(Appearances, FollowTheSwitchesOfTitles) {
    Run(u"UPDATE Profiles SET OriginalTitle = 'Ambre', CustomTitle = 'Mine', CustomSortTitle = 'M' WHERE ProfileID = "
        u"'P1'");
    Credit(u"P1"_s, u"Mara Hale"_s, u"R"_s);
    Credit(u"E1"_s, u"Mara Hale"_s, u"R"_s);
    session.view.mUseCustomTitle = true;
    EXPECT_EQ(Find(u"Mara Hale"_s).filter(u"P1"_s), QStringList{u"P1: Mine|R|||M"_s});
    session.view.mUseCustomTitle = false;
    session.view.mUseOriginalTitle = true;
    EXPECT_EQ(Find(u"Mara Hale"_s), (QStringList{u"P1: Ambre|R|||Ambre"_s, u"E1: Hafen|R|Sturm||Hafen - 2 - 3"_s}));
}

TEST_F(Appearances, TellTheRoleWithItsMarks) {
    const struct {
        const char *name;
        QString role, marks;
        bool cast;
        QString text;
    } cases[] = {
        {"plain", u"Keeper"_s, {}, true, u"W\u00E4rter"_s},
        {"voice", u"Keeper"_s, u"v"_s, true, u"W\u00E4rter (Stimme)"_s},
        {"uncredited", u"Keeper"_s, u"u"_s, true, u"W\u00E4rter (uncredited)"_s},
        {"both", u"Keeper"_s, u"vu"_s, true, u"W\u00E4rter (Stimme) (uncredited)"_s},
        {"crew as it stands", u"Keeper"_s, u"vu"_s, false, u"Keeper"_s},
        {"none", {}, {}, true, {}},
    };
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Keeper', 'W\u00E4rter')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('(voice)', '(Stimme)')");
    for (const auto &c : cases) {
        Run(u"DELETE FROM CastCrew");
        Credit(u"P1"_s, u"Mara Hale"_s, c.role, c.cast, u"0"_s, c.marks);
        EXPECT_EQ(Find(u"Mara Hale"_s), QStringList{u"P1: Amber|"_s + c.text + u"|||Zed"_s}) << c.name;
    }
}

TEST_F(Appearances, LeaveDividersOut) {
    Credit(u"P1"_s, u"Mara Hale"_s, u"[Divider]"_s);
    Credit(u"E1"_s, u"Mara Hale"_s, u"[Divider]"_s);
    Credit(u"P2"_s, u"Mara Hale"_s, u"Diver"_s);
    EXPECT_EQ(Find(u"Mara Hale"_s), QStringList{u"P2: Birch|Diver|||Birch"_s});
}

TEST_F(Appearances, CoverAllNamesOfAPerson) {
    Alias(u"M. Hale"_s, u"Mara Hale"_s);
    Alias(u"Mara O'Hale"_s, u"Mara Hale"_s);
    Alias(u"MARA HALE"_s, u"Mara Hale"_s);
    Credit(u"P1"_s, u"Mara Hale"_s, u"A"_s);
    Credit(u"P2"_s, u"M. Hale"_s, u"B"_s);
    Credit(u"E1"_s, u"Mara O'Hale"_s, u"C"_s);
    const QStringList common = {u"P2: Birch|B||M. Hale|Birch"_s,
                                u"E1: Harbour|C|Storm|Mara O'Hale|Harbour, The - 2 - 3"_s, u"P1: Amber|A|||Zed"_s};
    EXPECT_EQ(Find(u"Mara Hale"_s), common) << "an alias that differs in case only is not searched again";
    EXPECT_EQ(Find(u"M. Hale"_s),
              (QStringList{u"P2: Birch|B|||Birch"_s, u"E1: Harbour|C|Storm|Mara O'Hale|Harbour, The - 2 - 3"_s,
                           u"P1: Amber|A||Mara Hale|Zed"_s}))
        << "told is the name that was asked for";
    EXPECT_EQ(Find(u"Nobody"_s), QStringList());
}

TEST_F(Appearances, KeepPersonsOfOneNameApart) {
    Credit(u"P1"_s, u"Al Roe"_s, u"none"_s);
    Credit(u"P1"_s, u"Al Roe"_s, u"null"_s, true, {});
    Credit(u"P1"_s, u"Al Roe"_s, u"fifty"_s, true, u"1950"_s);
    Credit(u"E1"_s, u"Al Roe"_s, u"sixty"_s, true, u"1960"_s);
    const struct {
        int year;
        QStringList roles;
    } cases[] = {{0, {u"none"_s, u"null"_s}}, {1950, {u"fifty"_s}}, {1960, {u"sixty"_s}}, {1970, {}}};
    for (const auto &c : cases) {
        QStringList roles;
        const auto rows = GetAppearances(session, u"Al Roe"_s, c.year);
        for (const ListTableRow &row : *rows) {
            roles += row.texts[int(AppearanceText::Role)];
        }
        EXPECT_EQ(roles, c.roles) << c.year;
    }
}

TEST_F(Appearances, AnAliasIsFoundByTheBirthYear) {
    Alias(u"Al"_s, u"Al Roe"_s, 1950);
    Credit(u"P1"_s, u"Al Roe"_s, u"R"_s, true, u"1950"_s);
    EXPECT_EQ(Find(u"Al"_s, 1950), QStringList{u"P1: Amber|R||Al Roe|Zed"_s});
    EXPECT_EQ(Find(u"Al"_s, 1960), QStringList());
}

TEST_F(Appearances, FollowTheSettings) {
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('P1', 'E2')");
    for (const QString &id : {u"P1"_s, u"E1"_s, u"E2"_s}) {
        Credit(id, u"M"_s, u"R"_s);
        Credit(id, u"N"_s, u"R"_s);
    }
    Alias(u"N"_s, u"M"_s);
    const struct {
        const char *name;
        bool movies, tv, assigned_only;
        QStringList keys;
    } cases[] = {
        {"all", true, true, false, {u"E2"_s, u"E2"_s, u"E1"_s, u"E1"_s, u"P1"_s, u"P1"_s}},
        {"films", true, false, false, {u"P1"_s, u"P1"_s}},
        {"series", false, true, false, {u"E2"_s, u"E2"_s, u"E1"_s, u"E1"_s}},
        {"assigned episodes", false, true, true, {u"E2"_s, u"E2"_s}},
        {"films and assigned episodes", true, true, true, {u"E2"_s, u"E2"_s, u"P1"_s, u"P1"_s}},
    };
    for (const auto &c : cases) {
        session.view.IncludeMovies = c.movies;
        session.view.IncludeTV = c.tv;
        session.view.IncludeAssignedEpisodesOnly = c.assigned_only;
        QStringList keys;
        const auto rows = GetAppearances(session, u"M"_s, 0);
        for (const ListTableRow &row : *rows) {
            keys += row.key;
        }
        EXPECT_EQ(keys, c.keys) << c.name;
    }
}

TEST_F(Appearances, StopAtOnce) {
    EXPECT_EQ(Find({}), QStringList{u"untouched"_s});
    session.view.IncludeMovies = session.view.IncludeTV = false;
    EXPECT_EQ(Find(u"Mara Hale"_s), QStringList{u"untouched"_s});
}

TEST_F(Appearances, OfNamelessTitlesAreListed) {
    Film(u"P3"_s, {}, {});
    Credit(u"P3"_s, u"Mara Hale"_s, u"R"_s);
    EXPECT_EQ(Find(u"Mara Hale"_s), QStringList{u"P3: |R|||"_s});
}

TEST_F(Appearances, ReportNoFailure) {
    Credit(u"E1"_s, u"Mara Hale"_s, u"R"_s);
    Run(u"DROP TABLE CastCrew");
    EXPECT_EQ(Find(u"Mara Hale"_s).size(), 1);
    session.Database.reset();
    EXPECT_EQ(Find(u"Mara Hale"_s), QStringList());
}

TEST_F(Appearances, AreShownInAListWindow) {
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('entries', 'Eintr\u00E4ge')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Role', 'Rolle')");
    Credit(u"P1"_s, u"Mara Hale"_s, u"A"_s);
    Credit(u"E1"_s, u"Mara Hale"_s, u"B"_s);
    std::vector<std::unique_ptr<ListTable>> shown;
    ShowAppearances(session, u"Mara Hale"_s, 0); // no window, nothing happens
    session.window.ShowListView = [&](std::unique_ptr<ListTable> table) { shown.push_back(std::move(table)); };
    ShowAppearances(session, u"Mara Hale"_s, 0);
    ShowAppearances(session, u"Nobody"_s, 1950);
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0]->caption, u"Mara Hale (2 Eintr\u00E4ge)"_s);
    EXPECT_EQ(shown[1]->caption, u"Nobody (0 Eintr\u00E4ge)"_s);
    QStringList columns;
    for (int column = 0; column < shown[0]->columnCount(); ++column) {
        columns += shown[0]->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    EXPECT_EQ(columns, (QStringList{u"Movie/Series"_s, u"Rolle"_s, u"Episode Title"_s, u"Credited as"_s}))
        << "the text that sorts is not shown";
    EXPECT_EQ(shown[0]->rowCount(), 2);
}

} // namespace
} // namespace ostrand
