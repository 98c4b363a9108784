#include "sql/Database.h"

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

bool Database::GivesRows(QStringView sql) {
    const ast::Statement statement = Parse(sql);
    if (const auto *query = std::get_if<ast::QueryPtr>(&statement.node)) {
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
