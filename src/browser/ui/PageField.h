// A field of a window that shows pages.
#pragma once

#include "platform_qt/WebEnginePlugin.h"

class QLabel;

namespace ostrand {

struct Session;

/// Gives a view its engine by rules; `failed` is told why there is none.
using EngineFor =
    std::function<LazyHtmlView::MakeEngine(WebEngineRules rules, std::function<void(const QString &reason)> failed)>;

/// A lazy view of pages; without an engine it tells the reason in its place.
class PageField : public QWidget {
    Q_OBJECT
public:
    /// `name` is that of the view.
    PageField(Session &session, const EngineFor &engine_for, WebEngineRules rules, const QString &name,
              const QString &accessible_name, QWidget *parent = nullptr);
    LazyHtmlView &View() { return *view_; }

private:
    void TellNoEngine(const QString &reason);

    Session &session_;
    LazyHtmlView *view_;
    QLabel *reason_;
};

} // namespace ostrand
