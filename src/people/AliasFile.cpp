#include "people/AliasFile.h"

#include "base/Dates.h"
#include "base/Files.h"
#include "base/Text.h"
#include "collection_files/UnpackedFile.h"
#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/CommandFile.h"
#include "shell/Session.h"
#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr int kRowsPerTurn = 50;

bool HasDatabase(Session &session) {
    if (!session.Database) {
        ShowMessage(session, {.text = Translate(session, u"No open database!"_s), .icon = MessageIcon::Warning});
    }
    return session.Database != nullptr;
}

bool IsXmlPath(const QString &path) {
    return QFileInfo(path).suffix().compare(u"xml"_s, Qt::CaseInsensitive) == 0;
}

/// Gives the event loop and the file their turns between links.
class Rhythm {
public:
    explicit Rhythm(Session &session) : session_(session), database_(session.Database.get()) {}
    /// False when the user left the database meanwhile.
    bool Step() {
        if (++count_ % kRowsPerTurn == 0) {
            session_.services.pump.Turn();
            if (session_.Database.get() != database_) {
                return false;
            }
            database_->FlushIfDue();
        }
        return true;
    }

private:
    Session &session_;
    sql::Database *database_;
    int count_ = 0;
};

// Reading.

void ImportText(Session &session, const QString &path, bool silent) {
    const std::optional<QByteArray> content = ReadFile(path);
    if (!content) {
        Trace(session, u"ImportAliasFromFile: cannot read "_s + path, kTraceError);
        return;
    }
    Rhythm rhythm(session);
    for (const QString &line : CommandLines(DecodeUserText(*content))) {
        const QStringList fields = line.split(u';');
        if (fields.size() < 2) {
            return; // what stands behind it is not read: deliberate
        }
        // A comment with a semicolon in it shifts the year: deliberate, the form knows no escape.
        LinkAlias(session, fields[1], fields[0], fields.value(3, u"0"_s).toInt(), silent, fields.value(2));
        if (!rhythm.Step()) {
            return;
        }
    }
}

void ShowFault(Session &session, const XmlResult &result) {
    ShowMessage(session,
                {.text = Translate(session, u"Invalid Alias XML file!"_s) + u'\n' + result.reason + u'\n' +
                         result.source + u'\n' + Translate(session, u"Line"_s) + u' ' + QString::number(result.line),
                 .title = Translate(session, u"Invalid file"_s),
                 .icon = MessageIcon::Warning});
}

void ImportXml(Session &session, const QString &path, bool silent) {
    pugi::xml_document document;
    XmlResult result = XmlLoadFile(path, document);
    const pugi::xml_node root = document.document_element();
    if (result.ok && QByteArrayView(root.name()) != "Aliases") {
        result.reason = Translate(session, u"The file holds no element Aliases."_s);
        result.source = u'<' + QString::fromUtf8(root.name()) + u'>';
        result.line = 1;
        result.ok = false;
    }
    if (!result.ok) {
        ShowFault(session, result);
        return;
    }
    Rhythm rhythm(session);
    for (const pugi::xml_node common : root.children("Common")) {
        const QString name = XmlAttribute(common, "Name");
        const int birth_year = XmlAttribute(common, "BirthYear", u"0"_s).toInt();
        for (const pugi::xml_node alias : common.children("Alias")) {
            LinkAlias(session, name, XmlAttribute(alias, "Name"), birth_year, silent, XmlAttribute(alias, "Comment"));
            if (!rhythm.Step()) {
                return;
            }
        }
    }
}

// Writing.

/// A comment in one line, since a line is a link.
QString InOneLine(QString text) {
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
}

QByteArray TextOfLinks(Session &session) {
    QString text;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM Alias");
    for (; !rows.Eof(); rows.MoveNext()) {
        text += QStringList{rows.Text(u"AliasName"), rows.Text(u"CommonName"), InOneLine(rows.Text(u"Comment")),
                            rows.Text(u"BirthYear")}
                    .join(u';') +
                u"\r\n"_s;
    }
    return EncodeUserText(text);
}

void AddAliases(Session &session, pugi::xml_node common, const QString &name, const QString &birth_year) {
    sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT AliasName, Comment FROM Alias WHERE CommonName = '"_s + EscapeSql(name) +
                u"' AND BirthYear "_s + (birth_year.isEmpty() ? u"IS NULL"_s : u"= "_s + birth_year)));
    for (; !rows.Eof(); rows.MoveNext()) {
        pugi::xml_node alias = XmlAddElement(common, "Alias", 2);
        XmlSetAttribute(alias, "Name", rows.Text(0));
        if (const QString comment = rows.Text(1); !comment.isEmpty()) {
            XmlSetAttribute(alias, "Comment", comment);
        }
    }
    XmlAddIndent(common, 1);
}

QByteArray XmlOfLinks(Session &session) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Aliases");
    sql::Recordset rows = session.Database->OpenRecordset(
        u"SELECT DISTINCT CommonName, BirthYear FROM Alias ORDER BY CommonName, BirthYear");
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString name = rows.Text(0);
        const QString birth_year = rows.Text(1);
        pugi::xml_node common = XmlAddElement(root, "Common", 1);
        XmlSetAttribute(common, "Name", name);
        if (!birth_year.isEmpty() && birth_year != u"0"_s) {
            XmlSetAttribute(common, "BirthYear", birth_year);
        }
        AddAliases(session, common, name, birth_year);
    }
    if (root.first_child()) {
        XmlAddIndent(root, 0);
    }
    const QString header = u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- Ostrand Version "_s +
                           session.AppVersion + u" Alias Export -->\r\n<!-- Exported: "_s +
                           DayCountToDateTime(session.services.clock.Now()) + u" -->\r\n"_s;
    return XmlDocumentBytes(header, root);
}

/// Packs in the temp folder, so that a fault of the archiver, which tells none, leaves the archive of before.
bool Pack(Session &session, const QString &path) {
    const QString base = QDir(session.TempFolder).filePath(QFileInfo(path).completeBaseName());
    const QString file = base + u".xml"_s;
    const QString archive = base + u".7z"_s;
    MakeFolderPath(session.TempFolder);
    QFile::remove(archive);
    if (!ReplaceFile(file, XmlOfLinks(session))) {
        return false;
    }
    Archive7z(ArchiveToolsOf(session), file, archive);
    const std::optional<QByteArray> packed = ReadFile(archive);
    QFile::remove(file);
    QFile::remove(archive);
    return packed && ReplaceFile(path, *packed);
}

FileRequest ExportRequest(Session &session) {
    return {.title = Translate(session, u"Please enter the name for the Alias file for export"_s),
            .initial = QDir(session.DataFolder).filePath(u"Alias.7z"_s),
            .filters = {Translate(session, u"Compressed Alias XML File"_s) + u"|*.7z"_s,
                        Translate(session, u"Alias XML File"_s) + u"|*.xml"_s,
                        Translate(session, u"Alias File"_s) + u"|*.cfg"_s}};
}

} // namespace

void ImportAliasFromFile(Session &session, const QString &path, bool show_messages) {
    Trace(session, u"ImportAliasFromFile("_s + path + u')', kTraceEntry);
    if (!HasDatabase(session) || !QFileInfo(path).isFile()) {
        return;
    }
    if (IsArchivePath(path)) {
        const UnpackedFile file(session, path, u"xml"_s);
        ImportXml(session, file.Path(), !show_messages);
    } else if (IsXmlPath(path)) {
        ImportXml(session, path, !show_messages);
    } else {
        ImportText(session, path, !show_messages);
    }
}

bool ExportAliasToFile(Session &session, const QString &path) {
    Trace(session, u"ExportAliasToFile("_s + path + u')', kTraceEntry);
    if (!HasDatabase(session)) {
        return false;
    }
    const bool written = IsArchivePath(path) ? Pack(session, path)
                         : IsXmlPath(path)   ? ReplaceFile(path, XmlOfLinks(session))
                                             : ReplaceFile(path, TextOfLinks(session));
    if (!written) {
        Trace(session, u"ExportAliasToFile: cannot write "_s + path, kTraceError);
        ShowMessage(session, {.text = Translate(session, u"The file cannot be written:"_s) + u' ' + path,
                              .icon = MessageIcon::Critical});
    }
    return written;
}

void ChooseAliasFileToImport(Session &session) {
    const QString path =
        session.services.dialogs.OpenFile({.title = Translate(session, u"Please select the Alias file for import"_s),
                                           .initial = session.DataFolder,
                                           .filters = {Translate(session, u"Alias File"_s) + u"|*.cfg;*.7z;*.xml"_s}});
    if (!path.isEmpty()) {
        ImportAliasFromFile(session, path, false); // each refused link is traced
        ShowMessage(session,
                    {.text = Translate(session, u"Import finished."_s), .title = Translate(session, u"Done"_s)});
    }
}

void ChooseAliasFileToExport(Session &session) {
    const QString path = session.services.dialogs.SaveFile(ExportRequest(session));
    if (!path.isEmpty() && ExportAliasToFile(session, path)) {
        ShowMessage(session, {.text = Translate(session, u"Export to alias file completed"_s),
                              .title = Translate(session, u"Finished"_s)});
    }
}

} // namespace ostrand
