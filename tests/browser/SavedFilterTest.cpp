#include "browser/BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SavedFilterTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        AddProfile(u"Mill"_s);
        AddProfile(u"Arc"_s, u"ColType = 'Ordered'"_s);
        AddProfile(u"Bay"_s);
        GetMovieNames(browser);
    }
    void Save(const QString &name, const QString &tail, const QString &from = u"Profiles p"_s) {
        Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('%1', '%2')"_s.arg(
            EscapeSql(name),
            EscapeSql(u"SELECT p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.OriginalTitle, p.OriginalSortTitle, "
                      "p.Description FROM %1 %2"_s.arg(from, tail))));
    }
    QStringList Filter(const QString &name) {
        browser.comboFilter_text = name;
        return Groups(u"Filter"_s);
    }
    void ExpectInvalid() {
        Expect(u"SQL Query is invalid!"_s, u"SQL Query invalid!"_s, MessageIcon::Warning);
        Log(kTraceError);
    }
};

TEST_F(SavedFilterTest, ListsWhatTheStatementGives) {
    Save(u"It's late"_s, u"WHERE p.Title <> 'Arc' ORDER BY p.Title DESC"_s);
    SelectTab(u"Ordered"_s);
    EXPECT_EQ(Filter(u"It's late"_s), QStringList({u"Mill"_s, u"Bay"_s})) << "whatever the tab";
    EXPECT_EQ(Keys(), QStringList({u"Mill|0"_s, u"Bay|0"_s}));
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 2"_s);
    EXPECT_EQ(session.CurrentProfileID, u"Mill"_s);
    EXPECT_EQ(browser.current_row, 0);
    EXPECT_TRUE(browser.SpecialOrder);
    EXPECT_FALSE(browser.listSeries.IsSorted());
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::KeepBold);
}

TEST_F(SavedFilterTest, WorksWithCustomTitlesThatItDoesNotGive) {
    session.view.mUseCustomTitle = true;
    Save(u"All"_s, u"ORDER BY p.Title"_s);
    EXPECT_EQ(Filter(u"All"_s), QStringList({u"Arc"_s, u"Bay"_s, u"Mill"_s}));
}

TEST_F(SavedFilterTest, VariableGivesTheTab) {
    Save(u"Tab"_s, u"WHERE p.ColType = 'OSV_CurrentColType' ORDER BY p.Title"_s);
    SelectTab(u"Ordered"_s);
    EXPECT_EQ(Filter(u"Tab"_s), QStringList{u"Arc"_s});
}

TEST_F(SavedFilterTest, TruthValuesInQuotesWork) {
    Run(u"INSERT INTO CastCrew (ProfileID, Name, Position, IsCast) VALUES ('Bay', 'Ada Holm', 1, True)");
    Save(u"Cast"_s, u"WHERE p.ProfileID = c.ProfileID AND c.IsCast = 'true'"_s, u"Profiles p, CastCrew c"_s);
    EXPECT_EQ(Filter(u"Cast"_s), QStringList{u"Bay"_s});
}

TEST_F(SavedFilterTest, CancelLeavesTheList) {
    Save(u"Ask"_s, u"WHERE p.Title LIKE '*$Part$*' ORDER BY p.Title"_s);
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'Part'"_s, std::nullopt);
    EXPECT_EQ(Filter(u"Ask"_s), QStringList({u"Arc"_s, u"Bay"_s, u"Mill"_s}));
    EXPECT_EQ(browser.current_row, 0);
    EXPECT_TRUE(browser.SpecialOrder) << "set before the question";
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'Part'"_s, u"il"_s);
    EXPECT_EQ(Filter(u"Ask"_s), QStringList{u"Mill"_s});
}

TEST_F(SavedFilterTest, EmptyResultIsNormal) {
    Save(u"None"_s, u"WHERE p.Title = 'Nothing'"_s);
    EXPECT_EQ(Filter(u"None"_s), QStringList());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    EXPECT_EQ(browser.current_row, -1);
}

TEST_F(SavedFilterTest, FaultyStatementIsTold) {
    Save(u"Bad"_s, u"WHERE"_s);
    ExpectInvalid();
    EXPECT_EQ(Filter(u"Bad"_s), QStringList()) << "the list was emptied before";
    const QStringList lines = LogLines();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith(u"Error:    SpecialProfileOrder, Invalid SQL query: SELECT p.ProfileID"_s));
    EXPECT_EQ(browser.current_row, -1);
}

TEST_F(SavedFilterTest, UnknownNameIsToldAndLeavesTheList) {
    ExpectInvalid();
    EXPECT_EQ(Filter(u"Gone"_s), QStringList({u"Arc"_s, u"Bay"_s, u"Mill"_s}));
    EXPECT_EQ(browser.current_row, 0);
}

TEST_F(SavedFilterTest, MissingColumnsAreTold) {
    Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Few', 'SELECT p.ProfileID FROM Profiles p')");
    ExpectInvalid();
    EXPECT_EQ(Filter(u"Few"_s), QStringList());
}

TEST_F(SavedFilterTest, TitleThatComesTwiceEndsTheList) {
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Bay', 'Drama')");
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Bay', 'Crime')");
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Mill', 'Drama')");
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Arc', 'Drama')");
    Save(u"Twice"_s, u"WHERE p.ProfileID = g.ProfileID ORDER BY p.Title"_s, u"Profiles p, Genres g"_s);
    ExpectInvalid();
    EXPECT_EQ(Filter(u"Twice"_s), QStringList({u"Arc"_s, u"Bay"_s})) << "as far as it came";
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 3"_s) << "the count is not reached";
}

TEST_F(SavedFilterTest, WithoutADatabaseItIsTold) {
    session.Database.reset();
    Expect(u"SQL Query is invalid!"_s, u"SQL Query invalid!"_s, MessageIcon::Warning);
    Filter(u"Any"_s);
}

} // namespace
} // namespace ostrand
