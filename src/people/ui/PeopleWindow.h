// What the windows of cross-links and headshots share.
#pragma once

#include "shell/ui/Mnemonics.h"

#include <QDialog>
#include <QKeySequence>

#include <functional>

class QAbstractItemView;
class QAction;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QPushButton;

namespace ostrand {

struct Session;

/// A window with buttons, none of which Enter presses from afar: many of them delete.
class PeopleWindow : public QDialog {
    Q_OBJECT
protected:
    PeopleWindow(Session &session, const char *name, const char16_t *title, QWidget *parent);

    QString Text(const char16_t *english) const;
    QPushButton *AddButton(QBoxLayout &layout, const char *name, const char16_t *caption, const char16_t *tool_tip,
                           std::function<void()> pressed);
    QCheckBox *AddCheckBox(QBoxLayout &layout, const char *name, const char16_t *caption, const char16_t *tool_tip);
    QLabel *AddLabel(QBoxLayout &layout, const char *name);
    /// Ctrl+C, or the list's menu, copies the selected rows of a list, all rows when none is selected, as lines.
    void LetCopy(QAbstractItemView &list);
    /// The Delete key, or the list's menu.
    void OnDelete(QAbstractItemView &list, const char16_t *caption, std::function<void()> pressed);

    void keyPressEvent(QKeyEvent *event) override;

    Session &session_;
    Mnemonics keys_;

private:
    static QAction *AddEntry(QAbstractItemView &list, const QString &caption, QKeySequence::StandardKey key);
};

} // namespace ostrand
