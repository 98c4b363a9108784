// Shows one picture, scaled into its box.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace ostrand {

/// The picture keeps its ratio and is drawn as sharp as the screen can. A file that is no picture shows nothing.
class PictureView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Empty for no picture.
    void ShowFile(const QString &path);
    const QString &File() const { return path_; }
    bool HasPicture() const { return !picture_.isNull(); }
    QSize sizeHint() const override { return {200, 280}; }

Q_SIGNALS:
    void Clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Load();

    QString path_;
    QPixmap picture_;
};

} // namespace ostrand
