// The commands of the main window: what its menus hold, and which of them can be used.
#pragma once

#include "shell/ViewState.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <span>
#include <unordered_map>

namespace ostrand {

/// In which of the two views an entry can be used.
enum class InView { Both, Movies, TV };

/// A menu entry, a menu, or a separator (with an empty name). Menus stand before their entries.
struct MenuEntry {
    const char16_t *name = u"";
    /// The menu it stands in; null for the menu bar and for context menus.
    const char16_t *parent = nullptr;
    /// The English caption; "&" marks the key. A context menu shows none.
    const char16_t *text = u"";
    /// Shortcut in portable text, such as u"Ctrl+G"; null without one.
    const char16_t *shortcut = nullptr;
    const char16_t *tool_tip = nullptr;
    /// The check state that a checkable entry shows.
    bool ViewState::*checked = nullptr;
    /// The grid lines that a checkable entry shows.
    bool ViewState::GridLines::*grid_lines = nullptr;
    /// A checkable entry whose state is told with SetChecked, such as a lock of the current title.
    bool told_checked = false;
    /// The entry whose work this one does, where it has no handler of its own: it can be used when that one can.
    const char16_t *same_as = nullptr;
    InView view = InView::Both;
    bool is_menu = false;
    bool is_context_menu = false;
    /// Hidden until it is shown by name.
    bool hidden = false;
    /// A checkable entry that shows the opposite of `checked`.
    bool inverse = false;

    bool IsSeparator() const { return *name == u'\0'; }
    bool IsCheckable() const { return checked != nullptr || grid_lines != nullptr || told_checked; }
};

/// All entries in the order in which menus show them.
std::span<const MenuEntry> MenuEntries();
/// Null for an unknown name. Names compare exactly.
const MenuEntry *FindMenuEntry(QStringView name);

/// The state of the entries. An entry without a handler is not enabled, nor is one whose menu is not. A menu needs no
/// handler. An unknown name is a fault of the program and throws std::out_of_range.
class Commands : public QObject {
    Q_OBJECT
public:
    explicit Commands(ViewState &view);

    /// Says what an entry does.
    void Handle(const QString &name, std::function<void()> handler);
    /// True with a handler of its own, or with that of the entry whose work it does.
    bool HasHandler(const QString &name) const;
    /// Runs an entry if it is enabled; false otherwise.
    bool Run(const QString &name);

    bool IsEnabled(const QString &name) const;
    bool IsVisible(const QString &name) const;
    bool IsChecked(const QString &name) const;
    /// What the window shows now, translated.
    QString Text(const QString &name) const;
    /// Empty for an entry without one.
    QString ToolTip(const QString &name) const;

    void SetEnabled(const QString &name, bool enabled);
    void SetVisible(const QString &name, bool visible);
    /// For entries with `told_checked`.
    void SetChecked(const QString &name, bool checked);
    void SetText(const QString &name, const QString &text);
    void SetToolTip(const QString &name, const QString &tool_tip);
    /// Makes many changes and tells of them once.
    void Together(const std::function<void()> &changes);
    /// The entries of one view only follow it.
    void FollowView(bool movies);
    /// A check state changed under the entries.
    void Refresh();
    /// The language of all texts changed.
    void RefreshTexts();

Q_SIGNALS:
    /// What can be used, is shown or is checked.
    void Changed();
    void TextsChanged();

private:
    struct State {
        const MenuEntry *entry = nullptr;
        State *parent = nullptr;
        State *same_as = nullptr;
        std::function<void()> handler;
        bool enabled = true;
        bool visible = true;
        bool checked = false;
        QString text;
        QString tool_tip;
    };
    State &At(const QString &name) { return *states_.at(name); }
    const State &At(const QString &name) const { return *states_.at(name); }
    bool IsUsable(const State &state) const;
    static const std::function<void()> &HandlerOf(const State &state);
    void Tell();

    ViewState &view_;
    bool movies_;
    std::unordered_map<QString, std::unique_ptr<State>> states_;
    int together_ = 0;
    bool changed_ = false;
    bool texts_changed_ = false;
};

/// Sets the enabled state of the menus that need a database, and of all context menus, which stand on its titles.
void EnableDBMenues(Commands &commands, bool enabled);
/// Shows or hides the entries of the audit trail.
void ShowAuditMenus(Commands &commands, bool shown);

/// A text of the tables; empty for none.
inline QString OfTable(const char16_t *text) {
    return text == nullptr ? QString() : QStringView(text).toString();
}

} // namespace ostrand
