#include "browser/BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SpecialOrdersTest : public BrowserTest {
protected:
    void AddGenre(const QString &profile, const QString &genre) {
        Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', %2)"_s.arg(profile, genre));
    }
    void Select(std::function<QString()> Browser::Hooks::*hook, const QString &value) {
        browser.hooks.*hook = [value] { return value; };
    }
};

TEST_F(SpecialOrdersTest, GroupsByGenre) {
    AddProfile(u"Mill"_s);
    AddProfile(u"Arc"_s);
    AddGenre(u"Mill"_s, u"'Drama'"_s);
    AddGenre(u"Arc"_s, u"'Drama'"_s);
    AddGenre(u"Arc"_s, u"'Action'"_s);
    EXPECT_EQ(Groups(u"Genre"_s), QStringList({u"Action"_s, u"     Arc"_s, u"Drama"_s, u"     Arc"_s, u"     Mill"_s}));
    EXPECT_EQ(Keys(), QStringList({u"1"_s, u"Arc|1"_s, u"2"_s, u"Arc|2"_s, u"Mill|2"_s}));
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 3"_s) << "headers do not count";
    EXPECT_EQ(browser.listSeries.RowOfTitle(u"Arc"_s), 1);
    EXPECT_TRUE(browser.SpecialOrder);
    EXPECT_FALSE(browser.listSeries.IsSorted());
    const TitleRow &header = browser.listSeries.At(0);
    EXPECT_TRUE(header.header);
    EXPECT_EQ(header.tag, u"OrderCategory"_s);
    const TitleRow &row = browser.listSeries.At(1);
    EXPECT_FALSE(row.header);
    EXPECT_EQ(row.tag, u"Arc"_s);
    EXPECT_EQ(row.tool_tip, u"Arc"_s);
    EXPECT_EQ(row.texts[TitleList::SortTitle], u"Arc"_s);
    EXPECT_EQ(browser.current_row, 0);
}

TEST_F(SpecialOrdersTest, GroupsByAFieldOfTheProfile) {
    struct {
        const char *name;
        QString category;
        QString column;
        QString empty_header;
    } const rows[] = {
        {"rating", u"Rating"_s, u"Rating"_s, u"No Rating given"_s},
        {"medium", u"Medium"_s, u"Medium"_s, u"No Medium given"_s},
        {"case type", u"CaseType"_s, u"CaseType"_s, u"No Case Type specified"_s},
        {"locality", u"Locality"_s, u"Locality"_s, u"No Locality given"_s},
    };
    for (const bool boxset_view : {true, false}) {
        session.view.BoxsetView = boxset_view;
        for (const auto &row : rows) {
            SCOPED_TRACE(row.name);
            Run(u"DELETE FROM Profiles");
            AddProfile(u"Mill"_s, u"%1 = 'b'"_s.arg(row.column));
            AddProfile(u"Arc"_s, u"%1 = 'b'"_s.arg(row.column));
            AddProfile(u"Bay"_s, u"%1 = 'a'"_s.arg(row.column));
            AddProfile(u"Cup"_s);
            EXPECT_EQ(Groups(row.category), QStringList({row.empty_header, u"     Cup"_s, u"a"_s, u"     Bay"_s, u"b"_s,
                                                         u"     Arc"_s, u"     Mill"_s}));
            EXPECT_EQ(browser.labelFilterCount, u"Filtered: 4"_s);
        }
    }
}

TEST_F(SpecialOrdersTest, EmptyAndNullValuesAreOneGroup) {
    AddProfile(u"Mill"_s, u"Rating = ''"_s);
    AddProfile(u"Arc"_s, u"Rating = Null"_s);
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"No Rating given"_s, u"     Arc"_s, u"     Mill"_s}));
    Run(u"DELETE FROM Profiles WHERE ProfileID = 'Arc'");
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"No Rating given"_s, u"     Mill"_s}));
}

TEST_F(SpecialOrdersTest, LocalityListsTheEmptyGroupTwice) {
    session.view.BoxsetView = false;
    AddProfile(u"Mill"_s, u"Locality = ''"_s);
    AddProfile(u"Arc"_s, u"Locality = Null"_s);
    EXPECT_EQ(Groups(u"Locality"_s), QStringList({u"No Locality given"_s, u"     Arc"_s, u"     Mill"_s,
                                                  u"No Locality given"_s, u"     Arc"_s, u"     Mill"_s}));
}

TEST_F(SpecialOrdersTest, NullGenreJoinsTheEmptyGroup) {
    Run(u"DROP TABLE Genres");
    Run(u"CREATE TABLE Genres (ProfileID varchar NOT NULL, Genre varchar)");
    AddProfile(u"Mill"_s);
    AddProfile(u"Arc"_s);
    AddProfile(u"Bay"_s);
    AddGenre(u"Mill"_s, u"''"_s);
    AddGenre(u"Arc"_s, u"Null"_s);
    EXPECT_EQ(Groups(u"Genre"_s), QStringList({u"No Genre given"_s, u"     Arc"_s, u"     Mill"_s}))
        << "a profile without a genre is in no group";
}

TEST_F(SpecialOrdersTest, GroupsRespectTheTab) {
    AddProfile(u"Mill"_s, u"Rating = 'PG', Locality = 'Norway'"_s);
    AddProfile(u"Arc"_s, u"Rating = 'R', Locality = 'Chile', ColType = 'Ordered'"_s);
    AddProfile(u"Bay"_s, u"Rating = 'PG', Locality = 'Norway', ColType = 'Ordered'"_s);
    AddGenre(u"Mill"_s, u"'Drama'"_s);
    AddGenre(u"Arc"_s, u"'Action'"_s);
    session.view.IncludeInOwned = u"Ordered"_s;
    SelectTab(u"Owned"_s);
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"PG"_s, u"     Mill"_s})) << "IncludeInOwned is for the plain list";
    EXPECT_EQ(Groups(u"Genre"_s), QStringList({u"Action"_s, u"Drama"_s, u"     Mill"_s}));
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 1"_s);
    session.view.BoxsetView = false;
    EXPECT_EQ(Groups(u"Locality"_s), QStringList({u"Norway"_s, u"     Mill"_s}));
}

TEST_F(SpecialOrdersTest, TitlesWithoutAValueJoinFromEveryTab) {
    AddProfile(u"Mill"_s, u"Rating = Null"_s);
    AddProfile(u"Arc"_s, u"Rating = Null, ColType = 'Ordered'"_s);
    AddProfile(u"Bay"_s, u"Rating = '', ColType = 'Ordered'"_s);
    SelectTab(u"Owned"_s);
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"No Rating given"_s, u"     Arc"_s, u"     Mill"_s}));
}

TEST_F(SpecialOrdersTest, LocalityPutsChildrenWithTheSameValueBelow) {
    AddProfile(u"Box"_s, u"Locality = 'Norway'"_s);
    AddProfile(u"Two"_s, u"Locality = 'Norway'"_s);
    AddProfile(u"One"_s, u"Locality = 'Norway'"_s);
    AddProfile(u"Other"_s, u"Locality = 'Chile'"_s);
    AddProfile(u"Plain"_s, u"Locality = Null"_s);
    AddProfile(u"None"_s, u"Locality = ''"_s);
    AddProfile(u"Bare"_s, u"Locality = Null"_s);
    for (const QString &child : {u"One"_s, u"Two"_s, u"Other"_s}) {
        AddChild(child, u"Box"_s);
    }
    AddChild(u"Bare"_s, u"Plain"_s);
    const QStringList empty = {u"No Locality given"_s, u"     None"_s, u"     Plain"_s, u"          Bare"_s};
    EXPECT_EQ(Groups(u"Locality"_s),
              empty + empty +
                  QStringList({u"Chile"_s, u"Norway"_s, u"     Box"_s, u"          One"_s, u"          Two"_s}));
    session.view.BoxsetView = false;
    EXPECT_EQ(Groups(u"Locality"_s).mid(8),
              QStringList({u"Chile"_s, u"     Other"_s, u"Norway"_s, u"     Box"_s, u"     One"_s, u"     Two"_s}));
}

TEST_F(SpecialOrdersTest, ChildrenOfALocalitySortByTheirCustomTitles) {
    AddProfile(u"Box"_s, u"Locality = 'Norway'"_s);
    AddProfile(u"One"_s, u"Locality = 'Norway', CustomTitle = 'Zebra'"_s);
    AddProfile(u"Two"_s, u"Locality = 'Norway', CustomSortTitle = 'Antelope'"_s);
    AddChild(u"One"_s, u"Box"_s);
    AddChild(u"Two"_s, u"Box"_s);
    session.view.mUseCustomTitle = true;
    const QStringList plain = {u"Norway"_s, u"     Box"_s, u"          One"_s, u"          Two"_s};
    EXPECT_EQ(Groups(u"Locality"_s), plain);
    EXPECT_EQ(Column(TitleList::SortTitle), QStringList({{}, u"Box"_s, u"Zebra"_s, u"Antelope"_s}));
}

TEST_F(SpecialOrdersTest, LocalityWithAQuoteFailsAndLeavesAPartOfTheList) {
    AddProfile(u"Arc"_s, u"Locality = 'Chile'"_s);
    AddProfile(u"Mill"_s, u"Locality = 'O''Higgins'"_s);
    EXPECT_THROW(SpecialProfileOrder(browser, u"Locality"_s), sql::SqlError);
    EXPECT_EQ(Column(), QStringList({u"Chile"_s, u"     Arc"_s, u"O'Higgins"_s}));
    EXPECT_TRUE(browser.SpecialOrder);
}

TEST_F(SpecialOrdersTest, OtherValuesWithAQuoteWork) {
    AddProfile(u"Mill"_s, u"Rating = 'O''K'"_s);
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"O'K"_s, u"     Mill"_s}));
}

TEST_F(SpecialOrdersTest, HeadersAreTranslated) {
    AddProfile(u"Mill"_s, u"Medium = 'Tape'"_s);
    AddProfile(u"Arc"_s);
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Tape', 'Band')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('No Medium given', 'Ohne')");
    session.UseUserDefinedStrings = true;
    EXPECT_EQ(Groups(u"Medium"_s), QStringList({u"Ohne"_s, u"     Arc"_s, u"Band"_s, u"     Mill"_s}));
}

TEST_F(SpecialOrdersTest, TitlesThatShareAValue) {
    AddProfile(u"Mill"_s, u"ColNo = '1234567'"_s);
    AddProfile(u"Arc"_s, u"ColType = 'Ordered'"_s);
    AddProfile(u"Bay"_s);
    for (const QString &profile : {u"Mill"_s, u"Arc"_s}) {
        Run(u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('%1', 'Fran''s')"_s.arg(profile));
        Run(u"INSERT INTO Features (ProfileID, Feature) VALUES ('%1', 'Trailer')"_s.arg(profile));
        for (int i = 1; i <= 2; ++i) {
            Run(u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language) VALUES ('%1', %2, 'Czech')"_s.arg(profile)
                    .arg(i));
            Run(u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('%1', 'North Bay', '%2')"_s.arg(profile).arg(
                i));
        }
    }
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Trailer', 'Vorschau')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Other Bay', 'North Bay')");
    session.UseUserDefinedStrings = true;
    Select(&Browser::Hooks::selected_subtitle, u"Fran's"_s);
    Select(&Browser::Hooks::selected_feature, u"Vorschau"_s);
    Select(&Browser::Hooks::selected_audio, u"Czech"_s);
    Select(&Browser::Hooks::selected_studio, u"North Bay"_s);
    for (const QString &category : {u"Subtitle"_s, u"Feature"_s, u"AudioFormat"_s, u"Studio"_s}) {
        SCOPED_TRACE(category.toStdString());
        SelectTab(u"All"_s);
        EXPECT_EQ(Groups(category), QStringList({u"Arc"_s, u"Mill"_s}));
        EXPECT_EQ(Keys(), QStringList({u"Arc|0"_s, u"Mill|0"_s}));
        EXPECT_EQ(browser.labelFilterCount, u"Filtered: 2"_s);
        EXPECT_EQ(Column(TitleList::Number), QStringList({u"     "_s, u"34567"_s}));
        EXPECT_EQ(session.CurrentProfileID, u"Arc"_s);
        SelectTab(u"Owned"_s);
        EXPECT_EQ(Groups(category), QStringList{u"Mill"_s});
    }
}

TEST_F(SpecialOrdersTest, NothingSelectedSharesTheEmptyValue) {
    AddProfile(u"Mill"_s);
    EXPECT_EQ(Groups(u"Studio"_s), QStringList());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
}

TEST_F(SpecialOrdersTest, CustomTitlesOrderWithoutShowing) {
    AddProfile(u"Arc"_s, u"Rating = 'R', CustomTitle = 'Z', CustomSortTitle = 'Z', Description = 'Cut'"_s);
    AddProfile(u"Mill"_s, u"Rating = 'R', CustomTitle = 'B', CustomSortTitle = 'B'"_s);
    session.view.mShowDescription = true;
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"R"_s, u"     Arc"_s, u"     Mill"_s}));
    session.view.mUseCustomTitle = true;
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"R"_s, u"     Mill"_s, u"     Arc"_s}));
    EXPECT_EQ(Column(TitleList::SortTitle), QStringList({QString(), u"B"_s, u"Z"_s}));
    EXPECT_EQ(Movies(), QStringList({u"B"_s, u"Z: Cut"_s})) << "the plain list shows them";
}

TEST_F(SpecialOrdersTest, OriginalTitlesOrderAndShow) {
    AddProfile(u"Arc"_s, u"Rating = 'R', OriginalTitle = 'Z', OriginalSortTitle = 'Z'"_s);
    AddProfile(u"Mill"_s, u"Rating = 'R', OriginalTitle = 'B', OriginalSortTitle = 'B'"_s);
    session.view.mUseOriginalTitle = true;
    EXPECT_EQ(Groups(u"Rating"_s), QStringList({u"R"_s, u"     B"_s, u"     Z"_s}));
}

TEST_F(SpecialOrdersTest, WidthsAndColours) {
    AddProfile(u"Mill"_s, u"Rating = 'R'"_s);
    Groups(u"Rating"_s);
    EXPECT_EQ(OptionalWidths(), (std::vector<double>{0.25, 0, 0, 0}));
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::KeepBold);
    session.view.ProfilesSortKey = 4;
    session.view.mcolorlist = false;
    Groups(u"Rating"_s);
    EXPECT_EQ(OptionalWidths(), (std::vector<double>{0, 0, 0.25, 0}));
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::None);
}

} // namespace
} // namespace ostrand
