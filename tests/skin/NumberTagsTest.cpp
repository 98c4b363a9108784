#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class NumberTagsTest : public ProfileTagTest {};

TEST_F(NumberTagsTest, Rating) {
    Check(GetDPRating, {{"NULL", uR"(ShowDetails="YES")"_s, {}}});
    SetProfile(u"Rating = 'PG <13>'"_s);
    Check(GetDPRating, {
                           {"preset", {}, u"PG <13>"_s},
                           {"no details", uR"(ShowDetails="YES")"_s, u"PG <13>"_s},
                       });
    SetProfile(u"RatingDetails = 'some \"words\" & smoke'"_s);
    Check(GetDPRating, {
                           {"details not wanted", {}, u"PG <13>"_s},
                           {"details", uR"(ShowDetails="YES")"_s, u"PG <13> for some \"words\" & smoke"_s},
                       });
    TranslateAs(u"for"_s, u"wegen"_s);
    Check(GetDPRating,
          {{"translated always", uR"(ShowDetails="YES" Translate="NO")"_s, u"PG <13> wegen some \"words\" & smoke"_s}});
    SetEpisode(u"Rating = 'TV', RatingDetails = 'smoke'"_s);
    CheckForEpisode(GetDPRating, {
                                     {"of an episode", {}, u"TV"_s},
                                     {"without details", uR"(ShowDetails="YES")"_s, u"TV"_s},
                                 });
    ExpectFailure(GetDPRating, u"ShowDetails"_s);
}

TEST_F(NumberTagsTest, Upc) {
    SetProfile(u"UPC = '012345678901'"_s);
    Check(GetDPUPC, {
                        {"in groups", {}, u"0-12345-67890-1"_s},
                        {"the key instead", uR"(Formatted="NO")"_s, u"O'1"_s},
                        {"bars", uR"(BarcodeEncoding="YES")"_s,
                         u"101,0001101,0011001,0010011,0111101,0100011,0110001,01010,1010000,1000100,1001000,1110100,"
                         "1110010,1100110,101"_s},
                        {"bars before the key", uR"(BarcodeEncoding="YES" Formatted="NO")"_s,
                         u"101,0001101,0011001,0010011,0111101,0100011,0110001,01010,1010000,1000100,1001000,1110100,"
                         "1110010,1100110,101"_s},
                    });
    SetProfile(u"UPC = 'M<1>'"_s);
    Check(GetDPUPC, {
                        {"no number", {}, u"M<1>"_s},
                        {"no bars", uR"(BarcodeEncoding="YES")"_s, {}},
                    });
    SetProfile(u"UPC = NULL"_s);
    Check(GetDPUPC, {{"NULL", {}, {}}});
    SetEpisode(u"EpisodeNo = '3+4'"_s);
    CheckForEpisode(GetDPUPC, {
                                  {"the number of an episode", {}, u"3+4"_s},
                                  {"the key of an episode", uR"(Formatted="NO")"_s, u"OSVE'1"_s},
                                  {"an episode has no bars", uR"(BarcodeEncoding="YES")"_s, u"3+4"_s},
                              });
    ExpectFailure(GetDPUPC, u"Formatted"_s);
    ExpectFailure(GetDPUPC, u"BarcodeEncoding"_s);
}

TEST_F(NumberTagsTest, Runtime) {
    const struct {
        const char *name;
        QString runtime;
        QString attributes;
        QString text;
    } cases[] = {
        {"hours and minutes", u"135"_s, {}, u"2:15"_s},
        {"minutes of two digits", u"65"_s, {}, u"1:05"_s},
        {"no hour", u"59"_s, {}, u"0:59"_s},
        {"whole hours", u"120"_s, {}, u"2:00"_s},
        {"more than a day", u"1505"_s, {}, u"25:05"_s},
        {"NULL", u"NULL"_s, {}, u"0:00"_s},
        {"minutes in all", u"135"_s, uR"(TotalInMins="YES")"_s, u"135"_s},
        {"NULL minutes in all", u"NULL"_s, uR"(TotalInMins="YES")"_s, u"0"_s},
        {"minutes", u"135"_s, uR"(MinsOnly="YES")"_s, u"15"_s},
        {"minutes of one digit", u"125"_s, uR"(MinsOnly="YES")"_s, u"5"_s},
        {"hours", u"135"_s, uR"(HoursOnly="YES")"_s, u"2"_s},
        {"hours are cut", u"179"_s, uR"(HoursOnly="YES")"_s, u"2"_s},
        {"hours before minutes", u"135"_s, uR"(HoursOnly="YES" MinsOnly="YES")"_s, u"2"_s},
        {"all before both", u"135"_s, uR"(TotalInMins="YES" HoursOnly="YES" MinsOnly="YES")"_s, u"135"_s},
    };
    for (const auto &c : cases) {
        SetProfile(u"Runtime = "_s + c.runtime);
        EXPECT_EQ(Produce(GetDPRuntime, c.attributes), c.text) << c.name;
        SetEpisode(u"Runtime = "_s + c.runtime);
        EXPECT_EQ(ProduceForEpisode(GetDPRuntime, c.attributes), c.text) << c.name;
    }
    for (const auto &flag : {u"TotalInMins"_s, u"MinsOnly"_s, u"HoursOnly"_s}) {
        ExpectFailure(GetDPRuntime, flag);
    }
}

TEST_F(NumberTagsTest, Regions) {
    const struct {
        const char *name;
        QList<int> regions;
        QString medium;
        QString attributes;
        QString all;
        QString lowest;
    } cases[] = {
        {"none", {}, u"DVD"_s, {}, u"Region 0"_s, u"Region 0"_s},
        {"none, with another text", {}, u"DVD"_s, uR"(NoRegion="free")"_s, u"free"_s, u"free"_s},
        {"region 0", {0}, u"DVD"_s, {}, u"Region 0"_s, u"Region 0"_s},
        {"region 0 has no prefix", {0}, u"DVD"_s, uR"(Prefix="R ")"_s, u"Region 0"_s, u"Region 0"_s},
        {"one", {2}, u"DVD"_s, {}, u"2"_s, u"2"_s},
        {"ascending", {4, 1, 2}, u"DVD"_s, {}, u"1,2,4"_s, u"1"_s},
        {"prefix", {4, 2}, u"DVD"_s, uR"(Prefix="Region ")"_s, u"Region 2,4"_s, u"Region 2"_s},
        {"a no is false in a prefix too", {2}, u"DVD"_s, uR"(Prefix="No")"_s, u"false2"_s, u"false2"_s},
        {"markup in both texts", {2}, u"DVD"_s, uR"(Prefix="<i>" NoRegion="break")"_s, u"<i>2"_s, u"<i>2"_s},
        {"a break for no region", {0}, u"DVD"_s, uR"(NoRegion="break")"_s, u"<br/>"_s, u"<br/>"_s},
        {"region 0 and another", {0, 1}, u"DVD"_s, uR"(Prefix="R")"_s, u"R0,1"_s, u"Region 0"_s},
        {"one letter", {1}, u"Blu-ray Disc"_s, uR"(Prefix="Region ")"_s, u"Region A"_s, u"Region A"_s},
        {"no letter for 0", {0}, u"Blu-ray Disc"_s, {}, u"Region 0"_s, u"Region 0"_s},
        {"letters", {1, 2, 3, 4}, u"Blu-ray Disc"_s, {}, u"A,B,C,4"_s, u"A"_s},
        {"letters by the other name", {3, 2}, u"BluRay"_s, {}, u"B,C"_s, u"B"_s},
        {"the name in another case", {1}, u"bluray"_s, {}, u"1"_s, u"1"_s},
        {"two digits lose one", {12, 34}, u"DVD"_s, {}, u"12,34"_s, u"1"_s},
        {"10 becomes 1", {10}, u"DVD"_s, {}, u"10"_s, u"1"_s},
    };
    for (const auto &c : cases) {
        Clear(u"Regions"_s);
        SetProfile(u"Medium = '%1'"_s.arg(c.medium));
        for (const int region : c.regions) {
            AddRow(u"Regions"_s, u"Region"_s, QString::number(region));
        }
        EXPECT_EQ(Produce(GetDPRegions, c.attributes), c.all) << c.name;
        EXPECT_EQ(Produce(GetDPRegion, c.attributes), c.lowest) << c.name;
    }
    SetProfile(u"Medium = NULL"_s);
    EXPECT_EQ(Produce(GetDPRegions), u"10"_s);
}

TEST_F(NumberTagsTest, ReleaseDate) {
    const struct {
        const char *name;
        QString released;
        QString attributes;
        QString text;
    } cases[] = {
        {"as it stands", u"#2004-07-09#"_s, {}, u"2004-07-09"_s},
        {"with a time", u"#2004-07-09 08:05:00#"_s, {}, u"2004-07-09 08:05:00"_s},
        {"NULL", u"NULL"_s, {}, {}},
        {"NULL, with a text", u"NULL"_s, uR"(Blank="<i>soon</i>" YearOnly="YES")"_s, u"<i>soon</i>"_s},
        {"the first day", u"#1899-12-30#"_s, uR"(Blank="soon")"_s, u"soon"_s},
        {"the first day without a text", u"#1899-12-30#"_s, {}, {}},
        {"a time of the first day", u"#1899-12-30 10:00:00#"_s, uR"(Blank="soon" DateFormat="yyyy")"_s, u"soon"_s},
        {"the day after", u"#1899-12-31#"_s, uR"(Blank="soon")"_s, u"1899-12-31"_s},
        {"the year", u"#2004-07-09#"_s, uR"(YearOnly="YES")"_s, u"04"_s},
        {"the year of 2", u"#2004-07-09#"_s, uR"(YearOnly="YES" YearDigits="2")"_s, u"04"_s},
        {"the year of 4", u"#2004-07-09#"_s, uR"(YearOnly="YES" YearDigits="4")"_s, u"2004"_s},
        {"the year of 3", u"#2004-07-09#"_s, uR"(YearOnly="YES" YearDigits="3")"_s, {}},
        {"the year of a word", u"#2004-07-09#"_s, uR"(YearOnly="YES" YearDigits="four")"_s, u"04"_s},
        {"the year before a format", u"#2004-07-09#"_s, uR"(YearOnly="YES" DateFormat="dd")"_s, u"04"_s},
        {"a format", u"#2004-07-09#"_s, uR"(DateFormat="d.m.yy")"_s, u"9.7.04"_s},
        {"a format with names", u"#2004-07-09#"_s, uR"(DateFormat="dddd, mmmm d, yyyy")"_s, u"Friday, July 9, 2004"_s},
        {"digits count for years only", u"#2004-07-09#"_s, uR"(YearDigits="4")"_s, u"2004-07-09"_s},
    };
    for (const auto &c : cases) {
        SetProfile(u"Released = "_s + c.released);
        EXPECT_EQ(Produce(GetDPReleaseDate, c.attributes), c.text) << c.name;
        SetEpisode(u"AirDate = "_s + c.released);
        EXPECT_EQ(ProduceForEpisode(GetDPReleaseDate, c.attributes), c.text) << c.name;
    }
    ExpectFailure(GetDPReleaseDate, u"YearOnly"_s);
}

TEST_F(NumberTagsTest, FormatsOfTheReleaseDate) {
    const struct {
        QString released;
        QString format;
        QString text;
    } cases[] = {
        {u"#2004-07-09#"_s, u"d dd ddd dddd"_s, u"9 09 Fri Friday"_s},
        {u"#2004-07-09#"_s, u"m mm mmm mmmm"_s, u"7 07 Jul July"_s},
        {u"#2004-07-09#"_s, u"yy yyyy"_s, u"04 2004"_s},
        {u"#2004-07-09#"_s, u"DD.MM.YYYY"_s, u"09.07.2004"_s},
        {u"#2004-07-09#"_s, u"yyyy-mm-dd hh:nn:ss"_s, u"2004-07-09 00:00:00"_s},
        {u"#2004-07-09 08:05:03#"_s, u"h:n:s hh:nn:ss"_s, u"8:5:3 08:05:03"_s},
        {u"#2004-07-09 20:05:03#"_s, u"h:m"_s, u"20:5"_s},
        {u"#2004-07-09 20:05:03#"_s, u"mm/dd hh.mm"_s, u"07/09 20.05"_s},
        {u"#2004-07-09 20:05:03#"_s, u"h mmm"_s, u"20 Jul"_s},
        {u"#2004-07-09 20:05:03#"_s, u"n m"_s, u"5 7"_s},
        {u"#2004-07-09 20:05:03#"_s, u"h:nn AM/PM"_s, u"8:05 PM"_s},
        {u"#2004-07-09 00:05:03#"_s, u"hh:mm am/pm"_s, u"12:05 am"_s},
        {u"#2004-07-09#"_s, u"\\d\\e\\m d. <b>mmmm</b>"_s, u"dem 9. <b>July</b>"_s},
        {u"#2004-07-09#"_s, u"Long Date"_s, u"Friday, July 9, 2004"_s},
        {u"#1896-02-29#"_s, u"d mmm yy"_s, u"29 Feb 96"_s},
        {u"#1899-12-31#"_s, u"dd.mm.yy"_s, u"31.12.99"_s},
    };
    for (const auto &c : cases) {
        SetProfile(u"Released = "_s + c.released);
        EXPECT_EQ(Produce(GetDPReleaseDate, u"DateFormat=\"%1\""_s.arg(c.format)), c.text) << qPrintable(c.format);
    }
}

} // namespace
} // namespace ostrand
