#include "base/Dates.h"

#include <gtest/gtest.h>

#include <limits>

namespace ostrand {
namespace {

struct DateCase {
    const char *name;
    double days;
    const char *text;
};

class DayCountTest : public ::testing::TestWithParam<DateCase> {};

TEST_P(DayCountTest, GoesToTextAndBack) {
    const auto &[name, days, text] = GetParam();
    EXPECT_EQ(DayCountToDateTime(days).toStdString(), text);
    EXPECT_EQ(DayCountToDate(days).toStdString(), std::string(text).substr(0, 10));
    const auto back = DayCountFromText(QString::fromUtf8(text));
    ASSERT_TRUE(back.has_value());
    EXPECT_NEAR(*back, days, 0.51 / 86400);
}

INSTANTIATE_TEST_SUITE_P(Days, DayCountTest,
                         ::testing::Values(DateCase{"NoDate", 0, "1899-12-30 00:00:00"},
                                           DateCase{"One", 1, "1899-12-31 00:00:00"},
                                           DateCase{"TimeAlone", 0.75, "1899-12-30 18:00:00"},
                                           DateCase{"Evening", 40543.84375, "2010-12-31 20:15:00"},
                                           DateCase{"RoundsToTheSecond", 40543.9999999, "2011-01-01 00:00:00"},
                                           DateCase{"LeapDay", 45351, "2024-02-29 00:00:00"},
                                           DateCase{"CenturyWithoutLeapDay", 61, "1900-03-01 00:00:00"},
                                           DateCase{"BelowZero", -1, "1899-12-29 00:00:00"},
                                           DateCase{"BelowZeroTimeAwayFromZero", -1.25, "1899-12-29 06:00:00"},
                                           DateCase{"First", -657434, "0100-01-01 00:00:00"},
                                           DateCase{"Last", 2958465.5, "9999-12-31 12:00:00"}),
                         [](const auto &info) { return info.param.name; });

TEST(DayCountToTextTest, CountsWithoutADateGiveNothing) {
    const double none[] = {-657435, 2958466, 1e18, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()};
    for (const double days : none) {
        EXPECT_EQ(DayCountToDateTime(days), QString()) << days;
        EXPECT_EQ(DayCountToDate(days), QString()) << days;
    }
}

TEST(DayCountFromTextTest, ReadsTimesInItsForms) {
    EXPECT_EQ(DayCountFromText(u"2010-12-31"), 40543.0);
    EXPECT_EQ(DayCountFromText(u"2010-12-31 06:00"), 40543.25);
    EXPECT_EQ(DayCountFromText(u"2010-12-31T06:00:00"), 40543.25);
}

TEST(DayCountFromTextTest, RefusesAllElse) {
    for (const char *text : {"", "2010", "2010-13-01", "2011-02-29", "2010/12/31", "2010-12-31 24:00:00", "2010-12-3x",
                             "2010-12-31 6:00", "2010-12-31x", "2010-12-31 06:00:00.000", "0099-01-01", "-010-01-01"})
        EXPECT_FALSE(DayCountFromText(QString::fromUtf8(text)).has_value()) << text;
}

TEST(JoinDayCountTest, IsTheInverseOfSplit) {
    for (int day = -50000; day < 90000; day += 777) {
        const CalendarTime time{1999, 12, 31, 23, 59, 58};
        auto split = SplitDayCount(day);
        ASSERT_TRUE(split);
        EXPECT_EQ(JoinDayCount(*split), double(day));
        split->hour = time.hour;
        split->second = time.second;
        EXPECT_EQ(SplitDayCount(*JoinDayCount(*split)), split);
    }
}

} // namespace
} // namespace ostrand
