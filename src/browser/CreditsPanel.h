// The first tab of tabMain: the credits of a title or an episode.
#pragma once

#include "browser/CreditList.h"
#include "browser/CrewTree.h"
#include "people/CreditRecord.h"
#include "people/HeadshotViewer.h"

namespace ostrand {

/// What the panel shows, its parts named after their controls. The routines that fill it are in Credits.h.
class CreditsPanel : public QObject {
    Q_OBJECT
public:
    explicit CreditsPanel(Session &session);

    CreditList ListCast;
    CreditList ListCrew;
    CrewTree treeCrew;
    HeadshotViewer picActor;

    /// All credits that are shown, dividers and those that the tree leaves out among them.
    std::vector<CreditRecord> cast;
    std::vector<CreditRecord> crew;
    /// What treeCrew is made of; those who belong to no team come first.
    std::vector<CrewTeam> teams;

    /// Whose credits these are; empty for nobody's.
    QString shown_key;
    bool shown_is_episode = false;
    /// The current title is not the one that is shown, since the panel was hidden when it came.
    bool stale = false;

    /// The person of these credits that was selected last.
    QString selected_name;
    QString selected_birth_year;

    /// The same credits come anew: the views keep the rows that they have selected.
    bool refilling = false;

    /// The headshots that mark rows.
    FolderIndex headshots;

Q_SIGNALS:
    /// ListCrew and treeCrew swap, as `ViewState::mCrewTreeView` says.
    void CrewViewChanged();
};

} // namespace ostrand
