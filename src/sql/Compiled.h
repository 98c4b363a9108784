// A statement of the dialect, ready to run on SQLite.
#pragma once

#include "sql/Recordset.h"
#include "sql/Types.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

namespace ostrand::sql {

/// A parameter of the SQLite text, and the literal that fills it.
struct ParameterSlot {
    int literal = -1;
    bool convert = false; ///< converted as a column of `kind` stores it; otherwise bound as the literal's own kind
    Kind kind = Kind::Text;
    int length = 0;

    bool operator==(const ParameterSlot &) const = default;
};

/// The columns of a result, shared by all result sets of one compiled statement.
struct ResultShape {
    std::vector<Field> fields;
    std::vector<QString> base_columns; ///< per field the column of `table`, empty for an expression
    QString table;                     ///< the one table of an editable result; its row id is the last SQLite column
    QString row_id;                    ///< SQLite's name of it in that table

    /// Exact label first, then the first label that ends in ".name"; -1 when there is none.
    int Find(QStringView name) const;
};

/// The row-by-row part of an UPDATE over a join: the query gives row id and values, this writes them.
struct RowUpdate {
    QString sql; ///< values first, the row id last
    int first_column = 0;
    int column_count = 0;
};

struct Compiled {
    enum class Type { Query, Change, JoinUpdate, SelectInto };
    Type type = Type::Query;
    QString sql;
    std::vector<ParameterSlot> parameters;
    std::vector<int> baked; ///< literals that no parameter takes: their content shaped `sql`
    std::shared_ptr<const ResultShape> result;
    std::vector<RowUpdate> updates;
    QString into;
};

} // namespace ostrand::sql
