// A title as a page of the skin that is chosen in the profile window.
#include "browser/ProfileSkin.h"

#include "ShelfFixture.h"
#include "browser/Views.h"
#include "skin/TextConversion.h"
#include "support/ScriptedHtmlView.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileSkinTest : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        AddSkin(u"Plain"_s, u"Skin.html"_s, "[<DP NAME=\"TITLE\">]");
        AddSkin(u"Small"_s, u"skin.html"_s, "(<DP NAME=\"TITLE\">)");
        QDir().mkpath(session.DataFolder + u"/Skins/Empty"_s);
    }
    void AddSkin(const QString &name, const QString &file, const QByteArray &text) {
        const QString folder = session.DataFolder + u"/Skins/"_s + name;
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile template_file(folder + u'/' + file);
        ASSERT_TRUE(template_file.open(QIODevice::WriteOnly));
        template_file.write(text);
    }
    QByteArray Page() { return test::ReadTestFile(session.TempFolder + u"/TempProfile.html"_s).mid(3); }
    QString Link(const QString &query) { return PathToFileUrl(session.TempFolder + u"/blank.html"_s) + query; }

    test::ScriptedHtmlView view;
    ProfileSkin skin{browser, view};
};

TEST_F(ProfileSkinTest, SkinsWithATemplateAreOffered) {
    EXPECT_EQ(SkinsWithTemplate(session), (QStringList{u"Plain"_s, u"Small"_s}));
}

TEST_F(ProfileSkinTest, ATitleIsShown) {
    skin.Show(u"Plain"_s, {u"B1"_s, false});
    EXPECT_EQ(Page(), "[Birch]");
    EXPECT_EQ(view.urls.back(), PathToFileUrl(session.TempFolder + u"/TempProfile.html"_s));
    skin.Show(u"small"_s, {u"H11"_s, true});
    EXPECT_EQ(Page(), "(Arrival)");
}

TEST_F(ProfileSkinTest, TheMainWindowKeepsItsTitleAndItsPage) {
    session.CurrentProfileID = u"A1"_s;
    browser.caption = u"Amber"_s;
    skin.Show(u"Plain"_s, {u"H11"_s, true});
    EXPECT_EQ(session.CurrentProfileID, u"A1"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(browser.caption, u"Amber"_s);
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/Temp.html"_s));
}

TEST_F(ProfileSkinTest, WithoutATitleOrATemplateThePageIsEmpty) {
    session.view.mSkinEnable = true;
    skin.Show(u"Plain"_s, {});
    skin.Show(u"Empty"_s, {u"A1"_s, false});
    skin.Show(u"nowhere"_s, {u"A1"_s, false});
    skin.Show({}, {u"A1"_s, false});
    EXPECT_EQ(view.urls, QStringList(4, u"about:blank"_s));
    EXPECT_TRUE(session.view.mSkinEnable) << "what the main window shows is not touched";
    EXPECT_TRUE(view.visible);
}

TEST_F(ProfileSkinTest, LinksLeadTheMainWindow) {
    ChangeMode(browser, true);
    std::vector<std::function<void()>> waiting;
    skin.later = [&](const auto &action) { waiting.push_back(action); };
    EXPECT_FALSE(view.Click(u"file:///other.html"_s));
    EXPECT_TRUE(view.Click(Link(u"?profileid=D1"_s)));
    EXPECT_TRUE(view.Click(Link(u"?episodeid=H11"_s)));
    EXPECT_TRUE(view.Click(Link(u"?what=ever"_s)));
    ASSERT_EQ(waiting.size(), 3U);
    waiting[0]();
    EXPECT_EQ(session.CurrentProfileID, u"Key_D1"_s);
    waiting[1]();
    EXPECT_EQ(session.CurrentProfileID, u"H11"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    waiting[2]();
    EXPECT_EQ(session.CurrentProfileID, u"H11"_s);
    session.Database.reset();
    waiting[0]();
    EXPECT_EQ(session.CurrentProfileID, u"H11"_s);
}

TEST_F(ProfileSkinTest, APersonsLinkListsAppearances) {
    QString caption;
    session.window.ShowListView = [&](std::unique_ptr<ListTable> table) { caption = table->caption; };
    EXPECT_TRUE(view.Click(Link(u"?actorid=Zed%20Quill|0"_s)));
    EXPECT_TRUE(caption.startsWith(u"Zed Quill"_s));
    session.window.ShowListView = nullptr;
}

} // namespace
} // namespace ostrand
