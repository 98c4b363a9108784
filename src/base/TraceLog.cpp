#include "base/TraceLog.h"

#include "base/Text.h"

#include <QFile>
#include <QLocale>

namespace ostrand {

namespace {

/// The last level that matches wins: a line that is both an entry and an error reads as an error.
QString Prefix(int level) {
    QString prefix;
    if ((level & kTraceEntry) != 0)
        prefix = QStringLiteral("Enter:    ");
    if ((level & kTraceExit) != 0)
        prefix = QStringLiteral("Exit:     ");
    if ((level & kTraceInfo) != 0)
        prefix = QStringLiteral("Info:     ");
    if ((level & kTraceError) != 0)
        prefix = QStringLiteral("Error:    ");
    return prefix;
}

QString TimePrefix(double seconds) {
    return QString::number(seconds, 'f', QLocale::FloatingPointShortest).left(8).leftJustified(8) +
           QStringLiteral(" : ");
}

} // namespace

void TraceLog::Write(const QString &message, int level) const {
    if (!Wants(level) || path.isEmpty())
        return;
    QString line = Prefix(level);
    if ((Mask & kTraceTime) != 0)
        line += TimePrefix(seconds ? seconds() : 0.0);
    line += message + QStringLiteral("\r\n");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(EncodeUserText(line));
}

} // namespace ostrand
