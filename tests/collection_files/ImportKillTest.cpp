// The program dies at any instant of an import.

#include "sql/DatabaseFile.h"
#include "sql/Functions.h"
#include "support/BatchProgram.h"

#include "sql/Database.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <thread>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProfiles = 900; // several transactions, on a quick machine too

/// The number of deaths; the environment may ask for more.
int Kills() {
    const int asked = qEnvironmentVariableIntValue("OSTRAND_KILLS");
    return asked > 0 ? asked : 12;
}

/// The rows of a collection: of each profile, and of each table that knows no profile. An event's number is drawn by
/// chance and left out.
struct Content {
    QMap<QString, QStringList> profiles;
    QMap<QString, QStringList> tables;
};

class ImportKillTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(QProcess::execute(QString::fromUtf8(OSTRAND_GENERATE_COLLECTION),
                                    {QString::number(kProfiles), program.In(u"c.xml"_s)}),
                  0);
        program.folder.Write(u"new.txt"_s, "createdatabase a.mdb\n");
        program.folder.Write(u"import.txt"_s, "opendatabase a.mdb\nimportprofilerdatabase c.xml\n");
        ASSERT_EQ(program.Run({u"--quiet"_s, u"new.txt"_s}).status, 0);
        ASSERT_TRUE(QFile::rename(program.In(u"a.mdb"_s), program.In(u"empty.mdb"_s)));
    }

    void StartAnew() {
        for (const char *end : {"mdb", "mdb-wal", "mdb-shm", "ldb"}) {
            QFile::remove(program.In(u"a."_s + QString::fromLatin1(end)));
        }
        ASSERT_TRUE(QFile::copy(program.In(u"empty.mdb"_s), program.In(u"a.mdb"_s)));
    }
    void ImportToTheEnd() {
        const test::BatchResult result = program.Run({u"--quiet"_s, u"import.txt"_s});
        ASSERT_EQ(result.status, 0) << result.output.constData() << result.errors.constData();
    }
    qint64 Written() const { return QFileInfo(program.In(u"a.mdb-wal"_s)).size(); }
    /// Lets the import run until it is done or `due` says that it has to die.
    template <typename Due>
    std::unique_ptr<QProcess> ImportUntil(const Due &due) {
        auto process = program.Start({u"--quiet"_s, u"import.txt"_s});
        while (!due() && !process->waitForFinished(0)) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        return process;
    }
    /// True when the program died before it was done.
    template <typename Due>
    bool ImportAndKill(const Due &due) {
        const auto process = ImportUntil(due);
        if (process->state() == QProcess::NotRunning) {
            return false;
        }
        ::kill(pid_t(process->processId()), SIGKILL);
        process->waitForFinished(-1);
        return process->exitStatus() == QProcess::CrashExit;
    }

    QString IntegrityOf(const QString &path) const {
        const sql::Environment environment;
        sql::Connection connection =
            sql::OpenFile(path, [&](sqlite3 *handle) { sql::RegisterFunctions(handle, environment); });
        QString told = connection.Single(u"PRAGMA integrity_check").Text();
        sql::CloseFile(std::move(connection));
        return told;
    }

    Content Read(const QString &path) const {
        Content content;
        const auto database = sql::Database::Open(path);
        for (const sql::TableInfo &table : database->GetCatalogue().Tables()) {
            const QString key = table.FindColumn(u"ProfileID")  ? u"ProfileID"_s
                                : table.FindColumn(u"BoxSetID") ? u"BoxSetID"_s
                                                                : QString();
            sql::Recordset rows = database->OpenRecordset(table.name);
            for (; !rows.Eof(); rows.MoveNext()) {
                QStringList &lines = key.isEmpty() ? content.tables[table.name] : content.profiles[rows.Text(key)];
                lines.append(table.name + u": "_s + RowText(rows));
            }
        }
        for (auto *lines : {&content.profiles, &content.tables}) {
            for (QStringList &of_one : *lines) {
                of_one.sort();
            }
        }
        return content;
    }
    static QString RowText(const sql::Recordset &rows) {
        QStringList fields;
        for (int i = 0; i < int(rows.Fields().size()); ++i) {
            if (rows.Fields()[size_t(i)].label != u"EventID") {
                fields.append(rows.IsNull(i) ? u"NULL"_s : rows.Text(i));
            }
        }
        return fields.join(u'|');
    }

    test::BatchProgram program;
};

TEST_F(ImportKillTest, TheFileIsSoundAndTheNextImportMakesItWhole) {
    StartAnew();
    QElapsedTimer timer;
    timer.start();
    qint64 written = 0;
    const auto process = ImportUntil([&] {
        written = std::max(written, Written());
        return false;
    });
    ASSERT_EQ(process->exitCode(), 0);
    int undisturbed = int(timer.elapsed());
    const Content whole = Read(program.In(u"a.mdb"_s));
    ASSERT_EQ(whole.tables.value(u"Alias"_s).isEmpty(), false) << "the collection links no names";
    ASSERT_GE(whole.profiles.size(), kProfiles);

    std::minstd_rand random(20240517);
    int deaths = 0;
    int partly = 0;
    for (int i = 0; i < Kills(); ++i) {
        // Half of the deaths by the clock, the others by what is written, since how long a start takes is chance.
        const bool by_clock = i % 2 == 0;
        const qint64 instant = std::uniform_int_distribution<qint64>(1, by_clock ? undisturbed : written)(random);
        SCOPED_TRACE("killed after " + std::to_string(instant) + (by_clock ? " ms" : " bytes"));
        StartAnew();
        timer.start();
        if (ImportAndKill([&] { return (by_clock ? timer.elapsed() : Written()) >= instant; })) {
            ++deaths;
        } else if (by_clock) {
            // The machine was busier when the whole import was measured.
            undisturbed = std::max(1, std::min(undisturbed, int(timer.elapsed())));
        }
        ASSERT_EQ(IntegrityOf(program.In(u"a.mdb"_s)), u"ok"_s);
        const Content after = Read(program.In(u"a.mdb"_s));
        for (auto profile = after.profiles.begin(); profile != after.profiles.end(); ++profile) {
            ASSERT_EQ(profile.value(), whole.profiles.value(profile.key())) << qPrintable(profile.key());
        }
        partly += !after.profiles.isEmpty() && after.profiles.size() < whole.profiles.size() ? 1 : 0;
        ImportToTheEnd();
        const Content again = Read(program.In(u"a.mdb"_s));
        ASSERT_EQ(again.profiles, whole.profiles);
        for (auto table = whole.tables.begin(); table != whole.tables.end(); ++table) {
            ASSERT_EQ(again.tables.value(table.key()), table.value()) << qPrintable(table.key());
        }
        ASSERT_EQ(again.tables.size(), whole.tables.size());
    }
    RecordProperty("deaths", deaths);
    RecordProperty("partly_imported", partly);
    EXPECT_GT(deaths, Kills() / 2) << "the program was done before it was killed";
    EXPECT_GT(partly, 0) << "no instant fell within the import";
}

} // namespace
} // namespace ostrand
