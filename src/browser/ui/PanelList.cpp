#include "browser/ui/PanelList.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "shell/ListTable.h"

#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

namespace ostrand {

namespace {

constexpr int kFewestRows = 3;
constexpr int kUsualRows = 4;

} // namespace

PanelList::PanelList(Browser &browser, ListTable &table, const QString &name, QWidget *parent) :
    QTreeView(parent), browser_(browser), table_(table), copy_(new QAction(this)), list_titles_(new QAction(this)) {
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
    header()->setMinimumSectionSize(0);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(header(), &QHeaderView::sectionClicked, this, &PanelList::SortByHeader);
    connect(&table_, &QAbstractItemModel::modelReset, this, [this] { header()->setSortIndicatorShown(false); });
    connect(this, &QAbstractItemView::clicked, this, &PanelList::Chosen);
    AddActions();
}

void PanelList::AddActions() {
    list_titles_->setObjectName(QStringLiteral("mListTitles"));
    copy_->setObjectName(QStringLiteral("mCopyToClipboard"));
    copy_->setShortcut(QKeySequence::Copy);
    copy_->setShortcutContext(Qt::WidgetShortcut);
    connect(list_titles_, &QAction::triggered, this, [this] {
        if (currentIndex().isValid()) {
            Q_EMIT Chosen();
        }
    });
    connect(copy_, &QAction::triggered, this, [this] { CopyListToClipboard(browser_, table_, true); });
    addActions({list_titles_, copy_});
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void PanelList::TranslateNames(const QString &name, const QString &copy, const QString &list_titles) {
    setAccessibleName(name);
    copy_->setText(copy);
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
    const bool again = header()->isSortIndicatorShown() && header()->sortIndicatorSection() == column &&
                       header()->sortIndicatorOrder() == Qt::AscendingOrder;
    const Qt::SortOrder order = again ? Qt::DescendingOrder : Qt::AscendingOrder;
    table_.sort(column, order);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, order);
}

void PanelList::keyPressEvent(QKeyEvent *event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid()) {
        event->accept();
        Q_EMIT Chosen();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

bool PanelList::viewportEvent(QEvent *event) {
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
