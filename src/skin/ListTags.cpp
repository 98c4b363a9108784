// Genres, studios, tags and locks.

#include "base/Text.h"
#include "skin/EntryList.h"
#include "skin/SkinTags.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kMediaCompany = u"Media Company";

} // namespace

void GetDPList(const TagCall &call, QString &text) {
    EntryList list(text, call.Text(u"Divider", u", "_s));
    const bool translate = call.Flag(u"Translate", false);
    const QString &table = call.argument;
    const QString column = table.chopped(1);
    sql::Recordset rows = ProfileRows(call, table, u" ORDER BY "_s + column);
    const int ordinal = rows.Ordinal(column);
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString entry = rows.Text(ordinal);
        list.Add(translate ? call.Translated(entry) : entry);
    }
    list.End();
}

void GetDPStudios(const TagCall &call, QString &text) {
    EntryList list(text, call.Text(u"Divider", u", "_s));
    const bool show_type = call.Flag(u"ShowType", false);
    const bool translate = call.Flag(u"Translate", false);
    const bool wants_companies = call.argument == kMediaCompany;
    sql::Recordset rows = ProfileRows(call, u"Studios"_s, u" ORDER BY Studio, Type"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString type = rows.Text(u"Type");
        if ((type == kMediaCompany) != wants_companies) {
            continue;
        }
        QString entry = rows.Text(u"Studio");
        if (show_type && !type.isEmpty()) {
            entry += " ("_L1 + (translate ? call.Translated(type) : type) + u')';
        }
        list.AddUnbroken(entry);
    }
    list.End();
}

void GetOSVTags(const TagCall &call, QString &text) {
    EntryList list(text, call.Text(u"Divider", u", "_s));
    const bool full_names = call.Flag(u"UseFullName", false);
    const bool remove_parents = call.Flag(u"RemoveParents", false);
    sql::Recordset rows = ProfileRows(call, u"Tags"_s, u" ORDER BY FullyQualifiedName"_s);
    QString previous;
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString full_name = rows.Text(u"FullyQualifiedName");
        if (remove_parents && !previous.isEmpty() && full_name.startsWith(previous)) {
            // The full name is looked for even where short names were written: deliberate, parents then stay.
            list.RemoveUnbroken(previous);
        }
        list.AddUnbroken(full_names ? full_name : rows.Text(u"TagName"));
        previous = full_name;
    }
    list.End();
}

void GetDPMediaPublisher(const TagCall &call, QString &text) {
    const sql::Recordset rows = ProfileRows(call, u"Studios"_s, u" AND Type = 'Media Company'"_s);
    if (!rows.Eof()) {
        text = rows.Text(u"Studio");
    }
}

void GetDPLock(const TagCall &call, QString &text) {
    sql::Recordset rows = ProfileRows(call, u"Locks"_s, u" AND LockName = '"_s + call.argument + u'\'');
    bool locked = false;
    for (; !rows.Eof() && !locked; rows.MoveNext()) {
        locked = EqualsIgnoringCase(rows.Text(u"LockName"), call.argument);
    }
    text = locked ? call.Text(u"IfSet", u"Locked"_s) : call.Text(u"IfNotSet");
}

} // namespace ostrand
