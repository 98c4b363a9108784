#include "queries/ui/frmSQLQuery.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "platform_qt/TablePrinter.h"
#include "queries/ResultText.h"
#include "shell/Session.h"
#include "shell/ui/WindowPlace.h"

#include <QAction>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kMeasuredRows = 200; ///< rows that column widths are taken from; the list may be long
constexpr int kWidestColumnChars = 60;

} // namespace

frmSQLQuery::frmSQLQuery(Browser &browser, QWidget *parent) :
    QWidget(parent, Qt::Window), browser_(browser), tool_(browser.session) {
    setObjectName(u"frmSQLQuery"_s);
    auto *upper = new QSplitter(Qt::Horizontal);
    upper->setChildrenCollapsible(false);
    upper->addWidget(MakeStatement());
    upper->addWidget(MakeQueries());
    upper->setStretchFactor(0, 3);
    upper->setStretchFactor(1, 1);
    auto *all = new QSplitter(Qt::Vertical);
    all->setChildrenCollapsible(false);
    all->addWidget(upper);
    all->addWidget(MakeResult());
    all->setStretchFactor(0, 2);
    all->setStretchFactor(1, 3);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(all);
    AddKeys();
    connect(&browser_, &Browser::DatabaseOpened, this, [this] {
        tool_.DatabaseChanged();
        Refresh();
    });
    print = [this](const QAbstractItemModel &list, const QList<int> &rows) {
        AskAndPrintTable(this, Text(u"Print"), windowTitle(), list, rows);
    };
    const QFontMetrics metrics = fontMetrics();
    new WindowPlace(browser_.session, u"SQLQueries"_s, this,
                    {metrics.averageCharWidth() * 130, metrics.lineSpacing() * 40});
    Refresh();
}

QString frmSQLQuery::Text(const char16_t *english) const {
    return Translate(browser_.session, QString::fromUtf16(english));
}

void frmSQLQuery::SetFixedFont(QWidget &control) const {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamilies({u"Courier New"_s, font.family()});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    control.setFont(font);
}

QPushButton *frmSQLQuery::MakeButton(const char16_t *name, const char16_t *text, const char16_t *tool_tip) {
    auto *button = new QPushButton(keys_.Mark(Text(text)));
    button->setObjectName(QString::fromUtf16(name));
    button->setAccessibleName(Text(text));
    button->setToolTip(Text(tool_tip));
    button->setAutoDefault(true); // Enter presses it, though this is no dialog
    return button;
}

QWidget *frmSQLQuery::MakeStatement() {
    auto *area = new QWidget;
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins({});
    auto *label = new QLabel(keys_.Mark(Text(u"Statement")) + u':');
    textQuery_ = new QPlainTextEdit;
    textQuery_->setObjectName(u"textQuery"_s);
    textQuery_->setAccessibleName(Text(u"Statement"));
    textQuery_->setTabChangesFocus(true);
    SetFixedFont(*textQuery_);
    label->setBuddy(textQuery_);
    auto *buttons = new QHBoxLayout;
    QPushButton *send = MakeButton(u"cbSendQuery", u"Send Query", u"Runs the statement");
    send->setToolTip(send->toolTip() + u" (F5)"_s);
    QPushButton *tables =
        MakeButton(u"cbListTables", u"List Tables", u"Lists the tables with their fields, and how values are written");
    QPushButton *filter = MakeButton(u"cbCreateFilter", u"Create Filter",
                                     u"Begins a statement that can be saved as a filter of the title list");
    QPushButton *save = MakeButton(u"cbSave", u"Save Query", u"Keeps the statement under a name");
    for (QPushButton *button : {send, tables, filter, save}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addWidget(label);
    layout->addWidget(textQuery_, 1);
    layout->addLayout(buttons);
    connect(send, &QPushButton::clicked, this, &frmSQLQuery::SendQuery);
    connect(tables, &QPushButton::clicked, this, [this] {
        Do([this] { tool_.ListTables(); });
        ResizeListQueryResultColumns();
    });
    connect(filter, &QPushButton::clicked, this, [this] {
        textQuery_->setPlainText(QueryTool::FilterTemplate());
        textQuery_->setFocus();
    });
    connect(save, &QPushButton::clicked, this, &frmSQLQuery::Save);
    return area;
}

QWidget *frmSQLQuery::MakeQueries() {
    auto *area = new QWidget;
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins({});
    auto *label = new QLabel(keys_.Mark(Text(u"Saved Queries")) + u':');
    listQueries_ = new QListWidget;
    listQueries_->setObjectName(u"listQueries"_s);
    listQueries_->setAccessibleName(Text(u"Saved Queries"));
    listQueries_->setToolTip(Text(u"Selecting a query shows its statement; Delete removes it"));
    listQueries_->setContextMenuPolicy(Qt::ActionsContextMenu);
    label->setBuddy(listQueries_);
    auto *remove = new QAction(Text(u"Delete Query"), listQueries_);
    remove->setObjectName(u"mDeleteQuery"_s);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    listQueries_->addAction(remove);
    layout->addWidget(label);
    layout->addWidget(listQueries_, 1);
    connect(listQueries_, &QListWidget::currentRowChanged, this, &frmSQLQuery::LoadSelected);
    // A click on the entry that is current already brings its statement back.
    connect(listQueries_, &QListWidget::itemClicked, this, &frmSQLQuery::LoadSelected);
    connect(listQueries_, &QListWidget::itemActivated, this, &frmSQLQuery::SendQuery);
    connect(remove, &QAction::triggered, this, &frmSQLQuery::DeleteSelected);
    return area;
}

QWidget *frmSQLQuery::MakeResult() {
    auto *area = new QSplitter(Qt::Vertical);
    area->setChildrenCollapsible(false);
    textError_ = new QPlainTextEdit;
    textError_->setObjectName(u"textError"_s);
    textError_->setAccessibleName(Text(u"Messages of the database"));
    textError_->setReadOnly(true);
    textError_->setTabChangesFocus(true);
    textError_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    SetFixedFont(*textError_);
    textError_->setMinimumHeight(textError_->fontMetrics().lineSpacing() * 3);

    auto *lower = new QWidget;
    auto *layout = new QVBoxLayout(lower);
    layout->setContentsMargins({});
    BuildResultList();
    labelInfo_ = new QLabel;
    labelInfo_->setObjectName(u"labelInfo"_s);
    labelInfo_->setAccessibleName(Text(u"What the last statement did"));
    labelInfo_->setTextFormat(Qt::PlainText);
    QPushButton *save = MakeButton(u"cbSaveResult", u"Save Result", u"Writes the result to a text file");
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(labelInfo_, 1);
    bottom->addWidget(save);
    layout->addWidget(listQueryResult_, 1);
    layout->addLayout(bottom);
    connect(save, &QPushButton::clicked, this, [this] { Do([this] { tool_.SaveResult(); }); });
    area->addWidget(textError_);
    area->addWidget(lower);
    area->setStretchFactor(0, 1);
    area->setStretchFactor(1, 4);
    return area;
}

void frmSQLQuery::BuildResultList() {
    listQueryResult_ = new QTableView;
    listQueryResult_->setObjectName(u"listQueryResult"_s);
    listQueryResult_->setAccessibleName(Text(u"Result"));
    listQueryResult_->setToolTip(Text(u"A click on a row that begins with the key of a profile shows the profile"));
    listQueryResult_->setModel(&tool_.listQueryResult);
    listQueryResult_->setSelectionBehavior(QAbstractItemView::SelectRows);
    listQueryResult_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    listQueryResult_->setTabKeyNavigation(false);
    listQueryResult_->setWordWrap(false);
    listQueryResult_->verticalHeader()->hide();
    listQueryResult_->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + fontMetrics().height() / 3);
    QHeaderView *header = listQueryResult_->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setResizeContentsPrecision(kMeasuredRows);
    // The rows keep the order they came in until a header is clicked.
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorShown(true);
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sortIndicatorChanged, this,
            [this](int column, Qt::SortOrder order) { tool_.listQueryResult.sort(column, order); });
    connect(&tool_.listQueryResult, &QAbstractItemModel::modelReset, header,
            [header] { header->setSortIndicator(-1, Qt::AscendingOrder); });
    connect(listQueryResult_, &QTableView::clicked, this, &frmSQLQuery::ChooseRow);
    connect(listQueryResult_, &QTableView::activated, this, &frmSQLQuery::ChooseRow);
    AddResultActions();
}

void frmSQLQuery::AddResultActions() {
    const auto add = [this](const char16_t *name, const char16_t *text, auto run) {
        auto *action = new QAction(Text(text), listQueryResult_);
        action->setObjectName(QString::fromUtf16(name));
        listQueryResult_->addAction(action);
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    QAction *copy = add(u"mCopyToClipboard", u"&Copy to Clipboard", [this] {
        browser_.session.services.clipboard.SetText(ResultForClipboard(tool_.listQueryResult, RowsToTake()));
    });
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    add(u"mCopyXMLtoClipboard", u"Copy &XML to Clipboard", [this] {
        browser_.session.services.clipboard.SetText(QString::fromUtf8(ResultXml(tool_.listQueryResult, RowsToTake())));
    });
    QAction *paper = add(u"mPrint", u"&Print...", [this] { print(tool_.listQueryResult, RowsToTake()); });
    paper->setShortcut(QKeySequence::Print);
    paper->setShortcutContext(Qt::WidgetShortcut);
    listQueryResult_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void frmSQLQuery::AddKeys() {
    for (const QKeySequence &key :
         {QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, &frmSQLQuery::SendQuery);
    }
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
}

void frmSQLQuery::showEvent(QShowEvent *event) {
    if (!event->spontaneous()) {
        tool_.UpdateQueryList();
        Refresh();
        textQuery_->setFocus();
    }
    QWidget::showEvent(event);
}

void frmSQLQuery::Do(const std::function<void()> &action) {
    if (perform) {
        perform(action);
    } else {
        action();
    }
    Refresh();
}

void frmSQLQuery::SendQuery() {
    Do([this] { tool_.SendQuery(textQuery_->toPlainText(), SelectedColType(browser_)); });
    ResizeListQueryResultColumns();
    ShowFault();
}

void frmSQLQuery::LoadSelected() {
    if (const QListWidgetItem *item = listQueries_->currentItem()) {
        textQuery_->setPlainText(tool_.SavedStatement(item->text()));
        Refresh();
    }
}

void frmSQLQuery::DeleteSelected() {
    if (const QListWidgetItem *item = listQueries_->currentItem()) {
        const QString name = item->text();
        Do([&] { tool_.DeleteQuery(name); });
    }
}

void frmSQLQuery::Save() {
    QString kept;
    Do([&] { kept = tool_.SaveQuery(textQuery_->toPlainText()); });
    const QList<QListWidgetItem *> items = listQueries_->findItems(kept, Qt::MatchFixedString);
    if (!kept.isEmpty() && !items.isEmpty()) {
        const QSignalBlocker quiet(listQueries_); // the statement stands there already
        listQueries_->setCurrentItem(items.front());
    }
}

void frmSQLQuery::ChooseRow(const QModelIndex &index) {
    const QString key = tool_.listQueryResult.ProfileOf(index.row());
    if (!key.isEmpty() && browser_.session.Database) {
        Do([&] { ShowMovie(browser_, key); });
    }
}

void frmSQLQuery::Refresh() {
    setWindowTitle(tool_.caption);
    if (textError_->toPlainText() != QString(tool_.textError).replace(u"\r\n"_s, u"\n"_s)) {
        textError_->setPlainText(tool_.textError);
    }
    labelInfo_->setText(tool_.labelInfo);
    ShowQueries();
}

void frmSQLQuery::ShowQueries() {
    QStringList shown;
    for (int row = 0; row < listQueries_->count(); ++row) {
        shown.append(listQueries_->item(row)->text());
    }
    if (shown == tool_.listQueries) {
        return;
    }
    const QSignalBlocker quiet(listQueries_); // what is being written stays
    const QString current = listQueries_->currentItem() ? listQueries_->currentItem()->text() : QString();
    listQueries_->clear();
    listQueries_->addItems(tool_.listQueries);
    listQueries_->setCurrentRow(int(tool_.listQueries.indexOf(current)));
}

void frmSQLQuery::ShowFault() {
    if (tool_.error_position < 0) {
        return;
    }
    QTextCursor cursor = textQuery_->textCursor();
    cursor.setPosition(std::min(tool_.error_position, int(textQuery_->toPlainText().size())));
    textQuery_->setTextCursor(cursor);
    textQuery_->setFocus();
}

void frmSQLQuery::ResizeListQueryResultColumns() {
    QHeaderView *header = listQueryResult_->horizontalHeader();
    header->setMaximumSectionSize(fontMetrics().averageCharWidth() * kWidestColumnChars);
    listQueryResult_->resizeColumnsToContents();
    header->setMaximumSectionSize(-1);
}

QList<int> frmSQLQuery::RowsToTake() const {
    QList<int> rows;
    for (const QModelIndex &index : listQueryResult_->selectionModel()->selectedRows()) {
        rows += index.row();
    }
    std::sort(rows.begin(), rows.end());
    return rows.size() < 2 ? AllRows(tool_.listQueryResult) : rows;
}

} // namespace ostrand
