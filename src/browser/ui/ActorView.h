// picActor.
#pragma once

#include "platform_qt/ScaledPicture.h"

#include <QPixmap>
#include <QWidget>

namespace ostrand {

class Browser;

/// Shows the headshot of the selected person; a click shows the next one. It takes no room while there is none.
class ActorView : public QWidget {
    Q_OBJECT
public:
    explicit ActorView(Browser &browser, QWidget *parent = nullptr);

    const QString &File() const { return path_; }
    bool HasPicture() const { return !picture_.isNull(); }
    /// The height in which the picture fills a width.
    int HeightAt(int width) const;
    void TranslateNames();
    QSize sizeHint() const override { return {200, 280}; }

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);
    /// Another picture, or none, is shown: another height is right.
    void PictureShown();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void ShowPicture();
    void Load();
    PictureGrowth Growth() const;
    void ShowNext();

    Browser &browser_;
    QString path_;
    QPixmap picture_;
};

} // namespace ostrand
