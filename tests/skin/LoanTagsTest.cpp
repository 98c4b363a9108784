#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// The clock of these tests stands at 2024-05-17 10:20:30.
class LoanTagsTest : public ProfileTagTest {
protected:
    void SetUp() override {
        ProfileTagTest::SetUp();
        Run(u"INSERT INTO Users (UserID) VALUES ('Ida <O''Hara>')");
        Run(u"INSERT INTO Users (UserID) VALUES ('Bo')");
    }
    void AddEvent(const QString &type, const QString &time, const QString &user) {
        AddRow(u"Events"_s, u"EventID, UserID, EventType, EventTimeStamp"_s,
               u"%1, '%2', '%3', %4"_s.arg(++events_).arg(EscapeSql(user), type, time));
    }
    void Lend(const QString &due) {
        Clear(u"LoanInfo"_s);
        AddRow(u"LoanInfo"_s, u"UserID, LoanedDue"_s, u"'Ida <O''Hara>', "_s + due);
    }
    int events_ = 0;
};

TEST_F(LoanTagsTest, LastWatched) {
    EXPECT_EQ(Produce(GetDPLastWatched, {}, u"UserID"_s), QString());
    AddEvent(u"Watched"_s, u"#2020-01-02 20:15:00#"_s, u"Ida <O'Hara>"_s);
    AddEvent(u"Watched"_s, u"#2019-01-02#"_s, u"Bo"_s);
    AddEvent(u"Borrowed"_s, u"#2021-01-02#"_s, u"Bo"_s);
    EXPECT_EQ(Produce(GetDPLastWatched, {}, u"UserID"_s), u"Ida <O'Hara>"_s);
    EXPECT_EQ(Produce(GetDPLastWatched, {}, u"EventTimestamp"_s), u"2020-01-02 20:15:00"_s);
    AddEvent(u"Watched"_s, u"#2020-01-03#"_s, u"Bo"_s);
    EXPECT_EQ(Produce(GetDPLastWatched, {}, u"UserID"_s), u"Bo"_s);
    EXPECT_EQ(Produce(GetDPLastWatched, {}, u"EventTimestamp"_s), u"2020-01-03"_s);
    EXPECT_EQ(ProduceForEpisode(GetDPLastWatched, {}, u"UserID"_s), QString());
}

TEST_F(LoanTagsTest, LoanedTo) {
    Check(GetDPLoanedTo, {
                             {"at home", uR"(IfLoaned="away")"_s, {}},
                             {"at home, with a text", uR"(IfNotLoaned="<i>home</i>")"_s, u"<i>home</i>"_s},
                         });
    Lend(u"NULL"_s);
    Check(GetDPLoanedTo, {
                             {"who has it", uR"(IfNotLoaned="home")"_s, u"Ida <O'Hara>"_s},
                             {"a text", uR"(IfLoaned="away")"_s, u"away"_s},
                         });
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('OSVE''1', 'Bo')");
    CheckForEpisode(GetDPLoanedTo, {{"nothing for an episode", uR"(IfNotLoaned="home" IfLoaned="away")"_s, {}}});
}

TEST_F(LoanTagsTest, LoanedDue) {
    Check(GetDPLoanedDue, {{"at home", uR"(IfOverdue="late")"_s, {}}});
    const struct {
        const char *name;
        QString due;
        QString plain;
        QString with_attribute;
    } cases[] = {
        {"overdue", u"#2024-05-16#"_s, {}, u"2024-05-16"_s},
        {"due today", u"#2024-05-17#"_s, {}, u"2024-05-17"_s},
        {"due tomorrow", u"#2024-05-18#"_s, u"2024-05-18"_s, u"<b>late</b>"_s},
        {"NULL is not overdue", u"NULL"_s, {}, u"<b>late</b>"_s},
    };
    for (const auto &c : cases) {
        Lend(c.due);
        EXPECT_EQ(Produce(GetDPLoanedDue), c.plain) << c.name;
        EXPECT_EQ(Produce(GetDPLoanedDue, uR"(IfOverdue="<b>late</b>")"_s), c.with_attribute) << c.name;
    }
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ('OSVE''1', 'Bo', #2024-05-18#)");
    CheckForEpisode(GetDPLoanedDue, {{"nothing for an episode", {}, {}}});
}

TEST_F(LoanTagsTest, WhatCameBackIsNotOverdue) {
    const struct {
        const char *name;
        QString type;
        QString time;
        QString user;
        bool overdue;
    } cases[] = {
        {"on the day", u"Returned"_s, u"#2024-05-10#"_s, u"Ida <O'Hara>"_s, false},
        {"later", u"Returned"_s, u"#2024-05-12 09:00:00#"_s, u"Ida <O'Hara>"_s, false},
        {"before", u"Returned"_s, u"#2024-05-09 23:59:00#"_s, u"Ida <O'Hara>"_s, true},
        {"by another user", u"Returned"_s, u"#2024-05-12#"_s, u"Bo"_s, true},
        {"another event", u"Borrowed"_s, u"#2024-05-12#"_s, u"Ida <O'Hara>"_s, true},
    };
    for (const auto &c : cases) {
        Clear(u"Events"_s);
        Lend(u"#2024-05-10#"_s);
        AddEvent(c.type, c.time, c.user);
        EXPECT_EQ(Produce(GetDPLoanedDue), c.overdue ? QString() : u"2024-05-10"_s) << c.name;
    }
    Clear(u"Events"_s);
    // A time behind the due day does not shorten it.
    Lend(u"#2024-05-10 12:00:00#"_s);
    AddEvent(u"Returned"_s, u"#2024-05-10 08:00:00#"_s, u"Ida <O'Hara>"_s);
    EXPECT_EQ(Produce(GetDPLoanedDue), u"2024-05-10 12:00:00"_s);
}

} // namespace
} // namespace ostrand
