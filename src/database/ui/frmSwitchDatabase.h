// The window that lists the databases of a folder.
#pragma once

#include "database/DatabaseManager.h"

#include <QDialog>

class QLineEdit;
class QMenu;
class QPushButton;
class QTreeView;

namespace ostrand {

class Mnemonics;

/// Run with exec(): the result is Accepted where a database is open afterwards. After Exit, and after an upgrade that
/// the user refused, `Session::EndProgram` is set.
class frmSwitchDatabase : public QDialog {
    Q_OBJECT
public:
    explicit frmSwitchDatabase(Session &session, QWidget *parent = nullptr);

    /// Cancel, Esc and the window's close button.
    void reject() override;

private:
    QWidget *MakePathRow(Mnemonics &keys);
    QTreeView *MakeList();
    QWidget *MakeButtons(Mnemonics &keys);
    QPushButton *MakeButton(const QString &name, const QString &text, const QString &tool_tip, Mnemonics &keys);
    void MakeContextMenu();
    void ShowContextMenu(const QPoint &place);
    void Connect();

    int Row() const;
    void SelectRow(int row);
    void FollowSelection();
    void OpenSelected();
    void Finish();
    /// Runs an action on the selected row.
    void OnRow(void (DatabaseManager::*action)(int));

    Session &session_;
    DatabaseManager manager_;
    QLineEdit *path_ = nullptr;
    QTreeView *list_ = nullptr;
    QMenu *menu_ = nullptr;
    QAction *rename_ = nullptr;
    QAction *owner_ = nullptr;
    QPushButton *select_path_ = nullptr;
    QPushButton *ok_ = nullptr;
    QPushButton *cancel_ = nullptr;
    QPushButton *new_ = nullptr;
    QPushButton *delete_ = nullptr;
    QPushButton *compact_ = nullptr;
    QPushButton *exit_ = nullptr;
};

} // namespace ostrand
