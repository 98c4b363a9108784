// FrameCrew: the crew as a list or as a tree.
#pragma once

#include <QTreeView>

class QStackedLayout;

namespace ostrand {

class Browser;
class CreditListView;
class KeptPerson;

/// treeCrew.
class CrewTreeView : public QTreeView {
    Q_OBJECT
public:
    explicit CrewTreeView(Browser &browser, QWidget *parent = nullptr);

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
    /// False where a node is no person.
    bool FindPerson();

    Browser &browser_;
    KeptPerson *kept_ = nullptr;
};

class CrewFrame : public QWidget {
    Q_OBJECT
public:
    explicit CrewFrame(Browser &browser, QWidget *parent = nullptr);

    void SetGridLines(bool shown);
    void TranslateNames();

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);

private:
    void ShowCrewView();

    Browser &browser_;
    CreditListView *ListCrew_;
    CrewTreeView *treeCrew_;
    QStackedLayout *views_;
};

} // namespace ostrand
