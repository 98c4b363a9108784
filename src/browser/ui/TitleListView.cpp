#include "browser/ui/TitleListView.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/TitleQueries.h"
#include "browser/TypedSearch.h"
#include "browser/ui/TitleDelegate.h"
#include "shell/ui/Guarded.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace ostrand {

TitleListView::TitleListView(Browser &browser, QWidget *parent) :
    QTreeView(parent), browser_(browser), delegate_(new TitleDelegate(this)) {
    setObjectName(QStringLiteral("listSeries"));
    setModel(&browser_.listSeries);
    setItemDelegate(delegate_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setTextElideMode(Qt::ElideRight);
    connect(header(), &QHeaderView::sectionResized, this,
            [this](int column, int, int size) { KeepWidth(column, size); });
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int column) { Guarded(browser_.session, [&] { SortByHeader(browser_, column); }); });
    connect(&browser_, &Browser::ListFillingBegun, this, [this] { ShowFilling(true); });
    connect(&browser_, &Browser::ListFillingEnded, this, [this] { ShowFilling(false); });
    connect(&browser_, &Browser::CurrentRowChanged, this, &TitleListView::FollowBrowser);
    connect(&browser_, &Browser::ModeChanged, this, &TitleListView::FollowView);
    connect(&browser_.listSeries, &TitleList::WidthsChanged, this, &TitleListView::ApplyWidths);
    connect(&browser_.listSeries, &QAbstractItemModel::modelReset, this, &TitleListView::ApplyWidths);
    connect(&browser_.listSeries, &QAbstractItemModel::modelReset, this, &TitleListView::ShowSortMark);
    connect(&browser_.listSeries, &QAbstractItemModel::layoutChanged, this, &TitleListView::ShowSortMark);
    browser_.hooks.selected_rows = [this] { return SelectedRows(); };
    FollowView();
    ApplyWidths();
}

TitleListView::~TitleListView() {
    browser_.hooks.selected_rows = nullptr;
}

void TitleListView::FollowView() {
    // Nothing is done to several series at once.
    setSelectionMode(browser_.session.view.mTVShows ? QAbstractItemView::SingleSelection
                                                    : QAbstractItemView::ExtendedSelection);
}

QList<int> TitleListView::SelectedRows() const {
    QList<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows()) {
        rows += index.row();
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void TitleListView::SetGridLines(bool shown) {
    delegate_->SetGridLines(shown);
    viewport()->update();
}

void TitleListView::ShowFilling(bool on) {
    // The rows and not the list: what is hidden loses the focus.
    viewport()->setVisible(!on);
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void TitleListView::FollowBrowser() {
    const QScopedValueRollback<bool> follow(following_, true);
    const QModelIndex index = browser_.listSeries.index(browser_.current_row, 0);
    if (!index.isValid()) {
        selectionModel()->clear();
        return;
    }
    if (!moving_ || index.row() != currentIndex().row()) {
        setCurrentIndex(index); // alone, unless the user is about to select it beside others
    }
    scrollTo(index);
}

void TitleListView::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QTreeView::currentChanged(current, previous);
    if (!following_ && current.isValid()) {
        Move(current.row());
    }
}

void TitleListView::Move(int row) {
    const QScopedValueRollback<bool> move(moving_, true);
    Guarded(browser_.session, [&] { MoveToRow(browser_, row); });
}

void TitleListView::keyboardSearch(const QString &search) {
    const int pause = QApplication::keyboardInputInterval();
    const bool goes_on = last_typed_.isValid() && last_typed_.elapsed() <= pause;
    last_typed_.start();
    typed_ = goes_on ? typed_ + search : search;
    const int from = std::max(0, currentIndex().row());
    // The same key again and again walks through the titles with that letter.
    const bool repeated = typed_.size() > 1 && typed_.count(typed_.front(), Qt::CaseInsensitive) == typed_.size();
    int row = FindTypedTitle(browser_.listSeries, goes_on && !repeated ? from : from + 1, typed_);
    if (row < 0 && repeated) {
        row = FindTypedTitle(browser_.listSeries, from + 1, typed_.left(1));
    }
    if (row >= 0) {
        setCurrentIndex(browser_.listSeries.index(row, 0));
    }
}

void TitleListView::keyPressEvent(QKeyEvent *event) {
    constexpr Qt::KeyboardModifiers kAll = Qt::ControlModifier | Qt::ShiftModifier;
    if (event->key() == Qt::Key_C && event->modifiers().testFlag(Qt::ControlModifier)) {
        CopyListToClipboard(browser_, browser_.listSeries, event->modifiers() == kAll);
        event->accept();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT RowActivated();
    } else if (event->key() == Qt::Key_Escape && browser_.find.IsOn()) {
        Guarded(browser_.session, [this] { browser_.find.Clear(); });
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void TitleListView::mousePressEvent(QMouseEvent *event) {
    const QModelIndex before = currentIndex();
    QTreeView::mousePressEvent(event);
    const QModelIndex pressed = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && pressed.isValid() && before.isValid() && pressed.row() == before.row()) {
        Move(pressed.row()); // one of its episodes may be what is shown
    }
}

void TitleListView::mouseDoubleClickEvent(QMouseEvent *event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) {
        Q_EMIT RowActivated();
    }
}

void TitleListView::contextMenuEvent(QContextMenuEvent *event) {
    const QRect row = visualRect(currentIndex());
    const bool by_key = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    Q_EMIT MenuWanted(by_key ? viewport()->mapToGlobal(row.bottomLeft()) : event->globalPos());
}

void TitleListView::resizeEvent(QResizeEvent *event) {
    QTreeView::resizeEvent(event);
    ApplyWidths();
}

void TitleListView::focusInEvent(QFocusEvent *event) {
    {
        // The toolkit makes the first row current here without selecting it.
        const QScopedValueRollback<bool> follow(following_, true);
        QTreeView::focusInEvent(event);
    }
    if (browser_.current_row >= 0 || !currentIndex().isValid()) {
        return;
    }
    selectionModel()->clear();
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
        Guarded(browser_.session, [this] { MoveIntoList(browser_); });
    }
}

void TitleListView::KeepWidth(int column, int size) {
    if (!applying_ && size > 0 && width() > 0) {
        browser_.listSeries.SetWidth(column, double(size) / width());
    }
}

void TitleListView::ApplyWidths() {
    const QScopedValueRollback<bool> apply(applying_, true);
    const int list_width = width();
    int others = 0;
    for (int column = 1; column < kTitleColumns; ++column) {
        const int wanted = qRound(browser_.listSeries.Width(column) * list_width);
        setColumnHidden(column, wanted == 0);
        if (wanted > 0) {
            setColumnWidth(column, wanted);
            others += wanted;
        }
    }
    // The two widths may add up to more than there is; the list does not scroll sideways for that.
    setColumnWidth(0, std::min(qRound(browser_.listSeries.Width(0) * list_width), viewport()->width() - others));
}

void TitleListView::ShowSortMark() {
    const TitleList &list = browser_.listSeries;
    header()->setSortIndicatorShown(list.IsSorted());
    if (list.IsSorted()) {
        const int column = list.SortColumn() == TitleList::SortTitle ? TitleList::Title : list.SortColumn();
        header()->setSortIndicator(column, list.SortOrder() == TitleList::Order::Ascending ? Qt::AscendingOrder
                                                                                           : Qt::DescendingOrder);
    }
}

} // namespace ostrand
