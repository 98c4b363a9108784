// Renders an SVG drawing to a picture of the kind that its name ends in, square without a height:
// render_icon DRAWING.svg PICTURE WIDTH [HEIGHT]

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const int width = arguments.value(3).toInt();
    const int height = arguments.size() > 4 ? arguments[4].toInt() : width;
    QSvgRenderer renderer(arguments.value(1));
    if (width <= 0 || height <= 0 || !renderer.isValid()) {
        qWarning("usage: render_icon DRAWING.svg PICTURE WIDTH [HEIGHT]");
        return 1;
    }
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(arguments.value(2)) ? 0 : 1;
}
