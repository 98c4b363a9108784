#include "sql/RowRules.h"

#include "sql/Catalogue.h"
#include "sql/Connection.h"

namespace ostrand::sql {

using namespace Qt::StringLiterals;

namespace {

// No name of the dialect meets it: names of triggers are a space of their own that the dialect has no words for.
constexpr QStringView kNameStart = u"rowrule/";

using Triggers = QHash<QString, QString>; // name to SQL

QString Qualified(QStringView row, const QString &column) {
    return row.toString() + u'.' + QuoteName(column);
}

QString QuotedList(const QStringList &columns) {
    QStringList quoted;
    for (const QString &column : columns) {
        quoted.append(QuoteName(column));
    }
    return quoted.join(u", ");
}

QStringList Conditions(const QStringList &columns, const std::function<QString(qsizetype)> &condition) {
    QStringList all;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        all.append(condition(i));
    }
    return all;
}

QString InBrackets(const QStringList &conditions, QStringView between) {
    return u'(' + conditions.join(between) + u')';
}

bool IsSelfReference(const TableInfo &table, const ReferenceInfo &reference) {
    return table.name.compare(reference.parent_table, Qt::CaseInsensitive) == 0;
}

/// True for a new child row that has no parent. A NULL refers to nothing, an empty text does.
QString LacksParent(const TableInfo &child, const ReferenceInfo &reference) {
    const QStringList &columns = reference.columns;
    QStringList all =
        Conditions(columns, [&](qsizetype i) { return Qualified(u"NEW", columns.at(i)) + u" IS NOT NULL"_s; });
    const QStringList equal = Conditions(columns, [&](qsizetype i) {
        return Qualified(u"parent", reference.parent_columns.at(i)) + u" = "_s + Qualified(u"NEW", columns.at(i));
    });
    all.append(QStringLiteral("NOT EXISTS (SELECT 1 FROM %1 AS parent WHERE %2)")
                   .arg(QuoteName(reference.parent_table), equal.join(u" AND ")));
    if (IsSelfReference(child, reference)) {
        const QStringList own = Conditions(columns, [&](qsizetype i) {
            return Qualified(u"NEW", reference.parent_columns.at(i)) + u" IS "_s + Qualified(u"NEW", columns.at(i));
        });
        all.append(u"NOT "_s + InBrackets(own, u" AND "));
    }
    return InBrackets(all, u" AND ");
}

/// True for an old parent row that another row refers to.
QString HasChild(const TableInfo &child, const ReferenceInfo &reference) {
    QStringList all = Conditions(reference.columns, [&](qsizetype i) {
        return Qualified(u"child", reference.columns.at(i)) + u" = "_s +
               Qualified(u"OLD", reference.parent_columns.at(i));
    });
    const QString row_id = child.RowIdName();
    if (IsSelfReference(child, reference) && !row_id.isEmpty()) {
        all.append(QStringLiteral("child.%1 <> OLD.%1").arg(row_id));
    }
    return QStringLiteral("EXISTS (SELECT 1 FROM %1 AS child WHERE %2)").arg(QuoteName(child.name), all.join(u" AND "));
}

QString KeyChanges(const ReferenceInfo &reference) {
    return InBrackets(Conditions(reference.parent_columns,
                                 [&](qsizetype i) {
                                     const QString &column = reference.parent_columns.at(i);
                                     return Qualified(u"NEW", column) + u" IS NOT "_s + Qualified(u"OLD", column);
                                 }),
                      u" OR ");
}

/// The columns of the primary key that SQLite itself would let be NULL.
QStringList OpenKeyColumns(const TableInfo &table) {
    QStringList open;
    if (const IndexInfo *key = table.PrimaryKey()) {
        for (const QString &name : key->columns) {
            const ColumnInfo *column = table.FindColumn(name);
            if (column != nullptr && !column->not_null && column->kind != Kind::Boolean) {
                open.append(column->name);
            }
        }
    }
    return open;
}

/// Puts the triggers of a file together.
class TriggerMaker {
public:
    explicit TriggerMaker(const Catalogue &catalogue) : catalogue_(catalogue) {}

    Triggers Make() {
        for (const TableInfo &table : catalogue_.Tables()) {
            AddChildRules(table);
            AddParentRules(table);
        }
        return std::move(triggers_);
    }

private:
    void Add(const TableInfo &table, const QString &kind, const QString &event, const QString &condition) {
        const QString name = kNameStart.toString() + table.name + u'/' + kind;
        triggers_.insert(name,
                         QStringLiteral("CREATE TRIGGER %1 BEFORE %2 ON %3 WHEN %4 BEGIN SELECT RAISE(IGNORE); END")
                             .arg(QuoteName(name), event, QuoteName(table.name), condition));
    }

    void AddChildRules(const TableInfo &table) {
        QStringList refused;
        for (size_t i = 0; i < table.references.size(); ++i) {
            const ReferenceInfo &reference = table.references[i];
            if (catalogue_.FindTable(reference.parent_table) == nullptr) {
                continue;
            }
            refused.append(LacksParent(table, reference));
            Add(table, QStringLiteral("update/%1").arg(i), u"UPDATE OF "_s + QuotedList(reference.columns),
                refused.last());
        }
        const QStringList open = OpenKeyColumns(table);
        if (!open.isEmpty()) {
            refused.append(InBrackets(
                Conditions(open, [&](qsizetype i) { return Qualified(u"NEW", open.at(i)) + u" IS NULL"_s; }), u" OR "));
            Add(table, QStringLiteral("update/key"), u"UPDATE OF "_s + QuotedList(open), refused.last());
        }
        if (!refused.isEmpty()) {
            Add(table, QStringLiteral("insert"), QStringLiteral("INSERT"), refused.join(u" OR "));
        }
    }

    void AddParentRules(const TableInfo &parent) {
        QStringList kept;
        for (const TableInfo &child : catalogue_.Tables()) {
            for (const ReferenceInfo &reference : child.references) {
                if (parent.name.compare(reference.parent_table, Qt::CaseInsensitive) != 0) {
                    continue;
                }
                Add(parent, QStringLiteral("rekey/%1").arg(kept.size()),
                    u"UPDATE OF "_s + QuotedList(reference.parent_columns),
                    KeyChanges(reference) + u" AND "_s + HasChild(child, reference));
                kept.append(HasChild(child, reference));
            }
        }
        if (!kept.isEmpty()) {
            Add(parent, QStringLiteral("delete"), QStringLiteral("DELETE"), kept.join(u" OR "));
        }
    }

    const Catalogue &catalogue_;
    Triggers triggers_;
};

Triggers PresentTriggers(const Connection &connection) {
    Triggers present;
    Statement rows = connection.Prepare(u"SELECT name, sql FROM sqlite_schema WHERE type = 'trigger' AND "
                                        "name >= 'rowrule/' AND name < 'rowrule0'");
    while (rows.Step()) {
        present.insert(rows.ColumnText(0), rows.ColumnText(1));
    }
    return present;
}

void DropTrigger(const Connection &connection, const QString &name) {
    connection.Execute(u"DROP TRIGGER "_s + QuoteName(name));
}

} // namespace

void SyncRowRules(Connection &connection, const Catalogue &catalogue) {
    const Triggers wanted = TriggerMaker(catalogue).Make();
    const Triggers present = PresentTriggers(connection);
    for (auto it = present.begin(); it != present.end(); ++it) {
        if (wanted.value(it.key()) != it.value()) {
            DropTrigger(connection, it.key());
        }
    }
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        if (present.value(it.key()) != it.value()) {
            connection.Execute(it.value());
        }
    }
}

void DropRowRules(Connection &connection) {
    const Triggers present = PresentTriggers(connection);
    for (auto it = present.begin(); it != present.end(); ++it) {
        DropTrigger(connection, it.key());
    }
}

} // namespace ostrand::sql
