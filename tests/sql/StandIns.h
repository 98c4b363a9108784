// Plain stand-ins for the collation and the functions of the dialect.
#pragma once

#include <QByteArray>
#include <QString>

#include <sqlite3.h>

#include <cmath>

namespace ostrand::sql::testing {

inline int CompareWithoutCase(void *, int left_size, const void *left, int right_size, const void *right) {
    auto text = [](const void *data, int size) {
        QString read = QString::fromUtf8(static_cast<const char *>(data), size);
        while (read.endsWith(u' ')) {
            read.chop(1);
        }
        return read.toCaseFolded();
    };
    return text(left, left_size).compare(text(right, right_size));
}

inline QString ArgumentText(sqlite3_value *value) {
    return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_value_text(value)));
}

inline void ResultText(sqlite3_context *context, const QString &text) {
    sqlite3_result_text(context, text.toUtf8().constData(), -1, SQLITE_TRANSIENT);
}

inline void ToNumber(sqlite3_context *context, int, sqlite3_value **arguments) {
    bool ok = true;
    const double number = sqlite3_value_type(arguments[0]) == SQLITE_TEXT ? ArgumentText(arguments[0]).toDouble(&ok)
                                                                          : sqlite3_value_double(arguments[0]);
    if (!ok || sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
    } else {
        sqlite3_result_double(context, number);
    }
}

inline void ToInteger(sqlite3_context *context, int, sqlite3_value **arguments) {
    bool ok = true;
    const double number = sqlite3_value_type(arguments[0]) == SQLITE_TEXT ? ArgumentText(arguments[0]).toDouble(&ok)
                                                                          : sqlite3_value_double(arguments[0]);
    if (!ok || sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
    } else {
        sqlite3_result_int64(context, std::llrint(number));
    }
}

inline void ToBoolean(sqlite3_context *context, int, sqlite3_value **arguments) {
    const bool text = sqlite3_value_type(arguments[0]) == SQLITE_TEXT;
    const bool truth = text ? ArgumentText(arguments[0]).compare(u"true", Qt::CaseInsensitive) == 0
                            : sqlite3_value_double(arguments[0]) != 0;
    sqlite3_result_int(context, truth ? -1 : 0);
}

inline void ToText(sqlite3_context *context, int, sqlite3_value **arguments) {
    if (ArgumentText(arguments[1]) == u"b") {
        ResultText(context, sqlite3_value_int(arguments[0]) != 0 ? QStringLiteral("True") : QStringLiteral("False"));
    } else {
        ResultText(context, QString::number(sqlite3_value_double(arguments[0])));
    }
}

inline void Cut(sqlite3_context *context, int, sqlite3_value **arguments) {
    ResultText(context, ArgumentText(arguments[0]).left(sqlite3_value_int(arguments[1])));
}

/// Raises a fault as functions of the engine do.
inline void Fail(sqlite3_context *context, int, sqlite3_value **) {
    sqlite3_result_error(context,
                         "\x01"
                         "11\x01Nothing can be divided by 0.",
                         -1);
}

inline void RegisterStandIns(sqlite3 *handle) {
    sqlite3_create_collation_v2(handle, "dialect", SQLITE_UTF8, nullptr, CompareWithoutCase, nullptr);
    auto add = [&](const char *name, int count, void (*body)(sqlite3_context *, int, sqlite3_value **)) {
        sqlite3_create_function_v2(handle, name, count, SQLITE_UTF8, nullptr, body, nullptr, nullptr, nullptr);
    };
    add("fn__to_integer", 1, ToInteger);
    add("fn__to_real", 1, ToNumber);
    add("fn__to_date", 1, ToNumber);
    add("fn__to_boolean", 1, ToBoolean);
    add("fn__text", 2, ToText);
    add("fn__cut", 2, Cut);
    add("fail", 0, Fail);
}

} // namespace ostrand::sql::testing
