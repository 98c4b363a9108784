// What a page of a skin may load, and where its ordinary links lead.
#include "browser/ui/SkinRules.h"

#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <gtest/gtest.h>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class SkinRulesTest : public ::testing::Test {
protected:
    void SetUp() override {
        session.CoverPath = folder / u"covers/"_s;
        session.HeadshotPath = folder / u"heads/"_s;
        for (const QString &path : {session.CoverPath, session.HeadshotPath, session.TempFolder,
                                    session.DataFolder + u"/Skins/Plain/Images"_s, session.DataFolder + u"/Images"_s,
                                    services.folders.Program() + u"/html/images"_s}) {
            ASSERT_TRUE(QDir().mkpath(path));
        }
        folder.Write(u"secret.txt"_s, "x");
    }
    QUrl File(const QString &path) const { return QUrl::fromLocalFile(path); }
    bool MayLoad(const QUrl &url) { return rules.may_load(url); }
    PageLink Follow(const QUrl &url, bool by_click = true, bool is_main_frame = true) {
        return rules.follow(url, by_click, is_main_frame);
    }

    TempDir folder;
    TestServices services;
    Session session{services.services};
    WebEngineRules rules = SkinRules(session);
};

TEST_F(SkinRulesTest, FilesOfSkinsImagesAndPagesAreLoaded) {
    for (const QString &path :
         {session.TempFolder + u"/Temp.html"_s, session.DataFolder + u"/Skins/Plain/Images/a b.png"_s,
          session.DataFolder + u"/Images/flag.png"_s, QString(session.CoverPath + u"1f.jpg"_s),
          QString(session.HeadshotPath + u"Mara Hale.jpg"_s), services.folders.Program() + u"/html/images/B.png"_s,
          session.DataFolder + u"/Skins/../Images/flag.png"_s}) {
        EXPECT_TRUE(MayLoad(File(path))) << qPrintable(path);
    }
    QUrl again = File(session.TempFolder + u"/Temp.html"_s);
    again.setQuery(u"2"_s);
    EXPECT_TRUE(MayLoad(again));
    for (const QString &url : {u"about:blank"_s, u"data:image/png;base64,AA=="_s, u"blob:null/1"_s}) {
        EXPECT_TRUE(MayLoad(QUrl(url))) << qPrintable(url);
    }
}

TEST_F(SkinRulesTest, NothingElseIsLoaded) {
    for (const QString &path :
         {folder / u"secret.txt"_s, session.DataFolder + u"/Settings.ini"_s, session.DataFolder + u"/films.mdb"_s,
          session.DataFolder + u"/Skins"_s, session.DataFolder + u"/SkinsOfOthers/a.png"_s,
          session.DataFolder + u"/Skins/../Settings.ini"_s, session.CoverPath + u"../secret.txt"_s, u"/etc/passwd"_s,
          u"/"_s}) {
        EXPECT_FALSE(MayLoad(File(path))) << qPrintable(path);
    }
    for (const QString &url :
         {u"https://example.invalid/a.js"_s, u"http://127.0.0.1/"_s, u"ws://example.invalid/"_s,
          u"ftp://example.invalid/"_s, u"qrc:/a.png"_s, u"chrome://gpu"_s, u"view-source:file:///etc/passwd"_s,
          u"file://other/etc/passwd"_s, u"filesystem:file:///a"_s, QString()}) {
        EXPECT_FALSE(MayLoad(QUrl(url))) << qPrintable(url);
    }
}

TEST_F(SkinRulesTest, ALinkOfTheFileSystemLeadsNotOut) {
    const QString link = session.DataFolder + u"/Skins/Plain/Images/out.txt"_s;
    ASSERT_TRUE(QFile::link(folder / u"secret.txt"_s, link));
    EXPECT_FALSE(MayLoad(File(link)));
    ASSERT_TRUE(QFile::link(folder.Path(), session.DataFolder + u"/Skins/Out"_s));
    EXPECT_FALSE(MayLoad(File(session.DataFolder + u"/Skins/Out/secret.txt"_s)));
    EXPECT_TRUE(MayLoad(File(session.DataFolder + u"/Skins/Out/covers/1f.jpg"_s))) << "which is a cover";
}

TEST_F(SkinRulesTest, AnotherDatabaseBringsItsFolders) {
    const QUrl cover = File(session.CoverPath + u"1f.jpg"_s);
    EXPECT_TRUE(MayLoad(cover));
    session.CoverPath.clear();
    EXPECT_FALSE(MayLoad(cover));
}

TEST_F(SkinRulesTest, LinksAreFollowedByTheirKind) {
    const QUrl page = File(session.TempFolder + u"/f.html"_s);
    const struct {
        QUrl url;
        PageLink clicked, by_script, of_a_frame;
    } cases[] = {
        {page, PageLink::Load, PageLink::Load, PageLink::Load},
        {QUrl(u"about:blank"_s), PageLink::Load, PageLink::Load, PageLink::Load},
        {QUrl(u"javascript:void(0)"_s), PageLink::Load, PageLink::Load, PageLink::Load},
        {QUrl(u"https://example.invalid/"_s), PageLink::Open, PageLink::Open, PageLink::Nothing},
        {QUrl(u"http://example.invalid/"_s), PageLink::Open, PageLink::Open, PageLink::Nothing},
        {QUrl(u"mailto:ann@example.invalid"_s), PageLink::Open, PageLink::Open, PageLink::Nothing},
        {File(folder / u"secret.txt"_s), PageLink::Nothing, PageLink::Nothing, PageLink::Nothing},
        {QUrl(u"chrome://gpu"_s), PageLink::Nothing, PageLink::Nothing, PageLink::Nothing},
        {QUrl(u"ftp://example.invalid/"_s), PageLink::Nothing, PageLink::Nothing, PageLink::Nothing},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Follow(c.url), c.clicked) << qPrintable(c.url.toString());
        EXPECT_EQ(Follow(c.url, false), c.by_script) << qPrintable(c.url.toString());
        EXPECT_EQ(Follow(c.url, false, false), c.of_a_frame) << qPrintable(c.url.toString());
        EXPECT_EQ(Follow(c.url, true, false), c.clicked) << qPrintable(c.url.toString());
    }
}

TEST_F(SkinRulesTest, LinksThatLeadOutGoToTheSystem) {
    rules.open_link(u"https://example.invalid/"_s);
    EXPECT_EQ(services.opener.opened, QStringList{u"url https://example.invalid/"_s});
}

} // namespace
} // namespace ostrand::test
