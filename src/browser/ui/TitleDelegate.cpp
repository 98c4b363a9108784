#include "browser/ui/TitleDelegate.h"

#include "browser/TitleList.h"

namespace ostrand {

namespace {

constexpr QColor kAlternate(128, 128, 255);
constexpr QColor kHeader(255, 0, 0);

} // namespace

void TitleDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->font.setBold(index.data(TitleList::HeaderRole).toBool());
    switch (index.data(TitleList::ColourRole).value<TitleList::Colour>()) {
    case TitleList::Colour::Alternate:
        option->palette.setColor(QPalette::Text, kAlternate);
        break;
    case TitleList::Colour::Header:
        option->palette.setColor(QPalette::Text, kHeader);
        break;
    case TitleList::Colour::Text:
        break;
    }
}

} // namespace ostrand
