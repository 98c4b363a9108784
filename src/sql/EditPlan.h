// How the rows of an editable result are written: worked out once for all result sets of a statement.
#pragma once

#include "sql/Catalogue.h"
#include "sql/Compiled.h"
#include "sql/Connection.h"

#include <memory>
#include <optional>
#include <vector>

namespace ostrand::sql {

/// Holds for one generation of the catalogue.
class EditPlan {
public:
    EditPlan(std::shared_ptr<const ResultShape> shape, const Catalogue &catalogue);

    bool IsFor(const Catalogue &catalogue) const { return generation_ == catalogue.Generation(); }
    /// The column behind a field; null where the field cannot be changed.
    const ColumnInfo *Column(int ordinal) const { return columns_[size_t(ordinal)]; }
    /// Throws NullNotAllowed where the row would lack a part of its key: the rules of the schema let such a row fall
    /// without a word, here a fault is due.
    void RequireKey(bool is_new, const std::vector<std::optional<Value>> &values) const;

    /// The statement that writes those fields that have a value, in their order: a new row, or else the row whose id is
    /// bound behind them.
    std::shared_ptr<Statement> StatementFor(const Connection &connection, bool is_new,
                                            const std::vector<std::optional<Value>> &values);

private:
    /// A column of the primary key and the fields that show it.
    struct KeyColumn {
        const ColumnInfo *column = nullptr;
        std::vector<int> fields;
    };
    struct Kept {
        bool is_new = false;
        std::vector<bool> fields;
        std::shared_ptr<Statement> statement;
    };
    QString Sql(bool is_new, const std::vector<bool> &fields) const;

    std::shared_ptr<const ResultShape> shape_;
    std::vector<const ColumnInfo *> columns_;
    std::vector<KeyColumn> key_;
    std::vector<Kept> kept_;
    int generation_;
};

} // namespace ostrand::sql
