#include "html_export/SiteQueries.h"

#include "database/DatabaseFunctions.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kInNoBoxset =
    "ProfileID NOT IN (SELECT ChildID FROM BoxSet b, Profiles p WHERE b.ChildID = p.ProfileID)"_L1;

QString SortExpression(const SiteOptions &options) {
    QString expression = u" switch("_s;
    if (options.UseCustomTitle) {
        expression += "CustomTitle<>'', CustomTitle, "_L1;
    }
    if (options.UseTitle) {
        return expression + "SortTitle<>'', SortTitle, Title<>'', Title) AS [RealSort] "_L1;
    }
    return expression + "OriginalSortTitle<>'', OriginalSortTitle, OriginalTitle <> '', OriginalTitle, "
                        "SortTitle <> '', SortTitle, Title <> '', Title) AS [RealSort] "_L1;
}

QString Order(const SiteOptions &options) {
    return options.SortByTitle ? u"1"_s
                               : u"RIGHT('0000000000'+Iif((ColNo Is Null), '0000000000', ColNo), 10) DESC, 1"_s;
}

} // namespace

QString SiteCondition::Text() const {
    return filter.isEmpty() ? col_types : u'(' + filter + ") AND "_L1 + col_types;
}

QString SiteCondition::Count() const {
    return "SELECT COUNT(*) AS [Count] FROM Profiles p WHERE "_L1 + Text();
}

QString SiteCondition::Media() const {
    return "SELECT DISTINCT Medium FROM Profiles p WHERE "_L1 + Text() + " AND "_L1 + kInNoBoxset +
           " ORDER BY Medium"_L1;
}

QString SiteCondition::TabRows(const SiteOptions &options, const QString &tab) const {
    const QString column = options.UseCollectionType ? u"ColType"_s : u"Medium"_s;
    QString of_tab = column + " = '"_L1 + EscapeSql(tab) + u'\'';
    if (tab.isEmpty()) {
        of_tab = u'(' + of_tab + " OR "_L1 + column + " Is NULL)"_L1;
    }
    return "SELECT "_L1 + SortExpression(options) + ", * FROM Profiles p WHERE "_L1 + kInNoBoxset + " AND "_L1 +
           of_tab + " AND "_L1 + Text() + " ORDER BY "_L1 + Order(options);
}

QString BoxsetIds() {
    return u"SELECT DISTINCT b.BoxSetID FROM BoxSet b INNER JOIN Profiles p ON b.ChildID = p.ProfileID"_s;
}

QString BoxsetChildren(const SiteOptions &options, const QString &id) {
    return "SELECT "_L1 + SortExpression(options) +
           ", * FROM Profiles p LEFT JOIN BoxSet b ON b.ChildID = p.ProfileID WHERE b.BoxSetID = '"_L1 + EscapeSql(id) +
           "' ORDER BY "_L1 + Order(options);
}

} // namespace ostrand
