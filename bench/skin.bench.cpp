// What a page of a skin costs beside its statements, and whether it grows with the collection.
//
//   bench_skin [--statements]
//   bench_skin --pages
//
// The modern skin is rendered for a title with 60 credits out of collections of 1,000 and of 10,000 profiles. The floor
// is the page's own statements, sent to the same database in the same order and read to their ends. With --statements
// the statements of one page are printed. With --pages some pages are rendered and nothing is measured, for a profiler.
// Status 1 where a ratio is more than twice its goal.
#include "SilentServices.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "skin/SkinPage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

constexpr double kGoalRatio = 3;
constexpr double kGoalGrowth = 1.15;
constexpr int kCredits = 60;
constexpr int kOtherCredits = 20;
constexpr int kRounds = 15;
constexpr int kPagesARound = 20;

class Collection {
public:
    Collection(const QString &folder, int profiles) : services_(folder), session(services_.services) {
        CreateCollectionDatabase(session, folder + u"/a.mdb"_s);
        const sql::Database::Bracket bracket(*session.Database);
        for (int i = 0; i < profiles; ++i) {
            AddProfile(i, i == 0 ? kCredits : kOtherCredits);
        }
    }

private:
    void AddProfile(int number, int credits) {
        const QString id = u"Key_%1"_s.arg(number);
        Run(u"INSERT INTO Profiles (ProfileID, Title, SortTitle, OriginalTitle, ProdYear, Medium, ColType, Overview, "
            u"Runtime, Rating, UPC) VALUES ('%1', 'Film %2', 'Film %2', 'Film original %2', 2001, 'DVD', 'Owned', "
            u"'A text about the film that goes on for a while and says what it is about.', 101, 'PG', '012345678905')"_s
                .arg(id)
                .arg(number));
        for (int i = 0; i < credits; ++i) {
            const bool cast = i % 3 != 2;
            Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('%1', '%2', '%3', "
                u"%4, %5, 0)"_s
                    .arg(id, u"First%1 Last%2"_s.arg((number + i) % 997).arg((number * 7 + i) % 1999),
                         cast ? u"Role %1"_s.arg(i) : CrewRole(i))
                    .arg(i)
                    .arg(cast ? u"true"_s : u"false"_s));
        }
        for (const QString &statement :
             {u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Drama')"_s,
              u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Comedy')"_s,
              u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('%1', 'A Studio', 'Production')"_s,
              u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('%1', 'English')"_s,
              u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('%1', 1, 'Main Feature')"_s}) {
            Run(statement.arg(id));
        }
    }
    static QString CrewRole(int number) {
        constexpr const char16_t *kRoles[] = {u"Director", u"Writer", u"Producer", u"Composer", u"Editor"};
        return QString::fromUtf16(kRoles[number % 5]);
    }
    void Run(const QString &statement) { session.Database->Execute(statement); }

    SilentServices services_;

public:
    Session session;
};

double Milliseconds(const std::function<void()> &work) {
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        for (int page = 0; page < kPagesARound; ++page) {
            work();
        }
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6 / kPagesARound);
    }
    return best;
}

struct Times {
    double page = 0;
    double statements = 0;
};

/// A collection with the page of its first title.
class Page {
public:
    Page(int profiles, QString skin_text) :
        collection_(folder_.path(), profiles), session(collection_.session), skin_text_(std::move(skin_text)) {}

    void Render() {
        const sql::Recordset row = session.Database->OpenRecordset(u"SELECT * FROM Profiles WHERE ProfileID = 'Key_0'");
        length = RenderSkinText(session, skin_, skin_text_, row, false, {}, options_).size();
    }

private:
    QTemporaryDir folder_;
    Collection collection_;

public:
    Session &session;
    qsizetype length = 0;

private:
    QString skin_text_;
    SkinState skin_;
    RenderOptions options_;
};

Times Measure(int profiles, const QString &skin_text, bool tell_statements) {
    Page page(profiles, skin_text);
    sql::Database &database = *page.session.Database;
    QStringList statements;
    database.SetObserver([&](QStringView statement) { statements.append(statement.toString()); });
    page.Render();
    database.SetObserver({});
    if (tell_statements) {
        for (const QString &statement : std::as_const(statements)) {
            std::printf("%s\n", statement.toUtf8().constData());
        }
    }
    Times times;
    times.page = Milliseconds([&] { page.Render(); });
    times.statements = Milliseconds([&] {
        for (const QString &statement : std::as_const(statements)) {
            sql::Recordset rows = database.OpenRecordset(statement);
            for (; !rows.Eof(); rows.MoveNext()) {
            }
        }
    });
    std::printf("%6d profiles: %lld statements, page of %lld characters\n", profiles, qint64(statements.size()),
                qint64(page.length));
    return times;
}

int Main(const QStringList &arguments) {
    QFile file(QString::fromUtf8(OSTRAND_SOURCE_DIR) + u"/resources/skins/Modern/Skin.html"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "bench_skin: %s\n", file.errorString().toUtf8().constData());
        return 2;
    }
    const QString text = QString::fromUtf8(file.readAll());
    if (arguments.contains(u"--pages"_s)) {
        Page page(kPagesARound, text);
        for (int i = 0; i < kPagesARound; ++i) {
            page.Render();
        }
        return 0;
    }
    const Times small = Measure(1000, text, arguments.contains(u"--statements"_s));
    const Times large = Measure(10000, text, false);
    const double ratio = large.page / large.statements;
    const double growth = large.page / small.page;
    std::printf("page %.3f ms, its statements %.3f ms, ratio %.2f (goal %.2f)\n", large.page, large.statements, ratio,
                kGoalRatio);
    std::printf("page at 1,000 profiles %.3f ms, at 10,000 %.3f ms, growth %.2f (goal %.2f)\n", small.page, large.page,
                growth, kGoalGrowth);
    return ratio > 2 * kGoalRatio || growth > 2 * kGoalGrowth ? 1 : 0;
}

} // namespace

} // namespace ostrand::bench

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    return ostrand::bench::Main(QCoreApplication::arguments());
}
