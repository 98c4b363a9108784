// The rows of listSeries, made of records.
#pragma once

#include "browser/TitleList.h"
#include "browser/Titles.h"

namespace ostrand {

/// Makes rows of the records of one result set, whose fields are looked up once. Reads the current record; the result
/// set and the view state must outlive the reader. Fields that a row needs and the record does not have throw SqlError.
class TitleRowReader {
public:
    TitleRowReader(const ViewState &view, const sql::Recordset &record);

    /// A title that stands on its own.
    TitleRow TopRow() const;
    /// A child of a boxset, still without the indent of its level and the sort key of its parent.
    TitleRow ChildRow() const;
    /// A title in a grouped list.
    TitleRow GroupRow(int number, int indent) const;
    /// The same in a list by tags, whose routine has no words for a title without any text: it stands without one.
    TitleRow TaggedRow() const;

private:
    TitleRow DatedRow() const;
    TitleRow BareRow(int number, int indent) const;
    QString SortTitleOrEmpty() const;
    QString Date(int ordinal) const;

    const sql::Recordset &record_;
    TitleReader titles_;
    int profile_id_;
    int col_no_;
    int prod_year_;
    int purchase_date_;
    int released_;
};

} // namespace ostrand
