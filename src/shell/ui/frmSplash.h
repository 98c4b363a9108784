// What shows while the program starts.
#pragma once

#include <QWidget>

class QLabel;

namespace ostrand {

struct Session;

/// A click or Esc closes it. Its owner destroys it.
class frmSplash : public QWidget {
    Q_OBJECT
public:
    explicit frmSplash(Session &session);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QLabel *AddLabel(const QString &name, const QString &text, double size, bool bold);
    void Arrange();

    QLabel *labelTitle_;
    QLabel *labelBeta_;
    QLabel *labelLoading_;
    QLabel *lblVersion_;
    QLabel *lblBuild_;
};

} // namespace ostrand
