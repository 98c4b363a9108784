// Titles as pages of a skin, in place of the panels.
#pragma once

#include "skin/SkinPage.h"

namespace ostrand {

class Browser;
class HtmlView;
struct SkinLink;

/// Joins the browser with the view that shows its pages: what is shown, and where the links of a page lead. It answers
/// `Browser::hooks`, so that it must not outlive the browser or the view.
class SkinView {
public:
    SkinView(Browser &browser, HtmlView &view);
    ~SkinView();
    SkinView(const SkinView &) = delete;
    SkinView &operator=(const SkinView &) = delete;

    /// Switches between the view of pages and the panels.
    void EnableWebSkin(bool on);
    /// Shows a title or an episode through the selected skin. False when no page is shown: the panels are to show it.
    bool Show(const QString &key, bool is_episode);
    /// The menu entries.
    void ToggleSkin();
    void SelectSkin();
    /// There is nothing that could show a page: the panels come back, and the user is told why.
    void TellNoEngine(const QString &reason);

    /// Runs what a link asks for. A window sets it, so that it happens outside of the call that cancels the navigation;
    /// at first it happens within.
    std::function<void(std::function<void()> action)> later = [](const auto &action) { action(); };

private:
    /// True when the navigation is not to happen.
    bool BeforeNavigate(const QString &url);
    void Follow(const SkinLink &link);
    bool ShowPage(const QString &key, bool is_episode, const QString &back_profile_id);

    Browser &browser_;
    HtmlView &view_;
    SkinState skin_;
    SkinHost host_;
    int pages_ = 0; ///< shown so far
};

/// The key of a profile that a link tells, which may come without its prefix; the text itself when no profile has it.
QString ProfileOfLink(Session &session, const QString &text);

} // namespace ostrand
