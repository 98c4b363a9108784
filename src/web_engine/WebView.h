// The view of pages on Qt WebEngine.
#pragma once

#include "platform_qt/WebEnginePlugin.h"

#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

class QWebEngineProfile;

namespace ostrand {

/// Lets nothing pass but what pages may load.
class RuleInterceptor : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT
public:
    RuleInterceptor(WebEngineRules rules, QObject *parent);
    void interceptRequest(QWebEngineUrlRequestInfo &info) override;

private:
    WebEngineRules rules_;
};

class WebView;

/// Asks the program before each navigation and gives scripts no way to windows, files or permissions.
class WebPage : public QWebEnginePage {
    Q_OBJECT
public:
    WebPage(QWebEngineProfile *profile, WebView &view, WebEngineRules rules);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool is_main_frame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &old_files,
                            const QStringList &accepted_types) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message, int line,
                                  const QString &source) override;

private:
    WebView &view_;
    WebEngineRules rules_;
};

/// The engine with a profile of its own that keeps nothing.
class WebView : public QWebEngineView, public HtmlView {
    Q_OBJECT
public:
    WebView(const WebEngineRules &rules, QWidget *parent);
    ~WebView() override;

    void Navigate(const QString &url) override;
    void SetVisible(bool visible) override { setVisible(visible); }
    bool IsVisible() const override { return !isHidden(); }

Q_SIGNALS:
    /// A script of a page ended with an error; for tests.
    void ScriptFailed(const QString &message, int line);

private:
    QWebEngineProfile *profile_;
    int shown_ = 0; ///< files so far
};

} // namespace ostrand
