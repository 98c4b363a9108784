#include "browser/MenuStrings.h"

#include "browser/Commands.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

void MenuStrings(Session &session, Commands &commands) {
    Trace(session, u"MenuStrings()"_s, kTraceEntry);
    commands.Together([&] {
        for (const MenuEntry &entry : MenuEntries()) {
            if (entry.IsSeparator()) {
                continue;
            }
            if (const QString text = OfTable(entry.text); !text.isEmpty()) {
                commands.SetText(OfTable(entry.name), Translate(session, text));
            }
            if (entry.tool_tip != nullptr) {
                commands.SetToolTip(OfTable(entry.name), Translate(session, OfTable(entry.tool_tip)));
            }
        }
        commands.RefreshTexts();
    });
    Trace(session, u"MenuStrings()"_s, kTraceExit);
}

} // namespace ostrand
