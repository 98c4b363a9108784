#include "services/SystemServices.h"

#include "services/SystemFolders.h"
#include "support/TempDir.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <cmath>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

TEST(QtEventPumpTest, ATurnRunsWhatIsWaiting) {
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    QtEventPump().Turn();
    EXPECT_TRUE(ran);
}

TEST(SystemClockTest, TellsLocalTime) {
    const SystemClock clock;
    const QDateTime now = QDateTime::currentDateTime();
    const double days =
        double(QDate(1899, 12, 30).daysTo(now.date())) + now.time().msecsSinceStartOfDay() / 86'400'000.0;
    EXPECT_NEAR(clock.Now(), days, 5.0 / 86400);
    EXPECT_NEAR(std::fmod(clock.SecondsSinceMidnight() / 86400 - clock.Now() + std::floor(clock.Now()), 1.0), 0,
                5.0 / 86400);
    EXPECT_GE(clock.Milliseconds(), 0);
    EXPECT_LT(clock.Milliseconds(), 60'000);
}

TEST(SystemRandomTest, StaysFromZeroToBelowOne) {
    SystemRandom random;
    double least = 1;
    double greatest = 0;
    for (int i = 0; i < 1000; ++i) {
        const double number = random.Next();
        least = std::min(least, number);
        greatest = std::max(greatest, number);
    }
    EXPECT_GE(least, 0.0);
    EXPECT_LT(greatest, 1.0);
    EXPECT_LT(least, 0.2);
    EXPECT_GT(greatest, 0.8);
}

TEST(SystemFoldersTest, TempLiesInAFolderOfTheUserAlone) {
    test::TempDir dir;
    const QString temp = SystemFolders(dir.Path()).Temp();
    const QFileInfo folder(temp);
    EXPECT_EQ(folder.path(), dir.Path());
    EXPECT_EQ(folder.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                                      QFile::WriteOther | QFile::ExeOther),
              QFile::Permissions());
    EXPECT_EQ(SystemFolders(dir.Path()).Temp(), temp) << "the same one for the next program";
}

TEST(SystemFoldersTest, ATakenNameIsLeftToItsOwner) {
    test::TempDir dir;
    const QString expected = SystemFolders(dir.Path()).Temp();
    ASSERT_TRUE(QDir().rmdir(expected));
    ASSERT_TRUE(QDir().mkpath(dir / Text("elsewhere")));
    ASSERT_TRUE(QFile::link(dir / Text("elsewhere"), expected));
    const QString temp = SystemFolders(dir.Path()).Temp();
    EXPECT_NE(temp, expected) << "a link";
    EXPECT_TRUE(QFileInfo(temp).isDir());
    ASSERT_TRUE(QFile::remove(expected));
    ASSERT_TRUE(QDir().mkdir(expected));
    ASSERT_TRUE(
        QFile::setPermissions(expected, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::WriteOther));
    EXPECT_NE(SystemFolders(dir.Path()).Temp(), expected) << "others may write to it";
}

TEST(SystemFoldersTest, KnowsTheOtherFolders) {
    test::TempDir dir;
    const SystemFolders folders(dir.Path());
    EXPECT_TRUE(QFileInfo(folders.Documents()).isDir());
    EXPECT_EQ(folders.Program(), QCoreApplication::applicationDirPath());
    ASSERT_EQ(folders.Resources().size(), 3);
    EXPECT_EQ(folders.Resources()[0], folders.Program());
    EXPECT_EQ(folders.Resources()[1], folders.Program() + Text("/resources"));
    EXPECT_TRUE(folders.Resources()[2].endsWith(Text("/share/ostrand")));
    EXPECT_FALSE(folders.Resources()[2].contains(Text("..")));
    EXPECT_FALSE(folders.UserName().isEmpty());
}

TEST(SystemLocaleInfoTest, ReadsANamedLocale) {
    const SystemLocaleInfo german(Text("de-DE"));
    EXPECT_EQ(german.DecimalSeparator(), Text(","));
    EXPECT_EQ(german.DefaultLanguage(), Text("de-DE"));
    EXPECT_TRUE(german.LongDatePattern().contains(Text("MMMM"))) << qPrintable(german.LongDatePattern());
    EXPECT_TRUE(german.LongDatePattern().contains(u'd'));
    EXPECT_TRUE(german.LongDatePattern().contains(Text("yyyy")));
    const SystemLocaleInfo english(Text("en_US"));
    EXPECT_EQ(english.DecimalSeparator(), Text("."));
    EXPECT_EQ(english.DefaultLanguage(), Text("en-US"));
    EXPECT_EQ(english.LongDatePattern(), Text("dddd, MMMM d, yyyy"));
    EXPECT_EQ(SystemLocaleInfo(Text("C")).DefaultLanguage(), Text("en-US"));
}

TEST(SystemLocaleInfoTest, KnowsNamesOfLocales) {
    EXPECT_TRUE(SystemLocaleInfo::IsKnown(Text("de-DE")));
    EXPECT_TRUE(SystemLocaleInfo::IsKnown(Text("fr")));
    EXPECT_FALSE(SystemLocaleInfo::IsKnown(Text("no such locale")));
}

} // namespace
} // namespace ostrand
