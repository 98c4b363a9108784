#include "shell/ui/WindowDialogs.h"

#include "queries/ui/frmSQLUserInput.h"
#include "shell/ui/frmBrowseFolder.h"

namespace ostrand {

std::optional<QString> WindowDialogs::InputText(const QString &prompt, const QString &title, const QString &preset) {
    frmSQLUserInput dialog(translate, prompt, title, Parent());
    dialog.SetPlainFont();
    dialog.SetPreset(preset);
    dialog.exec();
    return dialog.OutputString();
}

std::optional<QString> WindowDialogs::InputCombo(const QString &prompt, const QString &title, const QStringList &values,
                                                 const QString &preset) {
    frmSQLUserInput dialog(translate, prompt, title, Parent());
    dialog.SetValues(values);
    dialog.SetPreset(preset);
    dialog.exec();
    return dialog.OutputString();
}

QString WindowDialogs::BrowseFolder(const QString &title, const QString &current) {
    frmBrowseFolder dialog(*this, translate, title, SystemDrives(translate), Parent());
    dialog.SetCurrentFolder(current);
    return dialog.exec() == QDialog::Accepted ? dialog.CurrentFolder() : QString();
}

} // namespace ostrand
