// The sections of the script variables, and what they share.
#pragma once

#include "skin/ScriptWriter.h"
#include "skin/TagCall.h"

#include <vector>

namespace ostrand {

/// A column of the row; NULL where rows of this kind have no such column.
sql::Value RowValue(const TagCall &call, QStringView column);
/// The same as text.
QString RowText(const TagCall &call, QStringView column);
/// The rows of a table that belong to the key. `tail` stands behind the condition.
sql::Recordset KeyRows(const TagCall &call, const QString &table, const QString &tail = {});
/// One column of those rows.
QStringList KeyTexts(const TagCall &call, const QString &table, const QString &column, const QString &tail = {});

/// One row of the cast or the crew.
struct ScriptCredit {
    bool is_divider = false;
    /// The name as credited, or the caption.
    QString credited_name;
    QString common_name;
    QString role;
    bool is_voice = false;
    bool is_uncredited = false;
    bool is_credit_only = false;
    bool has_image = false;
    qint64 birth_year = 0;
};
/// In the order of the credits.
std::vector<ScriptCredit> ReadScriptCredits(const TagCall &call, bool cast);

// The sections of GetDPHeaderVars. (HeaderVarsGeneral.cpp)
void WriteSystemInformation(const TagCall &call, ScriptWriter &script);
void WriteGeneralInformation(const TagCall &call, ScriptWriter &script);
// (HeaderVarsFormats.cpp)
void WriteFormats(const TagCall &call, ScriptWriter &script);
void WriteFeatures(const TagCall &call, ScriptWriter &script);
// (HeaderVarsPersonal.cpp)
void WritePersonalInformation(const TagCall &call, ScriptWriter &script);
void WriteReview(const TagCall &call, ScriptWriter &script);
void WriteLocks(const TagCall &call, ScriptWriter &script);
// (HeaderVarsLists.cpp)
void WriteLists(const TagCall &call, ScriptWriter &script);
// (HeaderVarsCredits.cpp)
void WriteCast(const TagCall &call, ScriptWriter &script);
void WriteCrew(const TagCall &call, ScriptWriter &script);

} // namespace ostrand
