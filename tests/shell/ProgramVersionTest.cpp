#include "shell/ProgramVersion.h"

#include "shell/Session.h"
#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(ProgramVersionTest, WindowsTellItInTheirOwnWay) {
    test::TestServices services;
    Session session(services.services);
    session.AppVersion = u"3.4.567"_s;
    EXPECT_EQ(SplashVersionText(session), u"3.4 Version"_s);
    EXPECT_EQ(SplashBuildText(session), u"Build 567"_s);
    EXPECT_EQ(AboutVersionText(session), u"Version 3.4\nBuild: 567"_s);
}

TEST(ProgramVersionTest, AMailAddressShowsWithoutItsScheme) {
    EXPECT_EQ(ShownLink(u"mailto:team@ostrand.example"_s), u"team@ostrand.example"_s);
    EXPECT_EQ(ShownLink(u"https://ostrand.example"_s), u"https://ostrand.example"_s);
}

} // namespace
} // namespace ostrand
