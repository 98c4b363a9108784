#include "sql/EditPlan.h"

namespace ostrand::sql {

namespace {

constexpr size_t kMostKeptStatements = 16; // sets of fields; a program writes few different ones

bool SameFields(const std::vector<bool> &fields, const std::vector<std::optional<Value>> &values) {
    for (size_t i = 0; i < values.size(); ++i) {
        if (fields[i] != values[i].has_value()) {
            return false;
        }
    }
    return true;
}

} // namespace

EditPlan::EditPlan(std::shared_ptr<const ResultShape> shape, const Catalogue &catalogue) :
    shape_(std::move(shape)), generation_(catalogue.Generation()) {
    const TableInfo *table = catalogue.FindTable(shape_->table);
    columns_.reserve(shape_->base_columns.size());
    for (const QString &name : shape_->base_columns) {
        columns_.push_back(table && !name.isEmpty() ? table->FindColumn(name) : nullptr);
    }
    const IndexInfo *key = table ? table->PrimaryKey() : nullptr;
    for (const QString &name : key ? key->columns : QStringList()) {
        KeyColumn &part = key_.emplace_back(KeyColumn{.column = table->FindColumn(name), .fields = {}});
        for (size_t i = 0; i < columns_.size(); ++i) {
            if (columns_[i] && columns_[i] == part.column) {
                part.fields.push_back(int(i));
            }
        }
    }
}

void EditPlan::RequireKey(bool is_new, const std::vector<std::optional<Value>> &values) const {
    for (const KeyColumn &part : key_) {
        bool set = false;
        bool filled = part.column->kind == Kind::Boolean;
        for (const int field : part.fields) {
            if (const std::optional<Value> &value = values[size_t(field)]) {
                set = true;
                filled = !value->IsNull();
            }
        }
        if (!filled && (set || is_new)) {
            throw SqlError(ErrorCode::NullNotAllowed,
                           QStringLiteral("The field takes no Null: %1.%2.").arg(shape_->table, part.column->name));
        }
    }
}

std::shared_ptr<Statement> EditPlan::StatementFor(const Connection &connection, bool is_new,
                                                  const std::vector<std::optional<Value>> &values) {
    for (const Kept &kept : kept_) {
        if (kept.is_new == is_new && SameFields(kept.fields, values)) {
            return kept.statement;
        }
    }
    Kept made{.is_new = is_new, .fields = {}, .statement = {}};
    for (const std::optional<Value> &value : values) {
        made.fields.push_back(value.has_value());
    }
    made.statement = std::make_shared<Statement>(connection.Prepare(Sql(is_new, made.fields)));
    if (kept_.size() == kMostKeptStatements) {
        kept_.erase(kept_.begin());
    }
    kept_.push_back(std::move(made));
    return kept_.back().statement;
}

QString EditPlan::Sql(bool is_new, const std::vector<bool> &fields) const {
    QStringList names;
    for (size_t i = 0; i < fields.size(); ++i) {
        if (fields[i]) {
            names.append(QuoteName(shape_->base_columns[i]) + (is_new ? QString() : QStringLiteral(" = ?")));
        }
    }
    const QString table = QuoteName(shape_->table);
    if (!is_new) {
        return QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?").arg(table, names.join(u','), shape_->row_id);
    }
    if (names.isEmpty()) {
        return QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(table);
    }
    const QStringList marks(names.size(), QStringLiteral("?"));
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, names.join(u','), marks.join(u','));
}

} // namespace ostrand::sql
