// A part of the main window that nothing is shown in yet.
#pragma once

#include <QFrame>

namespace ostrand {

inline QFrame *EmptyPlace(const QString &name) {
    auto *frame = new QFrame;
    frame->setObjectName(name);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return frame;
}

} // namespace ostrand
