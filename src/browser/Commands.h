// The commands of the main window: what its menus hold, and which of them can be used.
#pragma once

#include <QObject>
#include <QString>

#include <span>

namespace ostrand {

struct ViewState;

/// In which of the two views an entry can be used.
enum class InView { Both, Movies, TV };

/// A menu entry, a menu, or a separator (with an empty name). Menus stand before their entries.
struct MenuEntry {
    const char16_t *name;
    /// The menu it stands in; null for the menu bar and for context menus.
    const char16_t *parent;
    /// The English caption; "&" marks the key.
    const char16_t *text;
    /// Shortcut in portable text, such as u"Ctrl+G"; null without one.
    const char16_t *shortcut = nullptr;
    const char16_t *tool_tip = nullptr;
    /// The check state that a checkable entry shows.
    bool ViewState::*checked = nullptr;
    InView view = InView::Both;
    bool is_menu = false;
    bool is_context_menu = false;
    /// Hidden until it is shown by name.
    bool hidden = false;
    /// A checkable entry that shows the opposite of `checked`.
    bool inverse = false;
};

/// All entries in the order in which menus show them.
std::span<const MenuEntry> MenuEntries();
/// Null for an unknown name. Names compare exactly.
const MenuEntry *FindMenuEntry(QStringView name);

/// The state of the entries. An entry without a handler is not enabled, nor is one whose menu is not.
class Commands : public QObject {
    Q_OBJECT
public:
    explicit Commands(ViewState &view);

    /// Says what an entry does. An unknown name is a fault of the program.
    void Handle(const QString &name, std::function<void()> handler);
    bool HasHandler(const QString &name) const;
    /// Runs an entry if it is enabled; false otherwise.
    bool Run(const QString &name);

    bool IsEnabled(const QString &name) const;
    bool IsVisible(const QString &name) const;
    bool IsChecked(const QString &name) const;
    /// What the window shows now, translated.
    QString Text(const QString &name) const;

    void SetEnabled(const QString &name, bool enabled);
    void SetVisible(const QString &name, bool visible);
    void SetText(const QString &name, const QString &text);
    /// The entries of one view only follow it.
    void FollowView(bool movies);
    /// A check state changed under the entries.
    void Refresh() { Q_EMIT Changed(); }

Q_SIGNALS:
    void Changed();

private:
    struct State {
        std::function<void()> handler;
        bool enabled = true;
        bool visible = true;
        QString text;
    };
    State &At(const QString &name);
    const State &At(const QString &name) const;

    ViewState &view_;
    QHash<QString, State> states_;
};

/// Sets the enabled state of the menus that need a database.
void EnableDBMenues(Commands &commands, bool enabled);

} // namespace ostrand
