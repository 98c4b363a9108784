// The syntax tree of a statement, as the parser leaves it: names are not resolved, types not known.
#pragma once

#include "sql/Types.h"

#include <QString>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace ostrand::sql::ast {

struct Query;
struct Expr;
using ExprPtr = std::unique_ptr<Expr>;
using QueryPtr = std::unique_ptr<Query>;

/// A literal. `index` counts the literal tokens of the statement in the order of its text, from 0; -1 where the
/// literal did not come from a literal token (True, Yes, Null). Dates stand in `number` as day counts.
struct Literal {
    Kind kind = Kind::Null; ///< Text, Integer, Real, Date, Boolean or Null
    QString text;
    double number = 0;
    int index = -1;
};

/// A name with up to one qualifier: `p.Title`, `[Profiles]![Title]`, `Title`.
struct ColumnRef {
    QString table;
    QString name;
};

enum class UnaryOp { Minus, Plus, Not };
struct Unary {
    UnaryOp op;
    ExprPtr operand;
};

enum class BinaryOp {
    Imp,
    Eqv,
    Xor,
    Or,
    And,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Concat, ///< &
    Add,
    Subtract,
    Mod,
    IntDivide, ///< backslash
    Multiply,
    Divide,
    Power,
};
struct Binary {
    BinaryOp op;
    ExprPtr left;
    ExprPtr right;
};

struct Like {
    ExprPtr text;
    ExprPtr pattern;
    bool negated = false;
};

struct IsNull {
    ExprPtr operand;
    bool negated = false;
};

struct Between {
    ExprPtr operand;
    ExprPtr low;
    ExprPtr high;
    bool negated = false;
};

/// `x [NOT] IN (a, b, c)` or `x [NOT] IN (SELECT ..)`: exactly one of `items` and `query` is used.
struct In {
    ExprPtr operand;
    std::vector<ExprPtr> items;
    QueryPtr query;
    bool negated = false;
};

struct Exists {
    QueryPtr query;
};

/// A query in round brackets that stands for its single value.
struct Subquery {
    QueryPtr query;
};

/// `x > ALL (SELECT ..)`; SOME reads as ANY.
struct Quantified {
    BinaryOp op;
    ExprPtr operand;
    bool all = false;
    QueryPtr query;
};

/// A call, of a scalar function or an aggregate. `star` is COUNT(*).
struct Call {
    QString name;
    std::vector<ExprPtr> arguments;
    bool star = false;
};

struct Expr {
    std::variant<Literal, ColumnRef, Unary, Binary, Like, IsNull, Between, In, Exists, Subquery, Quantified, Call> node;
    int position = -1; ///< of the first token, in UTF-16 units
};

/// An item of a select list: a star, a `t.*`, or an expression with an optional alias.
struct SelectItem {
    ExprPtr expr;       ///< empty for a star
    QString star_table; ///< of `t.*`; empty for a plain star
    QString alias;
    int position = -1;
};

struct TableRef;
using TableRefPtr = std::unique_ptr<TableRef>;

struct NamedTable {
    QString name;
    QString alias;
};
struct DerivedTable {
    QueryPtr query;
    QString alias;
};
enum class JoinType { Inner, Left, Right };
struct Join {
    JoinType type;
    TableRefPtr left;
    TableRefPtr right;
    ExprPtr on;
};
struct TableRef {
    std::variant<NamedTable, DerivedTable, Join> node;
    int position = -1;
};

struct OrderItem {
    ExprPtr expr; ///< an integer literal is an ordinal of the select list
    bool descending = false;
};

enum class Distinct { All, Distinct, DistinctRow };

struct Select {
    Distinct distinct = Distinct::All;
    std::optional<qint64> top;
    bool top_percent = false;
    std::vector<SelectItem> items;
    QString into;                  ///< the table of SELECT .. INTO
    std::vector<TableRefPtr> from; ///< the members of the comma list; empty without FROM
    ExprPtr where;
    std::vector<ExprPtr> group_by;
    ExprPtr having;
};

/// A member of a UNION: a SELECT, or a query in round brackets.
struct QueryTerm {
    std::variant<std::unique_ptr<Select>, QueryPtr> node;
    bool all = false; ///< UNION ALL with the term before it
};

/// One or more terms joined by UNION; ORDER BY stands at the end and orders the whole.
struct Query {
    std::vector<QueryTerm> terms;
    std::vector<OrderItem> order_by;
    int position = -1;
};

/// `TRANSFORM value SELECT .. GROUP BY .. [ORDER BY ..] PIVOT expr [IN (headings)]`
struct Transform {
    ExprPtr value;
    QueryPtr query; ///< of one plain SELECT
    ExprPtr pivot;
    std::vector<Literal> headings;
};

struct Insert {
    QString table;
    std::vector<QString> columns; ///< empty: all columns of the table
    std::vector<ExprPtr> values;  ///< of VALUES; unused when `query` is set
    QueryPtr query;
    int values_position = -1;
};

struct Assignment {
    ColumnRef column;
    ExprPtr value;
    int position = -1;
};
struct Update {
    std::vector<TableRefPtr> tables; ///< a comma list of join groups
    std::vector<Assignment> assignments;
    ExprPtr where;
};

struct Delete {
    QString star_table; ///< of `DELETE t.* FROM`; empty otherwise
    bool distinct_row = false;
    std::vector<TableRefPtr> from;
    ExprPtr where;
};

/// A column definition of CREATE TABLE or ALTER TABLE. `length` is 0 where the type word tells none.
struct ColumnDef {
    QString name;
    QString type_word; ///< as written
    int length = 0;
    bool not_null = false;
    bool unique = false;
    bool primary_key = false;
    QString references_table;  ///< of REFERENCES
    QString references_column; ///< empty: the key of that table
    int position = -1;
};

/// [CONSTRAINT name] PRIMARY KEY | UNIQUE (columns), or FOREIGN KEY (columns) REFERENCES table [(columns)]
struct TableConstraint {
    enum class Type { PrimaryKey, Unique, ForeignKey } type = Type::PrimaryKey;
    QString name;
    std::vector<QString> columns;
    QString references_table;
    std::vector<QString> references_columns;
};

struct CreateTable {
    QString table;
    std::vector<ColumnDef> columns;
    std::vector<TableConstraint> constraints;
};
struct CreateIndex {
    QString name;
    QString table;
    std::vector<QString> columns;
    bool unique = false;
    bool primary = false; ///< WITH PRIMARY
};
struct AddColumn {
    ColumnDef column;
};
struct AlterColumn {
    ColumnDef column;
};
struct DropColumn {
    QString column;
};
struct AddConstraint {
    TableConstraint constraint;
};
struct DropConstraint {
    QString name;
};
struct AlterTable {
    QString table;
    std::variant<AddColumn, AlterColumn, DropColumn, AddConstraint, DropConstraint> action;
};
struct DropTable {
    QString table;
};
struct DropIndex {
    QString name;
    QString table;
};

/// A declared parameter of PARAMETERS.
struct Parameter {
    QString name;
    QString type_word;
};

/// `position` is that of the table name or object name for messages.
struct Statement {
    std::vector<Parameter> parameters;
    std::variant<QueryPtr, Transform, Insert, Update, Delete, CreateTable, CreateIndex, AlterTable, DropTable,
                 DropIndex>
        node;
    int position = 0;
};

} // namespace ostrand::sql::ast
