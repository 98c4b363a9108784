#include "queries/ui/frmSQLQuery.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "platform_qt/TablePrinter.h"
#include "queries/ResultText.h"
#include "shell/Session.h"
#include "shell/ui/Mnemonics.h"
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
    connect(&browser_, &Browser::LanguageChanged, this, &frmSQLQuery::TranslateTexts);
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
    TranslateTexts();
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

QPushButton *frmSQLQuery::MakeButton(const char16_t *name) {
    auto *button = new QPushButton;
    button->setObjectName(QString::fromUtf16(name));
    button->setAutoDefault(true); // Enter presses it, though this is no dialog
    return button;
}

QLabel *frmSQLQuery::MakeLabel(QWidget &buddy) {
    auto *label = new QLabel;
    label->setBuddy(&buddy);
    return label;
}

void frmSQLQuery::TranslateTexts() {
    struct ButtonTexts {
        const char16_t *name, *text, *tool_tip;
    };
    const ButtonTexts buttons[] = {
        {u"cbSendQuery", u"Send Query", u"Runs the statement"},
        {u"cbListTables", u"List Tables", u"Lists the tables with their fields, and how values are written"},
        {u"cbCreateFilter", u"Create Filter", u"Begins a statement that can be saved as a filter of the title list"},
        {u"cbSave", u"Save Query", u"Keeps the statement under a name"},
        {u"cbSaveResult", u"Save Result", u"Writes the result to a text file"},
    };
    Mnemonics keys;
    labelQuery_->setText(keys.Mark(Text(u"Statement")) + u':');
    labelQueries_->setText(keys.Mark(Text(u"Saved Queries")) + u':');
    for (const ButtonTexts &texts : buttons) {
        auto *button = findChild<QPushButton *>(QString::fromUtf16(texts.name));
        button->setText(keys.Mark(Text(texts.text)));
        button->setAccessibleName(Text(texts.text));
        button->setToolTip(Text(texts.tool_tip) + (texts.name == u"cbSendQuery"_s ? u" (F5)"_s : QString()));
    }
    TranslateLists();
    tool_.TranslateTexts();
    Refresh();
}

void frmSQLQuery::TranslateLists() {
    textQuery_->setAccessibleName(Text(u"Statement"));
    textError_->setAccessibleName(Text(u"Messages of the database"));
    labelInfo_->setAccessibleName(Text(u"What the last statement did"));
    listQueries_->setAccessibleName(Text(u"Saved Queries"));
    listQueries_->setToolTip(Text(u"Selecting a query shows its statement; Delete removes it"));
    mDeleteQuery_->setText(Text(u"Delete Query"));
    listQueryResult_->setAccessibleName(Text(u"Result"));
    listQueryResult_->setToolTip(Text(u"A click on a row that begins with the key of a profile shows the profile"));
    const std::pair<const char16_t *, const char16_t *> entries[] = {
        {u"mCopyToClipboard", u"&Copy to Clipboard"},
        {u"mCopyXMLtoClipboard", u"Copy &XML to Clipboard"},
        {u"mPrint", u"&Print..."},
    };
    for (const auto &[name, text] : entries) {
        listQueryResult_->findChild<QAction *>(QString::fromUtf16(name))->setText(Text(text));
    }
}

QWidget *frmSQLQuery::MakeStatement() {
    auto *area = new QWidget;
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins({});
    textQuery_ = new QPlainTextEdit;
    textQuery_->setObjectName(u"textQuery"_s);
    textQuery_->setTabChangesFocus(true);
    SetFixedFont(*textQuery_);
    labelQuery_ = MakeLabel(*textQuery_);
    auto *buttons = new QHBoxLayout;
    QPushButton *send = MakeButton(u"cbSendQuery");
    QPushButton *tables = MakeButton(u"cbListTables");
    QPushButton *filter = MakeButton(u"cbCreateFilter");
    QPushButton *save = MakeButton(u"cbSave");
    for (QPushButton *button : {send, tables, filter, save}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addWidget(labelQuery_);
    layout->addWidget(textQuery_, 1);
    layout->addLayout(buttons);
    connect(textQuery_, &QPlainTextEdit::textChanged, this, [this] { textQuery_->setExtraSelections({}); });
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
    listQueries_ = new QListWidget;
    listQueries_->setObjectName(u"listQueries"_s);
    listQueries_->setContextMenuPolicy(Qt::ActionsContextMenu);
    labelQueries_ = MakeLabel(*listQueries_);
    mDeleteQuery_ = new QAction(listQueries_);
    mDeleteQuery_->setObjectName(u"mDeleteQuery"_s);
    mDeleteQuery_->setShortcut(QKeySequence::Delete);
    mDeleteQuery_->setShortcutContext(Qt::WidgetShortcut);
    listQueries_->addAction(mDeleteQuery_);
    layout->addWidget(labelQueries_);
    layout->addWidget(listQueries_, 1);
    connect(listQueries_, &QListWidget::currentRowChanged, this, &frmSQLQuery::LoadSelected);
    // A click on the entry that is current already brings its statement back.
    connect(listQueries_, &QListWidget::itemClicked, this, &frmSQLQuery::LoadSelected);
    connect(listQueries_, &QListWidget::itemActivated, this, &frmSQLQuery::SendQuery);
    connect(mDeleteQuery_, &QAction::triggered, this, &frmSQLQuery::DeleteSelected);
    return area;
}

QWidget *frmSQLQuery::MakeResult() {
    auto *area = new QSplitter(Qt::Vertical);
    area->setChildrenCollapsible(false);
    textError_ = new QPlainTextEdit;
    textError_->setObjectName(u"textError"_s);
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
    labelInfo_->setTextFormat(Qt::PlainText);
    QPushButton *save = MakeButton(u"cbSaveResult");
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
    const auto make = [this](const char16_t *name, auto run) {
        auto *action = new QAction(listQueryResult_);
        action->setObjectName(QString::fromUtf16(name));
        listQueryResult_->addAction(action);
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    QAction *copy = make(u"mCopyToClipboard", [this] {
        browser_.session.services.clipboard.SetText(ResultForClipboard(tool_.listQueryResult, RowsToTake()));
    });
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    make(u"mCopyXMLtoClipboard", [this] {
        browser_.session.services.clipboard.SetText(QString::fromUtf8(ResultXml(tool_.listQueryResult, RowsToTake())));
    });
    QAction *paper = make(u"mPrint", [this] { print(tool_.listQueryResult, RowsToTake()); });
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
    textQuery_->setExtraSelections({});
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
    findChild<QPushButton *>(u"cbSaveResult"_s)->setEnabled(tool_.listQueryResult.columnCount() > 0);
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
    const int place = std::min(tool_.error_position, int(textQuery_->toPlainText().size()));
    QTextCursor cursor = textQuery_->textCursor();
    cursor.setPosition(place);
    textQuery_->setTextCursor(cursor);
    textQuery_->setFocus();
    QTextEdit::ExtraSelection mark;
    mark.cursor = cursor;
    mark.cursor.movePosition(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    if (!mark.cursor.hasSelection()) { // at a sign, or behind the last word, which then is what lacks something
        mark.cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    }
    if (!mark.cursor.hasSelection()) {
        mark.cursor.movePosition(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
    }
    mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    textQuery_->setExtraSelections({mark});
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
