// What routines ask of windows: the check states behind menu entries and boxes. The windows only show it.
#pragma once

namespace ostrand {

/// Named after the menu entries and controls that show the state.
struct ViewState {
    bool mTVShows = false; ///< TV view; otherwise movie view
    bool mCrewTreeView = true;
    bool mShowFullBoxsetCredits = false;
    bool mHideUnassignedCrew = false;
    bool mSkinEnable = false;
    bool mShowFilter = true;
    bool mBoxsetView = true;
    bool mcolorlist = true;
    bool mUseCustomTitle = false;
    bool mUseOriginalTitle = false;
    bool mShowDescription = false;
    bool mReverseCredit = false;
};

} // namespace ostrand
