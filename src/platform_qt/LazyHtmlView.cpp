#include "platform_qt/LazyHtmlView.h"

#include <QVBoxLayout>

namespace ostrand {

LazyHtmlView::LazyHtmlView(MakeEngine make_engine, QWidget *parent) :
    QWidget(parent), make_engine_(std::move(make_engine)) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void LazyHtmlView::Load() {
    if (!make_engine_) {
        return;
    }
    const MakeEngine make_engine = std::exchange(make_engine_, nullptr);
    if (window()->isVisible()) {
        // The toolkit makes the window anew for its first engine; without a place of its own it would be put elsewhere.
        window()->setAttribute(Qt::WA_Moved);
    }
    engine_ = make_engine(this);
    if (!engine_.widget || !engine_.view) {
        engine_ = {};
        make_engine_ = make_engine; // the next page tries again
        return;
    }
    engine_.view->before_navigate = [this](const QString &url) { return before_navigate && before_navigate(url); };
    layout()->addWidget(engine_.widget);
    engine_.view->SetVisible(true);
    setFocusProxy(engine_.widget);
}

void LazyHtmlView::Navigate(const QString &url) {
    const bool blank = url == QStringLiteral("about:blank");
    if (!HasEngine() && blank) {
        if (before_navigate) {
            before_navigate(url); // nothing is shown, so there is nothing to cancel
        }
        return;
    }
    if (!HasEngine()) {
        Load();
    }
    if (HasEngine()) {
        engine_.view->Navigate(url);
    }
}

} // namespace ostrand
