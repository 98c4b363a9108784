// How long a folder of ten thousand headshots takes beside the plain work on its files, in the same run.
//
//   open window     frmManageHeadshots with all files in its list; floor: the names of the folder, sorted.
//   filter          ten keys in its filter of names; the same floor, ten times.
//   next picture    fifty steps down its list; floor: the same steps in a list of names alone.
//   tidy            RemoveTrailingSpaces on names that all have one; floor: the same files renamed and back.
//
// Prints a line for each: name, ours, floor, ratio, goal. Ends with 1 where one is worse than twice its goal.
// Argument: the number of files (10000).
#include "SilentServices.h"

#include "database/DatabaseFunctions.h"
#include "people/HeadshotTools.h"
#include "people/ui/frmManageHeadshots.h"
#include "shell/Session.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <QTemporaryDir>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr int kKeys = 10;
constexpr int kSteps = 50;

double Milliseconds(const std::function<void()> &work) {
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) / 1e6;
}

bool Report(const char *name, double goal, const std::function<void()> &floor, const std::function<void()> &work) {
    const double plain = Milliseconds(floor);
    const double ours = Milliseconds(work);
    const double ratio = ours / plain;
    std::printf("%-14s ours %8.2f ms  floor %8.2f ms  ratio %5.2f  goal %.2f%s\n", name, ours, plain, ratio, goal,
                ratio > goal ? "  MISSED" : "");
    std::fflush(stdout);
    return ratio <= 2 * goal;
}

QStringList SortedNames(const QString &folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
}

void Press(QWidget *widget, int key, const QString &text) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &event);
    QApplication::processEvents();
}

void RenameAll(const QString &folder, const QString &from, const QString &to) {
    for (const QString &name : SortedNames(folder)) {
        QFile::rename(folder + name, folder + QString(name).replace(from, to));
    }
}

int Run(int count) {
    const QTemporaryDir root;
    SilentServices services(root.path());
    Session session(services.services);
    CreateCollectionDatabase(session, root.filePath(u"heads.mdb"_s));
    const QString folder = root.filePath(u"heads/"_s);
    QDir().mkpath(folder);
    session.HeadshotPath = folder;
    for (int i = 0; i < count; ++i) {
        QFile file(folder + QChar(u'A' + i % 26) + u" Person %1 .jpg"_s.arg(i));
        if (!file.open(QIODevice::WriteOnly)) {
            return 2;
        }
    }
    std::unique_ptr<frmManageHeadshots> window;
    bool good = Report(
        "open window", 3, [&] { SortedNames(folder); },
        [&] {
            window = std::make_unique<frmManageHeadshots>(session);
            window->show();
            QApplication::processEvents();
        });
    auto *files = window->findChild<QListView *>(u"FileListImages"_s);
    auto *filter = window->findChild<QLineEdit *>(u"textFilter"_s);
    if (files->model()->rowCount() != count) {
        std::fprintf(stderr, "bench_headshots: %d files instead of %d\n", files->model()->rowCount(), count);
        return 2;
    }
    window->findChild<QCheckBox *>(u"checkFilterSubstring"_s)->click();
    good &= Report(
        "filter", 1,
        [&] {
            for (int i = 0; i < kKeys; ++i) {
                SortedNames(folder);
            }
        },
        [&] {
            const QString typed = u"person 999"_s;
            for (int i = 0; i < kKeys; ++i) {
                Press(filter, Qt::Key_A, typed.mid(i, 1));
            }
        });
    filter->clear();
    QStringListModel names(SortedNames(folder));
    QListView plain;
    plain.setModel(&names);
    plain.resize(files->size());
    plain.show();
    QApplication::processEvents();
    good &= Report(
        "next picture", 4,
        [&] {
            for (int i = 0; i < kSteps; ++i) {
                Press(&plain, Qt::Key_Down, QString());
            }
        },
        [&] {
            for (int i = 0; i < kSteps; ++i) {
                Press(files, Qt::Key_Down, QString());
            }
        });
    window->close();
    good &= Report(
        "tidy", 2,
        [&] {
            RenameAll(folder, u" .jpg"_s, u"x.jpg"_s);
            RenameAll(folder, u"x.jpg"_s, u" .jpg"_s);
        },
        [&] { RemoveTrailingSpaces(session, folder); });
    if (!SortedNames(folder).filter(u" .jpg"_s).isEmpty()) {
        std::fprintf(stderr, "bench_headshots: names were left as they were\n");
        return 2;
    }
    return good ? 0 : 1;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return ostrand::bench::Run(argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 10'000);
}
