#include "browser/TitleQueries.h"

#include "browser/Browser.h"
#include "browser/ListFilling.h"
#include "browser/TitleRows.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

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
            browser.listSeries.Assign(browser.tab_titles.Read(session, tab));
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
