#include "html_export/SiteTabs.h"

#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Words of the language, the site's own functions, and what a browser's window has under a name so that a variable of
/// that name does not keep a table.
constexpr QStringView kTaken[] = {
    u"abstract",
    u"arguments",
    u"await",
    u"boolean",
    u"break",
    u"byte",
    u"case",
    u"catch",
    u"changetab",
    u"char",
    u"class",
    u"close",
    u"closed",
    u"colourTables",
    u"const",
    u"continue",
    u"crossLinkNames",
    u"crossLinks",
    u"debugger",
    u"default",
    u"delete",
    u"displayCrossLink",
    u"do",
    u"document",
    u"double",
    u"else",
    u"enum",
    u"eval",
    u"event",
    u"export",
    u"extends",
    u"external",
    u"false",
    u"final",
    u"finally",
    u"float",
    u"for",
    u"frames",
    u"function",
    u"goto",
    u"history",
    u"if",
    u"implements",
    u"import",
    u"in",
    u"Infinity",
    u"instanceof",
    u"int",
    u"interface",
    u"jslink",
    u"length",
    u"let",
    u"localStorage",
    u"location",
    u"long",
    u"name",
    u"NaN",
    u"native",
    u"navigator",
    u"new",
    u"null",
    u"open",
    u"opener",
    u"origin",
    u"package",
    u"parent",
    u"print",
    u"private",
    u"protected",
    u"public",
    u"return",
    u"screen",
    u"self",
    u"short",
    u"site",
    u"siteTitles",
    u"SortableTable",
    u"static",
    u"status",
    u"stop",
    u"super",
    u"switch",
    u"synchronized",
    u"this",
    u"throw",
    u"throws",
    u"top",
    u"transient",
    u"true",
    u"try",
    u"typeof",
    u"undefined",
    u"var",
    u"void",
    u"volatile",
    u"while",
    u"window",
    u"with",
    u"yield",
};

bool IsScriptLetter(QChar c) {
    return c.isLetter() || c == u'_' || c == u'$';
}

bool IsScriptDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

QString ScriptName(const QString &text) {
    QString name;
    for (const QChar c : text) {
        if (c != u' ') {
            name += IsScriptLetter(c) || IsScriptDigit(c) ? c : QChar(u'_');
        }
    }
    const bool taken = std::find(std::begin(kTaken), std::end(kTaken), name) != std::end(kTaken);
    if (name.isEmpty() || taken || IsScriptDigit(name.front())) {
        name.prepend(u'_');
    }
    return name;
}

QString UniqueId(QSet<QString> &given, const QString &wanted) {
    QString id = wanted;
    for (int number = 2; given.contains(id); ++number) {
        id = wanted + u'_' + QString::number(number);
    }
    given.insert(id);
    return id;
}

std::vector<SiteTab> MakeSiteTabs(Session &session, const QStringList &names) {
    std::vector<SiteTab> tabs;
    QSet<QString> ids;
    QSet<QByteArray> known;
    for (const QString &name : names) {
        const QByteArray key = sql::SortKey(name);
        if (known.contains(key)) {
            continue; // one tab for all spellings that the database takes for one
        }
        known.insert(key);
        const bool unsorted = name.isEmpty();
        tabs.push_back({name, Translate(session, unsorted ? u"Unsorted"_s : name),
                        UniqueId(ids, unsorted ? u"unsorted"_s : ScriptName(name))});
    }
    return tabs;
}

} // namespace ostrand
