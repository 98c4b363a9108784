#include "shell/ui/SessionPump.h"

#include "services/QtProcessRunner.h"
#include "support/Scripted.h"

#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

#ifdef Q_OS_UNIX
TEST(SessionPump, ACommandThatNeverEndsDoesNotKeepTheProgram) {
    test::TestServices services;
    Session session(services.services);
    SessionPump pump;
    pump.session = &session;
    QTimer::singleShot(50, [&session] { session.EndProgram = true; });
    QElapsedTimer timer;
    timer.start();
    QtProcessRunner().RunCommandLine(u"sleep 300"_s, ProcessStyle::Minimised, &pump, nullptr);
    EXPECT_TRUE(session.EndProgram) << "events ran while it waited";
    EXPECT_LT(timer.elapsed(), 60'000);
}
#endif

TEST(SessionPump, GoesOnWhileNobodyAsksForTheEnd) {
    SessionPump pump;
    EXPECT_FALSE(pump.Stopping());
    test::TestServices services;
    Session session(services.services);
    pump.session = &session;
    EXPECT_FALSE(pump.Stopping());
}

} // namespace
} // namespace ostrand
