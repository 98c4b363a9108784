#include "browser/PanelFields.h"

#include "BrowserFixture.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"
#include "database/LockLabels.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class PanelFields : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        browser.tabMain = QStringList{u"Credits"_s, u"Details"_s, u"AV"_s};
        AddProfile(u"P1"_s, u"Rating = 'PG', CaseType = 'Tin', Medium = 'DVD', UPC = '1', Locality = 'Norway'"_s);
        AddProfile(u"P2"_s, u"ColType = 'WishList', Rating = 'R'"_s);
        Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S1', 'Attic', '')");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('E1', 'S1', '1', "
            u"'1', 'Dust')");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle) "
            u"VALUES ('E2', 'S1', '1', '2', 'Moth', 'Motte')");
    }
    /// A field as "Lock: Column".
    QString Field(const QString &control) {
        const auto field = FindPanelField(browser, control);
        return !field ? QString() : field->lock_name + u": "_s + (field->change ? field->change->field : QString());
    }
    void Answer(const QString &prompt, const QString &answer) { services.dialogs.ExpectInput(prompt, answer); }
    QStringList Locks() { return Rows(u"SELECT ProfileID, LockName FROM Locks ORDER BY LockName"); }
};

TEST_F(PanelFields, EachControlHasItsLockAndItsColumn) {
    const struct {
        QString control;
        QString profile;
        QString wish;
        QString episode;
    } cases[] = {
        {u"textTitle"_s, u"Title: Title"_s, u"Title: Title"_s, u"Title: EpisodeTitle"_s},
        {u"textSortTitle"_s, u"SortTitle: SortTitle"_s, u"SortTitle: SortTitle"_s, {}},
        {u"textOriginalTitle"_s, u"OriginalTitle: OriginalTitle"_s, u"OriginalTitle: OriginalTitle"_s, {}},
        {u"textOriginalSortTitle"_s,
         u"OriginalSortTitle: OriginalSortTitle"_s,
         u"OriginalSortTitle: OriginalSortTitle"_s,
         {}},
        {u"textCollectionNumber"_s, u"CollectionNumber: ColNo"_s, u"WishListPriority: WishListPriority"_s, {}},
        {u"textCollectionType"_s, u"CollectionType: ColType"_s, u"CollectionType: ColType"_s, {}},
        {u"textReleaseDate"_s, u"ReleaseDate: Released"_s, u"ReleaseDate: Released"_s, u"AirDate: AirDate"_s},
        {u"textRuntime"_s, u"RunningTime: Runtime"_s, u"RunningTime: Runtime"_s, u"RunningTime: Runtime"_s},
        {u"textRating"_s, u"Rating: Rating"_s, u"Rating: Rating"_s, u"Rating: Rating"_s},
        {u"textCaseType"_s, u"CaseType: CaseType"_s, u"CaseType: CaseType"_s, {}},
        {u"textRegions"_s, u"Regions: "_s, u"Regions: "_s, {}},
        {u"textLocality"_s, u"Locality: Locality"_s, u"Locality: Locality"_s, {}},
        {u"UPC"_s, u"UPC: UPC"_s, u"UPC: UPC"_s, {}},
        {u"urlIMDB"_s, u"IMDbLink: "_s, u"IMDbLink: "_s, u"IMDbLink: "_s},
        {u"listGenres"_s, u"Genres: "_s, u"Genres: "_s, u"Genres: "_s},
        {u"listStudios"_s, u"Studios: "_s, u"Studios: "_s, u"Studios: "_s},
        {u"listFeatures"_s, u"Features: "_s, u"Features: "_s, u"Features: "_s},
        {u"listAudio"_s, u"AudioTracks: "_s, u"AudioTracks: "_s, u"AudioTracks: "_s},
        {u"listSubtitles"_s, u"Subtitles: "_s, u"Subtitles: "_s, u"Subtitles: "_s},
        {u"textRatio"_s, u"VideoFormats: "_s, u"VideoFormats: "_s, u"VideoFormats: "_s},
        {u"textVideoFormat"_s, u"VideoFormats: "_s, u"VideoFormats: "_s, u"VideoFormats: "_s},
        {u"frameVideo"_s, u"VideoFormats: "_s, u"VideoFormats: "_s, u"VideoFormats: "_s},
        {u"picMedium"_s, u"Medium: Medium"_s, u"Medium: Medium"_s, {}},
        {u"picCover"_s, u"Covers: "_s, u"Covers: "_s, {}},
        {u"listCast"_s, {}, {}, {}},
    };
    for (const auto &c : cases) {
        GetProfileInfos(browser, u"P1"_s, false, true);
        EXPECT_EQ(Field(c.control), c.profile) << qPrintable(c.control);
        GetProfileInfos(browser, u"P2"_s, false, true);
        EXPECT_EQ(Field(c.control), c.wish) << qPrintable(c.control);
        GetProfileInfos(browser, u"E1"_s, true, true);
        EXPECT_EQ(Field(c.control), c.episode) << qPrintable(c.control);
    }
    GetProfileInfos(browser, u"E2"_s, true, true);
    EXPECT_EQ(Field(u"textTitle"_s), u"OriginalTitle: EpisodeOriginalTitle"_s) << "the title that is shown";
    GetProfileInfos(browser, u"gone"_s, false, true);
    EXPECT_EQ(Field(u"textTitle"_s), QString());
    GetProfileInfos(browser, {}, false, true);
    EXPECT_EQ(Field(u"textTitle"_s), QString());
}

TEST_F(PanelFields, AllLocksOfFieldsAreInTheList) {
    for (const QString &control : {u"textTitle"_s,
                                   u"textSortTitle"_s,
                                   u"textOriginalTitle"_s,
                                   u"textOriginalSortTitle"_s,
                                   u"textCollectionNumber"_s,
                                   u"textCollectionType"_s,
                                   u"textReleaseDate"_s,
                                   u"textRuntime"_s,
                                   u"textRating"_s,
                                   u"textCaseType"_s,
                                   u"textRegions"_s,
                                   u"textLocality"_s,
                                   u"UPC"_s,
                                   u"urlIMDB"_s,
                                   u"listGenres"_s,
                                   u"listStudios"_s,
                                   u"listFeatures"_s,
                                   u"listAudio"_s,
                                   u"listSubtitles"_s,
                                   u"frameVideo"_s,
                                   u"picMedium"_s,
                                   u"picCover"_s}) {
        GetProfileInfos(browser, u"P1"_s, false, true);
        const auto field = FindPanelField(browser, control);
        ASSERT_TRUE(field) << qPrintable(control);
        EXPECT_TRUE(std::ranges::any_of(LockLabels(), [&](const LockLabel &l) { return field->label == l.label; }))
            << qPrintable(control);
    }
}

TEST_F(PanelFields, TheMenuShowsTheLockAndFlipsIt) {
    browser.commands.Handle(u"mLockField"_s, [] {});
    browser.commands.Handle(u"mChangeField"_s, [] {});
    GetProfileInfos(browser, u"P1"_s, false, true);
    EXPECT_TRUE(PrepareFieldMenu(browser, u"textCaseType"_s));
    EXPECT_FALSE(browser.commands.IsChecked(u"mLockField"_s));
    EXPECT_TRUE(browser.commands.IsEnabled(u"mLockField"_s));
    EXPECT_TRUE(browser.commands.IsEnabled(u"mChangeField"_s));
    ToggleFieldLock(browser);
    EXPECT_EQ(Locks(), QStringList{u"P1|CaseType"_s});
    PrepareFieldMenu(browser, u"textRating"_s);
    EXPECT_FALSE(browser.commands.IsChecked(u"mLockField"_s));
    PrepareFieldMenu(browser, u"textCaseType"_s);
    EXPECT_TRUE(browser.commands.IsChecked(u"mLockField"_s));
    ToggleFieldLock(browser);
    EXPECT_EQ(Locks(), QStringList());
    PrepareFieldMenu(browser, u"listGenres"_s);
    EXPECT_TRUE(browser.commands.IsEnabled(u"mLockField"_s));
    EXPECT_FALSE(browser.commands.IsEnabled(u"mChangeField"_s)) << "more than one value";
    GetProfileInfos(browser, u"E1"_s, true, true);
    EXPECT_FALSE(PrepareFieldMenu(browser, u"textCaseType"_s));
    EXPECT_FALSE(browser.commands.IsEnabled(u"mLockField"_s));
    ToggleFieldLock(browser);
    EXPECT_EQ(Locks(), QStringList());
}

TEST_F(PanelFields, AChangedValueShowsInThePanel) {
    GetMovieNames(browser);
    browser.tabMain_selected = 2;
    GetProfileInfos(browser, u"P1"_s, false, false);
    Answer(u"Enter new value for Rating"_s, u"Free"_s);
    ChangePanelField(browser, u"textRating"_s);
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"PG"_s, u"R"_s}));
    EXPECT_EQ(browser.Details.textRating, u"Rating: Free"_s);
    EXPECT_EQ(session.CurrentProfileID, u"P1"_s);
    ChangePanelField(browser, u"listGenres"_s); // asks nothing
    ChangePanelField(browser, u"nothing"_s);
}

TEST_F(PanelFields, AnotherTitleMovesTheRowWhichStaysCurrent) {
    SelectTab(u"Owned"_s);
    AddProfile(u"P3"_s);
    ASSERT_EQ(Movies(), (QStringList{u"P1"_s, u"P3"_s}));
    Answer(u"Enter new value for Sort Title"_s, u"Zoo"_s);
    ChangePanelField(browser, u"textSortTitle"_s);
    EXPECT_EQ(Column(), (QStringList{u"P3"_s, u"P1"_s}));
    EXPECT_EQ(browser.current_row, 1);
    Answer(u"Enter new value for Title"_s, u"Amber"_s);
    ChangePanelField(browser, u"textTitle"_s);
    EXPECT_EQ(Column(), (QStringList{u"P3"_s, u"Amber"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"P1"_s);
}

TEST_F(PanelFields, AnotherCollectionTypeLetsTheTitleLeaveItsTab) {
    SelectTab(u"Owned"_s);
    AddProfile(u"P3"_s);
    ASSERT_EQ(Movies(), (QStringList{u"P1"_s, u"P3"_s}));
    Answer(u"Enter new value for Collection Type"_s, u"Attic"_s);
    ChangePanelField(browser, u"textCollectionType"_s);
    EXPECT_EQ(Column(), QStringList{u"P3"_s});
    EXPECT_EQ(session.CurrentProfileID, u"P3"_s) << "the next one";
    EXPECT_TRUE(browser.tabColList.contains(u"Attic"_s));
    EXPECT_EQ(browser.tabColList[browser.tabColList_selected - 1], u"Owned"_s);
}

TEST_F(PanelFields, AGroupedListKeepsItsRows) {
    ASSERT_EQ(Groups(u"Rating"_s), (QStringList{u"PG"_s, u"     P1"_s, u"R"_s, u"     P2"_s}));
    UpdateSeriesList(browser, 1);
    Answer(u"Enter new value for Title"_s, u"Amber"_s);
    ChangePanelField(browser, u"textTitle"_s);
    EXPECT_EQ(Column(), (QStringList{u"PG"_s, u"     Amber"_s, u"R"_s, u"     P2"_s}));
    EXPECT_EQ(browser.current_row, 1);
}

TEST_F(PanelFields, AnEpisodeShowsItsNewTitleInTheList) {
    session.view.AutoLock = true;
    ChangeMode(browser, false);
    ASSERT_EQ(session.CurrentProfileID, u"E1"_s);
    Answer(u"Enter new value for Title"_s, u"Rust"_s);
    ChangePanelField(browser, u"textTitle"_s);
    EXPECT_EQ(browser.listEpisodes.Rows()[0].title, u"Rust"_s);
    EXPECT_EQ(browser.listEpisodes.rowCount(), 2);
    EXPECT_EQ(Locks(), QStringList{u"E1|Title"_s});
    EXPECT_EQ(session.CurrentProfileID, u"E1"_s);
}

} // namespace
} // namespace ostrand
