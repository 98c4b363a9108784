// Tick boxes that can be seen on dark ground.
#pragma once

#include <QProxyStyle>

namespace ostrand {

/// The desktop's style. On dark ground its tick boxes and option buttons get an outline between text and ground, since
/// common styles draw theirs darker than the ground.
class OutlinedTicks : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};

} // namespace ostrand
