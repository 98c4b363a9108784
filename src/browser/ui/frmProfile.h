// The window that tells everything of a title.
#pragma once

#include "browser/ProfileSheet.h"
#include "browser/ui/PageField.h"

#include <QDialog>

class QStackedWidget;
class QTabBar;

namespace ostrand {

class Browser;
class ProfileEventsTab;
class ProfileInfosTab;
class ProfileMainTab;
class ProfileSkinTab;
class ProfileTextTab;

/// Stands beside the main window and follows what is selected there while it is open. It lives as long as that window.
class frmProfile : public QDialog {
    Q_OBJECT
public:
    /// `perform` runs what a link of a page asks for.
    frmProfile(Browser &browser, EngineFor engine_for, std::function<void(const std::function<void()> &action)> perform,
               QWidget *parent = nullptr);
    ~frmProfile() override;

    void GetProfileInfo(const QString &id) { Show({id, false}); }
    void GetEpisodeInfo(const QString &id) { Show({id, true}); }
    void ClearProfileInfos() { Show({}); }
    /// Shows a tab, counted from 1.
    void EnableTab(int tab);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Show(const SheetTitle &title);
    void Compose();
    /// Builds the controls anew, in the present language.
    void Recompose();
    void Discard();
    void AddKeys();
    void StepTab(int by);
    void ShowTab(SheetTab tab);
    QWidget *PageOf(SheetTab tab) const;

    Browser &browser_;
    EngineFor engine_for_;
    std::function<void(const std::function<void()> &action)> perform_;
    ProfileSheet sheet_;
    bool stale_ = false; ///< the texts changed while the window was closed
    QTabBar *tabProfile_ = nullptr;
    QStackedWidget *pages_ = nullptr;
    ProfileMainTab *main_ = nullptr;
    ProfileTextTab *text_ = nullptr;
    ProfileEventsTab *events_ = nullptr;
    ProfileInfosTab *infos_ = nullptr;
    ProfileSkinTab *skin_ = nullptr;
};

} // namespace ostrand
