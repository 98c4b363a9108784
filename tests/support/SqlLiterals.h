// Walks the literals of a syntax tree.
#pragma once

#include "sql/Ast.h"

#include <functional>

namespace ostrand::sql {

class LiteralWalk {
public:
    explicit LiteralWalk(std::function<void(const ast::Literal &)> visit) : visit_(std::move(visit)) {}

    void Walk(const ast::Statement &statement) {
        std::visit([this](const auto &node) { Enter(node); }, statement.node);
    }

private:
    void Enter(const ast::ExprPtr &expr) {
        if (expr) {
            std::visit([this](const auto &node) { Enter(node); }, expr->node);
        }
    }
    void Enter(const std::vector<ast::ExprPtr> &list) {
        for (const ast::ExprPtr &expr : list) {
            Enter(expr);
        }
    }
    void Enter(const ast::Literal &literal) { visit_(literal); }
    void Enter(const ast::ColumnRef &) {}
    void Enter(const ast::Unary &node) { Enter(node.operand); }
    void Enter(const ast::Binary &node) {
        Enter(node.left);
        Enter(node.right);
    }
    void Enter(const ast::Like &node) {
        Enter(node.text);
        Enter(node.pattern);
    }
    void Enter(const ast::IsNull &node) { Enter(node.operand); }
    void Enter(const ast::Between &node) {
        Enter(node.operand);
        Enter(node.low);
        Enter(node.high);
    }
    void Enter(const ast::In &node) {
        Enter(node.operand);
        Enter(node.items);
        Enter(node.query);
    }
    void Enter(const ast::Exists &node) { Enter(node.query); }
    void Enter(const ast::Subquery &node) { Enter(node.query); }
    void Enter(const ast::Quantified &node) {
        Enter(node.operand);
        Enter(node.query);
    }
    void Enter(const ast::Call &node) { Enter(node.arguments); }

    void Enter(const ast::QueryPtr &query) {
        if (!query) {
            return;
        }
        for (const ast::QueryTerm &term : query->terms) {
            std::visit([this](const auto &node) { Enter(node); }, term.node);
        }
        for (const ast::OrderItem &item : query->order_by) {
            Enter(item.expr);
        }
    }
    void Enter(const std::unique_ptr<ast::Select> &select) {
        for (const ast::SelectItem &item : select->items) {
            Enter(item.expr);
        }
        Enter(select->from);
        Enter(select->where);
        Enter(select->group_by);
        Enter(select->having);
    }
    void Enter(const std::vector<ast::TableRefPtr> &tables) {
        for (const ast::TableRefPtr &table : tables) {
            Enter(table);
        }
    }
    void Enter(const ast::TableRefPtr &table) {
        std::visit([this](const auto &node) { Enter(node); }, table->node);
    }
    void Enter(const ast::NamedTable &) {}
    void Enter(const ast::DerivedTable &node) { Enter(node.query); }
    void Enter(const ast::Join &node) {
        Enter(node.left);
        Enter(node.right);
        Enter(node.on);
    }

    void Enter(const ast::Transform &node) {
        Enter(node.value);
        Enter(node.query);
        Enter(node.pivot);
        for (const ast::Literal &heading : node.headings) {
            Enter(heading);
        }
    }
    void Enter(const ast::Insert &node) {
        Enter(node.values);
        Enter(node.query);
    }
    void Enter(const ast::Update &node) {
        Enter(node.tables);
        for (const ast::Assignment &assignment : node.assignments) {
            Enter(assignment.value);
        }
        Enter(node.where);
    }
    void Enter(const ast::Delete &node) {
        Enter(node.from);
        Enter(node.where);
    }
    void Enter(const ast::CreateTable &) {}
    void Enter(const ast::CreateIndex &) {}
    void Enter(const ast::AlterTable &) {}
    void Enter(const ast::DropTable &) {}
    void Enter(const ast::DropIndex &) {}

    std::function<void(const ast::Literal &)> visit_;
};

} // namespace ostrand::sql
