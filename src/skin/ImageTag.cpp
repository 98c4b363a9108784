// Covers and the page with the large view of one.

#include "base/Files.h"
#include "base/Text.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "skin/CoverImage.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

QString FaceLetter(const QString &face) {
    const QString upper = face.toUpper();
    return upper == "FRONT"_L1 ? u"f"_s : upper == "BACK"_L1 ? u"b"_s : upper == "SPINE"_L1 ? u"s"_s : QString();
}

/// A side of the cover of one profile.
struct Cover {
    QString key; ///< without prefix
    QString letter;
    QString file; ///< the full path, spelt as on disk where it exists
    bool exists = false;
    bool own = false; ///< made with this program, so that nobody else has its cover

    QString Name() const { return SafeFileName(key) + letter + ".jpg"_L1; }
};

Cover FindCover(const TagCall &call, QString key, const QString &letter) {
    key.remove(u"Key_"_s);
    Cover cover{.key = key, .letter = letter};
    const QString &folder = call.session.CoverPath;
    call.skin.covers.SetFolder(folder);
    const QString found = call.skin.covers.Find(cover.Name());
    cover.exists = !found.isEmpty();
    cover.file = folder + (cover.exists ? QFileInfo(found).fileName() : cover.Name());
    cover.own = StartsWithIgnoringCase(key, u"osv");
    return cover;
}

QString SizeAttributes(const TagCall &call) {
    const QString height = call.Text(u"Height");
    const QString width = call.Text(u"Width", height.isEmpty() ? u"160"_s : QString());
    QString size;
    if (!width.isEmpty()) {
        size += " WIDTH="_L1 + width;
    }
    if (!height.isEmpty()) {
        size += " HEIGHT="_L1 + height;
    }
    return size;
}

bool IsShown(const TagCall &call, const Cover &cover) {
    return cover.exists || (call.options.offline && call.options.opUseMyProfilerScans && !cover.own);
}

/// Where the image is read from.
QString Source(const TagCall &call, const Cover &cover, CoverLink link) {
    const RenderOptions &options = call.options;
    if (link == CoverLink::Profile && options.offline && options.opUseMyProfilerScans && !cover.own) {
        return CoverHost() + "/mpimages/"_L1 + cover.key.left(2) + u'/' + cover.Name();
    }
    QString url = PathToFileUrl(cover.file);
    if (options.offline && cover.own && !options.opUseCoverScansLocally) {
        url.replace(PathToFileUrl(call.session.CoverPath), u"../Covers/"_s);
    }
    return url;
}

/// The page tells no encoding, so that it holds nothing but ASCII: such characters as references.
QString AsReferences(const QString &text) {
    QString plain;
    for (const char32_t character : text.toUcs4()) {
        if (character < 128 && character != U'\'') {
            plain += QChar(char16_t(character));
        } else {
            plain += "&#"_L1 + QString::number(character) + u';';
        }
    }
    return plain;
}

QByteArray ZoomPage(const TagCall &call, const Cover &cover) {
    // Escaped, so that a quote or a letter beyond ASCII in a folder's name reaches the browser whole.
    const QByteArray path = QUrl::toPercentEncoding(cover.file, "/:@!$()*+,;=");
    const QByteArray back = AsReferences(call.Translated(u"Back"_s)).toLatin1();
    return "    <HTML><BODY>\r\n<INPUT TYPE='button' onClick='window.history.back();' VALUE=' < " + back +
           " '><br/>\r\n<IMG SRC='file://" + path + "'>\r\n</BODY></HTML>";
}

void WriteZoomPage(const TagCall &call, const Cover &cover) {
    const QString &folder = call.session.TempFolder;
    MakeFolderPath(folder);
    QFile page(WithSeparator(folder) + cover.letter + ".html"_L1);
    const QByteArray content = ZoomPage(call, cover);
    if (!page.open(QIODevice::WriteOnly) || page.write(content) != content.size() || !page.flush()) {
        throw SkinFailure(page.fileName() + ": "_L1 + page.errorString());
    }
}

/// Where a click leads to.
QString Target(const TagCall &call, const Cover &cover, CoverLink link, const QString &source) {
    if (link == CoverLink::Zoom) {
        return call.options.offline ? source : cover.letter + ".html"_L1;
    }
    return call.options.offline ? call.ProfilePage(cover.key) : "blank.html?profileid="_L1 + cover.key;
}

} // namespace

void WriteCoverImage(const TagCall &call, const QString &key, CoverLink link, QString &text) {
    const QString letter = FaceLetter(call.Text(u"Face", u"FRONT"_s));
    if (letter.isEmpty() || (letter == "s"_L1 && call.options.offline && call.options.opUseMyProfilerScans)) {
        return;
    }
    const Cover cover = FindCover(call, key, letter);
    if (!IsShown(call, cover)) {
        return;
    }
    if (link == CoverLink::Zoom && !call.options.offline) {
        WriteZoomPage(call, cover);
    }
    const QString source = Source(call, cover, link);
    text += "<A HREF=\""_L1 + Target(call, cover, link, source) + "\"><IMG SRC=\""_L1 + source + u'"' +
            SizeAttributes(call) + "></A>"_L1;
}

void GetDPImage(const TagCall &call, QString &text) {
    WriteCoverImage(call, call.key, CoverLink::Zoom, text);
}

} // namespace ostrand
