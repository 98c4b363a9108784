#include "shell/ListTable.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

std::vector<ListTableRow> FruitRows() {
    return {{{u"Plum"_s, u"b"_s}, u"K1"_s, ListRowKind::Movie},
            {{u"élan"_s, u"a"_s}, u"K2"_s, ListRowKind::Episode},
            {{u"apple"_s, u"b"_s}, {}, ListRowKind::None},
            {{u"Zest"_s}, u"K4"_s, ListRowKind::Credit}};
}

QStringList Column(const ListTable &table, int column) {
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row) {
        texts << table.index(row, column).data().toString();
    }
    return texts;
}

TEST(ListTable, ShowsItsTexts) {
    ListTable table(u"Fruit"_s, {u"Name"_s, u"Note"_s});
    EXPECT_EQ(table.caption, u"Fruit"_s);
    EXPECT_EQ(table.rowCount(), 0);
    table.Assign(FruitRows());
    EXPECT_EQ(table.rowCount(), 4);
    EXPECT_EQ(table.columnCount(), 2);
    EXPECT_EQ(table.rowCount(table.index(0, 0)), 0);
    EXPECT_EQ(table.columnCount(table.index(0, 0)), 0);
    EXPECT_EQ(table.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"Note"_s);
    EXPECT_FALSE(table.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_EQ(Column(table, 0), (QStringList{u"Plum"_s, u"élan"_s, u"apple"_s, u"Zest"_s}));
    EXPECT_EQ(table.index(3, 1).data(), QString()) << "a row with fewer texts than columns";
    EXPECT_FALSE(table.index(0, 0).data(Qt::EditRole).isValid());
    EXPECT_EQ(table.Rows()[1].key, u"K2"_s);
    EXPECT_EQ(table.Rows()[1].kind, ListRowKind::Episode);
}

TEST(ListTable, SortsInTheOrderOfTheDatabase) {
    ListTable table(u"Fruit"_s, {u"Name"_s, u"Note"_s});
    table.Assign(FruitRows());
    const QPersistentModelIndex plum = table.index(0, 1);
    table.sort(0, Qt::AscendingOrder);
    EXPECT_EQ(Column(table, 0), (QStringList{u"apple"_s, u"élan"_s, u"Plum"_s, u"Zest"_s}));
    EXPECT_EQ(plum.row(), 2);
    EXPECT_EQ(table.Rows()[0].kind, ListRowKind::None) << "a row moves whole";
    table.sort(0, Qt::DescendingOrder);
    EXPECT_EQ(Column(table, 0), (QStringList{u"Zest"_s, u"Plum"_s, u"élan"_s, u"apple"_s}));
    table.sort(1, Qt::AscendingOrder);
    EXPECT_EQ(Column(table, 0), (QStringList{u"Zest"_s, u"élan"_s, u"Plum"_s, u"apple"_s})) << "equal ones stay";
    table.sort(2, Qt::AscendingOrder);
    table.sort(-1, Qt::AscendingOrder);
    EXPECT_EQ(Column(table, 0), (QStringList{u"Zest"_s, u"élan"_s, u"Plum"_s, u"apple"_s}));
}

} // namespace
} // namespace ostrand
