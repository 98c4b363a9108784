#include "browser/ui/CreditListView.h"

#include "browser/Browser.h"
#include "browser/CreditCommands.h"
#include "browser/Navigation.h"
#include "browser/ui/FractionColumns.h"
#include "browser/ui/KeptPerson.h"
#include "browser/ui/PersonDelegate.h"
#include "shell/ui/Guarded.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

namespace ostrand {

namespace {

const QList<double> kWidths = {0.46, 0.36, 0.18};

} // namespace

CreditListView::CreditListView(Browser &browser, CreditList &credits, const QString &name, QList<int> &places,
                               QWidget *parent) :
    QTreeView(parent),
    browser_(browser), credits_(credits), places_(places),
    delegate_(new PersonDelegate(CreditList::CaptionRole, CreditList::HeadshotRole, this)) {
    setObjectName(name);
    setModel(&credits_);
    setItemDelegate(delegate_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    auto *columns = new FractionColumns(this);
    columns->ShowWhole(CreditList::Position);
    columns->Set(kWidths);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) { credits_.SortByHeader(column); });
    connect(header(), &QHeaderView::sectionMoved, this, [this] {
        if (!placing_) {
            places_ = ColumnPlaces(*this, CreditList::Position + 1);
        }
        SpanCaptions();
    });
    connect(&credits_, &QAbstractItemModel::modelReset, this, &CreditListView::ShowSortMark);
    connect(&credits_, &QAbstractItemModel::modelReset, this, &CreditListView::SpanCaptions);
    connect(&credits_, &QAbstractItemModel::layoutChanged, this, &CreditListView::ShowSortMark);
    connect(&browser_, &Browser::SettingsChanged, this, &CreditListView::ApplyPlaces);
    kept_ = new KeptPerson(browser_.credits, *this, CreditList::NameRole, CreditList::PositionRole);
    ShowSortMark();
}

void CreditListView::ApplyPlaces() {
    const QScopedValueRollback<bool> place(placing_, true);
    PlaceColumns(*this, places_);
}

void CreditListView::ShowSortMark() {
    // The order they come in needs no mark, for which its narrow column has no room.
    header()->setSortIndicatorShown(credits_.SortColumn() != CreditList::Position ||
                                    credits_.SortOrder() != Qt::AscendingOrder);
    header()->setSortIndicator(credits_.SortColumn(), credits_.SortOrder());
}

void CreditListView::SpanCaptions() {
    const bool span = header()->visualIndex(CreditList::Name) == 0;
    const auto &rows = credits_.Rows();
    for (int row = 0; row < int(rows.size()); ++row) {
        if (rows[size_t(row)].caption) {
            setFirstColumnSpanned(row, {}, span);
        }
    }
}

void CreditListView::SetGridLines(bool shown) {
    delegate_->SetGridLines(shown);
    viewport()->update();
}

void CreditListView::ChoosePerson(const QModelIndex &index) {
    Guarded(browser_.session, [&] {
        UpdateCastInfo(browser_, index.data(CreditList::NameRole).toString(),
                       index.data(CreditList::BirthYearRole).toString());
    });
}

void CreditListView::FindPerson() {
    const QString name = currentIndex().data(CreditList::NameRole).toString();
    Guarded(browser_.session, [&] { FindCreditAppearances(browser_, name); });
}

void CreditListView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!selected.isEmpty() && currentIndex().isValid() && !kept_->IsRestoring()) {
        ChoosePerson(currentIndex());
    }
}

void CreditListView::mousePressEvent(QMouseEvent *event) {
    const bool selected_before = selectionModel()->isSelected(indexAt(event->pos()));
    QTreeView::mousePressEvent(event);
    const QModelIndex pressed = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && pressed.isValid() && selected_before) {
        ChoosePerson(pressed); // another person may have been shown since
    }
}

void CreditListView::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) {
        event->accept();
        FindPerson();
    }
}

void CreditListView::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::Copy)) {
        CopyListToClipboard(browser_, credits_, true);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        FindPerson();
    } else {
        QTreeView::keyPressEvent(event);
        return;
    }
    event->accept();
}

void CreditListView::contextMenuEvent(QContextMenuEvent *event) {
    const bool by_key = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    Q_EMIT MenuWanted(by_key ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : event->globalPos());
}

} // namespace ostrand
