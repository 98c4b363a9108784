// A text that acts as a link.
#pragma once

#include "shell/ui/PressedLabel.h"

namespace ostrand {

class Opener;

/// Opens what its link leads to (shell/LinkTarget.h) when it is pressed. Looks like a link only while it is one.
class LinkLabel : public PressedLabel {
    Q_OBJECT
public:
    explicit LinkLabel(Opener &opener, QWidget *parent = nullptr);
    /// `shown` stands for the link on the screen; the link itself does when it is empty.
    void SetLink(const QString &link, const QString &shown = {});
    const QString &Link() const { return link_; }
    void Open();

private:
    Opener &opener_;
    QString link_;
};

} // namespace ostrand
