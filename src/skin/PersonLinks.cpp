#include "skin/PersonLinks.h"

#include "people/CrossLinks.h"
#include "people/HeadshotFiles.h"
#include "people/Name.h"
#include "shell/Session.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void AppendPart(QString &text, const QString &part, QLatin1String color, bool color_names) {
    if (part.isEmpty()) {
        return;
    }
    if (!text.isEmpty()) {
        text += u' ';
    }
    text += color_names ? u"<FONT COLOR='"_s + color + u"'>"_s + part + u"</FONT>"_s : part;
}

QString NameText(const QString &credit_name, bool color_names) {
    Name name;
    name.SetFullName(credit_name);
    QString text;
    AppendPart(text, name.FirstName(), "#000080"_L1, color_names);
    AppendPart(text, name.MiddleName(), "#800000"_L1, color_names);
    AppendPart(text, name.LastName(), "#008000"_L1, color_names);
    return text;
}

QString Linked(const TagCall &call, const QString &credit_name, const QString &birth_year, const QString &text) {
    if (!call.options.offline) {
        return u"<A HREF=\"blank.html?actorid="_s + credit_name + u'|' + birth_year + u"\">"_s + text + u"</A>"_s;
    }
    if (!call.options.chkGenerateCrosslinks) {
        return text;
    }
    const QString id = PersonCrossLinkId(GetCommonName(call.session, credit_name, birth_year.toInt()));
    return u"<a href=\"#\" onclick=\"displayCrossLink('person-"_s + id + u"'); return false;\">"_s + text + u"</a>"_s;
}

} // namespace

QString displayCrossLink(const TagCall &call, const QString &credit_name, const QString &birth_year,
                         const PersonStyle &style) {
    QString text = NameText(credit_name, style.color_names);
    if (style.show_birth_years && !birth_year.isEmpty() && birth_year != "0"_L1) {
        text += u" ("_s + birth_year + u')';
    }
    text = Linked(call, credit_name, birth_year, text);
    if (!style.show_headshot) {
        return text;
    }
    const QString image = GetOSVHeadshot(call, credit_name, style.headshot_width, birth_year.toInt());
    if (image.isEmpty()) {
        return text; // no image, no blank
    }
    return style.headshot_right ? text + u' ' + image : image + u"  "_s + text;
}

QString GetOSVHeadshot(const TagCall &call, const QString &credit_name, const QString &width, int birth_year) {
    // Other pictures of a person are chosen by more rules; a page shows the primary one of the common name only.
    const QString common = GetCommonName(call.session, credit_name, birth_year);
    FolderIndex &headshots = call.skin.headshots;
    headshots.SetFolder(call.session.HeadshotPath);
    const QString path = headshots.Find(HeadshotFileName(HeadshotStem(common, QString::number(birth_year)), 0));
    if (path.isEmpty()) {
        return {};
    }
    QString url;
    if (call.options.offline && !call.options.opUseCoverScansLocally) {
        url = u"../Headshots/"_s + QFileInfo(path).fileName().replace(u' ', "%20"_L1).replace(u'\'', "%27"_L1);
        if (call.options.copy_headshot) {
            call.options.copy_headshot(path);
        }
    } else {
        url = PathToFileUrl(path);
    }
    return u"<IMG SRC='"_s + url + u"' WIDTH="_s + width + u'>';
}

void GetHeadshotDisplay(const TagCall &call, QString &text) {
    text += GetOSVHeadshot(call, call.Text(u"CreditName"), call.Text(u"Width", u"80"_s), call.Number(u"BirthYear", 0));
}

} // namespace ostrand
