#include "browser/ui/PanelList.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/PanelFields.h"
#include "shell/ListTable.h"
#include "shell/ui/Guarded.h"

#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <numeric>

namespace ostrand {

namespace {

constexpr int kFewestRows = 3;
constexpr int kUsualRows = 4;

/// The widths of columns that may want more than there is: the narrow ones get what they want, the others as much as
/// each other. What nobody wants goes to the first.
QList<int> ShareOut(int room, const QList<int> &wanted) {
    QList<int> order(wanted.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) { return wanted[a] < wanted[b]; });
    QList<int> widths(wanted.size());
    for (qsizetype i = 0; i < order.size(); ++i) {
        widths[order[i]] = std::min(wanted[order[i]], room / int(order.size() - i));
        room -= widths[order[i]];
    }
    widths.front() += std::max(room, 0);
    return widths;
}

} // namespace

PanelList::PanelList(Browser &browser, ListTable &table, const QString &name, QWidget *parent) :
    QTreeView(parent), browser_(browser), table_(table), copy_(new QAction(this)), list_titles_(new QAction(this)),
    lock_(new QAction(this)) {
    setObjectName(name);
    setModel(&table_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setTextElideMode(Qt::ElideRight);
    header()->setMinimumSectionSize(0);
    connect(&table_, &QAbstractItemModel::headerDataChanged, this, &PanelList::ApplyWidths);
    connect(header(), &QHeaderView::sectionClicked, this, &PanelList::SortByHeader);
    connect(&table_, &QAbstractItemModel::modelReset, this, [this] {
        sorted_by_ = -1;
        header()->setSortIndicatorShown(false);
        ApplyWidths();
    });
    connect(this, &QAbstractItemView::clicked, this, &PanelList::Chosen);
    AddActions();
}

void PanelList::AddActions() {
    list_titles_->setObjectName(QStringLiteral("mListTitles"));
    copy_->setObjectName(QStringLiteral("mCopyToClipboard"));
    connect(list_titles_, &QAction::triggered, this, [this] {
        if (currentIndex().isValid()) {
            Q_EMIT Chosen();
        }
    });
    connect(copy_, &QAction::triggered, this, [this] { CopyListToClipboard(browser_, table_, true); });
    lock_->setObjectName(QStringLiteral("mLockValues"));
    lock_->setCheckable(true);
    connect(lock_, &QAction::triggered, this, [this] { browser_.commands.Run(QStringLiteral("mLockField")); });
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    addActions({list_titles_, copy_, separator, lock_});
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void PanelList::PrepareMenu() {
    lock_->setEnabled(PrepareFieldMenu(browser_, objectName()));
    lock_->setChecked(browser_.commands.IsChecked(QStringLiteral("mLockField")));
}

bool PanelList::event(QEvent *event) {
    if (event->type() == QEvent::ContextMenu) {
        Guarded(browser_.session, [this] { PrepareMenu(); });
    }
    return QTreeView::event(event);
}

void PanelList::TranslateNames(const QString &name, const QString &copy, const QString &list_titles,
                               const QString &lock) {
    lock_->setText(lock);
    setAccessibleName(name);
    copy_->setText(copy + u'\t' + QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText));
    list_titles_->setText(list_titles);
}

QString PanelList::SelectedText() const {
    return currentIndex().siblingAtColumn(0).data().toString();
}

QString PanelList::SelectedKey() const {
    const QModelIndex index = currentIndex();
    return index.isValid() ? table_.Rows()[size_t(index.row())].key : QString();
}

int PanelList::HeightOf(int rows) const {
    const int row = std::max(fontMetrics().height() * 5 / 4, sizeHintForRow(0));
    return header()->sizeHint().height() + row * rows + 2 * frameWidth();
}

QSize PanelList::minimumSizeHint() const {
    return {0, HeightOf(kFewestRows)};
}

QSize PanelList::sizeHint() const {
    return {QTreeView::sizeHint().width(), HeightOf(kUsualRows)};
}

void PanelList::SortByHeader(int column) {
    // The header flips its mark before it tells of the click, so that it cannot be asked.
    order_ = sorted_by_ == column && order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    sorted_by_ = column;
    table_.sort(column, order_);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, order_);
}

void PanelList::ApplyWidths() {
    QList<int> wanted;
    for (int column = 0; column < table_.columnCount(); ++column) {
        wanted += std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
    }
    const QList<int> widths = ShareOut(viewport()->width(), wanted);
    for (int column = 0; column < widths.size(); ++column) {
        setColumnWidth(column, widths[column]);
    }
}

void PanelList::resizeEvent(QResizeEvent *event) {
    QTreeView::resizeEvent(event);
    ApplyWidths();
}

void PanelList::changeEvent(QEvent *event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        ApplyWidths();
        updateGeometry();
    }
}

void PanelList::keyPressEvent(QKeyEvent *event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_C && event->modifiers().testFlag(Qt::ControlModifier)) {
        event->accept();
        copy_->trigger();
    } else if (enter && currentIndex().isValid()) {
        event->accept();
        Q_EMIT Chosen();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

bool PanelList::viewportEvent(QEvent *event) {
    if (event->type() == QEvent::ContextMenu) {
        Guarded(browser_.session, [this] { PrepareMenu(); });
    }
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex index = indexAt(help->pos());
        // A text that is cut off shows whole.
        const bool cut = index.isValid() && sizeHintForIndex(index).width() > columnWidth(index.column());
        QToolTip::showText(help->globalPos(), cut ? index.data().toString().toHtmlEscaped() : QString(), this);
        return true;
    }
    return QTreeView::viewportEvent(event);
}

} // namespace ostrand
