#include "browser/ui/MainCommands.h"

#include "browser/AppearancesPanel.h"
#include "browser/Attach.h"
#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/CollectionTypes.h"
#include "browser/CreditCommands.h"
#include "browser/Credits.h"
#include "browser/Navigation.h"
#include "browser/PanelFields.h"
#include "browser/ProfileCommands.h"
#include "browser/ProfileInfos.h"
#include "browser/SheetTitle.h"
#include "browser/SkinView.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"
#include "browser/ui/frmCover.h"
#include "browser/ui/frmFilterTags.h"
#include "browser/ui/frmMain.h"
#include "browser/ui/frmProfile.h"
#include "collection_files/ProfilerImport.h"
#include "database/TitlesDue.h"
#include "database/ui/frmSwitchDatabase.h"
#include "html_export/ui/frmHTMLExport.h"
#include "people/AliasFile.h"
#include "people/CrossLinks.h"
#include "people/ui/frmCompare.h"
#include "people/ui/frmCrossLinks.h"
#include "people/ui/frmDropBox.h"
#include "people/ui/frmManageHeadshots.h"
#include "queries/QueryFileCommands.h"
#include "queries/ui/frmSQLQuery.h"
#include "shell/FileCommands.h"
#include "shell/Session.h"
#include "shell/ui/BringUp.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/frmAbout.h"
#include "shell/ui/frmSettings.h"

namespace ostrand {

namespace {

using Order = TitleList::Order;

void SwitchDatabase(frmMain &main) {
    frmSwitchDatabase(main.browser.session, &main).exec();
    if (!main.browser.session.Database) {
        ShowNoCollection(main.browser); // the database of before is gone
    }
    main.activateWindow(); // the focus may have gone with a message of that window
}

void ShowHtmlExport(frmMain &main) {
    frmHTMLExport(main.browser.session, {.CurrentColType = SelectedColType(main.browser)}, &main).exec();
}

void ShowDropBox(frmMain &main) {
    auto *window = main.findChild<frmDropBox *>();
    if (!window) {
        window = new frmDropBox(main.browser.session, &main);
        QObject::connect(&main.browser, &Browser::LanguageChanged, window, &frmDropBox::TranslateTexts);
    }
    BringUp(*window);
}

void ShowCoverWindow(frmMain &main) {
    auto *window = main.findChild<frmCover *>();
    if (!window) {
        window = new frmCover(main.browser, &main);
    }
    BringUp(*window);
}

void ShowFilterTags(frmMain &main) {
    auto *window = main.findChild<frmFilterTags *>();
    if (!window) {
        window = new frmFilterTags(main.browser, &main);
        window->perform = [&main](const std::function<void()> &action) { main.Perform(action); };
    }
    BringUp(*window);
}

void ShowProfile(frmMain &main, const SheetTitle &title) {
    auto *window = main.findChild<frmProfile *>();
    if (!window) {
        window = new frmProfile(
            main.browser,
            [&main](WebEngineRules rules, std::function<void(const QString &)> failed) {
                return main.EngineFor(std::move(rules), std::move(failed));
            },
            [&main](const std::function<void()> &action) { main.Perform(action); }, &main);
    }
    window->show();
    if (title.is_episode) {
        window->GetEpisodeInfo(title.id);
    } else {
        window->GetProfileInfo(title.id);
    }
    BringUp(*window);
}

void ShowProfileInfo(frmMain &main) {
    ShowProfile(main, SelectedTitle(main.browser));
}

void ShowEpisodeInfo(frmMain &main) {
    if (const SheetTitle episode = SelectedEpisode(main.browser); !episode.id.isEmpty()) {
        ShowProfile(main, episode);
    }
}

void ShowSqlQuery(frmMain &main) {
    auto *window = main.findChild<frmSQLQuery *>();
    if (!window) {
        window = new frmSQLQuery(main.browser, &main);
        window->perform = [&main](const std::function<void()> &action) { main.Perform(action); };
    }
    BringUp(*window);
}

void ToggleGridLines(Browser &browser, bool ViewState::GridLines::*shown) {
    ViewState::GridLines &lines = browser.session.view.grid_lines;
    lines.*shown = !(lines.*shown);
    Q_EMIT browser.SettingsChanged();
}

template <void (*kRoutine)(Browser &, CreditKind), CreditKind kKind>
void OfCredits(frmMain &main) {
    kRoutine(main.browser, kKind);
}

template <int kKey, Order kOrder>
void Sort(frmMain &main) {
    ReOrderSeriesList(main.browser, kKey, kOrder);
}

/// A routine of the browser, or of the session, as a handler.
template <void (*kRoutine)(Browser &)>
void Browse(frmMain &main) {
    kRoutine(main.browser);
}
template <void (*kRoutine)(Session &)>
void Run(frmMain &main) {
    kRoutine(main.browser.session);
}
/// A modal window over the session.
template <typename Window>
void Open(frmMain &main) {
    Window(main.browser.session, &main).exec();
}

/// What changes links, headshots or birth years: the main window shows them anew, whatever became of it.
template <void (*kRun)(frmMain &)>
void ChangePeople(frmMain &main) {
    Guarded(main.browser.session, [&main] { kRun(main); });
    RefreshPeople(main.browser);
}

struct Handler {
    const char16_t *name;
    void (*run)(frmMain &main);
};

constexpr Handler kHandlers[] = {
    {u"mSwitchDatabase", SwitchDatabase},
    {u"mUpdateMovieData", [](frmMain &main) { ImportProfilerData(main.browser.session, {}); }},
    {u"mImportAdditionalInfos", Run<ChooseAdditionalInfosToImport>},
    {u"mExportAdditionalInfos", Run<ChooseAdditionalInfosToExport>},
    {u"mExportHTMLCollection", ShowHtmlExport},
    {u"mImportSQL", Run<ChooseSQLToImport>},
    {u"mExportSQL", Run<ChooseSQLToExport>},
    {u"mImportStrings", Run<ChooseStringsToImport>},
    {u"mExportStrings", Run<ChooseStringsToExport>},
    {u"mImportAlias", ChangePeople<Run<ChooseAliasFileToImport>>},
    {u"mExportAlias", Run<ChooseAliasFileToExport>},
    {u"mCommandFile", Run<ChooseCommandFile>},
    {u"mExit", [](frmMain &main) { main.close(); }},
    {u"mTVShows", Browse<ShowTVShows>},
    {u"mMovies", Browse<ShowMovies>},
    {u"mcolorlist", Browse<ToggleColours>},
    {u"mBoxsetView", Browse<ToggleBoxsetView>},
    {u"mUseCustomTitle", Browse<ToggleCustomTitle>},
    {u"mUseOriginalTitle", Browse<ToggleOriginalTitle>},
    {u"mShowDescription", Browse<ToggleDescription>},
    {u"mProfileInformation", ShowProfileInfo},
    {u"mEpisodeInfoContext", ShowEpisodeInfo},
    {u"mShowCover", ShowCoverWindow},
    {u"mFlipCover", Browse<FlipCover>},
    {u"mGotoProfile", Browse<GotoProfile>},
    {u"mSelectRandom", Browse<SelectRandom>},
    {u"mShowLoanDue", Run<ShowTitlesDue>},
    {u"mShowFilter", Browse<ToggleFilter>},
    {u"mSkinEnable", [](frmMain &main) { main.Skin().ToggleSkin(); }},
    {u"mEditSkin", [](frmMain &main) { main.Skin().SelectSkin(); }},
    {u"mOrderByCaseType", [](frmMain &main) { SpecialProfileOrder(main.browser, QStringLiteral("CaseType")); }},
    {u"mOrderByGenre", [](frmMain &main) { SpecialProfileOrder(main.browser, QStringLiteral("Genre")); }},
    {u"mOrderByLocality", [](frmMain &main) { SpecialProfileOrder(main.browser, QStringLiteral("Locality")); }},
    {u"mOrderByRating", [](frmMain &main) { SpecialProfileOrder(main.browser, QStringLiteral("Rating")); }},
    {u"mOrderbyMedium", [](frmMain &main) { SpecialProfileOrder(main.browser, QStringLiteral("Medium")); }},
    {u"mOrderTitleAsc", Sort<0, Order::Ascending>},
    {u"mOrderTitleDesc", Sort<0, Order::Descending>},
    {u"mOrderColNoAsc", Sort<1, Order::Ascending>},
    {u"mOrderColNoDesc", Sort<1, Order::Descending>},
    {u"mOrderProdYearAsc", Sort<3, Order::Ascending>},
    {u"mOrderProdYearDesc", Sort<3, Order::Descending>},
    {u"mOrderPDateAsc", Sort<4, Order::Ascending>},
    {u"mOrderPDateDesc", Sort<4, Order::Descending>},
    {u"mOrderRDateAsc", Sort<5, Order::Ascending>},
    {u"mOrderRDateDesc", Sort<5, Order::Descending>},
    {u"mRemoveProfileInEdit", Browse<RemoveCurrentProfile>},
    {u"mRemoveSelected", Browse<RemoveSelectedProfiles>},
    {u"mMoveSelected", Browse<MoveSelectedProfiles>},
    {u"mLockSelectedProfiles", Browse<LockSelectedProfiles>},
    {u"mUnlockSelectedProfiles", Browse<UnlockSelectedProfiles>},
    {u"mLockProfile", Browse<ToggleProfileLock>},
    {u"mLockEpisode", Browse<ToggleEpisodeLock>},
    {u"mLockField", Browse<ToggleFieldLock>},
    {u"mLockCovers", Browse<ToggleFieldLock>},
    {u"mChangeField", Browse<ChangeMenuField>},
    {u"mCopyField", [](frmMain &main) { main.CopyField(); }},
    {u"mAddColType", Browse<AddColType>},
    {u"mRenameCollectionType", Browse<RenameCollectionType>},
    {u"mRemoveColType", Browse<RemoveColType>},
    {u"mReverseCredit", Browse<ToggleReverseCredit>},
    {u"mShowFullBoxsetCredits", Browse<ToggleFullBoxsetCredits>},
    {u"mCrewTreeView", Browse<ToggleCrewTreeView>},
    {u"mHideUnassignedCrew", Browse<ToggleHideUnassignedCrew>},
    {u"mFindApperances", [](frmMain &main) { FindAppearances(main.browser); }},
    {u"mCopyCastList", OfCredits<CopyCredits, CreditKind::Cast>},
    {u"mCopyCrewList", OfCredits<CopyCredits, CreditKind::Crew>},
    {u"mPasteCastList", OfCredits<PasteCredits, CreditKind::Cast>},
    {u"mPasteCrewList", OfCredits<PasteCredits, CreditKind::Crew>},
    {u"mLockCast", OfCredits<ToggleCreditLock, CreditKind::Cast>},
    {u"mLockCrew", OfCredits<ToggleCreditLock, CreditKind::Crew>},
    {u"mGotoAppearance", [](frmMain &main) { GoToAppearance(main.browser, main.browser.appearances.current_row); }},
    {u"mNextHeadshot", [](frmMain &main) { main.browser.credits.picActor.AlternateHeadshot(); }},
    {u"mSetHeadshotAsPrimary", Browse<SetHeadshotAsPrimary>},
    {u"mDownloadHeadshotFromURL", Browse<DownloadHeadshot>},
    {u"mDownloadHeadshotCast", Browse<DownloadHeadshot>},
    {u"mDownloadHeadshotCrew", Browse<DownloadHeadshot>},
    {u"mAddAliasCast", Browse<LinkSelectedPerson>},
    {u"mAddAliasCrew", Browse<LinkSelectedPerson>},
    {u"mDropBox", ShowDropBox},
    {u"mSQLQuery", ShowSqlQuery},
    {u"mEditCrossLinks", ChangePeople<Open<frmCrossLinks>>},
    {u"mHeadshotImport", ChangePeople<Open<frmCompare>>},
    {u"mManageHeadshots", ChangePeople<Open<frmManageHeadshots>>},
    {u"mRemoveUnneededBirthYears", ChangePeople<Run<RemoveUnneededBirthYears>>},
    {u"mSettings", Open<frmSettings>},
    {u"mAbout", Open<frmAbout>},
};

void HandleGridLines(frmMain &main) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.grid_lines != nullptr) {
            main.browser.commands.Handle(QString::fromUtf16(entry.name),
                                         [&main, lines = entry.grid_lines] { ToggleGridLines(main.browser, lines); });
        }
    }
}

} // namespace

void HandleCommands(frmMain &main) {
    HandleGridLines(main);
    main.browser.hooks.ShowFilterTags = [&main] { ShowFilterTags(main); };
    for (const Handler &handler : kHandlers) {
        main.browser.commands.Handle(QString::fromUtf16(handler.name),
                                     [&main, run = handler.run] { main.Perform([&] { run(main); }); });
    }
}

} // namespace ostrand
