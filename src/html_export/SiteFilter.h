// Which profiles the site shows.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand {

struct Session;

/// The condition of a statement's outermost WHERE, up to ORDER BY, GROUP BY, HAVING, UNION or its
/// semicolon; empty without one.
QString WhereClause(const QString &statement);

/// The condition of a saved query with the user's answers in it; empty when there is no such query or condition, or the
/// user closed a question. `current_col_type` is the selected collection type.
QString SavedQueryCondition(Session &session, const QString &query, const QString &current_col_type);

/// True for the profiles of these types; the empty name finds those without one.
QString ColTypeCondition(const QStringList &types);

} // namespace ostrand
