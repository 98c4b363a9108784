#include "shell/LinkTarget.h"

#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(LinkTargetTest, TextsLeadWhereTheirBeginningSays) {
    const struct {
        QString text;
        LinkKind kind;
        QString target;
    } cases[] = {
        {u"www.ostrand.example"_s, LinkKind::Web, u"http://www.ostrand.example"_s},
        {u"WWW.ostrand.example"_s, LinkKind::Web, u"http://WWW.ostrand.example"_s},
        {u"http://ostrand.example/a"_s, LinkKind::Web, u"http://ostrand.example/a"_s},
        {u"https://ostrand.example"_s, LinkKind::Web, u"https://ostrand.example"_s},
        {u"HTTPS://ostrand.example"_s, LinkKind::Web, u"HTTPS://ostrand.example"_s},
        {u"mailto:team@ostrand.example"_s, LinkKind::Mail, u"mailto:team@ostrand.example"_s},
        {u"App:/films/a b.pdf"_s, LinkKind::File, u"/films/a b.pdf"_s},
        {u"App:www.txt"_s, LinkKind::File, u"www.txt"_s},
        {u"ftp://ostrand.example"_s, LinkKind::None, {}},
        {u"see www.ostrand.example"_s, LinkKind::None, {}},
        {u" https://ostrand.example"_s, LinkKind::None, {}},
        {u"team@ostrand.example"_s, LinkKind::None, {}},
        {u"012345678905"_s, LinkKind::None, {}},
        {{}, LinkKind::None, {}},
    };
    for (const auto &c : cases) {
        const LinkTarget link = ReadLink(c.text);
        EXPECT_EQ(int(link.kind), int(c.kind)) << qPrintable(c.text);
        EXPECT_EQ(link.target, c.target) << qPrintable(c.text);
    }
}

class OpenLinkTest : public ::testing::Test {
protected:
    test::ScriptedOpener opener;
    test::TempDir dir;
};

TEST_F(OpenLinkTest, HandsOverWhatItLeadsTo) {
    EXPECT_TRUE(OpenLink(opener, u"www.ostrand.example"_s));
    EXPECT_TRUE(OpenLink(opener, u"mailto:team@ostrand.example"_s));
    EXPECT_TRUE(OpenLink(opener, u"App:/a.pdf"_s));
    EXPECT_FALSE(OpenLink(opener, u"nowhere"_s));
    EXPECT_EQ(opener.opened, (QStringList{u"url http://www.ostrand.example"_s, u"url mailto:team@ostrand.example"_s,
                                          u"file /a.pdf"_s}));
}

TEST_F(OpenLinkTest, AFileWithoutAnApplicationAsksForOne) {
    opener.answer = false;
    const QString path = dir.Write(u"a.xyz"_s, "x");
    OpenLink(opener, u"App:"_s + path);
    EXPECT_EQ(opener.opened, (QStringList{u"file "_s + path, u"choose "_s + path}));
}

TEST_F(OpenLinkTest, AMissingFileAndAPageDoNot) {
    opener.answer = false;
    OpenLink(opener, u"App:"_s + dir / u"missing.xyz"_s);
    OpenLink(opener, u"www.ostrand.example"_s);
    EXPECT_EQ(opener.opened, (QStringList{u"file "_s + dir / u"missing.xyz"_s, u"url http://www.ostrand.example"_s}));
}

} // namespace
} // namespace ostrand
