#include "browser/ui/SheetPage.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ProfileSheet.h"
#include "shell/ui/Guarded.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolTip>

namespace ostrand {

SheetList::SheetList(ListTable &table, QWidget *parent) : QTreeView(parent) {
    setModel(&table);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // The order of the database stands until a header is clicked.
    const auto unsorted = [this] { header()->setSortIndicator(-1, Qt::AscendingOrder); };
    unsorted();
    setSortingEnabled(true);
    connect(&table, &QAbstractItemModel::modelReset, this, unsorted);
}

void SheetList::Stretch(const QList<int> &columns) {
    header()->setStretchLastSection(false);
    for (int column = 0; column < header()->count(); ++column) {
        const bool stretched = columns.contains(column);
        header()->setSectionResizeMode(column, stretched ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
}

bool SheetList::viewportEvent(QEvent *event) {
    if (event->type() != QEvent::ToolTip) {
        return QTreeView::viewportEvent(event);
    }
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const bool cut = index.isValid() && sizeHintForIndex(index).width() > columnWidth(index.column());
    QToolTip::showText(help->globalPos(), cut ? index.data().toString().toHtmlEscaped() : QString(), this);
    return true;
}

SheetPage::SheetPage(Browser &browser, ProfileSheet &sheet, const QString &name, QWidget *parent) :
    QWidget(parent), browser_(browser), sheet_(sheet) {
    setObjectName(name);
}

QString SheetPage::Text(const QString &english) const {
    return Translate(browser_.session, english);
}

QLabel *SheetPage::LabelFor(QWidget &control, const char *name, const QString &caption) {
    control.setObjectName(QLatin1String(name));
    QString plain = caption;
    control.setAccessibleName(plain.remove(u':'));
    auto *label = new QLabel(keys_.Mark(caption));
    label->setBuddy(&control);
    return label;
}

QPushButton *SheetPage::MakeButton(const char *name, const QString &caption, const QString &tool_tip) {
    auto *button = new QPushButton(keys_.Mark(caption));
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(caption);
    button->setToolTip(tool_tip);
    button->setAutoDefault(false);
    return button;
}

SheetList *SheetPage::MakeList(ListTable &table) {
    auto *list = new SheetList(table);
    LetCopy(*list);
    return list;
}

void SheetPage::LetCopy(QAbstractItemView &list) {
    auto *copy = new QShortcut(QKeySequence::Copy, &list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, [this, &list] { CopyListToClipboard(browser_, *list.model(), true); });
}

void SheetPage::Do(const std::function<void()> &action) {
    Guarded(browser_.session, action);
}

} // namespace ostrand
