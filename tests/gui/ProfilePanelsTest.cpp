// The panels Details and Audio/Video, the icon of the medium and the cover in the main window.
#include "MainWindowFixture.h"
#include "browser/MediaIcon.h"
#include "browser/ProfileInfos.h"
#include "browser/ui/MediumIcon.h"
#include "browser/ui/PanelList.h"
#include "browser/ui/PictureView.h"
#include "platform_qt/ThemedIcon.h"
#include "shell/ui/LinkLabel.h"
#include "shell/ui/SplitPanel.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QHeaderView>
#include <QImage>
#include <QMenu>
#include <QScrollArea>
#include <QTabBar>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class ProfilePanels : public MainWindowTest {
protected:
    /// The window on one more profile that everything is known of, which is selected.
    void Open(int tab, const QStringList &more = {}) {
        QStringList statements = {
            u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType, ColNo, Medium, UPC, Runtime, Rating, "
            "RatingDetails, CaseType, Locality) VALUES ('Key_77', 'Aardvark', 'Aardvark', 'Owned', '7', 'dvd', "
            "'012345678901', 95, 'PG', 'some <b>noise</b>', 'Digipak', 'Norway')"_s,
            u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_77', 'Zoo')"_s,
            u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_77', 'Ants')"_s,
            u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_77', 'Molehill', '')"_s,
            u"INSERT INTO Features (ProfileID, Feature) VALUES ('Key_77', 'Digging')"_s,
            u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_77', 1, "
            "'Snorting', 'PCM', '2')"_s,
            u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('Key_77', 'Grunts')"_s,
            u"INSERT INTO VideoFormat (ProfileID, AspectRatio, VideoStandard, LetterBox, PanAndScan, FullFrame, F16X9) "
            "VALUES ('Key_77', '1.85', 'PAL', true, false, false, true)"_s,
            u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_77', 'IMDb', 'tt77')"_s,
            u"DELETE FROM DbInfo WHERE InfoName = 'LastTab'"_s,
            u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('LastTab', '%1')"_s.arg(tab)};
        Start(statements + more);
        ClickRow(RowOf(u"Aardvark"_s));
        ASSERT_EQ(session.CurrentProfileID, u"Key_77"_s);
    }
    QString Text(const char *name) { return Control<QLabel>(name)->text(); }
    PanelList *Values(const char *name) { return Control<PanelList>(name); }
    QStringList Rows(const char *name) {
        const QAbstractItemModel *model = Values(name)->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            rows << model->index(row, 0).data().toString();
        }
        return rows;
    }
    void ClickValue(const char *name, int row = 0) {
        PanelList *list = Values(name);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    }
    void SelectMainTab(int tab) { Control<QTabBar>("tabMain")->setCurrentIndex(tab - 1); }
};

TEST_F(ProfilePanels, TheTabOfTheLastRunShowsTheTitle) {
    Open(2);
    EXPECT_EQ(Control<QTabBar>("tabMain")->currentIndex(), 1);
    EXPECT_TRUE(Control<QScrollArea>("Details")->isVisible());
    EXPECT_FALSE(Control<QScrollArea>("AV")->isVisible());
    const struct {
        const char *name;
        QString text;
    } texts[] = {
        {"textTitle", u"Title: Aardvark"_s},
        {"textSortTitle", u"STitle: Aardvark"_s},
        {"textOriginalTitle", u"Original Title: "_s},
        {"textOriginalSortTitle", u"OSTitle: "_s},
        {"textCollectionNumber", u"Collection Number: 7"_s},
        {"textCollectionType", u"Collection Type: Owned"_s},
        {"textReleaseDate", u"Release Date: "_s},
        {"textRuntime", u"Runtime: 95 min (01:35)"_s},
        {"textRating", u"Rating: PG"_s},
        {"textCaseType", u"Case Type: Digipak"_s},
        {"textRegions", u"Regions: n/a"_s},
        {"textLocality", u"Locality: Norway"_s},
    };
    for (const auto &c : texts) {
        EXPECT_EQ(Text(c.name), c.text) << c.name;
        EXPECT_TRUE(Control<QLabel>(c.name)->isVisible()) << c.name;
    }
    EXPECT_EQ(Control<QLabel>("textRating")->toolTip(), u"some &lt;b&gt;noise&lt;/b&gt;"_s) << "as text";
    for (const char *frame : {"frameInfos", "frameGenres", "frameStudios"}) {
        EXPECT_TRUE(Control<QFrame>(frame)->isVisible()) << frame;
    }
    EXPECT_EQ(Rows("listStudios"), QStringList{u"Molehill"_s});
    EXPECT_EQ(Rows("listFeatures"), QStringList{u"Digging"_s});
}

TEST_F(ProfilePanels, AnotherTabShowsTheSameTitle) {
    Open(1);
    EXPECT_EQ(Rows("listSubtitles"), QStringList()) << "the tab was not selected yet";
    SelectMainTab(3);
    EXPECT_TRUE(Control<QScrollArea>("AV")->isVisible());
    EXPECT_EQ(Rows("listSubtitles"), QStringList{u"Grunts"_s});
    EXPECT_EQ(Rows("listAudio"), QStringList{u"Snorting"_s});
    EXPECT_EQ(Text("textRatio"), u"Ratio: 1.85:1"_s);
    EXPECT_EQ(Text("textVideoFormat"), u"Format: PAL"_s);
    const struct {
        const char *name;
        bool checked;
    } marks[] = {{"cWidescreen", true}, {"cAnamorph", true}, {"cPanScan", false}, {"cFullFrame", false}};
    for (const auto &c : marks) {
        auto *mark = Control<QCheckBox>(c.name);
        EXPECT_EQ(mark->isChecked(), c.checked) << c.name;
        QTest::mouseClick(mark->window(), Qt::LeftButton, {}, mark->mapTo(mark->window(), mark->rect().center()));
        EXPECT_EQ(mark->isChecked(), c.checked) << c.name << " only shows";
        EXPECT_EQ(mark->focusPolicy(), Qt::NoFocus) << c.name;
    }
    for (const char *frame : {"frameAudio", "frameSubtitles", "frameVideo"}) {
        EXPECT_TRUE(Control<QFrame>(frame)->isVisible()) << frame;
    }
    SelectMainTab(2);
    EXPECT_EQ(Text("textRuntime"), u"Runtime: 95 min (01:35)"_s);
    EXPECT_EQ(session.view.LastTab, 2);
}

TEST_F(ProfilePanels, TheLinksOpen) {
    Open(2);
    auto *upc = Control<LinkLabel>("UPC");
    auto *imdb = Control<LinkLabel>("urlIMDB");
    EXPECT_EQ(upc->text(), u"0-12345-67890-1"_s);
    EXPECT_EQ(imdb->text(), u"IMDb"_s);
    QTest::mouseClick(upc, Qt::LeftButton);
    QTest::mouseClick(imdb, Qt::LeftButton);
    EXPECT_EQ(services.opener.opened,
              (QStringList{u"url "_s + browser.Details.UPC.target, u"url "_s + session.URLIMDb + u"tt77"_s}));
    session.Database->Execute(u"DELETE FROM AdditionalInfo");
    SelectMainTab(3);
    SelectMainTab(2);
    EXPECT_FALSE(imdb->isVisible());
}

TEST_F(ProfilePanels, AClickOnAValueListsItsTitles) {
    const struct {
        const char *list;
        int tab;
        QStringList titles;
    } cases[] = {
        {"listStudios", 2, {u"Aardvark"_s}},
        {"listFeatures", 2, {u"Aardvark"_s}},
        {"listAudio", 3, {u"Aardvark"_s}},
        {"listSubtitles", 3, {u"Aardvark"_s}},
    };
    Open(2);
    for (const auto &c : cases) {
        SelectMainTab(c.tab);
        ClickValue(c.list);
        EXPECT_EQ(Titles(), c.titles) << c.list;
        EXPECT_EQ(session.CurrentProfileID, u"Key_77"_s) << c.list;
        Control<QTabBar>("tabColList")->setCurrentIndex(1);
        Control<QTabBar>("tabColList")->setCurrentIndex(0);
        ClickRow(RowOf(u"Aardvark"_s));
    }
    SelectMainTab(2);
    ClickValue("listGenres", int(Rows("listGenres").indexOf(u"Zoo"_s)));
    EXPECT_EQ(Selected(), u"Aardvark"_s);
    EXPECT_EQ(Titles()[List()->currentIndex().row() - 1], u"Zoo"_s) << "below the header of its group";
}

TEST_F(ProfilePanels, TheKeyboardAndTheMenuListTitlesToo) {
    Open(3);
    PanelList *list = Values("listSubtitles");
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_GT(Titles().size(), 1) << "nothing is selected yet";
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(Titles(), QStringList{u"Aardvark"_s});
    list = Values("listAudio");
    list->setCurrentIndex(list->model()->index(0, 0));
    auto *entry = list->findChild<QAction *>(u"mListTitles"_s);
    ASSERT_TRUE(entry);
    EXPECT_EQ(list->contextMenuPolicy(), Qt::ActionsContextMenu);
    entry->trigger();
    EXPECT_EQ(Titles(), QStringList{u"Aardvark"_s});
}

TEST_F(ProfilePanels, ListsSortAndCopy) {
    Open(2);
    PanelList *list = Values("listGenres");
    const QPoint header(list->header()->sectionPosition(0) + 5, list->header()->height() / 2);
    QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {}, header);
    EXPECT_EQ(Rows("listGenres"), (QStringList{u"Ants"_s, u"Zoo"_s}));
    QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {}, header);
    EXPECT_EQ(Rows("listGenres"), (QStringList{u"Zoo"_s, u"Ants"_s}));
    EXPECT_TRUE(list->header()->isSortIndicatorShown());
    list->setFocus();
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"Genre\r\nZoo\r\nAnts\r\n"_s);
    QTest::keyClick(List(), Qt::Key_End);
    EXPECT_FALSE(list->header()->isSortIndicatorShown()) << "another title's stand in their own order";
}

TEST_F(ProfilePanels, TheIconOfTheMediumStandsAboveTheCover) {
    Open(1);
    auto *icon = Control<MediumIcon>("picMedium");
    EXPECT_TRUE(icon->isVisible());
    EXPECT_EQ(icon->Key(), u"DVDVideo"_s);
    EXPECT_EQ(icon->toolTip(), u"dvd"_s);
    EXPECT_EQ(icon->accessibleDescription(), u"dvd"_s);
    session.view.ShowMediaIcon = false;
    Q_EMIT browser.SettingsChanged();
    EXPECT_FALSE(icon->isVisible());
    session.view.ShowMediaIcon = true;
    Q_EMIT browser.SettingsChanged();
    EXPECT_TRUE(icon->isVisible());
    Trigger("mTVShows");
    EXPECT_FALSE(icon->isVisible());
    EXPECT_EQ(icon->Key(), QString());
    Trigger("mMovies");
    EXPECT_TRUE(icon->isVisible());
}

TEST_F(ProfilePanels, EachMediumHasADrawing) {
    for (const QString &key : MediaIconKeys()) {
        const QIcon icon = ThemedIcon(u"medium_"_s + key);
        ASSERT_FALSE(icon.isNull()) << qPrintable(key);
        const QImage image = icon.pixmap(48, 48).toImage();
        bool drawn = false;
        for (int y = 0; y < image.height() && !drawn; ++y) {
            for (int x = 0; x < image.width() && !drawn; ++x) {
                drawn = qAlpha(image.pixel(x, y)) > 0;
            }
        }
        EXPECT_TRUE(drawn) << qPrintable(key);
    }
}

TEST_F(ProfilePanels, TheCoverKeepsItsRatioAboveTheEpisodesOfATitle) {
    Open(1, {u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_77', 'S11.1')"_s});
    auto *cover = Control<PictureView>("picCover");
    const int stored = main->Split(6)->Position();
    ASSERT_FALSE(cover->HasPicture());
    const TempDir folder;
    QImage wide(200, 100, QImage::Format_RGB32);
    wide.fill(Qt::blue);
    ASSERT_TRUE(wide.save(folder / u"77f.jpg"_s));
    QImage tall(100, 4000, QImage::Format_RGB32);
    tall.fill(Qt::blue);
    ASSERT_TRUE(tall.save(folder / u"77b.jpg"_s));
    session.CoverPath = folder.Path() + u'/';
    ShowCover(browser, u"Key_77"_s);
    ASSERT_TRUE(cover->HasPicture());
    EXPECT_NEAR(cover->height(), cover->width() / 2, 2);
    EXPECT_TRUE(Control<QTreeView>("listEpisodes")->isVisible());
    FlipCover(browser);
    EXPECT_GE(Control<QTreeView>("listEpisodes")->height(), 40) << "a few episodes stay";
    EXPECT_EQ(main->Split(6)->Position(), stored) << "the stored place is that of TV view";
}

} // namespace
} // namespace ostrand::test
