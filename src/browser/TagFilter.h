// listSeries by tags.
#pragma once

#include <QStringList>

namespace ostrand {

class Browser;

/// What the controls of frmFilterTags tell.
struct TagFilter {
    enum class Operator {
        Or, ///< opOR: titles with any of the tags
        And ///< opAND: titles with all of them
    };

    /// Full paths. None lists every title.
    QStringList tags;
    Operator combined = Operator::Or;
    /// checkNOT: titles with none of the tags, whatever the operator.
    bool negated = false;
};

/// Rebuilds the list of the selected tab by tags and shows its first title. A tab whose name makes a faulty statement
/// gives an empty list and a line in the log. Nothing happens in TV view and without a database.
void UpdateCollectionList(Browser &browser, const TagFilter &filter);

} // namespace ostrand
