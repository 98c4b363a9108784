// Fills a FindIndex from the database in small steps.
#pragma once

#include "browser/FindIndex.h"
#include "sql/Recordset.h"
#include "sql/TableWatch.h"

namespace ostrand {

struct Session;

/// What the list holds that an index is made for.
enum class FindOwners { Profiles, Series };

class FindIndexReader {
public:
    /// The session and its open database must outlive it.
    FindIndexReader(Session &session, FindOwners owners);

    /// Reads a little, for about some milliseconds; false when all is read. Titles come before persons. Throws
    /// SqlError.
    bool Step();
    FindOwners Owners() const { return owners_; }
    const FindIndex &Index() const { return index_; }
    /// The tables that are read, watched since before the first step.
    const sql::TableWatch &Watch() const { return watch_; }
    /// The reader is over with this.
    FindIndex TakeIndex();

    struct Statements;

private:
    enum class Phase { Links, Works, Titles, Credits, Done };
    /// What has credits: a profile itself, or an episode of a series.
    struct Work {
        QString id;
        int owner;
    };

    bool ReadLinks();
    void ReadSeries();
    bool ReadWorks();
    template <typename Take>
    bool ForSomeRows(const char16_t *statement, Take take);
    void ReadTitles();
    void ReadCredits();
    template <typename Take>
    void ForEachRow(const char16_t *statement, size_t count, Take take);
    void GoOn(size_t count, Phase next);

    Session &session_;
    FindOwners owners_;
    const Statements &statements_;
    sql::TableWatch watch_;
    FindIndex index_;
    Phase phase_ = Phase::Links;
    std::optional<sql::Recordset> rows_; ///< of a statement for all works, while they are worked off
    QHash<QByteArray, int> series_;      ///< owners by the sort keys of their ids
    std::vector<Work> works_;            ///< in the order of the database
    size_t next_ = 0;                    ///< the work that the phase reads next
    size_t works_at_once_;
};

} // namespace ostrand
