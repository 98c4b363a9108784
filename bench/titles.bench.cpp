// How long the title list takes beside one plain SELECT of the columns that it shows, read through the same engine in
// the same run.
//
//   plain select    The columns of all titles, without an order, each value read as text.
//   boxset view     GetMovieNames with the children of boxsets below their parents.
//   flat view       GetMovieNames without.
//   genres          SpecialProfileOrder("Genre"): each title in two of twenty groups.
//   localities      SpecialProfileOrder("Locality") in boxset view, in ten groups.
//   sort            ReOrderSeriesList by the year and back by the title.
//
// Prints a line for each: name, ours, floor, ratio, goal. Ends with 1 where one is worse than twice its goal.
// Argument: the number of titles (10000); a tenth of them are boxsets with four children each.
#include "SilentServices.h"

#include "browser/Browser.h"
#include "browser/TitleQueries.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <limits>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr int kRounds = 9;
constexpr int kChildren = 4;
constexpr double kGoal = 4;

QString IdOf(int title) {
    return u"Key_%1.%2"_s.arg(4'000'000'000'000LL + title * 7919LL).arg(title % 20);
}

void AddTitle(sql::Database &database, int title, int titles) {
    // Spreads the names over the alphabet, in another order than that of the rows.
    const int place = int(qint64(title) * 7919 % titles);
    const QString name = u"%1%2 Mill %3"_s.arg(QChar(u'A' + place % 26)).arg(QChar(u'a' + place / 26 % 26)).arg(place);
    database.Execute(
        u"INSERT INTO Profiles (ProfileID, Title, SortTitle, OriginalTitle, Description, ColNo, ColType, "
        "ProdYear, Released, Locality, Rating) VALUES ('%1', 'The %2', '%2, The', '%3', '%4', '%5', "
        "'Owned', '%6', '200%7-05-14', 'Land %8', 'PG')"_s.arg(IdOf(title), name)
            .arg(title % 5 == 0 ? u"Die "_s + name : QString(), title % 3 == 0 ? u"Special Edition"_s : QString())
            .arg(title)
            .arg(1930 + place % 90)
            .arg(place % 10)
            .arg(place % 10));
    database.Execute(
        u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('%1', '201%2-03-01')"_s.arg(IdOf(title))
            .arg(title % 10));
    for (const int genre : {place % 20, (place + 7) % 20}) {
        database.Execute(
            u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Genre %2')"_s.arg(IdOf(title)).arg(genre));
    }
}

void Fill(sql::Database &database, int titles) {
    for (int i = 0; i < titles; ++i) {
        AddTitle(database, i, titles);
    }
    const int boxsets = titles / 10;
    for (int i = 0; i < boxsets * kChildren; ++i) {
        database.Execute(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', '%2')"_s.arg(IdOf(boxsets + i),
                                                                                             IdOf(i / kChildren)));
    }
    database.Flush();
}

/// The quickest of some rounds, in milliseconds.
template <class Work>
double Quickest(const Work &work) {
    qint64 best = std::numeric_limits<qint64>::max();
    for (int i = 0; i < kRounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        work();
        best = std::min(best, clock.nsecsElapsed());
    }
    return double(best) / 1e6;
}

qsizetype ReadPlainly(sql::Database &database) {
    sql::Recordset record = database.OpenRecordset(
        u"SELECT Title, ColNo, SortTitle, OriginalSortTitle, Description, p.ProfileID, OriginalTitle, PurchaseDate, "
        "ProdYear, Released, CustomTitle, CustomSortTitle FROM Profiles p LEFT JOIN PurchaseInfo pi "
        "ON pi.ProfileID = p.ProfileID");
    qsizetype units = 0;
    const int fields = int(record.Fields().size());
    for (; !record.Eof(); record.MoveNext()) {
        for (int i = 0; i < fields; ++i) {
            units += record.Text(i).size();
        }
    }
    return units;
}

bool Report(const char *name, double ours, double floor) {
    const double ratio = ours / floor;
    std::printf("%-14s ours %8.2f ms  floor %8.2f ms  ratio %5.2f  goal %.2f%s\n", name, ours, floor, ratio, kGoal,
                ratio > kGoal ? "  MISSED" : "");
    std::fflush(stdout);
    return ratio <= 2 * kGoal;
}

/// False where the list is not what it should be, so that nothing is measured by its absence.
bool Expect(const Browser &browser, int rows) {
    if (browser.listSeries.rowCount() == rows) {
        return true;
    }
    std::fprintf(stderr, "bench_titles: %d rows instead of %d\n", browser.listSeries.rowCount(), rows);
    return false;
}

int Run(int titles) {
    const QTemporaryDir folder;
    SilentServices services(folder.path());
    Session session(services.services);
    CreateCollectionDatabase(session, folder.filePath(u"titles.mdb"_s));
    Fill(*session.Database, titles);
    Browser browser(session);
    browser.tabColList = QStringList{u"All"_s, u"Owned"_s};
    browser.tabColList_selected = 2;
    ViewState &view = session.view;

    const double floor = Quickest([&] { ReadPlainly(*session.Database); });
    std::printf("%-14s %8.2f ms, %d titles\n", "plain select", floor, titles);
    bool good = true;
    good &= Report("boxset view", Quickest([&] {
                       view.BoxsetView = true;
                       GetMovieNames(browser);
                   }),
                   floor);
    good &= Expect(browser, titles);
    good &= Report("localities", Quickest([&] { SpecialProfileOrder(browser, u"Locality"_s); }), floor);
    good &= Report("genres", Quickest([&] { SpecialProfileOrder(browser, u"Genre"_s); }), floor);
    good &= Expect(browser, 2 * titles + 20);
    good &= Report("flat view", Quickest([&] {
                       view.BoxsetView = false;
                       GetMovieNames(browser);
                   }),
                   floor);
    good &= Expect(browser, titles);
    good &= Report("sort, twice", Quickest([&] {
                       ReOrderSeriesList(browser, TitleList::Year, TitleList::Order::Descending);
                       ReOrderSeriesList(browser, TitleList::SortTitle, TitleList::Order::Ascending);
                   }),
                   floor);
    return good ? 0 : 1;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const int titles = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 10'000;
    return ostrand::bench::Run(std::max(titles, 10));
}
