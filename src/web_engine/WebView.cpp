#include "web_engine/WebView.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(kPages, "ostrand.pages")

void Restrict(QWebEngineSettings &settings) {
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    for (const auto attribute :
         {QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
          QWebEngineSettings::JavascriptCanPaste, QWebEngineSettings::LocalStorageEnabled,
          QWebEngineSettings::PluginsEnabled, QWebEngineSettings::HyperlinkAuditingEnabled,
          QWebEngineSettings::WebRTCPublicInterfacesOnly, QWebEngineSettings::ScreenCaptureEnabled,
          QWebEngineSettings::FullScreenSupportEnabled}) {
        settings.setAttribute(attribute, false);
    }
}

bool Leaves(const QUrl &url) {
    const QString scheme = url.scheme();
    return scheme == "http"_L1 || scheme == "https"_L1 || scheme == "mailto"_L1;
}

} // namespace

FolderInterceptor::FolderInterceptor(WebEngineRules rules, QObject *parent) :
    QWebEngineUrlRequestInterceptor(parent), rules_(std::move(rules)) {}

bool FolderInterceptor::IsAllowed(const QUrl &url) const {
    const QString scheme = url.scheme();
    if (scheme == "data"_L1 || scheme == "about"_L1 || scheme == "blob"_L1) {
        return true;
    }
    if (!url.isLocalFile()) {
        return false;
    }
    // Links are followed first: one inside a skin must not lead out of it.
    QString file = QFileInfo(url.toLocalFile()).canonicalFilePath();
    if (file.isEmpty()) {
        file = QDir::cleanPath(url.toLocalFile());
    }
    const QStringList folders = rules_.folders();
    return std::any_of(folders.begin(), folders.end(), [&](const QString &folder) {
        const QString canonical = QFileInfo(folder).canonicalFilePath();
        return !canonical.isEmpty() && file.startsWith(canonical + u'/');
    });
}

void FolderInterceptor::interceptRequest(QWebEngineUrlRequestInfo &info) {
    if (!IsAllowed(info.requestUrl())) {
        info.block(true);
    }
}

WebPage::WebPage(QWebEngineProfile *profile, WebView &view, WebEngineRules rules) :
    QWebEnginePage(profile, &view), view_(view), rules_(std::move(rules)) {
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origin, Feature feature) {
        setFeaturePermission(origin, feature, PermissionDeniedByUser);
    });
}

bool WebPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool) {
    const QString text = url.toString(QUrl::FullyEncoded);
    if (view_.before_navigate && view_.before_navigate(text)) {
        return false;
    }
    if (Leaves(url)) {
        // Outside of the call, since the engine waits for its answer.
        QTimer::singleShot(0, this, [this, text] { rules_.open_link(text); });
        return false;
    }
    return true;
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
    profile_->setUrlRequestInterceptor(new FolderInterceptor(rules, profile_));
    profile_->setHttpCacheType(QWebEngineProfile::NoCache);
    profile_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    connect(profile_, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *download) { download->cancel(); });
    setPage(new WebPage(profile_, *this, rules));
    Restrict(*page()->settings());
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
