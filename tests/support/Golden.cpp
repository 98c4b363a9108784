#include "support/Golden.h"

#include "shell/Session.h"
#include "support/TempDir.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace ostrand::test {

namespace {

using namespace Qt::StringLiterals;

/// The first line that differs, told from both sides.
std::string FirstDifference(const QByteArray &actual, const QByteArray &expected) {
    const QByteArrayList ours = actual.split('\n');
    const QByteArrayList theirs = expected.split('\n');
    qsizetype line = 0;
    while (line < std::min(ours.size(), theirs.size()) && ours[line] == theirs[line]) {
        ++line;
    }
    const auto shown = [line](const QByteArrayList &lines) {
        return line < lines.size() ? QByteArray(lines[line]).replace('\r', "\\r").toStdString()
                                   : std::string("(the end of the file)");
    };
    return "line " + std::to_string(line + 1) + "\n  is:        " + shown(ours) + "\n  should be: " + shown(theirs);
}

void Renew(const QString &name, const QByteArray &content) {
    const QString path = GoldenPath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(content), content.size());
    ADD_FAILURE() << qPrintable(name) << " was renewed; unset OSTRAND_RENEW_GOLDEN and read it";
}

} // namespace

QString GoldenPath(const QString &name) {
    return QStringLiteral(OSTRAND_SOURCE_DIR "/tests/golden/") + name;
}

QString ReadGoldenFile(const QString &name) {
    return QString::fromUtf8(ReadTestFile(GoldenPath(name)));
}

void ExpectGolden(const QString &name, const QByteArray &actual) {
    if (qEnvironmentVariableIntValue("OSTRAND_RENEW_GOLDEN") != 0) {
        Renew(name, actual);
        return;
    }
    const QByteArray expected = ReadTestFile(GoldenPath(name));
    EXPECT_TRUE(actual == expected) << qPrintable(name) << ", " << FirstDifference(actual, expected);
}

void RunStatements(Session &session, const QString &statements) {
    for (const QString &line : statements.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("--"_L1)) {
            continue;
        }
        try {
            session.Database->Execute(line);
        } catch (const sql::SqlError &error) {
            ADD_FAILURE() << qPrintable(error.Text()) << "\n" << qPrintable(line);
        }
    }
}

} // namespace ostrand::test
