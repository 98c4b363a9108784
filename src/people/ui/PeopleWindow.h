// What the windows of cross-links and headshots share.
#pragma once

#include "shell/ui/Mnemonics.h"

#include <QDialog>

#include <functional>

class QAbstractItemView;
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
    /// Ctrl+C copies the selected rows of a list, all rows when none is selected, as lines.
    void LetCopy(QAbstractItemView &list);
    void OnDelete(QWidget &list, std::function<void()> pressed);

    void keyPressEvent(QKeyEvent *event) override;

    Session &session_;
    Mnemonics keys_;
};

} // namespace ostrand
