// picMedium.
#pragma once

#include <QIcon>
#include <QWidget>

namespace ostrand {

/// Shows the icon of a medium, as large as three lines of text and sharp at every scale.
class MediumIcon : public QWidget {
    Q_OBJECT
public:
    explicit MediumIcon(QWidget *parent = nullptr);

    /// A key of browser/MediaIcon.h; empty for none.
    void ShowIcon(const QString &key);
    const QString &Key() const { return key_; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString key_;
    QIcon icon_;
};

} // namespace ostrand
