#include "shell/ui/frmBrowseFolder.h"

#include "platform/Services.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// A folder of the system looks as what cannot be chosen does.
QIcon Dimmed(const QIcon &icon) {
    QIcon dimmed;
    for (const QSize size : {QSize(16, 16), QSize(32, 32), QSize(64, 64)}) {
        dimmed.addPixmap(icon.pixmap(size, QIcon::Disabled));
    }
    return dimmed;
}

QIcon IconOf(const QStyle &style, const QString &image) {
    const struct {
        QLatin1String name;
        QStyle::StandardPixmap pixmap;
    } images[] = {
        {"FolderClosed"_L1, QStyle::SP_DirClosedIcon}, {"FolderOpen"_L1, QStyle::SP_DirOpenIcon},
        {"FolderRecycler"_L1, QStyle::SP_TrashIcon},   {"FolderSystem"_L1, QStyle::SP_DirClosedIcon},
        {"Folder"_L1, QStyle::SP_DirHomeIcon},         {"Drive"_L1, QStyle::SP_DriveHDIcon},
    };
    for (const auto &known : images) {
        if (image == known.name) {
            const QIcon icon = style.standardIcon(known.pixmap);
            return image == "FolderSystem"_L1 ? Dimmed(icon) : icon;
        }
    }
    return {};
}

/// Turns the names of images into icons; an open folder has its own.
class FolderDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool open = option->state.testFlag(QStyle::State_Open);
        const int role = open ? FolderTree::OpenImageRole : FolderTree::ImageRole;
        option->icon = IconOf(*option->widget->style(), index.data(role).toString());
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = QSize(16, 16);
    }
};

} // namespace

frmBrowseFolder::frmBrowseFolder(UserDialogs &dialogs, Translator translator, const QString &title,
                                 const std::vector<FolderDrive> &drives, QWidget *parent) :
    QDialog(parent),
    dialogs_(dialogs), translator_(std::move(translator)), model_(drives), treeFolders_(new QTreeView(this)) {
    setObjectName(u"frmBrowseFolder"_s);
    setWindowTitle(title.isEmpty() ? Translate(translator_, u"Select Folder"_s) : title);
    treeFolders_->setObjectName(u"treeFolders"_s);
    treeFolders_->setAccessibleName(Translate(translator_, u"Folders"_s));
    treeFolders_->setModel(&model_);
    treeFolders_->setItemDelegate(new FolderDelegate(treeFolders_));
    treeFolders_->setHeaderHidden(true);
    treeFolders_->setUniformRowHeights(true);
    treeFolders_->setExpandsOnDoubleClick(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(treeFolders_);
    BuildButtons();
    connect(treeFolders_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { Select(current); });
    Select({});
    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 60, metrics.lineSpacing() * 24);
}

void frmBrowseFolder::BuildButtons() {
    auto *buttons = new QDialogButtonBox(this);
    cbNewFolder_ = buttons->addButton(Translate(translator_, u"&New Folder"_s), QDialogButtonBox::ActionRole);
    cbOK_ = buttons->addButton(Translate(translator_, u"OK"_s), QDialogButtonBox::AcceptRole);
    auto *cancel = buttons->addButton(Translate(translator_, u"Cancel"_s), QDialogButtonBox::RejectRole);
    cbNewFolder_->setObjectName(u"cbNewFolder"_s);
    cbOK_->setObjectName(u"cbOK"_s);
    cancel->setObjectName(u"cbCancel"_s);
    cbOK_->setDefault(true);
    layout()->addWidget(buttons);
    connect(cbNewFolder_, &QPushButton::clicked, this, &frmBrowseFolder::NewFolder);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmBrowseFolder::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmBrowseFolder::reject);
}

void frmBrowseFolder::Select(const QModelIndex &index) {
    cbOK_->setEnabled(index.isValid());
    cbNewFolder_->setEnabled(index.isValid());
}

QString frmBrowseFolder::CurrentFolder() const {
    const QModelIndex current = treeFolders_->currentIndex();
    return current.isValid() ? QDir::toNativeSeparators(model_.Path(current)) : QString();
}

void frmBrowseFolder::SetCurrentFolder(const QString &path) {
    const QModelIndex found = model_.Find(path);
    if (!found.isValid()) {
        return;
    }
    treeFolders_->setCurrentIndex(found);
    treeFolders_->expand(found.parent());
    treeFolders_->scrollTo(found, QAbstractItemView::PositionAtCenter);
}

void frmBrowseFolder::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    // Only now the tree knows how much it can show.
    treeFolders_->scrollTo(treeFolders_->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void frmBrowseFolder::NewFolder() {
    const QModelIndex folder = model_.NewFolder(treeFolders_->currentIndex(), dialogs_, translator_);
    if (folder.isValid()) {
        treeFolders_->setCurrentIndex(folder);
        treeFolders_->setFocus();
    }
}

void frmBrowseFolder::accept() {
    const QString fault = FolderFault(model_.Path(treeFolders_->currentIndex()));
    if (!fault.isEmpty()) {
        dialogs_.Show({.text = Translate(translator_, fault), .title = {}, .icon = MessageIcon::Warning});
        return;
    }
    QDialog::accept();
}

} // namespace ostrand
