#include "database/TitlesDue.h"

#include "CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr double kToday = 45429; // where the clock of the tests stands

class TitlesDueTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Run(u"INSERT INTO Users (UserID) VALUES ('Nora')");
        Run(u"INSERT INTO Users (UserID) VALUES ('Otto''s')");
        session.window.ShowListView = [this](std::unique_ptr<ListTable> table) { shown.push_back(std::move(table)); };
    }
    void Lend(const QString &id, const QString &user, const QString &due) {
        Run(u"INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ('%1', '%2', %3)"_s.arg(id, EscapeSql(user),
                                                                                                 due));
    }
    void AddProfile(const QString &id, const QString &title) {
        Run(u"INSERT INTO Profiles (ProfileID, Title, SortTitle, UPC) VALUES ('%1', '%2', '%2', 'U-%1')"_s.arg(id,
                                                                                                               title));
    }
    void Return(int number, const QString &id, const QString &user, double when, const QString &type) {
        Run(u"INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (%1, '%2', '%3', '%4', %5)"_s
                .arg(number)
                .arg(id, EscapeSql(user), type)
                .arg(when, 0, 'f', 3));
    }
    QStringList Listed() {
        QStringList lines;
        const std::unique_ptr<ListTable> table = TitlesDue(session);
        for (const ListTableRow &row : table->Rows()) {
            lines << row.texts.join(u'|');
        }
        return lines;
    }

    std::vector<std::unique_ptr<ListTable>> shown;
};

TEST_F(TitlesDueTest, ATitleIsOverdueFromTheDayItIsDue) {
    const struct {
        double due;
        bool overdue;
    } cases[] = {
        {kToday + 1, false}, {kToday + 0.99, true}, {kToday, true}, {kToday - 0.01, true}, {kToday - 400, true}};
    for (const auto &c : cases) {
        EXPECT_EQ(IsOverdue(session, c.due, u"Nora"_s, u"P1"_s), c.overdue) << c.due - kToday;
    }
}

TEST_F(TitlesDueTest, AReturnAfterTheDateEndsIt) {
    AddProfile(u"P1"_s, u"Amber"_s);
    AddProfile(u"P2"_s, u"Birch"_s);
    const struct {
        const char *name;
        QString id, user;
        double when;
        QString type;
        bool overdue;
    } cases[] = {
        {"returned before", u"P1"_s, u"Otto's"_s, kToday - 4, u"Returned"_s, true},
        {"another event", u"P1"_s, u"Otto's"_s, kToday - 2, u"Watched"_s, true},
        {"another user", u"P1"_s, u"Nora"_s, kToday - 2, u"Returned"_s, true},
        {"another title", u"P2"_s, u"Otto's"_s, kToday - 2, u"Returned"_s, true},
        {"returned that day", u"P1"_s, u"Otto's"_s, kToday - 3, u"Returned"_s, false},
        {"returned later", u"P1"_s, u"Otto's"_s, kToday - 1.5, u"Returned"_s, false},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Events");
        Return(1, c.id, c.user, c.when, c.type);
        ASSERT_EQ(Rows(u"SELECT EventID FROM Events"), (QStringList{u"1"_s})) << c.name;
        EXPECT_EQ(IsOverdue(session, kToday - 3, u"Otto's"_s, u"P1"_s), c.overdue) << c.name;
    }
}

TEST_F(TitlesDueTest, ListsWhatIsDueTheLatestFirst) {
    AddProfile(u"P1"_s, u"Cedar"_s);
    AddProfile(u"P2"_s, u"Amber"_s);
    AddProfile(u"P3"_s, u"Birch"_s);
    AddProfile(u"P4"_s, u"Elm"_s);
    AddProfile(u"P5"_s, u"Fir"_s);
    Lend(u"P1"_s, u"Nora"_s, u"45419"_s);
    Lend(u"P2"_s, u"Otto's"_s, u"45419"_s);
    Lend(u"P3"_s, u"Nora"_s, u"45429"_s);
    Lend(u"P4"_s, u"Nora"_s, u"45430"_s);
    Lend(u"P5"_s, u"Nora"_s, u"Null"_s);
    Lend(u"gone"_s, u"Nora"_s, u"43429"_s);
    EXPECT_EQ(Listed(), (QStringList{u"Birch|U-P3|Nora|000"_s, u"Amber|U-P2|Otto's|010"_s, u"Cedar|U-P1|Nora|010"_s,
                                     u"||Nora|2000"_s}));
}

TEST_F(TitlesDueTest, ShowsAListWindowWithItsColumns) {
    AddProfile(u"P1"_s, u"Cedar"_s);
    Lend(u"P1"_s, u"Nora"_s, u"45419"_s);
    ShowTitlesDue(session);
    ASSERT_EQ(shown.size(), 1u);
    const ListTable &table = *shown.front();
    EXPECT_EQ(table.caption, u"Titles due to be returned"_s);
    QStringList columns;
    for (int i = 0; i < table.columnCount(); ++i) {
        columns << table.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    EXPECT_EQ(columns, (QStringList{u"Title due"_s, u"UPC"_s, u"due from"_s, u"day(s) overdue"_s}));
    EXPECT_EQ(table.Rows()[0].key, u"P1"_s);
    EXPECT_EQ(table.Rows()[0].kind, ListRowKind::Movie);
}

TEST_F(TitlesDueTest, TextsAreTranslated) {
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Titles due to be returned', 'Fällig')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('due from', 'bei')");
    const std::unique_ptr<ListTable> table = TitlesDue(session);
    EXPECT_EQ(table->caption, u"Fällig"_s);
    EXPECT_EQ(table->headerData(2, Qt::Horizontal, Qt::DisplayRole), u"bei"_s);
}

TEST_F(TitlesDueTest, AnEmptyListShowsNoWindow) {
    ShowTitlesDue(session);
    AddProfile(u"P1"_s, u"Cedar"_s);
    Lend(u"P1"_s, u"Nora"_s, u"45430"_s);
    ShowTitlesDue(session);
    session.Database.reset();
    ShowTitlesDue(session);
    EXPECT_TRUE(shown.empty());
}

TEST_F(TitlesDueTest, AFaultIsLogged) {
    Log(kTraceError);
    Run(u"DROP TABLE LoanInfo");
    ShowTitlesDue(session);
    EXPECT_TRUE(shown.empty());
    ASSERT_EQ(LogLines().size(), 1);
    EXPECT_TRUE(LogLines().front().startsWith(u"Error:    ShowTitlesDue: "_s));
}

} // namespace
} // namespace ostrand
