#include "sql/Functions.h"

#include "sql/Call.h"
#include "sql/Collation.h"

#include <QHash>

#include <sqlite3.h>

#include <exception>
#include <new>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

/// What SQLite hands back with each call.
struct Binding {
    const Function *function;
    const Environment *environment;
};

void DeleteBinding(void *binding) {
    delete static_cast<Binding *>(binding);
}

bool HasNull(const Call &call) {
    for (int i = 0; i < call.Count(); ++i) {
        if (call.IsNull(i)) {
            return true;
        }
    }
    return false;
}

bool TakesCount(const FunctionInfo &info, int count) {
    return count >= info.min_arguments && (info.max_arguments < 0 || count <= info.max_arguments);
}

// No exception may pass through SQLite.
void Run(sqlite3_context *context, int count, sqlite3_value **values) {
    const auto *binding = static_cast<const Binding *>(sqlite3_user_data(context));
    try {
        Call call(context, count, values, *binding->environment);
        if (!TakesCount(binding->function->info, count)) {
            RaiseInFunction(context, ErrorCode::Syntax, u"Wrong number of arguments used with function."_s);
        } else if (binding->function->on_null == OnNull::GivesNull && HasNull(call)) {
            call.ReturnNull();
        } else {
            binding->function->body(call);
        }
    } catch (const SqlError &error) {
        RaiseInFunction(context, error.Code(), error.Text());
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception &error) {
        RaiseInFunction(context, ErrorCode::Internal, QString::fromUtf8(error.what()));
    }
}

void Register(sqlite3 *handle, const Function &function, const Environment &environment) {
    if (function.body == nullptr) {
        return;
    }
    const int flags = SQLITE_UTF8 | SQLITE_INNOCUOUS | (function.info.deterministic ? SQLITE_DETERMINISTIC : 0);
    const std::string name = std::string("fn_") + function.info.name;
    auto *binding = new Binding{&function, &environment};
    sqlite3_create_function_v2(handle, name.c_str(), -1, flags, binding, Run, nullptr, nullptr, DeleteBinding);
}

int CompareForSqlite(void *, int left_size, const void *left, int right_size, const void *right) {
    return CompareUtf8(std::string_view(static_cast<const char *>(left), size_t(left_size)),
                       std::string_view(static_cast<const char *>(right), size_t(right_size)));
}

std::array<std::span<const Function>, 5> PublicFunctions() {
    return {TextFunctions(), NumberFunctions(), DateFunctions(), FormatFunctions(), OtherFunctions()};
}

using Index = QHash<QString, const FunctionInfo *>;

Index MakeIndex() {
    Index index;
    for (const std::span<const Function> family : PublicFunctions()) {
        for (const Function &function : family) {
            index.insert(QString::fromLatin1(function.info.name), &function.info);
        }
    }
    for (const FunctionInfo &info : Aggregates()) {
        index.insert(QString::fromLatin1(info.name), &info);
    }
    return index;
}

} // namespace

const FunctionInfo *FindFunction(QStringView name) {
    static const Index kIndex = MakeIndex();
    if (name.endsWith(u'$')) {
        name.chop(1);
    }
    return kIndex.value(name.toString().toLower());
}

void RegisterFunctions(sqlite3 *handle, const Environment &environment) {
    for (const std::span<const Function> family : PublicFunctions()) {
        for (const Function &function : family) {
            Register(handle, function, environment);
        }
    }
    for (const Function &function : EmitterFunctions()) {
        Register(handle, function, environment);
    }
    RegisterAggregates(handle, environment);
    sqlite3_create_collation_v2(handle, "dialect", SQLITE_UTF8, nullptr, CompareForSqlite, nullptr);
}

void RaiseInFunction(sqlite3_context *context, ErrorCode code, QStringView text) {
    const QByteArray message = '\x01' + QByteArray::number(int(code)) + '\x01' + text.toUtf8();
    sqlite3_result_error(context, message.constData(), int(message.size()));
}

} // namespace ostrand::sql
