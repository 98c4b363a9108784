// The menus of the main window as the toolkit's.
#pragma once

#include "browser/Commands.h"

#include <QObject>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;
class QWidget;

namespace ostrand {

/// Fills a menu bar and makes the context menus, and keeps both as the commands tell. Menus and actions carry the
/// entry's name as objectName.
class MenuBuilder : public QObject {
    Q_OBJECT
public:
    /// `commands` must live as long as the builder. The context menus belong to `window`, which takes the builder as
    /// its child.
    MenuBuilder(Commands &commands, QMenuBar &bar, QWidget &window);

    /// Null for an unknown name.
    QMenu *ContextMenu(const QString &name) const { return menus_.value(name); }
    /// The action of an entry or a menu; null for an unknown name.
    QAction *Action(const QString &name) const { return actions_.value(name); }

private:
    void AddMenu(const MenuEntry &entry, QMenuBar &bar, QWidget &window);
    void AddEntry(const MenuEntry &entry, QMenu &menu);
    void MakeCheckable(const MenuEntry &entry, QAction &action);
    void Activate(const QString &name);
    void ShowStates();
    void ShowTexts();

    Commands &commands_;
    QHash<QString, QMenu *> menus_;
    QHash<QString, QAction *> actions_;
    /// The group in which the two entries of one choice exclude each other.
    QActionGroup *views_ = nullptr;
};

} // namespace ostrand
