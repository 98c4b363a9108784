#include "browser/ui/FindEdit.h"

#include "browser/Browser.h"
#include "shell/ui/Guarded.h"

#include <QKeyEvent>
#include <QTimer>

namespace ostrand {

namespace {

constexpr int kLookEvery = 1000;     // milliseconds
constexpr int kMostCharacters = 120; // longer than any title that one types

} // namespace

FindEdit::FindEdit(Browser &browser, QWidget *parent) :
    QLineEdit(parent), browser_(browser), work_(new QTimer(this)), look_(new QTimer(this)) {
    setObjectName(QStringLiteral("textFind"));
    setClearButtonEnabled(true);
    setMaxLength(kMostCharacters);
    // Room for the list is worth more than a text that shows whole.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        Guarded(browser_.session, [&] { browser_.find.SetText(text); });
        look_->stop();
        if (browser_.find.IsOn()) {
            look_->start(kLookEvery);
        }
    });
    connect(&browser_.find, &FindBox::TextChanged, this, &FindEdit::FollowBrowser);
    connect(&browser_.find, &FindBox::WorkWanted, work_, [this] { work_->start(0); });
    connect(work_, &QTimer::timeout, this, [this] {
        bool more = false;
        Guarded(browser_.session, [&] { more = browser_.find.Step(); });
        if (!more) {
            work_->stop();
        }
    });
    connect(look_, &QTimer::timeout, this,
            [this] { Guarded(browser_.session, [this] { browser_.find.FollowChanges(); }); });
}

QKeySequence FindEdit::Shortcut() {
    return QKeySequence(Qt::Key_F3);
}

void FindEdit::FollowBrowser() {
    if (text() != browser_.find.Text()) {
        setText(browser_.find.Text());
    }
}

void FindEdit::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT IntoList();
        return;
    case Qt::Key_Escape:
        clear();
        Q_EMIT BackToList();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void FindEdit::focusInEvent(QFocusEvent *event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        Guarded(browser_.session, [this] { browser_.find.Prepare(); });
    }
}

} // namespace ostrand
