#include "browser/ui/ActorView.h"

#include "browser/Browser.h"
#include "browser/ui/Guarded.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace ostrand {

namespace {

constexpr int kEmptyLines = 4;

} // namespace

ActorView::ActorView(Browser &browser, QWidget *parent) : QWidget(parent), browser_(browser) {
    setObjectName(QStringLiteral("picActor"));
    setFocusPolicy(Qt::StrongFocus);
    connect(&browser_.credits.picActor, &HeadshotViewer::PictureChanged, this, &ActorView::ShowPicture);
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
    Q_EMIT PictureShown();
}

PictureGrowth ActorView::Growth() const {
    return browser_.session.view.DoNotResizeHeadshots ? PictureGrowth::Never : PictureGrowth::Fit;
}

void ActorView::Load() {
    picture_ = path_.isEmpty() ? QPixmap() : ScaledPicture(path_, size(), devicePixelRatioF(), Growth());
    update();
}

int ActorView::HeightAt(int width) const {
    const QSize natural = PictureSize(path_);
    const bool broken = picture_.isNull() && !size().isEmpty();
    if (natural.isEmpty() || broken) {
        return fontMetrics().height() * kEmptyLines; // to be clicked for an alternate
    }
    const int shown_width = Growth() == PictureGrowth::Never ? std::min(width, natural.width()) : width;
    return shown_width * natural.height() / natural.width();
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
