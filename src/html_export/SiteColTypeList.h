// The item model of the collection types of the export.
#pragma once

#include "html_export/SiteOptions.h"

#include <QAbstractListModel>

namespace ostrand {

/// Rows with a check box each, in the order of the site's tabs.
class SiteColTypeList : public QAbstractListModel {
    Q_OBJECT
public:
    SiteColTypeList(Session &session, const std::vector<SiteColType> &types, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Whether a row can go up (-1) or down (1).
    bool CanMove(int row, int by) const;
    /// Moves a row by one; nothing happens where it cannot.
    void Move(int row, int by);

    /// All names as the collection has them.
    QStringList Order() const;
    /// Those without a check.
    QStringList Excluded() const;

private:
    struct Row {
        SiteColType type;
        QString shown;
    };
    std::vector<Row> rows_;
};

} // namespace ostrand
