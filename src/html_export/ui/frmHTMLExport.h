// The window of the offline HTML export.
#pragma once

#include "html_export/SiteForm.h"
#include "shell/ui/Mnemonics.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QListView;
class QPushButton;
class QTreeView;
class QVBoxLayout;

namespace ostrand {

/// cbStart writes the site and leaves the window open; run with exec(). Throws SqlError.
class frmHTMLExport : public QDialog {
    Q_OBJECT
public:
    frmHTMLExport(Session &session, SiteHost host, QWidget *parent = nullptr);

    /// Closes the window; a site that is being written is left off first.
    void reject() override;

private:
    /// A control whose value is a truth value: a radio button where `when` tells which of a pair, else a check box.
    struct Flag;

    QWidget *MakePathRow();
    QWidget *MakePagesTab();
    QWidget *MakeListsTab();
    QWidget *MakeButtons();
    QGroupBox *MakeSkins();
    QGroupBox *MakeMediaSkins();
    QGroupBox *MakeCovers();
    QGroupBox *MakeProfiles();
    QWidget *MakeColTypes();
    QGroupBox *MakeFlags(const char16_t *caption, std::initializer_list<Flag> flags);
    QCheckBox *MakeCheck(const Flag &flag);
    QComboBox *MakeCombo(const QString &name, const char16_t *caption, const char16_t *tool_tip,
                         const QStringList &entries, const QString &current);
    QPushButton *MakeButton(const QString &name, const char16_t *caption, const char16_t *tool_tip);
    QLabel *MakeLabel(const char16_t *caption, QWidget *buddy);
    void Describe(QWidget &control, const QString &name, const char16_t *caption, const char16_t *tool_tip);
    QString Text(const char16_t *english);

    void FollowSkin();
    void FollowColType();
    void MoveColType(int by);
    void ChooseMediaSkin();
    /// Takes what the controls hold into the form.
    void Read();
    void Start();

    Session &session_;
    SiteForm form_;
    Mnemonics keys_; ///< of the page that is built
    std::vector<std::function<void()>> readers_;
    QLineEdit *path_ = nullptr;
    QComboBox *skin_ = nullptr;
    QComboBox *episode_skin_ = nullptr;
    QCheckBox *episodes_ = nullptr;
    QComboBox *filter_ = nullptr;
    QListView *types_ = nullptr;
    QPushButton *up_ = nullptr;
    QPushButton *down_ = nullptr;
    QTreeView *media_ = nullptr;
    QPushButton *save_ = nullptr;
    QPushButton *start_ = nullptr;
};

} // namespace ostrand
