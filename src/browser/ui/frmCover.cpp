#include "browser/ui/frmCover.h"

#include "browser/Browser.h"
#include "browser/ProfileInfos.h"
#include "browser/ui/PictureView.h"
#include "shell/Session.h"
#include "shell/ui/WindowPlace.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kCoverLetters = 50;
constexpr int kCoverLines = 35;

} // namespace

frmCover::frmCover(Browser &browser, QWidget *parent) :
    QDialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                        Qt::WindowCloseButtonHint),
    browser_(browser), picCover_(new PictureView(this)) {
    setObjectName(u"frmCover"_s);
    picCover_->setObjectName(u"picCover"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picCover_);
    connect(picCover_, &PictureView::Clicked, this, [this] { FlipCover(browser_); });
    connect(&browser_, &Browser::CoverChanged, this, &frmCover::ShowCover);
    connect(&browser_, &Browser::TitleChanged, this, &frmCover::ShowCover);
    connect(&browser_, &Browser::LanguageChanged, this, &frmCover::ShowCover);
    new WindowPlace(browser_.session, u"CoverWindow"_s, this,
                    {fontMetrics().averageCharWidth() * kCoverLetters, fontMetrics().lineSpacing() * kCoverLines});
}

void frmCover::showEvent(QShowEvent *event) {
    ShowCover();
    QDialog::showEvent(event);
}

void frmCover::ShowCover() {
    const auto shown = [this](const QString &text) { return Translate(browser_.session, text); };
    picCover_->setAccessibleName(shown(u"Cover"_s));
    picCover_->setToolTip(shown(u"Click to see the other side"_s));
    setWindowTitle(shown(u"Cover"_s) + (browser_.cover_stem.isEmpty() ? QString() : ": "_L1 + browser_.caption));
    picCover_->ShowFile(CurrentCoverFile(browser_));
}

} // namespace ostrand
