// How persons and captions look in the credits.
#pragma once

#include "browser/ui/GridDelegate.h"

namespace ostrand {

/// Captions are bold; persons with a headshot stand in the colour of links.
class PersonDelegate : public GridDelegate {
    Q_OBJECT
public:
    /// The roles by which the model tells both.
    PersonDelegate(int caption_role, int headshot_role, QObject *parent) :
        GridDelegate(parent), caption_role_(caption_role), headshot_role_(headshot_role) {}

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    int caption_role_;
    int headshot_role_;
};

} // namespace ostrand
