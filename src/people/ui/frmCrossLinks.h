// The window that edits the cross-links.
#pragma once

#include "people/CrossLinkEditor.h"
#include "people/ui/PeopleWindow.h"

class QListView;
class QTreeView;

namespace ostrand {

/// Common names on the left, the aliases of the selected one beside them.
class frmCrossLinks : public PeopleWindow {
    Q_OBJECT
public:
    explicit frmCrossLinks(Session &session, QWidget *parent = nullptr);

    void RemoveAliasFromList(const QString &alias) { editor_.RemoveAliasFromList(alias); }
    void GetAliases(const QString &common_name, int birth_year) { editor_.GetAliases(common_name, birth_year); }

private:
    QWidget *MakeNames();
    QWidget *MakeAliases();
    void MakeButtons(QBoxLayout &layout);
    /// Shows what the editor has selected.
    void Follow();
    void EnableButtons();
    QString SelectedAlias() const;

    CrossLinkEditor editor_;
    QTreeView *listCommonNames_ = nullptr;
    QListView *listAlias_ = nullptr;
    QLabel *labelAliasNames_ = nullptr;
    QList<QPushButton *> of_name_;  ///< for a selected common name
    QList<QPushButton *> of_alias_; ///< for a selected alias
};

} // namespace ostrand
