#include "browser/TitleQueries.h"

#include "browser/BoxsetRows.h"
#include "browser/Browser.h"
#include "browser/ListFilling.h"
#include "browser/TitleRows.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// What the tab "Owned" shows besides its own type. The settings write the types with "|" between them and they are
/// split at blanks here, deliberately: two or more of them name one type that nothing has.
QString IncludedTypes(const ViewState &view, const QString &tab) {
    QString clauses;
    if (tab == "Owned"_L1 && !view.IncludeInOwned.isEmpty()) {
        for (const QString &part : view.IncludeInOwned.split(u' ')) {
            clauses += u" OR ColType = '%1'"_s.arg(part);
        }
    }
    return clauses;
}

/// The names of tabs go in unescaped, deliberately.
QString TypeCondition(const ViewState &view, const QString &tab) {
    return "ColType = '"_L1 + tab + u'\'' + IncludedTypes(view, tab);
}

QString TitleStatement(const ViewState &view, const QString &tab) {
    QString statement = u"SELECT Title, ColNo, SortTitle, OriginalSortTitle, Description, p.ProfileID, OriginalTitle, "
                        "PurchaseDate, ProdYear, Released, CustomTitle, CustomSortTitle "
                        "FROM Profiles p LEFT JOIN PurchaseInfo pi ON pi.ProfileID = p.ProfileID "_s;
    const bool all = tab == "All"_L1;
    if (view.BoxsetView) {
        statement += "WHERE "_L1;
        if (!all) {
            statement += " ("_L1 + TypeCondition(view, tab) + ") AND "_L1;
        }
        statement += "p.ProfileID NOT IN (SELECT ChildID FROM BoxSet b, Profiles p WHERE b.ChildID = p.ProfileID)"_L1;
    } else if (!all) {
        statement += " WHERE "_L1 + TypeCondition(view, tab);
    }
    return statement + (view.mUseOriginalTitle ? " ORDER BY OriginalSortTitle, OriginalTitle, SortTitle, Title"_L1
                                               : " ORDER BY SortTitle, Title"_L1);
}

std::vector<TitleRow> ReadTitles(Session &session, const QString &tab) {
    sql::Recordset record = session.Database->OpenRecordset(TitleStatement(session.view, tab));
    const TitleRowReader reader(session.view, record);
    std::optional<BoxsetRows> boxsets;
    if (session.view.BoxsetView) {
        boxsets.emplace(session);
    }
    std::vector<TitleRow> rows;
    rows.reserve(size_t(record.RecordCount()));
    for (; !record.Eof(); record.MoveNext()) {
        rows.push_back(reader.TopRow());
        if (boxsets) {
            const QString id = rows.back().key;
            const QString sort_key = rows.back().texts[TitleList::SortTitle];
            boxsets->GetBoxsetChilds(id, 1, sort_key, rows);
        }
    }
    return rows;
}

/// Tells windows of the time in which the list is filled, whichever way that ends.
class Filling {
public:
    explicit Filling(Browser &browser) : browser_(browser) { Q_EMIT browser_.ListFillingBegun(); }
    ~Filling() { Q_EMIT browser_.ListFillingEnded(); }
    Filling(const Filling &) = delete;
    Filling &operator=(const Filling &) = delete;

private:
    Browser &browser_;
};

/// A stored sort that there is none of gives way to the one that it was taken for; boxsets could never show else.
void KeepValidSort(Browser &browser) {
    const ViewState &view = browser.session.view;
    const int column = browser.listSeries.SortColumn();
    const TitleList::Order order = browser.listSeries.SortOrder();
    if (!view.mTVShows && (view.ProfilesSortKey != column || view.ProfilesSortOrder != int(order))) {
        StoreSort(browser.session, column, order);
    }
}

/// Fills the list without a current title.
void FillMovieNames(Browser &browser) {
    Session &session = browser.session;
    BeginList(browser);
    const QString tab = SelectedColType(browser);
    if (session.view.ProfilesSortKey != TitleList::SortTitle ||
        session.view.ProfilesSortOrder != int(TitleList::Order::Ascending)) {
        session.view.BoxsetView = false;
    }
    browser.SpecialOrder = false;
    try {
        if (session.Database) {
            browser.listSeries.Assign(ReadTitles(session, tab));
        }
    } catch (const sql::SqlError &error) {
        // A tab whose name holds a quote makes a faulty statement; its list is empty.
        Trace(session, u"GetMovieNames: "_s + error.Text(), kTraceError);
    }
    ShowFilterCount(browser, browser.listSeries.rowCount());
    // Children stay behind their parents, since their sort keys begin with those of the parents.
    SortList(browser, StoredSortColumn(browser), StoredSortOrder(browser));
    KeepValidSort(browser);
    if (session.view.mcolorlist) {
        ApplyListColors(browser, false);
    }
}

} // namespace

void GetMovieNames(Browser &browser) {
    Trace(browser.session, u"GetMovieNames()"_s, kTraceEntry);
    const Filling filling(browser);
    FillMovieNames(browser);
    ShowFirstTitle(browser);
    Trace(browser.session, u"GetMovieNames()"_s, kTraceExit);
}

void RefillMovieNames(Browser &browser, const QStringList &keys) {
    const int before = browser.current_row;
    const Filling filling(browser);
    FillMovieNames(browser);
    ShowTitleOrRow(browser, keys, before);
}

TitleRow ListTitle(Browser &browser, const sql::Recordset &record, int number, int indent) {
    return TitleRowReader(browser.session.view, record).GroupRow(number, indent);
}

void ApplyListColors(Browser &browser, bool keep_bold) {
    using Striping = TitleList::Striping;
    const bool coloured = browser.session.view.mcolorlist;
    browser.listSeries.SetStriping(!coloured ? Striping::Plain : keep_bold ? Striping::KeepBold : Striping::Rows);
}

} // namespace ostrand
