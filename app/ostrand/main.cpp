// The desktop program.

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ui/frmMain.h"
#include "platform_qt/DesktopColours.h"
#include "platform_qt/OutlinedTicks.h"
#include "platform_qt/QtDesktop.h"
#include "platform_qt/ThemedIcon.h"
#include "services/QtDownloader.h"
#include "services/QtProcessRunner.h"
#include "services/StandardStreams.h"
#include "services/StopSignals.h"
#include "services/SystemFolders.h"
#include "services/SystemServices.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/ProgressWindow.h"
#include "shell/ui/SessionPump.h"
#include "shell/ui/WindowDialogs.h"

#include <QTimer>

namespace {

using namespace ostrand;
using namespace Qt::StringLiterals;

/// Everything that a session needs, on a desktop.
struct Desktop {
    WindowDialogs dialogs;
    ProgressWindow progress;
    SessionPump pump;
    SystemClock clock;
    SystemRandom random;
    QtProcessRunner processes;
    SystemFolders folders;
    SystemLocaleInfo locale;
    QtClipboard clipboard;
    QtKeyboard keyboard;
    QtOpener opener;
    QtImages images;
    QtDownloader downloader;
    Services services{dialogs, progress,  pump,     clock,  random, processes, folders,
                      locale,  clipboard, keyboard, opener, images, downloader};
};

/// Faults that no routine caught end here and not the program.
class Application : public QApplication {
public:
    using QApplication::QApplication;
    Session *session = nullptr;

    bool notify(QObject *receiver, QEvent *event) override {
        bool handled = false;
        if (!session) {
            return QApplication::notify(receiver, event);
        }
        Guarded(*session, [&] { handled = QApplication::notify(receiver, event); });
        return handled;
    }
};

constexpr char kHelp[] = "Usage: ostrand [DATABASE.mdb | COMMANDFILE]\n\n"
                         "Opens a collection, the last one when none is named, or runs a command file.\n"
                         "Hold Ctrl while it starts to put window and splitters back to their first places.\n";

bool Tells(const QStringList &arguments) {
    if (arguments.contains(u"--help"_s)) {
        WriteStream(stdout, kHelp);
        return true;
    }
    if (arguments.contains(u"--version"_s)) {
        WriteStream(stdout, u"ostrand %1.%2.%3\n"_s.arg(OSTRAND_VERSION_MAJOR)
                                .arg(OSTRAND_VERSION_MINOR)
                                .arg(OSTRAND_VERSION_PATCH)
                                .toUtf8());
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char **argv) {
    QStringList told;
    for (int i = 1; i < argc; ++i) {
        told.append(QString::fromLocal8Bit(argv[i]));
    }
    if (Tells(told)) { // before the application: no screen is needed for this
        return 0;
    }
    // The web engine, which is loaded later, draws through contexts that share.
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    Application application(argc, argv);
    QApplication::setApplicationName(u"ostrand"_s);
    QApplication::setDesktopFileName(u"ostrand"_s);
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    QApplication::setStyle(new OutlinedTicks(QApplication::style()->objectName()));
    const DesktopColours colours;
    const StopSignals signals_noted;
    LetWritesFail();
    Desktop desktop;
    Session session(desktop.services);
    application.session = &session;
    desktop.pump.session = &session;
    desktop.dialogs.translate = [&session](const QString &text) { return Translate(session, text); };
    desktop.progress.Attach(session.progress, desktop.dialogs.translate);
    Browser browser(session);
    frmMain main(browser);
    desktop.progress.title_chosen = [&browser](const QString &key) { ShowMovie(browser, key); };

    QTimer stop;
    QObject::connect(&stop, &QTimer::timeout, &main, [&main] {
        if (StopSignals::Received() != 0) {
            main.AskToEnd();
        }
    });
    stop.start(250);
    if (!main.Load(QApplication::arguments().mid(1).join(u' '))) {
        return 0;
    }
    return QApplication::exec();
}
