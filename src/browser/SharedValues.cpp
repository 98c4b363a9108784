#include "browser/SharedValues.h"

#include "browser/Browser.h"
#include "browser/ProfileInfos.h"
#include "browser/TitleQueries.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

/// The first title below the header of a group; the header where it has none, -1 without such a group.
int FirstRowOfGroup(const TitleList &list, const QString &header) {
    for (int row = 0; row < list.rowCount(); ++row) {
        const TitleRow &group = list.At(row);
        if (group.header && sql::Compare(group.texts[TitleList::Title], header) == 0) {
            const bool empty = row + 1 == list.rowCount() || list.At(row + 1).header;
            return empty ? row : row + 1;
        }
    }
    return -1;
}

} // namespace

void ListTitlesSharing(Browser &browser, const QString &category, const QString &shown) {
    if (browser.session.view.mTVShows || !browser.session.Database || shown.isEmpty()) {
        return;
    }
    SpecialProfileOrder(browser, category);
    const int row = category == QStringLiteral("Genre") ? FirstRowOfGroup(browser.listSeries, shown) : -1;
    if (row >= 0) {
        UpdateSeriesList(browser, row);
    }
}

} // namespace ostrand
