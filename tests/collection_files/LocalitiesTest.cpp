#include "collection_files/Localities.h"

#include "shell/Session.h"
#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {

TEST(Localities, EveryNumberHasItsCountry) {
    static constexpr struct {
        int number;
        QStringView country;
    } kCountries[] = {{1, u"New Zealand"},
                      {2, u"Australia"},
                      {3, u"Canada"},
                      {4, u"United Kingdom"},
                      {5, u"Germany"},
                      {6, u"China"},
                      {7, u"Former Soviet Union"},
                      {8, u"France"},
                      {9, u"Netherlands"},
                      {10, u"Spain"},
                      {11, u"Sweden"},
                      {12, u"Norway"},
                      {13, u"Italy"},
                      {14, u"Denmark"},
                      {15, u"Portugal"},
                      {16, u"Finland"},
                      {17, u"Japan"},
                      {18, u"South Korea"},
                      {19, u"Canada (Quebec)"},
                      {20, u"South Africa"},
                      {21, u"Hong Kong"},
                      {22, u"Switzerland"},
                      {23, u"Brazil"},
                      {24, u"Israel"},
                      {25, u"Mexico"},
                      {26, u"Iceland"},
                      {27, u"Indonesia"},
                      {28, u"Taiwan"},
                      {29, u"Poland"},
                      {30, u"Belgium"},
                      {31, u"Turkey"},
                      {32, u"Argentina"},
                      {33, u"Slovakia"},
                      {34, u"Hungary"},
                      {35, u"Singapore"},
                      {36, u"Czech Republic"},
                      {37, u"Malaysia"},
                      {38, u"Thailand"},
                      {39, u"India"},
                      {40, u"Austria"},
                      {41, u"Greece"},
                      {42, u"Vietnam"},
                      {43, u"Philippines"},
                      {44, u"Ireland"},
                      {45, u"Estonia"},
                      {46, u"Romania"},
                      {47, u"Iran"},
                      {48, u"Russia"},
                      {49, u"Chile"},
                      {50, u"Columbia"},
                      {51, u"Peru"}};
    test::TestServices services;
    const Session session(services.services);
    EXPECT_EQ(session.CountryNames.size(), qsizetype(std::size(kCountries)));
    for (const auto &row : kCountries) {
        EXPECT_EQ(session.CountryNames.value(row.number), row.country) << row.number;
    }
}

TEST(Localities, OtherNumbersHaveNone) {
    test::TestServices services;
    const Session session(services.services);
    EXPECT_FALSE(session.CountryNames.contains(0));
    EXPECT_FALSE(session.CountryNames.contains(52));
}

} // namespace ostrand
