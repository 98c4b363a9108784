#include "people/ui/frmDropBox.h"

#include "shell/Session.h"
#include "shell/ui/Mnemonics.h"
#include "shell/ui/WindowPlace.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMimeData>
#include <QShortcut>
#include <QTimer>
#include <QUrl>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// What was dropped: the files or links, or else the text.
QStringList DropsOf(const QMimeData &data) {
    QStringList drops;
    for (const QUrl &url : data.urls()) {
        drops << (url.isLocalFile() ? url.toLocalFile() : url.toString(QUrl::FullyEncoded));
    }
    if (drops.isEmpty() && data.hasText()) {
        drops << data.text();
    }
    return drops;
}

} // namespace

frmDropBox::frmDropBox(Session &session, QWidget *parent) :
    QWidget(parent, Qt::Tool | Qt::WindowStaysOnTopHint), session_(session) {
    setObjectName(u"frmDropBox"_s);
    setAcceptDrops(true);
    auto *layout = new QVBoxLayout(this);
    MakeZone();
    layout->addWidget(zone_, 1);
    auto *buttons = new QHBoxLayout;
    choose_ = MakeButton(u"cbChooseFile"_s);
    paste_ = MakeButton(u"cbPaste"_s);
    buttons->addWidget(choose_);
    buttons->addWidget(paste_);
    layout->addLayout(buttons);
    TranslateTexts();
    connect(choose_, &QPushButton::clicked, this, &frmDropBox::Choose);
    connect(paste_, &QPushButton::clicked, this, &frmDropBox::Paste);
    connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, this, &frmDropBox::Paste);
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);
    new WindowPlace(session_, u"DropBox"_s, this, sizeHint());
}

QString frmDropBox::Text(const char16_t *english) {
    return Translate(session_, QString::fromUtf16(english));
}

void frmDropBox::TranslateTexts() {
    setWindowTitle(Text(u"Image Drop Box"));
    zone_->setAccessibleName(Text(u"Drop zone for pictures"));
    hint_->setText(Text(u"Drop a picture (.jpg) here"));
    result_->setAccessibleName(Text(u"Picture stored last"));
    Mnemonics keys;
    choose_->setText(keys.Mark(Text(u"Choose file...")));
    choose_->setAccessibleName(Text(u"Choose file..."));
    choose_->setToolTip(Text(u"Choose a picture on the disk"));
    paste_->setText(keys.Mark(Text(u"Paste")));
    paste_->setAccessibleName(Text(u"Paste"));
    paste_->setToolTip(Text(u"Take the file that the clipboard names") + u" (Ctrl+V)"_s);
}

void frmDropBox::MakeZone() {
    zone_ = new QFrame(this);
    zone_->setObjectName(u"frameDropZone"_s);
    zone_->setFrameShape(QFrame::StyledPanel);
    zone_->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(zone_);
    hint_ = new QLabel(zone_);
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setWordWrap(true);
    result_ = new QLabel(zone_);
    result_->setObjectName(u"labelStored"_s);
    result_->setAlignment(Qt::AlignCenter);
    result_->setWordWrap(true);
    result_->setTextFormat(Qt::PlainText);
    layout->addStretch();
    layout->addWidget(hint_);
    layout->addWidget(result_);
    layout->addStretch();
    zone_->setMinimumSize(fontMetrics().averageCharWidth() * 34, fontMetrics().height() * 7);
    Highlight(false);
}

QPushButton *frmDropBox::MakeButton(const QString &name) {
    auto *button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(true); // Enter presses it, though this is no dialog
    return button;
}

void frmDropBox::Highlight(bool on) {
    zone_->setBackgroundRole(on ? QPalette::Highlight : QPalette::Base);
    for (auto *label : zone_->findChildren<QLabel *>()) {
        label->setForegroundRole(on ? QPalette::HighlightedText : QPalette::Text);
    }
}

void frmDropBox::dragEnterEvent(QDragEnterEvent *event) {
    if (event->mimeData()->hasUrls() || event->mimeData()->hasText()) {
        event->setDropAction(Qt::CopyAction); // a file manager must not take the file away
        event->accept();
        Highlight(true);
    }
}

void frmDropBox::dragLeaveEvent(QDragLeaveEvent *) {
    Highlight(false);
}

void frmDropBox::dropEvent(QDropEvent *event) {
    Highlight(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program waits until this returns, and must not wait for an answer to a question.
    QTimer::singleShot(0, this, [this, drops = DropsOf(*event->mimeData())] { Store(drops); });
}

void frmDropBox::Paste() {
    Store(session_.services.clipboard.Text().split(u'\n', Qt::SkipEmptyParts));
}

void frmDropBox::Choose() {
    const QString path = session_.services.dialogs.OpenFile(
        {.title = Text(u"Choose file..."), .initial = {}, .filters = {Text(u"Pictures") + u"|*.jpg"_s}});
    if (!path.isEmpty()) {
        Store({path});
    }
}

void frmDropBox::Store(const QStringList &drops) {
    for (const QString &drop : drops) {
        const QString stored = StoreDrop(session_, drop, drop_type_);
        if (!stored.isEmpty()) {
            result_->setText(QFileInfo(stored).fileName());
            Q_EMIT PictureStored(stored);
        }
    }
}

} // namespace ostrand
