#include "browser/ui/ActorView.h"

#include "browser/Browser.h"
#include "shell/ui/Guarded.h"

#include <QContextMenuEvent>

namespace ostrand {

namespace {

constexpr int kEmptyLines = 4;

} // namespace

ActorView::ActorView(Browser &browser, QWidget *parent) : PictureView(parent), browser_(browser) {
    setObjectName(QStringLiteral("picActor"));
    connect(&browser_.credits.picActor, &HeadshotViewer::PictureChanged, this, &ActorView::ShowPicture);
    connect(&browser_, &Browser::SettingsChanged, this, &ActorView::ApplySettings);
    connect(this, &PictureView::Clicked, this, &ActorView::ShowNext);
    connect(this, &PictureView::PictureFailed, this, &ActorView::PictureShown);
    TranslateNames();
    ShowPicture();
}

void ActorView::TranslateNames() {
    setAccessibleName(Translate(browser_.session, QStringLiteral("Headshot")));
    setToolTip(Translate(browser_.session, QStringLiteral("Click to see the next picture")));
}

void ActorView::ShowPicture() {
    ApplySettings();
    ShowFile(browser_.credits.picActor.Picture());
    setFocusPolicy(Qt::StrongFocus); // an alternate may be there without a primary picture
    setVisible(browser_.credits.picActor.HasPictures());
    setAccessibleDescription(browser_.credits.selected_name);
    Q_EMIT PictureShown();
}

void ActorView::ApplySettings() {
    SetGrowth(browser_.session.view.DoNotResizeHeadshots ? PictureGrowth::Never : PictureGrowth::Fit);
}

int ActorView::HeightAt(int width) const {
    const QSize natural = NaturalSize();
    if (natural.isEmpty()) {
        return fontMetrics().height() * kEmptyLines; // to be clicked for an alternate
    }
    const int shown_width = Growth() == PictureGrowth::Never ? std::min(width, natural.width()) : width;
    return shown_width * natural.height() / natural.width();
}

void ActorView::ShowNext() {
    Guarded(browser_.session, [this] { browser_.credits.picActor.AlternateHeadshot(); });
}

void ActorView::contextMenuEvent(QContextMenuEvent *event) {
    Q_EMIT MenuWanted(event->reason() == QContextMenuEvent::Keyboard ? mapToGlobal(rect().center())
                                                                     : event->globalPos());
}

} // namespace ostrand
