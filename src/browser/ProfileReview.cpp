#include "browser/ProfileReview.h"

#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

int MarkOf(const sql::Recordset &rows, QStringView field) {
    return int(std::clamp<qint64>(rows.Integer(field), 0, kBestMark));
}

} // namespace

int FilledHalves(int mark) {
    return mark <= 0 ? 0 : std::min(mark, kBestMark) + 1;
}

int MarkOfHalves(int halves) {
    return halves <= 1 ? 0 : std::min(halves, kHalfCells) - 1;
}

QString MarkText(const Session &session, int mark) {
    const int halves = FilledHalves(mark);
    if (halves == 0) {
        return u"-"_s;
    }
    const QString point = session.DecimalSeparator.isEmpty() ? u"."_s : session.DecimalSeparator;
    return QString::number(halves / 2) + (halves % 2 != 0 ? point + u'5' : QString()) + u" / 5"_s;
}

Review ReadReview(Session &session, const SheetTitle &title) {
    const sql::Recordset rows = session.Database->OpenRecordset(RowsOf(u"Reviews", title));
    if (rows.Eof()) {
        return {};
    }
    return {MarkOf(rows, u"Film"), MarkOf(rows, u"Video"), MarkOf(rows, u"Audio"), MarkOf(rows, u"Extras")};
}

void UpdateDbReview(Session &session, const SheetTitle &title, const Review &review) {
    const QString id = u'\'' + EscapeSql(title.id) + u'\'';
    QString values = id;
    for (const int mark : {review.Film, review.Video, review.Audio, review.Extras}) {
        values += u", '"_s + QString::number(mark) + u'\'';
    }
    WriteTogether(session, [&] {
        session.Database->Execute(QString(u"DELETE FROM Reviews WHERE ProfileID = "_s + id));
        session.Database->Execute(
            QString(u"INSERT INTO Reviews (ProfileID, Film, Video, Audio, Extras) VALUES ("_s + values + u')'));
        MarkEdited(session, title, u"Reviews");
    });
}

} // namespace ostrand
