// FrameAwards: the awards of a person.
#pragma once

#include <QTreeView>

class QLabel;

namespace ostrand {

class Browser;

/// labelAwards above treeAwards.
class AwardsFrame : public QWidget {
    Q_OBJECT
public:
    explicit AwardsFrame(Browser &browser, QWidget *parent = nullptr);

    void TranslateNames();
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);

private:
    void GoToMovie(const QModelIndex &index);
    bool HandleKey(const QKeyEvent &event);

    Browser &browser_;
    QLabel *labelAwards_;
    QTreeView *treeAwards_;
};

} // namespace ostrand
