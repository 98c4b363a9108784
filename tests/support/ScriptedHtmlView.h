// A view of pages that shows nothing and remembers everything.
#pragma once

#include "platform/HtmlView.h"

#include <QStringList>

namespace ostrand::test {

class ScriptedHtmlView : public HtmlView {
public:
    void Navigate(const QString &url) override { urls += url; }
    void SetVisible(bool shown) override { visible = shown; }
    bool IsVisible() const override { return visible; }

    /// A link of the page is clicked, or its script leads on; true when the program cancels it.
    bool Click(const QString &url) { return before_navigate && before_navigate(url); }

    /// Where the program led it.
    QStringList urls;
    bool visible = true;
};

} // namespace ostrand::test
