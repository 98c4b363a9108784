#include "queries/QueryResult.h"

#include "database/CollectionFixture.h"
#include "queries/ResultText.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString AllLines(const QAbstractItemModel &list, const QString &divider) {
    ResultLines lines(list, divider);
    QString all;
    for (QString piece = lines.Next(); !piece.isEmpty(); piece = lines.Next()) {
        all += piece;
    }
    return all;
}

class QueryResultTest : public CollectionTest {
protected:
    void SetUp() override { Create(); }
    void Open(QStringView query) { result.Assign(session.Database->OpenRecordset(query)); }
    QStringList Column(int column = 0) const {
        QStringList texts;
        for (int row = 0; row < result.rowCount(); ++row) {
            texts += result.index(row, column).data().toString();
        }
        return texts;
    }
    QStringList Sorted(int column, Qt::SortOrder order = Qt::AscendingOrder) {
        result.sort(column, order);
        return Column(column);
    }
    QueryResult result;
};

TEST_F(QueryResultTest, ShowsEveryKindAsTextUnderTheNamesOfTheFields) {
    Run(u"INSERT INTO Profiles (ProfileID, Title, ProdYear, Released, Notes) VALUES ('Key_1', 'A', 1999, "
        u"'2001-02-03', 'two' & Chr(13) & Chr(10) & 'lines')");
    Open(u"SELECT ProfileID, Title AS Name, ProdYear, Released, Notes, ColNo, ProdYear > 5 AS Late FROM Profiles");
    QStringList names;
    QStringList cells;
    for (int column = 0; column < result.columnCount(); ++column) {
        names += result.headerData(column, Qt::Horizontal).toString();
        cells += result.index(0, column).data().toString();
    }
    EXPECT_EQ(names, (QStringList{u"ProfileID"_s, u"Name"_s, u"ProdYear"_s, u"Released"_s, u"Notes"_s, u"ColNo"_s,
                                  u"Late"_s}));
    EXPECT_EQ(cells.mid(0, 6),
              (QStringList{u"Key_1"_s, u"A"_s, u"1999"_s, u"2001-02-03"_s, u"two\r\nlines"_s, QString()}));
    EXPECT_EQ(result.rowCount(), 1);
    EXPECT_EQ(result.index(0, 2).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_FALSE(result.index(0, 1).data(Qt::TextAlignmentRole).isValid());
    EXPECT_FALSE(result.headerData(0, Qt::Vertical).isValid());
}

TEST_F(QueryResultTest, SortsNumbersAndDatesByValueAndTextsByTheCollation) {
    const char16_t *rows[] = {u"('1', 'b', 10, '2010-01-01')", u"('2', 'A', 9, '1999-12-31')",
                              u"('3', 'É', NULL, NULL)", u"('4', 'f', -1, '2000-01-01')"};
    for (const char16_t *row : rows) {
        Run(QString(u"INSERT INTO Profiles (ProfileID, Title, ProdYear, Released) VALUES "_s +
                    QString::fromUtf16(row)));
    }
    Open(u"SELECT Title, ProdYear, Released FROM Profiles ORDER BY ProfileID");
    EXPECT_EQ(Sorted(0), (QStringList{u"A"_s, u"b"_s, u"É"_s, u"f"_s}));
    EXPECT_EQ(Sorted(0, Qt::DescendingOrder), (QStringList{u"f"_s, u"É"_s, u"b"_s, u"A"_s}));
    EXPECT_EQ(Sorted(1), (QStringList{QString(), u"-1"_s, u"9"_s, u"10"_s}));
    EXPECT_EQ(Sorted(2), (QStringList{QString(), u"1999-12-31"_s, u"2000-01-01"_s, u"2010-01-01"_s}));
    const QPersistentModelIndex kept(result.index(3, 2));
    result.sort(2, Qt::DescendingOrder);
    EXPECT_EQ(kept.row(), 0) << "a selection follows its row";
    EXPECT_EQ(kept.data().toString(), u"2010-01-01"_s);
    result.sort(-1, Qt::AscendingOrder);
    result.sort(7, Qt::AscendingOrder);
    EXPECT_EQ(Column(2).front(), u"2010-01-01"_s) << "an unknown column sorts nothing";
}

TEST_F(QueryResultTest, TheKeyOfAProfileIsWhatARowBeginsWith) {
    const struct {
        QString first;
        QString expected;
    } rows[] = {{u"Key_12.3"_s, u"Key_12.3"_s}, {u"OSV77"_s, u"OSV77"_s}, {u"key_1"_s, {}}, {u"osv1"_s, {}},
                {u"The Key_1"_s, {}},           {QString(), {}},          {u"Key"_s, {}}};
    for (const auto &row : rows) {
        result.Assign({u"ID"_s, u"Other"_s}, {{row.first, u"Key_9"_s}});
        EXPECT_EQ(result.ProfileOf(0), row.expected) << qPrintable(row.first);
    }
    EXPECT_EQ(result.ProfileOf(-1), QString());
    EXPECT_EQ(result.ProfileOf(1), QString());
    result.Clear();
    EXPECT_EQ(result.ProfileOf(0), QString());
    EXPECT_EQ(result.rowCount() + result.columnCount(), 0);
}

TEST_F(QueryResultTest, RowsOfTextsMayBeShort) {
    result.Assign({u"A"_s, u"B"_s, u"B"_s}, {{u"x"_s}, {u"a"_s, u"b"_s, u"c"_s}});
    EXPECT_EQ(Column(2), (QStringList{QString(), u"c"_s}));
    EXPECT_EQ(Sorted(0), (QStringList{u"a"_s, u"x"_s}));
}

TEST_F(QueryResultTest, HoldsWhatTheDatabaseNoLongerHas) {
    Open(u"SELECT InfoName FROM DbInfo WHERE InfoName = 'Schema'");
    session.Database.reset();
    EXPECT_EQ(Column(), QStringList(u"Schema"_s));
}

TEST_F(QueryResultTest, LinesHoldTheCellsAsTheyAre) {
    result.Assign({u"A"_s, u"B"_s}, {{u"1|2"_s, u"x\r\ny"_s}, {u"3"_s}});
    EXPECT_EQ(AllLines(result, u"|"_s), u"A|B\r\n1|2|x\r\ny\r\n3|\r\n"_s);
    EXPECT_EQ(AllLines(result, u"\t"_s).section(u'\r', 0, 0), u"A\tB"_s);
    EXPECT_EQ(AllLines(result, QString()).section(u'\r', 0, 0), u"AB"_s);
    result.Assign({u"A"_s, u"B"_s}, {});
    EXPECT_EQ(AllLines(result, u", "_s), u"A, B\r\n"_s);
}

TEST_F(QueryResultTest, TheClipboardGetsOneLineForARow) {
    result.Assign({u"A"_s, u"B"_s}, {{u"1\t2"_s, u"x\r\ny"_s}, {u"3"_s, u"4"_s}});
    EXPECT_EQ(ResultForClipboard(result, {0, 1}), u"A\tB\r\n1 2\tx y\r\n3\t4\r\n"_s);
    EXPECT_EQ(ResultForClipboard(result, {1}), u"A\tB\r\n3\t4\r\n"_s);
}

TEST_F(QueryResultTest, XmlLeavesEmptyCellsOut) {
    result.Assign({u"A & B"_s, u"C"_s}, {{u"1 < 2"_s, u"x\r\ny"_s}, {QString(), QString()}, {u"3"_s, {}}});
    EXPECT_EQ(ResultXml(result, AllRows(result)), "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                                                  "<Table>\r\n"
                                                  "  <TableRow>\r\n"
                                                  "    <Field Name=\"A &amp; B\">1 &lt; 2</Field>\r\n"
                                                  "    <Field Name=\"C\">x\ny</Field>\r\n"
                                                  "  </TableRow>\r\n"
                                                  "  <TableRow/>\r\n"
                                                  "  <TableRow>\r\n"
                                                  "    <Field Name=\"A &amp; B\">3</Field>\r\n"
                                                  "  </TableRow>\r\n"
                                                  "</Table>\r\n");
    result.Clear();
    EXPECT_TRUE(ResultXml(result, {}).endsWith("<Table/>\r\n"));
}

TEST(ResultText, ALargeResultComesInPieces) {
    QueryResult result;
    std::vector<QStringList> rows;
    for (int i = 0; i < 20'000; ++i) {
        rows.push_back({QString::number(i), u"text"_s});
    }
    result.Assign({u"A"_s, u"B"_s}, rows);
    ResultLines lines(result, u"|"_s);
    qsizetype pieces = 0;
    QStringList all;
    for (QString piece = lines.Next(); !piece.isEmpty(); piece = lines.Next(), ++pieces) {
        EXPECT_TRUE(piece.endsWith(u"\r\n"_s)) << "no line is cut";
        all += piece.chopped(2).split(u"\r\n"_s);
    }
    EXPECT_GT(pieces, 2);
    ASSERT_EQ(all.size(), 20'001);
    EXPECT_EQ(all.front(), u"A|B"_s);
    EXPECT_EQ(all[7'001], u"7000|text"_s);
    EXPECT_EQ(all.back(), u"19999|text"_s);
}

} // namespace
} // namespace ostrand
