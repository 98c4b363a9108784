// A fresh database file with its catalogue, changed by trees that are put together by hand.
#pragma once

#include "TestFunctions.h"

#include "sql/Catalogue.h"
#include "sql/DatabaseFile.h"
#include "sql/Ddl.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ostrand::sql::testing {

/// A column definition: "Name varchar(40) NOT NULL UNIQUE PRIMARY KEY REFERENCES Parent(Key)".
inline ast::ColumnDef Define(const QString &text) {
    QString rest = text;
    ast::ColumnDef column;
    auto take = [&](const QString &words) {
        const bool there = rest.contains(words);
        rest.remove(words);
        return there;
    };
    if (const qsizetype at = rest.indexOf(QStringLiteral(" REFERENCES ")); at >= 0) {
        const QString target = rest.mid(at + 12);
        column.references_table = target.section(u'(', 0, 0);
        column.references_column = target.section(u'(', 1).remove(u')');
        rest.truncate(at);
    }
    column.primary_key = take(QStringLiteral(" PRIMARY KEY"));
    column.unique = take(QStringLiteral(" UNIQUE"));
    column.not_null = take(QStringLiteral(" NOT NULL"));
    column.name = rest.section(u' ', 0, 0);
    column.type_word = rest.section(u' ', 1).section(u'(', 0, 0);
    column.length = rest.section(u'(', 1).remove(u')').toInt();
    return column;
}

inline std::vector<QString> Names(const QString &names) {
    const QStringList list = names.split(u',');
    return {list.begin(), list.end()};
}

inline ast::TableConstraint PrimaryKeyOf(const QString &columns, const QString &name = {}) {
    ast::TableConstraint constraint;
    constraint.name = name;
    constraint.columns = Names(columns);
    return constraint;
}

class StorageFixture : public ::testing::Test {
protected:
    StorageFixture() { catalogue_.Load(connection_); }

    QString PathOf(const QString &name) const { return directory_.filePath(name); }

    void Create(const QString &table, const QStringList &columns, std::vector<ast::TableConstraint> constraints = {}) {
        ast::CreateTable statement;
        statement.table = table;
        for (const QString &column : columns) {
            statement.columns.push_back(Define(column));
        }
        statement.constraints = std::move(constraints);
        ddl_.CreateTable(statement);
    }

    void Index(const QString &name, const QString &table, const QString &columns, bool unique = false) {
        ddl_.CreateIndex({name, table, Names(columns), unique, false});
    }

    void Add(const QString &table, const QString &column) { ddl_.AlterTable({table, ast::AddColumn{Define(column)}}); }
    void Change(const QString &table, const QString &column) {
        ddl_.AlterTable({table, ast::AlterColumn{Define(column)}});
    }
    void Constrain(const QString &table, const ast::TableConstraint &constraint) {
        ddl_.AlterTable({table, ast::AddConstraint{constraint}});
    }

    /// Rows of "a|b", NULL as "-", joined by blanks.
    QString Rows(const QString &sql) {
        Statement rows = connection_.Prepare(sql);
        QStringList all;
        while (rows.Step()) {
            QStringList row;
            for (int i = 0; i < rows.ColumnCount(); ++i) {
                row.append(rows.Column(i).IsNull() ? QStringLiteral("-") : rows.ColumnText(i));
            }
            all.append(row.join(u'|'));
        }
        return all.join(u' ');
    }

    /// The words for a table's indexes: name, columns, "u" for unique, "p" for the primary key.
    QString Indexes(const QString &table) {
        QStringList all;
        for (const IndexInfo &index : catalogue_.FindTable(table)->indexes) {
            all.append(index.name + u'(' + index.columns.join(u',') + u')' +
                       (index.unique ? QStringLiteral("u") : QString()) +
                       (index.primary ? QStringLiteral("p") : QString()));
        }
        return all.join(u' ');
    }

    void Run(const QString &sql) { connection_.Execute(sql); }

    QTemporaryDir directory_;
    Connection connection_ = CreateFile(PathOf(QStringLiteral("own.mdb")), RegisterTestFunctions);
    Catalogue catalogue_;
    Ddl ddl_{connection_, catalogue_};
};

/// The number of the fault that an action ends in, 0 for none.
template <typename Action>
int FaultOf(Action action) {
    try {
        action();
    } catch (const SqlError &error) {
        EXPECT_FALSE(error.Text().isEmpty());
        return error.Number();
    }
    return 0;
}

} // namespace ostrand::sql::testing
