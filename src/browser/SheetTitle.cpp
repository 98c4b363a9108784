#include "browser/SheetTitle.h"

#include "audit/Audit.h"
#include "browser/Browser.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

SheetTitle SelectedTitle(const Browser &browser) {
    if (browser.session.view.mTVShows) {
        return SelectedEpisode(browser);
    }
    return {ProfileOfKey(browser.listSeries.KeyAt(browser.current_row)), false};
}

SheetTitle SelectedEpisode(const Browser &browser) {
    return {browser.listEpisodes.KeyAt(browser.current_episode), true};
}

QString TitleStatement(const SheetTitle &title) {
    return (title.is_episode ? u"SELECT * FROM Episodes WHERE EpisodeID = '"_s
                             : u"SELECT * FROM Profiles WHERE ProfileID = '"_s) +
           EscapeSql(title.id) + u'\'';
}

QString RowsOf(QStringView table, const SheetTitle &title) {
    return u"SELECT * FROM "_s + table.toString() + u" WHERE ProfileID = '"_s + EscapeSql(title.id) + u'\'';
}

QString EditText(QStringView kind, const SheetTitle &title) {
    return (title.is_episode ? u"Edit Episode "_s : u"Edit "_s) + kind.toString();
}

void ClearMD5(Session &session, const SheetTitle &title) {
    if (!title.is_episode) {
        session.Database->Execute(
            QString(u"UPDATE Profiles SET MD5 = '' WHERE ProfileID = '"_s + EscapeSql(title.id) + u'\''));
    }
}

void MarkEdited(Session &session, const SheetTitle &title, QStringView kind) {
    ClearMD5(session, title);
    if (title.is_episode) {
        Audit::AuditUpdateEpisode(session, title.id, EditText(kind, title));
    } else {
        Audit::AuditUpdateProfile(session, title.id, EditText(kind, title));
    }
}

} // namespace ostrand
