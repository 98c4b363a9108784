#include "browser/MenuTable.h"

namespace ostrand {

namespace menu_table {

namespace {

constexpr std::array kFile = {
    Menu(u"mFile", nullptr, u"&File"),
    Entry(u"mSwitchDatabase", u"mFile", u"Switch &Database...",
          u"Opens, creates, renames, compacts and removes databases", u"Ctrl+O"),
    Separator(u"mFile"),
    Menu(u"mImport", u"mFile", u"&Import"),
    Entry(u"mUpdateMovieData", u"mImport", u"&Profiler Collection...", u"Brings a collection file into this database",
          u"Ctrl+I"),
    Entry(u"mImportTVCollection", u"mImport", u"&TV Series..."),
    Entry(u"mImportDatabaseTables", u"mImport", u"&Database Tables...",
          u"Replaces the content of the database by that of a file"),
    Entry(u"mImportAdditionalInfos", u"mImport", u"Additional &Infos..."),
    Entry(u"mImportAwards", u"mImport", u"&Awards..."),
    Entry(u"mImportAlias", u"mImport", u"&Cross-Links..."),
    Entry(u"mImportStrings", u"mImport", u"&Language File..."),
    Entry(u"mImportSQL", u"mImport", u"&SQL Queries..."),
    Entry(u"mImportIMDbLinks", u"mImport", u"IMDb Lin&ks..."),
    Entry(u"mImportIMDbData", u"mImport", u"I&MDb Data..."),
    Menu(u"mExport", u"mFile", u"&Export"),
    Entry(u"mExportAlias", u"mExport", u"&Cross-Links..."),
    Entry(u"mExportAdditionalInfos", u"mExport", u"Additional &Infos..."),
    Entry(u"mExportAward", u"mExport", u"&Awards..."),
    Entry(u"mExportStrings", u"mExport", u"&Language File..."),
    Entry(u"mExportSQL", u"mExport", u"&SQL Queries..."),
    Entry(u"mExportIMDbLinks", u"mExport", u"IMDb Lin&ks..."),
    Separator(u"mExport"),
    Entry(u"mExportProfiler3Collection", u"mExport", u"Profiler &3.x Collection..."),
    Entry(u"mExportProfilerCollection", u"mExport", u"&Profiler 2.x Collection..."),
    Entry(u"mExportHTMLCollection", u"mExport", u"&HTML Collection...",
          u"Writes the collection as pages for a web browser", u"Ctrl+E"),
    Entry(u"mExportStoreIt", u"mExport", u"St&oreIt..."),
    Entry(u"mExportDatabaseTables", u"mExport", u"&Database Tables...",
          u"Writes the whole content of the database to a file"),
    Entry(u"mExportViewerCollection", u"mExport", u"&Viewer Collection..."),
    Entry(u"mExportTVSeries", u"mExport", u"&TV Series..."),
    Menu(u"mUpdate", u"mFile", u"&Update"),
    Entry(u"mUpdateTVInternet", u"mUpdate", u"Online Update of &TV Series...",
          u"Fetches TV series from the data server", u"Ctrl+Shift+U"),
    Entry(u"mOnlineUpdateData", u"mUpdate", u"Online Update of &Data...",
          u"Fetches cross-links, awards, skins and more from the data server", u"Ctrl+U"),
    Separator(u"mFile"),
    Entry(u"mCommandFile", u"mFile", u"Run &Command File...", u"Carries out the commands of a text file",
          u"Ctrl+Shift+O"),
    Separator(u"mFile"),
    Entry(u"mExit", u"mFile", u"E&xit", u"Closes the database and ends the program", u"Ctrl+Q"),
};

constexpr std::array kView = {
    Menu(u"mView", nullptr, u"&View"),
    Checks(&ViewState::mTVShows, Entry(u"mTVShows", u"mView", u"&TV Shows", u"Shows the series", u"Ctrl+T")),
    ChecksNot(&ViewState::mTVShows, Entry(u"mMovies", u"mView", u"&Movies", u"Shows the profiles", u"Ctrl+M")),
    Separator(u"mView"),
    Checks(&ViewState::mcolorlist,
           Entry(u"mcolorlist", u"mView", u"&Colored List", u"Gives every second title another color")),
    Checks(&ViewState::mBoxsetView, Entry(u"mBoxsetView", u"mView", u"&Boxset View",
                                          u"Lists the content of a boxset below the boxset", u"Ctrl+B")),
    Checks(&ViewState::mUseCustomTitle, Entry(u"mUseCustomTitle", u"mView", u"&Use Custom Titles")),
    Checks(&ViewState::mUseOriginalTitle, Entry(u"mUseOriginalTitle", u"mView", u"Use &Original Titles")),
    Checks(&ViewState::mShowDescription, Entry(u"mShowDescription", u"mView", u"Show &Description...",
                                               u"Shows the description of a profile with its title")),
    Separator(u"mView"),
    Checks(&ViewState::mReverseCredit,
           Entry(u"mReverseCredit", u"mView", u"&Last Name First", u"Shows names in credits with the last name first")),
    Checks(&ViewState::mShowFullBoxsetCredits,
           Entry(u"mShowFullBoxsetCredits", u"mView", u"Full Boxset Cr&edits",
                 u"Adds the credits of all titles in a boxset to those of the boxset")),
    Checks(&ViewState::mCrewTreeView,
           Entry(u"mCrewTreeView", u"mView", u"Cre&w as Tree", u"Shows the crew below its categories")),
    Checks(&ViewState::mHideUnassignedCrew, Entry(u"mHideUnassignedCrew", u"mView", u"&Hide Unassigned Crew",
                                                  u"Hides crew whose role belongs to no category")),
    Separator(u"mView"),
    Entry(u"mProfileInformation", u"mView", u"&Profile Information",
          u"Shows everything that is known of the selected title", u"Alt+Return"),
    Entry(u"mShowCover", u"mView", u"Co&ver", u"Shows the cover in a window of its own", u"F7"),
    Entry(u"mFindApperances", u"mView", u"Find &Appearances...", u"Lists all titles in which a person is credited",
          u"Ctrl+F"),
    Entry(u"mGotoProfile", u"mView", u"&Go to Profile...", u"Shows a title by its name", u"Ctrl+G"),
    Entry(u"mSelectRandom", u"mView", u"Select &Random Title", u"Shows any title of the list", u"Ctrl+R"),
    Entry(u"mShowLoanDue", u"mView", u"Show Loa&ns Due", u"Lists the titles that should have been returned by now",
          u"Ctrl+L"),
    InMovies(Checks(&ViewState::mShowFilter, Entry(u"mShowFilter", u"mView", u"Show &Filter",
                                                   u"Shows the filters above the list", u"Ctrl+Shift+F"))),
    InMovies(Menu(u"mSpecialSorting", u"mView", u"&Special Sorting")),
    Entry(u"mOrderByCaseType", u"mSpecialSorting", u"By &Case Type"),
    Entry(u"mOrderByGenre", u"mSpecialSorting", u"By &Genre"),
    Entry(u"mOrderByLocality", u"mSpecialSorting", u"By &Locality"),
    Entry(u"mOrderByRating", u"mSpecialSorting", u"By &Rating"),
    Entry(u"mOrderbyMedium", u"mSpecialSorting", u"By &Medium"),
    Separator(u"mView"),
    Checks(&ViewState::mSkinEnable,
           Entry(u"mSkinEnable", u"mView", u"Enable S&kin", u"Shows titles as pages instead of panels", u"Ctrl+K")),
    Entry(u"mEditSkin", u"mView", u"Select Sk&in...", u"Chooses the skin, or makes a new one", u"Ctrl+Shift+K"),
};

constexpr std::array kEdit = {
    Menu(u"mEdit", nullptr, u"&Edit"),
    InMovies(Menu(u"mEditSelected", u"mEdit", u"Se&lected Profiles")),
    Entry(u"mMoveSelected", u"mEditSelected", u"&Move...", u"Gives all selected profiles another collection type",
          u"Ctrl+Shift+M"),
    Entry(u"mLockSelectedProfiles", u"mEditSelected", u"&Lock", u"Protects all selected profiles from imports"),
    Entry(u"mUnlockSelectedProfiles", u"mEditSelected", u"&Unlock", u"Lets imports change all selected profiles"),
    Entry(u"mRemoveSelected", u"mEditSelected", u"&Remove...", u"Removes all selected profiles", u"Ctrl+Shift+Delete"),
    Separator(u"mEdit"),
    InMovies(Entry(u"mNewProfile", u"mEdit", u"&New Profile...", u"Adds a profile to the collection", u"Ctrl+N")),
    InTV(Entry(u"mAddNewSeries", u"mEdit", u"Ne&w TV Series...")),
    InTV(Entry(u"mAddNewSeason", u"mEdit", u"New Seas&on...")),
    InTV(Entry(u"mAddNewEpisode", u"mEdit", u"New Episo&de...", u"Adds an episode to the selected season",
               u"Ctrl+Shift+N")),
    Separator(u"mEdit"),
    InMovies(Entry(u"mRemoveProfileInEdit", u"mEdit", u"Remove &Profile...",
                   u"Removes the selected profile with all its data", u"Ctrl+Delete")),
    InTV(Entry(u"mRemoveTVSeries", u"mEdit", u"Remove T&V Series...", u"Removes the series with all its episodes")),
    InTV(Entry(u"mRemoveTVSeason", u"mEdit", u"Remove &Season...", u"Removes the season with all its episodes")),
    InTV(Entry(u"mRemoveEpisode", u"mEdit", u"Re&move Episode...")),
    Separator(u"mEdit"),
    InMovies(Entry(u"mEditProfile", u"mEdit", u"Edit Pro&file...", u"Edits the selected profile", u"F2")),
    Entry(u"mEditTVEpisode", u"mEdit", u"Edit &Episode...", u"Edits the selected episode", u"Shift+F2"),
    InTV(Entry(u"mEditSeriesMain", u"mEdit", u"Edit TV Ser&ies...", u"Edits the selected series", u"Ctrl+F2")),
    Separator(u"mEdit"),
    Entry(u"mEditAwards", u"mEdit", u"Edit &Awards..."),
    Entry(u"mEditCrewMapping", u"mEdit", u"Edit Crew Mappin&g...", u"Tells which crew roles make up a category"),
    Entry(u"mEditCrossLinks", u"mEdit", u"Edit &Cross-Links...", u"Tells which names belong to one person",
          u"Ctrl+Shift+L"),
    Entry(u"mEditCurrencies", u"mEdit", u"Edit Currenc&y List..."),
    Entry(u"mEditRetailers", u"mEdit", u"Edit &Retailers..."),
    Entry(u"mEditSkins", u"mEdit", u"Edit S&kins..."),
    Entry(u"mEditTranslation", u"mEdit", u"Edit &Translation..."),
    Entry(u"mEditUsers", u"mEdit", u"Edit &Users..."),
};

constexpr std::array kTools = {
    Menu(u"mTools", nullptr, u"&Tools"),
    Entry(u"mSearchIMDb", u"mTools", u"Search &IMDb", u"Looks the title up in the web browser", u"Ctrl+J"),
    Separator(u"mTools"),
    Entry(u"mHeadshotImport", u"mTools", u"&Headshot Import...", u"Brings pictures of persons in from a folder",
          u"Ctrl+Shift+H"),
    Entry(u"mManageHeadshots", u"mTools", u"&Manage Headshots...", u"Tidies the folder with pictures of persons",
          u"Ctrl+H"),
    Entry(u"mCheckHeadshots", u"mTools", u"&Update Headshots...", u"Fetches pictures of persons from the data server"),
    Entry(u"mDropBox", u"mTools", u"&Drop Box for Pictures", u"Stores pictures that are dropped on a small window"),
    Separator(u"mTools"),
    InMovies(Entry(u"mAssignEps", u"mTools", u"Assign &Episodes...", u"Tells which episodes the selected profile holds",
                   u"Ctrl+Shift+E")),
    Entry(u"mAwardBrowser", u"mTools", u"Award &Browser", u"Shows awards year by year", u"Ctrl+Shift+A"),
    Entry(u"mRemoveUnneededBirthYears", u"mTools", u"&Remove Unneeded Birth Years",
          u"Removes birth years that tell no two persons apart"),
    Entry(u"mSQLQuery", u"mTools", u"SQL &Query", u"Asks the database in its own language, and makes filters", u"F9"),
    Hidden(Entry(u"mSVNAuditTrailDatabase", u"mTools", u"Audit &Trail of Database",
                 u"Shows the recorded changes of all titles")),
    Separator(u"mTools"),
    Entry(u"mSettings", u"mTools", u"&Settings...", u"Changes how the program works with this database", u"Ctrl+,"),
};

constexpr std::array kInfo = {
    Menu(u"mInfo", nullptr, u"&Info"),
    Entry(u"mAbout", u"mInfo", u"&About Ostrand", u"Tells the version and the license", u"F1"),
};

template <size_t... N>
constexpr auto Join(const std::array<MenuEntry, N> &...parts) {
    std::array<MenuEntry, (N + ...)> all;
    size_t next = 0;
    ((std::copy(parts.begin(), parts.end(), all.begin() + next), next += N), ...);
    return all;
}

} // namespace

std::span<const MenuEntry> MenuBarEntries() {
    static constexpr auto entries = Join(kFile, kView, kEdit, kTools, kInfo);
    return entries;
}

} // namespace menu_table

std::span<const MenuEntry> MenuEntries() {
    static const std::vector<MenuEntry> entries = [] {
        const std::span<const MenuEntry> bar = menu_table::MenuBarEntries();
        const std::span<const MenuEntry> context = menu_table::ContextMenuEntries();
        std::vector<MenuEntry> all(bar.begin(), bar.end());
        all.insert(all.end(), context.begin(), context.end());
        return all;
    }();
    return entries;
}

const MenuEntry *FindMenuEntry(QStringView name) {
    const std::span<const MenuEntry> entries = MenuEntries();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const MenuEntry &entry) {
        return !entry.IsSeparator() && QStringView(entry.name) == name;
    });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace ostrand
