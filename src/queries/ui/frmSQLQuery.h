// The window of the query tool.
#pragma once

#include "queries/QueryTool.h"

#include <QWidget>

class QAction;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QSplitter;
class QTableView;

namespace ostrand {

class Browser;

/// Statements on the left above, saved ones beside them, faults and results below. Closing hides it, with all that
/// stands in it.
class frmSQLQuery : public QWidget {
    Q_OBJECT
public:
    explicit frmSQLQuery(Browser &browser, QWidget *parent = nullptr);

    /// Runs what may take long or lead to another title; empty runs it as it is.
    std::function<void(const std::function<void()> &action)> perform;
    /// Puts rows of the result on paper.
    std::function<void(const QAbstractItemModel &list, const QList<int> &rows)> print;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLabel *MakeLabel(QWidget &buddy);
    QWidget *MakeQueries();
    QWidget *MakeStatement();
    QWidget *MakeResult();
    QPushButton *MakeButton(const char16_t *name);
    /// Gives the controls their texts in the present language.
    void TranslateTexts();
    void TranslateLists();
    void BuildResultList();
    void AddResultActions();
    void AddKeys();
    void SetFixedFont(QWidget &control) const;

    void Do(const std::function<void()> &action);
    void SendQuery();
    void LoadSelected();
    void DeleteSelected();
    void Save();
    void ChooseRow(const QModelIndex &index);
    /// Shows what the tool tells.
    void Refresh();
    void ShowQueries();
    /// Leads to the place of the fault and underlines what stands there.
    void ShowFault();
    void ResizeListQueryResultColumns();
    QList<int> RowsToTake() const;
    QString Text(const char16_t *english) const;

    Browser &browser_;
    QueryTool tool_;
    QListWidget *listQueries_ = nullptr;
    QPlainTextEdit *textQuery_ = nullptr;
    QPlainTextEdit *textError_ = nullptr;
    QTableView *listQueryResult_ = nullptr;
    QLabel *labelInfo_ = nullptr;
    QLabel *labelQuery_ = nullptr;
    QLabel *labelQueries_ = nullptr;
    QAction *mDeleteQuery_ = nullptr;
};

} // namespace ostrand
