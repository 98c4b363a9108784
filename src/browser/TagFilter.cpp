#include "browser/TagFilter.h"

#include "browser/Browser.h"
#include "browser/KeySet.h"
#include "browser/ListFilling.h"
#include "browser/TitleQueries.h"
#include "browser/TitleRows.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// What holds for the titles of a tab; empty for all of them. The name goes in unescaped, deliberately.
QString TabClause(const QString &tab) {
    return tab == "All"_L1 ? QString() : " ColType = '"_L1 + tab + "' "_L1;
}

QString AllTitlesStatement(const QString &tab_clause) {
    return u"SELECT p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, p.OriginalSortTitle,p.Description "
           "FROM Profiles p "_s +
           (tab_clause.isEmpty() ? QString() : " WHERE"_L1 + tab_clause) + "ORDER BY p.SortTitle"_L1;
}

QString TaggedTitlesStatement(const QString &tab_clause, const QStringList &tags) {
    QStringList conditions;
    for (const QString &tag : tags) {
        conditions += "t.FullyQualifiedName = '"_L1 + EscapeSql(tag) + u'\'';
    }
    return u"SELECT p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, p.OriginalSortTitle,p.Description, "
           "COUNT(p.ProfileID) as [Count] FROM Profiles p  INNER JOIN Tags t ON t.ProfileID=p.ProfileID WHERE "_s +
           (tab_clause.isEmpty() ? QString() : tab_clause + " AND "_L1) + u'(' + conditions.join(" OR "_L1) +
           ") GROUP BY p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, p.OriginalSortTitle, "
           "p.Description ORDER BY p.SortTitle"_L1;
}

QString WholeTitlesStatement(const QString &tab_clause) {
    return u"SELECT * FROM Profiles p "_s + (tab_clause.isEmpty() ? QString() : " WHERE "_L1 + tab_clause) +
           " ORDER BY p.SortTitle"_L1;
}

/// Collects the rows of one filter.
class TagFilterRows {
public:
    TagFilterRows(Session &session, QString tab_clause) : session_(session), tab_clause_(std::move(tab_clause)) {}

    void Add(const TagFilter &filter) {
        if (filter.negated) {
            AddOthers(filter.tags);
        } else if (filter.tags.isEmpty()) {
            AddTitles(AllTitlesStatement(tab_clause_), u"ProfileID", [](const sql::Value &) { return true; });
        } else {
            AddTagged(filter);
        }
    }
    std::vector<TitleRow> &Rows() { return rows_; }

private:
    /// Those of a statement whose field is `wanted`.
    template <typename Wanted>
    void AddTitles(const QString &statement, QStringView field, const Wanted &wanted) {
        sql::Recordset record = session_.Database->OpenRecordset(statement);
        const int ordinal = record.Ordinal(field);
        const TitleRowReader reader(session_.view, record);
        rows_.reserve(size_t(record.RecordCount()));
        for (; !record.Eof(); record.MoveNext()) {
            if (wanted(record.Get(ordinal))) {
                rows_.push_back(reader.TaggedRow());
            }
        }
    }

    void AddTagged(const TagFilter &filter) {
        const bool any = filter.combined == TagFilter::Operator::Or;
        const qint64 all = filter.tags.size();
        AddTitles(TaggedTitlesStatement(tab_clause_, filter.tags), u"Count",
                  [&](const sql::Value &count) { return any || count.Integer() == all; });
    }

    /// The titles without any of the tags.
    void AddOthers(const QStringList &tags) {
        KeySet tagged;
        if (!tags.isEmpty()) {
            sql::Recordset record = session_.Database->OpenRecordset(TaggedTitlesStatement(tab_clause_, tags));
            const int id = record.Ordinal(u"ProfileID");
            for (; !record.Eof(); record.MoveNext()) {
                tagged.Add(record.Text(id));
            }
        }
        AddTitles(WholeTitlesStatement(tab_clause_), u"ProfileID",
                  [&](const sql::Value &id) { return !tagged.Contains(id.Text()); });
    }

    Session &session_;
    QString tab_clause_;
    std::vector<TitleRow> rows_;
};

} // namespace

void UpdateCollectionList(Browser &browser, const TagFilter &filter) {
    Session &session = browser.session;
    if (session.view.mTVShows || !session.Database) {
        return;
    }
    Trace(session, u"UpdateCollectionList()"_s, kTraceEntry);
    const QString tab = SelectedColType(browser);
    // Rows stand in the order of their statement until the user sorts them.
    ClearList(browser);
    browser.SpecialOrder = false;
    browser.filtered_by_tags = true;
    TagFilterRows rows(session, TabClause(tab));
    try {
        rows.Add(filter);
    } catch (const sql::SqlError &error) {
        Trace(session, u"UpdateCollectionList: "_s + error.Text(), kTraceError);
        rows.Rows().clear();
    }
    ShowSpecialOrder(browser, std::move(rows.Rows()));
}

} // namespace ostrand
