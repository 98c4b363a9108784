#include "browser/ui/KeptPerson.h"

#include "browser/CreditsPanel.h"

#include <QAbstractItemView>
#include <QScopedValueRollback>

namespace ostrand {

KeptPerson::KeptPerson(const CreditsPanel &panel, QAbstractItemView &view, int name_role, int position_role) :
    QObject(&view), panel_(panel), view_(view), name_role_(name_role), position_role_(position_role) {
    connect(view.model(), &QAbstractItemModel::modelAboutToBeReset, this, &KeptPerson::Remember);
    connect(view.model(), &QAbstractItemModel::modelReset, this, &KeptPerson::Restore);
}

void KeptPerson::Remember() {
    const QModelIndex current = view_.currentIndex();
    const bool selected = panel_.refilling && current.isValid() && view_.selectionModel()->isSelected(current);
    name_ = selected ? current.data(name_role_).toString() : QString();
    position_ = current.data(position_role_).toInt();
}

void KeptPerson::Restore() {
    const QModelIndex found = name_.isEmpty() ? QModelIndex() : Find({});
    name_.clear();
    if (found.isValid()) {
        const QScopedValueRollback<bool> restore(restoring_, true);
        view_.setCurrentIndex(found);
    }
}

QModelIndex KeptPerson::Find(const QModelIndex &parent) const {
    const QAbstractItemModel &model = *view_.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data(position_role_).toInt() == position_ && index.data(name_role_).toString() == name_) {
            return index;
        }
        if (const QModelIndex below = Find(index); below.isValid()) {
            return below;
        }
    }
    return {};
}

} // namespace ostrand
