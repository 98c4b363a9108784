#include "browser/FindIndexReader.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "sql/Collation.h"

#include <QElapsedTimer>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kRowsAtOnce = 2000; // of a statement for all works
constexpr size_t kTitlesAtOnce = 250;
constexpr size_t kMostWorksAtOnce = 64;
constexpr qint64 kLongStep = 8; // milliseconds
constexpr qint64 kShortStep = 3;

/// Titles of chapters stand among the credits.
bool IsDivider(const QString &role) {
    return QStringView(role).mid(1, 3).compare("Div"_L1, Qt::CaseInsensitive) == 0;
}

} // namespace

/// Each but the first takes the first and the last id that it is to read, and gives the id in its first field.
struct FindIndexReader::Statements {
    QStringList tables;
    const char16_t *works; ///< the ids in the order of the database; of an episode with its series
    std::vector<const char16_t *> titles;
    const char16_t *credits; ///< id, name, role, birth year
};

namespace {

const FindIndexReader::Statements &StatementsFor(FindOwners owners) {
    static const FindIndexReader::Statements kProfiles = {
        {u"Profiles"_s, u"Profile2Episodes"_s, u"Episodes"_s, u"CastCrew"_s, u"Alias"_s},
        u"SELECT ProfileID FROM Profiles ORDER BY ProfileID",
        {u"SELECT ProfileID, Title, OriginalTitle, CustomTitle FROM Profiles WHERE ProfileID >= '%1' AND "
         u"ProfileID <= '%2' ORDER BY ProfileID",
         u"SELECT p.ProfileID, EpisodeTitle, EpisodeOriginalTitle FROM Profile2Episodes p INNER JOIN Episodes e ON "
         u"e.EpisodeID = p.EpisodeID WHERE p.ProfileID >= '%1' AND p.ProfileID <= '%2' ORDER BY p.ProfileID"},
        u"SELECT ProfileID, Name, Role, BirthYear FROM CastCrew WHERE ProfileID >= '%1' AND ProfileID <= '%2' "
        u"ORDER BY ProfileID"};
    static const FindIndexReader::Statements kSeries = {
        {u"TVSeries"_s, u"Episodes"_s, u"TVCastCrew"_s, u"Alias"_s},
        u"SELECT EpisodeID, SeriesID FROM Episodes ORDER BY EpisodeID",
        {u"SELECT EpisodeID, EpisodeTitle, EpisodeOriginalTitle FROM Episodes WHERE EpisodeID >= '%1' AND "
         u"EpisodeID <= '%2' ORDER BY EpisodeID"},
        u"SELECT EpisodeID, Name, Role, BirthYear FROM TVCastCrew WHERE EpisodeID >= '%1' AND EpisodeID <= '%2' "
        u"ORDER BY EpisodeID"};
    return owners == FindOwners::Profiles ? kProfiles : kSeries;
}

} // namespace

FindIndexReader::FindIndexReader(Session &session, FindOwners owners) :
    session_(session), owners_(owners), statements_(StatementsFor(owners)),
    watch_(session.Database->Watch(statements_.tables)), works_at_once_(kMostWorksAtOnce / 4) {}

bool FindIndexReader::Step() {
    switch (phase_) {
    case Phase::Links:
        if (!ReadLinks()) {
            phase_ = Phase::Works;
        }
        break;
    case Phase::Works:
        if (!ReadWorks()) {
            phase_ = works_.empty() ? Phase::Done : Phase::Titles;
        }
        break;
    case Phase::Titles:
        ReadTitles();
        break;
    case Phase::Credits:
        ReadCredits();
        break;
    case Phase::Done:
        break;
    }
    return phase_ != Phase::Done;
}

FindIndex FindIndexReader::TakeIndex() {
    phase_ = Phase::Done;
    index_.Finish();
    return std::move(index_);
}

/// Runs a statement at the first call, and hands over some of its rows at each; false when these were the last.
template <typename Take>
bool FindIndexReader::ForSomeRows(const char16_t *statement, Take take) {
    if (!rows_) {
        rows_ = session_.Database->OpenRecordset(QString::fromUtf16(statement));
        return true;
    }
    for (int i = 0; i < kRowsAtOnce && !rows_->Eof(); ++i, rows_->MoveNext()) {
        take(*rows_);
    }
    if (rows_->Eof()) {
        rows_.reset();
    }
    return rows_.has_value();
}

bool FindIndexReader::ReadLinks() {
    return ForSomeRows(u"SELECT AliasName, CommonName, BirthYear FROM Alias", [this](const sql::Recordset &row) {
        index_.AddLink(row.Text(0), row.Text(1), int(row.Get(2).Integer()));
    });
}

void FindIndexReader::ReadSeries() {
    sql::Recordset rows = session_.Database->OpenRecordset(u"SELECT SeriesID, Title, OriginalTitle FROM TVSeries");
    for (; !rows.Eof(); rows.MoveNext()) {
        const int owner = index_.AddOwner(rows.Text(0));
        index_.AddTitle(owner, rows.Text(1));
        index_.AddTitle(owner, rows.Text(2));
        series_.insert(sql::SortKey(rows.Text(0)), owner);
    }
}

bool FindIndexReader::ReadWorks() {
    if (owners_ == FindOwners::Series && series_.isEmpty()) {
        ReadSeries();
    }
    return ForSomeRows(statements_.works, [this](const sql::Recordset &row) {
        const int owner = owners_ == FindOwners::Profiles ? index_.AddOwner(row.Text(0))
                                                          : series_.value(sql::SortKey(row.Text(1)), -1);
        if (owner >= 0) {
            works_.push_back({row.Text(0), owner});
        }
    });
}

/// Runs a statement for the next works, and hands over its rows with the work that each belongs to. Both come in the
/// same order; ids that differ in case alone are one.
template <typename Take>
void FindIndexReader::ForEachRow(const char16_t *statement, size_t count, Take take) {
    const size_t end = std::min(next_ + count, works_.size());
    sql::Recordset rows = session_.Database->OpenRecordset(
        QString::fromUtf16(statement).arg(EscapeSql(works_[next_].id), EscapeSql(works_[end - 1].id)));
    for (size_t work = next_; !rows.Eof(); rows.MoveNext()) {
        const QString id = rows.Text(0);
        while (work < end && works_[work].id != id && sql::Compare(works_[work].id, id) < 0) {
            ++work;
        }
        if (work < end && (works_[work].id == id || sql::Compare(works_[work].id, id) == 0)) {
            take(work, rows);
        }
    }
}

void FindIndexReader::GoOn(size_t count, Phase next) {
    next_ += count;
    if (next_ >= works_.size()) {
        next_ = 0;
        phase_ = next;
    }
}

void FindIndexReader::ReadTitles() {
    for (const char16_t *statement : statements_.titles) {
        ForEachRow(statement, kTitlesAtOnce, [this](size_t work, const sql::Recordset &row) {
            for (int field = 1; field < int(row.Fields().size()); ++field) {
                index_.AddTitle(works_[work].owner, row.Text(field));
            }
        });
    }
    GoOn(kTitlesAtOnce, Phase::Credits);
}

void FindIndexReader::ReadCredits() {
    QElapsedTimer clock;
    clock.start();
    size_t begun = works_.size();
    ForEachRow(statements_.credits, works_at_once_, [&](size_t work, const sql::Recordset &row) {
        if (IsDivider(row.Text(2))) {
            return;
        }
        if (std::exchange(begun, work) != work) {
            index_.BeginCredits(works_[work].owner);
        }
        index_.AddPerson(row.Text(1), int(row.Get(3).Integer()));
    });
    GoOn(works_at_once_, Phase::Done);
    const qint64 elapsed = clock.elapsed();
    if (elapsed > kLongStep) {
        works_at_once_ = std::max<size_t>(works_at_once_ / 2, 1);
    } else if (elapsed < kShortStep) {
        works_at_once_ = std::min(works_at_once_ * 2, kMostWorksAtOnce);
    }
}

} // namespace ostrand
