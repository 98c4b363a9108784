// The statements of a piece of work, to be run again without what is made of them.
#pragma once

#include "sql/Database.h"

#include <QStringList>

#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>

namespace ostrand::bench {

/// Milliseconds of the processor: what else the machine does counts not.
inline double Milliseconds(const std::function<void()> &work) {
    const std::clock_t start = std::clock();
    work();
    return double(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

/// Those that `work` sends, in their order.
inline QStringList StatementsOf(sql::Database &database, const std::function<void()> &work) {
    QStringList statements;
    database.SetObserver([&statements](QStringView statement) { statements += statement.toString(); });
    work();
    database.SetObserver({});
    return statements;
}

/// Sends them and reads their rows to the end.
inline void ReadAll(sql::Database &database, const QStringList &statements) {
    for (const QString &statement : statements) {
        for (sql::Recordset rows = database.OpenRecordset(statement); !rows.Eof(); rows.MoveNext()) {
        }
    }
}

struct WorkTimes {
    double work = std::numeric_limits<double>::max();
    double statements = std::numeric_limits<double>::max();
    qsizetype statement_count = 0;
};

/// The quickest of some rounds of the work and of its statements alone, by turns.
inline WorkTimes MeasureWork(sql::Database &database, int rounds, const std::function<void()> &work) {
    WorkTimes times;
    const QStringList statements = StatementsOf(database, work);
    times.statement_count = statements.size();
    for (int i = 0; i < rounds; ++i) {
        times.statements = std::min(times.statements, Milliseconds([&] { ReadAll(database, statements); }));
        times.work = std::min(times.work, Milliseconds(work));
    }
    return times;
}

} // namespace ostrand::bench
