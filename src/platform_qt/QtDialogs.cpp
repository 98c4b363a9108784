#include "platform_qt/QtDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct AnswerButton {
    MessageAnswer answer;
    QMessageBox::StandardButton button;
    const char16_t *text;
};

constexpr AnswerButton kAnswers[] = {
    {MessageAnswer::Ok, QMessageBox::Ok, u"OK"},
    {MessageAnswer::Cancel, QMessageBox::Cancel, u"Cancel"},
    {MessageAnswer::Yes, QMessageBox::Yes, u"Yes"},
    {MessageAnswer::No, QMessageBox::No, u"No"},
};

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        break;
    case MessageButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::None:
        break;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Warning:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

/// The button of the neutral answer; where the box does not have it, the one that changes least.
QMessageBox::StandardButton NeutralButton(const Message &message) {
    const QMessageBox::StandardButtons buttons = ButtonsOf(message.buttons);
    for (const AnswerButton &row : kAnswers) {
        if (row.answer == message.neutral && buttons.testFlag(row.button)) {
            return row.button;
        }
    }
    for (const auto button : {QMessageBox::Cancel, QMessageBox::No}) {
        if (buttons.testFlag(button)) {
            return button;
        }
    }
    return QMessageBox::Ok;
}

/// "*.txt" gives "txt"; nothing for a pattern without one extension.
QString SuffixOf(const QStringList &filters) {
    const QString pattern = filters.value(0).section(u'|', 1).section(u';', 0, 0).trimmed();
    const QString suffix = pattern.startsWith("*."_L1) ? pattern.mid(2) : QString();
    return suffix.contains(u'*') ? QString() : suffix;
}

void SetInitial(QFileDialog &dialog, const QString &initial) {
    if (initial.isEmpty()) {
        return;
    }
    const QFileInfo info(initial);
    if (info.isDir()) {
        dialog.setDirectory(initial);
        return;
    }
    if (info.dir().exists()) {
        dialog.setDirectory(info.path());
    }
    dialog.selectFile(info.fileName());
}

} // namespace

QString NameFilter(const QString &filter, const QString &all_files) {
    const QString text = filter.section(u'|', 0, 0).trimmed();
    QStringList patterns;
    for (const QString &pattern : filter.section(u'|', 1).split(u';', Qt::SkipEmptyParts)) {
        // Names without an extension are files too.
        patterns += pattern.trimmed() == "*.*"_L1 ? u"*"_s : pattern.trimmed();
    }
    if (patterns.isEmpty()) {
        patterns += u"*"_s;
    }
    // Brackets in the text would be taken for the patterns.
    const QString shown = (text.isEmpty() ? all_files : text).section(u'(', 0, 0).trimmed();
    return u"%1 (%2)"_s.arg(shown, patterns.join(u' '));
}

MessageAnswer QtDialogs::Show(const Message &message) {
    QMessageBox box(Parent());
    box.setObjectName(u"MessageBox"_s);
    box.setIcon(IconOf(message.icon));
    box.setWindowTitle(message.title.isEmpty() ? u"Ostrand"_s : message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setStandardButtons(ButtonsOf(message.buttons));
    for (const AnswerButton &row : kAnswers) {
        const QString text = QString::fromUtf16(row.text);
        QAbstractButton *button = box.button(row.button);
        if (button && Translated(text) != text) {
            button->setText(Translated(text));
        }
    }
    const QMessageBox::StandardButton neutral = NeutralButton(message);
    box.setDefaultButton(neutral);
    box.setEscapeButton(neutral);
    const int pressed = box.exec();
    for (const AnswerButton &row : kAnswers) {
        if (row.button == pressed) {
            return row.answer;
        }
    }
    return message.neutral;
}

QString QtDialogs::ChooseFile(const FileRequest &request, bool save) const {
    QFileDialog dialog(Parent(), request.title);
    dialog.setObjectName(u"FileDialog"_s);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    QStringList filters;
    for (const QString &filter : request.filters) {
        filters += NameFilter(filter, Translated(u"All files"_s));
    }
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
    }
    if (save) {
        dialog.setDefaultSuffix(SuffixOf(request.filters));
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &chosen) {
            const qsizetype place = filters.indexOf(chosen);
            dialog.setDefaultSuffix(SuffixOf(request.filters.mid(std::max<qsizetype>(place, 0), 1)));
        });
    }
    SetInitial(dialog, request.initial);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

QString QtDialogs::OpenFile(const FileRequest &request) {
    return ChooseFile(request, false);
}

QString QtDialogs::SaveFile(const FileRequest &request) {
    return ChooseFile(request, true);
}

} // namespace ostrand
