// The module's way in.

#include "web_engine/WebView.h"

namespace ostrand {

class WebEngineModule : public QObject, public WebEnginePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID OstrandWebEnginePlugin_iid)
    Q_INTERFACES(ostrand::WebEnginePlugin)
public:
    HtmlEngine MakeEngine(QWidget *parent, const WebEngineRules &rules) override {
        auto *view = new WebView(rules, parent);
        return {view, view};
    }
};

} // namespace ostrand

#include "WebEngineModule.moc"
