#include "sql/Database.h"

#include "sql/Compiler.h"
#include "sql/Conversion.h"
#include "sql/DatabaseFile.h"
#include "sql/DatabaseImpl.h"
#include "sql/Functions.h"
#include "sql/Parser.h"

#include <sqlite3.h>

namespace ostrand::sql {

namespace {

constexpr int kProgressSteps = 20'000;
constexpr int kProgressMilliseconds = 30;

Registration RegisterWith(const Environment &environment) {
    return [&environment](sqlite3 *handle) { RegisterFunctions(handle, environment); };
}

const ast::QueryPtr *AsQuery(const ast::Statement &statement) {
    return std::get_if<ast::QueryPtr>(&statement.node);
}

} // namespace

Database::Impl::Impl(QString file, Environment world) : path(std::move(file)), environment(std::move(world)) {
    clock.start();
}

Database::Impl::~Impl() {
    if (batch) {
        try {
            batch->Flush();
        } catch (const SqlError &) {
            // The file is sound; what could not be made durable cannot be saved by a destructor either.
        }
    }
    ForgetStatements();
    change_counter.reset();
    batch.reset();
    ddl.reset();
    if (connection.Handle()) {
        CloseFile(std::move(connection));
    }
}

void Database::Impl::Attach(Connection opened) {
    connection = std::move(opened);
    batch.emplace(connection, [this] { return clock.elapsed(); });
    ddl.emplace(connection, catalogue);
    catalogue.Load(connection);
    schema_version = connection.Single(u"PRAGMA schema_version").Integer();
}

void Database::Impl::ForgetStatements() {
    cache.Clear();
    edits.clear();
    plans.clear();
}

/// True where the schema is not the one that was known.
bool Database::Impl::ReloadIfChanged() {
    const qint64 version = connection.Single(u"PRAGMA schema_version").Integer();
    if (version != schema_version) {
        ForgetStatements();
        catalogue.Load(connection);
        schema_version = version;
        return true;
    }
    return false;
}

int Database::Impl::OnProgress(void *self) {
    auto &impl = *static_cast<Impl *>(self);
    // A statement that the progress itself runs is not to call it again.
    if (!impl.progress || impl.in_progress || impl.progress_timer.elapsed() < kProgressMilliseconds) {
        return 0;
    }
    bool stop = true;
    impl.in_progress = true;
    try {
        stop = impl.progress();
    } catch (...) {
        // No exception may pass through SQLite; the statement ends as if it had been asked to.
    }
    impl.in_progress = false;
    impl.progress_timer.restart();
    return stop && impl.interruptible ? 1 : 0;
}

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
    if (const ast::QueryPtr *query = AsQuery(statement)) {
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

} // namespace

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
    const bool outer = interruptible.exchange(true);
    try {
        auto data = Collect(cached.compiled, cached.statement, cached.last_rows);
        cached.last_rows = data->rows;
        interruptible = outer;
        return data;
    } catch (const SqlError &) {
        interruptible = outer;
        throw;
    }
}

int Database::Impl::Write(const std::function<int()> &change) {
    const bool may_stop = bool(progress);
    if (may_stop) {
        batch->Flush(); // what is interrupted takes its whole transaction with it
    }
    batch->BeforeWrite();
    const bool outer = interruptible.exchange(may_stop);
    int rows = 0;
    try {
        rows = change();
    } catch (const SqlError &error) {
        interruptible = outer;
        NoteWrite(false);
        batch->OnError(error);
        throw;
    }
    interruptible = outer;
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

Database::Database(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Database::~Database() = default;

std::unique_ptr<Database> Database::Create(const QString &path, Environment environment) {
    auto impl = std::make_unique<Impl>(path, std::move(environment));
    Connection connection = CreateFile(path, RegisterWith(impl->environment));
    try {
        impl->lock = std::make_unique<LockFile>(path);
        impl->Attach(std::move(connection));
    } catch (const SqlError &) {
        connection = {};
        impl.reset();
        RemoveNewFile(path);
        throw;
    }
    return std::unique_ptr<Database>(new Database(std::move(impl)));
}

std::unique_ptr<Database> Database::Open(const QString &path, Environment environment) {
    auto impl = std::make_unique<Impl>(path, std::move(environment));
    LockFile::RequireSameFile(path);
    Connection connection = OpenFile(path, RegisterWith(impl->environment));
    impl->lock = std::make_unique<LockFile>(path);
    impl->Attach(std::move(connection));
    return std::unique_ptr<Database>(new Database(std::move(impl)));
}

void Database::Compact(const QString &source, const QString &target) {
    const Environment environment;
    CompactFile(source, target, RegisterWith(environment));
}

const QString &Database::Path() const {
    return impl_->path;
}
const Environment &Database::GetEnvironment() const {
    return impl_->environment;
}

template <class Run>
auto Database::Impl::WithStatement(QStringView sql, Run run) {
    if (observer) {
        observer(sql);
    }
    const std::shared_ptr<CachedStatement> cached = Prepare(sql);
    try {
        auto result = run(cached.get());
        const bool recompiled = cached && cached->statement && cached->statement.TakeRecompiled();
        const bool reloaded = recompiled && ReloadIfChanged();
        if (!reloaded || cached->compiled.type != Compiled::Type::Query) {
            return result;
        }
    } catch (const SqlError &) {
        if (!cached || !ReloadIfChanged()) {
            throw;
        }
    }
    return run(Prepare(sql).get());
}

Recordset Database::OpenRecordset(QStringView sql) {
    return Recordset(impl_->WithStatement(sql, [&](CachedStatement *cached) {
        if (cached && cached->compiled.type == Compiled::Type::Query) {
            return impl_->ReadRows(*cached);
        }
        if (!cached) {
            const ast::Statement statement = Parse(sql);
            if (const auto *transform = std::get_if<ast::Transform>(&statement.node)) {
                return impl_->RunTransform(*transform);
            }
        }
        impl_->Run(sql, cached);
        auto data = std::make_unique<Recordset::Data>();
        data->database = impl_.get();
        data->shape = std::make_shared<ResultShape>();
        return data;
    }));
}

int Database::Execute(QStringView sql) {
    return impl_->WithStatement(sql, [&](CachedStatement *cached) { return impl_->Run(sql, cached); });
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

bool Database::GivesRows(QStringView sql) {
    const ast::Statement statement = Parse(sql);
    if (const ast::QueryPtr *query = AsQuery(statement)) {
        const auto *select = std::get_if<std::unique_ptr<ast::Select>>(&(*query)->terms.front().node);
        return !select || (*select)->into.isEmpty();
    }
    return std::holds_alternative<ast::Transform>(statement.node);
}

const Catalogue &Database::GetCatalogue() {
    if (!impl_->batch->IsOpen()) {
        impl_->ReloadIfChanged();
    }
    return impl_->catalogue;
}

int Database::RecordCount(QStringView table) {
    const TableInfo *info = FindTable(table);
    if (!info) {
        throw SqlError(ErrorCode::UnknownTable, QStringLiteral("There is no table '%1'.").arg(table));
    }
    return int(impl_->connection.Single(QStringLiteral("SELECT count(*) FROM ") + QuoteName(info->name)).Integer());
}

void Database::RenameColumn(QStringView table, QStringView column, QStringView new_name) {
    impl_->Write([&] {
        impl_->ForgetStatements();
        impl_->ddl->RenameColumn(table, column, new_name);
        return 0;
    });
}

void Database::DropColumn(QStringView table, QStringView column) {
    impl_->Write([&] {
        impl_->ForgetStatements();
        impl_->ddl->DropColumn(table, column);
        return 0;
    });
}

void Database::DropIndex(QStringView table, QStringView index) {
    impl_->Write([&] {
        impl_->ForgetStatements();
        impl_->ddl->DropIndex({index.toString(), table.toString()});
        return 0;
    });
}

TableWatch Database::Watch(const QStringList &tables) {
    if (!impl_->change_counter) {
        impl_->change_counter = std::make_shared<ChangeCounter>(impl_->connection);
    }
    return {impl_->change_counter, tables};
}

void Database::Flush() {
    impl_->batch->Flush();
}
void Database::FlushIfDue() {
    if (!impl_->in_progress) { // a statement that still runs lets no commit through
        impl_->batch->FlushIfDue();
    }
}

void Database::Interrupt() {
    if (impl_->interruptible) {
        sqlite3_interrupt(impl_->connection.Handle());
    }
}

void Database::SetProgress(std::function<bool()> progress) {
    impl_->progress = std::move(progress);
    impl_->progress_timer.start();
    sqlite3_progress_handler(impl_->connection.Handle(), impl_->progress ? kProgressSteps : 0, &Impl::OnProgress,
                             impl_.get());
}

Database::Bracket::Bracket(Database &database) : database_(database) {
    database_.impl_->batch->Enter();
}
void Database::Bracket::Abandon() {
    Impl &impl = *database_.impl_;
    impl.ForgetStatements();
    impl.batch->Abandon();
    impl.catalogue.Load(impl.connection);
    impl.schema_version = impl.connection.Single(u"PRAGMA schema_version").Integer();
}
Database::Bracket::~Bracket() {
    database_.impl_->batch->Leave();
}

Database::CacheCounts Database::GetCacheCounts() const {
    return {impl_->cache.Lookups(), impl_->cache.Hits()};
}

void Database::SetObserver(std::function<void(QStringView)> observer) {
    impl_->observer = std::move(observer);
}

QStringList Database::QueryPlan(QStringView sql) {
    QStringList plan;
    const std::shared_ptr<CachedStatement> cached = impl_->Prepare(sql);
    if (!cached) {
        return plan;
    }
    Statement statement = impl_->connection.Prepare(QStringLiteral("EXPLAIN QUERY PLAN ") + cached->compiled.sql);
    while (statement.Step()) {
        plan.append(statement.ColumnText(3));
    }
    return plan;
}

} // namespace ostrand::sql
