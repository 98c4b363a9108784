// The web engine as a module that is loaded when the first page is shown.
#pragma once

#include "platform_qt/LazyHtmlView.h"

#include <QtPlugin>

namespace ostrand {

/// What a page may read, and where its ordinary links go.
struct WebEngineRules {
    /// Folders whose files pages may load; asked for at each request, since a database brings its own.
    std::function<QStringList()> folders;
    /// Takes a link that leads out of the program.
    std::function<void(const QString &url)> open_link;
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

#define OstrandWebEnginePlugin_iid "ostrand.WebEnginePlugin/1"
Q_DECLARE_INTERFACE(ostrand::WebEnginePlugin, OstrandWebEnginePlugin_iid)
