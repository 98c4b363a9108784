#include "browser/ui/CoverPanel.h"

#include "browser/Browser.h"
#include "browser/MediaIcon.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"
#include "browser/ui/ActorView.h"
#include "browser/ui/GridDelegate.h"
#include "browser/ui/MediumIcon.h"
#include "browser/ui/PictureView.h"
#include "shell/ui/Guarded.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSignalBlocker>

namespace ostrand {

using namespace Qt::StringLiterals;

CoverPanel::CoverPanel(Browser &browser, QWidget *parent) :
    QWidget(parent), browser_(browser), listSeasons_(new QComboBox(this)), picMedium_(new MediumIcon(this)),
    picCover_(new PictureView(this)), picActor_(new ActorView(browser, this)) {
    setObjectName(QStringLiteral("Frame4_1"));
    listSeasons_->setObjectName(QStringLiteral("listSeasons"));
    listSeasons_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    picCover_->setObjectName(QStringLiteral("picCover"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(listSeasons_);
    layout->addWidget(picMedium_);
    layout->addWidget(picCover_, 1);
    layout->addWidget(picActor_, 1);

    connect(&browser_, &Browser::SeasonsChanged, this, &CoverPanel::ShowSeasons);
    connect(&browser_, &Browser::ModeChanged, this, &CoverPanel::ShowSeasons);
    listSeasons_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(listSeasons_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &place) { Q_EMIT SeasonMenuWanted(listSeasons_->mapToGlobal(place)); });
    connect(listSeasons_, &QComboBox::activated, this,
            [this](int index) { Guarded(browser_.session, [&] { SelectSeason(browser_, index); }); });
    connect(&browser_, &Browser::CoverChanged, this, [this] {
        picCover_->ShowFile(CurrentCoverFile(browser_));
        ShareHeight();
    });
    connect(picCover_, &PictureView::PictureFailed, this, &CoverPanel::ShareHeight);
    connect(picActor_, &ActorView::PictureShown, this, &CoverPanel::ShareHeight);
    picCover_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(picCover_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &place) { Q_EMIT CoverMenuWanted(picCover_->mapToGlobal(place)); });
    connect(picMedium_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &place) { Q_EMIT FieldMenuWanted(u"picMedium"_s, picMedium_->mapToGlobal(place)); });
    connect(picMedium_, &MediumIcon::ChangeWanted, this, [this] { Q_EMIT FieldChangeWanted(u"picMedium"_s); });
    for (const auto signal : {&Browser::TitleChanged, &Browser::PageShown, &Browser::SkinChanged, &Browser::ModeChanged,
                              &Browser::SettingsChanged}) {
        connect(&browser_, signal, this, &CoverPanel::ShowMedium);
    }
    connect(picCover_, &PictureView::Clicked, this, [this] { FlipCover(browser_); });
    TranslateNames();
    ShowSeasons();
    ShowMedium();
}

void CoverPanel::TranslateNames() {
    picMedium_->setAccessibleName(Translate(browser_.session, QStringLiteral("Medium")));
    listSeasons_->setAccessibleName(Translate(browser_.session, QStringLiteral("Season")));
    picCover_->setAccessibleName(Translate(browser_.session, QStringLiteral("Cover")));
    picActor_->TranslateNames();
    picCover_->setToolTip(Translate(browser_.session, QStringLiteral("Click to see the other side")));
}

void CoverPanel::ShowSeasons() {
    const QSignalBlocker quiet(listSeasons_);
    listSeasons_->clear();
    listSeasons_->addItems(browser_.listSeasons);
    listSeasons_->setCurrentIndex(browser_.current_season);
    listSeasons_->setVisible(browser_.session.view.mTVShows);
}

void CoverPanel::ShowMedium() {
    picMedium_->ShowIcon(ShownMediaIcon(browser_), browser_.picMedium_tool_tip);
    picMedium_->setVisible(IsMediaIconShown(browser_));
    const Session &session = browser_.session;
    const bool of_profile = !session.CurrentProfileID.isEmpty() && !session.CurrentIsEpisode;
    picMedium_->setFocusPolicy(of_profile ? Qt::StrongFocus : Qt::NoFocus);
}

int CoverPanel::CoverHeight() const {
    const QSize picture = picCover_->NaturalSize();
    // A picture as thin as a line would be higher than any window.
    return picture.isEmpty() ? 0 : std::min(width() * picture.height() / picture.width(), QWIDGETSIZE_MAX);
}

int CoverPanel::ActorHeight() const {
    return picActor_->isHidden() ? 0 : std::min(picActor_->HeightAt(width()), QWIDGETSIZE_MAX);
}

int CoverPanel::WantedHeight() const {
    const int cover = CoverHeight();
    const int actor = ActorHeight();
    return cover == 0 ? 0 : picCover_->y() + cover + (actor == 0 ? 0 : layout()->spacing() + actor);
}

void CoverPanel::ShareHeight() {
    auto *box = static_cast<QVBoxLayout *>(layout());
    const int cover = CoverHeight();
    const int actor = ActorHeight();
    box->setStretchFactor(picCover_, actor == 0 ? 1 : cover);
    box->setStretchFactor(picActor_, actor);
    // Room to spare stays below both.
    picCover_->setMaximumHeight(actor == 0 ? QWIDGETSIZE_MAX : cover);
    Q_EMIT WantedHeightChanged();
}

void CoverPanel::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        // Later: who hears of it changes the height, which must not happen within this event.
        QMetaObject::invokeMethod(this, &CoverPanel::ShareHeight, Qt::QueuedConnection);
    }
}

EpisodePanel::EpisodePanel(Browser &browser, QWidget *parent) :
    QWidget(parent), browser_(browser), listEpisodes_(new QTreeView(this)), delegate_(new GridDelegate(this)) {
    setObjectName(QStringLiteral("Frame4_2"));
    listEpisodes_->setObjectName(QStringLiteral("listEpisodes"));
    listEpisodes_->setModel(&browser_.listEpisodes);
    listEpisodes_->setItemDelegate(delegate_);
    listEpisodes_->setRootIsDecorated(false);
    listEpisodes_->setUniformRowHeights(true);
    listEpisodes_->setAllColumnsShowFocus(true);
    listEpisodes_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    listEpisodes_->header()->setSectionsClickable(true);
    listEpisodes_->setContextMenuPolicy(Qt::CustomContextMenu);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(listEpisodes_);
    ConnectList();
    TranslateNames();
}

void EpisodePanel::ConnectList() {
    connect(listEpisodes_->header(), &QHeaderView::sectionClicked, this, &EpisodePanel::SortByHeader);
    // Other episodes stand in the order of their own query.
    connect(&browser_.listEpisodes, &QAbstractItemModel::modelReset, this, [this] {
        sorted_by_ = -1;
        listEpisodes_->header()->setSortIndicatorShown(false);
    });
    connect(listEpisodes_, &QAbstractItemView::doubleClicked, this, &EpisodePanel::RowActivated);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *enter = new QShortcut(QKeySequence(key), listEpisodes_, nullptr, nullptr, Qt::WidgetShortcut);
        connect(enter, &QShortcut::activated, this, &EpisodePanel::RowActivated);
    }
    connect(listEpisodes_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &place) { Q_EMIT MenuWanted(listEpisodes_->viewport()->mapToGlobal(place)); });
    connect(listEpisodes_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (!following_ && current.isValid()) {
                    Guarded(browser_.session,
                            [&] { LoadEpisode(browser_, current.data(EpisodeList::KeyRole).toString()); });
                }
            });
    connect(&browser_, &Browser::CurrentEpisodeChanged, this, [this] {
        const QScopedValueRollback<bool> follow(following_, true);
        listEpisodes_->setCurrentIndex(browser_.listEpisodes.index(browser_.current_episode, 0));
    });
}

void EpisodePanel::SortByHeader(int column) {
    // The header flips its mark before it tells of the click, so that it cannot be asked.
    order_ = sorted_by_ == column && order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    sorted_by_ = column;
    SortEpisodes(browser_, column, order_);
    listEpisodes_->header()->setSortIndicatorShown(true);
    listEpisodes_->header()->setSortIndicator(column, order_);
}

int EpisodePanel::LeastHeight() const {
    constexpr int kRows = 3;
    return listEpisodes_->header()->sizeHint().height() + kRows * listEpisodes_->fontMetrics().height() * 5 / 4;
}

void EpisodePanel::SetGridLines(bool shown) {
    delegate_->SetGridLines(shown);
    listEpisodes_->viewport()->update();
}

void EpisodePanel::TranslateNames() {
    listEpisodes_->setAccessibleName(Translate(browser_.session, QStringLiteral("Episodes")));
}

} // namespace ostrand
