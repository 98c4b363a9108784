// How values and lines of script are written.
#include "skin/ScriptWriter.h"

#include "base/Dates.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(ScriptValues, AreTextsInQuotes) {
    const struct {
        QString text;
        QString script;
    } cases[] = {
        {u""_s, u"\"\""_s},
        {u"Kite"_s, u"\"Kite\""_s},
        {u"a\"b"_s, u"\"a\\\"b\""_s},
        {u"it's"_s, u"\"it\\'s\""_s},
        {u"a\\b"_s, u"\"a\\\\b\""_s},
        {u"a\\\"b"_s, u"\"a\\\\\\\"b\""_s},
        {u"a\r\nb"_s, u"\"a\\r\\nb\""_s},
        {u"a\nb"_s, u"\"a\\r\\nb\""_s},
        {u"a\rb"_s, u"\"a\\rb\""_s},
        {u"a\r\rb\r\n"_s, u"\"a\\r\\rb\\r\\n\""_s},
        {u"a\tb"_s, u"\"a\tb\""_s},
        {u"<b>&amp;</script>"_s, u"\"<b>&amp;</script>\""_s},
        {u"a\u2028b"_s, u"\"a\u2028b\""_s},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(ScriptString(row.text), row.script) << row.text.toStdString();
    }
}

TEST(ScriptValues, AreSmallTruthValues) {
    EXPECT_EQ(ScriptFlag(true), u"true"_s);
    EXPECT_EQ(ScriptFlag(false), u"false"_s);
}

sql::Value Days(const CalendarTime &time) {
    return JoinDayCount(time).value();
}

TEST(ScriptDates, KeepTheMonthOfTheCalendar) {
    EXPECT_EQ(ScriptDate(Days({2010, 5, 3})), u"new Date(2010,5,3)"_s);
    EXPECT_EQ(ScriptDate(Days({2010, 12, 31, 23, 59, 59})), u"new Date(2010,12,31)"_s);
    EXPECT_EQ(ScriptDate(sql::Value(1)), u"new Date(1899,12,31)"_s);
    EXPECT_EQ(ScriptDateTime(Days({2010, 5, 3, 4, 5, 6})), u"new Date(2010,5,3,4,5,6)"_s);
    EXPECT_EQ(ScriptDateTime(Days({2010, 5, 3})), u"new Date(2010,5,3,0,0,0)"_s);
    EXPECT_EQ(ScriptLoanDate(Days({2010, 5, 3, 1, 0, 0})), u"new Date(2010,5,3)"_s);
}

TEST(ScriptDates, HaveEmptyForms) {
    for (const sql::Value &empty : {sql::Value(), sql::Value(0), sql::Value(0.0), sql::Value(1e12)}) {
        EXPECT_EQ(ScriptDate(empty), u"new Date(1899,12,30)"_s);
        EXPECT_EQ(ScriptDateTime(empty), u"new Date(1899,12,30)"_s);
        EXPECT_EQ(ScriptLoanDate(empty), u"new Date(1899,11,30)"_s);
    }
}

TEST(ScriptLines, BeginWithATabAndEndWithCrLf) {
    QString text;
    ScriptWriter script(text, true);
    script.Section(u"Things"_s);
    script.Type(u"Thing(name, size)"_s);
    script.Text(u"a"_s, u"x"_s);
    script.Flag(u"b"_s, true);
    script.Number(u"c"_s, -4);
    script.List(u"d"_s, {ScriptNew(u"Thing"_s, {u"\"x\""_s, u"1"_s}), u"2"_s});
    script.Texts(u"e"_s, {});
    EXPECT_EQ(text, u"\r\n\t// Things\r\n"
                    "\tfunction Thing(name, size)\r\n\t{\r\n\t\tthis.name = name;\r\n\t\tthis.size = size;\r\n\t}\r\n"
                    "\tvar a = \"x\";\r\n\tvar b = true;\r\n\tvar c = -4;\r\n"
                    "\tvar d = new Array(2);\r\n\td[0] = new Thing(\"x\", 1);\r\n\td[1] = 2;\r\n"
                    "\tvar e = new Array(0);\r\n"_s);
}

TEST(ScriptLines, LeaveCaptionsOutButNotTheBlankLine) {
    QString text;
    ScriptWriter script(text, false);
    script.Section(u"Things"_s);
    script.Flag(u"b"_s, false);
    EXPECT_EQ(text, u"\r\n\tvar b = false;\r\n"_s);
}

} // namespace
} // namespace ostrand
