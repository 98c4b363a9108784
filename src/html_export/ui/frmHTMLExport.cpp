#include "html_export/ui/frmHTMLExport.h"

#include "shell/Session.h"
#include "shell/ui/FoldingRow.h"
#include "shell/ui/PageArea.h"
#include "shell/ui/TextSize.h"
#include "shell/ui/WindowPlace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTreeView>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kWindowLetters = 88;
constexpr int kWindowLines = 42;   // both pages without scrolling
constexpr int kMarginLetters = 10; // around the pages
constexpr int kComboLetters = 24;
constexpr int kListLines = 5;

/// A list of few rows, which takes what room is left.
void MakeLow(QAbstractItemView &list) {
    list.setMinimumHeight(list.fontMetrics().height() * kListLines);
    list.setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

QShortcut *AddKey(QWidget &control, const QKeySequence &key) {
    auto *shortcut = new QShortcut(key, &control);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    return shortcut;
}

} // namespace

struct frmHTMLExport::Flag {
    const char16_t *name;
    const char16_t *caption;
    const char16_t *tool_tip;
    bool SiteOptions::*value;
    std::optional<bool> when = {};
};

frmHTMLExport::frmHTMLExport(Session &session, SiteHost host, QWidget *parent) :
    QDialog(parent), session_(session), form_(session, std::move(host)) {
    setObjectName(u"frmHTMLExport"_s);
    setWindowTitle(Text(u"HTML Export"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(MakePathRow());
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"tabHTMLExport"_s);
    tabs->setAccessibleName(Text(u"Options"));
    layout->addWidget(tabs, 1);
    const QString pages = keys_.Mark(Text(u"Pages"));
    const QString lists = keys_.Mark(Text(u"Lists"));
    layout->addWidget(MakeButtons());
    const Mnemonics keys = keys_; // one page is seen at a time
    QWidget *first = MakePagesTab();
    keys_ = keys;
    QWidget *second = MakeListsTab();
    const int widest = std::max(first->minimumSizeHint().width(), second->minimumSizeHint().width());
    tabs->addTab(new PageArea(first), pages);
    tabs->addTab(new PageArea(second), lists);
    LetTurnPages(*tabs, *this);
    path_->setFocus();
    const int letters = widest / fontMetrics().averageCharWidth() + kMarginLetters;
    ResizeToText(*this, std::max(kWindowLetters, letters), kWindowLines);
    new WindowPlace(session, u"HTMLExport"_s, this, size());
}

QString frmHTMLExport::Text(const char16_t *english) {
    return Translate(session_, QString::fromUtf16(english));
}

void frmHTMLExport::Describe(QWidget &control, const QString &name, const char16_t *caption, const char16_t *tool_tip) {
    control.setObjectName(name);
    control.setAccessibleName(Text(caption));
    control.setToolTip(Text(tool_tip));
}

QLabel *frmHTMLExport::MakeLabel(const char16_t *caption, QWidget *buddy) {
    auto *label = new QLabel(keys_.Mark(Text(caption)) + u':');
    label->setBuddy(buddy);
    return label;
}

QPushButton *frmHTMLExport::MakeButton(const QString &name, const char16_t *caption, const char16_t *tool_tip) {
    auto *button = new QPushButton(Text(caption).replace(u"&"_s, u"&&"_s));
    Describe(*button, name, caption, tool_tip);
    return button;
}

QWidget *frmHTMLExport::MakePathRow() {
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    path_ = new QLineEdit(QDir::toNativeSeparators(form_.options.ExportPath));
    Describe(*path_, u"textExportPath"_s, u"Export Path", u"The folder that the site is written into");
    readers_.emplace_back([this] { form_.options.ExportPath = QDir::fromNativeSeparators(path_->text()); });
    auto *button = new QPushButton(u"..."_s);
    Describe(*button, u"cbSelectExportPath"_s, u"Choose the folder of the site", u"Choose the folder of the site");
    MakeNarrow(*button);
    connect(button, &QPushButton::clicked, this, [this] {
        Read();
        form_.BrowseExportPath();
        path_->setText(QDir::toNativeSeparators(form_.options.ExportPath));
    });
    layout->addWidget(MakeLabel(u"Export Path", path_));
    layout->addWidget(path_, 1);
    layout->addWidget(button);
    return row;
}

QWidget *frmHTMLExport::MakePagesTab() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(MakeSkins());
    layout->addWidget(MakeCovers());
    layout->addWidget(MakeMediaSkins(), 1);
    return page;
}

QGroupBox *frmHTMLExport::MakeSkins() {
    auto *box = new QGroupBox(Text(u"Profiles and Episodes"));
    auto *layout = new QFormLayout(box);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    SiteOptions &options = form_.options;
    skin_ = MakeCombo(u"comboSkin"_s, u"Skin", u"The skin of the pages of profiles", form_.Skins(options.Skin),
                      options.Skin);
    layout->addRow(MakeLabel(u"Skin", skin_), skin_);
    episodes_ = MakeCheck({u"checkGenerateEpisodes", u"Generate Episode Pages",
                           u"Writes a page for each episode that the skin lists", &SiteOptions::GenerateEpisodeHTML});
    layout->addRow(episodes_);
    episode_skin_ = MakeCombo(u"comboSkinEpisode"_s, u"Episode Skin", u"The skin of the pages of episodes",
                              form_.Skins(options.SkinEpisode), options.SkinEpisode);
    layout->addRow(MakeLabel(u"Episode Skin", episode_skin_), episode_skin_);
    layout->addRow(
        MakeCheck({u"chkGenerateCrosslinks", u"Generate Cross-Links",
                   u"Links each person to a list of all titles with that person", &SiteOptions::GenerateCrosslinks}));
    readers_.emplace_back([this] {
        form_.options.Skin = skin_->currentText();
        form_.options.SkinEpisode = episode_skin_->currentText();
    });
    episode_skin_->setEnabled(episodes_->isChecked());
    connect(episodes_, &QCheckBox::toggled, episode_skin_, &QComboBox::setEnabled);
    connect(skin_, &QComboBox::activated, this, &frmHTMLExport::FollowSkin);
    return box;
}

QComboBox *frmHTMLExport::MakeCombo(const QString &name, const char16_t *caption, const char16_t *tool_tip,
                                    const QStringList &entries, const QString &current) {
    auto *combo = new QComboBox;
    Describe(*combo, name, caption, tool_tip);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(kComboLetters);
    combo->addItems(entries);
    combo->setCurrentIndex(combo->findText(current, Qt::MatchFixedString));
    return combo;
}

QCheckBox *frmHTMLExport::MakeCheck(const Flag &flag) {
    auto *box = new QCheckBox(keys_.Mark(Text(flag.caption)));
    Describe(*box, QString::fromUtf16(flag.name), flag.caption, flag.tool_tip);
    box->setChecked(form_.options.*flag.value);
    readers_.emplace_back([this, box, value = flag.value] { form_.options.*value = box->isChecked(); });
    return box;
}

QGroupBox *frmHTMLExport::MakeFlags(const char16_t *caption, std::initializer_list<Flag> flags) {
    auto *box = new QGroupBox(Text(caption));
    auto *layout = new QVBoxLayout(box);
    for (const Flag &flag : flags) {
        if (!flag.when) {
            layout->addWidget(MakeCheck(flag));
            continue;
        }
        auto *radio = new QRadioButton(keys_.Mark(Text(flag.caption)));
        Describe(*radio, QString::fromUtf16(flag.name), flag.caption, flag.tool_tip);
        radio->setChecked(form_.options.*flag.value == *flag.when);
        readers_.emplace_back([this, radio, value = flag.value, when = *flag.when] {
            if (radio->isChecked()) {
                form_.options.*value = when;
            }
        });
        layout->addWidget(radio);
    }
    layout->addStretch();
    return box;
}

QGroupBox *frmHTMLExport::MakeCovers() {
    struct Source {
        const char16_t *name;
        const char16_t *caption;
        const char16_t *tool_tip;
        CoverSource source;
    };
    static constexpr Source kSources[] = {
        {u"opUseLocalCoverScans", u"Copy covers into the site", u"The site can be taken elsewhere with its covers",
         CoverSource::Copied},
        {u"opUseMyProfilerScans", u"Link to the image server", u"Covers are only seen with an internet connection",
         CoverSource::ImageServer},
        {u"opUseCoverScansLocally", u"Leave covers in place", u"Covers are only seen on this computer",
         CoverSource::InPlace},
    };
    auto *box = new QGroupBox(Text(u"Covers"));
    auto *layout = new QVBoxLayout(box);
    for (const Source &source : kSources) {
        auto *radio = new QRadioButton(keys_.Mark(Text(source.caption)));
        Describe(*radio, QString::fromUtf16(source.name), source.caption, source.tool_tip);
        radio->setChecked(form_.options.Covers == source.source);
        readers_.emplace_back([this, radio, chosen = source.source] {
            if (radio->isChecked()) {
                form_.options.Covers = chosen;
            }
        });
        layout->addWidget(radio);
    }
    return box;
}

QGroupBox *frmHTMLExport::MakeMediaSkins() {
    auto *box = new QGroupBox(keys_.Mark(Text(u"Skins of Media Types")));
    auto *layout = new QVBoxLayout(box);
    media_ = new QTreeView;
    Describe(*media_, u"listMediaTypes"_s, u"Skins of Media Types", u"Double-click, or press Enter, to choose a skin");
    media_->setModel(&form_.media_skins);
    media_->setRootIsDecorated(false);
    media_->setUniformRowHeights(true);
    media_->setAllColumnsShowFocus(true);
    MakeLow(*media_);
    media_->header()->setSectionResizeMode(QHeaderView::Stretch);
    media_->setCurrentIndex(form_.media_skins.index(0, 0));
    connect(media_, &QTreeView::doubleClicked, this, &frmHTMLExport::ChooseMediaSkin);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        // Not by the view's own signal, which would let the key go on to the default button.
        connect(AddKey(*media_, key), &QShortcut::activated, this, &frmHTMLExport::ChooseMediaSkin);
    }
    layout->addWidget(media_);
    return box;
}

QWidget *frmHTMLExport::MakeListsTab() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(MakeProfiles(), 1);
    auto *pairs = new FoldingRow;
    pairs->Add(MakeFlags(u"Tabs", {{u"opUseCollectionType", u"Collection Type", u"One list for each collection type",
                                    &SiteOptions::UseCollectionType, true},
                                   {u"opUseMediaType", u"Media Type", u"One list for each media type",
                                    &SiteOptions::UseCollectionType, false}}));
    pairs->Add(MakeFlags(
        u"Sort By",
        {{u"opSortBySortTitle", u"Sort Title", u"Lists go by the sort titles", &SiteOptions::SortByTitle, true},
         {u"opSortByColNo", u"Collection Number", u"Lists go by the collection numbers, the highest first",
          &SiteOptions::SortByTitle, false}}));
    layout->addWidget(pairs);
    layout->addWidget(
        MakeFlags(u"Titles", {{u"opUseTitle", u"Title", u"Lists show the titles", &SiteOptions::UseTitle, true},
                              {u"opUseOriginalTitle", u"Original Title",
                               u"Lists show the original titles where there are any", &SiteOptions::UseTitle, false},
                              {u"checkUseCustomTitle", u"Use Custom Title",
                               u"Shows a title of your own instead, where there is one", &SiteOptions::UseCustomTitle},
                              {u"checkAppendEdition", u"Append Edition", u"Shows the edition behind the title",
                               &SiteOptions::AppendEdition}}));
    return page;
}

QGroupBox *frmHTMLExport::MakeProfiles() {
    auto *box = new QGroupBox(Text(u"Profiles"));
    auto *layout = new QVBoxLayout(box);
    filter_ = MakeCombo(u"comboFilter"_s, u"Filter", u"A saved query that tells which profiles are exported",
                        form_.Filters(), form_.options.Filter);
    readers_.emplace_back([this] { form_.options.Filter = filter_->currentText(); });
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(MakeLabel(u"Filter", filter_), filter_);
    layout->addLayout(form);
    QWidget *types = MakeColTypes();
    layout->addWidget(MakeLabel(u"Collection Types", types_));
    layout->addWidget(types, 1);
    return box;
}

QWidget *frmHTMLExport::MakeColTypes() {
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    types_ = new QListView;
    Describe(*types_, u"listColTypes"_s, u"Collection Types",
             u"Checked types are exported, in this order. Alt+Up and Alt+Down move a type.");
    types_->setModel(&form_.col_types);
    MakeLow(*types_);
    types_->viewport()->setBackgroundRole(
        QPalette::Window); // on which an empty check box can be seen in dark looks too
    auto *buttons = new QVBoxLayout;
    up_ = MakeButton(u"cbColTypeUp"_s, u"Up", u"Moves the selected type up (Alt+Up)");
    down_ = MakeButton(u"cbColTypeDown"_s, u"Down", u"Moves the selected type down (Alt+Down)");
    for (const auto &[button, key, by] : {std::tuple(up_, Qt::Key_Up, -1), std::tuple(down_, Qt::Key_Down, 1)}) {
        connect(button, &QPushButton::clicked, this, [this, by = by] { MoveColType(by); });
        connect(AddKey(*types_, QKeySequence(Qt::ALT | key)), &QShortcut::activated, this,
                [this, by = by] { MoveColType(by); });
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addWidget(types_, 1);
    layout->addLayout(buttons);
    connect(types_->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmHTMLExport::FollowColType);
    types_->setCurrentIndex(form_.col_types.index(0));
    FollowColType();
    return row;
}

QWidget *frmHTMLExport::MakeButtons() {
    auto *buttons = new QDialogButtonBox(this);
    save_ = MakeButton(u"cbSaveSettings"_s, u"Save Settings", u"Keeps these options for the next time");
    start_ = MakeButton(u"cbStart"_s, u"Start", u"Writes the site with these options, without keeping them");
    for (QPushButton *button : {save_, start_}) { // the others have keys of their own
        button->setText(keys_.Mark(button->accessibleName()));
    }
    auto *cancel = MakeButton(u"cbCancel"_s, u"Cancel", u"Closes the window");
    buttons->addButton(save_, QDialogButtonBox::ResetRole);
    buttons->addButton(start_, QDialogButtonBox::ActionRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    start_->setDefault(true);
    save_->setEnabled(form_.CanSave());
    connect(save_, &QPushButton::clicked, this, [this] {
        Read();
        form_.Save();
    });
    connect(start_, &QPushButton::clicked, this, &frmHTMLExport::Start);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmHTMLExport::reject);
    return buttons;
}

void frmHTMLExport::FollowSkin() {
    episodes_->setChecked(form_.ListsEpisodes(skin_->currentText()));
}

void frmHTMLExport::FollowColType() {
    const int row = types_->currentIndex().row();
    const bool up = form_.col_types.CanMove(row, -1);
    const bool down = form_.col_types.CanMove(row, 1);
    if ((up_->hasFocus() && !up) || (down_->hasFocus() && !down)) {
        types_->setFocus(); // else the next press would move the row back
    }
    up_->setEnabled(up);
    down_->setEnabled(down);
}

void frmHTMLExport::MoveColType(int by) {
    form_.col_types.Move(types_->currentIndex().row(), by);
    types_->scrollTo(types_->currentIndex());
    FollowColType();
}

void frmHTMLExport::ChooseMediaSkin() {
    form_.media_skins.ChooseSkin(media_->currentIndex().row());
}

void frmHTMLExport::Read() {
    for (const std::function<void()> &read : readers_) {
        read();
    }
}

void frmHTMLExport::Start() {
    if (form_.IsRunning()) {
        return;
    }
    Read();
    QWidget *focus = focusWidget();
    start_->setEnabled(false);
    save_->setEnabled(false);
    form_.Start();
    start_->setEnabled(true);
    save_->setEnabled(form_.CanSave());
    if (session_.EndProgram) {
        reject(); // the program ends behind this window
        return;
    }
    if (skin_->currentText().isEmpty()) {
        findChild<QTabWidget *>()->setCurrentIndex(0);
        focus = skin_; // what nothing could be written without
    }
    if (focus) {
        focus->setFocus();
    }
}

void frmHTMLExport::reject() {
    if (form_.IsRunning()) {
        form_.CancelRun();
        return;
    }
    QDialog::reject();
}

} // namespace ostrand
