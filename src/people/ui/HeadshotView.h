// A picture of a person.
#pragma once

#include <QAbstractScrollArea>
#include <QFutureWatcher>
#include <QPixmap>

namespace ostrand {

/// Shows a picture fitted into its place, or in its own size with scroll bars. Pictures are read beside the event loop,
/// so that a large one holds nothing up, and one that is too large for its own size is fitted; of several that were
/// asked for meanwhile only the last one is read.
class HeadshotView : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit HeadshotView(QWidget *parent = nullptr);

    /// Reads the file anew even when it is the one shown. Empty for no picture.
    void ShowFile(const QString &path);
    const QString &File() const { return path_; }
    /// In its own size, one pixel of the picture for one of the screen.
    void SetNaturalSize(bool on);
    /// What stands in the place of a file that is no picture.
    void SetFaultText(const QString &text) { fault_text_ = text; }
    bool HasPicture() const { return !picture_.isNull(); }
    bool IsReading() const { return reading_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The picture asked for last was read, or is none.
    void Read();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void Load();
    void Take();
    void PlaceScrollBars();

    QString path_;
    QString fault_text_;
    QPixmap picture_;
    QFutureWatcher<QImage> watcher_;
    bool natural_ = false;
    bool reading_ = false;
    bool outdated_ = false; ///< another picture or size was asked for while one is read
};

} // namespace ostrand
