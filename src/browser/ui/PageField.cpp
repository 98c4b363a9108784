#include "browser/ui/PageField.h"

#include "shell/Session.h"

#include <QLabel>
#include <QVBoxLayout>

namespace ostrand {

using namespace Qt::StringLiterals;

PageField::PageField(Session &session, const EngineFor &engine_for, WebEngineRules rules, const QString &name,
                     const QString &accessible_name, QWidget *parent) :
    QWidget(parent),
    session_(session),
    view_(new LazyHtmlView(engine_for(std::move(rules), [this](const QString &reason) { TellNoEngine(reason); }))),
    reason_(new QLabel) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view_, 1);
    layout->addWidget(reason_, 1);
    view_->setObjectName(name);
    view_->setAccessibleName(accessible_name);
    reason_->setTextFormat(Qt::PlainText);
    reason_->setWordWrap(true);
    reason_->setAlignment(Qt::AlignCenter);
    reason_->hide();
}

void PageField::TellNoEngine(const QString &reason) {
    Trace(session_, view_->objectName() + u": "_s + reason, kTraceError);
    reason_->setText(Translate(session_, u"This page cannot be shown."_s) + u'\n' + reason);
    reason_->show();
    view_->hide();
}

} // namespace ostrand
