#include "database/TitleLocks.h"

#include "CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

using TitleLocks = CollectionTest;

TEST_F(TitleLocks, AreSetAndTakenAway) {
    Create();
    EXPECT_FALSE(IsLocked(session, u"P'1"_s, u"Cast"_s));
    ToggleLock(session, u"P'1"_s, u"Cast"_s);
    EXPECT_TRUE(IsLocked(session, u"P'1"_s, u"Cast"_s));
    EXPECT_FALSE(IsLocked(session, u"P'1"_s, u"Crew"_s));
    EXPECT_FALSE(IsLocked(session, u"P2"_s, u"Cast"_s));
    ToggleLock(session, u"P'1"_s, u"Crew"_s);
    ToggleLock(session, u"P'1"_s, u"Cast"_s);
    EXPECT_EQ(Rows(u"SELECT ProfileID, LockName FROM Locks"), QStringList{u"P'1|Crew"_s});
}

} // namespace
} // namespace ostrand
