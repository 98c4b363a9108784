#include "browser/ui/PictureView.h"

#include "shell/ui/FocusFrame.h"

#include <QDateTime>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QPromise>
#include <QStyle>
#include <QThreadPool>

namespace ostrand {

namespace {

constexpr int kCachedPictures = 8;

/// Differs from that of another content. Two files may change places, and keep the times of their contents then.
QString VersionOf(const QString &path) {
    const QFileInfo file(path);
    return QStringLiteral("%1/%2/%3")
        .arg(file.lastModified().toMSecsSinceEpoch())
        .arg(file.metadataChangeTime().toMSecsSinceEpoch())
        .arg(file.size());
}

} // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent), cache_(kCachedPictures) {
    connect(&watcher_, &QFutureWatcher<QImage>::finished, this, &PictureView::Take);
}

PictureView::~PictureView() {
    Stop();
}

void PictureView::ShowFile(const QString &path) {
    path_ = path;
    natural_ = PictureSize(path);
    version_ = path.isEmpty() ? QString() : VersionOf(path);
    Load();
    if (const QPixmap *known = cache_.object(wanted_); known && known->isNull()) {
        natural_ = {}; // it was found out before
    }
    setFocusPolicy(path.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

void PictureView::SetGrowth(PictureGrowth growth) {
    growth_ = growth;
    Load();
}

/// What is being read is for nothing.
void PictureView::Stop() {
    watcher_.cancel();
    watcher_.setFuture({});
}

void PictureView::Load() {
    const qreal ratio = devicePixelRatioF();
    const QSize device = (QSizeF(size()) * ratio).toSize();
    const QString wanted =
        QStringLiteral("%1x%2x%3x%4|").arg(device.width()).arg(device.height()).arg(ratio).arg(int(growth_)) +
        version_ + u'|' + path_;
    if (wanted == wanted_) {
        return;
    }
    Stop();
    wanted_ = wanted;
    const QPixmap *known = cache_.object(wanted_);
    if (known || !HasPicture() || device.isEmpty()) {
        picture_ = known ? *known : QPixmap();
        update();
        return;
    }
    auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    watcher_.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, path = path_, place = size(), ratio, growth = growth_] {
        if (!promise->isCanceled()) {
            promise->addResult(ScaledImage(path, place, ratio, growth));
        }
        promise->finish();
    });
}

void PictureView::Take() {
    if (watcher_.isCanceled() || watcher_.future().resultCount() == 0) {
        return;
    }
    picture_ = QPixmap::fromImage(watcher_.result());
    if (picture_.isNull()) {
        natural_ = {}; // the head promised more than there is
    }
    cache_.insert(wanted_, new QPixmap(picture_));
    update();
    if (natural_.isEmpty()) {
        Q_EMIT PictureFailed();
    }
}

QSizeF PictureView::DrawnSize() const {
    const QSizeF sharp = picture_.deviceIndependentSize();
    const QSizeF wanted = sharp.scaled(size(), Qt::KeepAspectRatio);
    const QSizeF room = wanted - sharp;
    const bool fits = std::abs(room.width()) < 1 && std::abs(room.height()) < 1;
    const bool small = growth_ == PictureGrowth::Never && room.width() >= 0 && room.height() >= 0;
    return fits || small ? sharp : wanted; // a picture for the size of before stands in
}

void PictureView::paintEvent(QPaintEvent *) {
    Load(); // where the window came to a screen with other pixels
    QPainter painter(this);
    if (!picture_.isNull()) {
        const QSizeF extent = DrawnSize();
        painter.setRenderHint(QPainter::SmoothPixmapTransform, extent != picture_.deviceIndependentSize());
        painter.drawPixmap(QRectF(QPointF((width() - extent.width()) / 2, 0), extent), picture_, picture_.rect());
    }
    DrawFocusFrame(*this, painter);
}

void PictureView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Load();
}

void PictureView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        Q_EMIT Clicked();
    }
}

void PictureView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT Clicked();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace ostrand
