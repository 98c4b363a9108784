// What the user does with credits.
#pragma once

#include "collection_files/CreditClipboard.h"

class QAbstractItemModel;

namespace ostrand {

class Browser;

/// A person was selected in the credits: the picture and the appearances follow.
void UpdateCastInfo(Browser &browser, const QString &name, const QString &birth_year);

/// Enables the menu entries that need a title's credits, a selected person, or a picture of theirs.
void EnablePersonEntries(Browser &browser);
/// Asks for the common name of the selected person, and shows what follows from it.
void LinkSelectedPerson(Browser &browser);
/// Fetch a picture of the selected person from a URL that is asked for, and make the picture that is shown the primary
/// one; the marks in the credits follow.
void DownloadHeadshot(Browser &browser);
void SetHeadshotAsPrimary(Browser &browser);
/// A double click on a person: the appearances are asked for.
void FindCreditAppearances(Browser &browser, const QString &name);
/// Puts a tree on the clipboard as text, its levels indented by tabs.
void CopyTreeToClipboard(Browser &browser, const QAbstractItemModel &tree);

/// Put the credits that are shown on the clipboard as a document. With Ctrl held the names stand as they are stored.
void CopyCredits(Browser &browser, CreditKind kind);
/// Replaces the cast or the crew of the title whose credits are shown by what is on the clipboard, after a question.
void PasteCredits(Browser &browser, CreditKind kind);
/// Whether the credits that are shown are kept from imports, and the switch for it.
bool AreCreditsLocked(Browser &browser, CreditKind kind);
void ToggleCreditLock(Browser &browser, CreditKind kind);

/// The menu entries mReverseCredit, mShowFullBoxsetCredits, mCrewTreeView and mHideUnassignedCrew.
void ToggleReverseCredit(Browser &browser);
void ToggleFullBoxsetCredits(Browser &browser);
void ToggleCrewTreeView(Browser &browser);
void ToggleHideUnassignedCrew(Browser &browser);

} // namespace ostrand
