// ListCast and ListCrew.
#pragma once

#include <QTreeView>

namespace ostrand {

class Browser;
class CreditList;
class FractionColumns;
class KeptPerson;
class PersonDelegate;

class CreditListView : public QTreeView {
    Q_OBJECT
public:
    /// `places` holds where the user moved the columns to.
    CreditListView(Browser &browser, CreditList &credits, const QString &name, QList<int> &places,
                   QWidget *parent = nullptr);

    void SetGridLines(bool shown);

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);

protected:
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void ChoosePerson(const QModelIndex &index);
    void FindPerson();
    void ApplyPlaces();
    void ShowSortMark();
    /// Captions take the whole row, which they can where the names stand first.
    void SpanCaptions();

    Browser &browser_;
    CreditList &credits_;
    QList<int> &places_;
    PersonDelegate *delegate_;
    KeptPerson *kept_ = nullptr;
    bool placing_ = false;
};

} // namespace ostrand
