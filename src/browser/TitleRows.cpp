#include "browser/TitleRows.h"

#include "base/Dates.h"
#include "sql/Recordset.h"
#include "sql/SqlError.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kNumberWidth = 5;
/// The date of a day count of 0: there is none.
constexpr auto kNoDate = "1899-12-30"_L1;

QString RightJustified(const QString &number) {
    return number.rightJustified(kNumberWidth, u' ');
}

/// A longer number loses its head, deliberately: only a title that stands on its own keeps it.
QString LastFive(const QString &number) {
    return RightJustified(number).right(kNumberWidth);
}

} // namespace

TitleRowReader::TitleRowReader(const ViewState &view, const sql::Recordset &record) :
    record_(record), titles_(view, record), profile_id_(record.Ordinal(u"ProfileID")),
    col_no_(record.Ordinal(u"ColNo")), prod_year_(record.FindOrdinal(u"ProdYear")),
    purchase_date_(record.FindOrdinal(u"PurchaseDate")), released_(record.FindOrdinal(u"Released")) {}

QString TitleRowReader::Date(int ordinal) const {
    const QString text = record_.Text(ordinal);
    if (record_.Get(ordinal).GetType() == sql::Value::Type::Text && !DayCountFromText(text)) {
        return text;
    }
    return text.left(kNoDate.size());
}

QString TitleRowReader::SortTitleOrEmpty() const {
    try {
        return titles_.GetSortTitle(false);
    } catch (const sql::SqlError &) {
        // A profile without any title must not take the others out of the list.
        return {};
    }
}

TitleRow TitleRowReader::DatedRow() const {
    TitleRow row;
    row.key = record_.Text(profile_id_);
    row.tag = titles_.OriginalOrTitle();
    row.tool_tip = titles_.GetTitle(false, true);
    row.texts[TitleList::Title] = row.tool_tip;
    row.texts[TitleList::SortTitle] = SortTitleOrEmpty();
    row.texts[TitleList::Year] = record_.Text(prod_year_);
    row.texts[TitleList::PurchaseDate] = Date(purchase_date_);
    row.texts[TitleList::ReleaseDate] = Date(released_);
    return row;
}

TitleRow TitleRowReader::TopRow() const {
    TitleRow row = DatedRow();
    row.texts[TitleList::Number] = RightJustified(record_.Text(col_no_));
    if (row.texts[TitleList::ReleaseDate] == kNoDate) {
        row.texts[TitleList::ReleaseDate].clear();
    }
    return row;
}

TitleRow TitleRowReader::ChildRow() const {
    // An empty release date shows as the date that it stands for, deliberately.
    TitleRow row = DatedRow();
    row.texts[TitleList::Number] = LastFive(record_.Text(col_no_));
    return row;
}

TitleRow TitleRowReader::BareRow(int number, int indent) const {
    TitleRow row;
    row.key = record_.Text(profile_id_) + u'|' + QString::number(number);
    row.tag = titles_.OriginalOrTitle();
    // Custom titles order the groups without showing in them, deliberately.
    row.tool_tip = titles_.GetTitle(true, false);
    row.texts[TitleList::Title] = QString(indent, u' ') + row.tool_tip;
    row.texts[TitleList::Number] = LastFive(record_.Text(col_no_));
    return row;
}

TitleRow TitleRowReader::GroupRow(int number, int indent) const {
    TitleRow row = BareRow(number, indent);
    row.texts[TitleList::SortTitle] = titles_.GetSortTitle(false);
    return row;
}

TitleRow TitleRowReader::TaggedRow() const {
    TitleRow row = BareRow(0, 0);
    row.texts[TitleList::SortTitle] = SortTitleOrEmpty();
    return row;
}

} // namespace ostrand
