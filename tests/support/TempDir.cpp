#include "support/TempDir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace ostrand::test {

TempDir::TempDir() {
    EXPECT_TRUE(dir_.isValid()) << qPrintable(dir_.errorString());
}

QString TempDir::Write(const QString &name, const QByteArray &content) const {
    const QString path = *this / name;
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    EXPECT_EQ(file.write(content), content.size());
    return path;
}

QByteArray TempDir::Read(const QString &name) const {
    return ReadTestFile(*this / name);
}

bool TempDir::Has(const QString &name) const {
    return QFileInfo::exists(*this / name);
}

QByteArray ReadTestFile(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QString SharedFolder() {
    const QString given = qEnvironmentVariable("OSTRAND_SHARED");
    return given.isEmpty() ? QDir::cleanPath(QStringLiteral(OSTRAND_SOURCE_DIR "/../shared")) : given;
}

} // namespace ostrand::test
