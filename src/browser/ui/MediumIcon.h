// picMedium.
#pragma once

#include <QIcon>
#include <QWidget>

namespace ostrand {

/// Shows the icon of a medium, as large as three lines of text and sharp at every scale. It is a field as the texts of
/// the panels are: a double click, F2 or Enter ask for another value, and its context menu is the window's.
class MediumIcon : public QWidget {
    Q_OBJECT
public:
    explicit MediumIcon(QWidget *parent = nullptr);

    /// A key of browser/MediaIcon.h, empty for none, and what the medium is called.
    void ShowIcon(const QString &key, const QString &name);
    const QString &Key() const { return key_; }
    QSize sizeHint() const override;

Q_SIGNALS:
    void ChangeWanted();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString key_;
    QIcon icon_;
};

} // namespace ostrand
