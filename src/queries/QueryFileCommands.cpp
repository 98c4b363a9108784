#include "queries/QueryFileCommands.h"

#include "queries/LanguageFile.h"
#include "queries/SqlFile.h"
#include "shell/Session.h"

#include <QDir>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void TellDone(Session &session, const QString &text, const QString &title) {
    ShowMessage(
        session,
        {.text = Translate(session, text), .title = Translate(session, title), .icon = MessageIcon::Information});
}

QString InDataFolder(const Session &session, const QString &name) {
    return QDir(session.DataFolder).filePath(name);
}

/// Where the language files of the program lie; the data folder where none are installed.
QString LanguageFolder(const Session &session) {
    for (const QString &folder : session.services.folders.Resources()) {
        if (const QString languages = QDir(folder).filePath(u"languages"_s); QDir(languages).exists()) {
            return languages;
        }
    }
    return session.DataFolder;
}

} // namespace

void ChooseSQLToImport(Session &session) {
    const QString path =
        session.services.dialogs.OpenFile({.title = Translate(session, u"Please select the SQL file for import"_s),
                                           .initial = session.DataFolder,
                                           .filters = {Translate(session, u"SQL File"_s) + "|*.7z;*.xml"_L1}});
    if (!path.isEmpty() && ImportSQLFromFile(session, path)) {
        TellDone(session, u"Import finished."_s, u"Done"_s);
    }
}

void ChooseSQLToExport(Session &session) {
    const QString path = session.services.dialogs.SaveFile(
        {.title = Translate(session, u"Please enter the name for the SQL file for export"_s),
         .initial = InDataFolder(session, u"SQLQueries.7z"_s),
         .filters = {Translate(session, u"Compressed SQL XML File"_s) + "|*.7z"_L1,
                     Translate(session, u"SQL XML File"_s) + "|*.xml"_L1}});
    if (!path.isEmpty() && ExportSQLToFile(session, path)) {
        TellDone(session, u"Export to SQL file completed"_s, u"Finished"_s);
    }
}

void ChooseStringsToImport(Session &session) {
    const QString path = session.services.dialogs.OpenFile(
        {.title = Translate(session, u"Please select the Language file for import"_s),
         .initial = LanguageFolder(session),
         .filters = {Translate(session, u"Language File"_s) + "|*.cfg;*.7z;*.xml"_L1}});
    if (!path.isEmpty() && ImportStringsFromFile(session, path)) {
        TellDone(session, u"Import finished."_s, u"Done"_s);
    }
}

void ChooseStringsToExport(Session &session) {
    const QString path = session.services.dialogs.SaveFile(
        {.title = Translate(session, u"Please enter the name for the Language file for export"_s),
         .initial = InDataFolder(session, u"Language.7z"_s),
         .filters = {Translate(session, u"Compressed Language XML File"_s) + "|*.7z"_L1,
                     Translate(session, u"Language XML File"_s) + "|*.xml"_L1,
                     Translate(session, u"Language File"_s) + "|*.cfg"_L1}});
    if (!path.isEmpty() && ExportStringsToFile(session, path)) {
        TellDone(session, u"Export to language file completed"_s, u"Finished"_s);
    }
}

} // namespace ostrand
