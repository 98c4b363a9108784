// Looking many texts up in a table without a statement for each.
#pragma once

#include <QStringList>

#include <functional>

namespace ostrand {

struct Session;
namespace sql {
class Recordset;
}

/// Runs `statement`, which ends in "IN ", for all texts, some hundred at a time, and hands over each row of the
/// results. Throws SqlError.
void ForEachRowOf(Session &session, const QString &statement, QStringList texts,
                  const std::function<void(const sql::Recordset &row)> &take);

} // namespace ostrand
