#include "browser/MenuStrings.h"

#include "browser/Commands.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

void MenuStrings(Session &session, Commands &commands) {
    Trace(session, u"MenuStrings()"_s, 2);
    commands.Together([&] {
        for (const MenuEntry &entry : MenuEntries()) {
            if (entry.IsSeparator()) {
                continue;
            }
            const QString name = QStringView(entry.name).toString();
            if (const QStringView text(entry.text); !text.isEmpty()) {
                commands.SetText(name, Translate(session, text.toString()));
            }
            if (entry.tool_tip != nullptr) {
                commands.SetToolTip(name, Translate(session, QStringView(entry.tool_tip).toString()));
            }
        }
        commands.RefreshTexts();
    });
    Trace(session, u"MenuStrings()"_s, 4);
}

} // namespace ostrand
