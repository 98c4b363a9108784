// What the tabs of the profile window share.
#pragma once

#include "shell/ui/Mnemonics.h"

#include <QTreeView>

class QLabel;
class QPushButton;

namespace ostrand {

class Browser;
class ListTable;
class ProfileSheet;

/// A list of a table: a click on a header sorts it. A text that is cut off shows whole as a tool tip.
class SheetList : public QTreeView {
    Q_OBJECT
public:
    explicit SheetList(ListTable &table, QWidget *parent = nullptr);
    /// These columns share the room that the others leave.
    void Stretch(const QList<int> &columns);

protected:
    bool viewportEvent(QEvent *event) override;
};

/// A tab over the sheet: makes its controls with their names, keys and tool tips.
class SheetPage : public QWidget {
    Q_OBJECT
public:
    SheetPage(Browser &browser, ProfileSheet &sheet, const QString &name, QWidget *parent = nullptr);

protected:
    QString Text(const QString &english) const;
    /// A label whose key leads to a control, which gets the name and the label's text as accessible name.
    QLabel *LabelFor(QWidget &control, const char *name, const QString &caption);
    QPushButton *MakeButton(const char *name, const QString &caption, const QString &tool_tip);
    /// A list that Ctrl+C copies.
    SheetList *MakeList(ListTable &table);
    /// Ctrl+C copies the rows of a list.
    void LetCopy(QAbstractItemView &list);
    /// Runs an action of the user; faults are told.
    void Do(const std::function<void()> &action);

    Browser &browser_;
    ProfileSheet &sheet_;

private:
    Mnemonics keys_;
};

} // namespace ostrand
