// The menu entries that change what listSeries shows.
#include "browser/Browser.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void Toggle(Browser &browser, bool ViewState::*state) {
    ViewState &view = browser.session.view;
    view.*state = !(view.*state);
    browser.commands.Refresh();
}

void RefillMovies(Browser &browser) {
    if (!browser.session.view.mTVShows) {
        GetMovieNames(browser);
    }
}

/// False when the user cancelled.
bool AskDescriptionFormat(Session &session) {
    QStringList formats;
    for (const QString &format : {u"Title: Description"_s, u"Title - Description"_s, u"Title (Description)"_s}) {
        formats.append(Translate(session, format));
    }
    const std::optional<QString> answer = session.services.dialogs.InputCombo(
        Translate(session, u"Select Description Format:"_s), Translate(session, u"Description Format"_s), formats,
        formats.value(session.view.DescFormat - 1));
    if (!answer) {
        return false;
    }
    const qsizetype chosen = formats.indexOf(*answer);
    if (chosen >= 0) {
        session.view.DescFormat = int(chosen) + 1;
        if (session.Database && !session.DatabaseTooNew) {
            WriteDbInfo(session, u"DescFormat"_s, QString::number(session.view.DescFormat));
        }
    }
    return true;
}

} // namespace

void ToggleBoxsetView(Browser &browser) {
    Toggle(browser, &ViewState::mBoxsetView);
    ViewState &view = browser.session.view;
    if (view.BoxsetView != view.mBoxsetView) {
        view.BoxsetView = view.mBoxsetView;
        RefillMovies(browser);
    }
}

void ToggleCustomTitle(Browser &browser) {
    Toggle(browser, &ViewState::mUseCustomTitle);
    RefillMovies(browser);
}

void ToggleOriginalTitle(Browser &browser) {
    Toggle(browser, &ViewState::mUseOriginalTitle);
    if (browser.session.view.mTVShows) {
        UpdateSeriesNames(browser);
    } else {
        GetMovieNames(browser);
    }
}

void ToggleDescription(Browser &browser) {
    Toggle(browser, &ViewState::mShowDescription);
    if (browser.session.view.mShowDescription && !AskDescriptionFormat(browser.session)) {
        Toggle(browser, &ViewState::mShowDescription);
        return;
    }
    RefillMovies(browser);
}

void ToggleColours(Browser &browser) {
    Toggle(browser, &ViewState::mcolorlist);
    ApplyListColors(browser, browser.SpecialOrder);
}

} // namespace ostrand
