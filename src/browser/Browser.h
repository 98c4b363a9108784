// What the main window shows, without the window: its lists, tabs, filters, history and the current title.
#pragma once

#include "base/FolderIndex.h"
#include "browser/AppearancesPanel.h"
#include "browser/Commands.h"
#include "browser/CreditsPanel.h"
#include "browser/EpisodeList.h"
#include "browser/FindBox.h"
#include "browser/History.h"
#include "browser/ProfileContent.h"
#include "browser/TabTitles.h"
#include "browser/TitleList.h"

#include <QObject>

namespace ostrand {

struct Session;

/// The members keep the names of the controls that show them. Windows read them and listen to the signals; the
/// routines of the browser (GetMovieNames, ChangeMode, ShowMovie ..) are functions over this object.
class Browser : public QObject {
    Q_OBJECT
public:
    explicit Browser(Session &session);

    Session &session;
    Commands commands;

    TitleList listSeries;
    TabTitles tab_titles;
    FindBox find{*this};
    EpisodeList listEpisodes;
    /// The seasons of the selected series, and the selected one; -1 for none.
    QStringList listSeasons;
    int current_season = -1;
    /// Row of listEpisodes that is selected; -1 for none.
    int current_episode = -1;
    /// Row of listSeries that is selected; -1 for none.
    int current_row = -1;

    /// The list holds groups or a saved filter's rows.
    bool SpecialOrder = false;
    /// The list holds the rows of a filter by tags.
    bool filtered_by_tags = false;

    /// Captions of the tabs as shown, and the selected one, counted from 1.
    QStringList tabColList;
    int tabColList_selected = 1;
    QStringList tabMain;
    int tabMain_selected = 1;
    QStringList comboFilter;
    QString comboFilter_text;
    /// comboFilter is shown.
    bool filter_shown = false;
    QString labelFilterCount;
    int filter_count = 0;

    /// The tabs and filters stand in the user's language, and not in English.
    bool translated = false;

    History history;

    /// Caption of the window without a title, and with the current one.
    QString base_caption;
    QString caption;
    /// What the panels tell of the current title: those that the selected tab of tabMain shows, the others of the title
    /// that was current when they were shown the last time.
    DetailsContent Details;
    AVContent AV;
    /// The key of the icon for the current title's medium (browser/MediaIcon.h); empty for none.
    QString picMedium;
    /// The medium itself, in the user's language.
    QString picMedium_tool_tip;
    /// The cover files of the current title are this and "f.jpg" or "b.jpg"; empty without a title.
    QString cover_stem;
    FolderIndex covers;

    CreditsPanel credits;
    AppearancesPanel appearances;

    /// The control of the panels that mLockTools was opened on (browser/PanelFields.h).
    QString menu_field;

    // What the windows do on behalf of the browser's routines; empty without windows.
    struct Hooks {
        /// Values selected in the panels Audio/Video and Details, for the lists of titles that share them.
        std::function<QString()> selected_subtitle;
        std::function<QString()> selected_feature;
        std::function<QString()> selected_audio;
        std::function<QString()> selected_studio;
        /// The rows of listSeries that are selected, from the first to the last.
        std::function<QList<int>()> selected_rows;
        /// Shows frmFilterTags; the entry of comboFilter does nothing without it.
        std::function<void()> ShowFilterTags;
        /// Shows a title or an episode as a page; false when the panels are to show it.
        std::function<bool(const QString &key, bool is_episode)> ShowSkin;
        /// Lets the window that tells everything of a title show another one, or nothing for an empty key. Empty while
        /// that window is not open.
        std::function<void(const QString &key, bool is_episode)> ShowProfile;
        /// Switches between the view of pages and the panels.
        std::function<void(bool on)> EnableWebSkin;
    };
    Hooks hooks;

    /// Events run while a row becomes current: another row may become so meanwhile.
    bool turning = false;

Q_SIGNALS:
    /// Another database is open; its path and name are known.
    void DatabaseOpened();
    /// The titles of listSeries are about to be read anew, and are there. The list is not to be seen between the two,
    /// and the user waits.
    void ListFillingBegun();
    void ListFillingEnded();
    /// `current_row` is to be selected and scrolled to.
    void CurrentRowChanged();
    /// `current_episode` is to be selected and scrolled to.
    void CurrentEpisodeChanged();
    /// The current title is another one, or none: the panels fill themselves anew.
    void TitleChanged();
    /// The current title is shown as a page, and the panels do not follow it.
    void PageShown();
    /// The view of pages stands in place of the panels, or no longer (`ViewState::mSkinEnable`). picMedium is hidden
    /// while it does.
    void SkinChanged();
    /// ShowFrontCover or the cover stem changed.
    void CoverChanged();
    void TabsChanged();
    /// The collection's tags may be others; `other_collection` where they belong to another one, or to none.
    void TagsChanged(bool other_collection);
    void MainTabChanged();
    void FilterChanged();
    void FilterCountChanged();
    void SeasonsChanged();
    void HistoryChanged();
    void ModeChanged();
    /// Texts are to be shown in another language: windows beside the main one, which has done so, give theirs anew.
    void LanguageChanged();
    /// Fonts, tool bar, grid lines: what the settings tell.
    void SettingsChanged();
};

/// The English caption of the selected tab of tabColList.
QString SelectedColType(Browser &browser);
/// Sets labelFilterCount and what it counts.
void ShowFilterCount(Browser &browser, int count);

} // namespace ostrand
