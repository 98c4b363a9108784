#include "people/DropBox.h"

#include "base/Text.h"
#include "people/CrossLinks.h"
#include "people/HeadshotFiles.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView kExtension = ".jpg"_L1;

/// The local file that a text names.
QString LocalFile(const QString &dropped) {
    return StartsWithIgnoringCase(dropped, u"file:"_s) ? QUrl(dropped).toLocalFile() : dropped;
}

QString AskForPerson(Session &session, const QString &proposed) {
    bool cancelled = false;
    const QString name = InputText(session, Translate(session, u"Please enter name of person"_s),
                                   Translate(session, u"CreditName"_s), cancelled, proposed)
                             .trimmed();
    return cancelled || name.isEmpty() || !session.Database ? name : GetCommonName(session, name, 0);
}

/// Why a file cannot be taken; empty when it can.
QString FaultOf(Session &session, const QString &file) {
    if (StartsWithIgnoringCase(file, u"http:"_s) || StartsWithIgnoringCase(file, u"https:"_s)) {
        return u"pictures can be taken from files only"_s;
    }
    if (!QFileInfo(file).isFile()) {
        return u"there is no file "_s + file;
    }
    return session.services.images.Size(file) ? QString() : file + u" is no picture"_s;
}

/// Copies the picture; returns where, or nothing after it set the fault.
QString CopyPicture(Session &session, const QString &file, const QString &name, QString &fault) {
    const QString target = FreeHeadshotPlace(session.HeadshotPath, name).path;
    QFile source(file);
    if (!source.copy(target)) {
        fault = source.errorString();
        return {};
    }
    // A copy of a file that may only be read is to be mended and replaced all the same.
    QFile::setPermissions(target, QFile::permissions(target) | QFile::ReadOwner | QFile::WriteOwner);
    return target;
}

void SayFault(Session &session, const QString &fault) {
    Trace(session, u"frmDropBox_OLEDragDrop: "_s + fault, kTraceError);
    ShowMessage(session,
                {.text = Translate(session, u"An error occurred"_s), .title = {}, .icon = MessageIcon::Critical});
}

} // namespace

QString NameOfDrop(const QString &dropped) {
    const QString text = dropped.trimmed();
    const qsizetype separator = std::max(text.lastIndexOf(u'/'), text.lastIndexOf(u'\\'));
    return text.mid(separator + 1).remove(kExtension, Qt::CaseInsensitive);
}

QString StoreDrop(Session &session, const QString &dropped, DropType type) {
    const QString file = LocalFile(dropped.trimmed());
    if (!file.contains(kExtension, Qt::CaseInsensitive)) {
        return {};
    }
    if (session.HeadshotPath.isEmpty()) {
        ShowMessage(session, {.text = Translate(session, u"Please set source path to download the headshot into"_s),
                              .title = {},
                              .icon = MessageIcon::Warning});
        return {};
    }
    QString fault = FaultOf(session, file);
    QString stored;
    try {
        const QString proposed = NameOfDrop(file);
        if (fault.isEmpty()) {
            const QString name = type == DropType::Person ? AskForPerson(session, proposed) : proposed;
            if (!SafeFileName(name).trimmed().isEmpty()) {
                stored = CopyPicture(session, file, name, fault);
            }
        }
    } catch (const sql::SqlError &error) {
        fault = error.Text();
    }
    if (!fault.isEmpty()) {
        SayFault(session, fault);
    }
    return stored;
}

} // namespace ostrand
