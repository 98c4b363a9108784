#include "browser/MenuTable.h"

namespace ostrand::menu_table {

namespace {

constexpr MenuEntry kEntries[] = {
    // The rows of listSeries in movie view.
    ContextMenu(u"mProfileTools"),
    SameAs(u"mProfileInformation", InMovies(Entry(u"mProfileInfoContext", u"mProfileTools", u"&Profile Information"))),
    SameAs(u"mEditProfile", Entry(u"mEditProfileContext", u"mProfileTools", u"&Edit Profile...")),
    InMovies(Entry(u"mSetAdditionalInfo", u"mProfileTools", u"Additional &Infos...",
                   u"Edits what you noted of the profile under names of your own")),
    SameAs(u"mAssignEps", InMovies(Entry(u"mAssignEpisodes", u"mProfileTools", u"&Assign Episodes..."))),
    SameAs(u"mRemoveProfileInEdit", Entry(u"mRemoveProfile", u"mProfileTools", u"&Remove Profile...")),
    Told(InMovies(
        Entry(u"mLockProfile", u"mProfileTools", u"&Lock Profile", u"Protects the whole profile from imports"))),
    Separator(u"mProfileTools"),
    Menu(u"mSortList", u"mProfileTools", u"&Sort By"),
    Entry(u"mOrderTitleAsc", u"mSortList", u"&Title"),
    Entry(u"mOrderTitleDesc", u"mSortList", u"T&itle (Descending)"),
    Separator(u"mSortList"),
    Entry(u"mOrderColNoAsc", u"mSortList", u"&Collection Number"),
    Entry(u"mOrderColNoDesc", u"mSortList", u"Collection &Number (Descending)"),
    Separator(u"mSortList"),
    Entry(u"mOrderProdYearAsc", u"mSortList", u"Production &Year"),
    Entry(u"mOrderProdYearDesc", u"mSortList", u"Pr&oduction Year (Descending)"),
    Separator(u"mSortList"),
    Entry(u"mOrderPDateAsc", u"mSortList", u"&Purchase Date"),
    Entry(u"mOrderPDateDesc", u"mSortList", u"P&urchase Date (Descending)"),
    Separator(u"mSortList"),
    Entry(u"mOrderRDateAsc", u"mSortList", u"&Release Date"),
    Entry(u"mOrderRDateDesc", u"mSortList", u"Re&lease Date (Descending)"),
    InMovies(Menu(u"mSpecialSortingContext", u"mProfileTools", u"Special S&orting")),
    SameAs(u"mOrderByCaseType", Entry(u"mOrderByCaseTypeContext", u"mSpecialSortingContext", u"By &Case Type")),
    SameAs(u"mOrderByGenre", Entry(u"mOrderByGenreContext", u"mSpecialSortingContext", u"By &Genre")),
    SameAs(u"mOrderByLocality", Entry(u"mOrderByLocalityContext", u"mSpecialSortingContext", u"By &Locality")),
    SameAs(u"mOrderByRating", Entry(u"mOrderByRatingContext", u"mSpecialSortingContext", u"By &Rating")),
    SameAs(u"mOrderbyMedium", Entry(u"mOrderbyMediumContext", u"mSpecialSortingContext", u"By &Medium")),
    Separator(u"mProfileTools"),
    Hidden(Entry(u"mShowAuditTrail", u"mProfileTools", u"Audit &Trail", u"Shows the recorded changes of the profile")),
    Grid(&ViewState::GridLines::ListCollection, u"mToogleGridlinesCollection", u"mProfileTools"),

    // The rows of listSeries in TV view.
    ContextMenu(u"mSeriesTools"),
    SameAs(u"mEditSeriesMain", Entry(u"mEditSeries", u"mSeriesTools", u"&Edit TV Series...")),
    SameAs(u"mAddNewSeries", Entry(u"mAddSeries", u"mSeriesTools", u"&New TV Series...")),
    SameAs(u"mRemoveTVSeries", Entry(u"mRemoveSeries", u"mSeriesTools", u"&Remove TV Series...")),
    Separator(u"mSeriesTools"),
    Grid(&ViewState::GridLines::ListCollection, u"mToogleGridlinesSeries", u"mSeriesTools"),

    // The entries of listSeasons.
    ContextMenu(u"mSeasonTools"),
    SameAs(u"mAddNewSeason", Entry(u"mAddSeason", u"mSeasonTools", u"&Add Season...")),
    InTV(Entry(u"mRenameSeason", u"mSeasonTools", u"Re&name Season...")),
    SameAs(u"mRemoveTVSeason", Entry(u"mRemoveSeason", u"mSeasonTools", u"&Remove Season...")),
    Separator(u"mSeasonTools"),
    InTV(Entry(u"mLockSeason", u"mSeasonTools", u"&Lock Season", u"Protects the season's name from updates")),
    InTV(Entry(u"mUnlockSeason", u"mSeasonTools", u"&Unlock Season")),
    Separator(u"mSeasonTools"),
    InTV(Entry(u"mCopySeasonCast", u"mSeasonTools", u"Copy &Cast",
               u"Copies the cast of all episodes; with Ctrl held as one flat list")),
    InTV(Entry(u"mCopySeasonCastRegulars", u"mSeasonTools", u"Copy Cast, Regulars &First")),
    InTV(Entry(u"mCopySeasonCrew", u"mSeasonTools", u"Copy Cre&w",
               u"Copies the crew of all episodes; with Ctrl held as one flat list")),
    InTV(Entry(u"mCopySeasonCrewRegulars", u"mSeasonTools", u"Copy Crew, Regulars Firs&t")),

    // picCover.
    ContextMenu(u"mCoverTools"),
    SameAs(u"mShowCover", Entry(u"mShowCoverContext", u"mCoverTools", u"&Show in a Window")),
    Entry(u"mFlipCover", u"mCoverTools", u"&Other Side"),
    Told(Entry(u"mLockCovers", u"mCoverTools", u"&Lock Covers", u"Protects the covers from imports and updates")),

    // The rows of listEpisodes.
    ContextMenu(u"mEpisodeTools"),
    Entry(u"mEpisodeInfoContext", u"mEpisodeTools", u"Episode &Information"),
    SameAs(u"mEditTVEpisode", Entry(u"mEditEpisode", u"mEpisodeTools", u"&Edit Episode...")),
    Told(Entry(u"mLockEpisode", u"mEpisodeTools", u"&Lock Episode",
               u"Protects the whole episode from imports and updates")),
    Separator(u"mEpisodeTools"),
    SameAs(u"mAddNewEpisode", InTV(Entry(u"mNewEpisode", u"mEpisodeTools", u"&New Episode..."))),
    InTV(Entry(u"mAddBlankEpisode", u"mEpisodeTools", u"&Add Blank Episode",
               u"Adds an episode with the next number and no title")),
    InTV(Entry(u"mDuplicateEpisode", u"mEpisodeTools", u"&Duplicate Episode",
               u"Adds an episode with the credits and details of this one")),
    SameAs(u"mRemoveEpisode", Entry(u"mDeleteEpisode", u"mEpisodeTools", u"&Remove Episode...")),
    Separator(u"mEpisodeTools"),
    Grid(&ViewState::GridLines::ListEpisodes, u"mToogleGridlinesEpisodes", u"mEpisodeTools"),

    // ListCast, and ListCrew with treeCrew.
    ContextMenu(u"mCastTools"),
    Entry(u"mCopyCastList", u"mCastTools", u"&Copy Cast", u"Copies the cast as data for other programs"),
    Entry(u"mPasteCastList", u"mCastTools", u"&Paste Cast...", u"Replaces the cast by that of the clipboard"),
    Told(Entry(u"mLockCast", u"mCastTools", u"&Lock Cast", u"Protects the cast from imports and updates")),
    Separator(u"mCastTools"),
    Entry(u"mAddAliasCast", u"mCastTools", u"Cross-Link &Name...",
          u"Tells which name is common to all spellings of the selected person"),
    Entry(u"mDownloadHeadshotCast", u"mCastTools", u"&Download Headshot from URL..."),
    Separator(u"mCastTools"),
    Grid(&ViewState::GridLines::ListCast, u"mToogleGridlinesCast", u"mCastTools"),
    ContextMenu(u"mCrewTools"),
    Entry(u"mCopyCrewList", u"mCrewTools", u"&Copy Crew", u"Copies the crew as data for other programs"),
    Entry(u"mPasteCrewList", u"mCrewTools", u"&Paste Crew...", u"Replaces the crew by that of the clipboard"),
    Told(Entry(u"mLockCrew", u"mCrewTools", u"&Lock Crew", u"Protects the crew from imports and updates")),
    Separator(u"mCrewTools"),
    Entry(u"mAddAliasCrew", u"mCrewTools", u"Cross-Link &Name...",
          u"Tells which name is common to all spellings of the selected person"),
    Entry(u"mDownloadHeadshotCrew", u"mCrewTools", u"&Download Headshot from URL..."),
    Separator(u"mCrewTools"),
    Grid(&ViewState::GridLines::ListCrew, u"mToogleGridlinesCrew", u"mCrewTools"),

    // The tabs of tabColList.
    ContextMenu(u"mColTabTools"),
    SameAs(u"mNewProfile", InMovies(Entry(u"mAddProfile", u"mColTabTools", u"&New Profile..."))),
    Separator(u"mColTabTools"),
    InMovies(Entry(u"mAddColType", u"mColTabTools", u"&Add Collection Type...")),
    InMovies(Entry(u"mRenameCollectionType", u"mColTabTools", u"Rena&me Collection Type...")),
    InMovies(Entry(u"mRemoveColType", u"mColTabTools", u"&Remove Collection Type")),

    // The fields of the panels.
    ContextMenu(u"mLockTools"),
    Entry(u"mChangeField", u"mLockTools", u"&Change...", u"Asks for another value of this field"),
    Entry(u"mCopyField", u"mLockTools", u"C&opy"),
    Separator(u"mLockTools"),
    Told(Entry(u"mLockField", u"mLockTools", u"&Lock", u"Protects this field from imports and updates")),

    // treeAwards.
    ContextMenu(u"mAwardTools"),
    SameAs(u"mAwardBrowser", Entry(u"mAwardBrowserContext", u"mAwardTools", u"Award &Browser")),
    SameAs(u"mEditAwards", Entry(u"mEditAwardsContext", u"mAwardTools", u"&Edit Awards...")),

    // The rows of listAppearences.
    ContextMenu(u"mToolsAppearances"),
    Entry(u"mGotoAppearance", u"mToolsAppearances", u"G&o to Title"),
    Separator(u"mToolsAppearances"),
    Grid(&ViewState::GridLines::ListAppearances, u"mToggleGridLinesAp", u"mToolsAppearances"),

    // picActor.
    ContextMenu(u"mHeadshotTools"),
    Entry(u"mNextHeadshot", u"mHeadshotTools", u"&Next Picture"),
    Entry(u"mSetHeadshotAsPrimary", u"mHeadshotTools", u"&Set as Primary Picture",
          u"Makes the picture that is shown the first one of the person"),
    Entry(u"mDownloadHeadshotFromURL", u"mHeadshotTools", u"&Download from URL..."),
};

} // namespace

std::span<const MenuEntry> ContextMenuEntries() {
    return kEntries;
}

} // namespace ostrand::menu_table
