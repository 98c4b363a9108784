#include "browser/TypedSearch.h"

#include "browser/TitleList.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(TypedSearch, FindsTheTitleThatBeginsWithWhatIsTyped) {
    const QStringList titles = {u"Alpha"_s, u"     Child of Alpha"_s, u"\u00c9toile"_s, u"Zulu"_s, u"alpine"_s};
    std::vector<TitleRow> rows;
    for (const QString &title : titles) {
        TitleRow row;
        row.key = title;
        row.texts[TitleList::Title] = title;
        rows.push_back(row);
    }
    rows[3].header = true;
    TitleList list;
    list.Assign(rows);
    const struct {
        const char *name;
        int from;
        QString typed;
        int row;
    } cases[] = {
        {"first", 0, u"al"_s, 0},
        {"from the next row on", 1, u"al"_s, 4},
        {"round the end", 4, u"alph"_s, 0},
        {"case", 0, u"ALPI"_s, 4},
        {"indent of a boxset child", 0, u"child of"_s, 1},
        {"accents", 0, u"eto"_s, 2},
        {"typed accents", 0, u"\u00e9to"_s, 2},
        {"headers are no titles", 0, u"z"_s, -1},
        {"nothing fits", 0, u"q"_s, -1},
        {"nothing typed", 0, {}, -1},
        {"from behind the last row", 5, u"al"_s, 0},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(FindTypedTitle(list, c.from, c.typed), c.row) << c.name;
    }
    EXPECT_EQ(FindTypedTitle(TitleList(), 0, u"a"_s), -1);
}

} // namespace
} // namespace ostrand
