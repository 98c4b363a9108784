#include "FindControl.h"
#include "shell/Session.h"
#include "shell/ui/LinkLabel.h"
#include "shell/ui/frmAbout.h"
#include "shell/ui/frmSplash.h"
#include "support/Scripted.h"

#include <QLabel>
#include <QTest>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

class AboutTest : public ::testing::Test {
protected:
    AboutTest() { session.AppVersion = u"3.4.567"_s; }
    QString Text(const QWidget &window, const char *name) { return FindControl<QLabel>(window, name)->text(); }

    test::TestServices services;
    Session session{services.services};
};

TEST_F(AboutTest, TellsTitleVersionAndLinks) {
    frmAbout window(session);
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(Text(window, "lblTitle"), u"Ostrand"_s);
    EXPECT_EQ(Text(window, "lblVersion"), u"Version 3.4\nBuild: 567"_s);
    window.show();
    for (const char *name : {"hyper_homepage", "hyper_mail"}) {
        QTest::mouseClick(FindControl<LinkLabel>(window, name), Qt::LeftButton);
    }
    EXPECT_EQ(services.opener.opened,
              (QStringList{u"url https://ostrand.example"_s, u"url mailto:team@ostrand.example"_s}));
    FindControl<QPushButton>(window, "cmdOK")->click();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AboutTest, EscAndEnterCloseIt) {
    frmAbout window(session);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        window.show();
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible());
    }
}

TEST_F(AboutTest, TheSplashTellsVersionAndBuild) {
    const frmSplash splash(session);
    EXPECT_EQ(Text(splash, "labelLoading"), u"Loading..."_s);
    EXPECT_EQ(Text(splash, "lblVersion"), u"3.4 Version"_s);
    EXPECT_EQ(Text(splash, "lblBuild"), u"Build 567"_s);
    EXPECT_EQ(Text(splash, "labelBeta"), u"BETA"_s);
}

TEST_F(AboutTest, AClickAnywhereOrEscClosesTheSplash) {
    frmSplash splash(session);
    splash.show();
    EXPECT_TRUE(splash.isVisible());
    QTest::mouseClick(&splash, Qt::LeftButton, {}, {5, 5});
    EXPECT_FALSE(splash.isVisible());
    splash.show();
    QTest::mouseClick(FindControl<QLabel>(splash, "labelLoading"), Qt::LeftButton);
    EXPECT_FALSE(splash.isVisible());
    splash.show();
    QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_FALSE(splash.isVisible());
}

} // namespace
} // namespace ostrand
