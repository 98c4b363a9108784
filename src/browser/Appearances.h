// Where a person is credited: films and episodes, under all names that the person has.
#pragma once

#include "shell/ListTable.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace ostrand {

struct Session;

/// The texts of a row; those behind the last shown one are not shown.
enum class AppearanceText { Title, Role, EpisodeTitle, CreditedAs, Sort };

/// The captions of the shown columns, translated.
QStringList AppearanceColumns(Session &session);
/// The credits of a person, in the order of their hidden text Sort. Rows are of kind Movie with the ProfileID, or of
/// kind Episode with the EpisodeID. Year 0 asks for the person without a birth year. Nothing, and a list stays as it
/// is, without a name or with both films and series left out.
std::optional<std::vector<ListTableRow>> GetAppearances(Session &session, const QString &name, int birth_year);
/// Shows them in a list window (`Session::window.ShowListView`).
void ShowAppearances(Session &session, const QString &name, int birth_year);

} // namespace ostrand
