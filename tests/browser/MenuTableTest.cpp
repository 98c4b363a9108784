#include "browser/Commands.h"
#include "browser/ToolBarTable.h"

#include <QMap>
#include <QSet>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString Text(const char16_t *text) {
    return text == nullptr ? QString() : QStringView(text).toString();
}

/// The menu an entry stands in, or the context menu or menu of the bar above its submenus.
QString TopMenu(const MenuEntry &entry) {
    const MenuEntry *at = &entry;
    while (at->parent != nullptr) {
        at = FindMenuEntry(Text(at->parent));
    }
    return Text(at->name);
}

struct Prescribed {
    QString menu;
    QStringList entries;
};

// The menus of the window, entry by entry.
const std::vector<Prescribed> &MenuBar() {
    static const std::vector<Prescribed> menus = {
        {u"mFile"_s, {u"mSwitchDatabase"_s, u"mImport"_s, u"mExport"_s, u"mUpdate"_s, u"mCommandFile"_s, u"mExit"_s}},
        {u"mImport"_s,
         {u"mUpdateMovieData"_s, u"mImportTVCollection"_s, u"mImportDatabaseTables"_s, u"mImportAdditionalInfos"_s,
          u"mImportAwards"_s, u"mImportAlias"_s, u"mImportStrings"_s, u"mImportSQL"_s, u"mImportIMDbLinks"_s,
          u"mImportIMDbData"_s}},
        {u"mExport"_s,
         {u"mExportAlias"_s, u"mExportAdditionalInfos"_s, u"mExportAward"_s, u"mExportStrings"_s, u"mExportSQL"_s,
          u"mExportIMDbLinks"_s, u"mExportProfiler3Collection"_s, u"mExportProfilerCollection"_s,
          u"mExportHTMLCollection"_s, u"mExportStoreIt"_s, u"mExportDatabaseTables"_s, u"mExportViewerCollection"_s,
          u"mExportTVSeries"_s}},
        {u"mUpdate"_s, {u"mUpdateTVInternet"_s, u"mOnlineUpdateData"_s}},
        {u"mView"_s,
         {u"mTVShows"_s,
          u"mMovies"_s,
          u"mcolorlist"_s,
          u"mBoxsetView"_s,
          u"mUseCustomTitle"_s,
          u"mUseOriginalTitle"_s,
          u"mShowDescription"_s,
          u"mReverseCredit"_s,
          u"mShowFullBoxsetCredits"_s,
          u"mCrewTreeView"_s,
          u"mHideUnassignedCrew"_s,
          u"mProfileInformation"_s,
          u"mShowCover"_s,
          u"mFindApperances"_s,
          u"mGotoProfile"_s,
          u"mSelectRandom"_s,
          u"mShowLoanDue"_s,
          u"mShowFilter"_s,
          u"mSpecialSorting"_s,
          u"mSkinEnable"_s,
          u"mEditSkin"_s}},
        {u"mSpecialSorting"_s,
         {u"mOrderByCaseType"_s, u"mOrderByGenre"_s, u"mOrderByLocality"_s, u"mOrderByRating"_s, u"mOrderbyMedium"_s}},
        {u"mEdit"_s, {u"mEditSelected"_s,  u"mNewProfile"_s,          u"mAddNewSeries"_s,    u"mAddNewSeason"_s,
                      u"mAddNewEpisode"_s, u"mRemoveProfileInEdit"_s, u"mRemoveTVSeries"_s,  u"mRemoveTVSeason"_s,
                      u"mRemoveEpisode"_s, u"mEditProfile"_s,         u"mEditTVEpisode"_s,   u"mEditSeriesMain"_s,
                      u"mEditAwards"_s,    u"mEditCrewMapping"_s,     u"mEditCrossLinks"_s,  u"mEditCurrencies"_s,
                      u"mEditRetailers"_s, u"mEditSkins"_s,           u"mEditTranslation"_s, u"mEditUsers"_s}},
        {u"mEditSelected"_s,
         {u"mMoveSelected"_s, u"mLockSelectedProfiles"_s, u"mUnlockSelectedProfiles"_s, u"mRemoveSelected"_s}},
        {u"mTools"_s,
         {u"mSearchIMDb"_s, u"mHeadshotImport"_s, u"mManageHeadshots"_s, u"mCheckHeadshots"_s, u"mDropBox"_s,
          u"mAssignEps"_s, u"mAwardBrowser"_s, u"mRemoveUnneededBirthYears"_s, u"mSQLQuery"_s,
          u"mSVNAuditTrailDatabase"_s, u"mSettings"_s}},
        {u"mInfo"_s, {u"mAbout"_s}},
    };
    return menus;
}

// What context menus hold at least, in themselves or in their submenus.
const std::vector<Prescribed> &ContextMenus() {
    static const std::vector<Prescribed> menus = {
        {u"mCastTools"_s, {u"mCopyCastList"_s, u"mPasteCastList"_s, u"mToogleGridlinesCast"_s}},
        {u"mCrewTools"_s, {u"mCopyCrewList"_s, u"mPasteCrewList"_s, u"mToogleGridlinesCrew"_s}},
        {u"mSeriesTools"_s, {u"mToogleGridlinesSeries"_s}},
        {u"mSeasonTools"_s, {u"mRenameSeason"_s, u"mLockSeason"_s, u"mUnlockSeason"_s}},
        {u"mEpisodeTools"_s,
         {u"mLockEpisode"_s, u"mNewEpisode"_s, u"mAddBlankEpisode"_s, u"mDuplicateEpisode"_s,
          u"mToogleGridlinesEpisodes"_s}},
        {u"mProfileTools"_s, {u"mProfileInfoContext"_s,     u"mAssignEpisodes"_s,
                              u"mSetAdditionalInfo"_s,      u"mShowAuditTrail"_s,
                              u"mOrderTitleAsc"_s,          u"mOrderTitleDesc"_s,
                              u"mOrderColNoAsc"_s,          u"mOrderColNoDesc"_s,
                              u"mOrderProdYearAsc"_s,       u"mOrderProdYearDesc"_s,
                              u"mOrderPDateAsc"_s,          u"mOrderPDateDesc"_s,
                              u"mOrderRDateAsc"_s,          u"mOrderRDateDesc"_s,
                              u"mOrderByCaseTypeContext"_s, u"mOrderByGenreContext"_s,
                              u"mOrderByLocalityContext"_s, u"mOrderByRatingContext"_s,
                              u"mOrderbyMediumContext"_s,   u"mToogleGridlinesCollection"_s}},
        {u"mCoverTools"_s, {u"mShowCoverContext"_s, u"mFlipCover"_s}},
        {u"mColTabTools"_s, {u"mAddProfile"_s, u"mAddColType"_s, u"mRenameCollectionType"_s, u"mRemoveColType"_s}},
        {u"mLockTools"_s, {}},
        {u"mAwardTools"_s, {}},
        {u"mToolsAppearances"_s, {u"mToggleGridLinesAp"_s}},
        {u"mHeadshotTools"_s, {u"mSetHeadshotAsPrimary"_s, u"mDownloadHeadshotFromURL"_s}},
    };
    return menus;
}

TEST(MenuTable, EachMenuHoldsItsEntriesInTheirOrder) {
    for (const Prescribed &menu : MenuBar()) {
        QStringList found;
        for (const MenuEntry &entry : MenuEntries()) {
            if (!entry.IsSeparator() && Text(entry.parent) == menu.menu) {
                found << Text(entry.name);
            }
        }
        EXPECT_EQ(found.join(u' ').toStdString(), menu.entries.join(u' ').toStdString()) << qPrintable(menu.menu);
    }
}

TEST(MenuTable, TheMenuBarHoldsFiveMenus) {
    QStringList found;
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.parent == nullptr && !entry.is_context_menu) {
            EXPECT_TRUE(entry.is_menu);
            found << Text(entry.name);
        }
    }
    EXPECT_EQ(found, (QStringList{u"mFile"_s, u"mView"_s, u"mEdit"_s, u"mTools"_s, u"mInfo"_s}));
}

TEST(MenuTable, EachContextMenuHoldsItsEntries) {
    QSet<QString> prescribed;
    for (const Prescribed &menu : ContextMenus()) {
        prescribed << menu.menu;
        const MenuEntry *found = FindMenuEntry(menu.menu);
        ASSERT_NE(found, nullptr) << qPrintable(menu.menu);
        EXPECT_TRUE(found->is_context_menu && found->is_menu && found->parent == nullptr);
        for (const QString &name : menu.entries) {
            const MenuEntry *entry = FindMenuEntry(name);
            ASSERT_NE(entry, nullptr) << qPrintable(name);
            EXPECT_EQ(TopMenu(*entry), menu.menu) << qPrintable(name);
        }
    }
    for (const MenuEntry &entry : MenuEntries()) {
        EXPECT_TRUE(!entry.is_context_menu || prescribed.contains(Text(entry.name))) << qPrintable(Text(entry.name));
    }
}

TEST(MenuTable, EachNameStandsOnce) {
    QSet<QString> names;
    for (const MenuEntry &entry : MenuEntries()) {
        EXPECT_TRUE(entry.IsSeparator() || !names.contains(Text(entry.name))) << qPrintable(Text(entry.name));
        names << Text(entry.name);
    }
    for (const ToolButton &button : ToolButtons()) {
        EXPECT_FALSE(names.contains(Text(button.name))) << qPrintable(Text(button.name));
    }
}

TEST(MenuTable, NamesCompareExactly) {
    EXPECT_NE(FindMenuEntry(u"mcolorlist"), nullptr);
    EXPECT_EQ(FindMenuEntry(u"mColorList"), nullptr);
    EXPECT_EQ(FindMenuEntry(u""), nullptr);
}

TEST(MenuTable, MenusStandBeforeTheirEntries) {
    QSet<QString> menus;
    for (const MenuEntry &entry : MenuEntries()) {
        EXPECT_TRUE(entry.parent == nullptr || menus.contains(Text(entry.parent))) << qPrintable(Text(entry.name));
        if (entry.is_menu) {
            menus << Text(entry.name);
        }
    }
}

TEST(MenuTable, NoMenuIsEmpty) {
    for (const MenuEntry &menu : MenuEntries()) {
        const auto holds = [&](const MenuEntry &entry) { return Text(entry.parent) == Text(menu.name); };
        if (menu.is_menu) {
            EXPECT_TRUE(std::ranges::any_of(MenuEntries(), holds)) << qPrintable(Text(menu.name));
        }
    }
}

TEST(MenuTable, SeparatorsStandBetweenEntries) {
    QMap<QString, const MenuEntry *> last;
    for (const MenuEntry &entry : MenuEntries()) {
        const QString menu = Text(entry.parent);
        if (entry.IsSeparator()) {
            ASSERT_TRUE(last.contains(menu)) << "a separator comes first in " << qPrintable(menu);
            EXPECT_FALSE(last[menu]->IsSeparator()) << "two separators in " << qPrintable(menu);
        }
        last[menu] = &entry;
    }
    for (const MenuEntry *entry : last) {
        EXPECT_FALSE(entry->IsSeparator()) << "a separator comes last in " << qPrintable(Text(entry->parent));
    }
}

TEST(MenuTable, MnemonicsAreUniqueWithinAMenu) {
    QMap<QString, QMap<QChar, QString>> taken;
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.IsSeparator() || entry.is_context_menu) {
            continue;
        }
        const QString text = Text(entry.text);
        const qsizetype mark = text.indexOf(u'&');
        ASSERT_TRUE(mark >= 0 && text.count(u'&') == 1 && mark + 1 < text.size()) << qPrintable(Text(entry.name));
        const QChar key = text[mark + 1].toLower();
        EXPECT_TRUE(key.isLetterOrNumber()) << qPrintable(text);
        auto &keys = taken[Text(entry.parent)];
        EXPECT_FALSE(keys.contains(key)) << qPrintable(text) << " and " << qPrintable(keys[key]);
        keys[key] = text;
    }
}

TEST(MenuTable, CaptionsAreUniqueWithinAMenu) {
    QSet<QString> taken;
    for (const MenuEntry &entry : MenuEntries()) {
        if (!entry.IsSeparator() && !entry.is_context_menu) {
            const QString text = Text(entry.parent) + u'/' + Text(entry.text).remove(u'&');
            EXPECT_FALSE(taken.contains(text)) << qPrintable(text);
            taken << text;
        }
    }
}

TEST(MenuTable, MessagesThatNameAnEntryNameItRight) {
    const auto shown = [](QStringView name) { return Text(FindMenuEntry(name)->text).remove(u'&'); };
    EXPECT_EQ(shown(u"mTools") + u"->"_s + shown(u"mSQLQuery"), u"Tools->SQL Query");
    EXPECT_EQ(shown(u"mTools") + u"->"_s + shown(u"mSettings"), u"Tools->Settings...");
}

TEST(MenuTable, ShortcutsAreUnique) {
    // What the window itself takes: the cover's tag, the copies of a list, and the way to the menus.
    QMap<QString, QString> taken = {{u"Ctrl+1"_s, u"frmMain"_s},
                                    {u"Ctrl+C"_s, u"frmMain"_s},
                                    {u"Ctrl+Shift+C"_s, u"frmMain"_s},
                                    {u"F10"_s, u"frmMain"_s}};
    const auto take = [&](const char16_t *shortcut, const char16_t *name) {
        if (shortcut != nullptr) {
            EXPECT_FALSE(taken.contains(Text(shortcut))) << qPrintable(Text(name) + u' ' + taken[Text(shortcut)]);
            taken[Text(shortcut)] = Text(name);
        }
    };
    for (const MenuEntry &entry : MenuEntries()) {
        take(entry.shortcut, entry.name);
        EXPECT_FALSE(entry.is_menu && entry.shortcut != nullptr) << qPrintable(Text(entry.name));
    }
    for (const ToolButton &button : ToolButtons()) {
        take(button.shortcut, button.name);
    }
    EXPECT_EQ(taken[u"Ctrl+O"_s], u"mSwitchDatabase");
    EXPECT_EQ(taken[u"Ctrl+I"_s], u"mUpdateMovieData");
    EXPECT_EQ(taken[u"Ctrl+G"_s], u"mGotoProfile");
    EXPECT_EQ(taken[u"Ctrl+R"_s], u"mSelectRandom");
    EXPECT_EQ(taken[u"Ctrl+Q"_s], u"mExit");
    EXPECT_EQ(taken[u"F1"_s], u"mAbout");
    EXPECT_EQ(taken[u"Alt+Left"_s], u"MoveBack");
}

TEST(MenuTable, OnlyTheMenuBarHasShortcuts) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.shortcut != nullptr) {
            EXPECT_FALSE(FindMenuEntry(TopMenu(entry))->is_context_menu) << qPrintable(Text(entry.name));
        }
    }
}

TEST(MenuTable, EntriesWithAShortcutAndToolButtonsHaveAToolTip) {
    for (const MenuEntry &entry : MenuEntries()) {
        EXPECT_TRUE(entry.shortcut == nullptr || !Text(entry.tool_tip).isEmpty()) << qPrintable(Text(entry.name));
    }
    for (const ToolButton &button : ToolButtons()) {
        EXPECT_FALSE(Text(button.tool_tip).isEmpty()) << qPrintable(Text(button.name));
        for (const char16_t *command : {button.command, button.tv_command}) {
            EXPECT_TRUE(command == nullptr || FindMenuEntry(Text(command))->tool_tip != nullptr);
        }
    }
}

TEST(MenuTable, EntriesThatDoAnothersWorkNameAnEntryOfTheMenuBar) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.same_as != nullptr) {
            const MenuEntry *other = FindMenuEntry(Text(entry.same_as));
            ASSERT_NE(other, nullptr) << qPrintable(Text(entry.name));
            EXPECT_TRUE(other->same_as == nullptr && !other->is_menu) << qPrintable(Text(entry.name));
            EXPECT_FALSE(FindMenuEntry(TopMenu(*other))->is_context_menu) << qPrintable(Text(entry.name));
        }
    }
}

TEST(MenuTable, EntriesOfOneView) {
    const QSet<QString> movies = {u"mProfileInfoContext"_s, u"mAssignEpisodes"_s,      u"mAssignEps"_s,
                                  u"mSpecialSorting"_s,     u"mShowFilter"_s,          u"mNewProfile"_s,
                                  u"mEditProfile"_s,        u"mRemoveProfileInEdit"_s, u"mEditSelected"_s};
    const QSet<QString> tv = {u"mNewEpisode"_s,    u"mEditSeriesMain"_s,  u"mAddNewSeries"_s,  u"mRemoveTVSeries"_s,
                              u"mAddNewSeason"_s,  u"mRemoveTVSeason"_s,  u"mAddNewEpisode"_s, u"mAddBlankEpisode"_s,
                              u"mRemoveEpisode"_s, u"mDuplicateEpisode"_s};
    for (const MenuEntry &entry : MenuEntries()) {
        const QString name = Text(entry.name);
        if (movies.contains(name)) {
            EXPECT_EQ(entry.view, InView::Movies) << qPrintable(name);
        } else if (tv.contains(name)) {
            EXPECT_EQ(entry.view, InView::TV) << qPrintable(name);
        } else if (!entry.IsSeparator() && !FindMenuEntry(TopMenu(entry))->is_context_menu) {
            EXPECT_EQ(entry.view, InView::Both) << qPrintable(name);
        }
    }
}

TEST(MenuTable, CheckableEntries) {
    const QMap<QString, bool ViewState::*> states = {
        {u"mTVShows"_s, &ViewState::mTVShows},
        {u"mMovies"_s, &ViewState::mTVShows},
        {u"mcolorlist"_s, &ViewState::mcolorlist},
        {u"mBoxsetView"_s, &ViewState::mBoxsetView},
        {u"mUseCustomTitle"_s, &ViewState::mUseCustomTitle},
        {u"mUseOriginalTitle"_s, &ViewState::mUseOriginalTitle},
        {u"mShowDescription"_s, &ViewState::mShowDescription},
        {u"mReverseCredit"_s, &ViewState::mReverseCredit},
        {u"mShowFullBoxsetCredits"_s, &ViewState::mShowFullBoxsetCredits},
        {u"mCrewTreeView"_s, &ViewState::mCrewTreeView},
        {u"mHideUnassignedCrew"_s, &ViewState::mHideUnassignedCrew},
        {u"mShowFilter"_s, &ViewState::mShowFilter},
        {u"mSkinEnable"_s, &ViewState::mSkinEnable},
    };
    for (const MenuEntry &entry : MenuEntries()) {
        const QString name = Text(entry.name);
        EXPECT_EQ(entry.checked, states.value(name, nullptr)) << qPrintable(name);
        EXPECT_EQ(entry.inverse, name == u"mMovies") << qPrintable(name);
        EXPECT_EQ(entry.grid_lines != nullptr, name.startsWith(u"mToogleGridlines") || name == u"mToggleGridLinesAp");
        EXPECT_EQ(entry.told_checked, QStringList({u"mLockProfile"_s, u"mLockEpisode"_s, u"mLockCast"_s, u"mLockCrew"_s,
                                                   u"mLockField"_s, u"mLockCovers"_s})
                                          .contains(name))
            << qPrintable(name);
    }
}

TEST(MenuTable, OnlyTheAuditTrailIsHiddenAtFirst) {
    QStringList hidden;
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.hidden) {
            hidden << Text(entry.name);
        }
    }
    EXPECT_EQ(hidden, (QStringList{u"mSVNAuditTrailDatabase"_s, u"mShowAuditTrail"_s}));
}

TEST(MenuTable, EntriesOfOtherWindowsStandElsewhere) {
    for (const QStringView name :
         {u"mListContext", u"mRenameDatabase", u"mChangeDBOwner", u"mRemoveAll", u"mTreeTools", u"mAddCat",
          u"mAddCrewType", u"mMoveCrewType", u"mRemove", u"mContext", u"mAddMovie", u"mAddPerson", u"mAddFunction",
          u"mAddSong", u"mRemoveNode", u"mCopyToClipboard", u"mCopyXMLtoClipboard", u"mPrint"}) {
        EXPECT_EQ(FindMenuEntry(name), nullptr) << qPrintable(name.toString());
    }
}

TEST(ToolBarTable, ButtonsInTheirOrder) {
    QStringList names;
    for (const ToolButton &button : ToolButtons()) {
        names << Text(button.name);
    }
    EXPECT_EQ(names, (QStringList{u"MoveBack"_s, u"MoveForward"_s, u"SQL"_s, u"ProfileInfo"_s, u"ChangeMode"_s}));
}

TEST(ToolBarTable, CommandsAndTexts) {
    const auto button = [](size_t index) -> const ToolButton & { return ToolButtons()[index]; };
    for (const bool tv : {false, true}) {
        EXPECT_EQ(ToolCommand(button(0), tv), QString());
        EXPECT_EQ(ToolCommand(button(1), tv), QString());
        EXPECT_EQ(ToolCommand(button(2), tv), u"mSQLQuery");
        EXPECT_EQ(ToolCommand(button(3), tv), u"mProfileInformation");
    }
    // The last one is captioned with the view that it leads to.
    EXPECT_EQ(ToolCaption(button(4), false), u"TV Shows");
    EXPECT_EQ(ToolCommand(button(4), false), u"mTVShows");
    EXPECT_EQ(ToolCaption(button(4), true), u"Movies");
    EXPECT_EQ(ToolCommand(button(4), true), u"mMovies");
    EXPECT_NE(ToolTip(button(4), false), ToolTip(button(4), true));
}

} // namespace
} // namespace ostrand
