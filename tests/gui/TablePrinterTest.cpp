// Lists on paper.
#include "platform_qt/TablePrinter.h"
#include "support/TempDir.h"

#include <QPrinter>
#include <QStandardItemModel>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

int PagesOf(const QByteArray &pdf) {
    return int(pdf.count("/Type /Page\n"));
}

TEST(TablePrinter, RowsFillAsManyPagesAsTheyNeed) {
    const test::TempDir folder;
    QStandardItemModel list(300, 3);
    list.setHorizontalHeaderLabels({u"Title"_s, u"Year"_s, u"Notes"_s});
    for (int row = 0; row < list.rowCount(); ++row) {
        list.setData(list.index(row, 0), u"Title %1"_s.arg(row));
        list.setData(list.index(row, 1), 1900 + row);
        list.setData(list.index(row, 2), u"A long note with many words in it. "_s.repeated(row % 7));
    }
    list.setData(list.index(5, 2), u"higher than a page\n"_s.repeated(500));
    const struct {
        QList<int> rows;
        int fewest;
        int most;
    } table[] = {{{}, 1, 1},
                 {{1, 2, 3}, 1, 1},
                 {{0, 5, 6}, 3, 3},
                 {[] {
                      QList<int> all(300);
                      std::iota(all.begin(), all.end(), 0);
                      return all;
                  }(),
                  8, 40}};
    for (const auto &row : table) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder / u"list.pdf"_s);
        PrintTable(printer, u"A title"_s, list, row.rows);
        const int pages = PagesOf(folder.Read(u"list.pdf"_s));
        EXPECT_GE(pages, row.fewest);
        EXPECT_LE(pages, row.most);
    }
}

} // namespace
} // namespace ostrand
