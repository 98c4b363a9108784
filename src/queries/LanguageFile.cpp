#include "queries/LanguageFile.h"

#include "base/Files.h"
#include "base/Text.h"
#include "collection_files/SideFile.h"
#include "collection_files/UnpackedFile.h"
#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "shell/CommandFile.h"
#include "shell/Session.h"
#include "xml/XmlNodes.h"

#include <QFileInfo>

#include <optional>
#include <vector>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct Entry {
    QString original;
    QString user;
};

bool IsXmlPath(const QString &path) {
    return IsArchivePath(path) || QFileInfo(path).suffix().compare(u"xml"_s, Qt::CaseInsensitive) == 0;
}

std::optional<std::vector<Entry>> ReadXml(Session &session, const QString &path) {
    const UnpackedFile file(session, path, u"xml"_s);
    pugi::xml_document document;
    const pugi::xml_node root =
        LoadSideFile(session, file.Path(), "Strings", u"Invalid Language XML file!"_s, document);
    if (!root) {
        return std::nullopt;
    }
    std::vector<Entry> entries;
    for (const pugi::xml_node entry : root.children("String")) {
        entries.push_back({XmlAttribute(entry, "Original"), XmlNodeText(entry)});
    }
    return entries;
}

std::nullopt_t Refuse(Session &session, const QString &why, const QString &path) {
    ShowMessage(session, {.text = Translate(session, why) + u' ' + path,
                          .title = Translate(session, u"Invalid file"_s),
                          .icon = MessageIcon::Warning});
    return std::nullopt;
}

std::optional<std::vector<Entry>> ReadText(Session &session, const QString &path) {
    const std::optional<QByteArray> content = ReadFile(path);
    if (!content) {
        return Refuse(session, u"The file cannot be read:"_s, path);
    }
    std::vector<Entry> entries;
    for (const QString &line : CommandLines(DecodeUserText(*content))) {
        // A text with the mark in it cannot travel in this form: the first two pieces count.
        const QStringList pieces = line.split(u'|');
        if (pieces.size() > 1) {
            entries.push_back({pieces[0], pieces[1]});
        }
    }
    // Any name may stand for this form, and a file of another kind must not take all translations away.
    if (content->contains('\0') || (entries.empty() && !content->trimmed().isEmpty())) {
        return Refuse(session, u"This is no language file:"_s, path);
    }
    return entries;
}

void Store(Session &session, const Entry &entry) {
    if (entry.original.isEmpty()) {
        return;
    }
    session.Database->Execute(QString(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('"_s +
                                      EscapeSql(entry.original) + u"', '"_s + EscapeSql(entry.user) + u"')"_s));
}

bool ReplaceTable(Session &session, const std::vector<Entry> &entries) {
    try {
        WriteTogether(session, [&] {
            session.Database->Execute(u"DELETE FROM Translation");
            for (const Entry &entry : entries) {
                Store(session, entry);
            }
        });
        return true;
    } catch (const sql::SqlError &error) {
        Trace(session, u"ImportStringsFromFile: "_s + error.Text(), kTraceError);
        ShowMessage(session,
                    {.text = error.Text(), .title = u"ImportStringsFromFile"_s, .icon = MessageIcon::Critical});
        return false;
    }
}

/// Does something to the translations while the window shows English, from which it then goes to the new ones: what
/// it shows could not be traced back through a table that is gone.
bool InEnglish(Session &session, const std::function<bool()> &action) {
    const bool on = session.UseUserDefinedStrings && session.window.MenuStrings;
    if (!on) {
        return action();
    }
    session.UseUserDefinedStrings = false;
    session.window.MenuStrings();
    const bool done = action();
    session.UseUserDefinedStrings = true;
    session.window.MenuStrings();
    if (session.window.SettingsStored) {
        session.window.SettingsStored(); // what lists and pages tell is made of texts too
    }
    return done;
}

std::vector<Entry> FinishedEntries(Session &session) {
    std::vector<Entry> entries;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM Translation");
    for (; !rows.Eof(); rows.MoveNext()) {
        Entry entry{rows.Text(u"OriginalString"), rows.Text(u"UserString")};
        if (!entry.original.isEmpty() && !entry.user.isEmpty() && entry.original != entry.user) {
            entries.push_back(std::move(entry));
        }
    }
    return entries;
}

bool WriteXml(Session &session, const QString &file, const std::vector<Entry> &entries) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Strings");
    for (const Entry &entry : entries) {
        pugi::xml_node element = XmlAddTextElement(root, "String", entry.user, 1, FieldType::Memo);
        XmlSetAttribute(element, "Original", entry.original);
    }
    if (root.first_child()) {
        XmlAddIndent(root, 0);
    }
    return XmlSaveDocument(file, SideFileHeader(session, u"Language File"_s), root);
}

bool WriteText(const QString &file, const std::vector<Entry> &entries) {
    QString text;
    for (const Entry &entry : entries) {
        text += entry.original + u'|' + entry.user + u"\r\n"_s;
    }
    return ReplaceFile(file, EncodeUserText(text));
}

} // namespace

bool ImportStringsFromFile(Session &session, const QString &path) {
    Trace(session, u"ImportStringsFromFile("_s + path + u')', kTraceEntry);
    if (TellNoDatabase(session)) {
        return false;
    }
    const std::optional<std::vector<Entry>> entries =
        IsXmlPath(path) ? ReadXml(session, path) : ReadText(session, path);
    return entries && InEnglish(session, [&] { return ReplaceTable(session, *entries); });
}

bool ExportStringsToFile(Session &session, const QString &path) {
    Trace(session, u"ExportStringsToFile("_s + path + u')', kTraceEntry);
    if (TellNoDatabase(session)) {
        return false;
    }
    const std::vector<Entry> entries = FinishedEntries(session);
    return WriteSideFile(session, path, [&](const QString &file) {
        return IsXmlPath(path) ? WriteXml(session, file, entries) : WriteText(file, entries);
    });
}

} // namespace ostrand
