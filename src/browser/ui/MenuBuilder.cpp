#include "browser/ui/MenuBuilder.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

namespace ostrand {

MenuBuilder::MenuBuilder(Commands &commands, QMenuBar &bar, QWidget &window) :
    QObject(&window), commands_(commands), views_(new QActionGroup(this)) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.is_menu) {
            AddMenu(entry, bar, window);
        } else if (entry.IsSeparator()) {
            menus_.value(OfTable(entry.parent))->addSeparator();
        } else {
            AddEntry(entry, *menus_.value(OfTable(entry.parent)));
        }
    }
    ShowTexts();
    ShowStates();
    connect(&commands_, &Commands::TextsChanged, this, &MenuBuilder::ShowTexts);
    connect(&commands_, &Commands::Changed, this, &MenuBuilder::ShowStates);
}

void MenuBuilder::AddMenu(const MenuEntry &entry, QMenuBar &bar, QWidget &window) {
    QMenu *menu = entry.is_context_menu     ? new QMenu(&window)
                  : entry.parent == nullptr ? bar.addMenu(QString())
                                            : menus_.value(OfTable(entry.parent))->addMenu(QString());
    const QString name = OfTable(entry.name);
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    menu->setToolTipsVisible(true);
    menus_.insert(name, menu);
    actions_.insert(name, menu->menuAction());
}

void MenuBuilder::AddEntry(const MenuEntry &entry, QMenu &menu) {
    QAction *action = menu.addAction(QString());
    const QString name = OfTable(entry.name);
    action->setObjectName(name);
    // Where entries stand is the table's business, whatever their words may look like.
    action->setMenuRole(QAction::NoRole);
    if (entry.shortcut != nullptr) {
        action->setShortcut(QKeySequence(OfTable(entry.shortcut), QKeySequence::PortableText));
    }
    MakeCheckable(entry, *action);
    connect(action, &QAction::triggered, this, [this, name] { Activate(name); });
    actions_.insert(name, action);
}

void MenuBuilder::MakeCheckable(const MenuEntry &entry, QAction &action) {
    action.setCheckable(entry.IsCheckable());
    if (entry.checked == &ViewState::mTVShows) {
        views_->addAction(&action);
    }
}

void MenuBuilder::Activate(const QString &name) {
    const QPointer<MenuBuilder> self = this;
    commands_.Run(name);
    if (self != nullptr) {
        // The toolkit flipped the check by itself; the command decides.
        ShowStates();
    }
}

void MenuBuilder::ShowStates() {
    for (const auto &[name, action] : actions_.asKeyValueRange()) {
        if (QMenu *menu = menus_.value(name)) {
            menu->setEnabled(commands_.IsEnabled(name)); // its action follows
        } else {
            action->setEnabled(commands_.IsEnabled(name));
        }
        action->setVisible(commands_.IsVisible(name));
        if (action->isCheckable()) {
            action->setChecked(commands_.IsChecked(name));
        }
    }
}

void MenuBuilder::ShowTexts() {
    for (const auto &[name, action] : actions_.asKeyValueRange()) {
        action->setText(commands_.Text(name));
        action->setToolTip(commands_.ToolTip(name));
        action->setStatusTip(commands_.ToolTip(name));
    }
}

} // namespace ostrand
