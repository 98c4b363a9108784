// The box set that a profile is in, and what is in it.

#include "browser/Titles.h"
#include "shell/Session.h"
#include "skin/CoverImage.h"
#include "skin/EntryList.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

QString SortExpression(const ViewState &view) {
    QString expression = u" switch("_s;
    if (view.mUseCustomTitle) {
        expression += "CustomSortTitle<>'', CustomSortTitle, CustomTitle<>'', CustomTitle, "_L1;
    }
    if (view.mUseOriginalTitle) {
        expression += "OriginalSortTitle<>'', OriginalSortTitle, OriginalTitle <> '', OriginalTitle, "
                      "SortTitle <> '', SortTitle, Title <> '', Title) AS [RealSort] "_L1;
    } else {
        expression += "SortTitle<>'', SortTitle, Title<>'', Title) AS [RealSort] "_L1;
    }
    return expression;
}

/// The entries of profiles that are linked to, one a row.
struct ProfileEntries {
    bool upcs;
    bool covers;
    QStringView key_column;

    QString TitleLink(const TagCall &call, const sql::Recordset &row, const QString &key) const {
        QString title = GetTitle(call.session.view, row, false, false);
        if (upcs) {
            title += " ("_L1 + FormatUPC(row.Text(u"UPC")) + u')';
        }
        const QString target =
            call.options.offline ? call.ProfilePage(QString(key).remove(u"Key_"_s)) : "blank.html?profileid="_L1 + key;
        return "<A HREF=\""_L1 + target + "\">"_L1 + title + "</A>"_L1;
    }
    static QString Cover(const TagCall &call, const QString &key) {
        QString image;
        WriteCoverImage(call, key, CoverLink::Profile, image);
        return image;
    }
    void Write(const TagCall &call, sql::Recordset rows, QString &text) const {
        EntryList list(text, call.Text(u"Divider", u", "_s));
        for (; !rows.Eof(); rows.MoveNext()) {
            const QString key = rows.Text(key_column);
            list.AddUnbroken(covers ? Cover(call, key) : TitleLink(call, rows, key));
        }
        list.End();
    }
};

} // namespace

void GetDPBoxsetContent(const TagCall &call, QString &text) {
    const ProfileEntries entries{call.Flag(u"ShowUPCs", false), call.Flag(u"ShowCovers", false), u"ChildID"};
    if (call.is_episode) {
        return;
    }
    entries.Write(
        call,
        call.Rows(u"SELECT "_s + SortExpression(call.session.view) +
                  u", * FROM Boxset b INNER JOIN Profiles p ON p.ProfileID = b.ChildID WHERE b.BoxSetID = "_s +
                  call.QuotedKey() + u" ORDER BY 1"_s),
        text);
}

void GetOSVParent(const TagCall &call, QString &text) {
    const ProfileEntries entries{call.Flag(u"ShowUPCs", false), call.Flag(u"ShowCover", false), u"BoxSetID"};
    const QString statement =
        call.is_episode
            ? u"SELECT p.UPC, p.Title, p.OriginalTitle, p.CustomTitle, p.ProfileID as [BoxSetID] "
              "FROM Profile2Episodes pe INNER JOIN Profiles p ON p.ProfileID=pe.ProfileID WHERE pe.EpisodeID = "_s
            : u"SELECT * FROM Boxset b INNER JOIN Profiles p ON p.ProfileID = b.BoxSetID WHERE b.ChildID = "_s;
    entries.Write(call, call.Rows(statement + call.QuotedKey()), text);
}

} // namespace ostrand
