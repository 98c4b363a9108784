#include "people/ui/HeadshotView.h"

#include "platform_qt/ScaledPicture.h"

#include <QImageReader>
#include <QPainter>
#include <QPromise>
#include <QResizeEvent>
#include <QScrollBar>
#include <QThreadPool>

namespace ostrand {

namespace {

constexpr int kAnySize = 1 << 20; ///< pixels; no picture is larger

/// Whether the toolkit reads it as large as it is.
bool IsReadable(QSize picture) {
    constexpr qint64 kBytesOfPixel = 4;
    const qint64 megabytes = qint64(picture.width()) * picture.height() * kBytesOfPixel >> 20;
    return QImageReader::allocationLimit() == 0 || megabytes < QImageReader::allocationLimit();
}

QFuture<QImage> ReadBeside(const QString &path, QSize place, PictureGrowth growth) {
    const auto promise = std::make_shared<QPromise<QImage>>();
    QFuture<QImage> future = promise->future();
    promise->start();
    QThreadPool::globalInstance()->start([promise, path, place, growth] {
        promise->addResult(ScaledImage(path, place, 1.0, growth));
        promise->finish();
    });
    return future;
}

} // namespace

HeadshotView::HeadshotView(QWidget *parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::NoFocus);
    connect(&watcher_, &QFutureWatcherBase::finished, this, &HeadshotView::Take);
}

QSize HeadshotView::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 36, fontMetrics().height() * 20};
}

QSize HeadshotView::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 10, fontMetrics().height() * 8};
}

void HeadshotView::ShowFile(const QString &path) {
    path_ = path;
    Load();
}

void HeadshotView::SetNaturalSize(bool on) {
    natural_ = on;
    setFocusPolicy(on ? Qt::StrongFocus : Qt::NoFocus); // for scrolling with the keys
    Load();
}

void HeadshotView::Load() {
    outdated_ = reading_;
    if (path_.isEmpty()) {
        outdated_ = false;
        picture_ = {};
        PlaceScrollBars();
        viewport()->update();
    } else if (!reading_) {
        reading_ = true;
        const QSize place = (QSizeF(maximumViewportSize()) * devicePixelRatioF()).toSize();
        watcher_.setFuture(natural_ && IsReadable(PictureSize(path_))
                               ? ReadBeside(path_, {kAnySize, kAnySize}, PictureGrowth::Never)
                               : ReadBeside(path_, place, PictureGrowth::Fit));
    }
}

void HeadshotView::Take() {
    reading_ = false;
    if (path_.isEmpty()) {
        return;
    }
    if (outdated_) {
        Load();
        return;
    }
    picture_ = QPixmap::fromImage(watcher_.result());
    picture_.setDevicePixelRatio(devicePixelRatioF());
    PlaceScrollBars();
    viewport()->update();
    Q_EMIT Read();
}

void HeadshotView::PlaceScrollBars() {
    const QSize extent = natural_ && HasPicture() ? picture_.deviceIndependentSize().toSize() : QSize(0, 0);
    const QSize room = maximumViewportSize();
    const auto place = [](QScrollBar &bar, int whole, int part) {
        bar.setRange(0, std::max(0, whole - part));
        bar.setPageStep(part);
        bar.setSingleStep(std::max(1, part / 20));
    };
    const bool fits = extent.width() <= room.width() && extent.height() <= room.height();
    place(*horizontalScrollBar(), fits ? 0 : extent.width(), viewport()->width());
    place(*verticalScrollBar(), fits ? 0 : extent.height(), viewport()->height());
}

void HeadshotView::paintEvent(QPaintEvent *) {
    QPainter painter(viewport());
    const QRect room = viewport()->rect();
    if (!HasPicture()) {
        if (!path_.isEmpty() && !reading_) {
            painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, fault_text_);
        }
        return;
    }
    const QSizeF extent = picture_.deviceIndependentSize();
    // Centred where there is room, else scrolled.
    const qreal left = std::max((room.width() - extent.width()) / 2, -qreal(horizontalScrollBar()->value()));
    const qreal top = std::max((room.height() - extent.height()) / 2, -qreal(verticalScrollBar()->value()));
    painter.drawPixmap(QPointF(left, top), picture_);
}

void HeadshotView::resizeEvent(QResizeEvent *event) {
    QAbstractScrollArea::resizeEvent(event);
    PlaceScrollBars();
    if (!natural_) {
        Load();
    }
}

void HeadshotView::scrollContentsBy(int, int) {
    viewport()->update();
}

} // namespace ostrand
