#include "people/LinkedNames.h"

#include "database/TextBatches.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

LinkedNames::LinkedNames(Session &session, const QStringList &names) {
    ForEachRowOf(session, QStringLiteral("SELECT AliasName, CommonName, BirthYear FROM Alias WHERE AliasName IN "),
                 names, [this](const sql::Recordset &row) {
                     const int year = row.IsNull(2) ? -1 : int(row.Get(2).Integer());
                     links_[sql::SortKey(row.Text(0))].push_back({year, row.Text(1)});
                 });
}

const LinkedNames::Link *LinkedNames::Find(const QString &name, int birth_year, bool any_year) const {
    if (links_.isEmpty()) {
        return nullptr;
    }
    const auto links = links_.constFind(sql::SortKey(name));
    if (links == links_.constEnd()) {
        return nullptr;
    }
    const auto found = std::find_if(links->begin(), links->end(),
                                    [&](const Link &link) { return any_year || link.birth_year == birth_year; });
    return found == links->end() ? nullptr : &*found;
}

QString LinkedNames::Common(const QString &name, int birth_year) const {
    const Link *link = Find(name, birth_year, birth_year == 0);
    return link == nullptr ? name : link->common_name;
}

QString LinkedNames::Resolved(const QString &name, int birth_year) const {
    const Link *link = Find(name, birth_year, false);
    if (link == nullptr) {
        link = Find(name, birth_year, true);
    }
    return link == nullptr ? name : link->common_name;
}

} // namespace ostrand
