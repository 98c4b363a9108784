#include "collection_files/Archives.h"

#include "base/Files.h"
#include "base/TraceLog.h"

#include <QFileInfo>

namespace ostrand {

namespace {

/// The archiver beside the program; else its bare name, which the system looks up on the path.
QString Archiver(const Folders &folders) {
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("7za.exe");
#else
    const QString name = QStringLiteral("7za");
#endif
    const QFileInfo beside(WithSeparator(folders.Program()) + name);
    return beside.isFile() && beside.isExecutable() ? beside.filePath() : name;
}

void RunArchiver(const ArchiveTools &tools, const QString &routine, const QStringList &arguments) {
    QString error;
    const auto code = tools.processes.Run(Archiver(tools.folders), arguments, ProcessStyle::Hidden, tools.pump, &error);
    if (!code)
        tools.trace(routine + QStringLiteral(": ") + error, kTraceError);
    else if (*code != 0)
        // Extract7z says Archive7z here as well: deliberate, the line is searched for.
        tools.trace(QStringLiteral("Archive7z: ret=%1").arg(*code), kTraceError);
}

/// An absolute path cannot be taken for a switch.
QString Absolute(const QString &path) {
    return QFileInfo(path).absoluteFilePath();
}

} // namespace

void Archive7z(const ArchiveTools &tools, const QString &source, const QString &archive) {
    tools.trace(QStringLiteral("Archive7z(") + source + QStringLiteral(", ") + archive + u')', kTraceEntry);
    RunArchiver(tools, QStringLiteral("Archive7z"), {QStringLiteral("a"), Absolute(archive), Absolute(source)});
}

void Extract7z(const ArchiveTools &tools, const QString &archive, const QString &folder) {
    tools.trace(QStringLiteral("Extract7z(") + archive + QStringLiteral(", ") + folder + u')', kTraceEntry);
    RunArchiver(tools, QStringLiteral("Extract7z"),
                {QStringLiteral("e"), Absolute(archive), QStringLiteral("-o") + WithSeparator(Absolute(folder))});
}

std::optional<int> RunAndWait(ProcessRunner &processes, const QString &command, ProcessStyle style, EventPump *pump,
                              QString *error) {
    return processes.RunCommandLine(command, style, pump, error);
}

} // namespace ostrand
