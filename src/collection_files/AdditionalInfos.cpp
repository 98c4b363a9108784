#include "collection_files/AdditionalInfos.h"

#include "audit/Audit.h"
#include "collection_files/LockSet.h"
#include "collection_files/Rows.h"
#include "collection_files/UnpackedFile.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

QStringList InfoNames(Session &session, const QString &name) {
    if (!name.isEmpty()) {
        return {name};
    }
    QStringList names;
    sql::Recordset rows =
        session.Database->OpenRecordset(u"SELECT DISTINCT InfoName FROM AdditionalInfo ORDER BY InfoName");
    for (; !rows.Eof(); rows.MoveNext()) {
        names.append(rows.Text(0));
    }
    return names;
}

void AddInfos(Session &session, pugi::xml_node root, const QString &name) {
    pugi::xml_node group = XmlAddElement(root, "AdditionalInfo", 1);
    XmlSetAttribute(group, "Name", name);
    sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT * FROM AdditionalInfo WHERE InfoName = '"_s + EscapeSql(name) + u"' ORDER BY ProfileID"_s));
    for (; !rows.Eof(); rows.MoveNext()) {
        pugi::xml_node info = XmlAddTextElement(group, "Info", rows.Text(u"InfoValue"), 2, FieldType::Memo);
        XmlSetAttribute(info, "ID", rows.Text(u"ProfileID"));
        if (const QString type = rows.Text(u"InfoType"); !type.isEmpty()) {
            XmlSetAttribute(info, "Type", type);
        }
    }
    XmlAddIndent(group, 1);
}

/// What decides whether the entries of a profile are taken.
class Takers {
public:
    explicit Takers(Session &session) :
        session_(session), all_(GetINIString(session, u"Settings"_s, u"ImportAllAdditionalInfos"_s, u"False"_s)
                                    .compare(u"True"_s, Qt::CaseInsensitive) == 0) {}

    bool Takes(const QString &id) const {
        if (!all_ && session_.Database
                         ->OpenRecordset(
                             QString(u"SELECT ProfileID FROM Profiles WHERE ProfileID = '"_s + EscapeSql(id) + u'\''))
                         .Eof()) {
            return false;
        }
        const LockSet locks(session_, id);
        return !locks.IsLocked(u"Entire"_s) && !locks.IsLocked(u"AdditionalInfo"_s);
    }

private:
    Session &session_;
    bool all_;
};

void ReplaceInfo(Session &session, const QString &id, const QString &name, const pugi::xml_node &info) {
    const sql::Database::Bracket bracket(*session.Database);
    session.Database->Execute(QString(u"DELETE FROM AdditionalInfo WHERE ProfileID = '"_s + EscapeSql(id) +
                                      u"' AND InfoName = '"_s + EscapeSql(name) + u'\''));
    InsertRow(session, QLatin1String("AdditionalInfo"),
              {{QLatin1String("ProfileID"), id},
               {QLatin1String("InfoName"), name},
               {QLatin1String("InfoValue"), XmlNodeText(info)},
               {QLatin1String("InfoType"), XmlAttribute(info, "Type")}});
}

void TakeInfos(Session &session, const pugi::xml_node &root) {
    const Takers takers(session);
    for (const pugi::xml_node group : root.children("AdditionalInfo")) {
        const QString name = XmlAttribute(group, "Name");
        for (const pugi::xml_node info : group.children("Info")) {
            const QString id = XmlAttribute(info, "ID");
            if (takers.Takes(id)) {
                ReplaceInfo(session, id, name, info);
                Audit::AuditWriteProfile(session, id);
            }
        }
        session.services.pump.Turn();
        session.Database->FlushIfDue();
    }
    Audit::AuditSync(session, u"Import Additional Infos"_s);
}

} // namespace

void ExportAdditionalInfos(Session &session, const QString &path, const QString &name) {
    Trace(session, u"ExportAdditionalInfos("_s + path + u", "_s + name + u')', kTraceEntry);
    if (!session.Database) {
        ShowMessage(session, {.text = Translate(session, u"No open database!"_s), .icon = MessageIcon::Warning});
        return;
    }
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("AdditionalInfos");
    for (const QString &info_name : InfoNames(session, name)) {
        AddInfos(session, root, info_name);
    }
    if (root.first_child()) {
        XmlAddIndent(root, 0);
    }
    const QString header = u"<?xml version=\"1.0\" encoding=\"utf-8\"?><!-- Ostrand Version "_s + session.AppVersion +
                           u" Additional Info Export -->\r\n"_s;
    const bool packed = IsArchivePath(path);
    const QString file =
        packed ? QDir(session.TempFolder).filePath(QFileInfo(path).completeBaseName() + u".xml"_s) : path;
    if (packed) {
        QDir().mkpath(session.TempFolder);
    }
    if (!XmlSaveDocument(file, header, root)) {
        Trace(session, u"ExportAdditionalInfos: cannot write "_s + file, kTraceError);
        ShowMessage(session, {.text = Translate(session, u"The file cannot be written:"_s) + u' ' + path,
                              .icon = MessageIcon::Critical});
        return;
    }
    if (packed) {
        Archive7z(ArchiveToolsOf(session), file, path);
        QFile::remove(file);
    }
}

void ImportAdditionalInfos(Session &session, const QString &path) {
    Trace(session, u"ImportAdditionalInfos("_s + path + u')', kTraceEntry);
    if (!session.Database) {
        ShowMessage(session, {.text = Translate(session, u"No open database!"_s), .icon = MessageIcon::Warning});
        return;
    }
    const UnpackedFile file(session, path, u"xml"_s);
    pugi::xml_document document;
    XmlResult result = XmlLoadFile(file.Path(), document);
    const pugi::xml_node root = document.child("AdditionalInfos");
    if (result.ok && !root) {
        result.reason = Translate(session, u"The file holds no element AdditionalInfos."_s);
        result.line = 1;
        result.ok = false;
    }
    if (!result.ok) {
        ShowMessage(session, {.text = Translate(session, u"Invalid XML file!"_s) + u'\n' + result.reason + u'\n' +
                                      Translate(session, u"Line"_s) + u' ' + QString::number(result.line),
                              .title = Translate(session, u"Invalid file"_s),
                              .icon = MessageIcon::Warning});
        return;
    }
    try {
        TakeInfos(session, root);
    } catch (const sql::SqlError &error) {
        Trace(session, u"ImportAdditionalInfos: "_s + error.Text(), kTraceError);
        ShowMessage(session,
                    {.text = error.Text(), .title = u"ImportAdditionalInfos"_s, .icon = MessageIcon::Critical});
    }
}

} // namespace ostrand
