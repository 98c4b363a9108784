#include "browser/ui/CrewFrame.h"

#include "browser/Browser.h"
#include "browser/CreditCommands.h"
#include "browser/ui/CreditListView.h"
#include "browser/ui/KeptPerson.h"
#include "browser/ui/PersonDelegate.h"
#include "shell/ui/Guarded.h"

#include <QContextMenuEvent>
#include <QStackedLayout>

namespace ostrand {

namespace {

/// Name and birth year of a node; both are empty for one that is no person.
CreditPerson PersonOf(const QModelIndex &index) {
    return PersonOfTag(index.data(CrewTree::TagRole).toString());
}

} // namespace

CrewTreeView::CrewTreeView(Browser &browser, QWidget *parent) : QTreeView(parent), browser_(browser) {
    setObjectName(QStringLiteral("treeCrew"));
    setModel(&browser_.credits.treeCrew);
    setItemDelegate(new PersonDelegate(CrewTree::CaptionRole, CrewTree::HeadshotRole, this));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(&browser_.credits.treeCrew, &QAbstractItemModel::modelReset, this, [this] {
        expandAll();
        scrollToTop();
    });
    kept_ = new KeptPerson(browser_.credits, *this, CrewTree::NameRole, CrewTree::PositionRole);
}

void CrewTreeView::ChoosePerson(const QModelIndex &index) {
    const auto [name, birth_year] = PersonOf(index);
    if (!name.isEmpty()) {
        Guarded(browser_.session, [&, person = name, year = birth_year] { UpdateCastInfo(browser_, person, year); });
    }
}

bool CrewTreeView::FindPerson() {
    const QString name = PersonOf(currentIndex()).name;
    if (!name.isEmpty()) {
        Guarded(browser_.session, [&] { FindCreditAppearances(browser_, name); });
    }
    return !name.isEmpty();
}

void CrewTreeView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!selected.isEmpty() && currentIndex().isValid() && !kept_->IsRestoring()) {
        ChoosePerson(currentIndex());
    }
}

void CrewTreeView::mousePressEvent(QMouseEvent *event) {
    const bool selected_before = selectionModel()->isSelected(indexAt(event->pos()));
    QTreeView::mousePressEvent(event);
    const QModelIndex pressed = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && pressed.isValid() && selected_before) {
        ChoosePerson(pressed); // another person may have been shown since
    }
}

void CrewTreeView::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || !FindPerson()) {
        QTreeView::mouseDoubleClickEvent(event);
    }
}

void CrewTreeView::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::Copy)) {
        CopyTreeToClipboard(browser_, browser_.credits.treeCrew);
        event->accept();
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !FindPerson()) {
        QTreeView::keyPressEvent(event);
    }
}

void CrewTreeView::contextMenuEvent(QContextMenuEvent *event) {
    const bool by_key = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    Q_EMIT MenuWanted(by_key ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : event->globalPos());
}

CrewFrame::CrewFrame(Browser &browser, QWidget *parent) :
    QWidget(parent), browser_(browser),
    ListCrew_(new CreditListView(browser, browser.credits.ListCrew, QStringLiteral("ListCrew"),
                                 browser.session.view.CrewOrderColumns)),
    treeCrew_(new CrewTreeView(browser)), views_(new QStackedLayout(this)) {
    setObjectName(QStringLiteral("FrameCrew"));
    views_->addWidget(ListCrew_);
    views_->addWidget(treeCrew_);
    connect(ListCrew_, &CreditListView::MenuWanted, this, &CrewFrame::MenuWanted);
    connect(treeCrew_, &CrewTreeView::MenuWanted, this, &CrewFrame::MenuWanted);
    connect(&browser_.credits, &CreditsPanel::CrewViewChanged, this, &CrewFrame::ShowCrewView);
    connect(&browser_, &Browser::SettingsChanged, this, &CrewFrame::ShowCrewView);
    ShowCrewView();
}

void CrewFrame::ShowCrewView() {
    views_->setCurrentIndex(browser_.session.view.mCrewTreeView ? 1 : 0);
}

void CrewFrame::SetGridLines(bool shown) {
    ListCrew_->SetGridLines(shown);
}

void CrewFrame::TranslateNames() {
    const QString name = Translate(browser_.session, QStringLiteral("Crew"));
    ListCrew_->setAccessibleName(name);
    treeCrew_->setAccessibleName(name);
}

} // namespace ostrand
