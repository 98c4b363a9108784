#include "database/DatabaseManager.h"

#include "base/Files.h"
#include "base/Text.h"
#include "database/DatabaseFunctions.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"
#include "shell/Settings.h"
#include "sql/Collation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <numeric>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView kExtension = ".mdb"_L1;

/// Every text that the window shows while no database is open.
constexpr const char16_t *kTexts[] = {
    u"Select Database",
    u"Database Path",
    u"Database Name",
    u"Owner",
    u"Schema",
    u"Size",
    u"Databases",
    u"OK",
    u"Cancel",
    u"New...",
    u"Delete...",
    u"Compact",
    u"Exit",
    u"Rename Database...",
    u"Change Owner...",
    u"Open the selected database",
    u"Go back to the database that was open before",
    u"Make a new, empty database",
    u"Delete the selected database from the disk",
    u"Write the selected database anew without what was deleted in it",
    u"End the program",
    u"Choose the folder of the databases",
    u"Enter name of new database:",
    u"New database",
    u"Do you really want to delete database",
    u"Delete database?",
    u"Enter new name",
    u"New Database name",
    u"Database with name",
    u"does already exist!",
    u"Enter name of collection owner",
    u"Database Owner",
    u"Previous database doesn't exist anymore!",
    u"Database missing",
    u"Cannot open database",
    u"The database file cannot be deleted.",
    u"The database file cannot be renamed.",
};

/// What may stand beside a database that a crash left.
constexpr QLatin1StringView kCompanions[] = {"-wal"_L1, "-shm"_L1};

/// A database that is open for a moment.
class OpenForAMoment {
public:
    OpenForAMoment(Session &session, const QString &path) : session_(session) {
        session_.Database = sql::Database::Open(path, DatabaseEnvironment(session_));
    }
    ~OpenForAMoment() { session_.Database.reset(); }
    OpenForAMoment(const OpenForAMoment &) = delete;
    OpenForAMoment &operator=(const OpenForAMoment &) = delete;

private:
    Session &session_;
};

} // namespace

DatabaseManager::DatabaseManager(Session &session, QObject *parent) : QAbstractTableModel(parent), session_(session) {
    KeepTexts();
    TestFolder();
    CloseDatabase();
    ListDatabases();
}

int DatabaseManager::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int DatabaseManager::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant DatabaseManager::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || !Exists(index.row())) {
        return {};
    }
    if (role == Qt::TextAlignmentRole && index.column() >= Schema) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    const Row &row = rows_[size_t(index.row())];
    if (role == Qt::ToolTipRole && index.column() == Name) {
        return QDir::toNativeSeparators(PathOf(row));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case Name:
        return row.name;
    case Owner:
        return row.owner;
    case Schema:
        return row.schema;
    default:
        return SizeText(row.bytes);
    }
}

QVariant DatabaseManager::headerData(int section, Qt::Orientation orientation, int role) const {
    static constexpr const char16_t *kHeaders[kColumns] = {u"Database Name", u"Owner", u"Schema", u"Size"};
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumns) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant((section >= Schema ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(Text(QString::fromUtf16(kHeaders[section]))) : QVariant();
}

int DatabaseManager::Compare(const Row &a, const Row &b, int column) const {
    const auto numbers = [](double x, double y) { return x < y ? -1 : int(x > y); };
    switch (column) {
    case Owner:
        return sql::Compare(a.owner, b.owner);
    case Schema:
        return numbers(a.schema.toDouble(), b.schema.toDouble());
    case Size:
        return numbers(double(a.bytes), double(b.bytes));
    default:
        return sql::Compare(a.name, b.name);
    }
}

void DatabaseManager::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= kColumns) {
        return;
    }
    sort_column_ = column;
    sort_order_ = order;
    Sort();
}

void DatabaseManager::Sort() {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<size_t> order(rows_.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(), [this](size_t a, size_t b) {
        const int result = Compare(rows_[a], rows_[b], sort_column_);
        return sort_order_ == Qt::AscendingOrder ? result < 0 : result > 0;
    });
    std::vector<Row> sorted;
    std::vector<int> place(rows_.size());
    for (const size_t old : order) {
        place[old] = int(sorted.size());
        sorted.push_back(std::move(rows_[old]));
    }
    rows_ = std::move(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &old : before) {
        after.append(index(place[size_t(old.row())], old.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void DatabaseManager::KeepTexts() {
    for (const char16_t *text : kTexts) {
        const QString english = QString::fromUtf16(text);
        texts_.insert(english, Translate(session_, english));
    }
}

QString DatabaseManager::Text(const QString &english) const {
    Q_ASSERT_X(texts_.contains(english), "DatabaseManager", qUtf8Printable(english));
    return texts_.value(english, english);
}

const QString &DatabaseManager::Folder() const {
    return session_.DatabasePath;
}

QString DatabaseManager::PreviousName() const {
    return QFileInfo(previous_).completeBaseName();
}

void DatabaseManager::TestFolder() {
    if (session_.DatabasePath.isEmpty() || !QFileInfo(session_.DatabasePath).isDir()) {
        session_.DatabasePath = session_.DataFolder;
    }
}

void DatabaseManager::CloseDatabase() {
    if (!session_.Database) {
        return;
    }
    // One of a newer program only stayed open where it could not be used; there is no way back to it.
    if (!session_.DatabaseTooNew) {
        previous_ = QFileInfo(session_.Database->Path()).absoluteFilePath();
    }
    try {
        if (session_.window.SaveDatabaseSettings) {
            session_.window.SaveDatabaseSettings();
        }
        SaveDatabaseSettings(session_);
        session_.Database->Flush();
    } catch (const sql::SqlError &error) {
        SayFault(error.Text());
    }
    session_.Database.reset();
    session_.DatabaseTooNew = false;
    if (session_.window.EnableDBMenues) {
        session_.window.EnableDBMenues(false);
    }
}

QString DatabaseManager::PathOf(const QString &file) const {
    return QDir(Folder()).filePath(file);
}

QString DatabaseManager::PathOf(const Row &row) const {
    return PathOf(row.file);
}

QString DatabaseManager::PathFor(const QString &name) const {
    const QString file = name + kExtension;
    const QString existing = FindIgnoringCase(Folder(), file);
    return existing.isEmpty() ? PathOf(file) : existing;
}

void DatabaseManager::ReadInfos(Row &row) {
    const QString path = PathOf(row);
    row.owner.clear();
    row.schema.clear();
    try {
        const OpenForAMoment open(session_, path);
        row.owner = ReadDbInfo(session_, u"Owner"_s, {});
        row.schema = ReadDbInfo(session_, u"Schema"_s, {});
    } catch (const sql::SqlError &error) {
        Trace(session_, u"ListDatabases: "_s + error.Text(), kTraceInfo);
    }
    row.bytes = QFileInfo(path).size();
}

void DatabaseManager::ListDatabases() {
    Trace(session_, u"ListDatabases()"_s, kTraceEntry);
    beginResetModel();
    rows_.clear();
    for (const QString &file : QDir(Folder()).entryList(QDir::Files | QDir::Hidden, QDir::NoSort)) {
        if (file.endsWith(kExtension, Qt::CaseInsensitive)) {
            Row row;
            row.file = file;
            row.name = file.chopped(kExtension.size());
            ReadInfos(row);
            rows_.push_back(row);
        }
    }
    endResetModel();
    Sort();
    Trace(session_, u"ListDatabases()"_s, kTraceExit);
}

QString DatabaseManager::SizeText(qint64 bytes) const {
    constexpr double kMegabyte = 1024.0 * 1024.0;
    QString text = QString::number(double(bytes) / kMegabyte, 'f', 2);
    if (!session_.DecimalSeparator.isEmpty()) {
        text.replace(u'.', session_.DecimalSeparator);
    }
    return text + " MB"_L1;
}

int DatabaseManager::RowOf(const QString &name) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const Row &row) { return EqualsIgnoringCase(row.name, name); });
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

void DatabaseManager::RowChanged(int row) {
    Q_EMIT dataChanged(index(row, 0), index(row, kColumns - 1));
}

void DatabaseManager::SayFault(const QString &fault) {
    Trace(session_, fault, kTraceError);
    ShowMessage(session_, {.text = fault, .title = Text(u"Cannot open database"_s), .icon = MessageIcon::Critical});
}

bool DatabaseManager::Opened(bool success) {
    if (!success) {
        session_.Database.reset(); // one of a newer program stays open, and the list needs the place
        session_.DatabaseTooNew = false;
    }
    return success || session_.EndProgram;
}

bool DatabaseManager::Open(int row) {
    return Exists(row) && Opened(OpenCollectionDatabase(session_, PathOf(rows_[size_t(row)])));
}

QString DatabaseManager::AskForName(const QString &prompt, const QString &title, const QString &preset) {
    bool cancelled = false;
    const QString answer = InputText(session_, prompt, title, cancelled, preset);
    return cancelled ? QString() : SafeFileName(answer).trimmed();
}

bool DatabaseManager::New() {
    const QString name = AskForName(Text(u"Enter name of new database:"_s), Text(u"New database"_s), {});
    if (name.isEmpty()) {
        return false;
    }
    const bool close = Opened(NewCollectionDatabase(session_, PathFor(name)));
    if (!close) {
        ListDatabases();
    }
    return close;
}

void DatabaseManager::Compact(int row) {
    if (!Exists(row)) {
        return;
    }
    Row &database = rows_[size_t(row)];
    CompactCollectionDatabase(session_, PathOf(database));
    database.bytes = QFileInfo(PathOf(database)).size();
    RowChanged(row);
}

void DatabaseManager::Delete(int row) {
    if (!Exists(row) || IsDatabaseBusy(session_, PathOf(rows_[size_t(row)]))) {
        return;
    }
    const QString question = Text(u"Do you really want to delete database"_s) + u' ' + rows_[size_t(row)].name + u'?';
    if (ShowMessage(session_, {.text = question,
                               .title = Text(u"Delete database?"_s),
                               .icon = MessageIcon::Question,
                               .buttons = MessageButtons::YesNo,
                               .neutral = MessageAnswer::No}) != MessageAnswer::Yes) {
        return;
    }
    const QString path = PathOf(rows_[size_t(row)]);
    if (!QFile::remove(path) && QFileInfo::exists(path)) {
        SayFault(Text(u"The database file cannot be deleted."_s));
        return;
    }
    for (const QLatin1StringView end : kCompanions) {
        QFile::remove(path + end); // a later database of this name must not take them for its own
    }
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

bool DatabaseManager::MoveFile(const QString &from, const QString &to) {
    try {
        // A crash may have left a log beside the file, which this takes in.
        sql::Database::Open(from, DatabaseEnvironment(session_)).reset();
    } catch (const sql::SqlError &error) {
        Trace(session_, u"Rename: "_s + error.Text(), kTraceInfo); // a faulty file can be renamed too
    }
    for (const QLatin1StringView end : kCompanions) {
        QFile::remove(to + end); // of a database that is gone
    }
    if (!QFile::rename(from, to)) {
        return false;
    }
    for (const QLatin1StringView end : kCompanions) {
        QFile::rename(from + end, to + end);
    }
    return true;
}

void DatabaseManager::Rename(int row) {
    // A file that another program holds would lose its log by a new name.
    if (!Exists(row) || IsDatabaseBusy(session_, PathOf(rows_[size_t(row)]))) {
        return;
    }
    Row &database = rows_[size_t(row)];
    const QString name = AskForName(Text(u"Enter new name"_s), Text(u"New Database name"_s), database.name);
    if (name.isEmpty() || EqualsIgnoringCase(name, database.name)) {
        return;
    }
    const QString from = PathOf(database);
    const QString to = PathFor(name);
    if (RowOf(name) >= 0 || QFileInfo::exists(to)) {
        ShowMessage(session_,
                    {.text = Text(u"Database with name"_s) + " '"_L1 + name + "' "_L1 + Text(u"does already exist!"_s),
                     .title = Text(u"New Database name"_s),
                     .icon = MessageIcon::Warning});
        return;
    }
    if (!MoveFile(from, to)) {
        SayFault(Text(u"The database file cannot be renamed."_s));
        return;
    }
    if (QFileInfo(from).absoluteFilePath() == previous_) {
        previous_ = QFileInfo(to).absoluteFilePath(); // it is still there to go back to
    }
    database.name = name;
    database.file = name + kExtension;
    RowChanged(row);
}

void DatabaseManager::ChangeOwner(int row) {
    if (!Exists(row)) {
        return;
    }
    Row &database = rows_[size_t(row)];
    try {
        const OpenForAMoment open(session_, PathOf(database));
        bool cancelled = false;
        const QString owner = InputText(session_, Text(u"Enter name of collection owner"_s), Text(u"Database Owner"_s),
                                        cancelled, ReadDbInfo(session_, u"Owner"_s, {}));
        if (!cancelled) {
            WriteDbInfo(session_, u"Owner"_s, owner, u"Collection Owner"_s);
            session_.Database->Flush();
        }
    } catch (const sql::SqlError &error) {
        SayFault(error.Text());
    }
    ReadInfos(database);
    RowChanged(row);
}

void DatabaseManager::SelectPath() {
    const QString folder = session_.services.dialogs.BrowseFolder(Text(u"Database Path"_s), Folder());
    if (!folder.isEmpty()) {
        session_.DatabasePath = folder;
        ListDatabases();
    }
}

void DatabaseManager::Cancel() {
    if (previous_.isEmpty()) {
        return;
    }
    if (!QFileInfo::exists(previous_)) {
        ShowMessage(session_, {.text = Text(u"Previous database doesn't exist anymore!"_s),
                               .title = Text(u"Database missing"_s),
                               .icon = MessageIcon::Warning});
        return;
    }
    Opened(OpenCollectionDatabase(session_, previous_));
}

void DatabaseManager::Exit() {
    session_.EndProgram = true;
}

} // namespace ostrand
