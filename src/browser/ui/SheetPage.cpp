#include "browser/ui/SheetPage.h"

#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ProfileSheet.h"
#include "browser/ui/Guarded.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

namespace ostrand {

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

QTreeView *SheetPage::MakeList(ListTable &table) {
    auto *list = new QTreeView;
    list->setModel(&table);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // The order of the database stands until a header is clicked.
    const auto unsorted = [list] { list->header()->setSortIndicator(-1, Qt::AscendingOrder); };
    unsorted();
    list->setSortingEnabled(true);
    connect(&table, &QAbstractItemModel::modelReset, list, unsorted);
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
