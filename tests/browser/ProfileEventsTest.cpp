// Events of a title: shown, added, changed, deleted, with the loans and the lock that go with them.
#include "SheetFixture.h"
#include "support/FailingStatements.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileEventsTest : public SheetTest {
protected:
    void SetUp() override {
        SheetTest::SetUp();
        Run(u"INSERT INTO Users (UserID, IsActive) VALUES ('Old Friend', false)");
        Run(u"INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp, Comment) VALUES (7, 'A1', "
            u"'Ben Moor', 'Watched', '2020-05-06 20:15:00', 'Late')");
        Run(u"INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (8, 'A1', 'Ada Quill', "
            u"'Borrowed', '2019-01-02')");
        services.random.numbers = {0.25, 0.5, 0.75};
    }
    /// A sheet that shows a title and has users ticked.
    std::unique_ptr<ProfileSheet> Open(const QString &id, const QStringList &users = {}, bool is_episode = false) {
        auto sheet = std::make_unique<ProfileSheet>(session);
        sheet->EnableTab(SheetTab::Events);
        sheet->Show({id, is_episode});
        for (const QString &user : users) {
            sheet->events.TickUser(user, true);
        }
        return sheet;
    }
    QStringList Stored(const QString &id) {
        return Rows(QStringLiteral("SELECT UserID, EventType, EventTimeStamp, Comment FROM Events WHERE ProfileID = "
                                   "'%1' ORDER BY EventTimeStamp, UserID")
                        .arg(id));
    }
    QStringList Loans() { return Rows(u"SELECT ProfileID, UserID, LoanedDue FROM LoanInfo ORDER BY ProfileID"); }

    const QString ada = u"Ada Quill"_s;
    const QString ben = u"Ben Moor"_s;
    const QString cleo = u"Cleo D'Arc"_s;
};

TEST_F(ProfileEventsTest, TheListIsInTheOrderOfTime) {
    const auto sheet = Open(u"A1"_s);
    EXPECT_EQ(Headers(sheet->events.listEvents), (QStringList{u"Timestamp"_s, u"Type"_s, u"User"_s}));
    EXPECT_EQ(Lines(sheet->events.listEvents),
              (QStringList{u"2019-01-02|Borrowed|Ada Quill"_s, u"2020-05-06 20:15:00|Watched|Ben Moor"_s}));
    EXPECT_EQ(sheet->events.Find(u"7"_s)->comment, u"Late"_s);
    EXPECT_EQ(sheet->events.Find(u"9"_s), nullptr);
}

TEST_F(ProfileEventsTest, AnEventWithoutATime) {
    Run(u"INSERT INTO Events (EventID, ProfileID, UserID, EventType) VALUES (1, 'B1', 'Ada Quill', 'Watched')");
    Run(u"INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (2, 'B1', 'Ben Moor', "
        u"'Watched', '1899-12-30')");
    EXPECT_EQ(Lines(Open(u"B1"_s)->events.listEvents), (QStringList{u"|Watched|Ada Quill"_s, u"|Watched|Ben Moor"_s}));
}

TEST_F(ProfileEventsTest, TheTypesThatAreOffered) {
    const auto sheet = Open(u"A1"_s);
    const QStringList own = {u"Watched"_s, u"Borrowed"_s, u"Returned"_s};
    EXPECT_EQ(sheet->events.Types(), own);
    session.view.EventTypes = u"Shown|returned|| Cleaned |Shown"_s;
    EXPECT_EQ(sheet->events.Types(), own + QStringList({u"Shown"_s, u"Cleaned"_s}));
    TranslateAs(u"Watched"_s, u"Gesehen"_s);
    EXPECT_EQ(sheet->events.Types().front(), u"Gesehen"_s);
}

TEST_F(ProfileEventsTest, ActiveUsersAreOffered) {
    EXPECT_EQ(Texts(Open(u"A1"_s)->events.users), (QStringList{ada, ben, cleo}));
}

TEST_F(ProfileEventsTest, TickedUsersAreKept) {
    const auto sheet = Open(u"A1"_s, {ben, cleo});
    EXPECT_EQ(session.view.SelectedUsers, u"Ben Moor|Cleo D'Arc"_s);
    EXPECT_EQ(ReadDbInfo(session, u"SelectedUsers"_s, {}), u"Ben Moor|Cleo D'Arc"_s);
    sheet->events.TickUser(ben, false);
    EXPECT_EQ(session.view.SelectedUsers, cleo);
    EXPECT_EQ(Open(u"B1"_s)->events.users.Checked(), QStringList{cleo}) << "in another window";
    session.view.SelectedUsers = u"nobody|ada quill"_s;
    EXPECT_EQ(Open(u"B1"_s)->events.users.Checked(), QStringList{ada});
}

TEST_F(ProfileEventsTest, EachTickedUserGetsAnEvent) {
    const auto sheet = Open(u"Key_D1"_s, {ada, cleo});
    sheet->AddEvent({u"Watched"_s, sheet->Now(), u"It's fine"_s});
    EXPECT_EQ(Stored(u"Key_D1"_s), (QStringList{u"Ada Quill|Watched|2024-05-17 10:20:30|It's fine"_s,
                                                u"Cleo D'Arc|Watched|2024-05-17 10:20:30|It's fine"_s}));
    EXPECT_EQ(Rows(u"SELECT EventID FROM Events WHERE ProfileID = 'Key_D1' ORDER BY EventID"),
              (QStringList{u"536870912"_s, u"1073741824"_s}));
    EXPECT_EQ(sheet->events.listEvents.rowCount(), 2);
    EXPECT_EQ(MD5Of(u"Key_D1"_s), QString());
    EXPECT_EQ(MD5Of(u"A1"_s), u"abc"_s);
    EXPECT_EQ(LocksOf(u"Key_D1"_s), QStringList());
    EXPECT_EQ(Loans(), QStringList());
}

TEST_F(ProfileEventsTest, TheStatementOfAnEvent) {
    const auto sheet = Open(u"B1"_s, {ada});
    QStringList sent;
    session.Database->SetObserver([&](QStringView statement) { sent += statement.toString(); });
    sheet->AddEvent({u"Watched"_s, u"2024-01-02 03:04:05"_s, u"x"_s});
    session.Database->SetObserver({});
    EXPECT_TRUE(
        sent.contains(u"INSERT INTO Events (EventID, UserID, EventType, EventTimeStamp, ProfileID, Comment) VALUES "
                      "('536870912', 'Ada Quill', 'Watched', '2024-01-02 03:04:05', 'B1', 'x')"_s));
}

TEST_F(ProfileEventsTest, ANumberThatIsTakenIsDrawnAgain) {
    Run(u"UPDATE Events SET EventID = 536870912 WHERE EventID = 7");
    const auto sheet = Open(u"B1"_s, {ada});
    sheet->AddEvent({u"Watched"_s, sheet->Now(), {}});
    EXPECT_EQ(Rows(u"SELECT EventID FROM Events WHERE ProfileID = 'B1'"), QStringList{u"1073741824"_s});
}

TEST_F(ProfileEventsTest, NothingIsAddedWithoutATypeOrAUser) {
    const auto sheet = Open(u"B1"_s);
    EXPECT_FALSE(sheet->events.CanAdd({u"Watched"_s, sheet->Now(), {}}));
    sheet->AddEvent({u"Watched"_s, sheet->Now(), {}});
    sheet->events.TickUser(ada, true);
    EXPECT_FALSE(sheet->events.CanAdd({u"  "_s, sheet->Now(), {}}));
    sheet->AddEvent({u"  "_s, sheet->Now(), {}});
    EXPECT_EQ(Stored(u"B1"_s), QStringList());
    EXPECT_EQ(MD5Of(u"B1"_s), u"abc"_s);
    EXPECT_TRUE(sheet->events.CanAdd({u"Watched"_s, sheet->Now(), {}}));
}

TEST_F(ProfileEventsTest, ATypeIsStoredInEnglish) {
    TranslateAs(u"Borrowed"_s, u"Geliehen"_s);
    const auto sheet = Open(u"Key_D1"_s, {ada});
    sheet->AddEvent({u"Geliehen"_s, sheet->Now(), {}});
    EXPECT_EQ(Stored(u"Key_D1"_s), QStringList{u"Ada Quill|Borrowed|2024-05-17 10:20:30|"_s});
    EXPECT_EQ(Lines(sheet->events.listEvents), QStringList{u"2024-05-17 10:20:30|Geliehen|Ada Quill"_s});
    EXPECT_EQ(Loans().size(), 1);
    EXPECT_EQ(session.view.EventTypes, QString());
}

TEST_F(ProfileEventsTest, ANewTypeIsOfferedFromThenOn) {
    const auto sheet = Open(u"B1"_s, {ada});
    sheet->AddEvent({u" Shown | at school "_s, sheet->Now(), {}});
    EXPECT_EQ(session.view.EventTypes, u"Shown   at school"_s);
    EXPECT_EQ(sheet->events.Types().back(), u"Shown   at school"_s);
    sheet->AddEvent({u"shown   AT school"_s, sheet->Now(), {}});
    sheet->AddEvent({u"watched"_s, sheet->Now(), {}});
    EXPECT_EQ(session.view.EventTypes, u"Shown   at school"_s);
    sheet->AddEvent({u"Cleaned"_s, sheet->Now(), {}});
    EXPECT_EQ(session.view.EventTypes, u"Shown   at school|Cleaned"_s);
    EXPECT_EQ(ReadDbInfo(session, u"EventTypes"_s, {}), u"Shown   at school|Cleaned"_s);
}

TEST_F(ProfileEventsTest, AnEventThatLendsNotesTheLoan) {
    const auto sheet = Open(u"Key_D1"_s, {ada});
    sheet->AddEvent({u"Borrowed"_s, u"2024-02-25 22:00:00"_s, {}});
    EXPECT_EQ(Loans(), QStringList{u"Key_D1|Ada Quill|2024-03-03"_s}) << "seven days unless the settings tell others";
    session.view.LoanDue = 30;
    sheet->events.TickUser(ada, false);
    sheet->events.TickUser(ben, true);
    sheet->AddEvent({u"Borrowed"_s, u"2024-04-01 09:00:00"_s, {}});
    EXPECT_EQ(Loans(), QStringList{u"Key_D1|Ben Moor|2024-05-01"_s}) << "one loan at a time";
    sheet->AddEvent({u"Watched"_s, u"2024-04-02 09:00:00"_s, {}});
    EXPECT_EQ(Loans().size(), 1);
    sheet->AddEvent({u"Returned"_s, u"2024-04-03 09:00:00"_s, {}});
    EXPECT_EQ(Loans(), QStringList());
}

TEST_F(ProfileEventsTest, AFaultLeavesEventsAndLoans) {
    const auto sheet = Open(u"Key_D1"_s, {ada});
    sheet->AddEvent({u"Borrowed"_s, u"2024-02-25 22:00:00"_s, {}});
    test::FailFrom(*session.Database, u"INSERT INTO LoanInfo"_s);
    EXPECT_THROW(sheet->AddEvent({u"Borrowed"_s, u"2024-04-01 09:00:00"_s, {}}), sql::SqlError);
    session.Database->SetObserver({});
    EXPECT_EQ(Loans(), QStringList{u"Key_D1|Ada Quill|2024-03-03"_s});
    EXPECT_EQ(Rows(u"SELECT EventTimeStamp FROM Events WHERE ProfileID = 'Key_D1'"),
              QStringList{u"2024-02-25 22:00:00"_s});
}

TEST_F(ProfileEventsTest, ALoanWithoutATimeHasNoEnd) {
    const auto sheet = Open(u"Key_D1"_s, {ada});
    sheet->AddEvent({u"Borrowed"_s, {}, {}});
    EXPECT_EQ(Loans(), QStringList{u"Key_D1|Ada Quill|"_s});
}

TEST_F(ProfileEventsTest, AReturnLeavesOtherLoans) {
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('B1', 'Ben Moor')");
    const auto sheet = Open(u"Key_D1"_s, {ada});
    sheet->AddEvent({u"Returned"_s, sheet->Now(), {}});
    EXPECT_EQ(Loans(), QStringList{u"B1|Ben Moor|"_s});
}

TEST_F(ProfileEventsTest, AnEpisodeIsNotLent) {
    const auto sheet = Open(u"H110"_s, {ada}, true);
    sheet->AddEvent({u"Borrowed"_s, sheet->Now(), {}});
    EXPECT_EQ(Stored(u"H110"_s).size(), 1);
    EXPECT_EQ(Loans(), QStringList());
}

TEST_F(ProfileEventsTest, AutoLockEventsLocksThem) {
    session.view.AutoLockEvents = true;
    const auto sheet = Open(u"Key_D1"_s, {ada});
    sheet->AddEvent({u"Watched"_s, sheet->Now(), {}});
    EXPECT_EQ(LocksOf(u"Key_D1"_s), QStringList{u"Events"_s});
    sheet->AddEvent({u"Watched"_s, sheet->Now(), {}});
    EXPECT_EQ(LocksOf(u"Key_D1"_s), QStringList{u"Events"_s});
    sheet->EnableTab(SheetTab::Main);
    EXPECT_EQ(sheet->listLocks.Checked(), QStringList{u"Events"_s});
    const auto other = Open(u"A1"_s);
    other->ChangeEvent(u"7"_s, {u"Watched"_s, u"2020-05-06 20:15:00"_s, u"Early"_s});
    EXPECT_EQ(LocksOf(u"A1"_s), QStringList{u"Events"_s}) << "a change locks too";
}

TEST_F(ProfileEventsTest, AnEventIsChanged) {
    const auto sheet = Open(u"A1"_s);
    sheet->ChangeEvent(u"7"_s, {u"Shown"_s, u"2018-01-01 00:00:00"_s, u"It's early"_s});
    EXPECT_EQ(Stored(u"A1"_s),
              (QStringList{u"Ben Moor|Shown|2018-01-01|It's early"_s, u"Ada Quill|Borrowed|2019-01-02|"_s}));
    EXPECT_EQ(Lines(sheet->events.listEvents),
              (QStringList{u"2018-01-01|Shown|Ben Moor"_s, u"2019-01-02|Borrowed|Ada Quill"_s}));
    EXPECT_EQ(session.view.EventTypes, u"Shown"_s);
    EXPECT_EQ(MD5Of(u"A1"_s), QString());
    sheet->ChangeEvent(u"7"_s, {u" "_s, {}, {}});
    sheet->ChangeEvent(u"9"_s, {u"Watched"_s, {}, {}});
    EXPECT_EQ(Stored(u"A1"_s).size(), 2);
    EXPECT_EQ(Stored(u"A1"_s)[0], u"Ben Moor|Shown|2018-01-01|It's early"_s);
}

TEST_F(ProfileEventsTest, AChangeLeavesTheLoan) {
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('A1', 'Ada Quill')");
    const auto sheet = Open(u"A1"_s);
    sheet->ChangeEvent(u"7"_s, {u"Returned"_s, u"2018-01-01 00:00:00"_s, {}});
    EXPECT_EQ(Loans().size(), 1);
}

TEST_F(ProfileEventsTest, AnEventIsDeletedAfterAQuestion) {
    const auto sheet = Open(u"A1"_s);
    Expect(u"Delete the selected event?"_s, u"Delete Event"_s, MessageIcon::Question, MessageAnswer::No);
    sheet->DeleteEvent(u"7"_s);
    EXPECT_EQ(Stored(u"A1"_s).size(), 2);
    EXPECT_EQ(MD5Of(u"A1"_s), u"abc"_s);
    Expect(u"Delete the selected event?"_s, u"Delete Event"_s, MessageIcon::Question, MessageAnswer::Yes);
    sheet->DeleteEvent(u"7"_s);
    EXPECT_EQ(Stored(u"A1"_s), QStringList{u"Ada Quill|Borrowed|2019-01-02|"_s});
    EXPECT_EQ(sheet->events.listEvents.rowCount(), 1);
    EXPECT_EQ(MD5Of(u"A1"_s), QString());
    sheet->DeleteEvent(u"7"_s);
    EXPECT_EQ(Stored(u"A1"_s).size(), 1) << "it is gone, and nothing is asked";
}

} // namespace
} // namespace ostrand
