// A list whose rows can be ticked.
#pragma once

#include <QAbstractListModel>

namespace ostrand {

struct CheckRow {
    QString key;  ///< what the database calls it
    QString text; ///< as shown
    bool checked = false;
};

/// A tick is a wish: the model tells of it, and whoever fills it shows what came of it.
class CheckList : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Tells of the tick and changes nothing.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    void Assign(std::vector<CheckRow> rows);
    const std::vector<CheckRow> &Rows() const { return rows_; }
    /// Ticks or unticks the row with that key; nothing for an unknown one.
    void SetChecked(const QString &key, bool checked);
    /// The keys of the ticked rows, in the order of the rows.
    QStringList Checked() const;

Q_SIGNALS:
    void Ticked(const QString &key, bool checked);

private:
    std::vector<CheckRow> rows_;
};

} // namespace ostrand
