#include "people/ui/PeopleWindow.h"

#include "shell/ui/Guarded.h"

#include <QAbstractItemView>
#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QKeyEvent>

#include <numeric>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString SelectedText(const QAbstractItemView &list) {
    const QAbstractItemModel &model = *list.model();
    QList<int> rows;
    for (const QModelIndex &index : list.selectionModel()->selectedRows()) {
        rows += index.row();
    }
    if (rows.isEmpty()) {
        rows.resize(model.rowCount());
        std::iota(rows.begin(), rows.end(), 0);
    }
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const int row : rows) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells += model.index(row, column).data().toString().simplified();
        }
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

} // namespace

PeopleWindow::PeopleWindow(Session &session, const char *name, const char16_t *title, QWidget *parent) :
    QDialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                        Qt::WindowCloseButtonHint),
    session_(session) {
    setObjectName(QLatin1String(name));
    setWindowTitle(Text(title));
}

QString PeopleWindow::Text(const char16_t *english) const {
    return Translate(session_, QString::fromUtf16(english));
}

QPushButton *PeopleWindow::AddButton(QBoxLayout &layout, const char *name, const char16_t *caption,
                                     const char16_t *tool_tip, std::function<void()> pressed) {
    auto *button = new QPushButton(keys_.Mark(Text(caption)), this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(Text(caption));
    button->setToolTip(Text(tool_tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, pressed = std::move(pressed)] { Guarded(session_, pressed); });
    layout.addWidget(button);
    return button;
}

QCheckBox *PeopleWindow::AddCheckBox(QBoxLayout &layout, const char *name, const char16_t *caption,
                                     const char16_t *tool_tip) {
    auto *box = new QCheckBox(keys_.Mark(Text(caption)), this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(Text(caption));
    box->setToolTip(Text(tool_tip));
    layout.addWidget(box);
    return box;
}

QLabel *PeopleWindow::AddLabel(QBoxLayout &layout, const char *name) {
    auto *label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    layout.addWidget(label);
    return label;
}

QAction *PeopleWindow::AddEntry(QAbstractItemView &list, const QString &caption, QKeySequence::StandardKey key) {
    auto *entry = new QAction(caption, &list);
    entry->setShortcut(key);
    entry->setShortcutContext(Qt::WidgetShortcut);
    list.addAction(entry);
    list.setContextMenuPolicy(Qt::ActionsContextMenu);
    return entry;
}

void PeopleWindow::LetCopy(QAbstractItemView &list) {
    QAction *copy = AddEntry(list, Text(u"&Copy"), QKeySequence::Copy);
    copy->setObjectName(u"mCopyToClipboard"_s);
    connect(copy, &QAction::triggered, this,
            [this, &list] { session_.services.clipboard.SetText(SelectedText(list)); });
}

void PeopleWindow::OnDelete(QAbstractItemView &list, const char16_t *caption, std::function<void()> pressed) {
    QAction *remove = AddEntry(list, Text(caption), QKeySequence::Delete);
    remove->setObjectName(u"mDelete"_s);
    connect(remove, &QAction::triggered, this, [this, pressed = std::move(pressed)] { Guarded(session_, pressed); });
}

void PeopleWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
    } else if (auto *button = qobject_cast<QPushButton *>(focusWidget())) {
        button->click();
    }
}

} // namespace ostrand
