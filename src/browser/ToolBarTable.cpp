#include "browser/ToolBarTable.h"

#include "browser/Browser.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

constexpr ToolButton kButtons[] = {
    {.name = u"MoveBack",
     .role = ToolButton::Role::Back,
     .caption = u"Back",
     .tool_tip = u"Shows the title that was shown before",
     .icon = u"back",
     .shortcut = u"Alt+Left"},
    {.name = u"MoveForward",
     .role = ToolButton::Role::Forward,
     .caption = u"Forward",
     .tool_tip = u"Shows the title that was left by going back",
     .icon = u"forward",
     .shortcut = u"Alt+Right"},
    {.name = u"SQL",
     .command = u"mSQLQuery",
     .caption = u"SQL",
     .tool_tip = u"Asks the database in its own language, and makes filters",
     .icon = u"sql"},
    {.name = u"ProfileInfo",
     .command = u"mProfileInformation",
     .caption = u"Profile Info",
     .tool_tip = u"Shows everything that is known of the selected title",
     .icon = u"info"},
    {.name = u"ChangeMode",
     .command = u"mTVShows",
     .caption = u"TV Shows",
     .tool_tip = u"Shows the series",
     .icon = u"views",
     .tv_command = u"mMovies",
     .tv_caption = u"Movies",
     .tv_tool_tip = u"Shows the profiles"},
};

QString InViewOf(bool tv, const char16_t *in_movies, const char16_t *in_tv) {
    const char16_t *text = tv && in_tv != nullptr ? in_tv : in_movies;
    return text == nullptr ? QString() : QStringView(text).toString();
}

} // namespace

std::span<const ToolButton> ToolButtons() {
    return kButtons;
}

QString ToolCaption(const ToolButton &button, bool tv) {
    return InViewOf(tv, button.caption, button.tv_caption);
}

QString ToolTip(const ToolButton &button, bool tv) {
    return InViewOf(tv, button.tool_tip, button.tv_tool_tip);
}

QString ToolCommand(const ToolButton &button, bool tv) {
    return InViewOf(tv, button.command, button.tv_command);
}

bool IsToolEnabled(const Browser &browser, const ToolButton &button) {
    if (button.role != ToolButton::Role::Command) {
        const bool back = button.role == ToolButton::Role::Back;
        return !(back ? browser.history.Back() : browser.history.Forward()).isEmpty();
    }
    return browser.commands.IsEnabled(ToolCommand(button, browser.session.view.mTVShows));
}

} // namespace ostrand
