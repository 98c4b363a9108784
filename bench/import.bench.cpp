// How long the import of a collection file takes beside what no import can do without.
//
//   bench_import [--generator PROGRAM] [PROFILES...]
//
// For each size: a generated collection is read by the XML parser with no handler set but the one that knows the code
// page (parse); imported into a new collection (import); imported again (again); and the rows of the collection are
// written into a new file by prepared plain SQLite statements (rows). Each is measured in a process of its own, in
// seconds of the processor, so that neither memory nor other programs blur it. Status 1 where a ratio is more than
// twice its goal.
#include "RowFloor.h"
#include "SilentServices.h"

#include "collection_files/ProfilerImport.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "xml/ExpatParser.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr double kGoalFirst = 2.5;
constexpr double kGoalAgain = 1.5;
constexpr double kGoalGrowth = 1.2;
constexpr double kGoalMegabytes = 250;
constexpr int kRepetitions = 3;
constexpr int kRepeatedUpTo = 2000; // profiles; bigger collections are measured once

double ProcessorSeconds() {
    return double(std::clock()) / CLOCKS_PER_SEC;
}

double PeakMegabytes() {
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
            }
        }
    }
    return 0;
}

[[noreturn]] void Fail(const QString &text) {
    std::fprintf(stderr, "bench_import: %s\n", text.toUtf8().constData());
    std::exit(2);
}

// The parts that run in a process of their own. Each returns its seconds.

double Parse(const QString &path) {
    constexpr int kBlock = 1 << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        Fail(file.errorString());
    }
    const double start = ProcessorSeconds();
    const ExpatParser parser = MakeExpatParser();
    QByteArray block(kBlock, '\0');
    for (qint64 count = 1; count > 0;) {
        count = file.read(block.data(), kBlock);
        if (XML_Parse(parser.get(), block.constData(), int(count), count == 0) != XML_STATUS_OK) {
            Fail(u"the collection is not well formed"_s);
        }
    }
    return ProcessorSeconds() - start;
}

double Import(const QString &path, const QString &database) {
    const QTemporaryDir folder;
    SilentServices services(folder.path());
    Session session(services.services);
    const bool open =
        QFile::exists(database) ? OpenCollectionDatabase(session, database) : NewCollectionDatabase(session, database);
    if (!open) {
        Fail(u"the collection database cannot be opened"_s);
    }
    session.Database->Flush();
    const double start = ProcessorSeconds();
    if (!ImportProfilerData(session, path)) {
        Fail(u"the import failed"_s);
    }
    session.Database.reset();
    return ProcessorSeconds() - start;
}

double WriteRows(const QString &source, const QString &target) {
    return RowFloor(source, target).Run();
}

int RunChild(const QStringList &arguments) {
    const QString &part = arguments[0];
    const double seconds = part == u"parse"_s  ? Parse(arguments[1])
                           : part == u"rows"_s ? WriteRows(arguments[1], arguments[2])
                                               : Import(arguments[1], arguments[2]);
    std::printf("%.6f %.1f\n", seconds, PeakMegabytes());
    return 0;
}

// The side that compares.

struct Measure {
    double seconds = 0;
    double megabytes = 0;
};

Measure InChild(const QStringList &arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), QStringList{u"--child"_s} + arguments);
    process.waitForFinished(-1);
    const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 || words.size() != 2) {
        Fail(u"a measurement ended without a result: "_s + arguments.first());
    }
    return {.seconds = words[0].toDouble(), .megabytes = words[1].toDouble()};
}

struct Measures {
    Measure parse;
    Measure import;
    Measure again;
    Measure rows;
};

void TakeBest(Measure &best, const Measure &measure) {
    if (best.seconds == 0 || measure.seconds < best.seconds) {
        best = measure;
    }
}

class Comparison {
public:
    explicit Comparison(QString generator) : generator_(std::move(generator)) {}

    void Run(int profiles) {
        const QTemporaryDir folder;
        const QString collection = folder.filePath(u"collection.xml"_s);
        if (QProcess::execute(generator_, {QString::number(profiles), collection}) != 0) {
            Fail(u"no collection could be generated by "_s + generator_);
        }
        Measures best;
        for (int i = 0; i < (profiles <= kRepeatedUpTo ? kRepetitions : 1); ++i) {
            const QString database = folder.filePath(u"import%1.mdb"_s.arg(i));
            TakeBest(best.parse, InChild({u"parse"_s, collection}));
            TakeBest(best.import, InChild({u"import"_s, collection, database}));
            TakeBest(best.again, InChild({u"again"_s, collection, database}));
            TakeBest(best.rows, InChild({u"rows"_s, database, folder.filePath(u"rows%1.mdb"_s.arg(i))}));
        }
        Tell(profiles, best);
    }
    int Status() const { return failed_ ? 1 : 0; }

private:
    void Tell(int profiles, const Measures &measures) {
        const double floor = measures.parse.seconds + measures.rows.seconds;
        const double first = measures.import.seconds / floor;
        std::printf("%d profiles: parse %.3f s, rows %.3f s\n", profiles, measures.parse.seconds,
                    measures.rows.seconds);
        TellRatio("first import", measures.import.seconds, floor, kGoalFirst);
        TellRatio("unchanged import", measures.again.seconds, measures.parse.seconds, kGoalAgain);
        if (smallest_ == 0) {
            smallest_ = profiles;
            smallest_ratio_ = first;
        } else {
            TellRatio("ratio beside the smallest", first, smallest_ratio_, kGoalGrowth);
        }
        TellRatio("peak megabytes", std::max(measures.import.megabytes, measures.again.megabytes), 1, kGoalMegabytes);
        std::fflush(stdout);
    }
    void TellRatio(const char *name, double value, double floor, double goal) {
        const double ratio = value / floor;
        std::printf("  %-26s %9.3f  floor %9.3f  ratio %7.2f  goal %6.2f%s\n", name, value, floor, ratio, goal,
                    ratio > goal ? "  MISSED" : "");
        failed_ = failed_ || ratio > 2 * goal;
    }

    QString generator_;
    int smallest_ = 0;
    double smallest_ratio_ = 0;
    bool failed_ = false;
};

int RunAll(QStringList arguments) {
    QString generator = QCoreApplication::applicationDirPath() + u"/generate_collection"_s;
    if (arguments.size() > 1 && arguments.first() == u"--generator"_s) {
        generator = arguments[1];
        arguments = arguments.sliced(2);
    }
    if (arguments.isEmpty()) {
        arguments.append(u"1000"_s);
    }
    Comparison comparison(generator);
    for (const QString &argument : std::as_const(arguments)) {
        if (argument.toInt() <= 0) {
            Fail(u"usage: bench_import [--generator PROGRAM] [PROFILES...]"_s);
        }
        comparison.Run(argument.toInt());
    }
    return comparison.Status();
}

} // namespace

int Main(const QStringList &arguments) {
    try {
        return arguments.value(0) == u"--child"_s ? RunChild(arguments.sliced(1)) : RunAll(arguments);
    } catch (const sql::SqlError &error) {
        Fail(error.Text());
    }
}

} // namespace ostrand::bench

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    return ostrand::bench::Main(QCoreApplication::arguments().sliced(1));
}
