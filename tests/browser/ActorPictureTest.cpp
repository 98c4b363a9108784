#include "browser/ActorPicture.h"

#include "BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ActorPictures : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        session.HeadshotPath = Path(u"headshots/"_s);
        QDir().mkpath(session.HeadshotPath);
    }
    void Touch(const QStringList &names) {
        for (const QString &name : names) {
            QFile file(session.HeadshotPath + name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    QString Shown() const { return QFileInfo(actor.Picture()).fileName(); }

    ActorPicture &actor = browser.credits.picActor;
};

TEST_F(ActorPictures, AlternatesComeInTurn) {
    Touch({u"Mara Hale.jpg"_s, u"Mara Hale_1.jpg"_s, u"Mara Hale_2.jpg"_s});
    EXPECT_TRUE(actor.LoadHeadShot(u"Mara Hale"_s, true, u"0"_s));
    for (const QString &shown :
         {u"Mara Hale_1.jpg"_s, u"Mara Hale_2.jpg"_s, u"Mara Hale.jpg"_s, u"Mara Hale_1.jpg"_s}) {
        actor.AlternateHeadshot();
        EXPECT_EQ(Shown(), shown);
    }
    EXPECT_EQ(actor.Alternate(), 1);
    actor.LoadHeadShot(u"Mara Hale"_s, true, u"0"_s);
    EXPECT_EQ(Shown(), u"Mara Hale.jpg"_s) << "a new selection begins with the primary one";
}

TEST_F(ActorPictures, APersonMayHaveAlternatesAlone) {
    Touch({u"Al Roe_1.jpg"_s});
    EXPECT_FALSE(actor.LoadHeadShot(u"Al Roe"_s, true, u"0"_s));
    EXPECT_EQ(Shown(), QString());
    EXPECT_TRUE(actor.HasPictures());
    actor.AlternateHeadshot();
    EXPECT_EQ(Shown(), u"Al Roe_1.jpg"_s);
    actor.AlternateHeadshot();
    EXPECT_EQ(Shown(), QString()) << "behind the last one stands the primary, which is missing";
    EXPECT_EQ(actor.Alternate(), 0);
}

TEST_F(ActorPictures, OfNobodyAreNone) {
    Touch({u"Mara Hale.jpg"_s, u".jpg"_s});
    int changes = 0;
    QObject::connect(&actor, &ActorPicture::PictureChanged, [&changes] { ++changes; });
    actor.AlternateHeadshot();
    EXPECT_FALSE(actor.LoadHeadShot({}, true, {}));
    EXPECT_FALSE(actor.LoadHeadShot(u"Nobody"_s, true, u"1950"_s));
    EXPECT_FALSE(actor.HasPictures());
    actor.LoadHeadShot(u"Mara Hale"_s, true, {});
    EXPECT_EQ(changes, 3);
    actor.Clear();
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(actor.Picture(), QString());
    actor.Clear();
    EXPECT_EQ(changes, 4);
}

TEST_F(ActorPictures, AreTraced) {
    Log(kTraceEntry);
    actor.LoadHeadShot(u"Mara Hale"_s, true, u"1950"_s);
    EXPECT_EQ(LogLines().filter(u"LoadHeadShot"_s), QStringList{u"Enter:    LoadHeadShot(Mara Hale, True, 1950)"_s});
}

} // namespace
} // namespace ostrand
