// What a click on a title, and the appearances of a person, cost beside their statements in a great collection.
//
//   click              UpdateSeriesList and the look for the cover, with the tab of the credits selected.
//   click, crew tree   The same with the crew as a tree.
//   click, all tabs    The same, and then the tabs Details and Audio/Video, and back.
//   appearances        Of the person with the most credits, in the panel below the credits.
//
// The floor is their own statements, sent to the same database in the same order and read to their ends. Prints a line
// for each: name, ours, floor, ratio, goal. Ends with 1 where one is worse than twice its goal.
// Arguments: the number of profiles (10000) and of credits (800000).
#include "BigCollection.h"
#include "SilentServices.h"
#include "Statements.h"

#include "browser/AppearancesPanel.h"
#include "browser/Attach.h"
#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/ProfileInfos.h"
#include "browser/TitleQueries.h"
#include "shell/Session.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr double kGoal = 3;
constexpr int kRounds = 40;
constexpr int kRoundsOfPerson = 8;
constexpr int kClicks = 20;
enum MainTab { kCredits = 1, kDetails, kAV };

/// One cover for each of the titles that are clicked, among many others.
void MakeCovers(Session &session, const QString &folder, int profiles) {
    QDir().mkpath(folder);
    for (int i = 0; i < profiles; ++i) {
        QFile cover(folder + u'/' + BigCollection::ProfileID(i).mid(4) + u"f.jpg"_s);
        cover.open(QIODevice::WriteOnly);
    }
    session.CoverPath = folder + u'/';
}

class Clicks {
public:
    explicit Clicks(Browser &browser) : browser_(browser) {}

    void Run(bool all_tabs) {
        const int rows = browser_.listSeries.rowCount();
        for (int i = 0; i < kClicks; ++i) {
            UpdateSeriesList(browser_, int(qint64(rows) * i / kClicks));
            covers += CurrentCoverFile(browser_).isEmpty() ? 0 : 1;
            if (all_tabs) {
                for (const int tab : {kDetails, kAV, kCredits}) {
                    SelectMainTab(browser_, tab);
                }
            }
            credits += browser_.credits.ListCast.rowCount();
            crew += browser_.credits.ListCrew.rowCount() + int(browser_.credits.crew.size());
        }
    }

    qint64 covers = 0;
    qint64 credits = 0;
    qint64 crew = 0;

private:
    Browser &browser_;
};

/// False where the ratio is worse than twice the goal.
bool Report(const char *name, const WorkTimes &times, int times_a_round) {
    const double ratio = times.work / times.statements;
    std::printf("%-18s ours %8.3f ms  statements (%3lld) %8.3f ms  ratio %5.2f  goal %.2f%s\n", name,
                times.work / times_a_round, qint64(times.statement_count / times_a_round),
                times.statements / times_a_round, ratio, kGoal, ratio > kGoal ? "  MISSED" : "");
    std::fflush(stdout);
    return ratio <= 2 * kGoal;
}

int Run(const BigCollection &collection) {
    const QTemporaryDir folder;
    SilentServices services(folder.path());
    Session session(services.services);
    collection.Create(session, folder.filePath(u"click.mdb"_s));
    MakeCovers(session, folder.filePath(u"covers"_s), std::min(collection.profiles, 10'000));
    Browser browser(session);
    AttachBrowser(browser);
    LoadTabs(browser);
    session.view.BoxsetView = true;
    session.view.IncludeMovies = true;
    session.view.IncludeTV = true;
    GetMovieNames(browser);

    sql::Database &database = *session.Database;
    Clicks clicks(browser);
    session.view.mCrewTreeView = false;
    bool good = Report("click", MeasureWork(database, kRounds, [&] { clicks.Run(false); }), kClicks);
    session.view.mCrewTreeView = true;
    good &= Report("click, crew tree", MeasureWork(database, kRounds, [&] { clicks.Run(false); }), kClicks);
    good &= Report("click, all tabs", MeasureWork(database, kRounds, [&] { clicks.Run(true); }), kClicks);
    const QString person = BigCollection::PersonName(0);
    good &= Report("appearances",
                   MeasureWork(database, kRoundsOfPerson, [&] { GetAppearances(browser, person, u"0"_s, false); }), 1);
    std::printf("%d rows of appearances; %lld cast, %lld crew, %lld covers seen\n",
                browser.appearances.listAppearences.rowCount(), clicks.credits, clicks.crew, clicks.covers);
    // Nothing is measured by its absence.
    if (clicks.covers == 0 || clicks.credits == 0 || clicks.crew == 0 ||
        browser.appearances.listAppearences.rowCount() == 0) {
        std::fprintf(stderr, "bench_click: a panel stayed empty\n");
        return 2;
    }
    return good ? 0 : 1;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    return ostrand::bench::Run(ostrand::bench::BigCollection::OfArguments());
}
