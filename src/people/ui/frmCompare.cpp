#include "people/ui/frmCompare.h"

#include "people/ui/HeadshotView.h"
#include "people/ui/frmComparerTools.h"
#include "people/ui/frmDropBox.h"
#include "platform_qt/ElidedLabel.h"
#include "shell/Session.h"
#include "shell/ui/BringUp.h"
#include "shell/ui/PressedLabel.h"
#include "shell/ui/WindowPlace.h"

#include <QCheckBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalBlocker>

namespace ostrand {

using namespace Qt::StringLiterals;

frmCompare::frmCompare(Session &session, QWidget *parent) :
    PeopleWindow(session, "frmCompare", u"Headshot Import Wizard", parent), import_(session) {
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    auto *pictures = new QHBoxLayout;
    auto *list = new QVBoxLayout;
    auto *left = new QVBoxLayout;
    auto *buttons = new QVBoxLayout;
    auto *right = new QVBoxLayout;
    left_ = MakeSide(*left, u"Existing Headshot in Headshot Folder", "picExisting", "labelImageSizeExisting",
                     "checkNoResizeLeft", import_.no_resize_left);
    MakeButtons(*buttons);
    right_ = MakeSide(*right, u"New Headshot in Source Folder", "picNew", "labelImageSizeNew", "checkNoResizeRight",
                      import_.no_resize_right);
    MakeList(*list);
    pictures->addLayout(left, 3);
    pictures->addLayout(buttons);
    pictures->addLayout(right, 3);
    pictures->addLayout(list, 2);
    layout->addLayout(pictures, 1);
    MakeCopyRow(*layout);
    MakeSource(*layout);
    connect(&import_, &HeadshotImport::PicturesChanged, this, &frmCompare::ShowPictures);
    connect(FileListImages_->selectionModel(), &QItemSelectionModel::currentChanged, this, &frmCompare::LoadImage);
    ShowList(0);
    FileListImages_->setFocus();
    new WindowPlace(session_, u"HeadshotImport"_s, this,
                    sizeHint().expandedTo({fontMetrics().averageCharWidth() * 150, fontMetrics().lineSpacing() * 32}));
}

frmCompare::Side frmCompare::MakeSide(QBoxLayout &layout, const char16_t *caption, const char *picture,
                                      const char *size, const char *box, bool &no_resize) {
    Side side;
    auto *label = new QLabel(Text(caption), this);
    label->setWordWrap(true);
    layout.addWidget(label);
    side.picture = new HeadshotView(this);
    side.picture->setObjectName(QLatin1String(picture));
    side.picture->setAccessibleName(Text(caption));
    side.picture->SetFaultText(Text(u"This file is no picture that can be shown."));
    side.picture->SetNaturalSize(no_resize);
    layout.addWidget(side.picture, 1);
    side.size = AddLabel(layout, size);
    side.no_resize = AddCheckBox(layout, box, u"Do not resize", u"Shows pictures in their own size");
    side.no_resize->setChecked(no_resize);
    connect(side.no_resize, &QCheckBox::toggled, this, [&no_resize, view = side.picture](bool on) {
        no_resize = on;
        view->SetNaturalSize(on);
    });
    return side;
}

void frmCompare::MakeButtons(QBoxLayout &layout) {
    // Made first, since no letter would be left for its key.
    QPushButton *more = AddButton(layout, "cbMore", u"More", u"Opens tools that work on all files of the source folder",
                                  [this] { OpenTools(); });
    layout.removeWidget(more);
    layout.addStretch();
    cbCopyImage_ = AddButton(layout, "cbCopyImage", u"Copy Image", u"Copies the right picture into the headshot folder",
                             [this] { import_.CopyImage(); });
    copy_caption_ = u"<< "_s + cbCopyImage_->text();
    replace_caption_ = keys_.Mark(u"<< "_s + Text(u"Replace Image"));
    cbCopyAlternative_ = AddButton(layout, "cbCopyAlternative", u"<< Copy as Alternative",
                                   u"Keeps the right picture beside those that exist", [this] { CopyAlternative(); });
    cbMakePrimary_ = AddButton(layout, "cbMakePrimary", u"Make Primary",
                               u"The alternate copied last and the primary picture change places",
                               [this] { import_.MakePrimary(); });
    layout.addSpacing(fontMetrics().height());
    of_picture_ = {
        AddButton(layout, "cbEditImage", u"Edit Right Image", u"Opens the right picture in the image editor",
                  [this] { import_.EditImage(); }),
        AddButton(layout, "cbOpenImage", u"Open Right Image",
                  u"Opens the right picture with the program that the system has for it",
                  [this] { import_.OpenImage(); }),
        AddButton(layout, "cbReload", u"Reload Image", u"Reads both pictures again", [this] { LoadImage(); }),
        cbCopyImage_};
    auto *editor = new PressedLabel(this);
    editor->setObjectName(u"labelClickHere"_s);
    const QString caption = Text(u"Click here to change Editor");
    editor->setText(caption);
    editor->SetPressable(true);
    editor->setAccessibleName(caption);
    editor->setToolTip(Text(u"Chooses the program that edits pictures"));
    connect(editor, &PressedLabel::Pressed, this, &frmCompare::SetImageEditor);
    layout.addWidget(editor);
    layout.addStretch();
    QPushButton *box = AddButton(layout, "cbDropBox", u"Image Drop Box",
                                 u"Opens a small window that takes dropped pictures", [this] { OpenDropBox(); });
    layout.addWidget(more);
    setTabOrder(box, more);
    AddButton(layout, "cbExit", u"Exit", u"Closes this window", [this] { close(); });
}

void frmCompare::MakeList(QBoxLayout &layout) {
    auto *label = new QLabel(keys_.Mark(Text(u"Files in Source Folder")), this);
    label->setWordWrap(true);
    layout.addWidget(label);
    FileListImages_ = new QListView(this);
    FileListImages_->setObjectName(u"FileListImages"_s);
    FileListImages_->setAccessibleName(Text(u"Files in Source Folder"));
    FileListImages_->setModel(&import_.FileListImages);
    FileListImages_->setUniformItemSizes(true);
    FileListImages_->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    label->setBuddy(FileListImages_);
    LetCopy(*FileListImages_);
    layout.addWidget(FileListImages_, 1);
    labelImageCount_ = AddLabel(layout, "labelImageCount");
}

void frmCompare::MakeSource(QBoxLayout &layout) {
    auto *row = new QHBoxLayout;
    AddButton(*row, "cbSetSourcePath", u"Set Source Folder of new headshots",
              u"Chooses the folder that new pictures come from", [this] { ChooseSource(); });
    auto *folder = new ElidedLabel(this);
    labelSourceFolder_ = folder;
    folder->setObjectName(u"labelSourceFolder"_s);
    folder->setAccessibleName(Text(u"Source folder"));
    row->addWidget(folder, 1);
    layout.addLayout(row);
}

void frmCompare::MakeCopyRow(QBoxLayout &layout) {
    auto *row = new QHBoxLayout;
    checkAlsoCopyTo_ = AddCheckBox(*row, "checkAlsoCopyTo", u"also copy to...",
                                   u"Pictures that are copied go to a further folder too");
    textCopyFolder_ = new QLineEdit(this);
    textCopyFolder_->setObjectName(u"textCopyFolder"_s);
    textCopyFolder_->setAccessibleName(Text(u"Further folder for copies"));
    textCopyFolder_->setReadOnly(true);
    row->addWidget(textCopyFolder_, 1);
    layout.addLayout(row);
    checkAlsoCopyTo_->setChecked(import_.also_copy);
    textCopyFolder_->setText(QDir::toNativeSeparators(import_.additional_folder));
    textCopyFolder_->setEnabled(import_.also_copy);
    connect(checkAlsoCopyTo_, &QCheckBox::toggled, this, [this](bool on) {
        import_.also_copy = on;
        if (on) {
            setAdditionalCopyFolder();
        }
        textCopyFolder_->setEnabled(import_.also_copy);
    });
}

void frmCompare::setAdditionalCopyFolder() {
    if (!import_.setAdditionalCopyFolder()) {
        import_.also_copy = false;
        const QSignalBlocker quiet(checkAlsoCopyTo_);
        checkAlsoCopyTo_->setChecked(false);
    }
    textCopyFolder_->setText(QDir::toNativeSeparators(import_.additional_folder));
}

void frmCompare::ChooseSource() {
    import_.ChooseSourcePath();
    UpdateSourceImageList();
}

void frmCompare::UpdateSourceImageList() {
    const int place = FileListImages_->currentIndex().row();
    const QString name = import_.FileListImages.NameAt(place);
    import_.UpdateSourceImageList();
    const HeadshotFolder &list = import_.FileListImages;
    const int same = list.RowOf(name);
    ShowList(same >= 0 ? same : std::clamp(place, 0, std::max(0, list.rowCount() - 1)));
}

void frmCompare::ShowList(int row) {
    const HeadshotFolder &list = import_.FileListImages;
    FileListImages_->setCurrentIndex(list.index(row));
    LoadImage();
    labelImageCount_->setText(QString::number(list.rowCount()) + u' ' + Text(u"Images"));
    labelSourceFolder_->setText(QDir::toNativeSeparators(list.Folder()));
}

void frmCompare::LoadImage() {
    import_.LoadImage(FileListImages_->currentIndex().row());
}

void frmCompare::EnableEditMode(bool on) {
    for (QPushButton *button : of_picture_) {
        button->setEnabled(on);
    }
}

void frmCompare::ShowSide(const Side &side, const QString &path) {
    side.picture->ShowFile(path);
    side.size->setText(PictureSizeText(session_.services.images, path, session_.services.locale.DecimalSeparator()));
}

void frmCompare::ShowPictures() {
    const QString existing = import_.ExistingPath();
    ShowSide(left_, existing);
    ShowSide(right_, import_.SourcePath());
    cbCopyImage_->setAccessibleName(import_.CopyImageText());
    cbCopyImage_->setText(existing.isEmpty() ? copy_caption_ : replace_caption_);
    EnableEditMode(!import_.SourcePath().isEmpty());
    cbCopyAlternative_->setEnabled(!existing.isEmpty() && !import_.SourcePath().isEmpty());
    cbMakePrimary_->setEnabled(import_.CanMakePrimary());
}

void frmCompare::OpenTools() {
    frmComparerTools(session_, import_, this).exec();
    UpdateSourceImageList();
}

void frmCompare::OpenDropBox() {
    auto *box = findChild<frmDropBox *>();
    if (!box) {
        box = new frmDropBox(session_, this); // a child, so that it can be used beside this modal window
        connect(box, &frmDropBox::PictureStored, this, &frmCompare::UpdateSourceImageList);
    }
    BringUp(*box);
}

void frmCompare::done(int result) {
    import_.KeepSettings();
    PeopleWindow::done(result);
}

} // namespace ostrand
