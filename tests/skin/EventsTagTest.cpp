// The events of a page.
#include "ProducerFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class EventsTagTest : public ProducerTest {
protected:
    void SetUp() override {
        ProducerTest::SetUp();
        for (const auto &user : {u"Ann"_s, u"Bo"_s, u"Cy's"_s}) {
            Run(QString(u"INSERT INTO Users (UserID) VALUES ('"_s + EscapeSql(user) + u"')"_s));
        }
    }
    /// `time` as it stands in the statement.
    void Event(const QString &time, const QString &user, const QString &type) {
        for (const auto &id : {profile_id, episode_id}) {
            Run(QString(
                u"INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (%1, '"_s.arg(
                    ++event) +
                id + u"', '"_s + EscapeSql(user) + u"', '"_s + EscapeSql(type) + u"', "_s + time + u')'));
        }
    }
    QString Events(const QString &attributes = {}) {
        const QString text = Render(GetOSVEvents, attributes);
        EXPECT_EQ(Render(GetOSVEvents, attributes, {}, kEpisode), text) << qPrintable(attributes);
        return text;
    }

    int event = 0;
};

TEST_F(EventsTagTest, WithoutEventsThereIsNoText) {
    EXPECT_EQ(Events(), QString());
    EXPECT_EQ(Events(u"GroupNames=\"yes\""_s), QString());
}

TEST_F(EventsTagTest, AttributesShapeTheList) {
    TranslateTo(u"Watched"_s, u"Gesehen"_s);
    Event(u"#3/5/2020 20:15:00#"_s, u"Bo"_s, u"Watched"_s);
    Event(u"#3/5/2020 20:15:00#"_s, u"Ann"_s, u"Watched"_s);
    Event(u"#3/7/2020#"_s, u"Cy's"_s, u"Lender's return"_s);
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {{},
         u"2020-03-05 20:15:00, Watched, Ann<br/>2020-03-05 20:15:00, Watched, Bo<br/>2020-03-07, Lender's return, "
         "Cy's"_s},
        {u"Divider=\" | \" SubDivider=\" - \""_s,
         u"2020-03-05 20:15:00 - Watched - Ann | 2020-03-05 20:15:00 - Watched - Bo | 2020-03-07 - Lender's return - "
         "Cy's"_s},
        {u"ShowType=\"no\" NameDivider=\"x\""_s,
         u"2020-03-05 20:15:00, Ann<br/>2020-03-05 20:15:00, Bo<br/>2020-03-07, Cy's"_s},
        {u"OnlyShowType=\"Watched\" Translate=\"yes\""_s,
         u"2020-03-05 20:15:00, Gesehen, Ann<br/>2020-03-05 20:15:00, Gesehen, Bo"_s},
        {u"OnlyShowType=\"lender's return\""_s, u"2020-03-07, Lender's return, Cy's"_s},
        {u"OnlyShowType=\"Lost\""_s, {}},
        {u"DateFormat=\"dd.mm.yy hh:mm\" ShowType=\"no\""_s,
         u"05.03.20 20:15, Ann<br/>05.03.20 20:15, Bo<br/>07.03.20 00:00, Cy's"_s},
        {u"GroupNames=\"yes\""_s,
         u"2020-03-05 20:15:00, Watched, Ann, Watched, Bo<br/>2020-03-07, Lender's return, Cy's"_s},
        {u"GroupNames=\"yes\" NameDivider=\": \" SubDivider=\"/\" Divider=\"; \""_s,
         u"2020-03-05 20:15:00: Watched/Ann: Watched/Bo; 2020-03-07: Lender's return/Cy's"_s},
        {u"GroupNames=\"yes\" ShowType=\"no\" NameDivider=\"x\""_s,
         u"2020-03-05 20:15:00, Ann, Bo<br/>2020-03-07, Cy's"_s},
        // What is shown of the time is what tells the groups apart.
        {u"GroupNames=\"yes\" ShowType=\"no\" DateFormat=\"yyyy\""_s, u"2020, Ann, Bo, Cy's"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Events(c.attributes), c.text) << qPrintable(c.attributes);
    }
}

TEST_F(EventsTagTest, AnEventMayHaveNoTime) {
    Event(u"NULL"_s, u"Ann"_s, u"A"_s);
    Event(u"0"_s, u"Bo"_s, u"B"_s);
    Event(u"#3/7/2020#"_s, u"Ann"_s, u"C"_s);
    for (const auto &format : {QString(), u" DateFormat=\"yyyy-mm-dd\""_s}) {
        EXPECT_EQ(Events(format), u", A, Ann<br/>, B, Bo<br/>2020-03-07, C, Ann"_s);
        EXPECT_EQ(Events(u"GroupNames=\"yes\""_s + format), u", A, Ann, B, Bo<br/>2020-03-07, C, Ann"_s);
    }
}

TEST_F(EventsTagTest, ATruthValueIsNeeded) {
    for (const auto &name : {u"ShowType"_s, u"GroupNames"_s}) {
        EXPECT_THROW(Render(GetOSVEvents, name + u"=\"perhaps\""_s), SkinFailure);
    }
    Event(u"#3/7/2020#"_s, u"Ann"_s, u"A"_s);
    EXPECT_THROW(Render(GetOSVEvents, u"Translate=\"perhaps\""_s), SkinFailure);
    EXPECT_EQ(Events(u"Translate=\"perhaps\" ShowType=\"no\""_s), u"2020-03-07, Ann"_s) << "no type, no translation";
}

TEST_F(EventsTagTest, EventsAreLookedUp) {
    EXPECT_EQ(Scans([&] {
                  Render(GetOSVEvents);
                  Render(GetOSVEvents, u"OnlyShowType=\"Watched\""_s);
              }),
              QStringList());
}

} // namespace
} // namespace ostrand
