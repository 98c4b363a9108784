#include "base/IniFile.h"

#include "sql/ForkedChild.h"
#include "support/TempDir.h"

#include <QDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

struct FindCase {
    const char *name;
    const char *text;
    const char *key;
    const char *value;
};

class IniFindTest : public ::testing::TestWithParam<FindCase> {};

TEST_P(IniFindTest, FindsInSectionMain) {
    const FindCase &c = GetParam();
    EXPECT_EQ(IniFile::Find(Text(c.text), Text("Main"), Text(c.key), Text("preset")), Text(c.value));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, IniFindTest,
    ::testing::Values(FindCase{"EmptyFile", "", "A", "preset"}, FindCase{"Plain", "[Main]\r\nA=1\r\nB=2\r\n", "A", "1"},
                      FindCase{"LastLineWithoutBreak", "[Main]\r\nA=1", "A", "1"},
                      FindCase{"EmptyValueIsNotThePreset", "[Main]\r\nA=\r\nB=2", "A", ""},
                      FindCase{"MissingKey", "[Main]\r\nB=2", "A", "preset"},
                      FindCase{"MissingSection", "[Window]\r\nA=1", "A", "preset"},
                      FindCase{"KeyOfALaterSectionDoesNotCount", "[Main]\r\nB=2\r\n[Window]\r\nA=1", "A", "preset"},
                      FindCase{"KeyOfAnEarlierSectionDoesNotCount", "[Window]\r\nA=9\r\n[Main]\r\nA=1", "A", "1"},
                      FindCase{"SectionInCapitals", "[MAIN]\r\nA=1", "A", "1"},
                      FindCase{"KeyIgnoresCase", "[Main]\r\nabc=1", "ABC", "1"},
                      FindCase{"ValueWithEqualsSign", "[Main]\r\nA=x=y=z\r\n", "A", "x=y=z"},
                      FindCase{"ValueIsNotTrimmed", "[Main]\r\nA=  x \r\n", "A", "  x "},
                      FindCase{"NoComments", "[Main]\r\n;A=0\r\nA=1;2\r\n", "A", "1;2"},
                      FindCase{"BracketInsideALineDoesNotEndTheSection", "[Main]\r\nB=x[y]\r\nA=1", "A", "1"},
                      FindCase{"BracketBehindALoneLineFeedDoesNotEndTheSection", "[Main]\r\nB=x\n[Other]\r\nA=1", "A",
                               "1"},
                      FindCase{"KeyMustStartItsLine", "[Main]\r\nBA=0\r\nA=1", "A", "1"},
                      FindCase{"FirstOfTwo", "[Main]\r\nA=1\r\nA=2", "A", "1"}),
    [](const auto &info) { return info.param.name; });

struct ReplaceCase {
    const char *name;
    const char *before;
    const char *key;
    const char *value;
    const char *after;
};

class IniReplaceTest : public ::testing::TestWithParam<ReplaceCase> {};

TEST_P(IniReplaceTest, WritesInSectionMain) {
    const ReplaceCase &c = GetParam();
    EXPECT_EQ(IniFile::Replaced(Text(c.before), Text("Main"), Text(c.key), Text(c.value)), Text(c.after));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, IniReplaceTest,
    ::testing::Values(
        ReplaceCase{"FirstWrite", "", "A", "1", "[Main]\r\nA=1"},
        ReplaceCase{"NewSectionBehindABreak", "[W]\r\nB=2\r\n", "A", "1", "[W]\r\nB=2\r\n[Main]\r\nA=1"},
        ReplaceCase{"NewSectionAddsABreak", "[W]\r\nB=2", "A", "1", "[W]\r\nB=2\r\n[Main]\r\nA=1"},
        ReplaceCase{"ReplacesTheLine", "[Main]\r\nA=1\r\nB=2", "A", "3", "[Main]\r\nA=3\r\nB=2"},
        ReplaceCase{"NewSpellingOfTheKey", "[MAIN]\r\nabc=1\r\nB=2", "Abc", "3", "[MAIN]\r\nAbc=3\r\nB=2"},
        ReplaceCase{"AddsBehindTheSection", "[Main]\r\nA=1\r\n[W]\r\nC=3", "B", "2",
                    "[Main]\r\nA=1\r\nB=2\r\n[W]\r\nC=3"},
        ReplaceCase{"KeepsOrderAndExtraLines", "[Main]\r\n; note\r\n\r\nA=1\r\nB=2\r\n[W]\r\nC=3", "A", "9",
                    "[Main]\r\n; note\r\n\r\nA=9\r\nB=2\r\n[W]\r\nC=3"},
        ReplaceCase{"EmptyValue", "[Main]\r\nA=1", "A", "", "[Main]\r\nA="},
        ReplaceCase{"EachMatchingLine", "[Main]\r\nA=1\r\na=2", "A", "3", "[Main]\r\nA=3\r\nA=3"},
        ReplaceCase{"OtherSectionsStay", "[W]\r\nA=1\r\n[Main]\r\nA=2", "A", "3", "[W]\r\nA=1\r\n[Main]\r\nA=3"},
        ReplaceCase{"KeepsTheBreakAtTheEnd", "[Main]\r\nA=1\r\n", "A", "2", "[Main]\r\nA=2\r\n"},
        ReplaceCase{"EmptyLastLineStaysALine", "[Main]\r\nA=1\r\n", "B", "2", "[Main]\r\nA=1\r\n\r\nB=2"}),
    [](const auto &info) { return info.param.name; });

TEST(IniFileTest, MissingFileGivesThePresetAndIsCreatedByTheFirstWrite) {
    test::TempDir dir;
    const IniFile ini(dir / Text("Settings.ini"));
    EXPECT_EQ(ini.Get(Text("Main"), Text("A"), Text("p")), Text("p"));
    ini.Set(Text("Main"), Text("A"), Text("ä€"));
    EXPECT_EQ(ini.Get(Text("main"), Text("a"), {}), Text("ä€"));
    EXPECT_EQ(dir.Read(Text("Settings.ini")), QByteArray("[Main]\r\nA=\xC3\xA4\xE2\x82\xAC"));
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files | QDir::Hidden), QStringList(Text("Settings.ini")));
}

TEST(IniFileTest, ReadsTheOldCodePageAndWritesUtf8) {
    test::TempDir dir;
    const IniFile ini(dir.Write(Text("Settings.ini"), "[Main]\r\nA=\xE4\x80\r\nB=1"));
    EXPECT_EQ(ini.Get(Text("Main"), Text("A"), {}), Text("ä€"));
    ini.Set(Text("Main"), Text("B"), Text("2"));
    EXPECT_EQ(dir.Read(Text("Settings.ini")), QByteArray("[Main]\r\nA=\xC3\xA4\xE2\x82\xAC\r\nB=2"));
}

TEST(IniFileTest, IgnoresAFileThatCannotBeWritten) {
    test::TempDir dir;
    const IniFile ini(dir / Text("missing/Settings.ini"));
    ini.Set(Text("Main"), Text("A"), Text("1"));
    EXPECT_EQ(ini.Get(Text("Main"), Text("A"), Text("p")), Text("p"));
}

#ifdef Q_OS_UNIX
TEST(IniFileTest, DoesNotReplaceWhatItCannotRead) {
    test::TempDir dir;
    const QByteArray content = "[Main]\r\nA=1\r\nB=2";
    const QString path = dir.Write(Text("Settings.ini"), content);
    ASSERT_EQ(::chmod(dir.Path().toUtf8(), 0777), 0);
    ASSERT_EQ(::chmod(path.toUtf8(), 0), 0);
    EXPECT_EQ(sql::testing::AsNobody([&] {
                  const IniFile ini(path);
                  ini.Set(Text("Main"), Text("A"), Text("3"));
                  return ini.Get(Text("Main"), Text("B"), Text("p")) == Text("p") ? 0 : 1;
              }),
              0);
    ASSERT_EQ(::chmod(path.toUtf8(), 0600), 0);
    EXPECT_EQ(dir.Read(Text("Settings.ini")), content);
}
#endif

TEST(IniFileTest, EveryWrittenValueReadsBack) {
    const std::vector<QString> values = {Text(""),  Text("="),     Text("a=b"), Text("[x]"),
                                         Text(" "), Text("\"q\""), Text("日本")};
    QString text;
    for (size_t i = 0; i < values.size(); ++i)
        text = IniFile::Replaced(text, Text(i % 2 == 0 ? "Main" : "Window"), QStringLiteral("Key%1").arg(i), values[i]);
    for (size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(IniFile::Find(text, Text(i % 2 == 0 ? "Main" : "Window"), QStringLiteral("Key%1").arg(i), Text("?")),
                  values[i]);
}

} // namespace
} // namespace ostrand
