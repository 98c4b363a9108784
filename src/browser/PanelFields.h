// The fields of the panels: the lock that keeps each from imports, and the column that it shows.
#pragma once

#include "database/ChangeField.h"

#include <QString>

#include <optional>

namespace ostrand {

class Browser;

struct PanelField {
    QString label; ///< of the lock, English (database/LockLabels.h)
    QString lock_name;
    /// What changes it; nothing for a field that holds more than one value.
    std::optional<FieldChange> change;
    /// The user is to choose from the values of all profiles, which are not read yet.
    bool offers_values = false;
};

/// What a control of Details, Audio/Video or above them shows of the current title; nothing for a control that shows
/// nothing of it that could be locked, and without a title.
std::optional<PanelField> FindPanelField(Browser &browser, const QString &control);

/// Tells mLockTools and mCoverTools of the field that they are opened on: the state of its lock, and whether it can be
/// changed. False when there is nothing to lock.
bool PrepareFieldMenu(Browser &browser, const QString &control);
/// mLockField and mLockCovers: the lock of the field that the menu was opened on.
void ToggleFieldLock(Browser &browser);
/// mChangeField.
void ChangeMenuField(Browser &browser);
/// Asks for a new value of a field; the panels and the list show it then.
void ChangePanelField(Browser &browser, const QString &control);

} // namespace ostrand
