// A list written out as text.
#pragma once

#include <QAbstractItemModel>
#include <QByteArray>
#include <QList>
#include <QString>

#include <algorithm>

namespace ostrand {

/// All rows of a list, in order.
QList<int> AllRows(const QAbstractItemModel &list);
/// The headings and the rows as lines that end in CR LF, their cells joined by `divider`, cells as they are. Given in
/// pieces, as a result may be larger than what should stand in memory twice.
class ResultLines {
public:
    ResultLines(const QAbstractItemModel &list, QString divider);

    /// Some more lines; empty behind the last one.
    QString Next();
    /// How many rows were given.
    int Done() const { return std::max(row_, 0); }

private:
    const QAbstractItemModel &list_;
    QString divider_;
    int row_ = -1; ///< the next one; -1 for the headings
};
/// The same for pasting into other programs: cells are joined by tabs, and blanks within them kept to one line.
QString ResultForClipboard(const QAbstractItemModel &list, const QList<int> &rows);
/// The rows as XML: a root Table, a TableRow for each, a Field with the heading as its Name for each cell that is not
/// empty.
QByteArray ResultXml(const QAbstractItemModel &list, const QList<int> &rows);

} // namespace ostrand
