// A view of pages that costs nothing until the first page comes.
#pragma once

#include "platform/HtmlView.h"

#include <QWidget>

namespace ostrand {

/// A view and the widget that shows it; often the same object.
struct HtmlEngine {
    QWidget *widget = nullptr;
    HtmlView *view = nullptr;
};

/// Makes its engine when the first page other than "about:blank" is shown. Without an engine it is an empty field.
class LazyHtmlView : public QWidget, public HtmlView {
    Q_OBJECT
public:
    /// Gives an engine whose widget is a child of `parent`; without a widget there is none: the page
    /// stays unseen, and the next one asks again.
    using MakeEngine = std::function<HtmlEngine(QWidget *parent)>;

    explicit LazyHtmlView(MakeEngine make_engine, QWidget *parent = nullptr);

    void Navigate(const QString &url) override;
    void SetVisible(bool visible) override { setVisible(visible); }
    bool IsVisible() const override { return !isHidden(); }
    bool HasEngine() const { return engine_.view != nullptr; }

private:
    void Load();

    MakeEngine make_engine_;
    HtmlEngine engine_;
};

} // namespace ostrand
