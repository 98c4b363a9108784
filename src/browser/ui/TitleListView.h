// listSeries.
#pragma once

#include <QElapsedTimer>
#include <QTreeView>

namespace ostrand {

class Browser;
class TitleDelegate;

/// Shows the browser's title list. What the user does with the rows goes to the routines of the browser; what these
/// select is followed without calling them again.
class TitleListView : public QTreeView {
    Q_OBJECT
public:
    explicit TitleListView(Browser &browser, QWidget *parent = nullptr);
    ~TitleListView() override;

    void SetGridLines(bool shown);

    /// Finds the title that begins with what is typed.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);
    /// A double click on a row, or Enter.
    void RowActivated();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    /// The list is being filled: its rows are hidden and the cursor waits.
    void ShowFilling(bool on);
    void FollowBrowser();
    /// The user drew a column to another width, which it keeps as a part of the list's.
    void KeepWidth(int column, int size);
    /// The user went to a row.
    void Move(int row);
    void FollowView();
    QList<int> SelectedRows() const;
    void ApplyWidths();
    void ShowSortMark();

    Browser &browser_;
    TitleDelegate *delegate_;
    bool following_ = false;
    bool applying_ = false;
    bool moving_ = false; ///< to the row that the user chose
    QString typed_;
    QElapsedTimer last_typed_;
};

} // namespace ostrand
