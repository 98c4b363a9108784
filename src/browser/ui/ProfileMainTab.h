// The tab "Main" of the profile window.
#pragma once

#include "browser/ui/SheetPage.h"

class QGridLayout;

namespace ostrand {

/// Tags, locks, discs and prices of a title.
class ProfileMainTab : public SheetPage {
    Q_OBJECT
public:
    ProfileMainTab(Browser &browser, ProfileSheet &sheet, QWidget *parent = nullptr);
    /// Shows what the sheet holds.
    void ShowTitle();

private:
    void AddTags(QGridLayout &layout);
    void AddLocks(QGridLayout &layout);
    void AddDiscs(QGridLayout &layout);
    void AddPrices(QGridLayout &layout);

    QTreeView *treeTags_;
    SheetList *listDiscs_;
    QLabel *discs_label_ = nullptr;
    QList<QLabel *> price_labels_;
    QList<QLabel *> price_texts_;
};

} // namespace ostrand
