#include "shell/ui/LinkLabel.h"

#include "support/Scripted.h"

#include <QTest>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class LinkLabelTest : public ::testing::Test {
protected:
    test::ScriptedOpener opener;
    LinkLabel label{opener};
};

TEST_F(LinkLabelTest, OpensOnAClickAndByTheKeyboard) {
    label.SetLink(u"www.ostrand.example"_s, u"Our page"_s);
    EXPECT_EQ(label.text(), u"Our page"_s);
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::keyClick(&label, Qt::Key_Return);
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_A);
    EXPECT_EQ(opener.opened, QStringList(3, u"url http://www.ostrand.example"_s));
}

TEST_F(LinkLabelTest, LooksLikeALinkOnlyWhileItIsOne) {
    label.SetLink(u"https://ostrand.example"_s);
    EXPECT_EQ(label.text(), u"https://ostrand.example"_s);
    EXPECT_TRUE(label.font().underline());
    EXPECT_EQ(label.foregroundRole(), QPalette::Link);
    EXPECT_EQ(label.focusPolicy(), Qt::TabFocus);
    label.SetLink(u"012345678905"_s);
    EXPECT_FALSE(label.font().underline());
    EXPECT_EQ(label.foregroundRole(), QPalette::WindowText);
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_TRUE(opener.opened.isEmpty());
}

} // namespace
} // namespace ostrand
