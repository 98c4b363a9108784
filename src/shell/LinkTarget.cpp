#include "shell/LinkTarget.h"

#include "platform/Services.h"

#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

bool Begins(const QString &text, QLatin1String beginning) {
    return text.startsWith(beginning, Qt::CaseInsensitive);
}

} // namespace

LinkTarget ReadLink(const QString &text) {
    if (Begins(text, "https://"_L1) || Begins(text, "http://"_L1)) {
        return {LinkKind::Web, text};
    }
    if (Begins(text, "www."_L1)) {
        return {LinkKind::Web, u"http://"_s + text};
    }
    if (Begins(text, "mailto:"_L1)) {
        return {LinkKind::Mail, text};
    }
    if (Begins(text, "App:"_L1)) {
        return {LinkKind::File, text.mid(4)};
    }
    return {};
}

bool OpenLink(Opener &opener, const QString &text) {
    const LinkTarget link = ReadLink(text);
    switch (link.kind) {
    case LinkKind::None:
        return false;
    case LinkKind::Web:
    case LinkKind::Mail:
        opener.OpenUrl(link.target);
        return true;
    case LinkKind::File:
        if (!opener.OpenFile(link.target) && QFileInfo::exists(link.target)) {
            opener.ChooseApplication(link.target);
        }
        return true;
    }
    return false;
}

} // namespace ostrand
