// The discs of a profile, and what it costs.
#pragma once

#include "browser/SheetTitle.h"
#include "shell/ListTable.h"

namespace ostrand {

struct Session;

/// The columns of listDiscs, translated.
QStringList DiscColumns(Session &session);
/// The rows of listDiscs in the order of the discs. Throws SqlError.
std::vector<ListTableRow> ReadDiscs(Session &session, const SheetTitle &title);
/// What stands behind the description of a side that has an identity: it and its label, in brackets. Empty without one.
QString MakeXForPresentDiscID(const QString &disc_id, const QString &label);

/// A line of the prices; both texts as shown.
struct PriceLine {
    QString label;
    QString value;
};

/// All lines, those without a value too. Throws SqlError.
QList<PriceLine> ReadPrices(Session &session, const SheetTitle &title);

} // namespace ostrand
