#include "platform_qt/QtDesktop.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QUrl>
#ifdef Q_OS_WIN
#include <QProcess>
#endif

namespace ostrand {

void QtClipboard::SetText(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
}

QString QtClipboard::Text() const {
    return QGuiApplication::clipboard()->text();
}

bool QtKeyboard::CtrlHeld() const {
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
}

bool QtOpener::OpenUrl(const QString &url) {
    const QUrl target(url, QUrl::TolerantMode);
    return target.isValid() && QDesktopServices::openUrl(target);
}

bool QtOpener::OpenFile(const QString &path) {
    return QFileInfo::exists(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void QtOpener::ChooseApplication(const QString &path) {
#ifdef Q_OS_WIN
    // The dialog takes all that stands behind its name for the path, so the quotes of an argument list would harm.
    QProcess chooser;
    chooser.setProgram(QStringLiteral("RUNDLL32.EXE"));
    chooser.setNativeArguments(QStringLiteral("shell32.dll,OpenAs_RunDLL ") + QDir::toNativeSeparators(path));
    chooser.startDetached();
#else
    OpenFile(QFileInfo(path).absolutePath());
#endif
}

std::optional<std::pair<int, int>> QtImages::Size(const QString &path) const {
    if (path.isEmpty()) {
        return std::nullopt;
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return size.isEmpty() ? std::nullopt : std::optional(std::pair(size.width(), size.height()));
}

} // namespace ostrand
