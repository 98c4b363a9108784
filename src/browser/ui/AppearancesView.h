// listAppearences.
#pragma once

#include "shell/ViewState.h"

#include <QHash>
#include <QTreeView>

namespace ostrand {

class Browser;
class FractionColumns;
class GridDelegate;

/// Its columns change with what it lists; each kind keeps the widths and the order that the user gave them.
class AppearancesView : public QTreeView {
    Q_OBJECT
public:
    explicit AppearancesView(Browser &browser, QWidget *parent = nullptr);

    void SetGridLines(bool shown);
    void TranslateNames();

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);
    /// A double click on a row, or Enter.
    void RowActivated();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void ConnectPanel();
    void TakeColumns();
    void ShowSortMark();
    void Select(int row);

    Browser &browser_;
    FractionColumns *columns_;
    GridDelegate *delegate_;
    PanelMode mode_ = PanelMode::None;
    QHash<int, QList<double>> widths_; ///< by panel mode
    int fills_ = 0;                    ///< how often the rows came anew
    int fills_at_press_ = 0;
    bool placing_ = false;
};

} // namespace ostrand
