#include "people/CreditNames.h"

#include "people/Name.h"
#include "shell/Session.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr int kAttributeLength = 25;

// A title whose last ", " is followed by a short word ends in its article: "Meadow, The".
QString ArticleToFront(const QString &title) {
    constexpr int kLongestArticle = 4;
    const qsizetype comma = title.lastIndexOf(u", ");
    if (comma < 0 || title.size() - comma - 2 > kLongestArticle) {
        return title;
    }
    return title.mid(comma + 2) + u' ' + title.left(comma);
}

} // namespace

QString FormatCreditName(const Session &session, const QString &text) {
    if (!session.view.mReverseCredit) {
        return text;
    }
    Name name;
    name.SetFullName(text);
    if (name.FirstName().isEmpty()) {
        return text;
    }
    if (name.LastName().isEmpty()) {
        return name.MiddleName().isEmpty() ? name.FirstName() : text;
    }
    const QString reversed = name.LastName() + u", "_s + name.FirstName();
    return name.MiddleName().isEmpty() ? reversed : reversed + u' ' + name.MiddleName();
}

NameAttributes WriteProfilerName(const Name &name, bool separate_middle_name) {
    QString first = name.FirstName();
    if (!separate_middle_name && !name.MiddleName().isEmpty()) {
        first += u' ' + name.MiddleName();
    }
    NameAttributes attributes = {{u"FirstName"_s, first.left(kAttributeLength)}};
    if (separate_middle_name && !name.MiddleName().isEmpty()) {
        attributes.emplace_back(u"MiddleName"_s, name.MiddleName().left(kAttributeLength));
    }
    if (!name.LastName().isEmpty()) {
        attributes.emplace_back(u"LastName"_s, name.LastName().left(kAttributeLength));
    }
    return attributes;
}

QString ExtractName(const QString &text) {
    QString name = text;
    if (name.contains(u"(aka ")) {
        name.remove(u"(aka "_s);
        name.chop(1);
    }
    const QStringList pieces = name.split(u", "_s);
    name = pieces.size() == 2 ? pieces[1] + u' ' + pieces[0] : pieces[0];
    for (const auto &mark : {u" (I)"_s, u" (II)"_s, u" (III)"_s, u" (IV)"_s, u" (V)"_s, u" (VI)"_s, u" (VII)"_s,
                             u" (VIII)"_s, u" (IX)"_s, u" (X)"_s, u" in Englishcredits"_s}) {
        name.remove(mark);
    }
    return name;
}

QString IMDbExtractTitle(const Session &session, const QString &line, const QString &list_kind) {
    QString text = line;
    for (const auto &mark : {u" (TV)"_s, u" (V)"_s, u" (VG)"_s, u" (mini)"_s}) {
        text.remove(mark);
    }
    text.replace(u"(?\?\?\?)"_s, u"(0000)"_s);
    if (const qsizetype brace = text.indexOf(u'{'); brace >= 0) {
        text.truncate(brace);
    }

    const qsizetype bracket = text.lastIndexOf(u" (");
    QString title;
    QString year;
    if (list_kind == u"IMDbMovieLinks" || list_kind == u"IMDbTitles") {
        if (bracket < 0) {
            Trace(session, u"ExtractName: no year in the line "_s + line, kTraceError);
            return {};
        }
        title = text.left(bracket);
    } else {
        const qsizetype first_blank = text.indexOf(u' ');
        const qsizetype last_blank = text.lastIndexOf(u' ');
        title = bracket < 0                ? text.mid(first_blank + 1)
                : last_blank > first_blank ? text.mid(first_blank + 1, last_blank - first_blank - 1)
                                           : QString();
    }
    if (bracket >= 0) {
        year = text.mid(bracket + 2, 4);
    }
    if (year.isEmpty()) {
        year = u"0"_s;
    }
    title = ArticleToFront(title);
    title.remove(u'"');
    return title + u'|' + year;
}

} // namespace ostrand
