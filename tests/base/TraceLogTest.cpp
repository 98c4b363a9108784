#include "base/TraceLog.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

struct LineCase {
    const char *name;
    std::uint32_t mask;
    int level;
    double seconds;
    const char *line;
};

class TraceLineTest : public ::testing::TestWithParam<LineCase> {};

TEST_P(TraceLineTest, WritesTheLineOfItsLevel) {
    test::TempDir dir;
    TraceLog log;
    log.Mask = GetParam().mask;
    log.path = dir / QStringLiteral("Debug.log");
    log.seconds = [] { return GetParam().seconds; };
    log.Write(QStringLiteral("Routine(a)"), GetParam().level);
    if (*GetParam().line == '\0')
        EXPECT_FALSE(dir.Has(QStringLiteral("Debug.log")));
    else
        EXPECT_EQ(dir.Read(QStringLiteral("Debug.log")), QByteArray(GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(
    Levels, TraceLineTest,
    ::testing::Values(LineCase{"Entry", 2, 2, 0, "Enter:    Routine(a)\r\n"},
                      LineCase{"Exit", 4, 4, 0, "Exit:     Routine(a)\r\n"},
                      LineCase{"Info", 16, 16, 0, "Info:     Routine(a)\r\n"},
                      LineCase{"Error", 1, 1, 0, "Error:    Routine(a)\r\n"},
                      LineCase{"LastMatchWins", 0x1F, 7, 1, "Error:    1        : Routine(a)\r\n"},
                      LineCase{"InfoBeatsEntryAndExit", 0x16, 0x16, 0, "Info:     Routine(a)\r\n"},
                      LineCase{"AllBitsAreNeeded", 2, 3, 0, ""}, LineCase{"MaskedLevelIsSilent", 1, 2, 0, ""},
                      LineCase{"FreshLogMaskAloneIsSilent", 0x80000000u, 1, 0, ""},
                      LineCase{"TimeIsCutToEight", 10, 2, 43200.12567, "Enter:    43200.12 : Routine(a)\r\n"},
                      LineCase{"TimeIsPadded", 10, 2, 5.25, "Enter:    5.25     : Routine(a)\r\n"},
                      LineCase{"NoLevelNoPrefix", 1, 0, 0, "Routine(a)\r\n"}),
    [](const auto &info) { return info.param.name; });

TEST(TraceLogTest, AppendsInUtf8) {
    test::TempDir dir;
    TraceLog log;
    log.path = dir / QStringLiteral("Debug.log");
    log.Write(QStringLiteral("eins"), kTraceError);
    log.Write(QString::fromUtf8("zwölf"), kTraceError);
    EXPECT_EQ(dir.Read(QStringLiteral("Debug.log")), QByteArray("Error:    eins\r\nError:    zw\xC3\xB6lf\r\n"));
}

TEST(TraceLogTest, IgnoresAFileThatCannotBeWritten) {
    test::TempDir dir;
    TraceLog log;
    log.path = dir / QStringLiteral("missing/Debug.log");
    log.Write(QStringLiteral("x"), kTraceError);
    EXPECT_FALSE(dir.Has(QStringLiteral("missing")));
}

} // namespace
} // namespace ostrand
