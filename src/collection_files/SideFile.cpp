#include "collection_files/SideFile.h"

#include "base/Dates.h"
#include "collection_files/UnpackedFile.h"
#include "shell/Session.h"
#include "xml/XmlLoader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kLineBreak = "\r\n"_L1;

} // namespace

QString SideFileHeader(Session &session, const QString &what) {
    return u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- Ostrand Version "_s + session.AppVersion + u' ' + what +
           u" Export -->\r\n<!-- Exported: "_s + DayCountToDateTime(session.services.clock.Now()) + u" -->\r\n"_s;
}

bool WriteSideFile(Session &session, const QString &path, const std::function<bool(const QString &file)> &write) {
    const bool packed = IsArchivePath(path);
    const QString file =
        packed ? QDir(session.TempFolder).filePath(QFileInfo(path).completeBaseName() + ".xml"_L1) : path;
    if (packed) {
        QDir().mkpath(session.TempFolder);
    }
    bool written = write(file);
    if (written && packed) {
        Archive7z(ArchiveToolsOf(session), file, QFileInfo(path).absoluteFilePath());
        QFile::remove(file);
        written = QFileInfo(path).isFile(); // where no archiver is installed there is none
    }
    if (!written) {
        Trace(session, "WriteSideFile: cannot write "_L1 + path, kTraceError);
        ShowMessage(session, {.text = Translate(session, u"The file cannot be written:"_s) + u' ' + path,
                              .title = {},
                              .icon = MessageIcon::Critical});
    }
    return written;
}

pugi::xml_node LoadSideFile(Session &session, const QString &file, const char *root, const QString &invalid,
                            pugi::xml_document &document) {
    XmlResult result = XmlLoadFile(file, document);
    const pugi::xml_node node = document.child(root);
    if (result.ok && node) {
        return node;
    }
    if (result.ok) { // a file of another kind
        result.reason = Translate(session, u"The file holds no element"_s) + " '"_L1 + QLatin1String(root) + "'."_L1;
        result.source = u'<' + QString::fromUtf8(document.document_element().name()) + u'>';
        result.line = 1;
    }
    ShowMessage(session,
                {.text = Translate(session, invalid) + kLineBreak + result.reason + kLineBreak + result.source +
                         kLineBreak + Translate(session, u"Line"_s) + u' ' + QString::number(result.line),
                 .title = Translate(session, u"Invalid file"_s),
                 .icon = MessageIcon::Warning});
    return {};
}

bool TellNoDatabase(Session &session) {
    if (!session.Database) {
        ShowMessage(session,
                    {.text = Translate(session, u"No open database!"_s), .title = {}, .icon = MessageIcon::Warning});
    }
    return !session.Database;
}

} // namespace ostrand
