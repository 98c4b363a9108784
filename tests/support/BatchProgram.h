// Runs the program without a screen.
#pragma once

#include "support/TempDir.h"

#include <QProcess>
#include <QStringList>

namespace ostrand::test {

struct BatchResult {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

/// The program in a home of its own, so that no settings of the user count.
class BatchProgram {
public:
    BatchProgram();
    BatchResult Run(const QStringList &arguments, const QByteArray &input = {});
    /// Starts it and leaves it running.
    std::unique_ptr<QProcess> Start(const QStringList &arguments);
    QString In(const QString &name) const { return folder / name; }

    TempDir folder;
    /// The most bytes that a file may grow to, as on a disk that is full; 0 for no limit. On Unix only.
    qint64 file_limit = 0;
};

} // namespace ostrand::test
