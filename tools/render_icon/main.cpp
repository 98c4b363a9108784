// Renders an SVG drawing to a square PNG: render_icon DRAWING.svg PICTURE.png SIZE

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const int size = arguments.value(3).toInt();
    QSvgRenderer renderer(arguments.value(1));
    if (size <= 0 || !renderer.isValid()) {
        qWarning("usage: render_icon DRAWING.svg PICTURE.png SIZE");
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(arguments.value(2)) ? 0 : 1;
}
