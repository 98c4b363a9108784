#include "browser/ui/PersonDelegate.h"

namespace ostrand {

void PersonDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    GridDelegate::initStyleOption(option, index);
    if (index.data(caption_role_).toBool()) {
        option->font.setBold(true);
    }
    if (index.column() == 0 && index.data(headshot_role_).toBool()) {
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::Link));
    }
}

} // namespace ostrand
