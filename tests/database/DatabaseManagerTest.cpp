// The list of databases and what a user does with it: every question, message and edge.
#include "database/DatabaseManager.h"

#include "CollectionFixture.h"
#include "shell/Settings.h"
#include "sql/ForkedChild.h"
#include "sql/LockFile.h"

#include <QCryptographicHash>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

class ManagerTest : public CollectionTest {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        session.DatabasePath = folder_.Path();
        session.window.EnableDBMenues = [this](bool on) { menus << on; };
    }

    /// A closed collection of an owner.
    void Make(const QString &name, const QString &owner = {}, const QString &schema = {}) {
        const auto open = std::move(session.Database);
        Create(name + u".mdb"_s);
        WriteDbInfo(session, u"Owner"_s, owner);
        if (!schema.isEmpty()) {
            WriteDbInfo(session, u"Schema"_s, schema);
        }
        session.Database.reset();
    }

    void OpenBefore(const QString &name) {
        if (!folder_.Has(name + u".mdb"_s)) {
            Make(name, u"Ann Lee"_s);
        }
        ASSERT_TRUE(OpenCollectionDatabase(session, Path(name + u".mdb"_s)));
    }

    static QStringList List(const DatabaseManager &manager) {
        QStringList lines;
        for (int row = 0; row < manager.rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < DatabaseManager::Size; ++column) {
                texts << manager.index(row, column).data().toString();
            }
            lines << texts.join(u'|');
        }
        return lines;
    }

    QString OwnerOf(const QString &name) {
        session.Database = sql::Database::Open(Path(name + u".mdb"_s));
        const QString owner = ReadDbInfo(session, u"Owner"_s, {});
        session.Database.reset();
        return owner;
    }

    QHash<QString, QByteArray> Digests() const {
        QHash<QString, QByteArray> digests;
        const QDir dir(folder_.Path());
        for (const QString &file : dir.entryList(QDir::Files | QDir::Hidden)) {
            digests[file] = QCryptographicHash::hash(folder_.Read(file), QCryptographicHash::Sha256);
        }
        return digests;
    }

    void ExpectMissingBefore() {
        Expect(u"Previous database doesn't exist anymore!"_s, u"Database missing"_s, MessageIcon::Warning);
    }
    void ExpectDelete(const QString &name, MessageAnswer answer) {
        services.dialogs.ExpectMessage(u"Do you really want to delete database "_s + name + u'?', answer,
                                       u"Delete database?"_s);
    }
    void ExpectRename(const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Enter new name"_s, answer, u"New Database name"_s);
    }
    void ExpectNew(const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Enter name of new database:"_s, answer, u"New database"_s);
    }
    void ExpectOwner(const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Enter name of collection owner"_s, answer, u"Database Owner"_s);
    }

    QList<bool> menus;
};

using FileWithoutInfos = std::pair<const char *, QByteArray>;
class FaultyFileTest : public ManagerTest, public testing::WithParamInterface<FileWithoutInfos> {};

QByteArray ForeignDatabase() {
    QByteArray header("SQLite format 3\0", 16);
    header += QByteArray("\x10\x00\x01\x01\x00\x40\x20\x20", 8);
    return header + QByteArray(8192 - header.size(), '\0');
}

} // namespace

TEST_F(ManagerTest, ListsEachDatabaseWithOwnerSchemaAndSize) {
    Make(u"zebra"_s, u"Ann Lee"_s);
    Make(u"Äpfel"_s, u"Bo"_s, u"68"_s);
    Make(u"newer"_s, u"Cy"_s, u"91"_s);
    folder_.Write(u"notes.txt"_s, "no database");
    folder_.Write(u"zebra.mdb_bak"_s, "a copy");
    QDir(folder_.Path()).mkdir(u"folder.mdb"_s);
    const DatabaseManager manager(session);
    EXPECT_EQ(List(manager), (QStringList{u"Äpfel|Bo|68"_s, u"newer|Cy|91"_s, u"zebra|Ann Lee|90"_s}));
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(manager.Folder(), folder_.Path());
}

TEST_F(ManagerTest, HasTheHeadersInTheirOrder) {
    const DatabaseManager manager(session);
    QStringList headers;
    for (int column = 0; column < manager.columnCount(); ++column) {
        headers << manager.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    EXPECT_EQ(headers, (QStringList{u"Database Name"_s, u"Owner"_s, u"Schema"_s, u"Size"_s}));
}

TEST_F(ManagerTest, SizeIsInMegabytesWithTheDecimalMarkOfTheUser) {
    static constexpr struct {
        qsizetype bytes;
        const char16_t *text;
    } kSizes[] = {{0, u"0,00 MB"}, {1048576, u"1,00 MB"}, {1572864, u"1,50 MB"}, {10485760 + 104858, u"10,10 MB"}};
    session.DecimalSeparator = u","_s;
    for (const auto &size : kSizes) {
        folder_.Write(u"x.mdb"_s, QByteArray(size.bytes, 'x'));
        const DatabaseManager manager(session);
        EXPECT_EQ(manager.index(0, DatabaseManager::Size).data().toString(), QString::fromUtf16(size.text));
    }
}

TEST_F(ManagerTest, AnExtensionInCapitalsCountsAndOpens) {
    Make(u"films"_s, u"Ann Lee"_s);
    ASSERT_TRUE(QFile::rename(Path(u"films.mdb"_s), Path(u"films.MDB"_s)));
    DatabaseManager manager(session);
    ASSERT_EQ(List(manager), QStringList(u"films|Ann Lee|90"_s));
    EXPECT_TRUE(manager.Open(0));
    EXPECT_EQ(session.DatabaseName, u"films"_s);
}

TEST_F(ManagerTest, AnEmptyFolderGivesAnEmptyListAndNothingHappensOnIt) {
    DatabaseManager manager(session);
    EXPECT_EQ(manager.rowCount(), 0);
    for (const int row : {-1, 0, 1}) {
        EXPECT_FALSE(manager.Open(row));
        manager.Compact(row);
        manager.Delete(row);
        manager.Rename(row);
        manager.ChangeOwner(row);
    }
    manager.Cancel();
    EXPECT_FALSE(session.Database);
}

INSTANTIATE_TEST_SUITE_P(, FaultyFileTest,
                         testing::Values(FileWithoutInfos{"Empty", {}}, FileWithoutInfos{"Text", "Dear diary"},
                                         FileWithoutInfos{"AnotherProgram", ForeignDatabase()},
                                         FileWithoutInfos{"OldFormat", QByteArray("\0\1\0\0Standard Jet DB\0", 20)}),
                         [](const auto &info) { return info.param.first; });

TEST_P(FaultyFileTest, IsListedByItsNameAndLeftAlone) {
    folder_.Write(u"faulty.mdb"_s, GetParam().second);
    Make(u"sound"_s, u"Ann Lee"_s);
    const auto before = Digests();
    const DatabaseManager manager(session);
    EXPECT_EQ(List(manager), (QStringList{u"faulty||"_s, u"sound|Ann Lee|90"_s}));
    EXPECT_EQ(Digests(), before);
}

TEST_P(FaultyFileTest, CannotBeOpenedNorGetAnOwnerAndTheWindowStays) {
    folder_.Write(u"faulty.mdb"_s, GetParam().second);
    const auto before = Digests();
    DatabaseManager manager(session);
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(manager.Open(0));
    EXPECT_FALSE(session.Database);
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    manager.ChangeOwner(0);
    EXPECT_EQ(Digests(), before);
    EXPECT_EQ(List(manager), QStringList(u"faulty||"_s));
}

TEST_P(FaultyFileTest, CanBeRenamedAndDeleted) {
    folder_.Write(u"faulty.mdb"_s, GetParam().second);
    DatabaseManager manager(session);
    ExpectRename(u"broken"_s);
    manager.Rename(0);
    EXPECT_EQ(folder_.Read(u"broken.mdb"_s), GetParam().second);
    ExpectDelete(u"broken"_s, MessageAnswer::Yes);
    manager.Delete(0);
    EXPECT_EQ(Digests().size(), 0);
}

TEST_F(ManagerTest, ADatabaseThatWasCutOffIsListed) {
    Make(u"cut"_s, u"Ann Lee"_s);
    QFile file(Path(u"cut.mdb"_s));
    ASSERT_TRUE(file.resize(file.size() / 2));
    const auto before = Digests();
    const DatabaseManager manager(session);
    EXPECT_EQ(List(manager), QStringList(u"cut||"_s));
    EXPECT_EQ(Digests(), before);
}

TEST_F(ManagerTest, ListingUpgradesNothing) {
    Make(u"old"_s, u"Ann Lee"_s, u"68"_s);
    Make(u"new"_s, u"Ann Lee"_s, u"91"_s);
    const auto before = Digests();
    DatabaseManager manager(session);
    manager.ListDatabases();
    EXPECT_EQ(Digests(), before);
}

TEST_F(ManagerTest, ManyFilesAreAllListed) {
    for (int i = 0; i < 300; ++i) {
        folder_.Write(u"file%1.mdb"_s.arg(i), "x");
    }
    EXPECT_EQ(DatabaseManager(session).rowCount(), 300);
}

#ifdef Q_OS_UNIX
TEST_F(ManagerTest, WhatIsNoFileIsNotRead) {
    ASSERT_EQ(mkfifo(qPrintable(Path(u"pipe.mdb"_s)), 0600), 0);
    ASSERT_TRUE(QFile::link(Path(u"nowhere"_s), Path(u"link.mdb"_s)));
    EXPECT_EQ(DatabaseManager(session).rowCount(), 0);
}

TEST_F(ManagerTest, AFileInAFolderThatCannotBeWrittenIsListedByItsName) {
    Make(u"films"_s, u"Ann Lee"_s);
    ASSERT_TRUE(QFile::setPermissions(folder_.Path(), QFile::Permissions(0x5555)));
    EXPECT_EQ(sql::testing::AsNobody([this] {
                  session.Database.reset();
                  return List(DatabaseManager(session)) == QStringList(u"films||"_s) ? 0 : 1;
              }),
              0);
    QFile::setPermissions(folder_.Path(), QFile::Permissions(0x7700));
}
#endif

TEST_F(ManagerTest, AFolderThatIsGoneIsReplacedByTheDataFolder) {
    for (const QString &folder : {Path(u"gone"_s), QString()}) {
        session.DatabasePath = folder;
        const DatabaseManager manager(session);
        EXPECT_EQ(session.DatabasePath, session.DataFolder);
        EXPECT_EQ(manager.Folder(), session.DataFolder);
    }
}

TEST_F(ManagerTest, SortsByEachColumnAndSelectedRowsFollow) {
    Make(u"b"_s, u"Zoe"_s, u"9"_s);
    Make(u"A"_s, u"Max"_s, u"90"_s);
    Make(u"c"_s, u"ada"_s, u"10"_s);
    folder_.Write(u"d.mdb"_s, "x");
    DatabaseManager manager(session);
    const auto names = [&] {
        QString text;
        for (int row = 0; row < manager.rowCount(); ++row) {
            text += manager.index(row, 0).data().toString();
        }
        return text;
    };
    const QPersistentModelIndex selected = manager.index(manager.RowOf(u"B"_s), 0);
    static constexpr struct {
        int column;
        Qt::SortOrder order;
        const char16_t *names;
    } kSorts[] = {
        {DatabaseManager::Name, Qt::DescendingOrder, u"dcbA"},  {DatabaseManager::Owner, Qt::AscendingOrder, u"dcAb"},
        {DatabaseManager::Schema, Qt::AscendingOrder, u"dbcA"}, {DatabaseManager::Schema, Qt::DescendingOrder, u"Acbd"},
        {DatabaseManager::Size, Qt::DescendingOrder, u"Acbd"},  {DatabaseManager::Name, Qt::AscendingOrder, u"Abcd"},
    };
    for (const auto &sort : kSorts) {
        manager.sort(sort.column, sort.order);
        EXPECT_EQ(names(), QString::fromUtf16(sort.names)) << sort.column;
        EXPECT_EQ(selected.data().toString(), u"b"_s);
    }
}

TEST_F(ManagerTest, OpeningTheWindowSavesAndClosesTheOpenDatabase) {
    OpenBefore(u"films"_s);
    session.view.LastTab = 4;
    session.view.LastSelectedItem = u"Key_7|2"_s;
    menus.clear();
    DatabaseManager manager(session);
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(manager.PreviousName(), u"films"_s);
    EXPECT_EQ(menus, QList<bool>{false});
    EXPECT_FALSE(sql::LockFile::IsHeldByOther(Path(u"films.mdb"_s)));
    EXPECT_FALSE(folder_.Has(u"films.ldb"_s));
    manager.Cancel();
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(menus, (QList<bool>{false, true}));
    EXPECT_EQ(ReadDbInfo(session, u"LastTab"_s, {}), u"4"_s);
    EXPECT_EQ(ReadDbInfo(session, u"LastSelectedItem"_s, {}), u"Key_7"_s);
}

TEST_F(ManagerTest, OpenTakesAnotherDatabaseAndKeepsTheSettingsOfEachApart) {
    Make(u"other"_s, u"Bo"_s);
    OpenBefore(u"films"_s);
    session.view.LastTab = 4;
    DatabaseManager manager(session);
    EXPECT_TRUE(manager.Open(manager.RowOf(u"other"_s)));
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(session.DatabaseName, u"other"_s);
    EXPECT_EQ(session.DatabaseFile, Path(u"other.mdb"_s));
    EXPECT_EQ(session.view.LastTab, 1);
    EXPECT_EQ(GetINIString(session, u"Main"_s, u"DatabasePath"_s, {}), folder_.Path());
}

TEST_F(ManagerTest, ANewerDatabaseIsListedAndOnlyOpeningItFails) {
    Make(u"newer"_s, u"Cy"_s, u"91"_s);
    OpenBefore(u"films"_s);
    DatabaseManager manager(session);
    Expect(u"Database version too high!\r\nPlease update the program with the latest version."_s, {},
           MessageIcon::Critical);
    EXPECT_FALSE(manager.Open(manager.RowOf(u"newer"_s)));
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(session.DatabaseTooNew);
    manager.Cancel();
    EXPECT_EQ(session.DatabaseName, u"films"_s);
}

TEST_F(ManagerTest, ANewerDatabaseThatTheStartLeftOpenIsNotTheOneToGoBackTo) {
    Make(u"newer"_s, u"Cy"_s, u"91"_s);
    Expect({}, {}, MessageIcon::Critical);
    EXPECT_FALSE(OpenCollectionDatabase(session, Path(u"newer.mdb"_s)));
    const auto before = Digests();
    DatabaseManager manager(session);
    EXPECT_EQ(manager.PreviousName(), QString());
    manager.Cancel();
    EXPECT_FALSE(session.Database);
}

TEST_F(ManagerTest, RefusingAnUpgradeClosesTheWindowToEndTheProgram) {
    Make(u"old"_s, u"Ann Lee"_s, u"60"_s);
    DatabaseManager manager(session);
    services.dialogs.ExpectMessage({}, MessageAnswer::No);
    EXPECT_TRUE(manager.Open(0));
    EXPECT_TRUE(session.EndProgram);
    EXPECT_FALSE(session.Database);
}

TEST_F(ManagerTest, CancelAtTheStartOpensNothing) {
    Make(u"films"_s);
    DatabaseManager(session).Cancel();
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(session.EndProgram);
}

TEST_F(ManagerTest, ExitEndsTheProgramAndOpensNothing) {
    OpenBefore(u"films"_s);
    DatabaseManager(session).Exit();
    EXPECT_TRUE(session.EndProgram);
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(session.DatabaseFile, Path(u"films.mdb"_s)) << "the next start opens it again";
}

TEST_F(ManagerTest, NewMakesADatabaseThatStaysOpen) {
    OpenBefore(u"films"_s);
    DatabaseManager manager(session);
    ExpectNew(u" Ser:ies?/.. "_s);
    EXPECT_TRUE(manager.New());
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(session.DatabaseFile, Path(u"Ser -ies...mdb"_s));
    EXPECT_EQ(ReadDbInfo(session, u"Owner"_s, {}), u"tester"_s);
}

TEST_F(ManagerTest, NewWithoutANameDoesNothing) {
    DatabaseManager manager(session);
    for (const std::optional<QString> &answer :
         {std::optional<QString>(), std::optional(u""_s), std::optional(u"  "_s), std::optional(u"?*<>/\\"_s)}) {
        ExpectNew(answer);
        EXPECT_FALSE(manager.New());
    }
    EXPECT_EQ(Digests().size(), 0);
}

TEST_F(ManagerTest, NewRefusesANameThatIsTakenInAnyCase) {
    Make(u"films"_s, u"Ann Lee"_s);
    DatabaseManager manager(session);
    for (const QString &name : {u"films"_s, u"FILMS"_s}) {
        ExpectNew(name);
        Expect(u"Database with this name already exists!"_s, {}, MessageIcon::Warning);
        EXPECT_FALSE(manager.New());
        EXPECT_FALSE(session.Database);
        EXPECT_EQ(List(manager), QStringList(u"films|Ann Lee|90"_s));
    }
}

TEST_F(ManagerTest, NewWithANameTooLongIsToldAndTheWindowStays) {
    DatabaseManager manager(session);
    ExpectNew(QString(300, u'x'));
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(manager.New());
    EXPECT_EQ(manager.rowCount(), 0);
}

TEST_F(ManagerTest, CompactReadsTheSizeAgain) {
    Create(u"films.mdb"_s);
    for (int i = 0; i < 40; ++i) {
        WriteDbInfo(session, u"Filler%1"_s.arg(i), QString(50'000, u'x'));
    }
    Run(u"DELETE FROM DbInfo WHERE InfoName LIKE 'Filler*'");
    session.Database.reset();
    DatabaseManager manager(session);
    const QString before = manager.index(0, DatabaseManager::Size).data().toString();
    int changes = 0;
    QObject::connect(&manager, &QAbstractItemModel::dataChanged, [&] { ++changes; });
    manager.Compact(0);
    const QString after = manager.index(0, DatabaseManager::Size).data().toString();
    EXPECT_GT(before.split(u' ').first().toDouble(), 1.5);
    EXPECT_LT(after.split(u' ').first().toDouble(), 1.0);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(Digests().keys(), QStringList(u"films.mdb"_s));
}

TEST_F(ManagerTest, DeleteAsksAndRemovesTheFileWithItsRow) {
    Make(u"a"_s);
    Make(u"b"_s);
    folder_.Write(u"a.mdb-wal"_s, "left by a crash");
    DatabaseManager manager(session);
    folder_.Write(u"a.mdb-wal"_s, "left by a crash");
    ExpectDelete(u"a"_s, MessageAnswer::No);
    manager.Delete(0);
    EXPECT_TRUE(folder_.Has(u"a.mdb"_s));
    EXPECT_EQ(services.dialogs.messages.back().neutral, MessageAnswer::No);
    ExpectDelete(u"a"_s, MessageAnswer::Yes);
    manager.Delete(0);
    EXPECT_EQ(List(manager), QStringList(u"b||90"_s));
    EXPECT_EQ(Digests().keys(), QStringList(u"b.mdb"_s));
}

TEST_F(ManagerTest, DeleteOfAFileThatIsGoneMeanwhileRemovesItsRow) {
    Make(u"a"_s);
    DatabaseManager manager(session);
    QFile::remove(Path(u"a.mdb"_s));
    ExpectDelete(u"a"_s, MessageAnswer::Yes);
    manager.Delete(0);
    EXPECT_EQ(manager.rowCount(), 0);
}

TEST_F(ManagerTest, DeleteThatTheDiskRefusesIsToldAndTheRowStays) {
    Make(u"a"_s);
    DatabaseManager manager(session);
    QFile::remove(Path(u"a.mdb"_s));
    QDir(folder_.Path()).mkdir(u"a.mdb"_s); // no file any more, so not to be removed as one
    ExpectDelete(u"a"_s, MessageAnswer::Yes);
    Expect(u"The database file cannot be deleted."_s, u"Cannot open database"_s, MessageIcon::Critical);
    manager.Delete(0);
    EXPECT_EQ(manager.rowCount(), 1);
}

TEST_F(ManagerTest, CancelAfterDeletingTheDatabaseOfBeforeTellsThatItIsGone) {
    OpenBefore(u"films"_s);
    DatabaseManager manager(session);
    ExpectDelete(u"films"_s, MessageAnswer::Yes);
    manager.Delete(0);
    ExpectMissingBefore();
    manager.Cancel();
    EXPECT_FALSE(session.Database);
}

#ifdef Q_OS_UNIX
TEST_F(ManagerTest, WhatAnotherProcessHoldsIsListedButNeitherDeletedNorRenamedNorCompacted) {
    Make(u"films"_s, u"Ann Lee"_s);
    std::unique_ptr<sql::Database> held;
    const sql::testing::WaitingChild child([&] { held = sql::Database::Open(Path(u"films.mdb"_s)); });
    ASSERT_TRUE(child.IsStarted());
    DatabaseManager manager(session);
    EXPECT_EQ(List(manager), QStringList(u"films|Ann Lee|90"_s));
    for (const auto &action : {&DatabaseManager::Delete, &DatabaseManager::Rename, &DatabaseManager::Compact}) {
        Expect(
            u"Database seems to be open in another application or instance\r\nPlease close all open instances first"_s,
            u"Open database connection"_s, MessageIcon::Warning);
        (manager.*action)(0);
    }
    EXPECT_TRUE(folder_.Has(u"films.mdb"_s));
    child.Kill();
    ExpectDelete(u"films"_s, MessageAnswer::Yes);
    manager.Delete(0);
    EXPECT_FALSE(folder_.Has(u"films.mdb"_s));
}
#endif

TEST_F(ManagerTest, RenameMovesTheFileAndKeepsItsContent) {
    Make(u"films"_s, u"Ann Lee"_s);
    Make(u"zoo"_s);
    DatabaseManager manager(session);
    ExpectRename(u"zz: Top?"_s);
    manager.Rename(0);
    EXPECT_EQ(services.dialogs.last_preset, u"films"_s);
    EXPECT_EQ(List(manager), (QStringList{u"zz - Top|Ann Lee|90"_s, u"zoo||90"_s})) << "the row stays where it is";
    EXPECT_EQ(OwnerOf(u"zz - Top"_s), u"Ann Lee"_s);
    EXPECT_EQ(Digests().size(), 2);
}

TEST_F(ManagerTest, RenameToNothingOrToTheSameNameDoesNothing) {
    Make(u"films"_s, u"Ann Lee"_s);
    const auto before = Digests();
    DatabaseManager manager(session);
    for (const std::optional<QString> &answer :
         {std::optional<QString>(), std::optional(u""_s), std::optional(u"??"_s), std::optional(u"films"_s),
          std::optional(u"FILMS"_s), std::optional(u" films "_s)}) {
        ExpectRename(answer);
        manager.Rename(0);
        EXPECT_EQ(Digests(), before);
    }
}

TEST_F(ManagerTest, RenameRefusesANameOfTheListInAnyCase) {
    Make(u"films"_s, u"Ann Lee"_s);
    Make(u"Other"_s);
    const auto before = Digests();
    DatabaseManager manager(session);
    ExpectRename(u"oTHER"_s);
    Expect(u"Database with name 'oTHER' does already exist!"_s, u"New Database name"_s, MessageIcon::Warning);
    manager.Rename(0);
    EXPECT_EQ(Digests(), before);
}

TEST_F(ManagerTest, RenameRefusesAFileThatCameMeanwhile) {
    Make(u"films"_s, u"Ann Lee"_s);
    DatabaseManager manager(session);
    folder_.Write(u"late.mdb"_s, "x");
    ExpectRename(u"late"_s);
    Expect(u"Database with name 'late' does already exist!"_s, u"New Database name"_s, MessageIcon::Warning);
    manager.Rename(0);
    EXPECT_EQ(folder_.Read(u"late.mdb"_s), "x");
    EXPECT_TRUE(folder_.Has(u"films.mdb"_s));
}

TEST_F(ManagerTest, RenameThatTheDiskRefusesIsTold) {
    Make(u"films"_s, u"Ann Lee"_s);
    DatabaseManager manager(session);
    ExpectRename(QString(300, u'x'));
    Expect(u"The database file cannot be renamed."_s, u"Cannot open database"_s, MessageIcon::Critical);
    manager.Rename(0);
    EXPECT_EQ(OwnerOf(u"films"_s), u"Ann Lee"_s);
}

TEST_F(ManagerTest, CancelGoesBackToTheDatabaseUnderItsNewName) {
    OpenBefore(u"films"_s);
    DatabaseManager manager(session);
    ExpectRename(u"movies"_s);
    manager.Rename(0);
    manager.Cancel();
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(session.DatabaseName, u"movies"_s);
}

TEST_F(ManagerTest, ANewNameTakesNoLogOfADatabaseThatIsGone) {
    Make(u"films"_s, u"Ann Lee"_s);
    folder_.Write(u"movies.mdb-wal"_s, "of another file");
    DatabaseManager manager(session);
    ExpectRename(u"movies"_s);
    manager.Rename(0);
    EXPECT_FALSE(folder_.Has(u"movies.mdb-wal"_s));
    EXPECT_EQ(OwnerOf(u"movies"_s), u"Ann Lee"_s);
}

TEST_F(ManagerTest, ChangeOwnerWritesTheSettingAndTheRow) {
    Make(u"films"_s, u"Ann Lee"_s);
    DatabaseManager manager(session);
    ExpectOwner(u"Bo O'Neil"_s);
    manager.ChangeOwner(0);
    EXPECT_EQ(services.dialogs.last_preset, u"Ann Lee"_s);
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(List(manager), QStringList(u"films|Bo O'Neil|90"_s));
    EXPECT_EQ(OwnerOf(u"films"_s), u"Bo O'Neil"_s);
    session.Database = sql::Database::Open(Path(u"films.mdb"_s));
    EXPECT_EQ(Rows(u"SELECT Comment FROM DbInfo WHERE InfoName = 'Owner'"), QStringList(u"Collection Owner"_s));
}

TEST_F(ManagerTest, ChangeOwnerCancelledChangesNothingAndAnEmptyAnswerTakesTheOwnerAway) {
    Make(u"films"_s, u"Ann Lee"_s);
    const auto before = Digests();
    DatabaseManager manager(session);
    ExpectOwner(std::nullopt);
    manager.ChangeOwner(0);
    EXPECT_EQ(Digests(), before);
    ExpectOwner(u""_s);
    manager.ChangeOwner(0);
    EXPECT_EQ(List(manager), QStringList(u"films||90"_s));
}

TEST_F(ManagerTest, ChangeOwnerUpgradesNothing) {
    Make(u"old"_s, u"Ann Lee"_s, u"68"_s);
    DatabaseManager manager(session);
    ExpectOwner(u"Bo"_s);
    manager.ChangeOwner(0);
    EXPECT_EQ(List(manager), QStringList(u"old|Bo|68"_s));
}

TEST_F(ManagerTest, SelectPathTakesAFolderAndListsIt) {
    Make(u"films"_s, u"Ann Lee"_s);
    QDir(folder_.Path()).mkdir(u"more"_s);
    folder_.Write(u"more/other.mdb"_s, "x");
    DatabaseManager manager(session);
    services.dialogs.ExpectBrowseFolder({}, u"Database Path"_s);
    manager.SelectPath();
    EXPECT_EQ(session.DatabasePath, folder_.Path());
    services.dialogs.ExpectBrowseFolder(Path(u"more"_s), u"Database Path"_s);
    manager.SelectPath();
    EXPECT_EQ(session.DatabasePath, Path(u"more"_s));
    EXPECT_EQ(List(manager), QStringList(u"other||"_s));
}

TEST_F(ManagerTest, TextsAreTranslatedByTheDatabaseThatIsLeft) {
    OpenBefore(u"films"_s);
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Owner', 'Besitzer')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Database missing', 'Datenbank fehlt')");
    Make(u"other"_s, u"Bo"_s);
    OpenBefore(u"films"_s);
    session.UseUserDefinedStrings = true;
    DatabaseManager manager(session);
    EXPECT_EQ(manager.headerData(DatabaseManager::Owner, Qt::Horizontal, Qt::DisplayRole).toString(), u"Besitzer"_s);
    EXPECT_EQ(manager.Text(u"Schema"_s), u"Schema"_s);
    ExpectDelete(u"films"_s, MessageAnswer::Yes);
    manager.Delete(0);
    Expect(u"Previous database doesn't exist anymore!"_s, u"Datenbank fehlt"_s, MessageIcon::Warning);
    manager.Cancel();
}

TEST_F(ManagerTest, AForeignDatabaseGetsNoTextsToTranslate) {
    Make(u"other"_s, u"Bo"_s);
    OpenBefore(u"films"_s);
    session.UseUserDefinedStrings = true;
    session.TraceStrings = true;
    DatabaseManager manager(session);
    ExpectOwner(u"Cy"_s);
    manager.ChangeOwner(manager.RowOf(u"other"_s));
    session.Database = sql::Database::Open(Path(u"other.mdb"_s));
    EXPECT_EQ(Rows(u"SELECT OriginalString FROM Translation"), QStringList());
}

} // namespace ostrand
