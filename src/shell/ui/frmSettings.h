// The settings window.
#pragma once

#include "shell/SettingsForm.h"
#include "shell/ui/Mnemonics.h"

#include <QDialog>

class QFormLayout;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace ostrand {

struct Session;

/// Built from the table of its entries. OK stores them all, Cancel leaves everything; run with exec().
class frmSettings : public QDialog {
    Q_OBJECT
public:
    explicit frmSettings(Session &session, QWidget *parent = nullptr);

    /// OK.
    void accept() override;

private:
    QTabWidget *MakePages();
    QWidget *MakePage(const QString &page);
    QWidget *MakeGroup(const SettingsGroupTexts &group);
    void AddEntry(QFormLayout &layout, const SettingsEntry &entry);
    void AddLabelled(QFormLayout &layout, const SettingsEntry &entry, QWidget *field, QWidget *control);
    QWidget *MakeCheck(const SettingsEntry &entry);
    QWidget *MakeFont(const SettingsEntry &entry);
    QLineEdit *MakeText(const SettingsEntry &entry);
    QWidget *MakeFolder(const SettingsEntry &entry, QLineEdit *path);
    QListWidget *MakeList();
    QString Text(const char16_t *english);
    /// Takes what the controls hold into the form.
    void Read();

    Session &session_;
    SettingsForm form_;
    Mnemonics keys_; ///< of the page that is built
};

} // namespace ostrand
