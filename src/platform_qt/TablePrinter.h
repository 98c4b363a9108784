// Lists on paper.
#pragma once

#include <QList>
#include <QString>

class QAbstractItemModel;
class QPrinter;
class QWidget;

namespace ostrand {

/// Draws the rows of a list on the pages of a printer, under a title and with the headings on each page. Columns share
/// the width by what they hold; long texts wrap, and a row that is higher than a page is cut.
void PrintTable(QPrinter &printer, const QString &title, const QAbstractItemModel &list, const QList<int> &rows);
/// Lets the user choose a printer first. `caption` is the title of that window.
void AskAndPrintTable(QWidget *parent, const QString &caption, const QString &title, const QAbstractItemModel &list,
                      const QList<int> &rows);

} // namespace ostrand
