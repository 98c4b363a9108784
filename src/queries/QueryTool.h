// The query tool without its window: it runs statements of the user and keeps saved ones.
#pragma once

#include "queries/QueryResult.h"
#include "sql/SqlError.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace ostrand {

struct Session;

/// The members that a window shows keep the names of its controls; a window reads them anew behind each call. Faults
/// of the database stand in `textError`.
class QueryTool {
public:
    explicit QueryTool(Session &session);

    QueryResult listQueryResult;
    QString textError;
    QStringList listQueries;
    /// Title of the window, with the count of records of the last query.
    QString caption;
    /// Where in the text that was sent the fault was noticed, in characters from 0; -1 where that cannot be told.
    int error_position = -1;
    /// What a statement without rows did; empty otherwise.
    QString labelInfo;

    /// Reads the names of the saved queries.
    void UpdateQueryList();
    /// Asks for the variables of a statement and runs it. `col_type` is the type that OSV_CurrentColType stands for.
    void SendQuery(const QString &text, const QString &col_type);
    /// The tables with their fields, and how values are written.
    void ListTables();
    /// Asks for a name and keeps the statement under it. The name; empty when nothing was kept.
    QString SaveQuery(const QString &statement);
    /// A saved statement; empty for an unknown name.
    QString SavedStatement(const QString &name);
    /// Asks and deletes; false when it stays.
    bool DeleteQuery(const QString &name);
    /// Asks for a file and a divider and writes the rows as text.
    void SaveResult();
    /// Another database was opened, or none is open any more.
    void DatabaseChanged();
    /// Gives what is shown in the present language.
    void TranslateTexts();
    /// What "Create Filter" puts in: the columns that the title list needs.
    static QString FilterTemplate();

private:
    template <typename Action>
    bool Try(Action action);
    bool RequireDatabase();
    void Run(const QString &statement);
    void TellFault(const sql::SqlError &error, const QString &statement);
    void ShowTables();
    void ShowUsage();
    void ShowCounts();
    void ShowFault();
    QString Translated(const char16_t *english) const;

    struct Fault {
        QString text;
        QString statement; ///< empty where the place in it says nothing
        int position = -1;
    };

    Session &session_;
    int records_ = -1; ///< of the last query; -1 for none
    int changed_ = -1; ///< rows that the last statement changed; -1 where it was none that does
    bool tables_listed_ = false;
    bool usage_shown_ = false;
    std::optional<Fault> fault_;
};

} // namespace ostrand
