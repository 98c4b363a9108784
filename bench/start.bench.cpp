// How long the start takes, and whether the window ever stands still.
//
//   bench_start [TITLES...]
//
// For each size a collection is made and the program is started on it without a screen, in a process of its own; the
// phases of the start are told in milliseconds, and then the longest turn of the event loop while a user fills the
// list, fills it after a change of the titles, sorts it and scrolls through it, with the processor time of the longest
// beside it: that of a machine without other work. Status 1 where the start takes more than twice its goal.
#include "SilentServices.h"

#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/ui/TitleListView.h"
#include "browser/ui/frmMain.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <ctime>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr double kGoalStart = 1000; // milliseconds, at 10,000 titles
constexpr double kGoalTurn = 50;
constexpr int kBoxsetEvery = 10;
constexpr int kChildren = 4;

/// Processor time of the program so far in milliseconds.
double ProcessorTime() {
    return double(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

/// Measures each turn of the event loop that it is told to look at.
class Application : public QApplication {
public:
    using QApplication::QApplication;
    double longest = 0;
    double longest_processor = 0;

    bool notify(QObject *receiver, QEvent *event) override {
        if (++depth_ > 1) {
            const bool inner = QApplication::notify(receiver, event);
            --depth_;
            return inner;
        }
        QElapsedTimer timer;
        timer.start();
        const double processor = ProcessorTime();
        const bool handled = QApplication::notify(receiver, event);
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
        longest_processor = std::max(longest_processor, ProcessorTime() - processor);
        --depth_;
        return handled;
    }

private:
    int depth_ = 0;
};

void MakeCollection(Session &session, const QString &path, int titles) {
    CreateCollectionDatabase(session, path);
    const sql::Database::Bracket bracket(*session.Database);
    for (int i = 0; i < titles; ++i) {
        const QString id = u"Key_%1"_s.arg(i, 6, 10, QChar(u'0'));
        const QString sort_title = u"%1 Film of Number %2"_s.arg(QChar(u'A' + i * 7 % 26)).arg(i);
        session.Database->Execute(
            u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColNo, ColType, ProdYear, Medium) VALUES "
            u"('%1', 'The %2', '%2', '%3', 'Owned', %4, 'DVD')"_s.arg(id, sort_title)
                .arg(i)
                .arg(1950 + i % 70));
        session.Database->Execute(
            u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('%1', '2012-03-01')"_s.arg(id));
        if (i % kBoxsetEvery > 0 && i % kBoxsetEvery <= kChildren) {
            const QString parent = u"Key_%1"_s.arg(i - i % kBoxsetEvery, 6, 10, QChar(u'0'));
            session.Database->Execute(u"INSERT INTO BoxSet (BoxSetID, ChildID) VALUES ('%1', '%2')"_s.arg(parent, id));
        }
    }
    WriteDbInfo(session, u"ShowLoanDueOnStartUp"_s, u"0"_s);
}

class Phases {
public:
    Phases() { timer_.start(); }
    void Tell(const char *name) {
        const double now = double(timer_.nsecsElapsed()) / 1e6;
        std::printf("  %-28s %8.1f ms\n", name, now - last_);
        last_ = now;
    }
    double Total() const { return last_; }

private:
    QElapsedTimer timer_;
    double last_ = 0;
};

void Press(QWidget *widget, int key) {
    QApplication::postEvent(widget, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    QApplication::processEvents();
}

void TellTurn(Application &application, const char *name, double &worst) {
    std::printf("  longest turn, %-14s %8.1f ms (processor %.1f)\n", name, application.longest,
                application.longest_processor);
    worst = std::max(worst, application.longest);
    application.longest = 0;
    application.longest_processor = 0;
}

int StartOne(int argc, char **argv, int titles) {
    const QTemporaryDir folder;
    {
        SilentServices services(folder.path());
        Session session(services.services);
        MakeCollection(session, folder.filePath(u"a.mdb"_s), titles);
    }
    std::printf("%d titles\n", titles);
    Phases phases;
    Application application(argc, argv);
    phases.Tell("application");
    SilentServices services(folder.path());
    Session session(services.services);
    Browser browser(session);
    frmMain main(browser);
    phases.Tell("window made");
    if (!main.Load(folder.filePath(u"a.mdb"_s))) {
        std::fprintf(stderr, "bench_start: the collection did not open\n");
        return 2;
    }
    phases.Tell("settings, database, list");
    QApplication::processEvents();
    phases.Tell("painted and usable");
    const double total = phases.Total();
    std::printf("  %-28s %8.1f ms (goal %.0f)\n", "start", total, kGoalStart);

    double worst = 0;
    auto *list = main.findChild<TitleListView *>();
    application.longest = 0;
    application.longest_processor = 0;
    for (int tab = 1; tab <= 2; ++tab) {
        QTimer::singleShot(0, &main, [&] { SelectColTypeTab(browser, tab); });
        QApplication::processEvents();
    }
    TellTurn(application, "filling", worst);
    session.Database->Execute(u"UPDATE Profiles SET ColNo = '7' WHERE ProfileID = 'Key_000000'");
    session.Database->Flush();
    QTimer::singleShot(0, &main, [&] { SelectColTypeTab(browser, 1); });
    QApplication::processEvents();
    TellTurn(application, "reading anew", worst);
    for (int i = 0; i < 3; ++i) {
        QTimer::singleShot(0, &main, [&] { Q_EMIT list->header()->sectionClicked(TitleList::Title); });
        QApplication::processEvents();
    }
    TellTurn(application, "sorting", worst);
    for (int i = 0; i < 100; ++i) {
        Press(list, i < 50 ? Qt::Key_PageDown : Qt::Key_PageUp);
    }
    Press(list, Qt::Key_End);
    Press(list, Qt::Key_Home);
    TellTurn(application, "scrolling", worst);
    std::printf("  longest turn of all %17.1f ms (goal %.0f)\n", worst, kGoalTurn);
    main.close();
    return total > 2 * kGoalStart && titles <= 10000 ? 1 : 0;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char **argv) {
    using namespace Qt::StringLiterals;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && qstrcmp(argv[1], "--one") == 0) {
        return ostrand::bench::StartOne(argc, argv, QByteArray(argv[2]).toInt());
    }
    QStringList sizes;
    for (int i = 1; i < argc; ++i) {
        sizes.append(QString::fromLocal8Bit(argv[i]));
    }
    if (sizes.isEmpty()) {
        sizes = {u"1000"_s, u"10000"_s};
    }
    int status = 0;
    for (const QString &size : sizes) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QString::fromLocal8Bit(argv[0]), {u"--one"_s, size});
        process.waitForFinished(-1);
        status = std::max(status, process.exitCode());
    }
    return status;
}
