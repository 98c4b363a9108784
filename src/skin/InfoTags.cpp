#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString NamedInfo(const TagCall &call, const QString &from, const QString &name) {
    QString text;
    for (sql::Recordset infos = call.Rows(from + u" AND InfoName = '"_s + EscapeSql(name) + u'\''); !infos.Eof();
         infos.MoveNext()) {
        text += WithBreaks(infos.Text(u"InfoValue"));
    }
    return text;
}

} // namespace

void GetOSVAdditionalInfo(const TagCall &call, QString &text) {
    const QString from = u"SELECT * FROM AdditionalInfo WHERE ProfileID = "_s + call.QuotedKey();
    if (const QString name = call.Text(u"InfoName"); !name.isEmpty()) {
        text += NamedInfo(call, from, name);
        return;
    }
    const QString divider = call.Text(u"Divider", u"BREAK"_s);
    for (sql::Recordset infos = call.Rows(from + u" ORDER BY InfoName"_s); !infos.Eof(); infos.MoveNext()) {
        // Line ends stay as they are here, unlike those of a value that is asked for by name.
        text += u"<b>"_s + call.TranslateByTag(infos.Text(u"InfoName")) + u"</b><br/>"_s + infos.Text(u"InfoValue") +
                divider;
    }
    text.chop(divider.size());
}

void GetOSVCrewCategories(const TagCall &call, QString &text) {
    text += call.session.CrewRoles.Categories().join(call.Text(u"Divider", u","_s));
}

} // namespace ostrand
