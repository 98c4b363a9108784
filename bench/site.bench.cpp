// What the offline site costs beside its pages, how much memory it takes, and what a second run costs.
//
//   bench_site [profiles]
//
// A collection of 10,000 profiles is written as a site through the modern skin. The floor is rendering these pages
// alone and writing files of the same sizes. A second run over unchanged data is compared with the rendering alone.
// Status 1 where a ratio or the peak of memory is more than twice its goal.
#include "SilentServices.h"

#include "database/DatabaseFunctions.h"
#include "html_export/CreateOfflineHtml.h"
#include "html_export/SiteFolders.h"
#include "shell/Session.h"
#include "skin/SkinPage.h"

#include <QCoreApplication>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <sys/resource.h>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr double kGoalFirst = 2;
constexpr double kGoalSecond = 1.3;
constexpr double kGoalMegabytes = 300;
constexpr int kProfiles = 10'000;
constexpr int kCredits = 20;
constexpr int kPersons = 40'000;
constexpr int kFirstNames = 400;
constexpr int kRounds = 2;
constexpr int kTitlesOfABox = 50; ///< one profile of so many is a box set with the next three in it

void AddProfile(sql::Database &database, int number) {
    const QString id = u"Key_%1"_s.arg(number);
    database.Execute(
        u"INSERT INTO Profiles (ProfileID, Title, SortTitle, OriginalTitle, ProdYear, Medium, ColType, ColNo, "
        u"Overview, "
        u"Runtime, Rating, UPC) VALUES ('%1', 'Film %2', 'Film %2', 'Film original %2', 2001, 'DVD', '%3', '%2', "
        u"'A text about the film that goes on for a while and says what it is about.', 101, 'PG', '012345678905')"_s
            .arg(id)
            .arg(number)
            .arg(number % 10 == 0 ? u"WishList"_s : u"Owned"_s));
    for (int i = 0; i < kCredits; ++i) {
        const bool cast = i % 3 != 2;
        const int person = (number * kCredits + i * 1999) % kPersons;
        database.Execute(
            u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('%1', '%2', '%3', "
            u"%4, %5, 0)"_s
                .arg(id, u"First%1 Last%2"_s.arg(person % kFirstNames).arg(person / kFirstNames),
                     cast ? u"Role %1"_s.arg(i) : u"Director"_s)
                .arg(i)
                .arg(cast ? u"true"_s : u"false"_s));
    }
    for (const QString &statement :
         {u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Drama')"_s,
          u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('%1', 'English')"_s,
          u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('%1', 1, 'Main')"_s}) {
        database.Execute(statement.arg(id));
    }
    if (const int place = number % kTitlesOfABox; place >= 1 && place <= 3) {
        database.Execute(
            u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', 'Key_%2')"_s.arg(id).arg(number - place));
    }
}

void FillCollection(Session &session, const QString &folder, int profiles) {
    CreateCollectionDatabase(session, folder + u"/a.mdb"_s);
    const sql::Database::Bracket bracket(*session.Database);
    for (int i = 0; i < profiles; ++i) {
        AddProfile(*session.Database, i);
    }
}

/// Of the processor, for us and in the system: the machine's other work does not count, and nothing here waits for the
/// disk.
double ProcessorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double Seconds(const std::function<void()> &work) {
    const double begin = ProcessorSeconds();
    work();
    return ProcessorSeconds() - begin;
}

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

/// The pages alone, as the export renders them; gives their sizes.
std::vector<qsizetype> RenderPages(Session &session, int most) {
    const QString text = ReadSkinFile(SkinFile(session, u"Modern"_s)).replace("$DPIMAGES."_L1, "../Images/"_L1);
    const RenderOptions options{
        .offline = true, .chkGenerateCrosslinks = true, .copy_headshot = {}, .write_episode_page = {}};
    SkinState skin;
    std::vector<qsizetype> sizes;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM Profiles");
    for (; !rows.Eof() && int(sizes.size()) < most; rows.MoveNext()) {
        sizes.push_back(RenderSkinText(session, skin, text, rows, false, {}, options).toUtf8().size());
    }
    return sizes;
}

void WriteFiles(const QString &folder, const std::vector<qsizetype> &sizes) {
    QDir().mkpath(folder);
    int number = 0;
    for (const qsizetype size : sizes) {
        QFile file(folder + u'/' + QString::number(number++) + u".html"_s);
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(size, 'x')) != size) {
            std::fprintf(stderr, "bench_site: %s\n", file.errorString().toUtf8().constData());
            std::exit(2);
        }
    }
}

/// In memory where there is room: what a disk takes to make a file depends on what was deleted there minutes ago.
QString ScratchFolder() {
    constexpr qint64 kRoom = qint64(2) << 30;
    const QString memory = u"/dev/shm"_s;
    const QStorageInfo storage(memory);
    const bool has_room = storage.rootPath() == memory && !storage.isReadOnly() && storage.bytesAvailable() >= kRoom;
    return (has_room ? memory : QDir::tempPath()) + u"/bench_site-XXXXXX"_s;
}

int Main(const QStringList &arguments) {
    const int profiles = arguments.size() > 1 ? arguments[1].toInt() : kProfiles;
    const QTemporaryDir folder(ScratchFolder());
    SilentServices services(folder.path());
    Session session(services.services);
    const QString source = QString::fromUtf8(OSTRAND_SOURCE_DIR);
    CopyFolderInto(session, source + u"/resources/skins"_s, session.DataFolder + u"/Skins"_s);
    CopyFolderInto(session, source + u"/resources/html"_s, folder.path() + u"/html"_s);
    FillCollection(session, folder.path(), profiles);
    const double before = PeakMegabytes();
    RenderPages(session, 200);

    const QString site = folder.path() + u"/site"_s;
    QDir().mkpath(site);
    SiteOptions options;
    options.GenerateEpisodeHTML = false;
    const auto write_site = [&] {
        if (!CreateOfflineHTML(session, site, u"Modern"_s, options, {})) {
            std::fprintf(stderr, "bench_site: the site could not be written\n");
            std::exit(2);
        }
    };
    std::vector<qsizetype> sizes;
    double rendering = Seconds([&] { sizes = RenderPages(session, profiles); });
    const double writing = Seconds([&] { WriteFiles(folder.path() + u"/floor"_s, sizes); });
    const double first = Seconds(write_site);
    const double peak = PeakMegabytes();
    double second = Seconds(write_site);
    for (int round = 1; round < kRounds; ++round) {
        rendering = std::min(rendering, Seconds([&] { RenderPages(session, profiles); }));
        second = std::min(second, Seconds(write_site));
    }

    const double first_ratio = first / (rendering + writing);
    const double second_ratio = second / rendering;
    std::printf("%d profiles: rendering %.2f s, writing %.2f s\n", profiles, rendering, writing);
    std::printf("first run %.2f s, ratio %.2f (goal %.2f)\n", first, first_ratio, kGoalFirst);
    std::printf("second run %.2f s, of the rendering %.2f (goal %.2f)\n", second, second_ratio, kGoalSecond);
    std::printf("peak of memory %.0f MB, %.0f MB of it before (goal %.0f)\n", peak, before, kGoalMegabytes);
    return first_ratio > 2 * kGoalFirst || second_ratio > 2 * kGoalSecond || peak > 2 * kGoalMegabytes ? 1 : 0;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    return ostrand::bench::Main(QCoreApplication::arguments());
}
