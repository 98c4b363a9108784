// The view that shows pages, as the program sees it.
#pragma once

#include <QString>

#include <functional>

namespace ostrand {

/// Loads local files and "about:blank", runs the scripts of a page, and asks before each navigation.
class HtmlView {
public:
    virtual ~HtmlView() = default;
    /// Shows a local file, given as a file URL, or "about:blank".
    virtual void Navigate(const QString &url) = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool IsVisible() const = 0;
    /// Told of every navigation before it happens, with the target; true cancels it.
    std::function<bool(const QString &url)> before_navigate;
};

} // namespace ostrand
