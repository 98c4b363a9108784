// A window with one list.
#pragma once

#include "shell/ListTable.h"

#include <QDialog>

class QAction;
class QTableView;

namespace ostrand {

struct Session;

/// What a list window shows: a model, its caption, and what its rows stand for.
struct ListViewContent {
    std::unique_ptr<QAbstractItemModel> model;
    QString caption;
    /// The key and kind of a row; empty when no row leads anywhere.
    std::function<std::pair<QString, ListRowKind>(int row)> target;
    /// The same in the present language; empty where there is but one.
    std::function<ListViewContent()> again = {};
};
ListViewContent ContentOf(std::unique_ptr<ListTable> table);

/// Stands beside the other windows and is destroyed when it closes.
class frmListView : public QDialog {
    Q_OBJECT
public:
    frmListView(Session &session, ListViewContent content, QWidget *parent = nullptr);

    /// Told the key and kind of a row on a double click or Enter, if the row leads somewhere.
    std::function<void(const QString &key, ListRowKind kind)> title_chosen;

    /// The header and the selected rows, or all rows when no more than one is selected, as lines of cells separated by
    /// tabs.
    QString SelectedText() const;
    /// The language changed. The order of the rows and the one that is current stay.
    void ShowAgain();

private:
    void BuildList();
    void ShowContent();
    void AddActions();
    void TranslateActions();
    void SetGridLines(bool on);
    void Choose(const QModelIndex &index);

    Session &session_;
    ListViewContent content_;
    QTableView *MultiList_;
    QAction *copy_ = nullptr;
    QAction *grid_lines_ = nullptr;
};

} // namespace ostrand
