#include "database/DatabaseFunctions.h"
#include "skin/SkinTags.h"
#include "sql/Format.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct EventStyle {
    explicit EventStyle(const TagCall &call) :
        divider(call.Text(u"Divider", u"BREAK"_s)), sub_divider(call.Text(u"SubDivider", u", "_s)),
        only_type(call.Text(u"OnlyShowType")), date_format(call.Text(u"DateFormat")),
        show_type(call.Flag(u"ShowType", true)), name_divider(call.Text(u"NameDivider", u", "_s)),
        group_names(call.Flag(u"GroupNames", false)) {}

    QString divider;
    QString sub_divider;
    QString only_type;
    QString date_format;
    bool show_type;
    QString name_divider;
    bool group_names;
};

sql::Recordset EventRows(const TagCall &call, const EventStyle &style) {
    QString statement = u"SELECT * FROM Events WHERE ProfileID = "_s + call.QuotedKey();
    if (!style.only_type.isEmpty()) {
        statement += u" AND EventType = '"_s + EscapeSql(style.only_type) + u'\'';
    }
    return call.Rows(statement + u" ORDER BY EventTimeStamp, UserID, EventType"_s);
}

/// The day count 0 stands for no time.
QString Stamp(const sql::Recordset &event, const QString &date_format) {
    const double time = event.Real(u"EventTimestamp");
    if (time == 0) {
        return {};
    }
    return date_format.isEmpty() ? event.Text(u"EventTimestamp") : sql::FormatDate(time, date_format, {});
}

} // namespace

void GetOSVEvents(const TagCall &call, QString &text) {
    const EventStyle style(call);
    const QString none = u"None"_s;
    QString last = none;
    for (sql::Recordset events = EventRows(call, style); !events.Eof(); events.MoveNext()) {
        const QString stamp = Stamp(events, style.date_format);
        // Before anything of the event is written, so that an attribute that fails leaves no piece of it.
        const QString type = style.show_type ? call.TranslateByTag(events.Text(u"EventType")) : QString();
        const bool is_new = stamp != last;
        if (style.group_names && is_new && last != none) {
            text += style.divider;
        }
        if (is_new || !style.group_names) {
            text += stamp;
        }
        if (style.show_type) {
            text += (style.group_names ? style.name_divider : style.sub_divider) + type;
        }
        text += style.sub_divider + events.Text(u"UserID");
        if (!style.group_names) {
            text += style.divider;
        }
        last = stamp;
    }
    if (!style.group_names) {
        text.chop(style.divider.size());
    }
}

} // namespace ostrand
