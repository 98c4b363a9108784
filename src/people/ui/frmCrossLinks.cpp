#include "people/ui/frmCrossLinks.h"

#include "people/Nominees.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/WindowPlace.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr double kNameWidth = 0.7;
constexpr double kYearWidth = 0.25;

/// Its columns keep their shares of its width.
class NameTree : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    void resizeEvent(QResizeEvent *event) override {
        QTreeView::resizeEvent(event);
        header()->resizeSection(CommonNames::CommonName, int(viewport()->width() * kNameWidth));
        header()->resizeSection(CommonNames::BirthYear, int(viewport()->width() * kYearWidth));
    }
};

} // namespace

frmCrossLinks::frmCrossLinks(Session &session, QWidget *parent) :
    PeopleWindow(session, "frmCrossLinks", u"Edit Cross-Links", parent), editor_(session) {
    setModal(true);
    auto *layout = new QHBoxLayout(this);
    auto *buttons = new QVBoxLayout;
    MakeButtons(*buttons);
    layout->addWidget(MakeNames(), 3);
    layout->addWidget(MakeAliases(), 2);
    layout->addLayout(buttons);
    connect(&editor_, &CrossLinkEditor::SelectionChanged, this, &frmCrossLinks::Follow);
    connect(listCommonNames_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid() && current.row() != editor_.Selected()) {
                    Guarded(session_, [&] { editor_.Select(current.row()); });
                }
            });
    connect(listAlias_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmCrossLinks::EnableButtons);
    connect(&editor_.listAlias, &QAbstractItemModel::modelReset, this, &frmCrossLinks::EnableButtons);
    // The first row is selected, so that the keys work at once.
    editor_.listCommonNames.sort(CommonNames::CommonName, Qt::AscendingOrder);
    editor_.Select(editor_.listCommonNames.rowCount() > 0 ? 0 : -1);
    setTabOrder(listCommonNames_, listAlias_);
    for (QWidget *before = listAlias_; auto *button : findChildren<QPushButton *>()) {
        setTabOrder(before, button);
        before = button;
    }
    listCommonNames_->setFocus();
    new WindowPlace(session_, u"CrossLinks"_s, this,
                    sizeHint().expandedTo({fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 26}));
}

QWidget *frmCrossLinks::MakeNames() {
    listCommonNames_ = new NameTree(this);
    listCommonNames_->setObjectName(u"listCommonNames"_s);
    listCommonNames_->setAccessibleName(Text(u"Common names"));
    listCommonNames_->setModel(&editor_.listCommonNames);
    listCommonNames_->setRootIsDecorated(false);
    listCommonNames_->setUniformRowHeights(true);
    listCommonNames_->setAllColumnsShowFocus(true);
    listCommonNames_->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    listCommonNames_->header()->setStretchLastSection(false);
    listCommonNames_->header()->setTextElideMode(Qt::ElideRight);
    listCommonNames_->header()->setSortIndicator(CommonNames::CommonName, Qt::AscendingOrder);
    listCommonNames_->setSortingEnabled(true);
    LetCopy(*listCommonNames_);
    OnDelete(*listCommonNames_, u"Remove Common Name", [this] { editor_.RemoveCommonName(); });
    return listCommonNames_;
}

QWidget *frmCrossLinks::MakeAliases() {
    auto *box = new QWidget(this);
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins({});
    labelAliasNames_ = AddLabel(*layout, "labelAliasNames");
    labelAliasNames_->setWordWrap(true);
    listAlias_ = new QListView(box);
    listAlias_->setObjectName(u"listAlias"_s);
    listAlias_->setAccessibleName(Text(u"Alias names"));
    listAlias_->setModel(&editor_.listAlias);
    listAlias_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    listAlias_->setUniformItemSizes(true);
    listAlias_->setMinimumWidth(fontMetrics().averageCharWidth() * 22);
    layout->addWidget(listAlias_);
    LetCopy(*listAlias_);
    OnDelete(*listAlias_, u"Remove Alias", [this] { RemoveAliasFromList(SelectedAlias()); });
    return box;
}

void frmCrossLinks::MakeButtons(QBoxLayout &layout) {
    AddButton(layout, "cbAddCommonName", u"Add 'Common Name'", u"Lists a name that aliases can be added to",
              [this] { editor_.AddCommonName(); });
    of_name_ += AddButton(layout, "cbAddAlias", u"Add Alias", u"Links another spelling to the selected name",
                          [this] { editor_.AddAlias(); });
    of_alias_ += AddButton(layout, "cbRemoveAlias", u"Remove Alias", u"Removes the link of the selected alias",
                           [this] { RemoveAliasFromList(SelectedAlias()); });
    of_alias_ += AddButton(layout, "cbSetAsCommon", u"Set Alias as Common Name",
                           u"The selected alias becomes the common name of its group",
                           [this] { editor_.SetAsCommon(SelectedAlias()); });
    of_name_ +=
        AddButton(layout, "cbChangeYear", u"Change BirthYear",
                  u"Gives all aliases of the selected name another birth year", [this] { editor_.ChangeYear(); });
    layout.addSpacing(fontMetrics().height());
    AddButton(layout, "cbAdjustAwardData", u"Adjust names in awards data",
              u"Brings the nominees of the award data to their common names", [this] { AdjustAwardData(session_); });
    AddButton(layout, "cbClearAlias", u"Delete All Entries", u"Deletes all cross-links of the database",
              [this] { editor_.ClearAlias(); });
    layout.addStretch();
    AddButton(layout, "cbExit", u"Exit", u"Closes this window", [this] { close(); });
}

QString frmCrossLinks::SelectedAlias() const {
    const QModelIndexList selected = listAlias_->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? QString() : selected.first().data().toString();
}

void frmCrossLinks::Follow() {
    labelAliasNames_->setText(editor_.labelAliasNames);
    const QModelIndex row = editor_.listCommonNames.index(editor_.Selected(), 0);
    if (row.isValid()) {
        listCommonNames_->setCurrentIndex(row);
        listCommonNames_->scrollTo(row);
    } else {
        listCommonNames_->clearSelection();
    }
    EnableButtons();
}

void frmCrossLinks::EnableButtons() {
    for (QPushButton *button : of_name_) {
        button->setEnabled(editor_.Selected() >= 0);
    }
    for (QPushButton *button : of_alias_) {
        button->setEnabled(editor_.Selected() >= 0 && !SelectedAlias().isEmpty());
    }
}

} // namespace ostrand
