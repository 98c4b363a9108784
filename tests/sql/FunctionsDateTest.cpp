#include "FunctionRows.h"

namespace ostrand::sql::test {
namespace {

TEST(DateFunctions, AddIntervals) {
    Check({{"fn__text(fn_dateadd('m', 1, '3/31/2007'), 'd')", "'2007-04-30'"},
           {"fn__text(fn_dateadd('m', 1, '1/31/2008'), 'd')", "'2008-02-29'"},
           {"fn__text(fn_dateadd('m', -1, '3/31/2008'), 'd')", "'2008-02-29'"},
           {"fn__text(fn_dateadd('m', 13, '12/31/2009'), 'd')", "'2011-01-31'"},
           {"fn__text(fn_dateadd('q', 1, '11/30/2009'), 'd')", "'2010-02-28'"},
           {"fn__text(fn_dateadd('yyyy', 1, '2/29/2008'), 'd')", "'2009-02-28'"},
           {"fn__text(fn_dateadd('YYYY', -9, '2009-11-23 20:15:30'), 'd')", "'2000-11-23 20:15:30'"},
           {"fn__text(fn_dateadd('d', 10, '12/25/2009'), 'd')", "'2010-01-04'"},
           {"fn__text(fn_dateadd('y', 1, '12/31/2009'), 'd')", "'2010-01-01'"},
           {"fn__text(fn_dateadd('w', 1, '12/31/2009'), 'd')", "'2010-01-01'"},
           {"fn__text(fn_dateadd('ww', 1, '12/25/2009'), 'd')", "'2010-01-01'"},
           {"fn__text(fn_dateadd('h', 5, '2009-12-31 20:00:00'), 'd')", "'2010-01-01 01:00:00'"},
           {"fn__text(fn_dateadd('n', -1, '2010-01-01'), 'd')", "'2009-12-31 23:59:00'"},
           {"fn__text(fn_dateadd('s', 61, '2010-01-01'), 'd')", "'2010-01-01 00:01:01'"},
           {"fn__text(fn_dateadd('d', 1.6, '2010-01-01'), 'd')", "'2010-01-03'"},
           {"fn__text(fn_dateadd('d', -1, '1899-12-30 06:00:00'), 'd')", "'1899-12-29 06:00:00'"},
           {"fn_dateadd('d', -1, 0.25)", "-1.25"},
           {"fn_dateadd('d', 2, -1.25)", "1.25"},
           {"fn_dateadd('x', 1, '2010-01-01')", "error 5"},
           {"fn_dateadd('', 1, '2010-01-01')", "error 5"},
           {"fn_dateadd('yyyy', 9000, '2010-01-01')", "error 5"},
           {"fn_dateadd('d', -1e9, '2010-01-01')", "error 5"},
           {"fn_dateadd('m', 1e300, '2010-01-01')", "error 5"},
           {"fn_dateadd('s', 1e300, '2010-01-01')", "error 5"},
           {"fn_dateadd('d', 1, 'soon')", "error 3464"}});
}

TEST(DateFunctions, CountLimitsBetweenDates) {
    Check({{"fn_datediff('yyyy', '12/31/2009', '1/1/2010')", "1"},
           {"fn_datediff('q', '3/31/2009', '4/1/2009')", "1"},
           {"fn_datediff('m', '1/31/2009', '2/1/2009')", "1"},
           {"fn_datediff('m', '2/1/2009', '1/31/2008')", "-13"},
           {"fn_datediff('d', '2/28/2008', '3/1/2008')", "2"},
           {"fn_datediff('d', '3/1/2008', '2/28/2008')", "-2"},
           {"fn_datediff('d', '2009-11-23 23:59:59', '2009-11-24')", "1"},
           {"fn_datediff('w', '2009-11-23', '2009-12-07')", "2"},
           {"fn_datediff('w', '2009-11-23', '2009-12-06')", "1"},
           {"fn_datediff('ww', '2009-11-21', '2009-11-22')", "1"},
           {"fn_datediff('ww', '2009-11-22', '2009-11-28')", "0"},
           {"fn_datediff('ww', '2009-11-22', '2009-11-23', 2)", "1"},
           {"fn_datediff('ww', '2009-11-22', '2009-11-21')", "-1"},
           {"fn_datediff('h', '2009-01-01 10:59:00', '2009-01-01 11:01:00')", "1"},
           {"fn_datediff('n', '2009-01-01 10:59:00', '2009-01-01 11:01:00')", "2"},
           {"fn_datediff('s', '2009-01-01 10:59:00', '2009-01-01 11:01:00')", "120"},
           {"fn_datediff('s', '1899-12-29 23:59:59', '1899-12-30')", "1"},
           {"fn_datediff('z', 1, 2)", "error 5"},
           {"fn_datediff('ww', 1, 2, 8)", "error 5"},
           {"fn_datediff('d', 1e308, 1)", "error 6"}});
}

TEST(DateFunctions, TakeDatesApart) {
    Check({{"fn_datepart('yyyy', '11/23/2009')", "2009"},
           {"fn_datepart('q', '11/23/2009')", "4"},
           {"fn_datepart('m', '11/23/2009')", "11"},
           {"fn_datepart('y', '12/31/2008')", "366"},
           {"fn_datepart('d', '11/23/2009')", "23"},
           {"fn_datepart('w', '7/9/2003')", "4"},
           {"fn_datepart('w', '7/9/2003', 2)", "3"},
           {"fn_datepart('ww', '1/1/2010')", "1"},
           {"fn_datepart('ww', '1/3/2010')", "2"},
           {"fn_datepart('ww', '1/3/2010', 2)", "1"},
           {"fn_datepart('ww', '1/3/2010', 2, 2)", "53"},
           {"fn_datepart('ww', '1/4/2010', 2, 2)", "1"},
           {"fn_datepart('ww', '12/31/2008', 2, 2)", "1"},
           {"fn_datepart('ww', '1/3/2010', 1, 3)", "1"},
           {"fn_datepart('ww', '1/2/2010', 1, 3)", "52"},
           {"fn_datepart('ww', '12/31/2010')", "53"},
           {"fn_datepart('h', '2009-11-23 20:15:30')", "20"},
           {"fn_datepart('n', '2009-11-23 20:15:30')", "15"},
           {"fn_datepart('s', '2009-11-23 20:15:30')", "30"},
           {"fn_datepart('ww', 1, 1, 4)", "error 5"},
           {"fn_year(40140)", "2009"},
           {"fn_month(40140)", "11"},
           {"fn_day('11/23/2009')", "23"},
           {"fn_hour(40140.84375)", "20"},
           {"fn_minute(40140.84375)", "15"},
           {"fn_second('2009-11-23 20:15:30')", "30"},
           {"fn_year(0)", "1899"},
           {"fn_year(-657434)", "100"},
           {"fn_year(2958465.5)", "9999"},
           {"fn_day(40140.9999999)", "24"},
           {"fn_hour(-1.25)", "6"},
           {"fn_day(-1.25)", "29"},
           {"fn_year('soon')", "error 3464"},
           {"fn_weekday('7/9/2003')", "4"},
           {"fn_weekday('7/9/2003', 2)", "3"},
           {"fn_weekday('7/9/2003', 0)", "4"},
           {"fn_weekday(-1)", "6"},
           {"fn_weekday(1, 8)", "error 5"},
           {"fn_weekdayname(1)", "'Sunday'"},
           {"fn_weekdayname(1, -1)", "'Sun'"},
           {"fn_weekdayname(1, 0, 2)", "'Monday'"},
           {"fn_weekdayname(7, 0, 2)", "'Sunday'"},
           {"fn_weekdayname(8)", "error 5"},
           {"fn_monthname(11)", "'November'"},
           {"fn_monthname(11, -1)", "'Nov'"},
           {"fn_monthname(0)", "error 5"}});
}

TEST(DateFunctions, PutDatesTogether) {
    Check({{"fn__text(fn_dateserial(2003, 7, 9), 'd')", "'2003-07-09'"},
           {"fn__text(fn_dateserial(2003, 14, 35), 'd')", "'2004-03-06'"},
           {"fn__text(fn_dateserial(2003, 3, 0), 'd')", "'2003-02-28'"},
           {"fn__text(fn_dateserial(2003, 0, 1), 'd')", "'2002-12-01'"},
           {"fn__text(fn_dateserial(2003, -12, 1), 'd')", "'2001-12-01'"},
           {"fn__text(fn_dateserial(29, 1, 1), 'd')", "'2029-01-01'"},
           {"fn__text(fn_dateserial(30, 1, 1), 'd')", "'1930-01-01'"},
           {"fn_dateserial(100, 1, 1)", "-657434"},
           {"fn_dateserial(9999, 12, 31)", "2958465"},
           {"fn_dateserial(9999, 12, 32)", "error 5"},
           {"fn_dateserial(40000, 1, 1)", "error 6"},
           {"fn_timeserial(18, 0, 0)", "0.75"},
           {"fn_timeserial(12, -15, 0) = 0.489583333333333333", "1"},
           {"fn_timeserial(0, 0, 32767)", "0.379247685185"},
           {"fn_datevalue('2009-11-23 20:15:00')", "40140"},
           {"fn_datevalue(40140.75)", "40140"},
           {"fn_datevalue(-1.25)", "-1"},
           {"fn_datevalue('x')", "error 3464"},
           {"fn_timevalue('2009-11-23 18:00:00')", "0.75"},
           {"fn_timevalue('6:00 PM')", "0.75"},
           {"fn_cdate(40140)", "40140"},
           {"fn_cdate('11/23/2009')", "40140"},
           {"fn_cdate('soon')", "error 3464"},
           {"fn_cdate(1e10)", "error 6"},
           {"fn_cvdate('2009-11-23')", "40140"},
           {"fn_isdate('soon')", "0"},
           {"fn_isdate('2009-11-23')", "-1"},
           {"fn_isdate('2/30/2009')", "0"},
           {"fn_isdate('40140')", "0"},
           {"fn_isdate('20:15')", "-1"},
           {"fn_isdate(40140.0)", "-1"},
           {"fn_isdate(5)", "0"}});
}

TEST(DateFunctions, TellTheTime) {
    Check({{"fn_now()", "40140.84375"},
           {"fn_date()", "40140"},
           {"fn_time()", "0.84375"},
           {"fn_timer()", "72900"},
           {"fn_date() <= fn_now() AND fn_now() < fn_date() + 1", "1"}});
}

TEST(DateFunctions, SurviveExtremeNumbers) {
    const FunctionHandle handle;
    for (const char *number :
         {"1e308", "-1e308", "1e308 * 10", "-1e308 * 10", "2958466", "-657435", "9e18", "5e-324"}) {
        for (const char *name : {"year", "month", "day", "hour", "minute", "second", "weekday", "datevalue",
                                 "timevalue", "cdate", "formatdatetime"}) {
            const std::string call = std::string("fn_") + name + "(" + number + ")";
            const std::string result = handle.Evaluate(call);
            EXPECT_EQ(result == "error 6", std::string(number) != "5e-324") << call << " gave " << result;
        }
        for (const char *interval : {"yyyy", "q", "m", "y", "d", "w", "ww", "h", "n", "s"}) {
            const std::string call = std::string("fn_dateadd('") + interval + "', " + number + ", 1)";
            const std::string result = handle.Evaluate(call);
            const bool is_small = std::string(number) == "5e-324";
            EXPECT_TRUE(result == (is_small ? "1" : "error 5") || (result != "NULL" && std::string(number).size() == 7))
                << call << " gave " << result;
        }
    }
}

} // namespace
} // namespace ostrand::sql::test
