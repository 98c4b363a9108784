// The databases of a folder, and what a user can do with them.
#pragma once

#include <QAbstractTableModel>

namespace ostrand {

struct Session;

/// The rules behind frmSwitchDatabase, and the item model of its list. From its making on no database is open: the one
/// that was is saved, closed, and opened again by Cancel. All questions, messages and faults go to the user.
class DatabaseManager : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Name, Owner, Schema, Size };
    static constexpr int kColumns = 4;

    /// Takes the database folder, or the data folder where that is gone, closes the open database and lists the folder.
    explicit DatabaseManager(Session &session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Texts sort in the database's order, schema and size by their numbers.
    void sort(int column, Qt::SortOrder order) override;

    /// The folder that is listed.
    const QString &Folder() const;
    /// Reads the folder anew. A file that cannot be read is listed by its name alone; none is changed.
    void ListDatabases();
    /// The row of a database by its name without regard to case, -1 without one.
    int RowOf(const QString &name) const;
    /// The name of the database that was open before; empty without one.
    QString PreviousName() const;

    /// These take a row of the list; a row that does not exist, such as -1, does nothing.
    /// Opens a database; true when the window is to close.
    bool Open(int row);
    void Compact(int row);
    void Delete(int row);
    void Rename(int row);
    void ChangeOwner(int row);

    /// Asks for a name and makes a database, which is open then; true when the window is to close.
    bool New();
    /// Lets the user pick another folder.
    void SelectPath();
    /// Opens the database that was open before.
    void Cancel();
    /// Ends the program: nothing is opened again.
    void Exit();

    /// A text of the window as it was translated while the database was still open.
    QString Text(const QString &english) const;

private:
    struct Row {
        QString name;
        QString file; ///< the file's name as it is spelt on disk
        QString owner;
        QString schema;
        qint64 bytes = 0;
    };
    void KeepTexts();
    void TestFolder();
    void CloseDatabase();
    /// The end of an attempt to open; true when the window is to close.
    bool Opened(bool success);
    bool Exists(int row) const { return row >= 0 && row < int(rows_.size()); }
    QString PathOf(const Row &row) const;
    QString PathOf(const QString &file) const;
    /// The path for a database of that name: an existing one, whatever its case, else a new one.
    QString PathFor(const QString &name) const;
    void ReadInfos(Row &row);
    QString SizeText(qint64 bytes) const;
    int Compare(const Row &a, const Row &b, int column) const;
    void Sort();
    void RowChanged(int row);
    void SayFault(const QString &fault);
    QString AskForName(const QString &prompt, const QString &title, const QString &preset);
    bool MoveFile(const QString &from, const QString &to);

    Session &session_;
    QHash<QString, QString> texts_;
    QString previous_; ///< path of the database that was open before
    std::vector<Row> rows_;
    int sort_column_ = Name;
    Qt::SortOrder sort_order_ = Qt::AscendingOrder;
};

} // namespace ostrand
