#include "web_engine/WebView.h"

#include "platform_qt/PageAddress.h"

#include <QLoggingCategory>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(kPages, "ostrand.pages")

void Restrict(QWebEngineSettings &settings) {
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    settings.setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    for (const auto attribute :
         {QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
          QWebEngineSettings::JavascriptCanPaste, QWebEngineSettings::LocalStorageEnabled,
          QWebEngineSettings::PluginsEnabled, QWebEngineSettings::HyperlinkAuditingEnabled,
          QWebEngineSettings::ScreenCaptureEnabled, QWebEngineSettings::FullScreenSupportEnabled,
          QWebEngineSettings::NavigateOnDropEnabled}) {
        settings.setAttribute(attribute, false);
    }
}

/// Connections that no interceptor sees are taken from the scripts of pages.
void CloseUnseenConnections(QWebEngineProfile &profile) {
    QWebEngineScript script;
    script.setName(u"connections"_s);
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(u"for (const name of ['RTCPeerConnection', 'webkitRTCPeerConnection', 'WebTransport']) {"
                         "    delete window[name];"
                         "}"_s);
    profile.scripts()->insert(script);
}

} // namespace

RuleInterceptor::RuleInterceptor(WebEngineRules rules, QObject *parent) :
    QWebEngineUrlRequestInterceptor(parent), rules_(std::move(rules)) {}

void RuleInterceptor::interceptRequest(QWebEngineUrlRequestInfo &info) {
    if (!rules_.may_load(info.requestUrl())) {
        info.block(true);
    }
}

WebPage::WebPage(QWebEngineProfile *profile, WebView &view, WebEngineRules rules) :
    QWebEnginePage(profile, &view), view_(view), rules_(std::move(rules)) {
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
}

bool WebPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool is_main_frame) {
    const QString text = PageAddress(url);
    if (view_.before_navigate && view_.before_navigate(text)) {
        return false;
    }
    const PageLink link = rules_.follow(url, type == NavigationTypeLinkClicked, is_main_frame);
    if (link == PageLink::Open) {
        // Outside of the call, since the engine waits for its answer.
        QTimer::singleShot(0, this, [this, text] { rules_.open_link(text); });
    }
    return link == PageLink::Load;
}

QWebEnginePage *WebPage::createWindow(WebWindowType) {
    return this; // a link that wants a window of its own opens here, where it is looked at first
}

QStringList WebPage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &) {
    return {};
}

void WebPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message, int line,
                                       const QString &source) {
    if (level == ErrorMessageLevel) {
        qCDebug(kPages).noquote() << source << line << message;
        Q_EMIT view_.ScriptFailed(message, line);
    }
}

WebView::WebView(const WebEngineRules &rules, QWidget *parent) :
    QWebEngineView(parent), profile_(new QWebEngineProfile(this)) {
    profile_->setUrlRequestInterceptor(new RuleInterceptor(rules, profile_));
    profile_->setHttpCacheType(QWebEngineProfile::NoCache);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    connect(profile_, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *download) { download->cancel(); });
    CloseUnseenConnections(*profile_);
    setPage(new WebPage(profile_, *this, rules));
    Restrict(*page()->settings());
    page()->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, rules.scripts);
    setContextMenuPolicy(Qt::NoContextMenu);
}

WebView::~WebView() {
    delete page(); // before the profile that it lives in
}

void WebView::Navigate(const QString &url) {
    QUrl target(url, QUrl::StrictMode);
    if (target.isLocalFile() && !target.hasQuery()) {
        // Each page is written into the same file. Loaded as the same page it would open where the last one stood.
        target.setQuery(QString::number(++shown_));
    }
    load(target);
}

} // namespace ostrand
