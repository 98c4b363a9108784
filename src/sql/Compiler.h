// From the syntax tree of a statement to SQLite's SQL: names resolved, expressions typed, texts collated.
#pragma once

#include "sql/Ast.h"
#include "sql/Catalogue.h"
#include "sql/Compiled.h"
#include "sql/Scope.h"
#include "sql/SqlError.h"

#include <QString>

#include <vector>

namespace ostrand::sql {

/// SQLite text of an expression, with what is known of its value.
struct Fragment {
    QString sql;
    Kind kind = Kind::Unknown;
    bool condition = false; ///< 1, 0 or NULL as SQLite's own conditions, rather than -1, 0 or NULL
    bool collated = false;  ///< compares by our collation without being told
    bool chain = false;     ///< a sum or a text joined, in brackets that a further member on its right does not need
};

/// Compiles one statement; used once. DDL and TRANSFORM have roads of their own (Ddl, CompileTransform).
class Compiler {
public:
    explicit Compiler(const Catalogue &catalogue) : catalogue_(catalogue) {}

    Compiled CompileQuery(const ast::Query &query);
    Compiled CompileInsert(const ast::Insert &insert);
    Compiled CompileUpdate(const ast::Update &update);
    Compiled CompileDelete(const ast::Delete &statement);
    /// The query for the distinct values of PIVOT, in order.
    Compiled CompilePivotValues(const ast::Transform &transform);
    Compiled CompileTransform(const ast::Transform &transform, const std::vector<Value> &headings);

private:
    struct OutputColumn {
        QString label;
        Fragment value;
        QString base_table;
        QString base_column;
    };
    struct QueryText {
        QString sql;
        std::vector<OutputColumn> columns;
        QString row_id_table; ///< the table whose row id stands behind the columns
        QString row_id;
    };
    /// The parts of a SELECT that several forms of it share.
    struct SelectParts {
        QString from;
        QString where;
        std::vector<OutputColumn> columns;
        QStringList group;
        QString having;
        QStringList order;
        QStringList order_positions; ///< the same by place in the select list, where each key is one
        bool grouped = false;
        bool order_by_position = false;
    };

    // Queries
    QueryText EmitQuery(const ast::Query &query, const Scope *parent, bool top_level);
    QueryText EmitUnion(const ast::Query &query, const Scope *parent, bool top_level);
    QueryText EmitSelect(const ast::Select &select, const std::vector<ast::OrderItem> &order_by, const Scope *parent,
                         bool top_level);
    SelectParts EmitSelectParts(const ast::Select &select, const std::vector<ast::OrderItem> &order_by, Scope &scope);
    QString AssembleSelect(const ast::Select &select, const SelectParts &parts, const Scope &scope, bool top_level,
                           bool with_row_id);
    QString AssembleTop(const ast::Select &select, const SelectParts &parts, const QString &row_id);
    QString EmitFrom(const std::vector<ast::TableRefPtr> &from, Scope &scope);
    QString EmitTableRef(const ast::TableRef &ref, Scope &scope);
    QString EmitNamedTable(const ast::NamedTable &table, int position, Scope &scope);
    QString EmitDerivedTable(const ast::DerivedTable &table, Scope &scope);
    QString EmitJoin(const ast::Join &join, Scope &scope);
    std::vector<OutputColumn> EmitItems(const std::vector<ast::SelectItem> &items, Scope &scope);
    void AddStar(const ast::SelectItem &item, const Scope &scope, std::vector<OutputColumn> &columns);
    void LabelColumns(std::vector<OutputColumn> &columns, const std::vector<ast::SelectItem> &items,
                      const Scope &scope);
    void EmitOrder(const ast::Select &select, const std::vector<ast::OrderItem> &order_by, SelectParts &parts,
                   Scope &scope);
    void CheckGrouped(const ast::Expr &expr, const QStringList &group, Scope &scope);
    QString DistinctRowGroup(const ast::Select &select, const Scope &scope) const;
    static QString ColumnList(const std::vector<OutputColumn> &columns);
    static bool HasAggregate(const ast::Expr &expr);
    static bool GivesOneRow(const ast::Query &query);
    static bool Aggregates(const ast::Select &select, const std::vector<ast::OrderItem> &order_by);
    static std::shared_ptr<const ResultShape> MakeResult(const QueryText &text);

    // Expressions
    Fragment Emit(const ast::Expr &expr, Scope &scope);
    Fragment EmitLiteral(const ast::Literal &literal);
    Fragment EmitColumn(const ast::ColumnRef &ref, int position, Scope &scope);
    const ast::SelectItem *FindAlias(const ast::ColumnRef &ref, const Scope &scope) const;
    Fragment EmitAlias(const ast::SelectItem &item, int position, Scope &scope);
    Fragment EmitUnary(const ast::Unary &unary, Scope &scope);
    Fragment EmitBinary(const ast::Binary &binary, int position, Scope &scope);
    Fragment EmitLogic(ast::BinaryOp op, const Fragment &left, const Fragment &right);
    Fragment EmitArithmetic(ast::BinaryOp op, const Fragment &left, const Fragment &right);
    Fragment EmitAdd(const Fragment &left, const Fragment &right);
    Fragment EmitConcat(const ast::Binary &binary, Scope &scope);
    Fragment EmitComparison(ast::BinaryOp op, const Fragment &left, const Fragment &right, int position);
    Fragment EmitLike(const ast::Like &like, Scope &scope);
    Fragment EmitBetween(const ast::Between &between, int position, Scope &scope);
    Fragment EmitIn(const ast::In &in, int position, Scope &scope);
    Fragment EmitQuantified(const ast::Quantified &quantified, int position, Scope &scope);
    Fragment EmitSubquery(const ast::Query &query, int position, Scope &scope);
    Fragment EmitCall(const ast::Call &call, int position, Scope &scope);
    Fragment EmitAggregate(const ast::Call &call, int position, Scope &scope);
    Fragment EmitSpecialCall(const QString &name, const ast::Call &call, int position, Scope &scope);
    Fragment EmitCase(const std::vector<std::pair<QString, Fragment>> &branches, const Fragment *otherwise);
    QString EmitCondition(const ast::Expr &expr, Scope &scope);
    QString Parameter(const ParameterSlot &slot);

    static QString ToValue(const Fragment &fragment);
    static QString ChainStart(const Fragment &left, bool text);
    static QString ToCondition(const Fragment &fragment);
    static QString ToText(const Fragment &fragment);
    static QString ToNumber(const Fragment &fragment);
    static QString Collated(const Fragment &fragment);
    static void CheckComparable(Kind left, Kind right, int position);
    static Kind CommonKind(Kind left, Kind right);

    // Changes
    static QString PivotCondition(const Fragment &pivot, const Value &heading);
    static std::vector<const ColumnInfo *> ColumnsByName(const TableInfo &table, const QueryText &query);
    QString EmitForColumn(const ast::Expr &expr, const ColumnInfo &column, Scope &scope);
    static QString ConvertForColumnSql(const Fragment &fragment, const ColumnInfo &column);
    const TableInfo &RequireTable(const QString &name, int position) const;
    static const ColumnInfo &RequireColumn(const TableInfo &table, const QString &name, int position);
    Compiled CompileJoinUpdate(const ast::Update &update, Scope &scope, const QString &from);
    Compiled Finish(Compiled compiled);

    const Catalogue &catalogue_;
    std::vector<ParameterSlot> parameters_;
    int next_alias_ = 0;
    bool bake_ = false;
    bool aggregates_allowed_ = false;
    bool in_aggregate_ = false;
    QString aggregate_filter_;
    std::vector<const ast::SelectItem *> expanding_;
};

} // namespace ostrand::sql
