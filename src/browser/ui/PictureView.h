// Shows one picture, scaled into its box.
#pragma once

#include "platform_qt/ScaledPicture.h"

#include <QCache>
#include <QFutureWatcher>
#include <QPixmap>
#include <QWidget>

namespace ostrand {

/// The picture keeps its ratio and is drawn as sharp as the screen can. A file that is no picture shows nothing.
/// Pictures are read and scaled beside the window's own work; until one is there, the one before it stays.
class PictureView : public QWidget {
    Q_OBJECT
public:
    explicit PictureView(QWidget *parent = nullptr);
    ~PictureView() override;

    /// Empty for no picture. A file that changed since is read again.
    void ShowFile(const QString &path);
    /// Whether a picture smaller than the box fills it, as it does at first.
    void SetGrowth(PictureGrowth growth);
    PictureGrowth Growth() const { return growth_; }
    const QString &File() const { return path_; }
    /// Told from the head of the file at once.
    bool HasPicture() const { return !natural_.isEmpty(); }
    QSize NaturalSize() const { return natural_; }
    /// The picture on the screen is not yet the one of the file in the size of the box.
    bool IsLoading() const { return watcher_.isRunning(); }
    const QPixmap &Picture() const { return picture_; }
    QSize sizeHint() const override { return {200, 280}; }

Q_SIGNALS:
    void Clicked();
    /// The file turned out to be no picture, though its head promised one.
    void PictureFailed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Load();
    void Take();
    void Stop();
    /// The size in which the picture at hand is drawn.
    QSizeF DrawnSize() const;

    PictureGrowth growth_ = PictureGrowth::Fit;
    QString path_;
    QSize natural_;
    QString version_; ///< of the file's content
    QPixmap picture_;
    QString wanted_; ///< what the cache calls the picture in the size of the box
    QCache<QString, QPixmap> cache_;
    QFutureWatcher<QImage> watcher_;
};

} // namespace ostrand
