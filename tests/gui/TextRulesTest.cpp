// What the page of a text may reach.
#include "browser/ui/TextRules.h"

#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class TextRulesTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir().mkpath(session.TempFolder));
        for (const QString &name :
             {u"a b.JPG"_s, u"c.png"_s, u"secret.txt"_s, u"page.html"_s, u"HTMLTempOther.html"_s}) {
            folder.Write(name, "x");
        }
        for (const QString &name : {u"HTMLTempNotes.html"_s, u"Temp.html"_s}) {
            QFile file(session.TempFolder + u'/' + name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    static QUrl File(const QString &path) { return QUrl::fromLocalFile(path); }
    PageLink Follow(const QUrl &url, bool by_click, bool is_main_frame) {
        return rules.follow(url, by_click, is_main_frame);
    }
    QUrl Page() { return File(session.TempFolder + u"/HTMLTempNotes.html"_s); }

    TempDir folder;
    TestServices services;
    Session session{services.services};
    WebEngineRules rules = TextRules(session);
};

TEST_F(TextRulesTest, ThePageAndImagesAreLoaded) {
    QUrl again = Page();
    again.setQuery(u"3"_s);
    for (const QUrl &url : {Page(), again, File(folder / u"a b.JPG"_s), File(folder / u"c.png"_s),
                            QUrl(u"data:image/png;base64,AA=="_s), QUrl(u"about:blank"_s)}) {
        EXPECT_TRUE(rules.may_load(url)) << qPrintable(url.toString());
    }
}

TEST_F(TextRulesTest, NothingElseIsLoaded) {
    ASSERT_TRUE(QFile::link(folder / u"secret.txt"_s, folder / u"link.png"_s));
    QUrl remote = File(folder / u"c.png"_s);
    remote.setHost(u"server"_s);
    for (const QUrl &url :
         {File(folder / u"secret.txt"_s), File(folder / u"link.png"_s), File(folder / u"page.html"_s),
          File(folder / u"HTMLTempOther.html"_s), File(session.TempFolder + u"/Temp.html"_s),
          File(session.TempFolder + u"/HTMLTempNotes.html/../../x.html"_s), File(folder / u"none.png"_s),
          File(u"/etc/passwd"_s), File(u"/"_s), remote, QUrl(u"http://example.org/a.png"_s),
          QUrl(u"https://example.org/a.png"_s), QUrl(u"ftp://example.org/a.png"_s), QUrl(u"blob:null/1"_s),
          QUrl(u"javascript:alert(1)"_s)}) {
        EXPECT_FALSE(rules.may_load(url)) << qPrintable(url.toString());
    }
}

TEST_F(TextRulesTest, ScriptsDoNotRun) {
    EXPECT_FALSE(rules.scripts);
}

TEST_F(TextRulesTest, LinksLeadOutWhenTheyAreClicked) {
    for (const QString &url : {u"http://example.org/"_s, u"https://example.org/"_s, u"mailto:a@example.org"_s}) {
        EXPECT_EQ(Follow(QUrl(url), true, true), PageLink::Open) << qPrintable(url);
        EXPECT_EQ(Follow(QUrl(url), false, true), PageLink::Nothing) << qPrintable(url);
        EXPECT_EQ(Follow(QUrl(url), false, false), PageLink::Nothing) << qPrintable(url);
    }
    rules.open_link(u"https://example.org/"_s);
    EXPECT_EQ(services.opener.opened, QStringList{u"url https://example.org/"_s});
}

TEST_F(TextRulesTest, ThePageStaysWhereItIs) {
    EXPECT_EQ(Follow(Page(), false, true), PageLink::Load);
    EXPECT_EQ(Follow(QUrl(u"about:blank"_s), false, true), PageLink::Load);
    EXPECT_EQ(Follow(Page(), false, false), PageLink::Nothing) << "in a frame";
    for (const QUrl &url : {File(folder / u"c.png"_s), File(folder / u"page.html"_s), File(u"/etc/passwd"_s),
                            QUrl(u"data:text/html,x"_s), QUrl(u"javascript:alert(1)"_s)}) {
        EXPECT_EQ(Follow(url, true, true), PageLink::Nothing) << qPrintable(url.toString());
        EXPECT_EQ(Follow(url, false, false), PageLink::Nothing) << qPrintable(url.toString());
    }
}

} // namespace
} // namespace ostrand::test
