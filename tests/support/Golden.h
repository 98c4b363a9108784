// Files under tests/golden: texts that were read once and must not change.
#pragma once

#include <QString>

namespace ostrand {
struct Session;
}

namespace ostrand::test {

QString GoldenPath(const QString &name);
QString ReadGoldenFile(const QString &name);

/// The test fails where the kept file holds anything but these bytes, and tells the first line that differs. With
/// OSTRAND_RENEW_GOLDEN=1 the file is written anew and the test fails, so that what changed is read.
void ExpectGolden(const QString &name, const QByteArray &actual);

/// Fills the session's collection from statements, one a line; lines that begin with "--" are remarks.
void RunStatements(Session &session, const QString &statements);

} // namespace ostrand::test
