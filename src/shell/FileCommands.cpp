#include "shell/FileCommands.h"

#include "collection_files/AdditionalInfos.h"
#include "shell/CommandFile.h"
#include "shell/Session.h"

#include <QDir>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

FileRequest AdditionalInfoFile(Session &session) {
    return {.title = Translate(session, u"Please select an additional info file"_s),
            .initial = QDir(session.DataFolder).filePath(u"additionalinfos.xml"_s),
            .filters = {Translate(session, u"Additional Info File"_s) + u"|*.xml;*.7z"_s}};
}

} // namespace

void ChooseCommandFile(Session &session) {
    const QString path =
        session.services.dialogs.OpenFile({.title = Translate(session, u"Please select a command file"_s),
                                           .initial = u"command.txt"_s,
                                           .filters = {Translate(session, u"All Files"_s) + u"|*.*"_s}});
    if (!path.isEmpty()) {
        RunCommandFile(session, path);
    }
}

void ChooseAdditionalInfosToImport(Session &session) {
    const QString path = session.services.dialogs.OpenFile(AdditionalInfoFile(session));
    if (!path.isEmpty()) {
        ImportAdditionalInfos(session, path);
    }
}

void ChooseAdditionalInfosToExport(Session &session) {
    const QString path = session.services.dialogs.SaveFile(AdditionalInfoFile(session));
    if (!path.isEmpty()) {
        ExportAdditionalInfos(session, path, {});
    }
}

} // namespace ostrand
