#include "shell/ui/ProgressWindow.h"

#include "platform_qt/ElidedLabel.h"
#include "shell/Progress.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kKeyRole = Qt::UserRole;
constexpr int kIconSize = 16;

/// Keeps the texts of ticked and open nodes in one line.
QIcon NoTick() {
    QPixmap empty(kIconSize, kIconSize);
    empty.fill(Qt::transparent);
    return QIcon(empty);
}

} // namespace

ProgressWindow::ProgressWindow(QWidget *parent) :
    QDialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                        Qt::WindowMinimizeButtonHint),
    labelProgress_(new ElidedLabel(this)), labelDetail_(new ElidedLabel(this)), labelCounter_(new QLabel(this)),
    progress_(new QProgressBar(this)), treeDetails_(new QTreeWidget(this)), chkCloseWhenFinished_(new QCheckBox(this)),
    cbClose_(new QPushButton(this)) {
    setObjectName(u"frmProgress"_s);
    Build();
    connect(chkCloseWhenFinished_, &QCheckBox::toggled, this, [this](bool on) {
        if (rules_) {
            rules_->SetCloseWhenFinished(on);
        }
    });
    connect(cbClose_, &QPushButton::clicked, this, &ProgressWindow::reject);
    connect(treeDetails_, &QTreeWidget::itemActivated, this, &ProgressWindow::NodeActivated);
}

void ProgressWindow::Build() {
    labelProgress_->setObjectName(u"labelProgress"_s);
    labelDetail_->setObjectName(u"labelDetail"_s);
    labelCounter_->setObjectName(u"labelCounter"_s);
    labelCounter_->setTextFormat(Qt::PlainText);
    progress_->setObjectName(u"progress"_s);
    progress_->setTextVisible(false);
    treeDetails_->setObjectName(u"treeDetails"_s);
    treeDetails_->setHeaderHidden(true);
    treeDetails_->setUniformRowHeights(true);
    treeDetails_->setExpandsOnDoubleClick(false);
    treeDetails_->header()->setStretchLastSection(true);
    chkCloseWhenFinished_->setObjectName(u"chkCloseWhenFinished"_s);
    cbClose_->setObjectName(u"cbClose"_s);
    cbClose_->setAutoDefault(false);

    auto *second_line = new QHBoxLayout;
    second_line->addWidget(labelDetail_, 1);
    second_line->addWidget(labelCounter_);
    auto *last_line = new QHBoxLayout;
    last_line->addWidget(chkCloseWhenFinished_);
    last_line->addStretch();
    last_line->addWidget(cbClose_);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labelProgress_);
    layout->addWidget(progress_);
    layout->addLayout(second_line);
    layout->addWidget(treeDetails_, 1);
    layout->addLayout(last_line);
}

void ProgressWindow::Attach(frmProgress &rules, Translator translator) {
    rules_ = &rules;
    translator_ = std::move(translator);
}

QSize ProgressWindow::DesignSize(bool details) const {
    const QFontMetrics metrics = fontMetrics();
    const QSize size(metrics.averageCharWidth() * 70, metrics.lineSpacing() * (details ? 26 : 0));
    return size.expandedTo(minimumSizeHint());
}

void ProgressWindow::ShowAs(Qt::WindowModality modality) {
    const bool open = isVisible();
    if (open && windowModality() == modality) {
        return;
    }
    QWidget *window = windows_.Get();
    const bool foreground = windows_.InForeground();
    if (open) {
        hide();
    }
    setWindowModality(modality);
    // A program in the background stays there.
    setAttribute(Qt::WA_ShowWithoutActivating, !foreground);
    winId();
    if (window && window != this) {
        windowHandle()->setTransientParent(window->windowHandle());
        if (!open) {
            const QRect frame(QPoint(), size());
            move(window->geometry().center() - frame.center());
        }
    }
    show();
    if (foreground) {
        activateWindow(); // while it was hidden, the desktop may have turned to another
    }
}

void ProgressWindow::Opened(const QString &title) {
    nodes_.clear();
    treeDetails_->clear();
    treeDetails_->hide();
    chkCloseWhenFinished_->hide();
    chkCloseWhenFinished_->setChecked(false);
    chkCloseWhenFinished_->setText(Translate(translator_, u"Close when &finished"_s));
    cbClose_->setText(Translate(translator_, u"Close"_s));
    cbClose_->setEnabled(false);
    treeDetails_->setAccessibleName(Translate(translator_, u"Details"_s));
    progress_->setAccessibleName(Translate(translator_, u"Progress"_s));
    setWindowTitle(title);
    layout()->activate(); // or the tree of a job before would still hold its room
    resize(DesignSize(false));
    ShowAs(Qt::ApplicationModal);
    // The job may go on for a while before it gives the next turn.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void ProgressWindow::TitleChanged(const QString &title) {
    setWindowTitle(title);
}

void ProgressWindow::LineChanged(const QString &line) {
    labelProgress_->setText(line);
}

void ProgressWindow::DetailChanged(const QString &detail) {
    labelDetail_->setText(detail);
}

void ProgressWindow::CounterChanged(const QString &counter) {
    labelCounter_->setText(counter);
}

void ProgressWindow::BarChanged(int value, int maximum) {
    progress_->setRange(0, std::max(maximum, 1));
    progress_->setValue(maximum > 0 ? std::clamp(value, 0, maximum) : 0);
}

void ProgressWindow::ShowTree() {
    // Only a job with details adds nodes.
    treeDetails_->show();
    chkCloseWhenFinished_->show();
    chkCloseWhenFinished_->setChecked(rules_ && rules_->CloseWhenFinished());
    const int before = height();
    resize(DesignSize(true));
    // It grows to both sides, and its end stays on the screen.
    const QRect room = screen()->availableGeometry();
    const int frame = frameGeometry().height();
    const int top = std::min(y() - (height() - before) / 2, room.bottom() + 1 - frame);
    move(x(), std::max(top, room.top()));
}

void ProgressWindow::NodeAdded(const QString &key, const QString &parent, const QString &text) {
    if (nodes_.isEmpty()) {
        ShowTree();
    }
    auto *item = new QTreeWidgetItem({text});
    item->setData(0, kKeyRole, key);
    item->setIcon(0, NoTick());
    if (frmProgress::IsProfileKey(key)) {
        item->setToolTip(0, Translate(translator_, u"Double-click to open the profile"_s));
    }
    QTreeWidgetItem *above = nodes_.value(parent);
    if (above) {
        above->addChild(item);
        above->setExpanded(true);
    } else {
        treeDetails_->addTopLevelItem(item);
    }
    nodes_.insert(key, item);
    item->setExpanded(true);
    treeDetails_->scrollToItem(item);
}

void ProgressWindow::NodeTicked(const QString &key) {
    if (QTreeWidgetItem *item = nodes_.value(key)) {
        item->setIcon(0, style()->standardIcon(QStyle::SP_DialogApplyButton));
        item->setData(0, Qt::AccessibleDescriptionRole, Translate(translator_, u"Done"_s));
        item->setExpanded(true);
    }
}

void ProgressWindow::Finished() {
    cbClose_->setEnabled(true);
    ShowAs(Qt::NonModal);
    cbClose_->setFocus();
}

void ProgressWindow::Closed() {
    hide();
}

void ProgressWindow::reject() {
    if (rules_ && rules_->IsShown()) {
        rules_->Close();
    } else {
        hide();
    }
}

void ProgressWindow::keyPressEvent(QKeyEvent *event) {
    // A default button would take the Enter that opens a profile in the tree.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && focusWidget() == cbClose_) {
        cbClose_->click();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void ProgressWindow::NodeActivated(const QTreeWidgetItem *item) {
    const QString key = item->data(0, kKeyRole).toString();
    if (frmProgress::IsProfileKey(key) && title_chosen) {
        title_chosen(key);
    }
}

} // namespace ostrand
