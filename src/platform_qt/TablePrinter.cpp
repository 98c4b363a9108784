#include "platform_qt/TablePrinter.h"

#include <QAbstractItemModel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <numeric>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr double kFontPoints = 9;
constexpr int kMeasuredRows = 200;
constexpr int kWidestChars = 60; ///< a column asks for no more than that

/// One print of a list: where its columns stand, and how far down the page it has come.
class TablePage {
public:
    TablePage(QPrinter &printer, const QString &title, const QAbstractItemModel &list, const QList<int> &rows) :
        printer_(printer), painter_(&printer), title_(title), list_(list) {
        QFont font = painter_.font();
        font.setPointSizeF(kFontPoints);
        painter_.setFont(font);
        const QFontMetrics metrics = painter_.fontMetrics();
        page_ = QRect(QPoint(), printer.pageLayout().paintRectPixels(printer.resolution()).size());
        gap_ = metrics.averageCharWidth();
        PlaceColumns(rows, metrics);
    }

    void Print(const QList<int> &rows) {
        BeginPage();
        for (const int row : rows) {
            const QStringList texts = RowTexts(row);
            const int height = std::min(HeightOf(texts), page_.height());
            if (y_ + height > page_.height()) {
                printer_.newPage();
                BeginPage();
            }
            Draw(texts, height);
        }
    }

private:
    QStringList RowTexts(int row) const {
        QStringList texts;
        for (int column = 0; column < list_.columnCount(); ++column) {
            texts.append(list_.index(row, column).data().toString());
        }
        return texts;
    }
    QStringList Headings() const {
        QStringList texts;
        for (int column = 0; column < list_.columnCount(); ++column) {
            texts.append(list_.headerData(column, Qt::Horizontal).toString());
        }
        return texts;
    }
    void PlaceColumns(const QList<int> &rows, const QFontMetrics &metrics) {
        const int widest = metrics.averageCharWidth() * kWidestChars;
        QList<int> wanted;
        for (const QString &heading : Headings()) {
            wanted.append(metrics.horizontalAdvance(heading));
        }
        for (const int row : rows.mid(0, kMeasuredRows)) {
            const QStringList texts = RowTexts(row);
            for (int column = 0; column < wanted.size(); ++column) {
                const int width = std::min(metrics.horizontalAdvance(texts[column]), widest);
                wanted[column] = std::max(wanted[column], width);
            }
        }
        const int free = page_.width() - gap_ * int(wanted.size());
        const int sum = std::max(1, std::accumulate(wanted.begin(), wanted.end(), 0));
        for (const int width : wanted) {
            widths_.append(sum <= free ? width : int(qint64(width) * std::max(free, 0) / sum));
        }
    }
    int HeightOf(const QStringList &texts) const {
        int height = painter_.fontMetrics().height();
        for (int column = 0; column < widths_.size(); ++column) {
            const QRect place(0, 0, std::max(widths_[column], 1), page_.height());
            height = std::max(height, painter_.fontMetrics().boundingRect(place, kWrap, texts[column]).height());
        }
        return height + gap_ / 2;
    }
    void BeginPage() {
        y_ = 0;
        painter_.drawText(QRect(0, 0, page_.width(), page_.height()), Qt::AlignLeft | Qt::TextSingleLine, title_);
        y_ += painter_.fontMetrics().height() * 3 / 2;
        const QStringList headings = Headings();
        Draw(headings, HeightOf(headings));
        painter_.drawLine(0, y_ - gap_ / 2, page_.width(), y_ - gap_ / 2);
    }
    void Draw(const QStringList &texts, int height) {
        int x = 0;
        for (int column = 0; column < widths_.size(); ++column) {
            const QRect place(x, y_, widths_[column], height);
            painter_.save();
            painter_.setClipRect(place);
            painter_.drawText(place, kWrap, texts[column]);
            painter_.restore();
            x += widths_[column] + gap_;
        }
        y_ += height;
    }

    static constexpr int kWrap = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere | Qt::TextWordWrap;
    QPrinter &printer_;
    QPainter painter_;
    QString title_;
    const QAbstractItemModel &list_;
    QRect page_;
    QList<int> widths_;
    int gap_ = 0;
    int y_ = 0;
};

} // namespace

void PrintTable(QPrinter &printer, const QString &title, const QAbstractItemModel &list, const QList<int> &rows) {
    TablePage(printer, title, list, rows).Print(rows);
}

void AskAndPrintTable(QWidget *parent, const QString &caption, const QString &title, const QAbstractItemModel &list,
                      const QList<int> &rows) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(caption);
    if (dialog.exec() == QDialog::Accepted) {
        PrintTable(printer, title, list, rows);
    }
}

} // namespace ostrand
