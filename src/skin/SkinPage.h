// From a skin to a page in a view.
#pragma once

#include "skin/TagCall.h"

namespace ostrand {

class HtmlView;

/// The finished text of a page. A failure of a tag that is not guarded throws SqlError or SkinFailure, and so does a
/// page without a tag.
QString RenderSkinText(Session &session, SkinState &skin, const QString &page, const sql::Recordset &row,
                       bool is_episode, const QString &back_profile_id, const RenderOptions &options);

/// The row that a page shows. Titles and date of an episode have the names that those of a profile have. Throws
/// SqlError, without an open database too; a key that is nowhere gives an empty result.
sql::Recordset OpenSkinRow(Session &session, const QString &key, bool is_episode);

/// What a page needs of its surroundings. Members may be empty.
struct SkinHost {
    /// The caption of the main window.
    std::function<void(const QString &caption)> set_caption;
    /// Switches between the view of skins and the panels.
    std::function<void(bool on)> EnableWebSkin;
    /// Shows the current selection anew.
    std::function<void()> redisplay;
    /// A check state of the menus changed under them.
    std::function<void()> refresh_menus;
};

/// Renders the row of `key` through a skin and shows it. `preset` stands in for the skin's file when it is not empty.
/// True when a page was shown. Goes on after the failure of a step, so that the last page that could be built shows.
bool ShowSkinPage(Session &session, SkinState &skin, HtmlView &view, const SkinHost &host, const QString &skin_name,
                  const QString &key, bool is_episode, const QString &back_profile_id, const QString &preset);
/// The names of all skins in the order in which they are offered.
QStringList SkinNames(const Session &session);
/// Lets the user choose a skin, or name a new one; true when one was chosen.
bool SelectSkinDialog(Session &session, const SkinHost &host);
/// Makes a new skin.
void CreateDefaultSkin(Session &session, const QString &name);
/// The template file of a skin, found without regard to case; empty without one.
QString SkinFile(const Session &session, const QString &skin_name);
/// The folder of a skin as it is spelt on disk; where there is none, the one that it would have. Empty for a name that
/// is no name of a folder.
QString SkinFolder(const Session &session, const QString &skin_name);
/// The template file in a folder, found without regard to case; empty without one.
QString SkinFileIn(const QString &folder);
/// The text of a template file: UTF-8 with a byte order mark, else Windows-1252.
QString ReadSkinFile(const QString &path);
/// The image literal replaced by the skin's image folder.
QString WithImageFolder(const Session &session, QString page, const QString &skin_name);
/// The same with the folder of the skin.
QString WithImagesOf(QString page, const QString &skin_folder);
/// Writes a page as UTF-8 with a byte order mark, in place of the file; false on a fault.
bool WritePage(const QString &path, const QString &html);

} // namespace ostrand
