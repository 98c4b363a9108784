// The links of many names, read at once.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace ostrand {

struct Session;

/// Answers as the routines for one name do, for names that it was made with.
class LinkedNames {
public:
    /// Throws SqlError.
    LinkedNames(Session &session, const QStringList &names);

    /// As GetCommonName: year 0 finds a link of any year.
    QString Common(const QString &name, int birth_year) const;
    /// As ResolveCommonName: a link of that very year, 0 included, else one of any year.
    QString Resolved(const QString &name, int birth_year) const;

private:
    struct Link {
        int birth_year = 0;
        QString common_name;
    };
    const Link *Find(const QString &name, int birth_year, bool any_year) const;

    QHash<QByteArray, std::vector<Link>> links_;
};

} // namespace ostrand
