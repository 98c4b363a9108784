#include "browser/ui/ToolMain.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ToolBarTable.h"
#include "platform_qt/ThemedIcon.h"
#include "shell/ui/Guarded.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// A title as a menu shows it: an "&" of the title is no mnemonic.
QString MenuText(const QString &title) {
    return title.trimmed().replace(u'&', u"&&"_s);
}

/// The keys of a button: its own, or those of the menu entry that it runs.
QKeySequence Shortcut(const ToolButton &row, bool tv) {
    const MenuEntry *entry = FindMenuEntry(ToolCommand(row, tv));
    const char16_t *keys = row.shortcut != nullptr ? row.shortcut : entry == nullptr ? nullptr : entry->shortcut;
    return QKeySequence(OfTable(keys), QKeySequence::PortableText);
}

QString WithKeys(const QString &tip, const QKeySequence &keys) {
    return keys.isEmpty() ? tip : tip + u" ("_s + keys.toString(QKeySequence::NativeText) + u')';
}

} // namespace

ToolMain::ToolMain(Browser &browser, QWidget &window) : QToolBar(&window), browser_(browser) {
    setObjectName(u"toolMain"_s);
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // Whether it is shown is a setting of the database, not a click here.
    setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolButton &row : ToolButtons()) {
        AddButton(row, window);
    }
    ShowTexts();
    FillHistories();
    ShowStates();
    ShowSettings();
    connect(&browser.commands, &Commands::TextsChanged, this, &ToolMain::ShowTexts);
    connect(&browser.commands, &Commands::Changed, this, &ToolMain::ShowStates);
    connect(&browser, &Browser::ModeChanged, this, &ToolMain::ShowTexts);
    connect(&browser, &Browser::ModeChanged, this, &ToolMain::ShowStates);
    connect(&browser, &Browser::HistoryChanged, this, &ToolMain::FillHistories);
    connect(&browser, &Browser::SettingsChanged, this, &ToolMain::ShowSettings);
}

void ToolMain::AddButton(const ToolButton &row, QWidget &window) {
    QAction *action = addAction(ThemedIcon(OfTable(row.icon)), QString());
    action->setObjectName(OfTable(row.name));
    if (row.shortcut != nullptr) {
        action->setShortcut(QKeySequence(OfTable(row.shortcut), QKeySequence::PortableText));
        window.addAction(action);
    }
    connect(action, &QAction::triggered, this,
            [this, &row] { Guarded(browser_.session, [&] { RunTool(browser_, row); }); });

    auto *widget = qobject_cast<QToolButton *>(widgetForAction(action));
    widget->setObjectName(OfTable(row.name));
    widget->setFocusPolicy(Qt::TabFocus);
    QMenu *history = row.role == ToolButton::Role::Command ? nullptr : AddHistoryMenu(row, *widget);
    buttons_.append({&row, action, widget, history});
}

QMenu *ToolMain::AddHistoryMenu(const ToolButton &row, QToolButton &widget) {
    auto *menu = new QMenu(&widget);
    menu->setObjectName(OfTable(row.name));
    widget.setMenu(menu);
    widget.setPopupMode(QToolButton::MenuButtonPopup);
    // The menu key opens the list for those who use no mouse.
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&widget, &QToolButton::customContextMenuRequested, &widget, &QToolButton::showMenu);
    return menu;
}

void ToolMain::FillHistories() {
    for (const Button &button : std::as_const(buttons_)) {
        if (button.history != nullptr) {
            FillHistory(button);
        }
    }
    ShowStates();
}

void ToolMain::FillHistory(const Button &button) {
    // An entry that was just chosen is still in use.
    for (QAction *old : button.history->actions()) {
        button.history->removeAction(old);
        old->deleteLater();
    }
    const bool back = button.row->role == ToolButton::Role::Back;
    const QList<HistoryEntry> &entries = back ? browser_.history.Back() : browser_.history.Forward();
    for (int index = 0; index < entries.size(); ++index) {
        QAction *action = button.history->addAction(MenuText(entries[index].text));
        action->setData(entries[index].key);
        connect(action, &QAction::triggered, this, [this, back, index] { MoveTo(back, index); });
    }
}

void ToolMain::MoveTo(bool back, int index) {
    Guarded(browser_.session, [&] { back ? MoveBack(browser_, index) : MoveForward(browser_, index); });
}

void ToolMain::ShowStates() {
    for (const Button &button : std::as_const(buttons_)) {
        button.action->setEnabled(IsToolEnabled(browser_, *button.row));
    }
}

void ToolMain::ShowTexts() {
    Session &session = browser_.session;
    const bool tv = session.view.mTVShows;
    setWindowTitle(Translate(session, u"Toolbar"_s));
    for (const Button &button : std::as_const(buttons_)) {
        const QString text = Translate(session, ToolCaption(*button.row, tv));
        const QString tip = Translate(session, ToolTip(*button.row, tv));
        button.action->setText(text);
        button.action->setStatusTip(tip);
        button.action->setToolTip(WithKeys(tip, Shortcut(*button.row, tv)));
        button.widget->setAccessibleName(text);
        button.widget->setAccessibleDescription(tip);
    }
}

void ToolMain::ShowSettings() {
    setVisible(browser_.session.view.ShowToolbar);
}

} // namespace ostrand
