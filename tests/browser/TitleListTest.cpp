#include "browser/TitleList.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using Colour = TitleList::Colour;
using Striping = TitleList::Striping;
using Order = TitleList::Order;

TitleRow Row(const QString &key, const QString &sort_title = {}) {
    TitleRow row;
    row.key = key;
    row.texts[TitleList::SortTitle] = sort_title;
    return row;
}

TitleRow Header(const QString &key) {
    TitleRow row = Row(key);
    row.header = true;
    return row;
}

QStringList Keys(const TitleList &list) {
    QStringList keys;
    for (const TitleRow &row : list.Rows()) {
        keys << row.key;
    }
    return keys;
}

std::vector<Colour> Colours(const TitleList &list) {
    std::vector<Colour> colours;
    for (int row = 0; row < list.rowCount(); ++row) {
        colours.push_back(Colour(list.data(list.index(row, 0), TitleList::ColourRole).toInt()));
        EXPECT_EQ(list.data(list.index(row, 5), TitleList::ColourRole).toInt(), int(colours.back()));
    }
    return colours;
}

TEST(TitleList, AFilterShowsRowsAndThoseAboveThem) {
    TitleList list;
    std::vector<bool> passes;
    int last_order = -1;
    list.SetRowFilter([&](const std::vector<TitleRow> &, int order) {
        last_order = order;
        return passes;
    });
    std::vector<TitleRow> rows = {Header(u"1"_s), Row(u"A|1"_s, u"a"_s), Row(u"B|1"_s, u"b"_s), Header(u"2"_s),
                                  Row(u"A|2"_s, u"a"_s)};
    rows[1].parent_key = rows[2].parent_key = u"1"_s;
    rows[4].parent_key = u"2"_s;
    list.Assign(rows);
    EXPECT_EQ(list.rowCount(), 5);
    EXPECT_EQ(list.TitleCount(), 3);
    EXPECT_FALSE(list.Narrow());
    const int order = last_order;
    passes = {true, false, true, true, false};
    EXPECT_TRUE(list.Narrow());
    EXPECT_EQ(last_order, order);
    EXPECT_EQ(Keys(list), (QStringList{u"1"_s, u"B|1"_s}));
    EXPECT_EQ(list.TitleCount(), 1);
    EXPECT_EQ(list.RowOfTitle(u"A"_s), -1);
    EXPECT_TRUE(list.HoldsHidden(u"a"_s));
    EXPECT_FALSE(list.HoldsHidden(u"C"_s));
    EXPECT_EQ(list.NumberOf(1), 2);
    EXPECT_EQ(list.RowOfNumber(2), 1);
    EXPECT_EQ(list.RowOfNumber(1), -1);
    list.SetTexts(u"A"_s, [](const TitleRow &row) {
        TitleRow texts = row;
        texts.texts[TitleList::Title] = u"New"_s;
        return texts;
    });
    passes.clear();
    EXPECT_TRUE(list.Narrow());
    EXPECT_EQ(list.At(1).texts[TitleList::Title], u"New"_s); // though it was not shown
    passes = {false, false, false, false, true};
    list.Narrow();
    list.RemoveTitles({u"A"_s});
    EXPECT_NE(last_order, order);
}

TEST(TitleList, AFilterThatFailsLeavesNoRowShown) {
    TitleList list;
    list.Assign({Row(u"A"_s), Row(u"B"_s)});
    int resets = 0;
    QObject::connect(&list, &QAbstractItemModel::modelReset, [&] { ++resets; });
    list.SetRowFilter([](const std::vector<TitleRow> &, int) -> std::vector<bool> {
        throw sql::SqlError(sql::ErrorCode::DiskFull, u"no room"_s);
    });
    EXPECT_THROW(list.Assign({Row(u"C"_s)}), sql::SqlError);
    EXPECT_EQ(resets, 1) << "a view waits for the end of a reset";
    EXPECT_EQ(list.rowCount(), 0);
    list.SetRowFilter({});
    EXPECT_TRUE(list.Narrow());
    EXPECT_EQ(Keys(list), QStringList{u"C"_s});
}

TEST(TitleList, SortsWhatIsNotShownToo) {
    TitleList list;
    std::vector<bool> passes;
    list.SetRowFilter([&](const std::vector<TitleRow> &, int) { return passes; });
    list.Assign({Row(u"C"_s, u"c"_s), Row(u"A"_s, u"a"_s), Row(u"D"_s, u"d"_s), Row(u"B"_s, u"b"_s)});
    passes = {true, true, false, true};
    list.Narrow();
    const QPersistentModelIndex current = list.index(0, 0);
    list.SortBy(TitleList::SortTitle, Order::Ascending);
    EXPECT_EQ(Keys(list), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_EQ(current.row(), 2);
    passes.clear();
    list.Narrow();
    EXPECT_EQ(Keys(list), (QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s}));
}

TEST(TitleList, GivesWhatARowHolds) {
    TitleList list;
    list.SetHeaders({u"Titel"_s, u"Nr."_s});
    TitleRow row = Row(u"P|3"_s);
    row.tag = u"Tag"_s;
    row.tool_tip = u"Tip"_s;
    row.texts = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s};
    list.Assign({row});
    EXPECT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.columnCount(), 6);
    for (int column = 0; column < 6; ++column) {
        const QModelIndex index = list.index(0, column);
        EXPECT_EQ(list.data(index, Qt::DisplayRole).toString(), QString(QChar(u'a' + column)));
        EXPECT_EQ(list.data(index, Qt::ToolTipRole).toString(), u"Tip"_s);
        EXPECT_EQ(list.data(index, TitleList::KeyRole).toString(), u"P|3"_s);
        EXPECT_EQ(list.data(index, TitleList::TagRole).toString(), u"Tag"_s);
        EXPECT_FALSE(list.data(index, TitleList::HeaderRole).toBool());
        EXPECT_FALSE(list.data(index, Qt::DecorationRole).isValid());
        EXPECT_EQ(list.rowCount(index), 0);
    }
    EXPECT_EQ(list.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"Nr."_s);
    EXPECT_FALSE(list.headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_FALSE(list.data(QModelIndex(), Qt::DisplayRole).isValid());
}

TEST(TitleList, KeysAreUniqueWithoutRegardToCase) {
    TitleList list;
    EXPECT_EQ(list.Assign({Row(u"a"_s, u"1"_s), Row(u"b"_s), Row(u"A"_s, u"2"_s), Row(u"a|1"_s)}), 1);
    EXPECT_EQ(Keys(list), QStringList({u"a"_s, u"b"_s, u"a|1"_s}));
    EXPECT_EQ(list.At(0).texts[TitleList::SortTitle], u"1"_s);
    list.Clear();
    EXPECT_EQ(list.rowCount(), 0);
}

TEST(TitleList, FindsRows) {
    TitleList list;
    list.Assign({Header(u"1"_s), Row(u"Key_9|1"_s), Header(u"2"_s), Row(u"Key_9|2"_s), Row(u"Key_10|2"_s)});
    EXPECT_EQ(list.RowOfKey(u"key_9|2"_s), 3);
    EXPECT_EQ(list.RowOfKey(u"Key_9"_s), -1);
    EXPECT_EQ(list.RowOfTitle(u"KEY_9"_s), 1);
    EXPECT_EQ(list.RowOfTitle(u"Key_10"_s), 4);
    EXPECT_EQ(list.RowOfTitle(u"1"_s), -1) << "a header is no title";
    EXPECT_EQ(list.RowOfTitle(u"Key_1"_s), -1);
    EXPECT_EQ(ProfileOfKey(u"Key_9|2"_s), u"Key_9"_s);
    EXPECT_EQ(ProfileOfKey(u"Key_9"_s), u"Key_9"_s);
    EXPECT_EQ(ProfileOfKey(u"Key_9|2|3"_s), u"Key_9"_s);
}

TEST(TitleList, SortsByText) {
    TitleList list;
    list.Assign({Row(u"1"_s, u"beta"_s), Row(u"2"_s, u"ALPHA"_s), Row(u"3"_s, u"Éclat"_s), Row(u"4"_s, u"alpha"_s),
                 Row(u"5"_s, u"Alp-ha"_s), Row(u"6"_s, u"10"_s), Row(u"7"_s, u"9"_s)});
    EXPECT_FALSE(list.IsSorted());
    list.SortBy(TitleList::SortTitle, Order::Ascending);
    EXPECT_EQ(Keys(list).join(u' '), u"6 7 2 4 5 1 3"_s) << "case does not count, equal rows keep their order";
    EXPECT_TRUE(list.IsSorted());
    list.SortBy(TitleList::SortTitle, Order::Descending);
    EXPECT_EQ(Keys(list).join(u' '), u"3 1 5 2 4 7 6"_s);
    EXPECT_EQ(list.SortColumn(), TitleList::SortTitle);
    EXPECT_EQ(list.SortOrder(), Order::Descending);
}

TEST(TitleList, SortsAnewByEachColumnAndAfterNewRows) {
    TitleList list;
    std::vector<TitleRow> rows = {Row(u"1"_s, u"b"_s), Row(u"2"_s, u"a"_s), Row(u"3"_s, u"c"_s)};
    for (size_t i = 0; i < rows.size(); ++i) {
        rows[i].texts[TitleList::Year] = QString::number(2000 - i);
    }
    list.Assign(rows);
    const std::tuple<TitleList::Column, Order, QString> steps[] = {
        {TitleList::SortTitle, Order::Ascending, u"2 1 3"_s}, {TitleList::SortTitle, Order::Descending, u"3 1 2"_s},
        {TitleList::Year, Order::Descending, u"1 2 3"_s},     {TitleList::Year, Order::Ascending, u"3 2 1"_s},
        {TitleList::SortTitle, Order::Ascending, u"2 1 3"_s}, {TitleList::SortTitle, Order::Ascending, u"2 1 3"_s},
    };
    for (const auto &[column, order, keys] : steps) {
        list.SortBy(column, order);
        EXPECT_EQ(Keys(list).join(u' '), keys) << column << ' ' << int(order);
    }
    list.Assign({Row(u"4"_s, u"z"_s), Row(u"5"_s, u"y"_s), Row(u"6"_s, u"x"_s)});
    EXPECT_EQ(Keys(list).join(u' '), u"6 5 4"_s);
    list.SortBy(TitleList::SortTitle, Order::Descending);
    EXPECT_EQ(Keys(list).join(u' '), u"4 5 6"_s);
}

TEST(TitleList, AutomaticSortAppliesToNewRowsUntilItIsTurnedOff) {
    TitleList list;
    list.SortBy(TitleList::SortTitle, Order::Ascending);
    list.Assign({Row(u"1"_s, u"b"_s), Row(u"2"_s, u"a"_s)});
    EXPECT_EQ(Keys(list).join(u' '), u"2 1"_s);
    list.Unsort();
    EXPECT_EQ(Keys(list).join(u' '), u"2 1"_s);
    list.Assign({Row(u"1"_s, u"b"_s), Row(u"2"_s, u"a"_s)});
    EXPECT_EQ(Keys(list).join(u' '), u"1 2"_s);
}

TEST(TitleList, SortingKeepsThePlacesThatAViewRemembers) {
    TitleList list;
    list.Assign({Row(u"1"_s, u"c"_s), Row(u"2"_s, u"a"_s), Row(u"3"_s, u"b"_s)});
    const QPersistentModelIndex selected(list.index(0, 1));
    list.SortBy(TitleList::SortTitle, Order::Ascending);
    EXPECT_EQ(selected.row(), 2);
    EXPECT_EQ(selected.column(), 1);
    EXPECT_EQ(selected.data(TitleList::KeyRole).toString(), u"1"_s);
}

TEST(TitleList, ColoursOfRows) {
    constexpr auto kText = Colour::Text;
    constexpr auto kAlternate = Colour::Alternate;
    constexpr auto kHeader = Colour::Header;
    TitleList list;
    list.Assign({Header(u"1"_s), Row(u"a"_s), Row(u"b"_s), Header(u"2"_s), Row(u"c"_s)});
    EXPECT_EQ(Colours(list), std::vector({kHeader, kText, kText, kHeader, kText}));
    list.SetStriping(Striping::Plain);
    EXPECT_EQ(Colours(list), std::vector({kText, kText, kText, kText, kText}));
    list.SetStriping(Striping::Rows);
    EXPECT_EQ(Colours(list), std::vector({kText, kAlternate, kText, kAlternate, kText}));
    int changes = 0;
    QObject::connect(&list, &QAbstractItemModel::dataChanged, [&changes] { ++changes; });
    list.SetStriping(Striping::KeepBold);
    EXPECT_EQ(Colours(list), std::vector({kHeader, kAlternate, kText, kHeader, kText}));
    EXPECT_EQ(changes, 1);
    list.SetStriping(Striping::KeepBold);
    EXPECT_EQ(changes, 1) << "what is as it was, is not told";
}

TEST(TitleList, WidthsTellTheirChange) {
    TitleList list;
    EXPECT_EQ(list.Width(TitleList::Title), 0.78);
    for (int column = 1; column < 6; ++column) {
        EXPECT_EQ(list.Width(column), 0) << column;
    }
    int changes = 0;
    QObject::connect(&list, &TitleList::WidthsChanged, [&changes] { ++changes; });
    list.SetWidth(TitleList::Year, 0.25);
    list.SetWidth(TitleList::Year, 0.25);
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace ostrand
