// The main window.
#pragma once

#include "platform_qt/WebEnginePlugin.h"

#include <QMainWindow>

#include <functional>

namespace ostrand {

class AppearancesView;
class AwardsFrame;
class Browser;
class CoverPanel;
class EpisodePanel;
class frmListView;
class frmSplash;
class ListTable;
class MenuBuilder;
class MiddlePanel;
class SkinView;
class SplitPanel;
class TitleListPanel;
class ToolMain;

/// Composes the panels and knows the steps of start and end that need a window; it holds no rules.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    /// `make_engine` stands in for the module with the web engine.
    explicit frmMain(Browser &browser, LazyHtmlView::MakeEngine make_engine = {});
    ~frmMain() override;

    /// The start of the program, up to the shown window. False when no database was opened and the program ends.
    bool Load(const QString &command_line);

    Browser &browser;
    SkinView &Skin() { return *skin_; }
    /// An engine for a view of pages, by its own rules; `failed` is told why there is none.
    LazyHtmlView::MakeEngine EngineFor(WebEngineRules rules, std::function<void(const QString &reason)> failed) const;
    /// The window's splitters by their number, from 1.
    SplitPanel *Split(int number) const;
    /// Shows a table in a window of its own; one with the same caption is filled anew.
    void ShowListView(std::unique_ptr<ListTable> table);
    /// mCopyField: puts what the field of the menu shows, or what is selected in it, on the clipboard.
    void CopyField();
    /// Runs an action of the user. Its faults are told, and the end of the program that was asked for meanwhile comes
    /// behind it.
    void Perform(const std::function<void()> &action);
    /// The system asks the program to end. A dialog that waits for an answer gets the one that changes nothing; ask
    /// again until the window is closed.
    void AskToEnd();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void MakeSkinView();
    void Compose();
    void ConnectBrowser();
    void ConnectContextMenus();
    void ConnectPeople();
    void ConnectFields();
    /// Opens mLockTools for a control that shows a field.
    void OpenFieldMenu(const QString &control, const QPoint &place);
    void AddKeys();
    void SetWindowHooks();
    void Layout(bool reset);
    void WriteGeometry();
    void ApplySettings();
    void SetFonts();
    void ApplyGridLines();
    void ShowView();
    /// The other view begins in its list; what had the focus may not be there any more.
    void LeadFocusToTitles();
    /// Gives the cover the height that its ratio asks for, above the episodes of a title.
    void ArrangeCover();
    /// Puts the view of pages or the panels into their place.
    void ShowSkinOrPanels();
    /// Opens a context menu, unless there is no database that its entries could work on.
    void OpenContextMenu(const QString &name, const QPoint &place);
    void ChooseDatabase();
    void TranslateNames();

    MenuBuilder *menus_ = nullptr;
    ToolMain *toolMain_ = nullptr;
    TitleListPanel *titles_ = nullptr;
    CoverPanel *cover_ = nullptr;
    EpisodePanel *episodes_ = nullptr;
    MiddlePanel *middle_ = nullptr;
    AppearancesView *appearances_ = nullptr;
    AwardsFrame *awards_ = nullptr;
    LazyHtmlView::MakeEngine make_engine_; ///< stands in for the module
    LazyHtmlView *WebSkin_ = nullptr;
    std::unique_ptr<SkinView> skin_;
    std::array<SplitPanel *, 6> splits_ = {};
    std::unique_ptr<frmSplash> splash_;
    int running_ = 0; ///< actions of the user, one within another
    bool closed_ = false;
};

} // namespace ostrand
