#include "browser/ui/FieldText.h"

#include "shell/ui/FocusFrame.h"

#include <QKeyEvent>
#include <QPainter>

namespace ostrand {

bool AsksForChange(const QKeyEvent &event) {
    const bool key = event.key() == Qt::Key_F2 || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return key && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

FieldText::FieldText(const QString &name, QWidget *parent) : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setFocusPolicy(Qt::StrongFocus); // behind the flags, which choose another
    setContextMenuPolicy(Qt::CustomContextMenu);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
}

bool FieldText::event(QEvent *event) {
    // F2 is also the key of a menu entry, which stands back while a field has the focus.
    if (event->type() == QEvent::ShortcutOverride && AsksForChange(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QLabel::event(event);
}

void FieldText::keyPressEvent(QKeyEvent *event) {
    if (AsksForChange(*event)) {
        event->accept();
        Q_EMIT ChangeWanted();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void FieldText::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        event->accept();
        Q_EMIT ChangeWanted();
    } else {
        QLabel::mouseDoubleClickEvent(event);
    }
}

void FieldText::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    DrawFocusFrame(*this, painter);
}

} // namespace ostrand
