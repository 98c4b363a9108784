#include "browser/TabTitles.h"

#include "browser/BoxsetRows.h"
#include "browser/TitleRows.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The types of a tab; none for that of all titles. The tab "Owned" shows others besides its own: the settings write
/// them with "|" between them and they are split at blanks here, deliberately: two or more name one type that nothing
/// has.
QStringList TypesOf(const ViewState &view, const QString &tab) {
    if (tab == "All"_L1) {
        return {};
    }
    QStringList types{tab};
    if (tab == "Owned"_L1 && !view.IncludeInOwned.isEmpty()) {
        types += view.IncludeInOwned.split(u' ');
    }
    return types;
}

constexpr QStringView kStatement =
    u"SELECT Title, ColNo, SortTitle, OriginalSortTitle, Description, p.ProfileID, OriginalTitle, PurchaseDate, "
    "ProdYear, Released, CustomTitle, CustomSortTitle, ColType, b.BoxSetID "
    "FROM (Profiles p LEFT JOIN PurchaseInfo pi ON pi.ProfileID = p.ProfileID) "
    "LEFT JOIN BoxSet b ON b.ChildID = p.ProfileID";

/// The names of types go in unescaped, deliberately. Children of boxsets come along whatever their type.
QString ConditionOf(const ViewState &view, const QStringList &types) {
    QStringList conditions;
    for (const QString &type : types) {
        conditions += u"ColType = '%1'"_s.arg(type);
    }
    if (view.BoxsetView) {
        conditions += u"b.ChildID IS NOT NULL"_s;
    }
    return " WHERE "_L1 + conditions.join(" OR "_L1);
}

bool IsAnyOf(const QStringList &types, const sql::Value &value) {
    return !value.IsNull() && std::any_of(types.begin(), types.end(), [&value](const QString &type) {
        return sql::Compare(value.Text(), type) == 0;
    });
}

using Columns = std::vector<QStringView>;

int Compare(const sql::Value &left, const sql::Value &right) {
    return left.IsNull() || right.IsNull() ? int(right.IsNull()) - int(left.IsNull())
                                           : sql::Compare(left.Text(), right.Text());
}

/// The records as ORDER BY would bring them.
std::vector<int> Ordered(const sql::Recordset &record, const Columns &columns) {
    std::vector<int> ordinals;
    ordinals.reserve(columns.size());
    for (const QStringView column : columns) {
        ordinals.push_back(record.Ordinal(column));
    }
    sql::SortKeys keys;
    keys.Reserve(size_t(record.RecordCount()));
    for (int row = 0; row < record.RecordCount(); ++row) {
        const sql::Value &text = record.GetAt(row, ordinals.front());
        if (text.IsNull()) {
            keys.AppendNull();
        } else {
            keys.Append(text.Text());
        }
    }
    std::vector<int> order = keys.Order();
    const auto is_less = [&](int a, int b) {
        for (size_t i = 1; i < ordinals.size(); ++i) {
            const int result = Compare(record.GetAt(a, ordinals[i]), record.GetAt(b, ordinals[i]));
            if (result != 0) {
                return result < 0;
            }
        }
        return false;
    };
    for (auto begin = order.begin(); begin != order.end();) {
        const auto end = std::find_if(begin + 1, order.end(), [&](int row) { return keys.At(row) != keys.At(*begin); });
        std::stable_sort(begin, end, is_less);
        begin = end;
    }
    return order;
}

} // namespace

TabTitles::Records::Records(sql::Recordset opened) :
    record(std::move(opened)), boxset(record.Ordinal(u"BoxSetID")), col_type(record.Ordinal(u"ColType")) {}

const std::vector<int> &TabTitles::Records::Order(bool by_original_title) {
    std::vector<int> &order = orders_[by_original_title ? 1 : 0];
    if (order.empty()) {
        order =
            Ordered(record, by_original_title ? Columns{u"OriginalSortTitle", u"OriginalTitle", u"SortTitle", u"Title"}
                                              : Columns{u"SortTitle", u"Title"});
    }
    return order;
}

std::vector<TitleRow> TabTitles::MakeRows(const Session &session, Records &records, const QStringList &types) {
    const ViewState &view = session.view;
    sql::Recordset &record = records.record;
    const TitleRowReader reader(view, record);
    BoxsetRows boxsets;
    const auto is_child = [&](int row) { return view.BoxsetView && !record.GetAt(row, records.boxset).IsNull(); };
    if (view.BoxsetView) {
        for (const int row : records.Order(false)) {
            if (is_child(row)) {
                record.MoveTo(row);
                boxsets.Add(record.Text(records.boxset), reader.ChildRow());
            }
        }
    }
    std::vector<TitleRow> rows;
    rows.reserve(size_t(record.RecordCount()));
    for (const int row : records.Order(view.mUseOriginalTitle)) {
        if (is_child(row) || (!types.isEmpty() && !IsAnyOf(types, record.GetAt(row, records.col_type)))) {
            continue;
        }
        record.MoveTo(row);
        rows.push_back(reader.TopRow());
        if (view.BoxsetView) {
            const QString id = rows.back().key;
            const QString sort_key = rows.back().texts[TitleList::SortTitle];
            boxsets.GetBoxsetChilds(id, 1, sort_key, rows);
        }
    }
    return rows;
}

TabTitles::Records &TabTitles::Kept(Session &session) {
    if (!kept_ || watch_.Changed()) {
        kept_.reset();
        watch_ = session.Database->Watch({u"Profiles"_s, u"PurchaseInfo"_s, u"BoxSet"_s});
        kept_.emplace(session.Database->OpenRecordset(kStatement));
    }
    return *kept_;
}

std::vector<TitleRow> TabTitles::Read(Session &session, const QString &tab) {
    const QStringList types = TypesOf(session.view, tab);
    if (!types.join(QString()).contains(u'\'')) {
        return MakeRows(session, Kept(session), types);
    }
    // A quote changes the condition, or is a fault in it: that is for the database to tell.
    Records records(session.Database->OpenRecordset(kStatement.toString() + ConditionOf(session.view, types)));
    return MakeRows(session, records, {});
}

} // namespace ostrand
