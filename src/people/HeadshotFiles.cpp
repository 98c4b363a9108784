#include "people/HeadshotFiles.h"

#include "base/Files.h"
#include "base/FolderIndex.h"
#include "base/Text.h"
#include "people/CrossLinks.h"
#include "people/HeadshotFolder.h"
#include "shell/Session.h"

#include <QDir>

namespace ostrand {

namespace {

bool HasYear(const QString &birth_year) {
    return !birth_year.isEmpty() && birth_year != QStringLiteral("0");
}

/// The common name; the name itself where no database can tell.
QString CommonName(Session &session, const QString &name, int birth_year) {
    if (!session.Database) {
        return name;
    }
    try {
        return GetCommonName(session, name, birth_year);
    } catch (const sql::SqlError &error) {
        Trace(session, QStringLiteral("LoadHeadShot: ") + error.Text(), kTraceError);
        return name;
    }
}

} // namespace

QString HeadshotStem(const QString &name, const QString &birth_year) {
    return HasYear(birth_year) ? name + u'(' + birth_year + u')' : name;
}

QString HeadshotFileName(const QString &stem, int alternate) {
    const QString suffix = alternate == 0 ? QString() : u'_' + QString::number(alternate);
    return SafeFileName(stem) + suffix + QStringLiteral(".jpg");
}

HeadshotPlace FreeHeadshotPlace(const QString &folder, const QString &stem) {
    int alternate = 0;
    while (!FindIgnoringCase(folder, HeadshotFileName(stem, alternate)).isEmpty()) {
        ++alternate;
    }
    return {WithSeparator(folder) + HeadshotFileName(stem, alternate), alternate};
}

void ChangePlaces(Session &session, const QString &routine, const QString &a, const QString &b) {
    QString error;
    if (!SwapPictures(a, b, &error)) {
        Trace(session, routine + QStringLiteral(": ") + error, kTraceError);
        ShowMessage(session,
                    {.text = Translate(session, QStringLiteral("The pictures cannot change places:")) + u'\n' + error,
                     .title = Translate(session, QStringLiteral("Make Primary")),
                     .icon = MessageIcon::Warning});
    }
}

QString FindHeadshot(Session &session, FolderIndex &index, const QString &name, const QString &birth_year,
                     int &alternate) {
    index.SetFolder(session.HeadshotPath);
    const bool has_year = HasYear(birth_year);
    const QString common = CommonName(session, name, has_year ? birth_year.toInt() : 0);
    QStringList stems = {HeadshotStem(common, birth_year), HeadshotStem(name, birth_year)};
    if (has_year) {
        stems << HeadshotStem(common, birth_year).remove(u'(' + birth_year + u')');
    }
    while (true) {
        for (const QString &stem : stems) {
            const QString found = index.Find(HeadshotFileName(stem, alternate));
            if (!found.isEmpty()) {
                return found;
            }
        }
        if (alternate == 0) {
            return {};
        }
        alternate = 0; // past the last one
    }
}

} // namespace ostrand
