// Which window of the program the user is in.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace ostrand {

/// Notes the windows in the order in which they were used. For a moment after a window was closed none is active, as
/// the desktop has yet to turn to another; what is shown then belongs to the one used before.
class WindowInUse : public QObject {
    Q_OBJECT
public:
    WindowInUse();

    /// The active window, or else the one that the others wait for, or the last used one that is still shown.
    QWidget *Get() const;
    /// Whether the user is in the program: false when he turned to another one.
    bool InForeground() const;

private:
    void Note();

    std::vector<QPointer<QWidget>> used_; ///< the last one last
};

} // namespace ostrand
