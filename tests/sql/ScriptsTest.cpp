// Runs the scripts *.test of this folder, each on a fresh database. A script is a list of records, parted by empty
// lines. A line that begins with "--" is a comment.
//
//   statement ok                 The lines up to the empty line are one statement, which must run.
//   SQL
//
//   statement error NUMBER       It must fail with this number.
//   SQL
//
//   query [sorted] [labels]      It must give the rows below the line of dashes. With "sorted" the rows compare in any
//   SQL                          order; with "labels" the first line below the dashes holds the labels of the fields.
//   ----
//   KINDS                        A letter a field: T text, M memo, I integer, R real, D date, B truth value, N null,
//   a|1|NULL                     ? unknown. Then a row a line: texts as they are, NULL, True and False, dates
//   (empty)                      yyyy-mm-dd[ hh:nn:ss], numbers with 15 digits; "(empty)" is the empty text.
//
//   count NUMBER                 The statement must change so many rows.
//   SQL
//
//   reopen                       Closes the database and opens it again.

#include "SqlTestDatabase.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ostrand::sql {

namespace {

struct Record {
    int line = 0; ///< of the record's first line, from 1
    QStringList head;
    QString sql;
    QStringList expected;
};

std::vector<Record> ReadScript(const QString &path) {
    QFile file(path);
    std::vector<Record> records;
    if (!file.open(QIODevice::ReadOnly)) {
        return records;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    bool inside = false;
    bool below = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString &line = lines[i];
        if (line.startsWith(u"-- ") || line == u"--") {
            continue;
        }
        if (line.isEmpty()) {
            inside = below = false;
        } else if (!inside) {
            inside = true;
            records.push_back({int(i + 1), line.split(u' '), {}, {}});
        } else if (line == u"----") {
            below = true;
        } else if (below) {
            records.back().expected.append(line);
        } else {
            QString &sql = records.back().sql;
            sql += sql.isEmpty() ? line : u'\n' + line;
        }
    }
    return records;
}

QString ShowCell(const Recordset &rows, int field) {
    if (rows.IsNull(field)) {
        return u"NULL"_s;
    }
    const QString text = rows.Text(field);
    return text.isEmpty() ? u"(empty)"_s : text;
}

QStringList ShowRows(Recordset &rows, bool labels) {
    constexpr QStringView kLetters = u"TMIRDBN?";
    QStringList lines;
    QString kinds;
    QStringList names;
    for (const Field &field : rows.Fields()) {
        names.append(field.label);
        kinds += kLetters[qsizetype(field.kind)];
    }
    if (labels) {
        lines.append(names.join(u'|'));
    }
    lines.append(kinds);
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList cells;
        for (int i = 0; i < int(names.size()); ++i) {
            cells.append(ShowCell(rows, i));
        }
        lines.append(cells.join(u'|'));
    }
    return lines;
}

class ScriptRunner {
public:
    explicit ScriptRunner(QString path) : path_(std::move(path)) {}

    void CheckAll() {
        const std::vector<Record> records = ReadScript(path_);
        ASSERT_FALSE(records.empty()) << path_.toStdString();
        for (const Record &record : records) {
            RunRecord(record);
        }
    }

private:
    void RunRecord(const Record &record) {
        const std::string place = path_.toStdString() + ':' + std::to_string(record.line) + ": ";
        const QString kind = record.head.front();
        try {
            if (kind == u"reopen") {
                database_.Reopen();
            } else if (kind == u"query") {
                CheckRows(record, place);
            } else if (kind == u"count") {
                EXPECT_EQ(QString::number(database_->Execute(record.sql)), record.head.value(1)) << place;
            } else if (kind == u"statement" && record.head.value(1) == u"ok") {
                database_->Execute(record.sql);
            } else if (kind == u"statement" && record.head.value(1) == u"error") {
                database_->OpenRecordset(record.sql);
                ADD_FAILURE() << place << "no fault was raised: " << record.sql.toStdString();
            } else {
                ADD_FAILURE() << place << "no such record: " << kind.toStdString();
            }
        } catch (const SqlError &error) {
            const bool expected = kind == u"statement" && record.head.value(1) == u"error";
            EXPECT_TRUE(expected) << place << error.what() << "\n" << record.sql.toStdString();
            EXPECT_EQ(QString::number(error.Number()),
                      expected ? record.head.value(2) : QString::number(error.Number()))
                << place << error.what() << "\n"
                << record.sql.toStdString();
        }
    }

    void CheckRows(const Record &record, const std::string &place) {
        Recordset rows = database_->OpenRecordset(record.sql);
        const bool labels = record.head.contains(u"labels"_s);
        QStringList found = ShowRows(rows, labels);
        QStringList wanted = record.expected;
        if (record.head.contains(u"sorted"_s)) {
            const qsizetype head = labels ? 2 : 1;
            std::sort(found.begin() + std::min(head, found.size()), found.end());
            std::sort(wanted.begin() + std::min(head, wanted.size()), wanted.end());
        }
        EXPECT_EQ(found.join(u'\n').toStdString(), wanted.join(u'\n').toStdString())
            << place << record.sql.toStdString();
    }

    QString path_;
    test::TestDatabase database_;
};

class Scripts : public testing::TestWithParam<std::string> {};

std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    const QDir folder(QStringLiteral(OSTRAND_SOURCE_DIR "/tests/sql"));
    for (const QString &file : folder.entryList({u"*.test"_s}, QDir::Files, QDir::Name)) {
        names.push_back(file.chopped(5).toStdString());
    }
    return names;
}

} // namespace

TEST_P(Scripts, RunsAsWritten) {
    ScriptRunner(QStringLiteral(OSTRAND_SOURCE_DIR "/tests/sql/") + QString::fromStdString(GetParam()) + u".test"_s)
        .CheckAll();
}

INSTANTIATE_TEST_SUITE_P(Folder, Scripts, testing::ValuesIn(ScriptNames()),
                         [](const testing::TestParamInfo<std::string> &info) { return info.param; });

} // namespace ostrand::sql
