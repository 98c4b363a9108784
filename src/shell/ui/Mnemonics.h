// Keys for the controls of one window.
#pragma once

#include <QSet>
#include <QString>

namespace ostrand {

/// Gives each caption of a window a key of its own, whatever language it is in: Alt and a letter that the caption
/// holds, the first letters of words first. A caption whose letters are all taken gets none.
class Mnemonics {
public:
    /// The caption with its key marked; an ampersand in it is shown as such.
    QString Mark(const QString &caption);

private:
    QSet<QChar> taken_;
};

} // namespace ostrand
