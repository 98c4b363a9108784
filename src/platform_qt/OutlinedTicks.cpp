#include "platform_qt/OutlinedTicks.h"

#include <QPainter>
#include <QStyleOption>

namespace ostrand {

namespace {

QColor Between(const QColor &left, const QColor &right) {
    return QColor((left.red() + right.red()) / 2, (left.green() + right.green()) / 2, (left.blue() + right.blue()) / 2);
}

} // namespace

void OutlinedTicks::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool box = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if (!box && element != PE_IndicatorRadioButton) {
        return;
    }
    const QColor ground = option->palette.color(QPalette::Base);
    const QColor text = option->palette.color(QPalette::Text);
    if (text.lightness() <= ground.lightness()) {
        return;
    }
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(Between(text, ground));
    const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (box) {
        painter->drawRect(outline);
    } else {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(outline);
    }
    painter->restore();
}

} // namespace ostrand
