// How the user sorts listSeries.
#include "browser/Browser.h"
#include "browser/ListFilling.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;
using Order = TitleList::Order;

/// The column that a click on a header sorts by; -1 for one that sorts nothing.
int SortColumnOfHeader(int column) {
    if (column == TitleList::Title) {
        return TitleList::SortTitle;
    }
    return column > TitleList::SortTitle || column == TitleList::Number ? column : -1;
}

} // namespace

void StoreSort(Session &session, int sort_column, Order order) {
    session.view.ProfilesSortKey = sort_column;
    session.view.ProfilesSortOrder = int(order);
    if (session.Database && !session.DatabaseTooNew) {
        WriteDbInfo(session, u"ProfilesSortKey"_s, QString::number(sort_column));
        WriteDbInfo(session, u"ProfilesSortOrder"_s, QString::number(int(order)));
    }
}

void ReOrderSeriesList(Browser &browser, int sort_key, Order order) {
    Session &session = browser.session;
    const bool movies = !session.view.mTVShows;
    // In TV view the list holds series, and there is nothing to flatten.
    if (movies && (session.view.BoxsetView || browser.SpecialOrder)) {
        session.view.BoxsetView = false;
        GetMovieNames(browser);
    }
    SortList(browser, sort_key, order);
    if (movies) {
        StoreSort(session, browser.listSeries.SortColumn(), order);
    }
    if (session.view.mcolorlist) {
        ApplyListColors(browser, false);
    }
}

void SortByHeader(Browser &browser, int column) {
    Session &session = browser.session;
    const int sort_column = SortColumnOfHeader(column);
    const Order order = browser.listSeries.SortOrder() == Order::Ascending ? Order::Descending : Order::Ascending;
    const bool movies = !session.view.mTVShows;
    if (!movies) {
        UpdateSeriesNames(browser);
    }
    if (sort_column < 0) {
        return;
    }
    if (movies && sort_column == TitleList::SortTitle && session.view.mBoxsetView && order == Order::Ascending) {
        session.view.BoxsetView = true;
        StoreSort(session, sort_column, order);
        GetMovieNames(browser);
        return;
    }
    ReOrderSeriesList(browser, sort_column, order);
}

} // namespace ostrand
