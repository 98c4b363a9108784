// The titles of a collection tab.
#pragma once

#include "browser/TitleList.h"
#include "sql/Recordset.h"
#include "sql/TableWatch.h"

#include <optional>

namespace ostrand {

struct Session;

/// Reads the titles of all tabs at once and keeps them while they do not change in the database, so that another tab,
/// view or order costs no statement.
class TabTitles {
public:
    /// The rows of a tab in the order of their titles; in boxset view children stand below their parents alone. Throws
    /// SqlError.
    std::vector<TitleRow> Read(Session &session, const QString &tab);

private:
    class Records {
    public:
        explicit Records(sql::Recordset opened);
        /// The numbers of the records, in the order of their titles.
        const std::vector<int> &Order(bool by_original_title);

        sql::Recordset record;
        int boxset;
        int col_type;

    private:
        std::array<std::vector<int>, 2> orders_; ///< empty where none was asked for
    };

    /// The titles of some types; all of them without any.
    static std::vector<TitleRow> MakeRows(const Session &session, Records &records, const QStringList &types);
    Records &Kept(Session &session);

    std::optional<Records> kept_;
    sql::TableWatch watch_; ///< of the tables behind `kept_`
};

} // namespace ostrand
