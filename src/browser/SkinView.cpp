#include "browser/SkinView.h"

#include "browser/Appearances.h"
#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "platform/HtmlView.h"
#include "shell/Session.h"
#include "skin/SkinLinks.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

bool HasProfile(Session &session, const QString &key) {
    return !session.Database
                ->OpenRecordset(u"SELECT ProfileID FROM Profiles WHERE ProfileID = '"_s + EscapeSql(key) + u'\'')
                .Eof();
}

/// The panels on the left hold nothing of the title that was shown before the page.
void EmptyTitlePanels(Browser &browser) {
    if (!browser.session.view.mTVShows) {
        browser.listEpisodes.Clear();
        browser.current_episode = -1;
    }
    if (!browser.cover_stem.isEmpty()) {
        browser.cover_stem.clear();
        Q_EMIT browser.CoverChanged();
    }
}

} // namespace

SkinView::SkinView(Browser &browser, HtmlView &view) : browser_(browser), view_(view) {
    host_ = {.set_caption = [this](const QString &caption) { browser_.caption = caption; },
             .EnableWebSkin = [this](bool on) { EnableWebSkin(on); },
             .redisplay = [this] { Redisplay(browser_); },
             .refresh_menus = [this] { browser_.commands.Refresh(); }};
    view_.before_navigate = [this](const QString &url) { return BeforeNavigate(url); };
    browser_.hooks.EnableWebSkin = host_.EnableWebSkin;
    browser_.hooks.ShowSkin = [this](const QString &key, bool is_episode) { return Show(key, is_episode); };
}

SkinView::~SkinView() {
    view_.before_navigate = nullptr;
    browser_.hooks.EnableWebSkin = nullptr;
    browser_.hooks.ShowSkin = nullptr;
}

void SkinView::EnableWebSkin(bool on) {
    browser_.session.view.mSkinEnable = on;
    view_.SetVisible(on);
    browser_.commands.Refresh();
    Q_EMIT browser_.SkinChanged();
}

bool SkinView::Show(const QString &key, bool is_episode) {
    return ShowPage(key, is_episode, {});
}

bool SkinView::ShowPage(const QString &key, bool is_episode, const QString &back_profile_id) {
    Session &session = browser_.session;
    const int before = pages_;
    if (ShowSkinPage(session, skin_, view_, host_, session.CurrentSkin, key, is_episode, back_profile_id, {})) {
        ++pages_;
    }
    // A skin that the user was asked for is shown by then; one without a template, or a view without an engine, left
    // the skins.
    if (!session.view.mSkinEnable) {
        EnableWebSkin(false);
        return false;
    }
    if (pages_ == before) {
        return false;
    }
    EmptyTitlePanels(browser_);
    Q_EMIT browser_.PageShown();
    return true;
}

void SkinView::ToggleSkin() {
    view_.Navigate(u"about:blank"_s);
    EnableWebSkin(!browser_.session.view.mSkinEnable);
    Redisplay(browser_);
}

void SkinView::SelectSkin() {
    SelectSkinDialog(browser_.session, host_);
}

void SkinView::TellNoEngine(const QString &reason) {
    Session &session = browser_.session;
    Trace(session, u"WebSkin: "_s + reason, kTraceError);
    EnableWebSkin(false);
    ShowMessage(session, {.text = Translate(session, u"Pages of skins cannot be shown."_s) + u'\n' + reason,
                          .title = Translate(session, u"Select Skin"_s),
                          .icon = MessageIcon::Warning});
}

bool SkinView::BeforeNavigate(const QString &url) {
    const SkinLink link = ReadSkinLink(browser_.session, url);
    if (link.kind == SkinLink::Kind::Ordinary) {
        return false;
    }
    later([this, link] { Follow(link); });
    return true;
}

void SkinView::Follow(const SkinLink &link) {
    Session &session = browser_.session;
    if (!session.Database) {
        return;
    }
    const QString target = link.parts.value(0);
    switch (link.kind) {
    case SkinLink::Kind::Person:
        ShowAppearances(session, target, link.parts.value(1).toInt());
        break;
    case SkinLink::Kind::Profile:
        ShowMovie(browser_, ProfileOfLink(session, target)); // which leaves the row that is selected
        break;
    case SkinLink::Kind::Episode:
        if (!ShowPage(target, true, QString(session.CurrentProfileID))) { // a copy: the page becomes the current one
            Redisplay(browser_);
        } else if (browser_.hooks.ShowProfile) {
            browser_.hooks.ShowProfile(target, true);
        }
        break;
    case SkinLink::Kind::Ordinary:
    case SkinLink::Kind::Unknown:
        break;
    }
}

QString ProfileOfLink(Session &session, const QString &text) {
    const QString prefixed = u"Key_"_s + text;
    return !HasProfile(session, text) && HasProfile(session, prefixed) ? prefixed : text;
}

} // namespace ostrand
