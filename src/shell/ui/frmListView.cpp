#include "shell/ui/frmListView.h"

#include "shell/Session.h"
#include "shell/Settings.h"
#include "shell/SettingsTable.h"
#include "shell/ui/WindowPlace.h"

#include <QAction>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include <numeric>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kMeasuredRows = 200; ///< rows that column widths are taken from; the list may be long
constexpr int kWidestColumnChars = 50;

QString Line(const QAbstractItemModel &model, const std::function<QVariant(int column)> &cell) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        // A tab or a line break within a cell would make cells and lines of it.
        cells += cell(column).toString().simplified();
    }
    return cells.join(u'\t');
}

} // namespace

frmListView::frmListView(Session &session, ListViewContent content, QWidget *parent) :
    QDialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                        Qt::WindowCloseButtonHint),
    session_(session), content_(std::move(content)), MultiList_(new QTableView(this)) {
    setObjectName(u"frmListView"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    BuildList();
    AddActions();
    ShowContent();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(MultiList_);
    const QFontMetrics metrics = fontMetrics();
    new WindowPlace(session_, u"ListViewWindow"_s, this,
                    {metrics.averageCharWidth() * 110, metrics.lineSpacing() * 24});
}

void frmListView::BuildList() {
    MultiList_->setObjectName(u"MultiList"_s);
    MultiList_->setSelectionBehavior(QAbstractItemView::SelectRows);
    MultiList_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    MultiList_->setTabKeyNavigation(false);
    MultiList_->setWordWrap(false);
    MultiList_->setFrameShape(QFrame::NoFrame);
    MultiList_->verticalHeader()->hide();
    MultiList_->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + fontMetrics().height() / 3);
    QHeaderView *header = MultiList_->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setStretchLastSection(true);
    header->setResizeContentsPrecision(kMeasuredRows);
    // The rows keep the order they came in until a header is clicked.
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorShown(true);
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this](int column, Qt::SortOrder order) {
        if (column >= 0) {
            content_.model->sort(column, order);
        }
    });
    connect(MultiList_, &QTableView::activated, this, &frmListView::Choose);
}

void frmListView::ShowContent() {
    setWindowTitle(content_.caption);
    MultiList_->setAccessibleName(content_.caption);
    MultiList_->setModel(content_.model.get());
    QHeaderView *header = MultiList_->horizontalHeader();
    header->setMaximumSectionSize(fontMetrics().averageCharWidth() * kWidestColumnChars);
    MultiList_->resizeColumnsToContents();
    header->setMaximumSectionSize(-1);
    if (content_.model->rowCount() > 0) {
        MultiList_->setCurrentIndex(content_.model->index(0, 0));
    }
}

void frmListView::ShowAgain() {
    TranslateActions();
    if (!content_.again) {
        return;
    }
    const QHeaderView *header = MultiList_->horizontalHeader();
    const int row = MultiList_->currentIndex().row();
    const int sorted_by = header->sortIndicatorSection();
    const Qt::SortOrder order = header->sortIndicatorOrder();
    ListViewContent content = content_.again();
    std::swap(content_, content); // the old model goes when the view has the new one
    if (sorted_by >= 0) {
        content_.model->sort(sorted_by, order);
    }
    ShowContent();
    if (row >= 0 && row < content_.model->rowCount()) {
        MultiList_->setCurrentIndex(content_.model->index(row, 0));
    }
}

void frmListView::AddActions() {
    copy_ = new QAction(MultiList_);
    copy_->setObjectName(u"mCopyToClipboard"_s);
    copy_->setShortcut(QKeySequence::Copy);
    copy_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copy_, &QAction::triggered, this, [this] { session_.services.clipboard.SetText(SelectedText()); });

    grid_lines_ = new QAction(MultiList_);
    grid_lines_->setObjectName(u"mToogleGridlinesMultiList"_s);
    grid_lines_->setCheckable(true);
    grid_lines_->setChecked(IsTrueText(ReadIniSetting(session_, u"GridLines", u"MultiList")));
    MultiList_->setShowGrid(grid_lines_->isChecked());
    connect(grid_lines_, &QAction::toggled, this, &frmListView::SetGridLines);

    MultiList_->addActions({copy_, grid_lines_});
    MultiList_->setContextMenuPolicy(Qt::ActionsContextMenu);
    TranslateActions();
}

void frmListView::TranslateActions() {
    copy_->setText(Translate(session_, u"&Copy"_s));
    grid_lines_->setText(Translate(session_, u"&Grid Lines"_s));
}

void frmListView::SetGridLines(bool on) {
    MultiList_->setShowGrid(on);
    WriteIniSetting(session_, u"GridLines", u"MultiList", TruthText(on));
}

void frmListView::Choose(const QModelIndex &index) {
    if (!index.isValid() || !content_.target || !title_chosen) {
        return;
    }
    const auto [key, kind] = content_.target(index.row());
    if (!key.isEmpty()) {
        title_chosen(key, kind);
    }
}

QString frmListView::SelectedText() const {
    const QAbstractItemModel &model = *content_.model;
    QList<int> rows;
    for (const QModelIndex &index : MultiList_->selectionModel()->selectedRows()) {
        rows += index.row();
    }
    std::sort(rows.begin(), rows.end());
    if (rows.size() < 2) {
        rows.resize(model.rowCount());
        std::iota(rows.begin(), rows.end(), 0);
    }
    QString text = Line(model, [&](int column) { return model.headerData(column, Qt::Horizontal); }) + u'\n';
    for (const int row : rows) {
        text += Line(model, [&](int column) { return model.index(row, column).data(); }) + u'\n';
    }
    return text;
}

} // namespace ostrand
