#include "skin/SkinPage.h"

#include "base/Files.h"
#include "base/Text.h"
#include "browser/ProfileInfos.h"
#include "database/DatabaseFunctions.h"
#include "platform/HtmlView.h"
#include "shell/Session.h"
#include "skin/TextConversion.h"
#include "xml/Utf8Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr unsigned char kMarkOfUtf8 = 239;

QString SkinsFolder(const Session &session) {
    return session.DataFolder + u"/Skins"_s;
}

template <typename Hook, typename... Arguments>
void Call(const Hook &hook, const Arguments &...arguments) {
    if (hook) {
        hook(arguments...);
    }
}

/// A step whose failure is passed over.
template <typename Action>
void Step(const Session &session, Action action) {
    try {
        action();
    } catch (const sql::SqlError &error) {
        Trace(session, u"ShowSkinPage: "_s + error.Text(), kTraceError);
    } catch (const SkinFailure &failure) {
        Trace(session, u"ShowSkinPage: "_s + failure.Text(), kTraceError);
    }
}

QString RowStatement(const QString &key, bool is_episode) {
    const QString quoted = u'\'' + EscapeSql(key) + u'\'';
    if (is_episode) {
        return u"SELECT *, EpisodeTitle as [Title], EpisodeOriginalTitle as [OriginalTitle], AirDate as [Released] "
               "FROM Episodes WHERE EpisodeID = "_s +
               quoted;
    }
    return u"SELECT * FROM Profiles WHERE ProfileID = "_s + quoted;
}

/// Says that a skin has no template, and leaves the view of skins.
void LeaveMissingSkin(Session &session, HtmlView &view, const SkinHost &host, const QString &skin_name) {
    ShowMessage(session, {.text = Translate(session, u"Skin"_s) + u' ' + skin_name + u' ' +
                                  Translate(session, u"does not exist!"_s),
                          .title = Translate(session, u"Skin.html missing"_s),
                          .icon = MessageIcon::Warning});
    session.view.mSkinEnable = false;
    Call(host.refresh_menus);
    view.SetVisible(false);
}

/// Writes a page into the temp folder and returns its path.
QString WriteTempPage(const Session &session, const QString &name, const QString &html) {
    const QString path = session.TempFolder + u'/' + name;
    if (!MakeFolderPath(session.TempFolder) || !WritePage(path, html)) {
        Trace(session, u"ShowSkinPage: "_s + path, kTraceError);
    }
    return path;
}

} // namespace

sql::Recordset OpenSkinRow(Session &session, const QString &key, bool is_episode) {
    if (!session.Database) {
        throw sql::SqlError(sql::ErrorCode::CannotOpenDatabase, u"No database is open."_s);
    }
    return session.Database->OpenRecordset(RowStatement(key, is_episode));
}

QString SkinFolder(const Session &session, const QString &skin_name) {
    if (const QString found = FindIgnoringCase(SkinsFolder(session), skin_name); !found.isEmpty()) {
        return found;
    }
    const bool is_name = !skin_name.isEmpty() && SafeFileName(skin_name) == skin_name;
    return is_name ? SkinsFolder(session) + u'/' + skin_name : QString();
}

QString SkinFileIn(const QString &folder) {
    const QString found = FindIgnoringCase(folder, u"Skin.html"_s);
    return QFileInfo(found).isFile() ? found : QString();
}

QString SkinFile(const Session &session, const QString &skin_name) {
    return SkinFileIn(SkinFolder(session, skin_name));
}

QString ReadSkinFile(const QString &path) {
    const QByteArray bytes = ReadFile(path).value_or(QByteArray());
    const bool utf8 = !bytes.isEmpty() && static_cast<unsigned char>(bytes.front()) == kMarkOfUtf8;
    return utf8 ? ReadUtf8File(path) : DecodeWindows1252(bytes);
}

QString WithImagesOf(QString page, const QString &skin_folder) {
    const QString found = FindIgnoringCase(skin_folder, u"Images"_s);
    const QString images = found.isEmpty() ? WithSeparator(skin_folder) + u"Images"_s : found;
    return page.replace(u"$DPIMAGES."_s, PathToFileUrl(images + u'/'));
}

QString WithImageFolder(const Session &session, QString page, const QString &skin_name) {
    return WithImagesOf(std::move(page), SkinFolder(session, skin_name));
}

bool WritePage(const QString &path, const QString &html) {
    QFile::remove(path);
    QFile file(path);
    const QByteArray bytes = "\xEF\xBB\xBF" + html.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

bool ShowSkinPage(Session &session, SkinState &skin, HtmlView &view, const SkinHost &host, const QString &skin_name,
                  const QString &key, bool is_episode, const QString &back_profile_id, const QString &preset) {
    skin.ActiveSkin = skin_name;
    view.Navigate(u"about:blank"_s);
    if (skin_name.isEmpty()) {
        if (!SelectSkinDialog(session, host)) {
            Call(host.EnableWebSkin, false);
        }
        return false;
    }
    QString page = preset;
    if (page.isEmpty()) {
        const QString file = SkinFile(session, skin_name);
        if (file.isEmpty()) {
            LeaveMissingSkin(session, view, host, skin_name);
            return false;
        }
        page = ReadSkinFile(file);
    }
    page = WithImageFolder(session, page, skin_name);
    std::optional<sql::Recordset> row;
    Step(session, [&] {
        row = OpenSkinRow(session, key, is_episode);
        Call(host.set_caption, MakeWindowCaption(*row));
    });
    session.CurrentProfileID = key;
    session.CurrentIsEpisode = is_episode;
    if (row) {
        // What could not be rendered is shown as it was read.
        Step(session,
             [&] { page = RenderSkinText(session, skin, page, *row, is_episode, back_profile_id, RenderOptions()); });
    }
    view.Navigate(PathToFileUrl(WriteTempPage(session, skin.page_file, page)));
    WriteTempPage(session, u"blank.html"_s, u"<HTML></HTML>"_s);
    return true;
}

QStringList SkinNames(const Session &session) {
    return QDir(SkinsFolder(session)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

bool SelectSkinDialog(Session &session, const SkinHost &host) {
    // Not by a list in one text: there a folder whose name holds "select" or "|" would be something else.
    const QString answer =
        SafeFileName(session.services.dialogs
                         .InputCombo(Translate(session, u"Select Skin. Enter new name to create skin."_s),
                                     Translate(session, u"Select Skin"_s), SkinNames(session), session.CurrentSkin)
                         .value_or(QString()));
    if (answer.isEmpty()) {
        return false;
    }
    if (!QDir(SkinFolder(session, answer)).exists()) {
        CreateDefaultSkin(session, answer);
    }
    session.CurrentSkin = answer;
    Call(host.EnableWebSkin, true);
    Call(host.redisplay);
    return true;
}

void CreateDefaultSkin(Session &session, const QString &name) {
    const QString folder = SkinsFolder(session) + u'/' + name;
    const QString images = QDir::toNativeSeparators(folder + u"/Images"_s);
    QString text;
    for (const QString &line :
         {u"<HTML>"_s, u"<HEAD>"_s, u"<SCRIPT TYPE='text/javascript'>"_s, u"<!--"_s,
          u"<DP NAME='HEADER_VARS' Language='JavaScript' Comments='True' IncludeCast='False' IncludeCrew='False'>"_s,
          u"//-->"_s, u"</SCRIPT>"_s, u"</HEAD>"_s, u"<BODY>"_s, u"Copy all images used by the skin into folder<br/>"_s,
          QString(images + u"<br/>"_s), u"</BODY>"_s, u"</HTML>"_s}) {
        text += line + u"\r\n"_s;
    }
    if (!MakeFolderPath(images) || !WritePage(folder + u"/Skin.html"_s, text.replace(u'\'', u'"'))) {
        Trace(session, u"CreateDefaultSkin: "_s + folder, kTraceError);
    }
}

} // namespace ostrand
