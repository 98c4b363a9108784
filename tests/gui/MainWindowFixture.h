// The main window on the sample collection, with scripted services.
#pragma once

#include "browser/Browser.h"
#include "browser/ui/TitleListView.h"
#include "browser/ui/frmMain.h"
#include "collection_files/ProfilerImport.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QAction>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

namespace ostrand::test {

/// A database with the sample collection, made once for all tests of the program.
inline QString SampleDatabase() {
    static const TempDir folder;
    const QString path = folder / QStringLiteral("sample.mdb");
    if (!QFile::exists(path)) {
        TestServices services;
        Session session(services.services);
        CreateCollectionDatabase(session, path);
        session.Profiler3 = true;
        WriteDbInfo(session, QStringLiteral("Profiler3"), QStringLiteral("True"));
        services.dialogs.ExpectMessage({}); // where covers are looked for
        const QString samples = QString::fromUtf8(OSTRAND_SOURCE_DIR) + QStringLiteral("/resources/samples/");
        EXPECT_TRUE(ImportProfilerData(session, samples + QStringLiteral("collection.xml")));
        WriteDbInfo(session, QStringLiteral("ShowLoanDueOnStartUp"), QStringLiteral("0"));
        WriteDbInfo(session, QStringLiteral("ShowToolbar"), QStringLiteral("True"));
        WriteDbInfo(session, QStringLiteral("CoverPath"), samples + QStringLiteral("images/covers/"));
        session.Database->Execute(u"INSERT INTO TVSeries (SeriesID, OriginalTitle, Title, SortTitle) VALUES ('S1', '', "
                                  u"'The Attic', 'Attic')");
        session.Database->Execute(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES "
                                  u"('S11.1', 'S1', '1', '1', 'Dust')");
        session.Database->Execute(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES "
                                  u"('S12.1', 'S1', '2', '1', 'More Dust')");
    }
    return path;
}

class MainWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        database = services.folders.dir / QStringLiteral("films.mdb");
        ASSERT_TRUE(QFile::copy(SampleDatabase(), database));
    }

    /// Starts the program on the database; `settle` changes it before.
    void Start(const QStringList &statements = {}) {
        if (!statements.isEmpty()) {
            const auto file = sql::Database::Open(database);
            for (const QString &statement : statements) {
                file->Execute(statement);
            }
        }
        main = std::make_unique<frmMain>(browser);
        ASSERT_TRUE(main->Load(database));
        QCoreApplication::processEvents();
    }
    void TearDown() override {
        if (main) {
            main->close();
            main.reset();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <typename T>
    T *Control(const char *name) {
        T *found = main->findChild<T *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    TitleListView *List() { return Control<TitleListView>("listSeries"); }
    QAction *Action(const QString &name) { return main->findChild<QAction *>(name); }
    void Trigger(const char *name) {
        QAction *action = Action(QLatin1String(name));
        ASSERT_TRUE(action) << name;
        ASSERT_TRUE(action->isEnabled()) << name;
        action->trigger();
    }

    /// The titles that the list shows, as they stand in it.
    QStringList Titles() {
        QStringList titles;
        for (int row = 0; row < List()->model()->rowCount(); ++row) {
            titles.append(List()->model()->index(row, 0).data().toString());
        }
        return titles;
    }
    int RowOf(const QString &title) {
        const QStringList titles = Titles();
        for (int row = 0; row < titles.size(); ++row) {
            if (titles[row].trimmed() == title) {
                return row;
            }
        }
        return -1;
    }
    void ClickRow(int row) {
        List()->scrollTo(List()->model()->index(row, 0));
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                          List()->visualRect(List()->model()->index(row, 0)).center());
    }
    QString Selected() { return List()->currentIndex().siblingAtColumn(0).data().toString().trimmed(); }

    TestServices services;
    Session session{services.services};
    Browser browser{session};
    QString database;
    std::unique_ptr<frmMain> main;
};

} // namespace ostrand::test
