#include "platform_qt/WebEnginePlugin.h"

#include <QDir>
#include <QPluginLoader>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Chromium's sandbox cannot be entered as root, and only then it is left off.
void AllowRoot() {
#ifdef Q_OS_UNIX
    if (geteuid() == 0) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
#endif
}

/// Lets pages know that the desktop is dark.
void TellColours() {
    const QPalette palette = QApplication::palette();
    const bool dark = palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    if (!flags.contains("preferredColorScheme")) {
        flags += dark ? " --blink-settings=preferredColorScheme=0" : " --blink-settings=preferredColorScheme=1";
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
    }
}

} // namespace

LazyHtmlView::MakeEngine LoadWebEngine(WebEngineRules rules, std::function<void(const QString &)> failed) {
    return [rules = std::move(rules), failed = std::move(failed)](QWidget *parent) -> HtmlEngine {
        AllowRoot();
        TellColours();
        const QDir program(QCoreApplication::applicationDirPath());
        QString reason;
        for (const QString &folder : {u"."_s, u"../lib/ostrand"_s, QStringLiteral(OSTRAND_LIBRARY_FOLDER)}) {
            QPluginLoader loader(program.absoluteFilePath(folder + u"/libostrand_web"_s));
            if (auto *plugin = qobject_cast<WebEnginePlugin *>(loader.instance())) {
                return plugin->MakeEngine(parent, rules);
            }
            reason = reason.isEmpty() ? loader.errorString() : reason;
        }
        failed(reason);
        return {};
    };
}

} // namespace ostrand
