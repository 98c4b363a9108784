// The choice of a folder.
#pragma once

#include "shell/FolderTree.h"

#include <QDialog>

class QPushButton;
class QTreeView;

namespace ostrand {

class frmBrowseFolder : public QDialog {
    Q_OBJECT
    Q_PROPERTY(QString CurrentFolder READ CurrentFolder WRITE SetCurrentFolder)
public:
    /// `dialogs` ask for the name of a new folder and say why one cannot be chosen.
    frmBrowseFolder(UserDialogs &dialogs, Translator translator, const QString &title,
                    const std::vector<FolderDrive> &drives, QWidget *parent = nullptr);

    /// The path of the selected folder, without a trailing separator; empty without one.
    QString CurrentFolder() const;
    void SetCurrentFolder(const QString &path);

    void accept() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void BuildButtons();
    void Select(const QModelIndex &index);
    void NewFolder();

    UserDialogs &dialogs_;
    Translator translator_;
    FolderTree model_;
    QTreeView *treeFolders_;
    QPushButton *cbNewFolder_ = nullptr;
    QPushButton *cbOK_ = nullptr;
};

} // namespace ostrand
