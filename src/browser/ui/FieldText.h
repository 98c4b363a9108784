// A text of the panels that the user can act on.
#pragma once

#include <QLabel>

namespace ostrand {

/// Whether a key on a control of a field asks for another value: F2 or Enter.
bool AsksForChange(const QKeyEvent &event);

/// Shows a value as text that can be selected, takes the focus, and says when the user wants to change it: by a double
/// click, F2 or Enter. Its context menu is the window's.
class FieldText : public QLabel {
    Q_OBJECT
public:
    explicit FieldText(const QString &name, QWidget *parent = nullptr);

Q_SIGNALS:
    void ChangeWanted();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace ostrand
