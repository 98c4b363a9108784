#include "browser/ui/frmFilterTags.h"

#include "browser/Browser.h"
#include "browser/CreditCommands.h"
#include "browser/TagFilter.h"
#include "shell/Session.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/Mnemonics.h"
#include "shell/ui/WindowPlace.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFilterTagsLetters = 46;
constexpr int kFilterTagsLines = 28;
constexpr int kTagsLookEvery = 1000; // milliseconds between looks at tags that no routine told of

void ForEachNode(const QAbstractItemModel &tree, const QModelIndex &above,
                 const std::function<void(const QModelIndex &)> &visit) {
    for (int row = 0; row < tree.rowCount(above); ++row) {
        const QModelIndex node = tree.index(row, 0, above);
        visit(node);
        ForEachNode(tree, node, visit);
    }
}

} // namespace

frmFilterTags::frmFilterTags(Browser &browser, QWidget *parent) :
    QDialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                        Qt::WindowCloseButtonHint),
    browser_(browser), treeTags_(new QTreeView(this)), labelNoTags_(new QLabel(this)), opOR_(new QRadioButton(this)),
    opAND_(new QRadioButton(this)), checkNOT_(new QCheckBox(this)) {
    setObjectName(u"frmFilterTags"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    MakeControls();
    Compose();
    ConnectControls();
    LoadTags(true);
    Refresh();
    new WindowPlace(
        browser_.session, u"FilterTags"_s, this,
        {fontMetrics().averageCharWidth() * kFilterTagsLetters, fontMetrics().lineSpacing() * kFilterTagsLines});
}

void frmFilterTags::MakeControls() {
    treeTags_->setObjectName(u"treeTags"_s);
    treeTags_->setModel(&tags_);
    treeTags_->setHeaderHidden(true);
    treeTags_->setUniformRowHeights(true);
    treeTags_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QFont font = treeTags_->font();
    font.setFamily(browser_.session.view.FontName);
    font.setPointSizeF(browser_.session.view.FontSize);
    treeTags_->setFont(font);
    labelNoTags_->setObjectName(u"labelNoTags"_s);
    labelNoTags_->setWordWrap(true);
    opOR_->setObjectName(u"opOR"_s);
    opOR_->setChecked(true);
    opAND_->setObjectName(u"opAND"_s);
    checkNOT_->setObjectName(u"checkNOT"_s);
}

void frmFilterTags::Compose() {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(treeTags_, 1);
    layout->addWidget(labelNoTags_);
    layout->addWidget(opOR_);
    layout->addWidget(opAND_);
    layout->addWidget(checkNOT_);
    setTabOrder(treeTags_, opOR_);
    setTabOrder(opOR_, opAND_);
    setTabOrder(opAND_, checkNOT_);
    treeTags_->setFocus();
}

void frmFilterTags::ConnectControls() {
    connect(&tags_, &TagTree::CheckChanged, this,
            [this](const QModelIndex &node) { UpdateCollectionList(node, false); });
    for (QAbstractButton *button : std::initializer_list<QAbstractButton *>{opOR_, opAND_, checkNOT_}) {
        connect(button, &QAbstractButton::clicked, this, [this] { UpdateCollectionList({}, false); });
    }
    auto *copy = new QShortcut(QKeySequence::Copy, treeTags_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, [this] { CopyTreeToClipboard(browser_, tags_); });
    connect(&browser_, &Browser::TagsChanged, this, &frmFilterTags::LoadTags);
    auto *look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [this] { LoadTags(false); });
    look->start(kTagsLookEvery);
    connect(&browser_, &Browser::ModeChanged, this, &frmFilterTags::Refresh);
    // Told after each change of the language.
    connect(&browser_, &Browser::FilterChanged, this, &frmFilterTags::Refresh);
}

void frmFilterTags::LoadTags(bool other_collection) {
    if (other_collection) {
        Guarded(browser_.session, [&] { tags_.Load(browser_.session, false); });
        treeTags_->expandAll();
        treeTags_->setCurrentIndex(tags_.index(0, 0));
    } else {
        FollowTags();
    }
    labelNoTags_->setVisible(tags_.rowCount() == 0);
}

void frmFilterTags::FollowTags() {
    const QString current = treeTags_->currentIndex().data(TagTree::TagRole).toString();
    QStringList closed;
    ForEachNode(tags_, {}, [&](const QModelIndex &node) {
        if (!treeTags_->isExpanded(node) && tags_.rowCount(node) > 0) {
            closed += node.data(TagTree::TagRole).toString();
        }
    });
    const QPoint scrolled(treeTags_->horizontalScrollBar()->value(), treeTags_->verticalScrollBar()->value());
    bool changed = false;
    try {
        changed = tags_.FollowChanges(browser_.session);
    } catch (const sql::SqlError &error) {
        Trace(browser_.session, u"FollowTags: "_s + error.Text(), kTraceError); // a box could come each second
    }
    if (!changed) {
        return;
    }
    treeTags_->expandAll();
    treeTags_->setCurrentIndex(tags_.index(0, 0));
    ForEachNode(tags_, {}, [&](const QModelIndex &node) {
        const QString tag = node.data(TagTree::TagRole).toString();
        if (tag == current) {
            treeTags_->setCurrentIndex(node);
        }
        if (closed.contains(tag)) {
            treeTags_->collapse(node);
        }
    });
    treeTags_->horizontalScrollBar()->setValue(scrolled.x());
    treeTags_->verticalScrollBar()->setValue(scrolled.y());
}

void frmFilterTags::changeEvent(QEvent *event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        LoadTags(false);
    }
    QDialog::changeEvent(event);
}

void frmFilterTags::UpdateCollectionList(const QModelIndex &node, bool single) {
    const TagFilter filter{.tags = single ? QStringList{node.data(TagTree::TagRole).toString()} : tags_.CheckedTags(),
                           .combined = opAND_->isChecked() ? TagFilter::Operator::And : TagFilter::Operator::Or,
                           .negated = checkNOT_->isChecked()};
    const auto action = [&] { ostrand::UpdateCollectionList(browser_, filter); };
    if (perform) {
        perform(action);
    } else {
        action();
    }
}

void frmFilterTags::Refresh() {
    const auto shown = [this](const char16_t *text) { return Translate(browser_.session, QString::fromUtf16(text)); };
    Mnemonics keys;
    const auto name = [&](QAbstractButton &button, const QString &caption, const QString &tool_tip) {
        button.setText(keys.Mark(caption));
        button.setAccessibleName(caption);
        button.setToolTip(tool_tip);
    };
    setWindowTitle(shown(u"Filter Profiles by Tags"));
    treeTags_->setAccessibleName(shown(u"Tags"));
    treeTags_->setToolTip(shown(u"Check the tags to filter by"));
    labelNoTags_->setText(shown(u"No title of this collection has a tag."));
    name(*opOR_, shown(u"Any of the tags (OR)"), shown(u"Titles with at least one of the checked tags"));
    name(*opAND_, shown(u"All of the tags (AND)"), shown(u"Titles with every checked tag"));
    name(*checkNOT_, shown(u"None of the tags (NOT)"), shown(u"Titles without any checked tag"));
    const bool movies = !browser_.session.view.mTVShows;
    for (QWidget *control : std::initializer_list<QWidget *>{treeTags_, opOR_, opAND_, checkNOT_}) {
        control->setEnabled(movies);
    }
}

} // namespace ostrand
