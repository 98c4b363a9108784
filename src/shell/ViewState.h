// What routines ask of windows: the check states behind menu entries and boxes. The windows only show it.
#pragma once

#include <QList>
#include <QString>

namespace ostrand {

/// What the middle panes of the main window show.
enum class PanelMode { None = 0, Appearances = 1, Profile = 2, Third = 3, Fourth = 4 };

/// Named after the menu entries and controls that show the state, and after the settings that have no such control.
struct ViewState {
    bool mTVShows = false; ///< TV view; otherwise movie view
    bool mCrewTreeView = true;
    bool mShowFullBoxsetCredits = false;
    bool mHideUnassignedCrew = false;
    bool mSkinEnable = false;
    bool mShowFilter = true;
    bool mBoxsetView = true;
    /// Boxset children stand under their parents now: the wish of mBoxsetView, dropped while the list is not sorted by
    /// the title ascending. This is what is kept for the next run.
    bool BoxsetView = true;
    bool mcolorlist = true;
    bool mUseCustomTitle = false;
    bool mUseOriginalTitle = false;
    bool mShowDescription = false;
    bool mReverseCredit = false;

    bool DoNotResizeHeadshots = true;
    bool ShowMediaIcon = true;
    bool AdditionalInfosInProfilerExport = false;
    bool AwardsInProfilerExport = false;
    bool UseProfilerColTypes = true;
    bool ShowToolbar = false;
    bool IncludeMovies = true;
    bool IncludeTV = true;
    bool IncludeAssignedEpisodesOnly = false;
    bool AutoLockEvents = false;
    bool RemoveBirthYears = false;
    bool ShowProgressDetails = true;
    bool ShowMoreProgressDetails = false;
    bool AutoLock = false;
    bool HighlightHeadshots = true;
    bool ShowLoanDueOnStartUp = true;
    bool ProgressWindowAutoClose = false;

    double FontSize = 8.25; ///< of the lists, in points
    QString FontName = QStringLiteral("Arial");

    /// Positions of the columns, counted from 1.
    QList<int> CastOrderColumns = {1, 2, 3};
    QList<int> CrewOrderColumns = {1, 2, 3};
    QList<int> AppearancesOrderColumns = {1, 2, 3, 4};

    int DescFormat = 1;
    int LoanDue = 7; ///< days of warning
    int LastTab = 1; ///< remembered tab of tabMain, counted from 1
    int TabColList = 1;
    int ProfilesSortKey = 2;
    int ProfilesSortOrder = 0;
    int ProfileInfoLastTab = 1;
    QString IncludeInOwned;
    QString SelectedUsers;
    QString EventTypes;
    /// Key of the selected row of listSeries; may carry "|" and a number.
    QString LastSelectedItem;
    PanelMode panel_mode = PanelMode::None;

    /// Grid lines of the lists, kept in Settings.ini.
    struct GridLines {
        bool ListCollection = true;
        bool ListCast = true;
        bool ListCrew = true;
        bool ListEpisodes = false;
        bool ListAppearances = false;
    };
    GridLines grid_lines;
};

} // namespace ostrand
