// The dialect's collected cases: each on a fresh database of the same schema.

#include "SqlTestDatabase.h"

#include "sql/Conversion.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <cmath>

namespace ostrand::sql {

namespace {

QString SharedFolder() {
    const QString folder = qEnvironmentVariable("OSTRAND_SHARED");
    return folder.isEmpty() ? QStringLiteral(OSTRAND_SOURCE_DIR "/../shared") : folder;
}

std::vector<QString> SchemaStatements(const QString &file) {
    QFile source(file);
    std::vector<QString> statements;
    if (source.open(QIODevice::ReadOnly)) {
        for (const QString &statement : QString::fromUtf8(source.readAll()).split(QStringLiteral(";\n"))) {
            if (!statement.trimmed().isEmpty()) {
                statements.push_back(statement.trimmed());
            }
        }
    }
    return statements;
}

bool SameValue(const QJsonValue &expected, const Value &value) {
    if (expected.isNull()) {
        return value.IsNull();
    }
    const bool is_number = value.GetType() == Value::Type::Integer || value.GetType() == Value::Type::Real;
    if (expected.isBool()) {
        return is_number && value.Real() == (expected.toBool() ? -1 : 0);
    }
    if (expected.isDouble()) {
        return is_number && std::abs(value.Real() - expected.toDouble()) < 1e-9;
    }
    const QString text = expected.toString();
    if (text.startsWith(u'@')) {
        return is_number && DateToIso(value.Real()) == text.mid(1);
    }
    return value.GetType() == Value::Type::Text && value.Text() == text;
}

std::string Show(const Recordset &rows, const std::vector<std::vector<Value>> &cells) {
    QString text;
    for (const Field &field : rows.Fields()) {
        text += field.label + u' ';
    }
    for (const auto &row : cells) {
        text += QStringLiteral("\n  ");
        for (const Value &value : row) {
            text += value.IsNull() ? QStringLiteral("NULL, ")
                    : value.GetType() == Value::Type::Text
                        ? u'"' + value.Text() + QStringLiteral("\", ")
                        : QString::number(value.Real(), 'g', 15) + QStringLiteral(", ");
        }
    }
    return text.toStdString();
}

std::vector<std::vector<Value>> AllRows(Recordset &rows) {
    std::vector<std::vector<Value>> cells;
    for (; !rows.Eof(); rows.MoveNext()) {
        std::vector<Value> &row = cells.emplace_back();
        for (int i = 0; i < int(rows.Fields().size()); ++i) {
            row.push_back(rows.Get(i));
        }
    }
    return cells;
}

bool SameRow(const QJsonArray &expected, const std::vector<Value> &row) {
    if (size_t(expected.size()) != row.size()) {
        return false;
    }
    for (int i = 0; i < expected.size(); ++i) {
        if (!SameValue(expected[i], row[size_t(i)])) {
            return false;
        }
    }
    return true;
}

bool SameRows(const QJsonArray &expected, std::vector<std::vector<Value>> rows, bool ordered) {
    if (size_t(expected.size()) != rows.size()) {
        return false;
    }
    for (int i = 0; i < expected.size(); ++i) {
        const QJsonArray wanted = expected[i].toArray();
        const auto found =
            ordered ? (SameRow(wanted, rows.front()) ? rows.begin() : rows.end())
                    : std::find_if(rows.begin(), rows.end(), [&](const auto &row) { return SameRow(wanted, row); });
        if (found == rows.end()) {
            return false;
        }
        rows.erase(found);
    }
    return true;
}

bool SameColumns(const QJsonObject &expected, Recordset &rows) {
    for (auto column = expected.begin(); column != expected.end(); ++column) {
        const QJsonArray values = column.value().toArray();
        rows.MoveFirst();
        for (const QJsonValue &value : values) {
            if (rows.Eof() || !SameValue(value, rows.Get(column.key()))) {
                return false;
            }
            rows.MoveNext();
        }
        if (!rows.Eof()) {
            return false;
        }
    }
    return true;
}

void RunCase(const QJsonObject &example, const QString &schema_file) {
    SCOPED_TRACE(example[u"id"].toString().toStdString() + ": " + example[u"sql"].toString().toStdString() + "\n" +
                 example[u"why"].toString().toStdString());
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("case.mdb"));
    ASSERT_TRUE(QFile::copy(schema_file, path));
    const auto database = Database::Open(path, test::FixedEnvironment());
    for (const QJsonValue &statement : example[u"setup"].toArray()) {
        database->Execute(statement.toString());
    }
    const QString sql = example[u"sql"].toString();
    const QJsonValue expect = example[u"expect"];
    try {
        Recordset rows = database->OpenRecordset(sql);
        EXPECT_FALSE(expect.isString() && expect.toString() == u"error") << "no fault was raised";
        if (expect.isArray()) {
            const bool ordered =
                example[u"ordered"].toBool(sql.contains(QStringLiteral("ORDER BY"), Qt::CaseInsensitive));
            const auto cells = AllRows(rows);
            EXPECT_TRUE(SameRows(expect.toArray(), cells, ordered)) << Show(rows, cells);
        } else if (expect.isObject()) {
            const bool same = SameColumns(expect[u"by_name"].toObject(), rows);
            rows.MoveFirst();
            EXPECT_TRUE(same) << Show(rows, AllRows(rows));
        }
    } catch (const SqlError &error) {
        EXPECT_TRUE(expect.isString() && expect.toString() == u"error") << error.what();
        EXPECT_FALSE(error.Text().isEmpty());
    }
}

} // namespace

TEST(DialectCases, AllHold) {
    const QString folder = SharedFolder() + QStringLiteral("/sql");
    QFile file(folder + QStringLiteral("/cases.jsonl"));
    if (!file.open(QIODevice::ReadOnly)) {
        GTEST_SKIP() << "the collected cases are not here (OSTRAND_SHARED)";
    }
    test::TestDatabase schema;
    for (const QString &statement : SchemaStatements(folder + QStringLiteral("/schema.sql"))) {
        schema->Execute(statement);
    }
    schema.Close();
    int count = 0;
    while (!file.atEnd()) {
        const QJsonObject example = QJsonDocument::fromJson(file.readLine()).object();
        if (!example.isEmpty()) {
            RunCase(example, schema.Path());
            ++count;
        }
    }
    EXPECT_GE(count, 375);
}

} // namespace ostrand::sql
