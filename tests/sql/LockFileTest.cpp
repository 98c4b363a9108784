#include "ForkedChild.h"

#include "sql/Database.h"
#include "sql/LockFile.h"
#include "sql/SqlError.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

#include <atomic>
#include <thread>

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

class LockFileTest : public ::testing::Test {
protected:
    bool Exists() const { return QFileInfo::exists(lock_path_); }
    QList<QByteArray> Lines() const {
        QFile file(lock_path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QList<QByteArray>();
    }
    void Write(const QByteArray &text) const {
        QFile file(lock_path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir directory_;
    QString path_ = directory_.filePath(u"own.mdb"_s);
    QString lock_path_ = directory_.filePath(u"own.ldb"_s);
};

TEST(LockFilePathTest, EndsBehindTheLastPoint) {
    EXPECT_EQ(LockFile::PathFor(u"/a/own.mdb"_s), u"/a/own.ldb"_s);
    EXPECT_EQ(LockFile::PathFor(u"/a/my.own.collection.mdb"_s), u"/a/my.own.collection.ldb"_s);
    EXPECT_EQ(LockFile::PathFor(u"/a.b/own"_s), u"/a.ldb"_s);
}

TEST_F(LockFileTest, StandsWhileSomebodyHolds) {
    EXPECT_EQ(LockFile::Holders(path_), QStringList());
    {
        const LockFile lock(path_);
        EXPECT_TRUE(Exists());
        ASSERT_EQ(LockFile::Holders(path_).size(), 1);
        EXPECT_TRUE(LockFile::Holders(path_).first().endsWith(u'(' + QString::number(::getpid()) + u')'));
        EXPECT_FALSE(LockFile::IsHeldByOther(path_));
    }
    EXPECT_FALSE(Exists());
}

TEST_F(LockFileTest, TwoInOneProcessAreTwoHolders) {
    auto first = std::make_unique<LockFile>(path_);
    auto second = std::make_unique<LockFile>(path_);
    EXPECT_EQ(LockFile::Holders(path_).size(), 2);
    EXPECT_NE(Lines().at(0), Lines().at(1));
    first.reset();
    EXPECT_EQ(LockFile::Holders(path_).size(), 1);
    auto third = std::make_unique<LockFile>(path_);
    EXPECT_NE(Lines().at(0), Lines().at(1));
    second.reset();
    EXPECT_TRUE(Exists());
    third.reset();
    EXPECT_FALSE(Exists());
}

TEST_F(LockFileTest, AnotherProcessHoldsUntilItIsGone) {
    WaitingChild child([&] { new LockFile(path_); });
    ASSERT_TRUE(child.IsStarted());
    EXPECT_TRUE(LockFile::IsHeldByOther(path_));
    {
        const LockFile own(path_);
        EXPECT_EQ(LockFile::Holders(path_).size(), 2);
        EXPECT_TRUE(LockFile::IsHeldByOther(path_));
    }
    EXPECT_TRUE(Exists());
    child.Kill();
    EXPECT_TRUE(Exists());
    EXPECT_FALSE(LockFile::IsHeldByOther(path_)); // it has ended, though it is still listed
    EXPECT_FALSE(Exists());
}

TEST_F(LockFileTest, HoldersThatAreGoneAreCleanedByTheNext) {
    {
        WaitingChild child([&] { new LockFile(path_); });
        ASSERT_TRUE(child.IsStarted());
    }
    EXPECT_EQ(Lines().size(), 1);
    const LockFile own(path_);
    ASSERT_EQ(Lines().size(), 1);
    EXPECT_TRUE(Lines().first().startsWith(QByteArray::number(::getpid())));
}

TEST_F(LockFileTest, AReusedProcessIdDoesNotCount) {
    const QByteArray own = QByteArray::number(::getpid());
    for (const QByteArray &text : {own + " 1 1 5 old program\n", QByteArray("garbage\n\n"), QByteArray(" \n"), own,
                                   QByteArray(), QByteArray("0  1 5 x\n"), QByteArray("-1 5 1 5 x\n")}) {
        Write(text);
        EXPECT_EQ(LockFile::Holders(path_), QStringList()) << text.toStdString();
        EXPECT_FALSE(Exists());
    }
}

TEST_F(LockFileTest, AFileThatTookThePlaceOfAHeldOneIsNotOpened) {
    const auto make = [](const QString &path) { Database::Create(path, {})->Execute(u"CREATE TABLE T (A varchar)"); };
    const QString other = directory_.filePath(u"other.mdb"_s);
    make(path_);
    make(other);
    {
        const std::unique_ptr<Database> held = Database::Open(path_, {});
        held->Execute(u"INSERT INTO T (A) VALUES ('held')");
        held->Flush();
        ASSERT_TRUE(QFile::rename(path_, directory_.filePath(u"away.mdb"_s)));
        ASSERT_TRUE(QFile::rename(other, path_));
        try {
            Database::Open(path_, {});
            ADD_FAILURE();
        } catch (const SqlError &error) {
            EXPECT_EQ(error.Code(), ErrorCode::CannotLock);
        }
    }
    EXPECT_EQ(Database::Open(path_, {})->RecordCount(u"T"), 0);
    EXPECT_EQ(Database::Open(directory_.filePath(u"away.mdb"_s), {})->RecordCount(u"T"), 1);
}

TEST_F(LockFileTest, AFolderThatTakesNoFileIsTold) {
    try {
        const LockFile lock(directory_.filePath(u"none/own.mdb"_s));
        FAIL();
    } catch (const SqlError &error) {
        EXPECT_EQ(error.Code(), ErrorCode::CannotLock);
    }
}

TEST_F(LockFileTest, AFullDiskTakesNoHolderAway) {
    const auto fails = [&](rlim_t room) {
        return InChild([&] {
                   std::signal(SIGXFSZ, SIG_IGN);
                   const rlimit limit = {room, RLIM_INFINITY}; // no file takes a byte beyond it
                   ::setrlimit(RLIMIT_FSIZE, &limit);
                   try {
                       const LockFile lock(path_);
                       return 1;
                   } catch (const SqlError &error) {
                       return error.Code() == ErrorCode::CannotLock ? 0 : 2;
                   }
               }) == 0;
    };
    EXPECT_TRUE(fails(0));
    EXPECT_FALSE(Exists());
    const LockFile own(path_);
    EXPECT_TRUE(fails(5));
    EXPECT_EQ(LockFile::Holders(path_).size(), 1);
}

TEST_F(LockFileTest, ManyComersLoseNoHolder) {
    const LockFile own(path_);
    std::atomic<int> faults = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 50; ++n) {
                const LockFile lock(path_);
                if (LockFile::Holders(path_).size() < 2) {
                    ++faults;
                }
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(faults, 0);
    EXPECT_EQ(LockFile::Holders(path_).size(), 1);
}

} // namespace
} // namespace ostrand::sql::testing
