#include "queries/SqlFile.h"

#include "collection_files/SideFile.h"
#include "collection_files/UnpackedFile.h"
#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "shell/Session.h"
#include "xml/XmlNodes.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void FillQueries(Session &session, pugi::xml_node root) {
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM SQLQueries");
    for (; !rows.Eof(); rows.MoveNext()) {
        pugi::xml_node query = XmlAddElement(root, "SQLQuery", 1);
        XmlAddTextElement(query, "SQLName", rows.Text(u"Name"), 2, FieldType::Memo);
        XmlAddTextElement(query, "SQLStatement", rows.Text(u"SQLStatement"), 2, FieldType::Memo);
        XmlAddIndent(query, 1);
    }
    if (root.first_child()) {
        XmlAddIndent(root, 0);
    }
}

void ReplaceQuery(Session &session, const QString &name, QString statement) {
    statement.replace(u"\r\n"_s, u"\n"_s).replace(u"\n"_s, u"\r\n"_s);
    session.Database->Execute(QString(u"DELETE FROM SQLQueries WHERE Name = '"_s + EscapeSql(name) + u'\''));
    session.Database->Execute(QString(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('"_s + EscapeSql(name) +
                                      u"', '"_s + EscapeSql(statement) + u"')"_s));
}

} // namespace

bool ImportSQLFromFile(Session &session, const QString &path) {
    Trace(session, u"ImportSQLFromFile("_s + path + u')', kTraceEntry);
    if (TellNoDatabase(session)) {
        return false;
    }
    const UnpackedFile file(session, path, u"xml"_s);
    pugi::xml_document document;
    const pugi::xml_node root = LoadSideFile(session, file.Path(), "SQLQueries", u"Invalid SQL file!"_s, document);
    if (!root) {
        return false;
    }
    try {
        WriteTogether(session, [&] {
            for (const pugi::xml_node query : root.children("SQLQuery")) {
                ReplaceQuery(session, XmlChildText(query, "SQLName"), XmlChildText(query, "SQLStatement"));
            }
        });
    } catch (const sql::SqlError &error) {
        Trace(session, u"ImportSQLFromFile: "_s + error.Text(), kTraceError);
        ShowMessage(session, {.text = error.Text(), .title = u"ImportSQLFromFile"_s, .icon = MessageIcon::Critical});
        return false;
    }
    return true;
}

bool ExportSQLToFile(Session &session, const QString &path) {
    Trace(session, u"ExportSQLToFile("_s + path + u')', kTraceEntry);
    if (TellNoDatabase(session)) {
        return false;
    }
    pugi::xml_document document;
    const pugi::xml_node root = document.append_child("SQLQueries");
    FillQueries(session, root);
    return WriteSideFile(session, path, [&](const QString &file) {
        return XmlSaveDocument(file, SideFileHeader(session, u"SQL Queries"_s), root);
    });
}

} // namespace ostrand
