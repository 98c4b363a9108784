// Short ways to write the rows of the menu table, and its two halves.
#pragma once

#include "browser/Commands.h"

namespace ostrand::menu_table {

std::span<const MenuEntry> MenuBarEntries();
std::span<const MenuEntry> ContextMenuEntries();

constexpr MenuEntry Menu(const char16_t *name, const char16_t *parent, const char16_t *text) {
    MenuEntry entry;
    entry.name = name;
    entry.parent = parent;
    entry.text = text;
    entry.is_menu = true;
    return entry;
}

constexpr MenuEntry ContextMenu(const char16_t *name) {
    MenuEntry entry = Menu(name, nullptr, u"");
    entry.is_context_menu = true;
    return entry;
}

constexpr MenuEntry Separator(const char16_t *parent) {
    MenuEntry entry;
    entry.parent = parent;
    return entry;
}

constexpr MenuEntry Entry(const char16_t *name, const char16_t *parent, const char16_t *text,
                          const char16_t *tool_tip = nullptr, const char16_t *shortcut = nullptr) {
    MenuEntry entry;
    entry.name = name;
    entry.parent = parent;
    entry.text = text;
    entry.tool_tip = tool_tip;
    entry.shortcut = shortcut;
    return entry;
}

/// An entry that shows a check state of the view.
constexpr MenuEntry Checks(bool ViewState::*checked, MenuEntry entry) {
    entry.checked = checked;
    return entry;
}

constexpr MenuEntry ChecksNot(bool ViewState::*checked, MenuEntry entry) {
    entry.checked = checked;
    entry.inverse = true;
    return entry;
}

/// An entry that flips the grid lines of a list.
constexpr MenuEntry Grid(bool ViewState::GridLines::*lines, const char16_t *name, const char16_t *parent) {
    MenuEntry entry = Entry(name, parent, u"&Grid Lines");
    entry.grid_lines = lines;
    return entry;
}

/// An entry whose check is told, as that of a lock.
constexpr MenuEntry Told(MenuEntry entry) {
    entry.told_checked = true;
    return entry;
}

constexpr MenuEntry InMovies(MenuEntry entry) {
    entry.view = InView::Movies;
    return entry;
}

constexpr MenuEntry InTV(MenuEntry entry) {
    entry.view = InView::TV;
    return entry;
}

constexpr MenuEntry Hidden(MenuEntry entry) {
    entry.hidden = true;
    return entry;
}

/// An entry of a context menu that does what one of the menu bar does.
constexpr MenuEntry SameAs(const char16_t *other, MenuEntry entry) {
    entry.same_as = other;
    return entry;
}

} // namespace ostrand::menu_table
