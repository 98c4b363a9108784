#include "shell/ui/frmSplash.h"

#include "shell/ProgramVersion.h"
#include "shell/Session.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The colours of the picture, taken from the palette: the selection's hue over a dark or a light ground.
struct SplashColors {
    explicit SplashColors(const QPalette &palette) {
        const bool dark = palette.color(QPalette::Window).lightness() < 128;
        const QColor accent = palette.color(QPalette::Highlight);
        const int hue = std::max(accent.hslHue(), 0);
        const int saturation = std::clamp(accent.hslSaturation(), 60, 190);
        top = QColor::fromHsl(hue, saturation, dark ? 46 : 225);
        bottom = QColor::fromHsl(hue, saturation, dark ? 20 : 178);
        line = QColor::fromHsl(hue, saturation, dark ? 110 : 90);
        text = dark ? QColor(Qt::white) : QColor::fromHsl(hue, saturation, 40);
    }
    QColor top, bottom, line, text;
};

QColor Faint(QColor color, double alpha) {
    color.setAlphaF(float(alpha));
    return color;
}

/// A disc: a ring with grooves and a sheen.
void PaintDisc(QPainter &painter, QPointF centre, double radius, const SplashColors &colors) {
    QPainterPath ring;
    ring.addEllipse(centre, radius, radius);
    ring.addEllipse(centre, radius * 0.16, radius * 0.16);
    QConicalGradient sheen(centre, 35);
    for (const auto &[at, alpha] :
         {std::pair(0.0, 0.10), {0.12, 0.42}, {0.24, 0.10}, {0.5, 0.16}, {0.62, 0.42}, {0.74, 0.10}, {1.0, 0.10}}) {
        sheen.setColorAt(at, Faint(colors.line, alpha));
    }
    painter.fillPath(ring, sheen);
    painter.setBrush(Qt::NoBrush);
    for (const double groove : {1.0, 0.86, 0.72, 0.58, 0.44, 0.30, 0.16}) {
        painter.setPen(QPen(Faint(colors.line, groove == 1.0 ? 0.55 : 0.22), 1));
        painter.drawEllipse(centre, radius * groove, radius * groove);
    }
}

/// The holes along a strip of film.
void PaintFilmEdge(QPainter &painter, const QRectF &strip, const SplashColors &colors) {
    painter.fillRect(strip, Faint(colors.line, 0.18));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint(colors.top, 0.9));
    const double side = strip.width() * 0.46;
    for (double y = strip.top() + side / 2; y < strip.bottom(); y += side * 1.9) {
        painter.drawRoundedRect(QRectF(strip.center().x() - side / 2, y, side, side * 1.15), side / 4, side / 4);
    }
}

} // namespace

frmSplash::frmSplash(Session &session) :
    QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
    labelTitle_(AddLabel(u"labelTitle"_s, QString::fromUtf16(kProgramTitle), 3.2, true)),
    labelBeta_(AddLabel(u"labelBeta"_s, u"BETA"_s, 1.0, true)),
    labelLoading_(AddLabel(u"labelLoading"_s, Translate(session, u"Loading..."_s), 1.15, false)),
    lblVersion_(AddLabel(u"lblVersion"_s, SplashVersionText(session), 1.0, false)),
    lblBuild_(AddLabel(u"lblBuild"_s, SplashBuildText(session), 1.0, false)) {
    setObjectName(u"frmSplash"_s);
    setWindowTitle(QString::fromUtf16(kProgramTitle));
    Arrange();
}

QLabel *frmSplash::AddLabel(const QString &name, const QString &text, double size, bool bold) {
    auto *label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    QFont scaled = font();
    scaled.setPointSizeF(scaled.pointSizeF() * size);
    scaled.setBold(bold);
    label->setFont(scaled);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, SplashColors(palette()).text);
    label->setPalette(colors);
    return label;
}

void frmSplash::Arrange() {
    const int line = fontMetrics().lineSpacing();
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(line * 5, line * 2, line * 2, line + line / 2);
    layout->setVerticalSpacing(line / 4);
    layout->addWidget(labelBeta_, 0, 1, Qt::AlignRight);
    layout->addWidget(labelTitle_, 2, 0, 1, 2);
    layout->addWidget(lblVersion_, 3, 0, 1, 2);
    layout->addWidget(lblBuild_, 4, 0, 1, 2);
    layout->addWidget(labelLoading_, 6, 0, 1, 2);
    layout->setRowStretch(1, 1);
    layout->setRowStretch(5, 2);
    resize(QSize(line * 30, line * 18).expandedTo(minimumSizeHint()));
}

void frmSplash::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (const QScreen *on = screen()) {
        move(on->availableGeometry().center() - rect().center());
    }
}

void frmSplash::paintEvent(QPaintEvent *) {
    const SplashColors colors(palette());
    const QRectF area = rect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(area.topLeft(), area.bottomRight());
    ground.setColorAt(0, colors.top);
    ground.setColorAt(1, colors.bottom);
    painter.fillRect(area, ground);
    PaintDisc(painter, {area.width() * 0.93, area.height() * 0.78}, area.height() * 0.5, colors);
    const double strip = fontMetrics().lineSpacing() * 2.0;
    PaintFilmEdge(painter, QRectF(strip / 2, 0, strip, area.height()), colors);
    painter.setPen(QPen(Faint(colors.line, 0.8), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
}

void frmSplash::mousePressEvent(QMouseEvent *) {
    close();
}

void frmSplash::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace ostrand
