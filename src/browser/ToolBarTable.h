// The buttons of toolMain.
#pragma once

#include <QString>

#include <span>

namespace ostrand {

class Browser;

/// A button that is captioned with the other view has a second set of texts, which it shows in TV view.
struct ToolButton {
    /// The history buttons drop down the titles of their list.
    enum class Role { Command, Back, Forward };

    const char16_t *name = u"";
    Role role = Role::Command;
    /// The menu entry that a click runs; null for the history buttons.
    const char16_t *command = nullptr;
    /// English.
    const char16_t *caption = u"";
    const char16_t *tool_tip = u"";
    /// A drawing of the program's icons.
    const char16_t *icon = u"";
    /// Portable text; null where the menu entry has it.
    const char16_t *shortcut = nullptr;
    const char16_t *tv_command = nullptr;
    const char16_t *tv_caption = nullptr;
    const char16_t *tv_tool_tip = nullptr;
};

/// In the order of the tool bar.
std::span<const ToolButton> ToolButtons();

/// What a button shows in the current view, in English.
QString ToolCaption(const ToolButton &button, bool tv);
QString ToolTip(const ToolButton &button, bool tv);
/// The menu entry that a click runs in the current view; empty for the history buttons.
QString ToolCommand(const ToolButton &button, bool tv);
/// A history button when its list holds a title, another one when its menu entry can be used.
bool IsToolEnabled(const Browser &browser, const ToolButton &button);
/// A click on the button.
void RunTool(Browser &browser, const ToolButton &button);

} // namespace ostrand
