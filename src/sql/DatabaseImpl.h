// The inside of an open database, shared by Database and its result sets.
#pragma once

#include "sql/Batch.h"
#include "sql/ChangeCounter.h"
#include "sql/Database.h"
#include "sql/Ddl.h"
#include "sql/EditPlan.h"
#include "sql/LockFile.h"
#include "sql/StatementCache.h"

#include <QElapsedTimer>

#include <atomic>
#include <unordered_map>

namespace ostrand::sql {

struct Database::Impl {
    Impl(QString file, Environment world);
    ~Impl();
    Impl(const Impl &) = delete;
    Impl &operator=(const Impl &) = delete;

    /// Takes over an open handle and reads its schema.
    void Attach(Connection opened);

    /// The prepared form of a query or change, from the cache or made anew. `shape` holds its literals afterwards.
    std::shared_ptr<CachedStatement> Prepare(QStringView sql);
    std::shared_ptr<CachedStatement> PrepareAnew(QStringView sql);

    int Run(QStringView sql, CachedStatement *cached);
    std::unique_ptr<Recordset::Data> ReadRows(CachedStatement &cached);
    int RunChange(CachedStatement &cached);
    int RunJoinUpdate(CachedStatement &cached);
    int RunSelectInto(const Compiled &compiled);
    std::unique_ptr<Recordset::Data> RunTransform(const ast::Transform &transform);
    void RunDdl(const ast::Statement &statement);

    void BindLiterals(const Compiled &compiled, Statement &statement) const;
    /// Reads all rows; room is made at once for as many as are expected.
    std::unique_ptr<Recordset::Data> Collect(const Compiled &compiled, Statement &statement, int expected_rows = 0);

    /// Runs `change` as one write: opens a batch before it, counts it, notices a lost batch.
    int Write(const std::function<int()> &change);
    void NoteWrite(bool succeeded);
    /// Runs SQLite text with values, prepared once and kept until the schema changes. Not OR IGNORE: throws.
    int RunEdit(const QString &sql, const std::vector<Value> &values);
    /// Writes the row that a result set has begun. Throws as RunEdit does.
    int RunRowEdit(const Recordset::Data &data);
    /// How rows of a result are written; the reference holds until the next call.
    EditPlan &PlanOf(const std::shared_ptr<const ResultShape> &result);

    /// Runs `run` on the prepared statement; once more on a new one where another process has changed the schema since
    /// it was prepared and `run` failed or gave rows by the old one.
    template <class Run>
    auto WithStatement(QStringView sql, Run run);

    bool ReloadIfChanged();
    void ForgetStatements();
    static int OnProgress(void *self);

    QString path;
    Environment environment;
    std::unique_ptr<LockFile> lock;
    Connection connection;
    Catalogue catalogue;
    std::optional<Batch> batch;
    std::shared_ptr<ChangeCounter> change_counter; ///< null until somebody watches a table
    std::optional<Ddl> ddl;
    StatementCache cache;
    QHash<QString, std::shared_ptr<Statement>> edits;
    std::unordered_map<const ResultShape *, EditPlan> plans;
    Shape shape;
    qint64 schema_version = -1;
    std::function<void(QStringView)> observer;
    std::function<bool()> progress;
    QElapsedTimer progress_timer;
    bool in_progress = false;
    std::atomic<bool> interruptible = false;
    QElapsedTimer clock;
};

struct Recordset::Data {
    enum class Editing { None, New, Current };

    Database::Impl *database = nullptr;
    std::shared_ptr<const ResultShape> shape;
    std::vector<Value> cells;
    std::vector<qint64> row_ids;
    int columns = 0;
    int rows = 0;
    int current = 0;
    Editing editing = Editing::None;
    std::vector<std::optional<Value>> pending;
};

} // namespace ostrand::sql
