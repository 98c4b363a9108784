#include "database/ui/frmSwitchDatabase.h"

#include "shell/Session.h"
#include "shell/ui/Mnemonics.h"
#include "shell/ui/TextSize.h"

#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QShortcut>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Shows the wait cursor while it lives.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

} // namespace

frmSwitchDatabase::frmSwitchDatabase(Session &session, QWidget *parent) :
    QDialog(parent), session_(session), manager_(session) {
    setObjectName(u"frmSwitchDatabase"_s);
    setWindowTitle(manager_.Text(u"Select Database"_s));
    setModal(true);
    Mnemonics keys;
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(MakePathRow(keys));
    auto *middle = new QHBoxLayout;
    middle->addWidget(MakeList(), 1);
    middle->addWidget(MakeButtons(keys));
    layout->addLayout(middle, 1);
    MakeContextMenu();
    Connect();
    path_->setText(QDir::toNativeSeparators(manager_.Folder()));
    SelectRow(std::max(0, manager_.RowOf(manager_.PreviousName())));
    list_->setFocus();
    ResizeToText(*this, 110, 22);
}

QWidget *frmSwitchDatabase::MakePathRow(Mnemonics &keys) {
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    const QString caption = manager_.Text(u"Database Path"_s);
    auto *label = new QLabel(keys.Mark(caption), row);
    path_ = new QLineEdit(row);
    path_->setObjectName(u"textDatabasePath"_s);
    path_->setAccessibleName(caption);
    path_->setReadOnly(true);
    label->setBuddy(path_);
    select_path_ = new QPushButton(u"..."_s, row);
    select_path_->setObjectName(u"cbSelectPath"_s);
    select_path_->setAccessibleName(manager_.Text(u"Choose the folder of the databases"_s));
    select_path_->setToolTip(select_path_->accessibleName());
    MakeNarrow(*select_path_);
    layout->addWidget(label);
    layout->addWidget(path_, 1);
    layout->addWidget(select_path_);
    return row;
}

QTreeView *frmSwitchDatabase::MakeList() {
    list_ = new QTreeView(this);
    list_->setObjectName(u"listdb"_s);
    list_->setAccessibleName(manager_.Text(u"Databases"_s));
    list_->setModel(&manager_);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setSortingEnabled(true);
    list_->sortByColumn(DatabaseManager::Name, Qt::AscendingOrder);
    QHeaderView *header = list_->header();
    header->setStretchLastSection(false);
    const int letter = fontMetrics().averageCharWidth();
    header->setMinimumSectionSize(letter * 8);
    header->setSectionResizeMode(DatabaseManager::Name, QHeaderView::Stretch);
    header->setSectionResizeMode(DatabaseManager::Owner, QHeaderView::Interactive);
    header->resizeSection(DatabaseManager::Owner, letter * 18);
    header->setSectionResizeMode(DatabaseManager::Schema, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(DatabaseManager::Size, QHeaderView::ResizeToContents);
    list_->setMinimumSize(letter * 50, fontMetrics().height() * 8);
    return list_;
}

QPushButton *frmSwitchDatabase::MakeButton(const QString &name, const QString &text, const QString &tool_tip,
                                           Mnemonics &keys) {
    auto *button = new QPushButton(keys.Mark(manager_.Text(text)), this);
    button->setObjectName(name);
    button->setAccessibleName(manager_.Text(text));
    button->setToolTip(manager_.Text(tool_tip));
    return button;
}

QWidget *frmSwitchDatabase::MakeButtons(Mnemonics &keys) {
    auto *column = new QWidget(this);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins({});
    ok_ = MakeButton(u"cbOK"_s, u"OK"_s, u"Open the selected database"_s, keys);
    ok_->setDefault(true);
    cancel_ = MakeButton(u"cbCancel"_s, u"Cancel"_s, u"Go back to the database that was open before"_s, keys);
    new_ = MakeButton(u"cbNew"_s, u"New..."_s, u"Make a new, empty database"_s, keys);
    compact_ = MakeButton(u"cbCompactDb"_s, u"Compact"_s,
                          u"Write the selected database anew without what was deleted in it"_s, keys);
    delete_ = MakeButton(u"cbDeleteDatabase"_s, u"Delete..."_s, u"Delete the selected database from the disk"_s, keys);
    exit_ = MakeButton(u"cbExit"_s, u"Exit"_s, u"End the program"_s, keys);
    layout->addWidget(ok_);
    layout->addWidget(cancel_);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(new_);
    layout->addWidget(compact_);
    layout->addWidget(delete_);
    layout->addStretch();
    layout->addWidget(exit_);
    return column;
}

void frmSwitchDatabase::MakeContextMenu() {
    Mnemonics keys;
    menu_ = new QMenu(this);
    menu_->setObjectName(u"mListContext"_s);
    rename_ = menu_->addAction(keys.Mark(manager_.Text(u"Rename Database..."_s)));
    rename_->setObjectName(u"mRenameDatabase"_s);
    rename_->setShortcut(Qt::Key_F2);
    owner_ = menu_->addAction(keys.Mark(manager_.Text(u"Change Owner..."_s)));
    owner_->setObjectName(u"mChangeDBOwner"_s);
    owner_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    for (QAction *action : {rename_, owner_}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        list_->addAction(action); // so that the keys count while the list has the focus
    }
}

void frmSwitchDatabase::ShowContextMenu(const QPoint &place) {
    if (Row() >= 0) {
        menu_->popup(list_->viewport()->mapToGlobal(place));
    }
}

void frmSwitchDatabase::Connect() {
    connect(list_, &QTreeView::customContextMenuRequested, this, &frmSwitchDatabase::ShowContextMenu);
    connect(list_, &QTreeView::doubleClicked, this, &frmSwitchDatabase::OpenSelected);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmSwitchDatabase::FollowSelection);
    connect(&manager_, &QAbstractItemModel::rowsRemoved, this, [this] {
        SelectRow(std::max(0, Row()));
        list_->setFocus(); // else it goes on from a button that has nothing to delete any more
    });
    connect(ok_, &QPushButton::clicked, this, &frmSwitchDatabase::OpenSelected);
    connect(cancel_, &QPushButton::clicked, this, &frmSwitchDatabase::reject);
    connect(new_, &QPushButton::clicked, this, [this] {
        if (manager_.New()) {
            Finish();
        } else {
            SelectRow(0);
        }
    });
    connect(exit_, &QPushButton::clicked, this, [this] {
        manager_.Exit();
        Finish();
    });
    connect(select_path_, &QPushButton::clicked, this, [this] {
        manager_.SelectPath();
        path_->setText(QDir::toNativeSeparators(manager_.Folder()));
        SelectRow(std::max(0, Row()));
    });
    connect(delete_, &QPushButton::clicked, this, [this] { OnRow(&DatabaseManager::Delete); });
    connect(compact_, &QPushButton::clicked, this, [this] {
        const WaitCursor wait;
        OnRow(&DatabaseManager::Compact);
    });
    connect(rename_, &QAction::triggered, this, [this] { OnRow(&DatabaseManager::Rename); });
    connect(owner_, &QAction::triggered, this, [this] { OnRow(&DatabaseManager::ChangeOwner); });
    auto *remove = new QShortcut(QKeySequence(Qt::Key_Delete), list_);
    remove->setContext(Qt::WidgetWithChildrenShortcut);
    connect(remove, &QShortcut::activated, delete_, &QPushButton::click);
}

int frmSwitchDatabase::Row() const {
    const QModelIndexList rows = list_->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void frmSwitchDatabase::SelectRow(int row) {
    if (row < manager_.rowCount()) {
        list_->setCurrentIndex(manager_.index(row, 0));
    }
    FollowSelection();
}

void frmSwitchDatabase::FollowSelection() {
    const bool selected = Row() >= 0;
    for (QPushButton *button : {ok_, delete_, compact_}) {
        button->setEnabled(selected);
    }
    rename_->setEnabled(selected);
    owner_->setEnabled(selected);
}

void frmSwitchDatabase::OnRow(void (DatabaseManager::*action)(int)) {
    (manager_.*action)(Row());
}

void frmSwitchDatabase::OpenSelected() {
    if (manager_.Open(Row())) {
        Finish();
    }
}

void frmSwitchDatabase::reject() {
    manager_.Cancel();
    Finish();
}

void frmSwitchDatabase::Finish() {
    done(session_.Database ? Accepted : Rejected);
}

} // namespace ostrand
