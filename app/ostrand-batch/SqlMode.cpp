#include "SqlMode.h"

#include "queries/StatementSplitter.h"
#include "services/StandardStreams.h"
#include "services/StopSignals.h"

#include <QStringDecoder>

namespace ostrand::batch {

namespace {

constexpr int kIdle = 20;  // milliseconds without input after which all is made durable
constexpr int kWait = 250; // between two looks at the stop signals

/// One run: reads, cuts, executes until the input ends, a stop signal comes or nobody reads the output.
class SqlRun {
public:
    SqlRun(sql::Database &database, SqlFormat format) :
        database_(database), console_(
                                 database, format, [this](const QByteArray &bytes) { return Write(stdout, bytes); },
                                 [this](const QByteArray &bytes) { return Write(stderr, bytes); }) {
        database_.SetProgress([] { return StopSignals::Received() != 0; });
    }

    int Run() {
        while (!ended_ && !Stopped()) {
            ReadMore();
            while (const std::optional<QString> statement = splitter_.Next()) {
                Execute(*statement);
                if (Stopped()) {
                    break;
                }
            }
        }
        const int signal = StopSignals::Received();
        database_.SetProgress({});
        Flush();
        return signal != 0 ? 128 + signal : failed_ ? kNotClean : kDone;
    }

private:
    bool Stopped() const { return StopSignals::Received() != 0 || broken_; }

    bool Write(std::FILE *stream, const QByteArray &bytes) {
        const bool written = WriteStream(stream, bytes);
        if (!written && stream == stdout) {
            broken_ = true;
            failed_ = true;
        }
        return written;
    }

    void ReadMore() {
        QByteArray bytes;
        switch (input_.Read(bytes, idle_ ? kWait : kIdle)) {
        case StandardInput::State::Data:
            idle_ = false;
            splitter_.Feed(QString(decoder_(bytes)));
            break;
        case StandardInput::State::Nothing:
            if (!idle_) {
                Flush();
            }
            idle_ = true;
            break;
        case StandardInput::State::End:
            ended_ = true;
            splitter_.Finish();
            break;
        }
    }

    void Execute(const QString &statement) {
        if (statement.isEmpty()) {
            return;
        }
        failed_ = !console_.Run(statement) || failed_;
        if (terminal_) {
            Flush();
        } else {
            Guarded([this] { database_.FlushIfDue(); });
        }
    }

    void Flush() {
        Guarded([this] { database_.Flush(); });
    }

    template <typename Action>
    void Guarded(Action action) {
        try {
            action();
        } catch (const sql::SqlError &error) {
            failed_ = true;
            Write(stderr, "Error: " + error.Text().toUtf8() + '\n');
        }
    }

    sql::Database &database_;
    SqlConsole console_;
    StandardInput input_;
    StatementSplitter splitter_;
    QStringDecoder decoder_{QStringDecoder::Utf8};
    const bool terminal_ = IsTerminal(stdin);
    bool idle_ = false;
    bool ended_ = false;
    bool failed_ = false;
    bool broken_ = false;
};

} // namespace

int RunSqlMode(const Arguments &arguments, const sql::Environment &environment) {
    const StopSignals signals_noted;
    LetWritesFail();
    try {
        const std::unique_ptr<sql::Database> database = arguments.create
                                                            ? sql::Database::Create(arguments.sql_file, environment)
                                                            : sql::Database::Open(arguments.sql_file, environment);
        return SqlRun(*database, arguments.format.value_or(SqlFormat::Text)).Run();
    } catch (const sql::SqlError &error) {
        WriteStream(stderr, "ostrand-batch: " + error.Text().toUtf8() + '\n');
        return kUsage;
    }
}

} // namespace ostrand::batch
