#include "sql/Scope.h"

namespace ostrand::sql {

Scope::Match Scope::Find(const ast::ColumnRef &name) const {
    Match match;
    const int end = last < 0 ? int(sources.size()) : last;
    for (int i = first; i < end; ++i) {
        const Source &source = sources[size_t(i)];
        if (!name.table.isEmpty() && source.name.compare(name.table, Qt::CaseInsensitive) != 0) {
            continue;
        }
        for (const SourceColumn &column : source.columns) {
            if (column.name.compare(name.name, Qt::CaseInsensitive) != 0) {
                continue;
            }
            if (match.column) {
                match.ambiguous = true;
                return match;
            }
            match.column = &column;
            match.source = i;
            break;
        }
    }
    return match;
}

const Source *Scope::FindSource(QStringView name) const {
    for (const Source &source : sources) {
        if (name.compare(source.name, Qt::CaseInsensitive) == 0) {
            return &source;
        }
    }
    return nullptr;
}

} // namespace ostrand::sql
