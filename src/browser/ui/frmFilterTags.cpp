#include "browser/ui/frmFilterTags.h"

#include "browser/Browser.h"
#include "browser/CreditCommands.h"
#include "browser/TagFilter.h"
#include "browser/ui/Guarded.h"
#include "shell/Session.h"
#include "shell/ui/Mnemonics.h"
#include "shell/ui/WindowPlace.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kDesignLetters = 46;
constexpr int kDesignLines = 28;

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
    new WindowPlace(browser_.session, u"FilterTags"_s, this,
                    {fontMetrics().averageCharWidth() * kDesignLetters, fontMetrics().lineSpacing() * kDesignLines});
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
    connect(&browser_, &Browser::ModeChanged, this, &frmFilterTags::Refresh);
    // Told after each change of the language.
    connect(&browser_, &Browser::FilterChanged, this, &frmFilterTags::Refresh);
}

void frmFilterTags::LoadTags(bool other_collection) {
    Guarded(browser_.session, [&] { tags_.Load(browser_.session, !other_collection); });
    treeTags_->expandAll();
    treeTags_->setCurrentIndex(tags_.index(0, 0));
    labelNoTags_->setVisible(tags_.rowCount() == 0);
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
