// The progress window.
#pragma once

#include "platform/Services.h"
#include "platform_qt/WindowInUse.h"
#include "shell/Translator.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace ostrand {

class frmProgress;

/// Shows what frmProgress tells. While a job runs no other window of the program takes input; a finished one stays
/// beside them for reading. Made before there is a session; Attach follows.
class ProgressWindow : public QDialog, public ProgressView {
    Q_OBJECT
public:
    explicit ProgressWindow(QWidget *parent = nullptr);

    /// `rules` are told what the user does with the window.
    void Attach(frmProgress &rules, Translator translator);
    /// Told the key of a node that stands for a profile, on a double click or Enter.
    std::function<void(const QString &key)> title_chosen;

    void Opened(const QString &title) override;
    void TitleChanged(const QString &title) override;
    void LineChanged(const QString &line) override;
    void DetailChanged(const QString &detail) override;
    void CounterChanged(const QString &counter) override;
    void BarChanged(int value, int maximum) override;
    void NodeAdded(const QString &key, const QString &parent, const QString &text) override;
    void NodeTicked(const QString &key) override;
    void Finished() override;
    void Closed() override;

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Build();
    QSize DesignSize(bool details) const;
    void ShowTree();
    /// Shows the window with or without blocking the others, which the toolkit takes in only as a window is shown.
    void ShowAs(Qt::WindowModality modality);
    void NodeActivated(const QTreeWidgetItem *item);

    WindowInUse windows_;
    frmProgress *rules_ = nullptr;
    Translator translator_;
    QLabel *labelProgress_;
    QLabel *labelDetail_;
    QLabel *labelCounter_;
    QProgressBar *progress_;
    QTreeWidget *treeDetails_;
    QCheckBox *chkCloseWhenFinished_;
    QPushButton *cbClose_;
    QHash<QString, QTreeWidgetItem *> nodes_;
};

} // namespace ostrand
