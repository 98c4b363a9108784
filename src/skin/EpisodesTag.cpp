#include "base/Text.h"
#include "browser/Titles.h"
#include "shell/Session.h"
#include "skin/SkinTags.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct EpisodeStyle {
    explicit EpisodeStyle(const TagCall &call) :
        show_number(call.Flag(u"ShowEpNumber", true)), show_title(call.Flag(u"ShowTitle", true)),
        use_original_title(call.Flag(u"UseOriginalTitle", false)), show_air_date(call.Flag(u"ShowAirDate", false)),
        divider(call.Text(u"Divider", u"BREAK"_s)) {}

    bool show_number;
    bool show_title;
    bool use_original_title;
    bool show_air_date;
    QString divider;
};

sql::Recordset EpisodeRows(const TagCall &call) {
    return call.Rows(u"SELECT *, e.EpisodeID as [EpisodeID], p.EpisodeID as [EPid], EpisodeTitle as [Title], "
                     "EpisodeOriginalTitle as [OriginalTitle], AirDate as [Released] FROM Episodes e "
                     "INNER JOIN Profile2Episodes p ON e.EpisodeID = p.EpisodeID WHERE p.ProfileID = "_s +
                     call.QuotedKey() + u" ORDER BY e.SeriesID, e.Season, e.EpisodeNo"_s);
}

QString TitleText(const sql::Recordset &episode, bool use_original_title) {
    const QString title = episode.Text(u"Title");
    const QString original = episode.Text(u"OriginalTitle");
    if (use_original_title) {
        return original.isEmpty() ? title : original;
    }
    return title.isEmpty() ? original : title;
}

QString EpisodeText(const EpisodeStyle &style, const sql::Recordset &episode) {
    QString text = style.show_number ? episode.Text(u"EpisodeNo") : QString();
    if (style.show_title) {
        text += text.isEmpty() ? QString() : u". "_s;
        text += TitleText(episode, style.use_original_title);
    }
    // The day count 0 stands for no date.
    if (style.show_air_date && episode.Real(u"Released") != 0) {
        text += u" ("_s + episode.Text(u"Released") + u')';
    }
    return text;
}

/// The link to the page that is written of the episode at once.
QString WrittenEpisode(const TagCall &call, const sql::Recordset &episode, const QString &text) {
    const QString key = episode.Text(u"EpisodeID").remove(u"Key_"_s);
    const QString file = SafeFileName(key).replace(u' ', "%20"_L1);
    call.session.progress.SetDetail(u"Episode "_s + GetTitle(call.session.view, episode, true, false));
    if (call.options.write_episode_page) {
        call.options.write_episode_page(episode);
    }
    return u"<A HREF='../Episodes/"_s + file + u".html'>"_s + text + u"</A>"_s;
}

QString Linked(const TagCall &call, const sql::Recordset &episode, const QString &text) {
    if (!call.options.offline) {
        return u"<A HREF=\"blank.html?episodeid="_s + episode.Text(u"EpisodeID") + u"\">"_s + text + u"</A>"_s;
    }
    return call.options.generate_episode_pages ? WrittenEpisode(call, episode, text) : text;
}

} // namespace

void GetOSVEpisodes(const TagCall &call, QString &text) {
    if (call.is_episode) {
        return;
    }
    const EpisodeStyle style(call);
    for (sql::Recordset episodes = EpisodeRows(call); !episodes.Eof(); episodes.MoveNext()) {
        text += u"<NOBR>"_s + Linked(call, episodes, EpisodeText(style, episodes)) + u"</NOBR>"_s + style.divider;
    }
    text.chop(style.divider.size());
}

} // namespace ostrand
