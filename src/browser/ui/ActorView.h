// picActor.
#pragma once

#include "browser/ui/PictureView.h"

namespace ostrand {

class Browser;

/// Shows the headshot of the selected person; a click shows the next one. It takes no room while there is none.
class ActorView : public PictureView {
    Q_OBJECT
public:
    explicit ActorView(Browser &browser, QWidget *parent = nullptr);

    /// The height in which the picture fills a width.
    int HeightAt(int width) const;
    void TranslateNames();

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);
    /// Another picture, or none, is shown: another height is right.
    void PictureShown();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void ShowPicture();
    void ApplySettings();
    void ShowNext();

    Browser &browser_;
};

} // namespace ostrand
