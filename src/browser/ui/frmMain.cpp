#include "browser/ui/frmMain.h"

#include "browser/Attach.h"
#include "browser/Browser.h"
#include "browser/CreditCommands.h"
#include "browser/MenuStrings.h"
#include "browser/Navigation.h"
#include "browser/PanelFields.h"
#include "browser/ProfileCommands.h"
#include "browser/SkinView.h"
#include "browser/ui/ActorView.h"
#include "browser/ui/AppearancesView.h"
#include "browser/ui/AwardsFrame.h"
#include "browser/ui/CoverPanel.h"
#include "browser/ui/CreditListView.h"
#include "browser/ui/CrewFrame.h"
#include "browser/ui/FileDrop.h"
#include "browser/ui/MainCommands.h"
#include "browser/ui/MainWindowPlace.h"
#include "browser/ui/MenuBuilder.h"
#include "browser/ui/MiddlePanel.h"
#include "browser/ui/SkinRules.h"
#include "browser/ui/TabOrder.h"
#include "browser/ui/TitleListPanel.h"
#include "browser/ui/ToolMain.h"
#include "browser/ui/frmProfile.h"
#include "collection_files/ProfilerImport.h"
#include "database/ui/frmSwitchDatabase.h"
#include "shell/InstanceMarker.h"
#include "shell/ListTable.h"
#include "shell/StartUp.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/SplitPanel.h"
#include "shell/ui/Twips.h"
#include "shell/ui/frmListView.h"
#include "shell/ui/frmSplash.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QShortcut>
#include <QTimer>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFlushEvery = 1000; // milliseconds between looks at what is not durable yet

QString BaseCaption() {
    return u"Ostrand v%1.%2"_s.arg(OSTRAND_VERSION_MAJOR).arg(OSTRAND_VERSION_MINOR);
}

/// As the menu key does, which not all keyboards have.
void OpenMenuOf(QWidget *control) {
    if (control != nullptr) {
        const QPoint place = control->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, control->mapToGlobal(place));
        QApplication::sendEvent(control, &event);
    }
}

} // namespace

frmMain::frmMain(Browser &the_browser, LazyHtmlView::MakeEngine make_engine) :
    browser(the_browser), make_engine_(std::move(make_engine)) {
    setObjectName(u"frmMain"_s);
    setAcceptDrops(true);
    MakeSkinView();
    Compose();
    ConnectBrowser();
    AttachBrowser(browser);
    SetWindowHooks();
    HandleCommands(*this);

    auto *idle = new QTimer(this);
    connect(idle, &QTimer::timeout, this, [this] {
        if (browser.session.Database) {
            Guarded(browser.session, [this] { browser.session.Database->FlushIfDue(); });
        }
    });
    idle->start(kFlushEvery);
}

frmMain::~frmMain() {
    // What still runs must not reach a window that is gone.
    browser.session.window = {};
    browser.hooks.ShowFilterTags = {};
    browser.disconnect(this);
    delete findChild<frmProfile *>();
    skin_.reset();
}

SplitPanel *frmMain::Split(int number) const {
    return splits_[size_t(number - 1)];
}

LazyHtmlView::MakeEngine frmMain::EngineFor(WebEngineRules rules, std::function<void(const QString &)> failed) const {
    return make_engine_ ? make_engine_ : LoadWebEngine(std::move(rules), std::move(failed));
}

void frmMain::MakeSkinView() {
    WebSkin_ = new LazyHtmlView(EngineFor(SkinRules(browser.session), [this](const QString &reason) {
        Guarded(browser.session, [&] { skin_->TellNoEngine(reason); });
    }));
    WebSkin_->setObjectName(u"WebSkin"_s);
    skin_ = std::make_unique<SkinView>(browser, *WebSkin_);
    skin_->later = [this](const std::function<void()> &action) {
        QTimer::singleShot(0, this, [this, action] { Perform(action); });
    };
}

void frmMain::Compose() {
    titles_ = new TitleListPanel(browser);
    cover_ = new CoverPanel(browser);
    episodes_ = new EpisodePanel(browser);
    middle_ = new MiddlePanel(browser);
    appearances_ = new AppearancesView(browser);
    awards_ = new AwardsFrame(browser);

    for (size_t i = 0; i < splits_.size(); ++i) {
        splits_[i] = i == 3 ? middle_->Split4() : new SplitPanel;
        splits_[i]->setObjectName(u"Split%1"_s.arg(i + 1));
        splits_[i]->SetMinPanelSize(0);
        splits_[i]->SetHorizontal(i >= 3);
    }
    Split(1)->SetControl1(Split(2));
    WebSkin_->setParent(Split(1));
    WebSkin_->SetVisible(false);
    Split(1)->SetControl2(Split(3));
    Split(2)->SetControl1(titles_);
    Split(2)->SetControl2(Split(6));
    Split(2)->SetSnapToEdge(true);
    Split(3)->SetControl1(middle_);
    Split(3)->SetControl2(Split(5));
    Split(5)->SetControl1(appearances_);
    Split(5)->SetControl2(awards_);
    Split(6)->SetControl1(cover_);
    Split(6)->SetControl2(episodes_);

    auto *centre = new QWidget;
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(Split(1), 1);
    setCentralWidget(centre);

    menus_ = new MenuBuilder(browser.commands, *menuBar(), *this);
    toolMain_ = new ToolMain(browser, *this);
    addToolBar(toolMain_);
    OrderTabs(*this);
}

void frmMain::ConnectBrowser() {
    connect(&browser, &Browser::TitleChanged, this, &frmMain::ShowView);
    connect(&browser, &Browser::PageShown, this, &frmMain::ShowView);
    connect(&browser, &Browser::CurrentRowChanged, this, [this] { EnableProfileEntries(browser); });
    connect(&browser, &Browser::SkinChanged, this, &frmMain::ShowSkinOrPanels);
    connect(&browser, &Browser::SettingsChanged, this, &frmMain::ApplySettings);
    connect(&browser, &Browser::DatabaseOpened, this,
            [this] { titles_->ShowDatabasePath(browser.session.DatabaseFile); });
    connect(&browser, &Browser::ModeChanged, this, &frmMain::ShowView);
    connect(&browser, &Browser::ModeChanged, this, &frmMain::LeadFocusToTitles);
    connect(cover_, &CoverPanel::WantedHeightChanged, this, &frmMain::ArrangeCover);
    connect(titles_->List(), &TitleListView::RowActivated, this,
            [this] { browser.commands.Run(u"mProfileInformation"_s); });
    connect(episodes_, &EpisodePanel::RowActivated, this, [this] { browser.commands.Run(u"mEpisodeInfoContext"_s); });
    ConnectContextMenus();
    ConnectPeople();
    ConnectFields();
    AddKeys();
}

void frmMain::ConnectContextMenus() {
    connect(titles_, &TitleListPanel::TabMenuWanted, this, [this](const QPoint &place) {
        if (!browser.session.view.mTVShows) {
            OpenContextMenu(u"mColTabTools"_s, place);
        }
    });
    connect(titles_->List(), &TitleListView::MenuWanted, this, [this](const QPoint &place) {
        Guarded(browser.session, [this] { browser.commands.SetChecked(u"mLockProfile"_s, IsProfileLocked(browser)); });
        OpenContextMenu(browser.session.view.mTVShows ? u"mSeriesTools"_s : u"mProfileTools"_s, place);
    });
    connect(cover_, &CoverPanel::SeasonMenuWanted, this,
            [this](const QPoint &place) { OpenContextMenu(u"mSeasonTools"_s, place); });
    connect(cover_, &CoverPanel::CoverMenuWanted, this, [this](const QPoint &place) {
        Guarded(browser.session, [this] { PrepareFieldMenu(browser, u"picCover"_s); });
        OpenContextMenu(u"mCoverTools"_s, place);
    });
    connect(episodes_, &EpisodePanel::MenuWanted, this, [this](const QPoint &place) {
        Guarded(browser.session, [this] { browser.commands.SetChecked(u"mLockEpisode"_s, IsEpisodeLocked(browser)); });
        OpenContextMenu(u"mEpisodeTools"_s, place);
    });
}

void frmMain::ConnectFields() {
    connect(middle_, &MiddlePanel::FieldMenuWanted, this, &frmMain::OpenFieldMenu);
    connect(cover_, &CoverPanel::FieldMenuWanted, this, &frmMain::OpenFieldMenu);
    const auto change = [this](const QString &control) { Perform([&] { ChangePanelField(browser, control); }); };
    connect(middle_, &MiddlePanel::FieldChangeWanted, this, change);
    connect(cover_, &CoverPanel::FieldChangeWanted, this, change);
}

void frmMain::OpenFieldMenu(const QString &control, const QPoint &place) {
    Guarded(browser.session, [&] { PrepareFieldMenu(browser, control); });
    const auto *text = findChild<QLabel *>(control);
    browser.commands.SetEnabled(u"mCopyField"_s, text && !text->text().isEmpty());
    OpenContextMenu(u"mLockTools"_s, place);
}

void frmMain::CopyField() {
    if (const auto *text = findChild<QLabel *>(browser.menu_field)) {
        browser.session.services.clipboard.SetText(text->hasSelectedText() ? text->selectedText() : text->text());
    }
}

void frmMain::ConnectPeople() {
    connect(middle_->ListCast(), &CreditListView::MenuWanted, this, [this](const QPoint &place) {
        Guarded(browser.session,
                [this] { browser.commands.SetChecked(u"mLockCast"_s, AreCreditsLocked(browser, CreditKind::Cast)); });
        EnablePersonEntries(browser);
        OpenContextMenu(u"mCastTools"_s, place);
    });
    connect(middle_->FrameCrew(), &CrewFrame::MenuWanted, this, [this](const QPoint &place) {
        Guarded(browser.session,
                [this] { browser.commands.SetChecked(u"mLockCrew"_s, AreCreditsLocked(browser, CreditKind::Crew)); });
        EnablePersonEntries(browser);
        OpenContextMenu(u"mCrewTools"_s, place);
    });
    connect(cover_->picActor(), &ActorView::MenuWanted, this, [this](const QPoint &place) {
        EnablePersonEntries(browser);
        OpenContextMenu(u"mHeadshotTools"_s, place);
    });
    connect(appearances_, &AppearancesView::MenuWanted, this,
            [this](const QPoint &place) { OpenContextMenu(u"mToolsAppearances"_s, place); });
    connect(appearances_, &AppearancesView::RowActivated, this, [this] { browser.commands.Run(u"mGotoAppearance"_s); });
    connect(awards_, &AwardsFrame::MenuWanted, this,
            [this](const QPoint &place) { OpenContextMenu(u"mAwardTools"_s, place); });
}

void frmMain::OpenContextMenu(const QString &name, const QPoint &place) {
    if (browser.session.Database && browser.commands.IsEnabled(name)) {
        menus_->ContextMenu(name)->popup(place);
    }
}

void frmMain::AddKeys() {
    auto *cover_tag = new QShortcut(QKeySequence(u"Ctrl+1"_s), this);
    connect(cover_tag, &QShortcut::activated, this, [this] { CopyCoverTag(browser); });
    auto *menu = new QShortcut(QKeySequence(u"F10"_s), this);
    connect(menu, &QShortcut::activated, this, [this] { menuBar()->setActiveAction(menuBar()->actions().front()); });
    auto *context_menu = new QShortcut(QKeySequence(u"Shift+F10"_s), this);
    connect(context_menu, &QShortcut::activated, this, [] { OpenMenuOf(QApplication::focusWidget()); });
}

void frmMain::SetWindowHooks() {
    Session &session = browser.session;
    session.window.EnableDBMenues = [this](bool enabled) { EnableDBMenues(browser.commands, enabled); };
    session.window.MenuStrings = [this] {
        MenuStrings(browser.session, browser.commands);
        TranslateBrowser(browser);
        TranslateNames();
        Q_EMIT browser.LanguageChanged();
    };
    session.window.ShowAuditMenus = [this] {
        ostrand::ShowAuditMenus(browser.commands, browser.session.audit.menus_shown);
    };
    session.window.ShowSplash = [this] {
        splash_ = std::make_unique<frmSplash>(browser.session);
        splash_->show();
        browser.session.services.pump.Turn();
    };
    session.window.UnloadSplash = [this] { splash_.reset(); };
    session.window.ShowBlankPage = [this] { WebSkin_->Navigate(u"about:blank"_s); };
    session.window.ShowBaseCaption = [this] {
        browser.base_caption = BaseCaption();
        browser.caption = browser.base_caption;
        setWindowTitle(browser.caption);
    };
    session.window.Layout = [this](bool reset) { Layout(reset); };
    session.window.ApplyGridLines = [this] { ApplyGridLines(); };
    session.window.TranslatePanels = [this] { TranslateNames(); };
    session.window.ChooseDatabase = [this] { ChooseDatabase(); };
    session.window.WriteGeometry = [this] { WriteGeometry(); };
    session.window.ShowListView = [this](std::unique_ptr<ListTable> table) { ShowListView(std::move(table)); };
}

bool frmMain::Load(const QString &command_line) {
    Session &session = browser.session;
    const CommandLine line = PrepareStartUp(session, command_line);
    bool opened = false;
    ++running_;
    Guarded(session, [&] { opened = OpenOrRun(session, line); });
    --running_;
    if (!opened && line.command_file.isEmpty()) {
        splash_.reset();
        if (session.instance) {
            session.instance->LeaveAndClean();
        }
        return false;
    }
    if (session.EndProgram) {
        splash_.reset();
        close();
        return false;
    }
    ApplySettings();
    ShowView();
    show(); // before the titles due, which are to lie above it
    FinishStartUp(session);
    titles_->List()->setFocus();
    return true;
}

void frmMain::ChooseDatabase() {
    if (splash_) {
        splash_->hide(); // it must not lie above the window that asks
    }
    frmSwitchDatabase(browser.session, isVisible() ? this : nullptr).exec();
}

void frmMain::Layout(bool reset) {
    PlaceMainWindow(*this, browser.session, reset);
    PlaceSplitters(splits_, browser.session, reset);
}

void frmMain::WriteGeometry() {
    KeepMainWindow(*this, browser.session);
    if (!isMinimized()) {
        KeepSplitters(splits_, browser.session);
    }
}

void frmMain::ApplySettings() {
    SetFonts();
    ApplyGridLines();
}

void frmMain::SetFonts() {
    const ViewState &view = browser.session.view;
    for (QAbstractItemView *list : findChildren<QAbstractItemView *>()) {
        QFont font = list->font();
        font.setFamily(view.FontName);
        font.setPointSizeF(view.FontSize);
        list->setFont(font);
    }
}

void frmMain::ApplyGridLines() {
    titles_->List()->SetGridLines(browser.session.view.grid_lines.ListCollection);
    episodes_->SetGridLines(browser.session.view.grid_lines.ListEpisodes);
    middle_->ListCast()->SetGridLines(browser.session.view.grid_lines.ListCast);
    middle_->FrameCrew()->SetGridLines(browser.session.view.grid_lines.ListCrew);
    appearances_->SetGridLines(browser.session.view.grid_lines.ListAppearances);
}

void frmMain::ShowView() {
    const bool tv = browser.session.view.mTVShows;
    const bool cover = tv || !browser.session.view.mSkinEnable; // a page shows the cover itself
    const bool episodes = tv || browser.listEpisodes.rowCount() > 0;
    cover_->setVisible(cover);
    episodes_->setVisible(episodes);
    Split(6)->setVisible(cover || episodes);
    ArrangeCover();
    setWindowTitle(browser.caption);
}

void frmMain::LeadFocusToTitles() {
    const QWidget *focus = focusWidget();
    if (focus != nullptr && !titles_->isAncestorOf(focus)) {
        titles_->List()->setFocus();
    }
}

void frmMain::ArrangeCover() {
    const int wanted = browser.session.view.mTVShows ? 0 : cover_->WantedHeight();
    Split(6)->SetPassingPosition(wanted > 0 ? ToTwips(wanted) : SplitPanel::kUnset, ToTwips(episodes_->LeastHeight()));
}

void frmMain::ShowSkinOrPanels() {
    const bool on = browser.session.view.mSkinEnable;
    QWidget *shown = on ? static_cast<QWidget *>(WebSkin_) : Split(3);
    QWidget *other = on ? Split(3) : static_cast<QWidget *>(WebSkin_);
    other->hide();
    shown->show();
    if (Split(1)->Control2() != shown) {
        Split(1)->SetControl2(shown);
    }
    ShowView();
}

void frmMain::TranslateNames() {
    titles_->TranslateNames();
    WebSkin_->setAccessibleName(Translate(browser.session, u"Title as a page"_s));
    cover_->TranslateNames();
    episodes_->TranslateNames();
    middle_->TranslateNames();
    appearances_->TranslateNames();
    awards_->TranslateNames();
}

void frmMain::ShowListView(std::unique_ptr<ListTable> table) {
    for (frmListView *open : findChildren<frmListView *>()) {
        if (open->windowTitle() == table->caption) {
            delete open; // one window for one list
        }
    }
    auto *window = new frmListView(browser.session, ContentOf(std::move(table)), this);
    window->title_chosen = [this](const QString &key, ListRowKind kind) {
        Guarded(browser.session,
                [&] { kind == ListRowKind::Episode ? ShowEpisode(browser, key) : ShowMovie(browser, key); });
    };
    connect(&browser, &Browser::LanguageChanged, window,
            [this, window] { Guarded(browser.session, [&] { window->ShowAgain(); }); });
    window->show();
    window->raise();
}

void frmMain::Perform(const std::function<void()> &action) {
    ++running_;
    Guarded(browser.session, action);
    --running_;
    if (running_ == 0 && browser.session.EndProgram) {
        close();
    }
}

void frmMain::AskToEnd() {
    if (QWidget *modal = QApplication::activeModalWidget()) {
        browser.session.EndProgram = true;
        modal->close(); // the routine that waits for it goes on, and ends
        return;
    }
    close();
}

void frmMain::closeEvent(QCloseEvent *event) {
    Session &session = browser.session;
    if (running_ > 0 || session.progress.IsLoaded()) {
        // The routine that runs still holds the database: it is told to end, and the window goes when it has.
        session.EndProgram = true;
        session.progress.Close();
        event->ignore();
        return;
    }
    event->accept();
    if (!closed_) {
        closed_ = true;
        CloseViewer(session);
        QCoreApplication::quit();
    }
}

void frmMain::dragEnterEvent(QDragEnterEvent *event) {
    if (running_ == 0 && browser.session.Database && !CollectionFilesIn(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void frmMain::dropEvent(QDropEvent *event) {
    const QStringList files = CollectionFilesIn(*event->mimeData());
    event->acceptProposedAction();
    // The program that the files come from waits for the drop to end, and an import takes its time.
    QTimer::singleShot(0, this, [this, files] {
        for (const QString &file : files) {
            if (!closed_) {
                Perform([&] { ImportProfilerData(browser.session, file); });
            }
        }
    });
}

} // namespace ostrand
