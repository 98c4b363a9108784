// A list of values within a panel.
#pragma once

#include <QTreeView>

namespace ostrand {

class Browser;
class ListTable;

/// Shows a table of texts: a click on a header sorts it, Ctrl+C copies it. New rows stand in the order they come in.
class PanelList : public QTreeView {
    Q_OBJECT
public:
    PanelList(Browser &browser, ListTable &table, const QString &name, QWidget *parent = nullptr);
    /// The texts of its menu, and the name for those who do not see the list.
    void TranslateNames(const QString &name, const QString &copy, const QString &list_titles, const QString &lock);

    /// The first text of the selected row as it is shown, and what it stands for in the database.
    QString SelectedText() const;
    QString SelectedKey() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A click on a row, Enter, or the entry of the menu.
    void Chosen();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void AddActions();
    /// The menu is about to open: the lock of the values shows its state.
    void PrepareMenu();
    void SortByHeader(int column);
    void ApplyWidths();
    int HeightOf(int rows) const;

    Browser &browser_;
    ListTable &table_;
    QAction *copy_;
    QAction *list_titles_;
    QAction *lock_;
    int sorted_by_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};

} // namespace ostrand
