#include "browser/ui/AppearancesView.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ui/FractionColumns.h"
#include "browser/ui/GridDelegate.h"
#include "shell/ui/Guarded.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

namespace ostrand {

AppearancesView::AppearancesView(Browser &browser, QWidget *parent) :
    QTreeView(parent), browser_(browser), columns_(new FractionColumns(this)), delegate_(new GridDelegate(this)) {
    setObjectName(QStringLiteral("listAppearences"));
    setModel(&browser_.appearances.listAppearences);
    setItemDelegate(delegate_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setSectionsClickable(true);
    header()->setFirstSectionMovable(true);
    ConnectPanel();
    TakeColumns();
    TranslateNames();
}

void AppearancesView::ConnectPanel() {
    AppearancesPanel &panel = browser_.appearances;
    connect(&panel, &AppearancesPanel::ColumnsChanged, this, &AppearancesView::TakeColumns);
    connect(&browser_, &Browser::SettingsChanged, this, &AppearancesView::TakeColumns); // another database's places
    connect(&panel, &AppearancesPanel::SortChanged, this, &AppearancesView::ShowSortMark);
    connect(&panel.listAppearences, &QAbstractItemModel::modelReset, this, [this] {
        ++fills_;
        browser_.appearances.current_row = -1;
    });
    connect(&panel, &AppearancesPanel::CurrentRowChanged, this,
            [this] { setCurrentIndex(model()->index(browser_.appearances.current_row, 0)); });
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) { SortAppearances(browser_, column); });
    connect(header(), &QHeaderView::sectionMoved, this, [this] {
        QList<int> &places = browser_.session.view.AppearancesOrderColumns;
        if (!placing_ && mode_ == PanelMode::Appearances) {
            places = ColumnPlaces(*this, places.size());
        }
    });
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) { Select(index.row()); });
}

void AppearancesView::TakeColumns() {
    const QScopedValueRollback<bool> place(placing_, true);
    if (mode_ != PanelMode::None) {
        widths_[int(mode_)] = columns_->Fractions();
    }
    mode_ = browser_.session.view.panel_mode;
    const bool movable = mode_ == PanelMode::Appearances;
    for (int column = 0; column < header()->count(); ++column) {
        header()->moveSection(header()->visualIndex(column), column);
    }
    if (movable) {
        PlaceColumns(*this, browser_.session.view.AppearancesOrderColumns);
    }
    header()->setSectionsMovable(movable);
    columns_->Set(widths_.value(int(mode_), AppearanceWidths(browser_)));
    ShowSortMark();
}

void AppearancesView::ShowSortMark() {
    const AppearancesPanel &panel = browser_.appearances;
    header()->setSortIndicatorShown(panel.sort_column >= 0);
    header()->setSortIndicator(panel.sort_column, panel.sort_order);
}

void AppearancesView::SetGridLines(bool shown) {
    delegate_->SetGridLines(shown);
    viewport()->update();
}

void AppearancesView::TranslateNames() {
    setAccessibleName(Translate(browser_.session, QStringLiteral("Appearances")));
}

void AppearancesView::Select(int row) {
    Guarded(browser_.session, [&] { SelectAppearance(browser_, row); });
}

void AppearancesView::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QTreeView::currentChanged(current, previous);
    browser_.appearances.current_row = current.row();
}

void AppearancesView::mousePressEvent(QMouseEvent *event) {
    fills_at_press_ = fills_;
    QTreeView::mousePressEvent(event);
}

void AppearancesView::mouseDoubleClickEvent(QMouseEvent *event) {
    event->accept();
    // The first click may have filled the list anew: what lies below the mouse now is not what was meant.
    if (event->button() == Qt::LeftButton && fills_ == fills_at_press_ && indexAt(event->pos()).isValid()) {
        Q_EMIT RowActivated();
    }
}

void AppearancesView::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::Copy)) {
        CopyListToClipboard(browser_, *model(), true);
        event->accept();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        Q_EMIT RowActivated();
    } else {
        const QModelIndex before = currentIndex();
        QTreeView::keyPressEvent(event);
        // A list whose rows lead away from it is only walked through.
        if (mode_ == PanelMode::Appearances && currentIndex().isValid() && currentIndex() != before) {
            Select(currentIndex().row());
        }
    }
}

void AppearancesView::contextMenuEvent(QContextMenuEvent *event) {
    const bool by_key = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    Q_EMIT MenuWanted(by_key ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : event->globalPos());
}

} // namespace ostrand
