#include "sql/AstDump.h"

#include <sstream>

namespace ostrand::sql {

namespace {

const char *SignOf(ast::BinaryOp op) {
    constexpr const char *kSigns[] = {"Imp", "Eqv", "Xor", "Or", "And", "=",  "<>", "<", "<=", ">",
                                      ">=",  "&",   "+",   "-",  "Mod", "\\", "*",  "/", "^"};
    return kSigns[int(op)];
}

class Dumper {
public:
    std::string Text() const { return out_.str(); }

    void Put(const ast::Statement &statement) {
        for (const ast::Parameter &parameter : statement.parameters) {
            out_ << "parameter " << Name(parameter.name) << ' ' << Name(parameter.type_word) << "; ";
        }
        std::visit([this](const auto &node) { Put(node); }, statement.node);
    }

    void Put(const ast::ExprPtr &expr) {
        std::visit([this](const auto &node) { Put(node); }, expr->node);
    }

private:
    static std::string Name(const QString &name) { return name.toStdString(); }

    template <class List, class Item>
    void PutList(const List &list, Item item) {
        const char *separator = "";
        for (const auto &element : list) {
            out_ << separator;
            item(element);
            separator = ", ";
        }
    }
    void Put(const std::vector<ast::ExprPtr> &list) {
        PutList(list, [this](const ast::ExprPtr &expr) { Put(expr); });
    }
    void Put(const std::vector<QString> &names) {
        out_ << '(';
        PutList(names, [this](const QString &name) { out_ << Name(name); });
        out_ << ')';
    }

    void Put(const ast::Literal &literal) {
        switch (literal.kind) {
        case Kind::Null:
            out_ << "null";
            break;
        case Kind::Boolean:
            out_ << (literal.number != 0 ? "true" : "false");
            break;
        case Kind::Text:
            out_ << '\'' << Name(literal.text) << '\'';
            break;
        case Kind::Integer:
            out_ << literal.number;
            break;
        case Kind::Real:
            out_ << literal.number << 'r';
            break;
        default:
            out_ << literal.number << 'd';
            break;
        }
        if (literal.index >= 0) {
            out_ << '#' << literal.index;
        }
    }
    void Put(const ast::ColumnRef &column) {
        out_ << Name(column.table) << (column.table.isEmpty() ? "" : ".") << Name(column.name);
    }
    void Put(const ast::Unary &node) {
        out_ << (node.op == ast::UnaryOp::Not ? "(not " : node.op == ast::UnaryOp::Minus ? "(neg " : "(pos ");
        Put(node.operand);
        out_ << ')';
    }
    void Put(const ast::Binary &node) {
        out_ << '(';
        Put(node.left);
        out_ << ' ' << SignOf(node.op) << ' ';
        Put(node.right);
        out_ << ')';
    }
    void Put(const ast::Like &node) {
        out_ << '(';
        Put(node.text);
        out_ << (node.negated ? " not like " : " like ");
        Put(node.pattern);
        out_ << ')';
    }
    void Put(const ast::IsNull &node) {
        out_ << '(';
        Put(node.operand);
        out_ << (node.negated ? " is not null)" : " is null)");
    }
    void Put(const ast::Between &node) {
        out_ << '(';
        Put(node.operand);
        out_ << (node.negated ? " not between " : " between ");
        Put(node.low);
        out_ << " : ";
        Put(node.high);
        out_ << ')';
    }
    void Put(const ast::In &node) {
        out_ << '(';
        Put(node.operand);
        out_ << (node.negated ? " not in " : " in ");
        if (node.query) {
            Put(node.query);
        } else {
            out_ << '[';
            Put(node.items);
            out_ << ']';
        }
        out_ << ')';
    }
    void Put(const ast::Exists &node) {
        out_ << "exists ";
        Put(node.query);
    }
    void Put(const ast::Subquery &node) {
        out_ << "value ";
        Put(node.query);
    }
    void Put(const ast::Quantified &node) {
        out_ << '(';
        Put(node.operand);
        out_ << ' ' << SignOf(node.op) << (node.all ? " all " : " any ");
        Put(node.query);
        out_ << ')';
    }
    void Put(const ast::Call &node) {
        out_ << Name(node.name) << '(' << (node.star ? "*" : "");
        Put(node.arguments);
        out_ << ')';
    }

    void Put(const ast::QueryPtr &query) {
        out_ << '{';
        bool first = true;
        for (const ast::QueryTerm &term : query->terms) {
            out_ << (first ? "" : term.all ? " union all " : " union ");
            first = false;
            std::visit([this](const auto &node) { Put(node); }, term.node);
        }
        if (!query->order_by.empty()) {
            out_ << " order ";
            PutList(query->order_by, [this](const ast::OrderItem &item) {
                Put(item.expr);
                out_ << (item.descending ? " desc" : "");
            });
        }
        out_ << '}';
    }
    void Put(const std::unique_ptr<ast::Select> &select) {
        constexpr const char *kModes[] = {"", "distinct ", "distinctrow "};
        out_ << "select " << kModes[int(select->distinct)];
        if (select->top) {
            out_ << "top " << *select->top << (select->top_percent ? "% " : " ");
        }
        PutList(select->items, [this](const ast::SelectItem &item) { PutItem(item); });
        if (!select->into.isEmpty()) {
            out_ << " into " << Name(select->into);
        }
        if (!select->from.empty()) {
            out_ << " from ";
            Put(select->from);
        }
        PutWhere(select->where);
        if (!select->group_by.empty()) {
            out_ << " group ";
            Put(select->group_by);
        }
        if (select->having) {
            out_ << " having ";
            Put(select->having);
        }
    }
    void PutItem(const ast::SelectItem &item) {
        if (!item.expr) {
            out_ << Name(item.star_table) << (item.star_table.isEmpty() ? "*" : ".*");
            return;
        }
        Put(item.expr);
        PutAlias(item.alias);
    }
    void PutAlias(const QString &alias) {
        if (!alias.isEmpty()) {
            out_ << " as <" << Name(alias) << '>';
        }
    }
    void PutWhere(const ast::ExprPtr &where) {
        if (where) {
            out_ << " where ";
            Put(where);
        }
    }
    void Put(const std::vector<ast::TableRefPtr> &tables) {
        PutList(tables, [this](const ast::TableRefPtr &table) { Put(table); });
    }
    void Put(const ast::TableRefPtr &table) {
        std::visit([this](const auto &node) { Put(node); }, table->node);
    }
    void Put(const ast::NamedTable &node) {
        out_ << Name(node.name);
        PutAlias(node.alias);
    }
    void Put(const ast::DerivedTable &node) {
        Put(node.query);
        PutAlias(node.alias);
    }
    void Put(const ast::Join &node) {
        constexpr const char *kTypes[] = {" inner ", " left ", " right "};
        out_ << '(';
        Put(node.left);
        out_ << kTypes[int(node.type)];
        Put(node.right);
        out_ << " on ";
        Put(node.on);
        out_ << ')';
    }

    void Put(const ast::Transform &node) {
        out_ << "transform ";
        Put(node.value);
        out_ << ' ';
        Put(node.query);
        out_ << " pivot ";
        Put(node.pivot);
        if (!node.headings.empty()) {
            out_ << " [";
            PutList(node.headings, [this](const ast::Literal &heading) { Put(heading); });
            out_ << ']';
        }
    }
    void Put(const ast::Insert &node) {
        out_ << "insert " << Name(node.table) << ' ';
        if (!node.columns.empty()) {
            Put(node.columns);
            out_ << ' ';
        }
        if (node.query) {
            Put(node.query);
        } else {
            out_ << "values ";
            Put(node.values);
        }
    }
    void Put(const ast::Update &node) {
        out_ << "update ";
        Put(node.tables);
        out_ << " set ";
        PutList(node.assignments, [this](const ast::Assignment &assignment) {
            Put(assignment.column);
            out_ << " := ";
            Put(assignment.value);
        });
        PutWhere(node.where);
    }
    void Put(const ast::Delete &node) {
        out_ << "delete " << (node.distinct_row ? "distinctrow " : "");
        if (!node.star_table.isEmpty()) {
            out_ << Name(node.star_table) << ".* ";
        }
        out_ << "from ";
        Put(node.from);
        PutWhere(node.where);
    }

    void Put(const ast::ColumnDef &column) {
        out_ << Name(column.name) << ' ' << Name(column.type_word);
        if (column.length != 0) {
            out_ << '/' << column.length;
        }
        out_ << (column.not_null ? " not_null" : "") << (column.unique ? " unique" : "")
             << (column.primary_key ? " primary" : "");
        if (!column.references_table.isEmpty()) {
            out_ << " -> " << Name(column.references_table) << '.' << Name(column.references_column);
        }
    }
    void Put(const ast::TableConstraint &constraint) {
        constexpr const char *kTypes[] = {"primary ", "unique ", "foreign "};
        out_ << kTypes[int(constraint.type)];
        if (!constraint.name.isEmpty()) {
            out_ << '<' << Name(constraint.name) << "> ";
        }
        Put(constraint.columns);
        if (!constraint.references_table.isEmpty()) {
            out_ << " -> " << Name(constraint.references_table);
            Put(constraint.references_columns);
        }
    }
    void Put(const ast::CreateTable &node) {
        out_ << "create " << Name(node.table) << " [";
        PutList(node.columns, [this](const ast::ColumnDef &column) { Put(column); });
        out_ << ']';
        for (const ast::TableConstraint &constraint : node.constraints) {
            out_ << ' ';
            Put(constraint);
        }
    }
    void Put(const ast::CreateIndex &node) {
        out_ << (node.unique ? "unique " : "") << (node.primary ? "primary " : "") << "index " << Name(node.name)
             << " on " << Name(node.table) << ' ';
        Put(node.columns);
    }
    void Put(const ast::AlterTable &node) {
        out_ << "alter " << Name(node.table) << ' ';
        std::visit([this](const auto &action) { Put(action); }, node.action);
    }
    void Put(const ast::AddColumn &node) {
        out_ << "add ";
        Put(node.column);
    }
    void Put(const ast::AlterColumn &node) {
        out_ << "change ";
        Put(node.column);
    }
    void Put(const ast::DropColumn &node) { out_ << "drop " << Name(node.column); }
    void Put(const ast::AddConstraint &node) {
        out_ << "add ";
        Put(node.constraint);
    }
    void Put(const ast::DropConstraint &node) { out_ << "drop constraint " << Name(node.name); }
    void Put(const ast::DropTable &node) { out_ << "drop " << Name(node.table); }
    void Put(const ast::DropIndex &node) { out_ << "drop index " << Name(node.name) << " on " << Name(node.table); }

    std::ostringstream out_;
};

} // namespace

std::string Dump(const ast::ExprPtr &expr) {
    Dumper dumper;
    dumper.Put(expr);
    return dumper.Text();
}

std::string Dump(const ast::Statement &statement) {
    Dumper dumper;
    dumper.Put(statement);
    return dumper.Text();
}

} // namespace ostrand::sql
