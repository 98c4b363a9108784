// How the statements of an open database are prepared and run.
#include "sql/Compiler.h"
#include "sql/Conversion.h"
#include "sql/DatabaseImpl.h"
#include "sql/Parser.h"

namespace ostrand::sql {

namespace {

/// Marks a statement as running, and leaves it ready for the next run.
class Running {
public:
    explicit Running(CachedStatement &cached) : cached_(cached) { cached_.busy = true; }
    ~Running() {
        cached_.statement.Reset();
        cached_.busy = false;
    }
    Running(const Running &) = delete;
    Running &operator=(const Running &) = delete;

private:
    CachedStatement &cached_;
};

/// Lets a statement be interrupted, or forbids it, until the end of its scope.
class Interruptible {
public:
    Interruptible(std::atomic<bool> &flag, bool may_stop) : flag_(flag), outer_(flag.exchange(may_stop)) {}
    ~Interruptible() { flag_ = outer_; }
    Interruptible(const Interruptible &) = delete;
    Interruptible &operator=(const Interruptible &) = delete;

private:
    std::atomic<bool> &flag_;
    const bool outer_;
};

} // namespace

void Database::Impl::BindLiterals(const Compiled &compiled, Statement &statement) const {
    for (size_t i = 0; i < compiled.parameters.size(); ++i) {
        const ParameterSlot &slot = compiled.parameters[i];
        const LiteralToken &literal = shape.literals[size_t(slot.literal)];
        Value value;
        if (literal.kind == Kind::Text) {
            value = Value(literal.text);
        } else if (literal.kind == Kind::Integer) {
            value = Value(qint64(literal.number));
        } else {
            value = Value(literal.number);
        }
        const bool as_is = !slot.convert || (literal.kind == Kind::Text && slot.kind == Kind::Memo);
        statement.Bind(int(i),
                       as_is ? value : ConvertForColumn(value, literal.kind, slot.kind, slot.length, environment));
    }
}

std::shared_ptr<CachedStatement> Database::Impl::PrepareAnew(QStringView sql) {
    const ast::Statement statement = Parse(sql);
    if (!statement.parameters.empty()) {
        throw SqlError(ErrorCode::ParametersExpected,
                       QStringLiteral("The parameter '%1' has no value.").arg(statement.parameters.front().name));
    }
    if (!batch->IsOpen()) {
        ReloadIfChanged();
    }
    Compiler compiler(catalogue);
    auto cached = std::make_shared<CachedStatement>();
    if (const auto *query = std::get_if<ast::QueryPtr>(&statement.node)) {
        cached->compiled = compiler.CompileQuery(**query);
    } else if (const auto *insert = std::get_if<ast::Insert>(&statement.node)) {
        cached->compiled = compiler.CompileInsert(*insert);
    } else if (const auto *update = std::get_if<ast::Update>(&statement.node)) {
        cached->compiled = compiler.CompileUpdate(*update);
    } else if (const auto *removal = std::get_if<ast::Delete>(&statement.node)) {
        cached->compiled = compiler.CompileDelete(*removal);
    } else {
        return nullptr;
    }
    if (cached->compiled.type == Compiled::Type::SelectInto) {
        return cached;
    }
    cached->statement = connection.Prepare(cached->compiled.sql);
    NoteBakedLiterals(*cached, shape);
    return cached;
}

std::shared_ptr<CachedStatement> Database::Impl::Prepare(QStringView sql) {
    if (!ScanShape(sql, shape)) {
        Parse(sql); // names the fault
        throw SqlError(ErrorCode::Syntax, QStringLiteral("The statement cannot be read."));
    }
    std::shared_ptr<CachedStatement> cached = cache.Find(shape);
    if (!cached) {
        cached = PrepareAnew(sql);
        if (cached && cached->statement) {
            cache.Insert(shape, cached);
        }
    }
    if (cached && cached->busy) {
        // The statement runs already, further down the stack: a handler that its progress let in asks the same.
        auto twin = std::make_shared<CachedStatement>();
        twin->compiled = cached->compiled;
        twin->statement = connection.Prepare(twin->compiled.sql);
        return twin;
    }
    return cached;
}

std::unique_ptr<Recordset::Data> Database::Impl::Collect(const Compiled &compiled, Statement &statement,
                                                         int expected_rows) {
    auto data = std::make_unique<Recordset::Data>();
    data->database = this;
    data->shape = compiled.result;
    data->columns = int(compiled.result->fields.size());
    const bool row_ids = !compiled.result->table.isEmpty();
    data->cells.reserve(size_t(expected_rows) * size_t(data->columns));
    while (statement.Step()) {
        for (int i = 0; i < data->columns; ++i) {
            Value value = statement.Column(i);
            if (data->rows > 0 && value.GetType() == Value::Type::Text) {
                // Rows of a join repeat their texts, which then need no memory of their own.
                const Value &above = data->cells[data->cells.size() - size_t(data->columns)];
                if (value == above) {
                    value = above;
                }
            }
            data->cells.push_back(std::move(value));
        }
        if (row_ids) {
            data->row_ids.push_back(statement.ColumnInteger(data->columns));
        }
        ++data->rows;
    }
    return data;
}

std::unique_ptr<Recordset::Data> Database::Impl::ReadRows(CachedStatement &cached) {
    const Running running(cached);
    BindLiterals(cached.compiled, cached.statement);
    const Interruptible reading(interruptible, true);
    auto data = Collect(cached.compiled, cached.statement, cached.last_rows);
    cached.last_rows = data->rows;
    return data;
}

int Database::Impl::Write(const std::function<int()> &change) {
    const bool may_stop = bool(progress);
    if (may_stop) {
        batch->Flush(); // what is interrupted takes its whole transaction with it
    }
    batch->BeforeWrite();
    int rows = 0;
    try {
        const Interruptible writing(interruptible, may_stop);
        rows = change();
    } catch (const SqlError &error) {
        NoteWrite(false);
        batch->OnError(error);
        throw;
    }
    NoteWrite(true);
    batch->AfterWrite();
    return rows;
}

void Database::Impl::NoteWrite(bool succeeded) {
    if (change_counter) {
        change_counter->AfterWrite(succeeded);
    }
}

int Database::Impl::RunChange(CachedStatement &cached) {
    return Write([&] {
        const Running running(cached);
        BindLiterals(cached.compiled, cached.statement);
        while (cached.statement.Step()) {
        }
        return connection.Changes();
    });
}

int Database::Impl::RunJoinUpdate(CachedStatement &cached) {
    return Write([&] {
        std::vector<std::vector<Value>> rows;
        {
            const Running running(cached);
            BindLiterals(cached.compiled, cached.statement);
            const int columns = cached.statement.ColumnCount();
            while (cached.statement.Step()) {
                std::vector<Value> &row = rows.emplace_back();
                for (int i = 0; i < columns; ++i) {
                    row.push_back(cached.statement.Column(i));
                }
            }
        }
        int changes = 0;
        for (const RowUpdate &update : cached.compiled.updates) {
            Statement statement = connection.Prepare(update.sql);
            for (const std::vector<Value> &row : rows) {
                for (int i = 0; i < update.column_count; ++i) {
                    statement.Bind(i, row[size_t(update.first_column) + size_t(i)]);
                }
                while (statement.Step()) {
                }
                changes += connection.Changes();
                statement.Reset();
            }
        }
        return changes;
    });
}

int Database::Impl::RunSelectInto(const Compiled &compiled) {
    std::vector<ColumnInfo> columns;
    QStringList values;
    for (size_t i = 0; i < compiled.result->fields.size(); ++i) {
        const Field &field = compiled.result->fields[i];
        ColumnInfo column;
        column.name = field.label;
        column.kind = field.kind == Kind::Null || field.kind == Kind::Unknown ? Kind::Text : field.kind;
        column.length = column.kind == Kind::Text ? 255 : 0;
        columns.push_back(column);
        const QString value = QStringLiteral("c%1").arg(i);
        values.append(column.kind == Kind::Boolean ? QStringLiteral("fn__to_boolean(%1)").arg(value) : value);
    }
    return Write([&] {
        ForgetStatements();
        ddl->CreateTableFromColumns(compiled.into, columns);
        schema_version = connection.Single(u"PRAGMA schema_version").Integer();
        Statement statement = connection.Prepare(QStringLiteral("INSERT INTO %1 SELECT %2 FROM (%3)")
                                                     .arg(QuoteName(compiled.into), values.join(u','), compiled.sql));
        BindLiterals(compiled, statement);
        while (statement.Step()) {
        }
        return connection.Changes();
    });
}

std::unique_ptr<Recordset::Data> Database::Impl::RunTransform(const ast::Transform &transform) {
    std::vector<Value> headings;
    for (const ast::Literal &literal : transform.headings) {
        headings.push_back(literal.kind == Kind::Text      ? Value(literal.text)
                           : literal.kind == Kind::Integer ? Value(qint64(literal.number))
                           : literal.kind == Kind::Null    ? Value()
                                                           : Value(literal.number));
    }
    if (transform.headings.empty()) {
        const Compiled pivot = Compiler(catalogue).CompilePivotValues(transform);
        Statement statement = connection.Prepare(pivot.sql);
        BindLiterals(pivot, statement);
        const Shape literals = shape; // what the progress lets in may scan another statement
        auto values = Collect(pivot, statement);
        shape = literals;
        headings = std::move(values->cells);
    }
    const Compiled compiled = Compiler(catalogue).CompileTransform(transform, headings);
    Statement statement = connection.Prepare(compiled.sql);
    BindLiterals(compiled, statement);
    return Collect(compiled, statement);
}

void Database::Impl::RunDdl(const ast::Statement &statement) {
    Write([&] {
        ForgetStatements();
        if (const auto *create = std::get_if<ast::CreateTable>(&statement.node)) {
            ddl->CreateTable(*create);
        } else if (const auto *index = std::get_if<ast::CreateIndex>(&statement.node)) {
            ddl->CreateIndex(*index);
        } else if (const auto *alter = std::get_if<ast::AlterTable>(&statement.node)) {
            ddl->AlterTable(*alter);
        } else if (const auto *drop = std::get_if<ast::DropTable>(&statement.node)) {
            ddl->DropTable(*drop);
        } else {
            ddl->DropIndex(std::get<ast::DropIndex>(statement.node));
        }
        return 0;
    });
    schema_version = connection.Single(u"PRAGMA schema_version").Integer();
}

int Database::Impl::RunEdit(const QString &sql, const std::vector<Value> &values) {
    return Write([&] {
        std::shared_ptr<Statement> &kept = edits[sql];
        if (!kept) {
            kept = std::make_shared<Statement>(connection.Prepare(sql));
        }
        const std::shared_ptr<Statement> statement = kept;
        for (size_t i = 0; i < values.size(); ++i) {
            statement->Bind(int(i), values[i]);
        }
        try {
            while (statement->Step()) {
            }
        } catch (const SqlError &) {
            statement->Reset();
            throw;
        }
        const int changes = connection.Changes();
        statement->Reset();
        return changes;
    });
}

EditPlan &Database::Impl::PlanOf(const std::shared_ptr<const ResultShape> &result) {
    constexpr size_t kMostPlans = 64;
    const auto known = plans.find(result.get());
    if (known != plans.end() && known->second.IsFor(catalogue)) {
        return known->second;
    }
    if (known != plans.end()) {
        plans.erase(known);
    } else if (plans.size() == kMostPlans) {
        plans.clear();
    }
    return plans.emplace(result.get(), EditPlan(result, catalogue)).first->second;
}

int Database::Impl::RunRowEdit(const Recordset::Data &data) {
    return Write([&] {
        const bool is_new = data.editing == Recordset::Data::Editing::New;
        const std::shared_ptr<Statement> statement = PlanOf(data.shape).StatementFor(connection, is_new, data.pending);
        int parameter = 0;
        for (const std::optional<Value> &value : data.pending) {
            if (value) {
                statement->Bind(parameter++, *value);
            }
        }
        if (!is_new) {
            statement->Bind(parameter, Value(data.row_ids[size_t(data.current)]));
        }
        while (statement->Step()) {
        }
        const int changes = connection.Changes();
        statement->Reset();
        return changes;
    });
}

/// `cached` is null for the statements that are never kept.
int Database::Impl::Run(QStringView sql, CachedStatement *cached) {
    if (!cached) {
        const ast::Statement statement = Parse(sql);
        if (const auto *transform = std::get_if<ast::Transform>(&statement.node)) {
            RunTransform(*transform);
        } else {
            RunDdl(statement);
        }
        return 0;
    }
    switch (cached->compiled.type) {
    case Compiled::Type::Query:
        ReadRows(*cached);
        return 0;
    case Compiled::Type::Change:
        return RunChange(*cached);
    case Compiled::Type::JoinUpdate:
        return RunJoinUpdate(*cached);
    case Compiled::Type::SelectInto:
        return RunSelectInto(cached->compiled);
    }
    return 0;
}

} // namespace ostrand::sql
