#include "shell/ui/frmSettings.h"

#include "shell/Session.h"
#include "shell/ui/PageArea.h"
#include "shell/ui/TextSize.h"

#include <QCheckBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QRegularExpressionValidator>
#include <QTabWidget>

namespace ostrand {

using namespace Qt::StringLiterals;

frmSettings::frmSettings(Session &session, QWidget *parent) : QDialog(parent), session_(session) {
    setObjectName(u"frmSettings"_s);
    setWindowTitle(Text(u"Settings"));
    form_.Load(session);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(MakePages(), 1);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    const auto name = [&](QDialogButtonBox::StandardButton which, const QString &object, const char16_t *text) {
        QPushButton *button = buttons->button(which);
        button->setObjectName(object);
        button->setText(Text(text));
        button->setAccessibleName(Text(text));
    };
    name(QDialogButtonBox::Ok, u"cbOK"_s, u"OK");
    name(QDialogButtonBox::Cancel, u"cbCancel"_s, u"Cancel");
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmSettings::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmSettings::reject);
    ResizeToText(*this, 90, 32);
}

QString frmSettings::Text(const char16_t *english) {
    return Translate(session_, QString::fromUtf16(english));
}

QTabWidget *frmSettings::MakePages() {
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"tabSettings"_s);
    tabs->setAccessibleName(Text(u"Settings"));
    Mnemonics keys;
    std::vector<std::pair<QString, QString>> pages; // and their titles, which come before what stands on them
    for (const SettingsGroupTexts &group : SettingsGroups()) {
        const QString page = QString::fromUtf16(group.page);
        if (pages.empty() || pages.back().first != page) {
            pages.emplace_back(page, keys.Mark(Text(group.page)));
        }
    }
    for (const auto &[page, title] : pages) {
        keys_ = keys; // one page is seen at a time
        tabs->addTab(MakePage(page), title);
    }
    LetTurnPages(*tabs, *this);
    return tabs;
}

QWidget *frmSettings::MakePage(const QString &page) {
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    for (const SettingsGroupTexts &group : SettingsGroups()) {
        if (page == group.page) {
            layout->addWidget(MakeGroup(group));
        }
    }
    layout->addStretch();
    return new PageArea(content);
}

QWidget *frmSettings::MakeGroup(const SettingsGroupTexts &group) {
    auto *box = new QGroupBox(Text(group.caption).replace(u"&"_s, u"&&"_s));
    auto *layout = new QFormLayout(box);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    for (const SettingsEntry &entry : SettingsEntries()) {
        if (entry.group == group.group) {
            AddEntry(*layout, entry);
        }
    }
    return box;
}

void frmSettings::AddEntry(QFormLayout &layout, const SettingsEntry &entry) {
    switch (entry.kind) {
    case SettingsEntryKind::Check:
        layout.addRow(MakeCheck(entry));
        break;
    case SettingsEntryKind::FontName: {
        QWidget *combo = MakeFont(entry);
        AddLabelled(layout, entry, combo, combo);
        break;
    }
    case SettingsEntryKind::WholeNumber:
    case SettingsEntryKind::FontSize: {
        QLineEdit *edit = MakeText(entry);
        const bool whole = entry.kind == SettingsEntryKind::WholeNumber;
        const QRegularExpression number(whole ? u"[0-9]*"_s : u"[0-9]*([.,][0-9]*)?"_s);
        edit->setValidator(new QRegularExpressionValidator(number, edit)); // other values would not be kept
        edit->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
        AddLabelled(layout, entry, edit, edit);
        break;
    }
    case SettingsEntryKind::Folder: {
        QLineEdit *path = MakeText(entry);
        AddLabelled(layout, entry, MakeFolder(entry, path), path);
        break;
    }
    case SettingsEntryKind::CheckedList: {
        QListWidget *list = MakeList();
        list->setObjectName(entry.Control());
        auto *label = new QLabel(keys_.Mark(Text(entry.caption)));
        label->setBuddy(list);
        list->setAccessibleName(Text(entry.caption));
        list->setToolTip(Text(entry.tool_tip));
        layout.addRow(label);
        layout.addRow(list);
        break;
    }
    }
}

void frmSettings::AddLabelled(QFormLayout &layout, const SettingsEntry &entry, QWidget *field, QWidget *control) {
    auto *label = new QLabel(keys_.Mark(Text(entry.caption)) + u':');
    label->setBuddy(control);
    control->setAccessibleName(Text(entry.caption));
    layout.addRow(label, field);
}

QWidget *frmSettings::MakeCheck(const SettingsEntry &entry) {
    auto *box = new QCheckBox(keys_.Mark(Text(entry.caption)));
    box->setObjectName(entry.Control());
    box->setAccessibleName(Text(entry.caption));
    box->setToolTip(Text(entry.tool_tip));
    box->setChecked(form_.IsChecked(entry.Control()));
    return box;
}

QWidget *frmSettings::MakeFont(const SettingsEntry &entry) {
    auto *combo = new QFontComboBox;
    combo->setObjectName(entry.Control());
    combo->setToolTip(Text(entry.tool_tip));
    const QString font = form_.Value(entry.Control());
    combo->setCurrentFont(QFont(font));
    combo->setEditText(font); // also of a font that this computer lacks
    return combo;
}

QLineEdit *frmSettings::MakeText(const SettingsEntry &entry) {
    auto *edit = new QLineEdit(form_.Value(entry.Control()));
    edit->setObjectName(entry.Control());
    edit->setToolTip(Text(entry.tool_tip));
    return edit;
}

QWidget *frmSettings::MakeFolder(const SettingsEntry &entry, QLineEdit *path) {
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *button = new QPushButton(u"..."_s);
    button->setObjectName(QString::fromUtf16(entry.button));
    button->setAccessibleName(Text(u"Choose") + u": "_s + Text(entry.caption));
    button->setToolTip(Text(u"Choose a folder"));
    MakeNarrow(*button);
    connect(button, &QPushButton::clicked, this, [this, path] {
        form_.SetValue(path->objectName(), path->text());
        form_.Browse(session_, path->objectName());
        path->setText(form_.Value(path->objectName()));
    });
    layout->addWidget(path, 1);
    layout->addWidget(button);
    return row;
}

QListWidget *frmSettings::MakeList() {
    auto *list = new QListWidget;
    for (const SettingsForm::IncludedType &type : form_.IncludedTypes()) {
        auto *item = new QListWidgetItem(Translate(session_, type.name), list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(type.checked ? Qt::Checked : Qt::Unchecked);
    }
    list->viewport()->setBackgroundRole(QPalette::Window); // on which an empty check box can be seen in dark looks too
    list->setMinimumHeight(fontMetrics().height() * 4);
    list->setMaximumHeight(fontMetrics().height() * 8);
    return list;
}

void frmSettings::Read() {
    for (const SettingsEntry &entry : SettingsEntries()) {
        QWidget *control = findChild<QWidget *>(entry.Control());
        if (const auto *box = qobject_cast<QCheckBox *>(control)) {
            form_.SetChecked(entry.Control(), box->isChecked());
        } else if (const auto *edit = qobject_cast<QLineEdit *>(control)) {
            form_.SetValue(entry.Control(), edit->text());
        } else if (const auto *combo = qobject_cast<QFontComboBox *>(control)) {
            form_.SetValue(entry.Control(), combo->currentText());
        } else if (const auto *list = qobject_cast<QListWidget *>(control)) {
            for (int row = 0; row < list->count(); ++row) {
                form_.SetIncluded(size_t(row), list->item(row)->checkState() == Qt::Checked);
            }
        }
    }
}

void frmSettings::accept() {
    Read();
    if (form_.Store(session_)) {
        QDialog::accept();
    }
}

} // namespace ostrand
