// A title as a page of a skin that is chosen in the profile window.
#pragma once

#include "browser/SheetTitle.h"
#include "skin/SkinPage.h"

namespace ostrand {

class Browser;
class HtmlView;

/// The names of the skins that have a template.
QStringList SkinsWithTemplate(const Session &session);

/// Shows titles through skins, whatever the main window shows, and follows the links of the pages there. It answers the
/// view, so that it must not outlive it.
class ProfileSkin {
public:
    ProfileSkin(Browser &browser, HtmlView &view);
    ~ProfileSkin();
    ProfileSkin(const ProfileSkin &) = delete;
    ProfileSkin &operator=(const ProfileSkin &) = delete;

    /// An empty page without a title or a skin. The current title stays what it is.
    void Show(const QString &skin_name, const SheetTitle &title);

    /// Runs what a link asks for. A window sets it, so that it happens outside of the call that cancels the navigation;
    /// at first it happens within.
    std::function<void(std::function<void()> action)> later = [](const auto &action) { action(); };

private:
    Browser &browser_;
    HtmlView &view_;
    SkinState skin_;
};

} // namespace ostrand
