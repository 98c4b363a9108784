// What a saved query leaves open until it runs.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Turns the truth values that stand in quotes into bare ones: 'true', 'True', 'yes', 'X', 'x' and 'false', 'False',
/// 'no'. A plain replacement of text: a value of a text column that reads so is replaced too, deliberately.
QString NormalizeSqlBooleans(QString statement);

/// The statement that runs: OSV_CurrentID, OSV_CurrentIDIsEpisode, OSV_CurrentSeriesID and OSV_CurrentColType (the type
/// `current_col_type`) replaced, cut at its first ";", the user asked for each `$Name$`, truth values made bare. What
/// stands behind the ";" tells the values that are offered for a name: `$Name$ "a|b"` or `$Name$ "SELECT .."`. Empty,
/// with `cancelled` set, when the user closed a question without OK.
QString ResolveQueryVariables(Session &session, const QString &current_col_type, const QString &statement,
                              bool &cancelled);

} // namespace ostrand
