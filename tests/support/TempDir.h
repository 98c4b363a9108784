// Folders and files of tests.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace ostrand::test {

/// A folder that goes away with the object.
class TempDir {
public:
    TempDir();
    QString Path() const { return dir_.path(); }
    /// The path of an entry.
    QString operator/(const QString &name) const { return dir_.filePath(name); }
    /// Writes a file, making the folders above it, and returns its path.
    QString Write(const QString &name, const QByteArray &content) const;
    /// The content of a file; the test fails when it cannot be read.
    QByteArray Read(const QString &name) const;
    bool Has(const QString &name) const;

private:
    QTemporaryDir dir_;
};

/// The content of a file; the test fails when it cannot be read.
QByteArray ReadTestFile(const QString &path);

/// The folder of files that lie beside the project and are not part of it; OSTRAND_SHARED or the default. Tests that
/// need it skip when it does not exist.
QString SharedFolder();

} // namespace ostrand::test
