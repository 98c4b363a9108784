// What the window of cross-links does, without the window.
#pragma once

#include "people/CommonNames.h"

#include <QStringListModel>

namespace ostrand {

struct Session;

/// Edits the Alias table through two lists: the common names, and the aliases of the selected one. The members keep the
/// names of the controls that show them.
class CrossLinkEditor : public QObject {
    Q_OBJECT
public:
    explicit CrossLinkEditor(Session &session);

    CommonNames listCommonNames;
    QStringListModel listAlias;
    /// "Alias Names for" and the selected name.
    QString labelAliasNames;

    /// The selected row of listCommonNames; -1 for none.
    int Selected() const { return selected_.isValid() ? selected_.row() : -1; }
    /// Shows the aliases of a row.
    void Select(int row);

    void AddCommonName();
    void AddAlias();
    /// Asks before it removes an alias of the selected name.
    void RemoveAliasFromList(const QString &alias);
    /// Asks before it removes the selected name with all its aliases; the row behind it is selected then.
    void RemoveCommonName();
    /// Makes an alias of the selected name the common name of the group. Its comments are lost.
    void SetAsCommon(const QString &alias);
    void ChangeYear();
    void ClearAlias();
    void GetAliases(const QString &common_name, int birth_year);

Q_SIGNALS:
    /// Another row is selected, to be shown as such and scrolled to.
    void SelectionChanged();

private:
    void Load();
    /// Links all of a group to `to`, one of them.
    void MoveGroup(const QStringList &group, const CommonNames::Row &from, const CommonNames::Row &to);
    /// Lists a name with the years that the table has for it, after these changed.
    void ListYearsOf(const QString &name);
    /// Text of the user as a year; nothing after it was told that it is none.
    std::optional<int> AskYear(const QString &prompt, const QString &preset);
    QString Text(const char16_t *english);
    CommonNames::Row SelectedRow() const { return listCommonNames.At(Selected()); }
    bool IsRefused(const QString &name, int birth_year);

    Session &session_;
    QPersistentModelIndex selected_; ///< follows the row when the list is sorted
};

} // namespace ostrand
