// The cover in a window of its own.
#pragma once

#include <QDialog>

namespace ostrand {

class Browser;
class PictureView;

/// Shows the side that the main window shows, as large as the window allows. A click turns the cover around. It lives
/// as long as the main window.
class frmCover : public QDialog {
    Q_OBJECT
public:
    explicit frmCover(Browser &browser, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void ShowCover();

    Browser &browser_;
    PictureView *picCover_;
};

} // namespace ostrand
