#include "queries/ResultText.h"

#include "xml/XmlNodes.h"

#include <numeric>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString Heading(const QAbstractItemModel &list, int column) {
    return list.headerData(column, Qt::Horizontal).toString();
}

QString Cell(const QAbstractItemModel &list, int row, int column) {
    return list.index(row, column).data().toString();
}

template <typename CellText>
void AddLine(QString &text, int columns, const QString &divider, CellText cell) {
    for (int column = 0; column < columns; ++column) {
        text += (column > 0 ? divider : QString()) + cell(column);
    }
    text += "\r\n"_L1;
}

} // namespace

QList<int> AllRows(const QAbstractItemModel &list) {
    QList<int> rows(list.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

ResultLines::ResultLines(const QAbstractItemModel &list, QString divider) : list_(list), divider_(std::move(divider)) {}

QString ResultLines::Next() {
    constexpr qsizetype kPiece = qsizetype(64) * 1024;
    const int rows = list_.rowCount();
    const int columns = list_.columnCount();
    QString text;
    for (; row_ < rows && text.size() < kPiece; ++row_) {
        AddLine(text, columns, divider_,
                [this](int column) { return row_ < 0 ? Heading(list_, column) : Cell(list_, row_, column); });
    }
    return text;
}

QString ResultForClipboard(const QAbstractItemModel &list, const QList<int> &rows) {
    const QString tab(u'\t');
    QString text;
    AddLine(text, list.columnCount(), tab, [&](int column) { return Heading(list, column).simplified(); });
    for (const int row : rows) {
        AddLine(text, list.columnCount(), tab, [&](int column) { return Cell(list, row, column).simplified(); });
    }
    return text;
}

QByteArray ResultXml(const QAbstractItemModel &list, const QList<int> &rows) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Table");
    for (const int row : rows) {
        pugi::xml_node element = XmlAddElement(root, "TableRow", 1);
        for (int column = 0; column < list.columnCount(); ++column) {
            const QString text = Cell(list, row, column);
            if (text.isEmpty()) {
                continue;
            }
            pugi::xml_node field = XmlAddTextElement(element, "Field", text, 2, FieldType::Memo);
            XmlSetAttribute(field, "Name", Heading(list, column));
        }
        if (element.first_child()) {
            XmlAddIndent(element, 1);
        }
    }
    if (root.first_child()) {
        XmlAddIndent(root, 0);
    }
    return XmlDocumentBytes(u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"_s, root);
}

} // namespace ostrand
