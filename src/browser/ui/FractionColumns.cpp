#include "browser/ui/FractionColumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeView>

namespace ostrand {

FractionColumns::FractionColumns(QTreeView *list) : QObject(list), list_(list) {
    list_->header()->setStretchLastSection(false);
    list_->header()->setMinimumSectionSize(0);
    list_->header()->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->viewport()->installEventFilter(this);
    connect(list_->header(), &QHeaderView::sectionResized, this, [this](int column, int, int size) {
        const int width = list_->viewport()->width();
        if (!applying_ && size > 0 && width > 0 && column < fractions_.size()) {
            fractions_[column] = double(size) / width;
            whole_ = column == whole_ ? -1 : whole_;
        }
    });
}

void FractionColumns::Set(const QList<double> &fractions) {
    fractions_ = fractions;
    Apply();
}

bool FractionColumns::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize) {
        Apply();
    }
    return QObject::eventFilter(watched, event);
}

void FractionColumns::Apply() {
    const QScopedValueRollback<bool> apply(applying_, true);
    const int width = list_->viewport()->width();
    for (int column = 0; column < list_->header()->count() && column < fractions_.size(); ++column) {
        list_->setColumnHidden(column, fractions_[column] == 0);
        if (fractions_[column] > 0) {
            list_->setColumnWidth(column, int(fractions_[column] * width));
        }
    }
    if (whole_ > 0 && whole_ < list_->header()->count()) {
        const int lacking = list_->header()->sectionSizeHint(whole_) - list_->columnWidth(whole_);
        const int before = list_->columnWidth(whole_ - 1);
        if (lacking > 0 && lacking < before) {
            list_->setColumnWidth(whole_ - 1, before - lacking);
            list_->setColumnWidth(whole_, list_->columnWidth(whole_) + lacking);
        }
    }
}

void PlaceColumns(QTreeView &list, const QList<int> &positions) {
    QHeaderView *header = list.header();
    for (int position = 1; position <= positions.size(); ++position) {
        const int column = int(positions.indexOf(position));
        if (column >= 0 && column < header->count()) {
            header->moveSection(header->visualIndex(column), position - 1);
        }
    }
}

QList<int> ColumnPlaces(const QTreeView &list, qsizetype count) {
    QList<int> places;
    for (int column = 0; column < count; ++column) {
        places += list.header()->visualIndex(column) + 1;
    }
    return places;
}

} // namespace ostrand
