#include "browser/EpisodeList.h"

#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

std::vector<EpisodeRow> ThreeRows() {
    return {{u"E10"_s, u" 10"_s, u"Storm"_s, u"Sturm"_s, u"One"_s},
            {u"E3"_s, u"  3"_s, u"arrival"_s, u"Ankunft"_s, u"One"_s},
            {u"E12"_s, u" 12"_s, u"Ebb"_s, u"Ebbe"_s, u"Two"_s}};
}

QStringList Keys(const EpisodeList &list) {
    QStringList keys;
    for (int row = 0; row < list.rowCount(); ++row) {
        keys << list.index(row, 0).data(EpisodeList::KeyRole).toString();
    }
    return keys;
}

TEST(EpisodeList, ShowsItsRowsInTheirOrder) {
    EpisodeList list;
    list.SetHeaders({u"#"_s, u"Episode Title"_s});
    list.Assign(ThreeRows());
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(list.columnCount(), 2);
    EXPECT_EQ(list.rowCount(list.index(0, 0)), 0);
    EXPECT_EQ(list.columnCount(list.index(0, 0)), 0);
    EXPECT_EQ(list.headerData(0, Qt::Horizontal, Qt::DisplayRole), u"#"_s);
    EXPECT_EQ(list.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"Episode Title"_s);
    EXPECT_FALSE(list.headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_EQ(list.index(1, EpisodeList::Number).data(), u"  3"_s);
    EXPECT_EQ(list.index(1, EpisodeList::Title).data(), u"arrival"_s);
    EXPECT_EQ(list.index(1, 1).data(EpisodeList::TagRole), u"Ankunft"_s);
    EXPECT_EQ(list.index(2, 0).data(EpisodeList::SeasonRole), u"Two"_s);
    EXPECT_FALSE(list.index(2, 0).data(Qt::EditRole).isValid());
    EXPECT_EQ(Keys(list), (QStringList{u"E10"_s, u"E3"_s, u"E12"_s}));
}

TEST(EpisodeList, SortsAsTextUntilRowsAreAssigned) {
    EpisodeList list;
    list.Assign(ThreeRows());
    const QPersistentModelIndex third = list.index(1, 1);
    list.sort(EpisodeList::Number, Qt::AscendingOrder);
    EXPECT_EQ(Keys(list), (QStringList{u"E3"_s, u"E10"_s, u"E12"_s})) << "justified numbers stand in their order";
    EXPECT_EQ(third.row(), 0) << "a selection stays on its episode";
    list.sort(EpisodeList::Title, Qt::DescendingOrder);
    EXPECT_EQ(Keys(list), (QStringList{u"E10"_s, u"E12"_s, u"E3"_s}));
    list.sort(-1, Qt::AscendingOrder);
    EXPECT_EQ(Keys(list), (QStringList{u"E10"_s, u"E12"_s, u"E3"_s}));
    list.Assign(ThreeRows());
    EXPECT_EQ(Keys(list), (QStringList{u"E10"_s, u"E3"_s, u"E12"_s}));
}

TEST(EpisodeList, FindsARowByItsKey) {
    EpisodeList list;
    list.Assign(ThreeRows());
    EXPECT_EQ(list.RowOfKey(u"E12"_s), 2);
    EXPECT_EQ(list.RowOfKey(u"E1"_s), -1);
    list.Clear();
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_EQ(list.RowOfKey(u"E12"_s), -1);
}

} // namespace
} // namespace ostrand
