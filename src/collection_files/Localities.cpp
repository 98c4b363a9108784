#include "collection_files/Localities.h"

#include "shell/Session.h"

namespace ostrand {

namespace {

// The n-th name has the number n, from 1. "Columbia" is spelt so in users' databases.
constexpr QStringView kCountries[] = {u"New Zealand",
                                      u"Australia",
                                      u"Canada",
                                      u"United Kingdom",
                                      u"Germany",
                                      u"China",
                                      u"Former Soviet Union",
                                      u"France",
                                      u"Netherlands",
                                      u"Spain",
                                      u"Sweden",
                                      u"Norway",
                                      u"Italy",
                                      u"Denmark",
                                      u"Portugal",
                                      u"Finland",
                                      u"Japan",
                                      u"South Korea",
                                      u"Canada (Quebec)",
                                      u"South Africa",
                                      u"Hong Kong",
                                      u"Switzerland",
                                      u"Brazil",
                                      u"Israel",
                                      u"Mexico",
                                      u"Iceland",
                                      u"Indonesia",
                                      u"Taiwan",
                                      u"Poland",
                                      u"Belgium",
                                      u"Turkey",
                                      u"Argentina",
                                      u"Slovakia",
                                      u"Hungary",
                                      u"Singapore",
                                      u"Czech Republic",
                                      u"Malaysia",
                                      u"Thailand",
                                      u"India",
                                      u"Austria",
                                      u"Greece",
                                      u"Vietnam",
                                      u"Philippines",
                                      u"Ireland",
                                      u"Estonia",
                                      u"Romania",
                                      u"Iran",
                                      u"Russia",
                                      u"Chile",
                                      u"Columbia",
                                      u"Peru"};

} // namespace

void FillCountryNames(Session &session) {
    int number = 0;
    for (const QStringView name : kCountries) {
        session.CountryNames.insert(++number, name.toString());
    }
}

} // namespace ostrand
