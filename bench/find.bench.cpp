// What a key in the find box takes among many credits, and what its index costs.
//
// Some texts are typed letter by letter, and taken back. A key is over when the list holds its new rows. Prints the
// longest key of each text, how long the index takes beside its statements alone, the longest turn of the event
// loop that it needs, and its size. Ends with 1 where a key or a turn takes more than twice its goal.
// Arguments: the number of profiles (10000) and of credits (800000).
#include "BigCollection.h"
#include "SilentServices.h"
#include "Statements.h"

#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/TitleQueries.h"
#include "shell/Session.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr double kGoalOfKey = 50;  // milliseconds
constexpr double kGoalOfTurn = 50; // milliseconds
constexpr int kAliases = 20'000;

/// Every fifth person has another spelling.
void AddAliases(sql::Database &database, int people) {
    const sql::Database::Bracket bracket(database);
    for (int i = 0; i < std::min(kAliases, people / 5); ++i) {
        const QString name = BigCollection::PersonName(i * 5);
        database.Execute(
            u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('%1', 'Common %2', 0)"_s.arg(name, name));
    }
}

struct Turns {
    double all = 0;
    double longest = 0;
    int count = 0;
};

Turns Build(FindBox &find) {
    Turns turns;
    for (bool more = true; more; ++turns.count) {
        const double turn = Milliseconds([&] { more = find.Step(); });
        turns.all += turn;
        turns.longest = std::max(turns.longest, turn);
    }
    return turns;
}

struct Keys {
    double longest = 0;
    QString longest_text;
    int rows = 0; ///< when all is typed
};

Keys Type(Browser &browser, const QString &text) {
    Keys keys;
    const auto press = [&](const QString &typed) {
        const double time = Milliseconds([&] { browser.find.SetText(typed); });
        if (time > keys.longest) {
            keys.longest = time;
            keys.longest_text = typed;
        }
    };
    for (qsizetype length = 1; length <= text.size(); ++length) {
        press(text.left(length));
    }
    keys.rows = browser.listSeries.rowCount();
    for (qsizetype length = text.size() - 1; length >= 0; --length) {
        press(text.left(length));
    }
    return keys;
}

bool TypeAll(Browser &browser, const char *list) {
    const QString person = BigCollection::PersonName(0);
    double longest = 0;
    for (const QString &text :
         {person, BigCollection::PersonName(77'777), u"common "_s + BigCollection::PersonName(50), u"mill 12"_s,
          u"the ira a"_s, u"Müller"_s, u"a e i o u r m 1 2 3 4 5"_s, u"zzzz nobody at all"_s}) {
        const Keys keys = Type(browser, text);
        longest = std::max(longest, keys.longest);
        std::printf("%-10s %-28s %6d rows  longest key %6.2f ms (\"%s\")\n", list, qUtf8Printable(text), keys.rows,
                    keys.longest, qUtf8Printable(keys.longest_text));
    }
    std::printf("%-10s longest of all keys %.2f ms, goal %.0f ms%s\n", list, longest, kGoalOfKey,
                longest > kGoalOfKey ? "  MISSED" : "");
    std::fflush(stdout);
    return longest <= 2 * kGoalOfKey;
}

int Run(const BigCollection &collection) {
    const QTemporaryDir folder;
    SilentServices services(folder.path());
    Session session(services.services);
    collection.Create(session, folder.filePath(u"find.mdb"_s));
    AddAliases(*session.Database, collection.People());
    session.Database->Flush();
    Browser browser(session);
    LoadTabs(browser);
    session.view.BoxsetView = true;
    GetMovieNames(browser);
    if (browser.listSeries.rowCount() != collection.profiles) {
        std::fprintf(stderr, "bench_find: the list holds %d rows\n", browser.listSeries.rowCount());
        return 2;
    }

    // While somebody types: what is there shows.
    browser.find.SetText(u"ira"_s);
    Turns turns;
    const QStringList statements = StatementsOf(*session.Database, [&] { turns = Build(browser.find); });
    const double floor = Milliseconds([&] { ReadAll(*session.Database, statements); });
    const FindIndex &index = *browser.find.Index();
    std::printf("index of %d titles and %d persons: %.0f ms in %d turns, its %lld statements %.0f ms, ratio %.2f\n",
                index.OwnerCount(), index.PersonCount(), turns.all, turns.count, qint64(statements.size()), floor,
                turns.all / floor);
    std::printf("longest turn %.2f ms, goal %.0f ms%s; index of %.1f MB\n", turns.longest, kGoalOfTurn,
                turns.longest > kGoalOfTurn ? "  MISSED" : "", double(index.Bytes()) / 1e6);
    bool good = turns.longest <= 2 * kGoalOfTurn;

    good &= TypeAll(browser, "boxsets");
    browser.find.Clear();
    SpecialProfileOrder(browser, u"Genre"_s);
    good &= TypeAll(browser, "genres");
    return good ? 0 : 1;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    return ostrand::bench::Run(ostrand::bench::BigCollection::OfArguments());
}
