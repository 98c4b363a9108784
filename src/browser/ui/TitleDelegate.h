// The looks of the rows of listSeries.
#pragma once

#include "browser/ui/GridDelegate.h"

namespace ostrand {

/// Turns the colours and the bold headers of a TitleList into looks.
class TitleDelegate : public GridDelegate {
    Q_OBJECT
public:
    using GridDelegate::GridDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace ostrand
