#include "browser/Browser.h"

#include "shell/Session.h"

namespace ostrand {

Browser::Browser(Session &the_session) : session(the_session), commands(the_session.view), credits(the_session) {}

QString SelectedColType(Browser &browser) {
    return ReverseTranslate(browser.session, browser.tabColList.value(browser.tabColList_selected - 1));
}

void ShowFilterCount(Browser &browser, int count) {
    browser.filter_count = count;
    browser.labelFilterCount = Translate(browser.session, QStringLiteral("Filtered:")) + u' ' + QString::number(count);
    if (browser.find.IsPartial()) {
        browser.labelFilterCount += u'…';
    }
    Q_EMIT browser.FilterCountChanged();
}

} // namespace ostrand
