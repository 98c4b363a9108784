#include "shell/ui/Guarded.h"

namespace ostrand {

void TellFault(Session &session, const QString &text) {
    Trace(session, text, kTraceError);
    ShowMessage(session, {.text = text, .title = {}, .icon = MessageIcon::Critical});
}

} // namespace ostrand
