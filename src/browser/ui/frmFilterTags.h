// The window that filters the titles by their tags.
#pragma once

#include "browser/TagTree.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QLabel;
class QRadioButton;
class QTreeView;

namespace ostrand {

class Browser;

/// Lists the titles anew with each check and each click. What is checked goes with the window, the list stays. It is of
/// no use in TV view, and waits there.
class frmFilterTags : public QDialog {
    Q_OBJECT
public:
    explicit frmFilterTags(Browser &browser, QWidget *parent = nullptr);

    /// Reads the tags where they may have changed, and keeps the checks of those that are still there; all are read,
    /// and none is checked, when they belong to another collection.
    void LoadTags(bool other_collection);
    /// Rebuilds listSeries: by the tag of a node alone when `single`, else by all checked ones.
    void UpdateCollectionList(const QModelIndex &node, bool single);

    /// Runs what may lead to another title; empty runs it as it is.
    std::function<void(const std::function<void()> &action)> perform;

protected:
    void changeEvent(QEvent *event) override;

private:
    void MakeControls();
    void Compose();
    void ConnectControls();
    /// Shows what changed among the tags with the nodes that were closed, and on the node that was current.
    void FollowTags();
    /// Texts in the present language, and what can be used.
    void Refresh();

    Browser &browser_;
    TagTree tags_;
    QTreeView *treeTags_;
    QLabel *labelNoTags_;
    QRadioButton *opOR_;
    QRadioButton *opAND_;
    QCheckBox *checkNOT_;
};

} // namespace ostrand
