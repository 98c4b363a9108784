// Small converters that the tags share.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand {

struct Session;

/// A file URL of a path: blanks and apostrophes escaped, slashes for the platform's separators. An absolute path has
/// three slashes in front, one of a server four, as views of pages read them.
QString PathToFileUrl(QString path);
/// The relative beginnings "..\" and "../" of a note's paths, as URLs of the data folder.
QString FixRelativePaths(const Session &session, QString text);
/// A lone "?" is the euro sign that a code page lost.
QString FixCurrencySymbol(const QString &symbol);
/// A text between quotes of a script: quotes, backslashes and line ends escaped.
QString EscapeScriptString(QString text);
/// The name of a person in the ids and files of the site.
QString PersonCrossLinkId(const QString &name);
QString PeopleScriptFileName(const QString &name);
/// The names in the text of an award's nominees.
QStringList SplitNominees(QString text);
/// A UPC or EAN number in groups; any other text as it stands.
QString FormatUPC(const QString &text);
/// Line ends as "<br/>".
QString WithBreaks(QString text);

} // namespace ostrand
