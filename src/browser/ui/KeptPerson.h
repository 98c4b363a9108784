// The row of a person that stays selected while the same credits come anew.
#pragma once

#include <QObject>
#include <QString>

class QAbstractItemView;
class QModelIndex;

namespace ostrand {

class CreditsPanel;

/// Selects the credit of a list or a tree again after its model was filled anew. To be made behind whatever else
/// follows the model.
class KeptPerson : public QObject {
    Q_OBJECT
public:
    /// The roles in which the view's rows tell the name and the position.
    KeptPerson(const CreditsPanel &panel, QAbstractItemView &view, int name_role, int position_role);
    /// What is being selected now was selected before.
    bool IsRestoring() const { return restoring_; }

private:
    void Remember();
    void Restore();
    QModelIndex Find(const QModelIndex &parent) const;

    const CreditsPanel &panel_;
    QAbstractItemView &view_;
    const int name_role_;
    const int position_role_;
    QString name_;
    int position_ = 0;
    bool restoring_ = false;
};

} // namespace ostrand
