// The tabs of the site's list.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace ostrand {

struct Session;

struct SiteTab {
    QString name;  ///< as the collection has it; empty for the tab of what has none
    QString shown; ///< in the user's language
    QString id;    ///< a name in scripts and pages, of one tab only
};

/// A tab for each name, in their order.
std::vector<SiteTab> MakeSiteTabs(Session &session, const QStringList &names);

/// A name that a script can hold: blanks go, what else cannot stand there becomes "_", and a "_" goes in front of a
/// digit or a word that means something already.
QString ScriptName(const QString &text);

/// `wanted`, or that with a number behind it where it was given before.
QString UniqueId(QSet<QString> &given, const QString &wanted);

} // namespace ostrand
