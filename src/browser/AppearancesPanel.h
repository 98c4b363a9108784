// What stands below the credits: listAppearences and treeAwards.
#pragma once

#include "browser/AwardTree.h"
#include "shell/ListTable.h"

#include <QList>

namespace ostrand {

class Browser;
namespace sql {
class Recordset;
}

/// What both show. What the rows of the list are, and which columns it has, `ViewState::panel_mode` tells.
class AppearancesPanel : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    ListTable listAppearences;
    AwardTree treeAwards;
    /// The caption above treeAwards; "&" stands doubled in it.
    QString labelAwards;

    /// A name and a birth year.
    using Person = std::pair<QString, QString>;
    /// Whose appearances the list shows, and whose awards the tree; a name is empty for none.
    QList<Person> appearances_of;
    Person awards_of;
    /// Whose appearances the list holds; empty while it lists something else, or those of several persons.
    QString shown_name;
    QString shown_birth_year;

    /// Row of the list that is selected; -1 for none.
    int current_row = -1;
    /// The column that sorts the list; -1 while its rows stand as they came.
    int sort_column = -1;
    Qt::SortOrder sort_order = Qt::AscendingOrder;

Q_SIGNALS:
    /// The list has other columns.
    void ColumnsChanged();
    void SortChanged();
    /// `current_row` is to be selected.
    void CurrentRowChanged();
    void AwardsChanged();
};

/// The appearances of a person in the list, whose present rows stay with `keep`. Nothing happens without a name or
/// with both films and series left out.
void GetAppearances(Browser &browser, const QString &name, const QString &birth_year, bool keep);
/// Reads the person's appearances anew, sorted as they are; the selected row stays selected.
void RefreshAppearances(Browser &browser);
/// Empties the list; its columns stay.
void ClearAppearences(Browser &browser);
/// The episodes on a title's discs in the list; false, and the list stays, when there are none.
bool ShowAssignedEpisodes(Browser &browser, sql::Recordset &episodes);
/// The profiles that hold an episode.
void GetEpisodeProfiles(Browser &browser, const QString &episode_id);
/// The children of a boxset; a title that is none leaves the list as it is.
void GetBoxsetProfiles(Browser &browser, const QString &profile_id);
/// The share of the list's width that each of its columns has; 0 hides one.
QList<double> AppearanceWidths(const Browser &browser);

/// A click on a row: its title becomes the current one, and the credits stay.
void SelectAppearance(Browser &browser, int row);
/// A double click on a row, or Enter: goes to its title.
void GoToAppearance(Browser &browser, int row);
/// A click on a header: its column sorts, a second click reverses.
void SortAppearances(Browser &browser, int column);
/// Asks for a person, `preset` at first, and shows the appearances.
void FindAppearances(Browser &browser, const QString &preset = {});

/// The awards of a person in treeAwards.
void FindAwardsForActor(Browser &browser, const QString &name, const QString &birth_year);
void ClearAwards(Browser &browser);
/// Goes to the film of a nomination; nothing for one that is not in the collection.
void GoToAwardedMovie(Browser &browser, const QModelIndex &nomination);

/// The captions in the present language.
void ShowAppearanceHeaders(Browser &browser);
/// The rows and the awards anew, in the present language; their order and the row that is selected stay.
void RefillAppearances(Browser &browser);

} // namespace ostrand
