#include "skin/TextConversion.h"

#include "base/Text.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

QString PathToFileUrl(QString path) {
    path.replace(u' ', u"%20"_s).replace(u'\\', u'/');
    if (path.startsWith(u'/')) {
        path.remove(0, 1);
    }
    return u"file:///"_s + path.replace(u'\'', u"%27"_s);
}

QString FixRelativePaths(const Session &session, QString text) {
    const QString folder = PathToFileUrl(session.DataFolder + u'/');
    return text.replace(u"..\\"_s, folder).replace(u"../"_s, folder);
}

QString FixCurrencySymbol(const QString &symbol) {
    return symbol == u'?' ? QString(QChar(u'\u20AC')) : symbol;
}

QString EscapeScriptString(QString text) {
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\'', u"\\'"_s);
    // A lone line feed gives the same four characters as a whole line end: deliberate.
    return text.replace(u"\r\n"_s, u"\\r\\n"_s).replace(u'\n', u"\\r\\n"_s);
}

QString PersonCrossLinkId(const QString &name) {
    return SafeFileName(name.toLower()).replace(u' ', u'_').remove(u'\'');
}

QString PeopleScriptFileName(const QString &name) {
    const QString beginning = QString(name).replace(u' ', u'_').left(2).toLower();
    return SafeFileName(u"people-"_s + beginning + u".js"_s);
}

QStringList SplitNominees(QString text) {
    if (text.isEmpty()) {
        return {};
    }
    for (const QLatin1String suffix : {"Jr"_L1, "jr"_L1, "Sr"_L1, "sr"_L1}) {
        text.replace(u", "_s + suffix, u' ' + suffix);
    }
    for (const QLatin1String separator : {", "_L1, "; "_L1, " & "_L1, " and "_L1, ","_L1}) {
        text.replace(separator, "|"_L1);
    }
    return text.split(u'|');
}

QString FormatUPC(const QString &text) {
    const QString digits = QString(text).remove(u'-');
    const bool numeric = std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (numeric && digits.size() == 12) {
        return digits.left(1) + u'-' + digits.mid(1, 5) + u'-' + digits.mid(6, 5) + u'-' + digits.mid(11);
    }
    if (numeric && digits.size() == 13) {
        return digits.left(1) + u'-' + digits.mid(1, 6) + u'-' + digits.mid(7);
    }
    return text;
}

QString WithBreaks(QString text) {
    return text.replace(u"\r\n"_s, u"<br/>"_s);
}

} // namespace ostrand
