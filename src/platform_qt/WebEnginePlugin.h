// The web engine as a module that is loaded when the first page is shown.
#pragma once

#include "platform_qt/LazyHtmlView.h"

#include <QUrl>
#include <QtPlugin>

namespace ostrand {

/// What becomes of a navigation that the program itself has no use for.
enum class PageLink {
    Load,   ///< the view shows it
    Open,   ///< it leads out of the program
    Nothing ///< it leads nowhere
};

/// What a page may read, and where its ordinary links go. Asked at each request, since a database brings its own
/// folders.
struct WebEngineRules {
    /// True for what pages may load.
    std::function<bool(const QUrl &url)> may_load;
    /// `by_click` tells a link that was clicked, `is_main_frame` one that takes the place of the page.
    std::function<PageLink(const QUrl &url, bool by_click, bool is_main_frame)> follow;
    /// Takes a link that leads out of the program.
    std::function<void(const QString &url)> open_link;
    /// Scripts of pages run.
    bool scripts = true;
};

/// The module's way in.
class WebEnginePlugin {
public:
    virtual ~WebEnginePlugin() = default;
    virtual HtmlEngine MakeEngine(QWidget *parent, const WebEngineRules &rules) = 0;
};

/// Gives an engine out of the module `ostrand_web`, looked for beside the program and then in its library folder.
/// Nothing of the engine is loaded before it is called. Without the module pages stay unseen, and `failed` is told why.
LazyHtmlView::MakeEngine LoadWebEngine(WebEngineRules rules, std::function<void(const QString &reason)> failed);

} // namespace ostrand

#define OstrandWebEnginePlugin_iid "ostrand.WebEnginePlugin/2"
Q_DECLARE_INTERFACE(ostrand::WebEnginePlugin, OstrandWebEnginePlugin_iid)
