// A text that acts as a link.
#pragma once

#include <QLabel>

namespace ostrand {

class Opener;

/// Opens what its link leads to (shell/LinkTarget.h) on a click, Enter or the space bar. Looks like a link only while
/// it is one.
class LinkLabel : public QLabel {
    Q_OBJECT
public:
    explicit LinkLabel(Opener &opener, QWidget *parent = nullptr);
    /// `shown` stands for the link on the screen; the link itself does when it is empty.
    void SetLink(const QString &link, const QString &shown = {});
    const QString &Link() const { return link_; }
    void Open();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Opener &opener_;
    QString link_;
};

} // namespace ostrand
