// The tabs of the profile window that show pages.
#pragma once

#include "browser/ProfileSkin.h"
#include "browser/ui/PageField.h"
#include "browser/ui/SheetPage.h"

class QComboBox;

namespace ostrand {

/// "Overview", "Notes" and "Easter Eggs", which have one view among them.
class ProfileTextTab : public SheetPage {
    Q_OBJECT
public:
    ProfileTextTab(Browser &browser, ProfileSheet &sheet, const EngineFor &engine_for, QWidget *parent = nullptr);
    /// Shows the text of the sheet's tab.
    void ShowTitle();
    void ShowTextHTML(HtmlView &browser, const QString &html, const QString &name);

private:
    PageField *page_;
};

/// "Additional Infos": the names on the left, the value of the selected one beside them.
class ProfileInfosTab : public SheetPage {
    Q_OBJECT
public:
    ProfileInfosTab(Browser &browser, ProfileSheet &sheet, const EngineFor &engine_for, QWidget *parent = nullptr);
    void ShowTitle();

private:
    void ShowValue();

    SheetList *listInfos_;
    PageField *page_;
};

/// "Skins": the title as a page of a skin that is chosen here.
class ProfileSkinTab : public SheetPage {
    Q_OBJECT
public:
    ProfileSkinTab(Browser &browser, ProfileSheet &sheet, const EngineFor &engine_for,
                   std::function<void(const std::function<void()> &action)> perform, QWidget *parent = nullptr);
    void ShowTitle();

private:
    void FillSkins();

    QComboBox *ListSkins_;
    PageField *page_;
    ProfileSkin skin_;
};

} // namespace ostrand
