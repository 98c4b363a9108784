// Tags of the program, its folders and the open database.

#include "database/DatabaseFunctions.h"
#include "shell/ProgramVersion.h"
#include "shell/Session.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The language of a system language such as "de-AT"; empty for one without a name here.
QString LanguageName(const QString &system_language) {
    static constexpr struct {
        const char16_t *primary;
        const char16_t *name;
    } kLanguages[] = {
        {u"de", u"German"}, {u"en", u"English"},    {u"fr", u"French"},
        {u"nl", u"Dutch"},  {u"pt", u"Protuguese"}, // spelt so deliberately: skins compare it
    };
    qsizetype end = 0;
    while (end < system_language.size() && system_language[end] != u'-' && system_language[end] != u'_') {
        ++end;
    }
    const QStringView primary = QStringView(system_language).left(end);
    for (const auto &row : kLanguages) {
        if (primary.compare(QStringView(row.primary), Qt::CaseInsensitive) == 0) {
            return QString::fromUtf16(row.name);
        }
    }
    return {};
}

} // namespace

void GetOSVProgramLanguage(const TagCall &call, QString &text) {
    const QString name = LanguageName(call.session.services.locale.DefaultLanguage());
    text = name.isEmpty() ? call.session.LocalLanguage : name;
}

void GetProgramBuild(const TagCall &call, QString &text) {
    text = Revision(call.session);
}

void GetProgramVersion(const TagCall &call, QString &text) {
    text = ShortVersion(call.session);
}

void GetProgramLocation(const TagCall &call, QString &text) {
    text = PathToFileUrl(call.session.DataFolder + u'/');
}

void GetCoverPath(const TagCall &call, QString &text) {
    text = PathToFileUrl(call.session.CoverPath);
}

void GetHeadshotPath(const TagCall &call, QString &text) {
    text = PathToFileUrl(call.session.HeadshotPath);
}

void GetDbName(const TagCall &call, QString &text) {
    text = QFileInfo(call.session.DatabaseFile).fileName();
    text.chop(4);
}

void GetDbSetting(const TagCall &call, QString &text) {
    text = ReadDbInfo(call.session, call.argument, {});
}

void GetSkinName(const TagCall &call, QString &text) {
    text = call.skin.ActiveSkin;
}

void GetTranslation(const TagCall &call, QString &text) {
    text = call.Translated(call.Text(u"Original"));
}

} // namespace ostrand
