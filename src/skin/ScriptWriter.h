// Script text that declares variables and their types, line by line.
#pragma once

#include "sql/Value.h"

#include <QString>
#include <QStringList>

namespace ostrand {

/// A text between double quotes.
QString ScriptString(const QString &text);
QString ScriptFlag(bool value);
/// A day count since 1899-12-30 as `new Date(year,month,day)`. NULL, and a count that is no date, give the empty date
/// of the system, 1899-12-30.
QString ScriptDate(const sql::Value &days);
/// The same with hour, minute and second behind it; the empty date has none.
QString ScriptDateTime(const sql::Value &days);
/// The date of a loan, whose empty form differs.
QString ScriptLoanDate(const sql::Value &days);
/// `new Type(a, b, ...)` of finished values.
QString ScriptNew(const QString &type, const QStringList &values);

/// Appends lines to a text. Each begins with a tab and ends with CR LF.
class ScriptWriter {
public:
    /// Captions of sections are left out unless `comments`; the empty line in front of them never is.
    ScriptWriter(QString &text, bool comments) : text_(text), comments_(comments) {}

    void Section(const QString &caption);
    /// A constructor that keeps each parameter under its own name. `signature` is `Type(a, b, ...)`.
    void Type(const QString &signature);

    /// A variable with a finished value, such as the functions above give.
    void Value(const QString &name, const QString &value);
    void Text(const QString &name, const QString &text) { Value(name, ScriptString(text)); }
    void Flag(const QString &name, bool value) { Value(name, ScriptFlag(value)); }
    void Number(const QString &name, qint64 value) { Value(name, QString::number(value)); }
    /// An array of finished values.
    void List(const QString &name, const QStringList &values);
    /// An array of texts.
    void Texts(const QString &name, const QStringList &texts);
    /// A line as it stands.
    void Line(const QString &line);
    /// The lines of an array's values, below the line that declares it.
    void Elements(const QString &name, const QStringList &values);

private:
    QString &text_;
    bool comments_;
};

} // namespace ostrand
