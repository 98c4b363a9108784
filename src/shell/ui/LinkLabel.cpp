#include "shell/ui/LinkLabel.h"

#include "shell/LinkTarget.h"

namespace ostrand {

LinkLabel::LinkLabel(Opener &opener, QWidget *parent) : PressedLabel(parent), opener_(opener) {
    connect(this, &PressedLabel::Pressed, this, &LinkLabel::Open);
}

void LinkLabel::SetLink(const QString &link, const QString &shown) {
    link_ = link;
    setText(shown.isEmpty() ? link : shown);
    const bool leads = ReadLink(link).kind != LinkKind::None;
    SetPressable(leads);
    setToolTip(leads ? link : QString());
}

void LinkLabel::Open() {
    OpenLink(opener_, link_);
}

} // namespace ostrand
