// The schema that a database of an earlier version had, told by undoing the changes from the newest back.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace ostrand {

namespace sql {
class Database;
}

class HistoricSchema {
public:
    explicit HistoricSchema(int version);

    /// Makes the tables and indexes, and the row that tells the version where that age has one.
    void Build(sql::Database &database) const;
    bool Has(const QString &table) const { return tables_.contains(table); }
    /// An INSERT of those values whose columns the table has in this version; empty where it lacks the table.
    QString Insert(const QString &table, const QList<std::pair<QString, QString>> &values) const;

private:
    struct Table {
        QStringList columns; ///< as CREATE TABLE tells them
        QString key;         ///< of a PRIMARY KEY at the end
    };

    void Undo(int bound);
    void UndoNewest(int bound);
    void UndoFlags();
    void UndoPeople(int bound);
    void UndoRenewed(int bound);
    void UndoOldest(int bound);
    void Add(const QString &table, const QString &columns);
    void DropColumns(const QString &table, const QStringList &columns);
    void Retype(const QString &table, const QStringList &columns, const QString &definition);

    int version_;
    QStringList order_;
    QMap<QString, Table> tables_;
    QStringList indexes_;
};

} // namespace ostrand
