#include "platform_qt/ThemedIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// The drawings lie in a static library, which keeps them only when they are asked for. Outside any namespace.
static void KeepIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Draws an SVG anew for each size. Drawings that say "currentColor" take the palette's colour at that moment, so that
/// nothing has to be told when the palette changes.
class DrawingEngine : public QIconEngine {
public:
    explicit DrawingEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        QByteArray drawing = drawing_;
        QSvgRenderer renderer(drawing.replace("currentColor", Colour(mode).name().toLatin1()));
        painter->setRenderHint(QPainter::Antialiasing);
        renderer.render(painter, SquareIn(rect));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new DrawingEngine(drawing_); }

private:
    static QColor Colour(QIcon::Mode mode) {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        default:
            return palette.color(QPalette::Active, QPalette::ButtonText);
        }
    }

    static QRectF SquareIn(const QRect &rect) {
        const qreal side = std::min(rect.width(), rect.height());
        return {rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side, side};
    }

    QByteArray drawing_;
};

QIcon Drawing(const QString &name) {
    KeepIcons();
    QFile file(u":/icons/"_s + name + u".svg"_s);
    return file.open(QIODevice::ReadOnly) ? QIcon(new DrawingEngine(file.readAll())) : QIcon();
}

} // namespace

QIcon ThemedIcon(const QString &name) {
    return Drawing(name);
}

QIcon ProgramIcon() {
    return Drawing(u"ostrand"_s);
}

} // namespace ostrand
