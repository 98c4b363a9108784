// The left part of the main window: tabs, filter, list and count.
#pragma once

#include "browser/ui/TitleListView.h"

#include <QComboBox>
#include <QTabBar>

namespace ostrand {

class Browser;
class FindEdit;

/// The box of saved filters; tells when its list is about to open. An entry acts when it is chosen in the list: keys
/// and the wheel do not step from one to the next, since some of them open windows or ask questions.
class FilterBox : public QComboBox {
    Q_OBJECT
public:
    using QComboBox::QComboBox;
    void showPopup() override;

Q_SIGNALS:
    void AboutToOpen();

protected:
    /// Keys that would step open the list, and letters find an entry there.
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

/// The tabs of collection types; tells when a menu is wanted for the current one.
class TypeTabs : public QTabBar {
    Q_OBJECT
public:
    using QTabBar::QTabBar;

Q_SIGNALS:
    void MenuWanted(const QPoint &place);

protected:
    /// The mouse makes the tab below it the current one first.
    void contextMenuEvent(QContextMenuEvent *event) override;
};

/// Frame1_1. The tabs of collection types, the filter box, the find box, listSeries and the count of what is shown.
class TitleListPanel : public QWidget {
    Q_OBJECT
public:
    explicit TitleListPanel(Browser &browser, QWidget *parent = nullptr);

    TitleListView *List() const { return listSeries_; }
    /// The tool tip of the count: the path of the database.
    void ShowDatabasePath(const QString &path) { labelFilterCount_->setToolTip(path); }
    /// Names for those who do not see the window, in the user's language.
    void TranslateNames();

Q_SIGNALS:
    /// The right button was pressed on a tab.
    void TabMenuWanted(const QPoint &place);

private:
    void MakeTabs();
    void MakeFilterBox();
    void MakeFindBox();
    void GoIntoList();
    void ShowTabs();
    void ShowFilters();

    Browser &browser_;
    TypeTabs *tabColList_;
    FilterBox *comboFilter_;
    FindEdit *textFind_;
    TitleListView *listSeries_;
    QLabel *labelFilterCount_;
    bool following_ = false;
};

} // namespace ostrand
