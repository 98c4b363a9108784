// Pages of skins in the main window, with an engine that only takes notes.
#include "MainWindowFixture.h"
#include "browser/SkinView.h"
#include "browser/ui/PictureView.h"
#include "browser/ui/frmCover.h"
#include "platform_qt/LazyHtmlView.h"
#include "shell/ui/SplitPanel.h"
#include "shell/ui/frmListView.h"
#include "skin/TextConversion.h"

#include <QDir>
#include <QTableView>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class NotingEngine : public QWidget, public HtmlView {
public:
    NotingEngine(QWidget *parent, QStringList &urls) : QWidget(parent), urls_(urls) {}
    void Navigate(const QString &url) override {
        if (!before_navigate || !before_navigate(url)) {
            urls_ += url;
        }
    }
    void SetVisible(bool visible) override { setVisible(visible); }
    bool IsVisible() const override { return !isHidden(); }

private:
    QStringList &urls_;
};

class SkinWindow : public MainWindowTest {
protected:
    void Open(const QStringList &statements = {}) {
        QDir().mkpath(session.DataFolder + u"/Skins/Plain"_s);
        QFile file(session.DataFolder + u"/Skins/Plain/Skin.html"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[<DP NAME=\"TITLE\">]");
        file.close();
        auto collection = sql::Database::Open(database);
        collection->Execute(u"DELETE FROM DbInfo WHERE InfoName = 'CurrentSkin'");
        collection->Execute(u"DELETE FROM DbInfo WHERE InfoName = 'EnableSkin'");
        collection->Execute(u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CurrentSkin', 'Plain')");
        for (const QString &statement : statements) {
            collection->Execute(statement);
        }
        collection.reset();
        main = std::make_unique<frmMain>(browser, [this](QWidget *parent) -> HtmlEngine {
            if (!reason.isEmpty()) {
                main->Skin().TellNoEngine(reason);
                return {};
            }
            engine = new NotingEngine(parent, urls);
            return {engine, engine};
        });
        ASSERT_TRUE(main->Load(database));
        QCoreApplication::processEvents();
    }
    QByteArray Page() const { return ReadTestFile(session.TempFolder + u"/Temp.html"_s).mid(3); }
    void Click(const QString &query) {
        EXPECT_TRUE(engine->before_navigate(PathToFileUrl(session.TempFolder + u"/blank.html"_s) + query));
        QCoreApplication::processEvents();
    }
    QString InPlace() { return main->Split(1)->Control2()->objectName(); }
    bool IsShown(const char *name) { return Control<QWidget>(name)->isVisible(); }

    NotingEngine *engine = nullptr;
    QStringList urls;
    QString reason; ///< why there is no engine
};

TEST_F(SkinWindow, StandsInPlaceOfThePanels) {
    Open();
    EXPECT_EQ(InPlace(), u"Split3"_s);
    EXPECT_FALSE(IsShown("WebSkin"));
    EXPECT_FALSE(engine) << "a start without skins loads no engine";
    const int position = main->Split(1)->Position();
    Trigger("mSkinEnable");
    EXPECT_EQ(InPlace(), u"WebSkin"_s);
    EXPECT_TRUE(IsShown("WebSkin"));
    EXPECT_FALSE(IsShown("Split3"));
    EXPECT_FALSE(IsShown("picCover"));
    EXPECT_TRUE(Action(u"mSkinEnable"_s)->isChecked());
    EXPECT_EQ(QString::fromUtf8(Page()), u'[' + Selected().section(u" ("_s, 0, 0) + u']');
    EXPECT_EQ(urls.back(), PathToFileUrl(session.TempFolder + u"/Temp.html"_s));
    EXPECT_EQ(main->Split(1)->Position(), position);
    Trigger("mSkinEnable");
    EXPECT_EQ(InPlace(), u"Split3"_s);
    EXPECT_TRUE(IsShown("Split3"));
    EXPECT_TRUE(IsShown("picCover"));
    EXPECT_FALSE(IsShown("WebSkin"));
    EXPECT_FALSE(Action(u"mSkinEnable"_s)->isChecked());
}

TEST_F(SkinWindow, FollowsTheList) {
    Open();
    Trigger("mSkinEnable");
    ClickRow(3);
    EXPECT_EQ(session.CurrentProfileID, browser.listSeries.At(3).key);
    EXPECT_TRUE(main->windowTitle().startsWith(QString::fromUtf8(Page().mid(1, Page().size() - 2))));
}

TEST_F(SkinWindow, TheCoverWindowFollowsThePages) {
    Open();
    Trigger("mShowCover");
    Trigger("mSkinEnable");
    const auto *cover = main->findChild<frmCover *>()->findChild<PictureView *>(u"picCover"_s);
    for (const int row : {3, 1}) {
        ClickRow(row);
        EXPECT_TRUE(cover->HasPicture());
        EXPECT_TRUE(cover->File().endsWith(ProfileOfKey(browser.listSeries.At(row).key).remove(u"Key_"_s) + u"f.jpg"_s))
            << qPrintable(cover->File());
        EXPECT_EQ(main->findChild<frmCover *>()->windowTitle(), u"Cover: "_s + browser.caption);
    }
}

TEST_F(SkinWindow, ComesWithItsDatabase) {
    Open({u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('EnableSkin', '1')"_s});
    EXPECT_EQ(InPlace(), u"WebSkin"_s);
    EXPECT_TRUE(engine);
    main->close();
    EXPECT_FALSE(session.Database);
    const auto collection = sql::Database::Open(database);
    EXPECT_EQ(collection->OpenRecordset(u"SELECT InfoValue FROM DbInfo WHERE InfoName = 'EnableSkin'").Text(0), u"1"_s);
}

TEST_F(SkinWindow, KeepsTheSeasonsInTvView) {
    Open();
    Trigger("mSkinEnable");
    Trigger("mTVShows");
    EXPECT_EQ(Page(), "[Dust]");
    EXPECT_TRUE(IsShown("listSeasons"));
    EXPECT_TRUE(IsShown("listEpisodes"));
    Trigger("mMovies");
    EXPECT_FALSE(IsShown("picCover"));
    EXPECT_EQ(InPlace(), u"WebSkin"_s);
}

TEST_F(SkinWindow, LinksAreFollowedBehindTheNavigation) {
    Open();
    Trigger("mSkinEnable");
    const QString key = browser.listSeries.At(5).key;
    const qsizetype shown = urls.size();
    EXPECT_TRUE(engine->before_navigate(PathToFileUrl(session.TempFolder + u"/blank.html?profileid="_s) +
                                        QString(key).remove(u"Key_"_s)));
    EXPECT_EQ(urls.size(), shown) << "the engine is still asking";
    QCoreApplication::processEvents();
    EXPECT_EQ(session.CurrentProfileID, key);
    EXPECT_EQ(browser.current_row, 5);
    EXPECT_GT(urls.size(), shown);
}

TEST_F(SkinWindow, APersonsListLeadsToEpisodesAndTitles) {
    Open({u"INSERT INTO TVCastCrew (EpisodeID, Name, Role, IsCast, BirthYear, Position) VALUES ('S12.1', 'Zed Quill', "
          u"'Ghost', -1, 0, 1)"_s});
    Trigger("mSkinEnable");
    Click(u"?actorid=Zed%20Quill|0"_s);
    auto *window = main->findChild<frmListView *>();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->windowTitle(), u"Zed Quill (1 entries)"_s);
    auto *list = window->findChild<QTableView *>(u"MultiList"_s);
    Q_EMIT list->activated(list->model()->index(0, 0));
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(session.CurrentProfileID, u"S12.1"_s);
    EXPECT_EQ(browser.listSeasons.value(browser.current_season), u"2"_s);
    EXPECT_EQ(Page(), "[More Dust]");
    window->title_chosen(u"nothing"_s, ListRowKind::Movie);
    EXPECT_FALSE(session.view.mTVShows);
}

TEST_F(SkinWindow, ASkinIsChosen) {
    Open();
    services.dialogs.ExpectInput({}, u"Plain"_s, u"Select Skin"_s);
    Trigger("mEditSkin");
    EXPECT_EQ(services.dialogs.last_values, QStringList{u"Plain"_s});
    EXPECT_EQ(InPlace(), u"WebSkin"_s);
    EXPECT_TRUE(engine);
}

TEST_F(SkinWindow, WithoutAnEngineThePanelsStay) {
    reason = u"not there"_s;
    Open();
    for (int i = 0; i < 2; ++i) {
        services.dialogs.ExpectMessage(u"Pages of skins cannot be shown.\nnot there"_s, MessageIcon::Warning);
        Trigger("mSkinEnable");
        EXPECT_EQ(InPlace(), u"Split3"_s);
        EXPECT_TRUE(IsShown("Split3"));
        EXPECT_FALSE(Action(u"mSkinEnable"_s)->isChecked());
        ClickRow(2);
        EXPECT_EQ(session.CurrentProfileID, browser.listSeries.At(2).key);
        EXPECT_FALSE(browser.cover_stem.isEmpty());
    }
    reason.clear();
    Trigger("mSkinEnable");
    EXPECT_EQ(InPlace(), u"WebSkin"_s) << "it is there now";
}

} // namespace
} // namespace ostrand::test
