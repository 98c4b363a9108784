#include "browser/TextPage.h"

#include "base/Files.h"
#include "base/Text.h"
#include "platform/HtmlView.h"
#include "shell/Session.h"
#include "skin/SkinPage.h"
#include "skin/TextConversion.h"

namespace ostrand {

using namespace Qt::StringLiterals;

QString TextPage(const Session &session, QString html) {
    if (IndexOfIgnoringCase(html, u"<br") < 0) {
        html = WithBreaks(html);
    }
    html = FixRelativePaths(session, html);
    if (IndexOfIgnoringCase(html, u"<html>") < 0) {
        html = u"<html><head><style type='text/css'> body { margin: 10px; font: 10pt Arial; text-align: justify; } p { "
               "margin: 0.5em auto }</style></head><body>"_s +
               html + u"</body></html>"_s;
    }
    return html;
}

QString TextPageFile(const Session &session, const QString &name) {
    return session.TempFolder + u"/HTMLTemp"_s + name + u".html"_s;
}

void ShowTextHTML(const Session &session, HtmlView &browser, const QString &html, const QString &name) {
    if (html.isEmpty()) {
        browser.Navigate(u"about:blank"_s);
        return;
    }
    const QString file = TextPageFile(session, name);
    if (!MakeFolderPath(session.TempFolder) || !WritePage(file, TextPage(session, html))) {
        Trace(session, u"ShowTextHTML: "_s + file, kTraceError);
    }
    browser.Navigate(PathToFileUrl(file));
}

} // namespace ostrand
