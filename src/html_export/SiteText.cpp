#include "html_export/SiteText.h"

#include "base/Text.h"

#include <QUrl>

#include <algorithm>

namespace ostrand {

using namespace Qt::StringLiterals;

QString HtmlText(const QString &text) {
    QString escaped = text;
    return escaped.replace(u'&', "&amp;"_L1).replace(u'<', "&lt;"_L1).replace(u'>', "&gt;"_L1);
}

QString HtmlAttribute(const QString &text) {
    return HtmlText(text).replace(u'"', "&quot;"_L1).replace(u'\'', "&#39;"_L1);
}

QString UrlPart(const QString &text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "!$()*+,;=@"));
}

QString ScriptLiteral(const QString &text, QChar quote) {
    const auto is_risky = [quote](QChar c) {
        return c < u' ' || c == quote || c == u'\\' || c == u'<' || c == u'\x7f' || c == u'\u2028' || c == u'\u2029';
    };
    if (std::none_of(text.begin(), text.end(), is_risky)) {
        return quote + text + quote; // nearly all of the many
    }
    QString literal(quote);
    for (const QChar c : text) {
        if (is_risky(c)) {
            literal += "\\u"_L1 + QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0');
        } else {
            literal += c;
        }
    }
    return literal + quote;
}

QString SiteKey(const QString &id) {
    QString key = id;
    return key.remove("Key_"_L1);
}

QString PageName(const QString &key) {
    return SafeFileName(key);
}

} // namespace ostrand
