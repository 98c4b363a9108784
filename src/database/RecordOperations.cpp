#include "database/RecordOperations.h"

#include "audit/Audit.h"
#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "sql/Conversion.h"

#include <QFile>

#include <initializer_list>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The rows of a title that a table holds, and the column that tells the title.
struct RowsOfTitle {
    QLatin1String table;
    QLatin1String column = "ProfileID"_L1;
};

void DeleteRows(Session &session, const QString &id, std::initializer_list<RowsOfTitle> tables) {
    for (const RowsOfTitle &rows : tables) {
        session.Database->Execute(u"DELETE FROM "_s + rows.table + u" WHERE "_s + rows.column + u" = '"_s +
                                  EscapeSql(id) + u'\'');
    }
}

/// The images that are there. The key is taken exactly as it is passed, with a prefix that covers are stored without,
/// deliberately: what a collection file brought keeps its images.
QStringList CoverFiles(const Session &session, const QString &id) {
    QStringList files;
    if (id.isEmpty()) {
        return files;
    }
    for (const QLatin1String side : {"f.jpg"_L1, "b.jpg"_L1}) {
        // A key with a separator in it would lead to files elsewhere.
        if (const QString file = FindIgnoringCase(session.CoverPath, id + side); !file.isEmpty()) {
            files += file;
        }
    }
    return files;
}

void DeleteImages(Session &session, const QString &id, CoverImages images) {
    const QStringList files = CoverFiles(session, id);
    if (images == CoverImages::Keep || files.isEmpty() || (images == CoverImages::Ask && !AskToDeleteImages(session))) {
        return;
    }
    for (const QString &file : files) {
        if (!QFile::remove(file)) {
            Trace(session, u"DeleteProfile: "_s + file, kTraceError);
        }
    }
}

} // namespace

void DeleteProfile(Session &session, const QString &id, CoverImages images) {
    WriteTogether(session, [&] {
        DeleteRows(session, id,
                   {{"Genres"_L1},
                    {"CastCrew"_L1},
                    {"VideoFormat"_L1},
                    {"AudioFormats"_L1},
                    {"Subtitles"_L1},
                    {"Tags"_L1},
                    {"AdditionalInfo"_L1},
                    {"MetaInfo"_L1},
                    {"Locks"_L1},
                    {"Features"_L1},
                    {"Studios"_L1},
                    {"Discs"_L1},
                    {"Regions"_L1},
                    {"Profiles"_L1},
                    {"Events"_L1},
                    {"LoanInfo"_L1},
                    {"BoxSet"_L1, "BoxSetID"_L1},
                    {"BoxSet"_L1, "ChildID"_L1},
                    {"Profile2Episodes"_L1},
                    {"PurchaseInfo"_L1},
                    {"SRPInfo"_L1},
                    {"Reviews"_L1}});
    });
    DeleteImages(session, id, images);
    Audit::AuditDeleteProfile(session, id);
}

void DeleteEpisode(Session &session, const QString &id) {
    WriteTogether(session, [&] {
        DeleteRows(session, id,
                   {{"Genres"_L1},
                    {"TVCastCrew"_L1, "EpisodeID"_L1},
                    {"VideoFormat"_L1},
                    {"AudioFormats"_L1},
                    {"Subtitles"_L1},
                    {"Tags"_L1},
                    {"AdditionalInfo"_L1},
                    {"MetaInfo"_L1},
                    {"Locks"_L1},
                    {"Features"_L1},
                    {"Studios"_L1},
                    {"Episodes"_L1, "EpisodeID"_L1},
                    {"Events"_L1}});
        // While the profiles that hold the episode can still be told.
        Audit::AuditUpdateEpisode(session, id, u"Delete Episode"_s);
        DeleteRows(session, id, {{"Profile2Episodes"_L1, "EpisodeID"_L1}, {"Reviews"_L1}});
    });
}

bool HasCoverImages(const Session &session, const QString &id) {
    return !CoverFiles(session, id).isEmpty();
}

bool AskToDeleteImages(Session &session) {
    return ShowMessage(session, {.text = Translate(session, u"Delete images from cover path?"_s),
                                 .title = Translate(session, u"Delete images?"_s),
                                 .icon = MessageIcon::Question,
                                 .buttons = MessageButtons::YesNo,
                                 .neutral = MessageAnswer::No}) == MessageAnswer::Yes;
}

void MarkEdited(Session &session, const QString &id) {
    const QString of_profile = u" WHERE ProfileID = '"_s + EscapeSql(id) + u'\'';
    session.Database->Execute(QString(u"UPDATE Profiles SET LastEdited = '"_s +
                                      sql::DateToIso(session.services.clock.Now()) + u'\'' + of_profile));
    session.Database->Execute(QString(u"UPDATE Profiles SET MD5 = ''"_s + of_profile));
}

void WriteTogether(Session &session, const std::function<void()> &changes) {
    session.Database->Flush();
    {
        sql::Database::Bracket bracket(*session.Database);
        try {
            changes();
        } catch (...) {
            bracket.Abandon();
            throw;
        }
    }
    session.Database->Flush(); // a disk that is full shows here, before anybody shows the changes
}

} // namespace ostrand
