// textFind.
#pragma once

#include <QLineEdit>

class QTimer;

namespace ostrand {

class Browser;

/// What is typed narrows the list at once. Down and Enter go into the list, Esc empties the box and goes back.
class FindEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit FindEdit(Browser &browser, QWidget *parent = nullptr);

    /// The key that leads here from anywhere in the window.
    static QKeySequence Shortcut();

Q_SIGNALS:
    void IntoList();
    /// The list is wanted as it was.
    void BackToList();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void FollowBrowser();

    Browser &browser_;
    QTimer *work_;
    QTimer *look_; ///< for changes while the list is narrowed
};

} // namespace ostrand
