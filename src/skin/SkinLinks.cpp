#include "skin/SkinLinks.h"

#include "base/Text.h"
#include "shell/Session.h"
#include "skin/TextConversion.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

int HexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// All percent escapes undone; a "%" that begins none stays.
QString WithoutEscapes(const QString &url) {
    const QByteArray bytes = url.toUtf8();
    QByteArray plain;
    plain.reserve(bytes.size());
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const int high = bytes[i] == '%' && i + 2 < bytes.size() ? HexDigit(bytes[i + 1]) : -1;
        const int low = high < 0 ? -1 : HexDigit(bytes[i + 2]);
        if (low < 0) {
            plain += bytes[i];
            continue;
        }
        plain += char(high * 16 + low);
        i += 2;
    }
    return DecodeUserText(plain);
}

SkinLink::Kind KindOf(QStringView key) {
    static constexpr struct {
        QStringView key;
        SkinLink::Kind kind;
    } kKinds[] = {
        {u"actorid", SkinLink::Kind::Person},
        {u"profileid", SkinLink::Kind::Profile},
        {u"episodeid", SkinLink::Kind::Episode},
    };
    for (const auto &row : kKinds) {
        if (key == row.key) {
            return row.kind;
        }
    }
    return SkinLink::Kind::Unknown;
}

} // namespace

SkinLink ReadSkinLink(const Session &session, const QString &url) {
    const QString target = WithoutEscapes(url);
    if (!target.startsWith(WithoutEscapes(PathToFileUrl(session.TempFolder + u"/blank.html"_s)))) {
        return {};
    }
    // The last of each counts, so that a value with one of them in it leads nowhere: deliberate.
    const qsizetype question = target.lastIndexOf(u'?');
    const qsizetype equals = target.lastIndexOf(u'=');
    if (question < 0 || equals < question) {
        return {SkinLink::Kind::Unknown, {}};
    }
    const QString value = target.mid(equals + 1).replace(u"%20"_s, u" "_s);
    return {KindOf(QStringView(target).mid(question + 1, equals - question - 1)), value.split(u'|')};
}

} // namespace ostrand
