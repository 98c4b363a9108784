#include "browser/ui/ActorView.h"

#include "browser/Browser.h"
#include "browser/ui/Guarded.h"
#include "platform_qt/ScaledPicture.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace ostrand {

ActorView::ActorView(Browser &browser, QWidget *parent) : QWidget(parent), browser_(browser) {
    setObjectName(QStringLiteral("picActor"));
    setFocusPolicy(Qt::StrongFocus);
    connect(&browser_.credits.picActor, &ActorPicture::PictureChanged, this, &ActorView::ShowPicture);
    connect(&browser_, &Browser::SettingsChanged, this, &ActorView::Load);
    TranslateNames();
    ShowPicture();
}

void ActorView::TranslateNames() {
    setAccessibleName(Translate(browser_.session, QStringLiteral("Headshot")));
    setToolTip(Translate(browser_.session, QStringLiteral("Click to see the next picture")));
}

void ActorView::ShowPicture() {
    path_ = browser_.credits.picActor.Picture();
    setVisible(browser_.credits.picActor.HasPictures());
    setAccessibleDescription(browser_.credits.selected_name);
    Load();
}

void ActorView::Load() {
    const PictureGrowth growth = browser_.session.view.DoNotResizeHeadshots ? PictureGrowth::Never : PictureGrowth::Fit;
    picture_ = path_.isEmpty() ? QPixmap() : ScaledPicture(path_, size(), devicePixelRatioF(), growth);
    update();
}

void ActorView::ShowNext() {
    Guarded(browser_.session, [this] { browser_.credits.picActor.AlternateHeadshot(); });
}

void ActorView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (!picture_.isNull()) {
        const QSizeF extent = picture_.deviceIndependentSize();
        painter.drawPixmap(QPointF((width() - extent.width()) / 2, 0), picture_);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ActorView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Load();
}

void ActorView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        ShowNext();
    }
}

void ActorView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        ShowNext();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ActorView::contextMenuEvent(QContextMenuEvent *event) {
    Q_EMIT MenuWanted(event->reason() == QContextMenuEvent::Keyboard ? mapToGlobal(rect().center())
                                                                     : event->globalPos());
}

} // namespace ostrand
