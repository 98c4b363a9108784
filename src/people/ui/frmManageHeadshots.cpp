#include "people/ui/frmManageHeadshots.h"

#include "people/HeadshotTools.h"
#include "people/ui/HeadshotView.h"
#include "shell/Session.h"
#include "shell/ui/WindowPlace.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

namespace ostrand {

using namespace Qt::StringLiterals;

frmManageHeadshots::frmManageHeadshots(Session &session, QWidget *parent) :
    PeopleWindow(session, "frmManageHeadshots", u"Manage Headshots", parent), manager_(session) {
    setModal(true);
    auto *layout = new QHBoxLayout(this);
    auto *files = new QVBoxLayout;
    auto *picture = new QVBoxLayout;
    auto *buttons = new QVBoxLayout;
    MakeFilter(*files);
    MakeList(*files);
    MakePicture(*picture);
    MakeButtons(*buttons);
    layout->addLayout(files, 2);
    layout->addLayout(picture, 3);
    layout->addLayout(buttons);
    connect(&manager_.FileListImages, &QAbstractItemModel::modelReset, this,
            [this] { labelImageCount_->setText(manager_.labelImageCount()); });
    connect(FileListImages_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmManageHeadshots::LoadImage);
    labelImageCount_->setText(manager_.labelImageCount());
    KeepPlace([] {});
    FileListImages_->setFocus();
    new WindowPlace(session_, u"ManageHeadshots"_s, this,
                    sizeHint().expandedTo({fontMetrics().averageCharWidth() * 130, fontMetrics().lineSpacing() * 30}));
}

void frmManageHeadshots::MakeFilter(QBoxLayout &layout) {
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(keys_.Mark(Text(u"Filter")), this);
    textFilter_ = new QLineEdit(this);
    textFilter_->setObjectName(u"textFilter"_s);
    textFilter_->setAccessibleName(Text(u"Filter"));
    textFilter_->setToolTip(Text(u"What the names begin with; * and ? stand for anything"));
    textFilter_->setClearButtonEnabled(true);
    label->setBuddy(textFilter_);
    row->addWidget(label);
    row->addWidget(textFilter_, 1);
    layout.addLayout(row);
    checkFilterSubstring_ =
        AddCheckBox(layout, "checkFilterSubstring", u"Substring", u"The text may stand anywhere in the name");
    connect(textFilter_, &QLineEdit::textChanged, this, &frmManageHeadshots::ShowFilter);
    connect(checkFilterSubstring_, &QCheckBox::toggled, this, &frmManageHeadshots::ShowFilter);
}

void frmManageHeadshots::MakeList(QBoxLayout &layout) {
    auto *row = new QHBoxLayout;
    listAlphabeth_ = new QListWidget(this);
    listAlphabeth_->setObjectName(u"listAlphabeth"_s);
    listAlphabeth_->setAccessibleName(Text(u"First letter"));
    listAlphabeth_->setToolTip(Text(u"Shows the names that begin with the letter"));
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        listAlphabeth_->addItem(QString(QChar(letter)));
    }
    listAlphabeth_->setFixedWidth(listAlphabeth_->sizeHintForColumn(0) + fontMetrics().averageCharWidth() * 6);
    connect(listAlphabeth_, &QListWidget::itemSelectionChanged, this, [this] {
        if (const auto selected = listAlphabeth_->selectedItems(); !selected.isEmpty()) {
            const QSignalBlocker quiet(textFilter_);
            textFilter_->clear();
            KeepPlace([&] { manager_.ShowLetter(selected.first()->text()); });
        } else {
            ShowFilter();
        }
    });
    FileListImages_ = new QListView(this);
    FileListImages_->setObjectName(u"FileListImages"_s);
    FileListImages_->setAccessibleName(Text(u"Files"));
    FileListImages_->setModel(&manager_.FileListImages);
    FileListImages_->setUniformItemSizes(true);
    FileListImages_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    FileListImages_->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    LetCopy(*FileListImages_);
    OnDelete(*FileListImages_, u"Delete Images", [this] { DeleteSelected(); });
    row->addWidget(listAlphabeth_);
    row->addWidget(FileListImages_, 1);
    layout.addLayout(row, 1);
    labelImageCount_ = AddLabel(layout, "labelImageCount");
}

void frmManageHeadshots::MakePicture(QBoxLayout &layout) {
    picExisting_ = new HeadshotView(this);
    picExisting_->setObjectName(u"picExisting"_s);
    picExisting_->setAccessibleName(Text(u"Selected picture"));
    picExisting_->SetFaultText(Text(u"This file is no picture that can be shown."));
    layout.addWidget(picExisting_, 1);
    labelImageSizeExisting_ = AddLabel(layout, "labelImageSizeExisting");
    checkNoResizeLeft_ =
        AddCheckBox(layout, "checkNoResizeLeft", u"Do not resize", u"Shows pictures in their own size");
    checkNoResizeLeft_->setChecked(manager_.no_resize_left);
    picExisting_->SetNaturalSize(manager_.no_resize_left);
    connect(checkNoResizeLeft_, &QCheckBox::toggled, this, [this](bool on) {
        manager_.no_resize_left = on;
        picExisting_->SetNaturalSize(on);
    });
}

void frmManageHeadshots::AddTool(QBoxLayout &layout, const char *name, const char16_t *caption,
                                 const char16_t *tool_tip, void (*tool)(Session &session, const QString &folder)) {
    AddButton(layout, name, caption, tool_tip, [this, tool] { KeepPlace([&] { manager_.Run(tool); }); });
}

void frmManageHeadshots::MakeButtons(QBoxLayout &layout) {
    AddTool(layout, "cbRemoveDuplicates", u"Remove Duplicates",
            u"Deletes pictures of a person that are as long as another one of that person", DeleteDuplicateImages);
    AddTool(layout, "cbRemoveTrailingSpaces", u"Remove Trailing Spaces",
            u"Takes blanks at the ends and underscores out of the names", RemoveTrailingSpaces);
    AddTool(layout, "cbRenameAlternatives", u"Rename Alternatives (name1->name_1)",
            u"Gives further pictures of a person the names of alternates", RenameAlternatives);
    AddTool(layout, "cbRenameAliase", u"Rename Aliases to Common Names",
            u"Moves the pictures of an alias to the common name", RenameAlias);
    layout.addSpacing(fontMetrics().height());
    cbMakePrimary_ =
        AddButton(layout, "cbMakePrimary", u"Make Primary",
                  u"The selected alternate and the primary picture change places", [this] { MakePrimary(); });
    layout.addStretch();
    AddButton(layout, "cbExit", u"Exit", u"Closes this window", [this] { close(); });
}

QString frmManageHeadshots::CurrentName() const {
    return manager_.FileListImages.NameAt(FileListImages_->currentIndex().row());
}

void frmManageHeadshots::KeepPlace(const std::function<void()> &change) {
    const QString name = CurrentName();
    const int place = FileListImages_->currentIndex().row();
    change();
    SelectFile(name, place);
}

/// The file of that name; the one at that place when it is gone.
void frmManageHeadshots::SelectFile(const QString &name, int place) {
    const HeadshotFolder &list = manager_.FileListImages;
    const int same = list.RowOf(name);
    const int row = same >= 0 ? same : std::clamp(place, 0, std::max(0, list.rowCount() - 1));
    if (list.rowCount() > 0) {
        FileListImages_->setCurrentIndex(list.index(row));
        FileListImages_->scrollTo(list.index(row));
    }
    LoadImage();
}

void frmManageHeadshots::ShowFilter() {
    const QSignalBlocker quiet(listAlphabeth_);
    listAlphabeth_->clearSelection();
    KeepPlace([this] { manager_.ShowFilter(textFilter_->text(), checkFilterSubstring_->isChecked()); });
}

void frmManageHeadshots::LoadImage() {
    const QString path = manager_.FileListImages.PathAt(FileListImages_->currentIndex().row());
    picExisting_->ShowFile(path);
    labelImageSizeExisting_->setText(
        PictureSizeText(session_.services.images, path, session_.services.locale.DecimalSeparator()));
    cbMakePrimary_->setEnabled(HeadshotManager::CanMakePrimary(CurrentName()));
}

void frmManageHeadshots::DeleteSelected() {
    QStringList names;
    for (const QModelIndex &index : FileListImages_->selectionModel()->selectedIndexes()) {
        names += manager_.FileListImages.NameAt(index.row());
    }
    const int place = FileListImages_->currentIndex().row();
    if (manager_.DeleteImages(names)) {
        SelectFile({}, place - int(names.size()) + 1);
    }
}

void frmManageHeadshots::MakePrimary() {
    KeepPlace([this] { manager_.MakePrimary(CurrentName()); });
}

void frmManageHeadshots::done(int result) {
    manager_.KeepSettings();
    PeopleWindow::done(result);
}

} // namespace ostrand
