// The disk is full, or the program dies, while the site is written.
#include "support/BatchProgram.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <thread>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProfiles = 120;
constexpr int kKills = 8;
constexpr int kPersons = 2000;

using Files = QMap<QString, QByteArray>;

class SiteDisturbedTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(QProcess::execute(QString::fromUtf8(OSTRAND_GENERATE_COLLECTION),
                                    {QString::number(kProfiles), program.In(u"c.xml"_s)}),
                  0);
        program.folder.Write(u"make.txt"_s, "createdatabase a.mdb\nimportprofilerdatabase c.xml\n");
        ASSERT_EQ(program.Run({u"--quiet"_s, u"make.txt"_s}).status, 0);
        Set("HTML_GenerateEpisodeHTML", "0");
    }

    void Set(const QByteArray &name, const QByteArray &value) {
        const QByteArray statements = "DELETE FROM DbInfo WHERE InfoName = '" + name +
                                      "';\nINSERT INTO DbInfo (InfoName, InfoValue) VALUES ('" + name + "', '" + value +
                                      "');";
        ASSERT_EQ(program.Run({u"--sql"_s, u"a.mdb"_s}, statements).status, 0);
    }
    /// So many persons of one beginning that their script is larger than what the database itself writes.
    void AddPersons() {
        const QByteArray id =
            program.Run({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"csv"_s}, "SELECT TOP 1 ProfileID FROM Profiles;")
                .output.split('\n')
                .value(1)
                .trimmed();
        ASSERT_TRUE(id.startsWith("Key_")) << id.constData();
        QByteArray statements;
        for (int i = 0; i < kPersons; ++i) {
            const QByteArray number = QByteArray::number(i);
            statements += "INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('" + id +
                          "', 'Person " + number + "', 'x', " + QByteArray::number(5000 + i) + ", true, 0);\n";
        }
        ASSERT_EQ(program.Run({u"--sql"_s, u"a.mdb"_s}, statements).status, 0);
    }
    /// What every run has to come to.
    void WriteUndisturbed() {
        QDir(program.In(u"whole"_s)).removeRecursively();
        WriteSite(u"whole"_s);
        whole = FilesOf(u"whole"_s);
        ASSERT_GE(whole.size(), kProfiles);
    }
    QStringList Commands(const QString &site) {
        QDir().mkpath(program.In(site));
        program.folder.Write(u"site.txt"_s, "opendatabase a.mdb\nsetskin Modern\ncreatehtmlcollection " +
                                                program.In(site).toUtf8() + '\n');
        return {u"--quiet"_s, u"site.txt"_s};
    }
    void WriteSite(const QString &site) {
        const test::BatchResult result = program.Run(Commands(site));
        ASSERT_EQ(result.status, 0) << result.output.constData() << result.errors.constData();
    }
    /// All files of a site, hidden ones too; the minute of the run is left out.
    Files FilesOf(const QString &site) const {
        static const QRegularExpression minute(u"[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}"_s);
        Files files;
        const QDir folder(program.In(site));
        QDirIterator paths(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (paths.hasNext()) {
            const QString path = paths.next();
            const QString name = folder.relativeFilePath(path);
            const QByteArray content = test::ReadTestFile(path);
            files[name] = name == "start.html"_L1 ? QString::fromUtf8(content).remove(minute).toUtf8() : content;
        }
        return files;
    }
    void ExpectWhole(const QString &site) {
        const Files files = FilesOf(site);
        EXPECT_EQ(files.keys(), whole.keys());
        for (auto file = whole.begin(); file != whole.end(); ++file) {
            EXPECT_TRUE(files.value(file.key()) == file.value()) << qPrintable(file.key());
        }
    }
    /// Each file has its place whole or not at all.
    void ExpectNoHalfFile(const QString &site) {
        const Files files = FilesOf(site);
        for (auto file = files.begin(); file != files.end(); ++file) {
            if (!QFileInfo(file.key()).fileName().startsWith(u".ostrand-part"_s)) {
                EXPECT_TRUE(file.value() == whole.value(file.key())) << qPrintable(file.key());
            }
        }
    }
    qint64 LargestIn(const QString &folder) const {
        qint64 largest = 0;
        for (const QFileInfo &file : QDir(program.In(u"whole/"_s + folder)).entryInfoList(QDir::Files)) {
            largest = std::max(largest, file.size());
        }
        return largest;
    }

    test::BatchProgram program;
    Files whole;
};

TEST_F(SiteDisturbedTest, ASecondRunOverAWholeSiteChangesNothing) {
    WriteUndisturbed();
    WriteSite(u"whole"_s);
    ExpectWhole(u"whole"_s);
}

TEST_F(SiteDisturbedTest, AFullDiskIsToldAndLeavesNoHalfFile) {
    AddPersons();
    const struct {
        QString folder; ///< the largest file there has no room
        const char *crosslinks;
        bool pages; ///< some are written
    } cases[] = {{u"crosslink"_s, "1", false}, {u"Profiles"_s, "0", true}};
    for (const auto &c : cases) {
        SCOPED_TRACE(qPrintable(c.folder));
        Set("HTML_GenerateCrosslinks", c.crosslinks);
        WriteUndisturbed();
        QDir(program.In(u"site"_s)).removeRecursively();
        program.file_limit = LargestIn(c.folder) - 1;
        const test::BatchResult result = program.Run(Commands(u"site"_s));
        program.file_limit = 0;
        EXPECT_NE(result.status, 0);
        const QByteArray told = "CreateOfflineHTML: " + program.In(u"site/"_s + c.folder).toUtf8() + '/';
        EXPECT_TRUE(result.output.contains(told)) << result.output.constData();
        EXPECT_TRUE(result.output.contains("File too large")) << result.output.constData();
        EXPECT_EQ(result.output.count('\n'), 1) << "the run ends there: " << result.output.constData();
        EXPECT_FALSE(program.folder.Has(u"site/list.html"_s));
        EXPECT_EQ(!QDir(program.In(u"site/Profiles"_s)).isEmpty(), c.pages);
        ExpectNoHalfFile(u"site"_s);
        EXPECT_TRUE(FilesOf(u"site"_s).keys().filter(u".ostrand-part"_s).isEmpty());
        WriteSite(u"site"_s);
        ExpectWhole(u"site"_s);
    }
}

#ifdef Q_OS_UNIX
TEST_F(SiteDisturbedTest, TheRunAfterADeathMakesItWhole) {
    WriteUndisturbed();
    QElapsedTimer timer;
    timer.start();
    WriteSite(u"site"_s);
    int undisturbed = int(timer.elapsed());
    std::minstd_rand random(20240517);
    int deaths = 0;
    int partly = 0;
    for (int i = 0; i < kKills; ++i) {
        const int instant = std::uniform_int_distribution<int>(undisturbed / 8, undisturbed)(random);
        SCOPED_TRACE("killed after " + std::to_string(instant) + " ms");
        QDir(program.In(u"site"_s)).removeRecursively();
        timer.start();
        const auto process = program.Start(Commands(u"site"_s));
        while (timer.elapsed() < instant && !process->waitForFinished(0)) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        if (process->state() != QProcess::NotRunning) {
            ::kill(pid_t(process->processId()), SIGKILL);
            process->waitForFinished(-1);
            ++deaths;
        } else {
            // The machine was busier when the whole run was measured.
            undisturbed = std::min(undisturbed, int(timer.elapsed()));
        }
        const qsizetype left = FilesOf(u"site"_s).size();
        partly += left > 0 && left < whole.size() ? 1 : 0;
        ExpectNoHalfFile(u"site"_s);
        WriteSite(u"site"_s);
        ExpectWhole(u"site"_s);
    }
    RecordProperty("deaths", deaths);
    RecordProperty("partly_written", partly);
    EXPECT_GT(deaths, kKills / 2) << "the program was done before it was killed";
    EXPECT_GT(partly, 0) << "no instant fell within the writing";
}
#endif

} // namespace
} // namespace ostrand
