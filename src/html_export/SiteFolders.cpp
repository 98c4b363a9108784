#include "html_export/SiteFolders.h"

#include "base/Files.h"
#include "html_export/SiteFiles.h"
#include "shell/Session.h"

#include <QDir>
#include <QDirIterator>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Names of one folder of the site, and where their files lie.
struct Copies {
    QLatin1String from;
    QLatin1String to;
    QStringList names;
};

/// S, E, M and B, and the digits in their four shapes.
QStringList BarcodeImageNames() {
    QStringList names = {u"S.png"_s, u"E.png"_s, u"M.png"_s, u"B.png"_s};
    for (const QChar shape : {u'G', u'R', u'L', u'B'}) {
        for (int digit = 0; digit < 10; ++digit) {
            names += shape + QString::number(digit) + ".png"_L1;
        }
    }
    return names;
}

std::vector<Copies> GeneralFiles() {
    return {
        {""_L1, ""_L1, {u"index.html"_s, u".htaccess"_s}},
        {"common/"_L1,
         "common/"_L1,
         {u"0.css"_s, u"iphonenav.css"_s, u"iphonenav.js"_s, u"iPhoneArrow.png"_s, u"iPhoneBackButton.png"_s,
          u"iPhoneButton.png"_s, u"iPhoneGoButton.png"_s, u"iPhoneToolbar.png"_s, u"pinstripes.png"_s}},
        {"images/"_L1, "common/"_L1, BarcodeImageNames()},
        {"images/"_L1,
         "Images/"_L1,
         {u"reset.png"_s, u"twisty-clsd.png"_s, u"twisty-open.png"_s, u"boxchild.png"_s, u"boxchild2.png"_s,
          u"OSVicon.ico"_s, u"downsimple.png"_s, u"upsimple.png"_s, u"blank.png"_s}},
    };
}

void MakeFolder(const QString &path) {
    if (!MakeFolderPath(path)) {
        throw SiteFault(path, true);
    }
}

} // namespace

QString SiteSourceFolder(const Session &session) {
    for (const QString &folder : session.services.folders.Resources()) {
        if (QFileInfo(folder + u"/html"_s).isDir()) {
            return folder + u"/html/"_s;
        }
    }
    return {};
}

void MakeSiteFolders(const QString &site, bool with_episodes) {
    for (const QLatin1String name :
         {"Images"_L1, "Profiles"_L1, "Covers"_L1, "Episodes"_L1, "common"_L1, "Headshots"_L1, "crosslink"_L1}) {
        if (with_episodes || name != "Episodes"_L1) {
            MakeFolder(site + name);
        }
    }
}

void CopyGeneralFiles(const Session &session, const QString &site) {
    const QString source = SiteSourceFolder(session);
    for (const Copies &copies : GeneralFiles()) {
        for (const QString &name : copies.names) {
            CopySiteFile(session, source + copies.from + name, site + copies.to + name);
        }
    }
}

void CopyFolderInto(const Session &session, const QString &from, const QString &to) {
    if (from.isEmpty() || !QFileInfo(from).isDir()) {
        return;
    }
    MakeFolder(to);
    QDirIterator files(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = WithSeparator(to) + QDir(from).relativeFilePath(file);
        MakeFolder(QFileInfo(target).path());
        CopySiteFile(session, file, target);
    }
}

bool CopySiteFile(const Session &session, const QString &from, const QString &to) {
    const bool copied = CopyInto(from, to);
    if (!copied) {
        Trace(session, u"Error copying folder "_s + from, kTraceError);
    }
    return copied;
}

} // namespace ostrand
