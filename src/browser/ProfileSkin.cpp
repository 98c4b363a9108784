#include "browser/ProfileSkin.h"

#include "browser/Appearances.h"
#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/SkinView.h"
#include "browser/Views.h"
#include "platform/HtmlView.h"
#include "shell/Session.h"
#include "skin/SkinLinks.h"

#include <QScopedValueRollback>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

/// What a link leads to is shown in the main window, which this page follows.
void Follow(Browser &browser, const SkinLink &link) {
    if (!browser.session.Database) {
        return;
    }
    const QString target = link.parts.value(0);
    switch (link.kind) {
    case SkinLink::Kind::Person:
        ShowAppearances(browser.session, target, link.parts.value(1).toInt());
        break;
    case SkinLink::Kind::Profile:
        ShowMovie(browser, ProfileOfLink(browser.session, target));
        break;
    case SkinLink::Kind::Episode:
        LoadEpisode(browser, target);
        break;
    case SkinLink::Kind::Ordinary:
    case SkinLink::Kind::Unknown:
        break;
    }
}

} // namespace

QStringList SkinsWithTemplate(const Session &session) {
    QStringList names = SkinNames(session);
    names.removeIf([&](const QString &name) { return SkinFile(session, name).isEmpty(); });
    return names;
}

ProfileSkin::ProfileSkin(Browser &browser, HtmlView &view) : browser_(browser), view_(view) {
    // The page of the main window is loaded from its own file at the same time.
    skin_.page_file = u"TempProfile.html"_s;
    view_.before_navigate = [this](const QString &url) {
        const SkinLink link = ReadSkinLink(browser_.session, url);
        if (link.kind == SkinLink::Kind::Ordinary) {
            return false;
        }
        later([&shown = browser_, link] { Follow(shown, link); });
        return true;
    };
}

ProfileSkin::~ProfileSkin() {
    view_.before_navigate = nullptr;
}

void ProfileSkin::Show(const QString &skin_name, const SheetTitle &title) {
    Session &session = browser_.session;
    if (title.id.isEmpty() || SkinFile(session, skin_name).isEmpty()) {
        view_.Navigate(u"about:blank"_s);
        return;
    }
    const QScopedValueRollback<QString> id(session.CurrentProfileID);
    const QScopedValueRollback<bool> is_episode(session.CurrentIsEpisode);
    ShowSkinPage(session, skin_, view_, {}, skin_name, title.id, title.is_episode, {}, {});
}

} // namespace ostrand
