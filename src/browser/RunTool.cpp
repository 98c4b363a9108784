#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ToolBarTable.h"
#include "shell/Session.h"

namespace ostrand {

void RunTool(Browser &browser, const ToolButton &button) {
    if (!IsToolEnabled(browser, button)) {
        return;
    }
    switch (button.role) {
    case ToolButton::Role::Back:
        MoveBack(browser);
        break;
    case ToolButton::Role::Forward:
        MoveForward(browser);
        break;
    case ToolButton::Role::Command:
        browser.commands.Run(ToolCommand(button, browser.session.view.mTVShows));
        break;
    }
}

} // namespace ostrand
