// Which names a part of a statement can see.
#pragma once

#include "sql/Ast.h"
#include "sql/Catalogue.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace ostrand::sql {

struct SourceColumn {
    QString name;
    QString sql; ///< qualified, quoted
    Kind kind = Kind::Unknown;
    bool collated = false;
};

/// A table or derived table of FROM under the name by which the statement knows it.
struct Source {
    QString name;
    QString alias; ///< ours, unique in the statement
    const TableInfo *table = nullptr;
    std::vector<SourceColumn> columns;

    /// The row id of a table, qualified; a column of the table may have taken the usual name.
    QString RowId() const { return alias + u'.' + table->RowIdName(); }
};

struct Scope {
    const Scope *parent = nullptr;
    std::vector<Source> sources;
    /// While the condition of a join is read, only the sources of its group are seen.
    int first = 0;
    int last = -1; ///< behind the last visible source; -1: all
    /// The select list, while its aliases can be seen.
    const std::vector<ast::SelectItem> *aliases = nullptr;
    bool aliases_first = false;

    struct Match {
        const SourceColumn *column = nullptr;
        int source = -1;
        bool ambiguous = false;
    };
    /// Looks in this scope only.
    Match Find(const ast::ColumnRef &name) const;
    const Source *FindSource(QStringView name) const;
};

} // namespace ostrand::sql
