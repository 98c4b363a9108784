#include "browser/TabTitles.h"

#include "browser/BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TabTitlesTest : public BrowserTest {
protected:
    void AddSimilarTitles() {
        const QStringView rows[] = {
            u"SortTitle = 'Mill', Title = 'Two'",
            u"SortTitle = 'mill ', Title = 'One'",
            u"SortTitle = 'Mill', Title = ''",
            u"SortTitle = '', Title = 'Zulu'",
            u"SortTitle = NULL, Title = 'Yard'",
            u"SortTitle = NULL, Title = 'Able'",
            u"SortTitle = 'Émile', Title = 'Émile'",
            u"SortTitle = 'Emil', Title = 'Emil'",
            u"SortTitle = 'co-op', Title = 'Co-op'",
            u"SortTitle = 'Coop', Title = 'Coop'",
            u"SortTitle = 'Two', OriginalTitle = 'B'",
            u"SortTitle = 'Two', OriginalTitle = 'A'",
            u"SortTitle = 'One', OriginalSortTitle = 'Mill'",
            u"SortTitle = 'Old', OriginalSortTitle = 'mill', OriginalTitle = 'Q'",
        };
        int number = 0;
        for (const QStringView row : rows) {
            AddProfile(u"Key_%1"_s.arg(++number), row.toString());
        }
    }
    QStringList Read(const QString &tab) {
        QStringList keys;
        for (const TitleRow &row : browser.tab_titles.Read(session, tab)) {
            keys += row.key;
        }
        return keys;
    }
    int StatementsToRead(const QString &tab) {
        int statements = 0;
        session.Database->SetObserver([&statements](QStringView) { ++statements; });
        Read(tab);
        session.Database->SetObserver({});
        return statements;
    }
    QStringList Selected(const QString &statement) {
        QStringList keys;
        for (auto record = session.Database->OpenRecordset(statement); !record.Eof(); record.MoveNext()) {
            keys += record.Text(0);
        }
        return keys;
    }
};

TEST_F(TabTitlesTest, TitlesComeInTheOrderOfTheDatabase) {
    AddSimilarTitles();
    for (const bool boxset_view : {false, true}) {
        session.view.BoxsetView = boxset_view;
        session.view.mUseOriginalTitle = false;
        EXPECT_EQ(Read(u"All"_s), Selected(u"SELECT ProfileID FROM Profiles ORDER BY SortTitle, Title"_s));
        session.view.mUseOriginalTitle = true;
        EXPECT_EQ(Read(u"All"_s), Selected(u"SELECT ProfileID FROM Profiles ORDER BY OriginalSortTitle, "
                                           "OriginalTitle, SortTitle, Title"_s));
    }
}

TEST_F(TabTitlesTest, ChildrenComeBySortTitleWhicheverTitleIsShown) {
    AddProfile(u"Box"_s);
    AddProfile(u"First"_s, u"SortTitle = 'A', OriginalSortTitle = 'Z'"_s);
    AddProfile(u"Second"_s, u"SortTitle = 'B', OriginalSortTitle = 'Y'"_s);
    AddChild(u"Second"_s, u"Box"_s);
    AddChild(u"First"_s, u"Box"_s);
    session.view.BoxsetView = true;
    for (const bool original : {false, true}) {
        session.view.mUseOriginalTitle = original;
        EXPECT_EQ(Read(u"All"_s), (QStringList{u"Box"_s, u"First"_s, u"Second"_s})) << original;
    }
}

TEST_F(TabTitlesTest, ChildrenOfOtherTypesComeOnlyBelowAParentOfTheTab) {
    AddProfile(u"Box"_s, u"ColType = 'Ordered'"_s);
    AddProfile(u"Child"_s, u"ColType = NULL"_s);
    AddProfile(u"Loose"_s, u"ColType = NULL"_s);
    AddChild(u"Child"_s, u"Box"_s);
    session.view.BoxsetView = true;
    EXPECT_EQ(Read(u"Ordered"_s), (QStringList{u"Box"_s, u"Child"_s}));
    EXPECT_EQ(Read(u"Owned"_s), QStringList());
    EXPECT_EQ(Read(u"All"_s), (QStringList{u"Box"_s, u"Child"_s, u"Loose"_s}));
}

TEST_F(TabTitlesTest, OtherTabsViewsAndOrdersCostNoStatement) {
    AddSimilarTitles();
    EXPECT_EQ(StatementsToRead(u"All"_s), 1);
    for (const bool boxset_view : {false, true}) {
        session.view.BoxsetView = boxset_view;
        EXPECT_EQ(StatementsToRead(u"Owned"_s), 0);
        session.view.mUseOriginalTitle = !session.view.mUseOriginalTitle;
        EXPECT_EQ(StatementsToRead(u"All"_s), 0);
    }
}

TEST_F(TabTitlesTest, AnyChangeOfWhatTheListShowsIsSeen) {
    AddProfile(u"Alpha"_s);
    AddProfile(u"Mill"_s);
    session.view.BoxsetView = true;
    ASSERT_EQ(Read(u"Owned"_s), (QStringList{u"Alpha"_s, u"Mill"_s}));
    const auto date = [this] { return browser.tab_titles.Read(session, u"All"_s)[0].texts[TitleList::PurchaseDate]; };
    Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('Alpha', '2003-02-01')");
    EXPECT_EQ(date(), u"2003-02-01"_s);
    Run(u"UPDATE PurchaseInfo SET PurchaseDate = '2004-02-01'");
    EXPECT_EQ(date(), u"2004-02-01"_s);
    Run(u"UPDATE Profiles SET SortTitle = 'Zulu' WHERE ProfileID = 'Alpha'");
    EXPECT_EQ(Read(u"Owned"_s), (QStringList{u"Mill"_s, u"Alpha"_s}));
    AddChild(u"Mill"_s, u"Alpha"_s);
    EXPECT_EQ(Read(u"Owned"_s), (QStringList{u"Alpha"_s, u"Mill"_s}));
    Run(u"UPDATE Profiles SET ColType = 'Ordered' WHERE ProfileID = 'Alpha'");
    EXPECT_EQ(Read(u"Owned"_s), QStringList());
    Run(u"DELETE FROM Profiles WHERE ProfileID = 'Mill'");
    EXPECT_EQ(Read(u"Ordered"_s), QStringList{u"Alpha"_s});
}

TEST_F(TabTitlesTest, AnotherDatabaseIsReadAnew) {
    AddProfile(u"Alpha"_s);
    ASSERT_EQ(Read(u"All"_s), QStringList{u"Alpha"_s});
    session.Database.reset();
    CreateCollectionDatabase(session, Path(u"Other.mdb"_s));
    EXPECT_EQ(Read(u"All"_s), QStringList());
    AddProfile(u"Beta"_s);
    EXPECT_EQ(Read(u"All"_s), QStringList{u"Beta"_s});
}

TEST_F(TabTitlesTest, AQuoteInTheNameOfATabIsForTheDatabase) {
    AddProfile(u"Box"_s, u"ColType = 'Kid''s'"_s);
    AddProfile(u"Child"_s, u"ColType = NULL"_s);
    AddChild(u"Child"_s, u"Box"_s);
    EXPECT_THROW(Read(u"Kid's"_s), sql::SqlError);
    for (const bool boxset_view : {false, true}) {
        session.view.BoxsetView = boxset_view;
        EXPECT_EQ(Read(u"Kid''s"_s), boxset_view ? (QStringList{u"Box"_s, u"Child"_s}) : QStringList{u"Box"_s});
    }
}

} // namespace
} // namespace ostrand
