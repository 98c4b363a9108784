#include "skin/AwardRows.h"

#include "database/DatabaseFunctions.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString OriginalOrTitle(const sql::Recordset &row) {
    const QString original = row.Text(u"OriginalTitle");
    return original.isEmpty() ? row.Text(u"Title") : original;
}

QString OfMovie(const QString &title) {
    return u"MovieTitle = '"_s + EscapeSql(title) + u'\'';
}

/// An episode's awards are its series' awards that name it. Its title stands in the pattern as it is, wild cards and
/// all.
QString OfEpisode(const TagCall &call, const QString &title) {
    const sql::Recordset series =
        call.Rows(u"SELECT * FROM TVSeries WHERE SeriesID = '"_s + EscapeSql(call.Field(u"SeriesID")) + u'\'');
    return OfMovie(series.Eof() ? QString() : OriginalOrTitle(series)) + u" AND Nominee LIKE '*"_s + EscapeSql(title) +
           u"*'"_s;
}

/// Ceremonies from the year before the film's to two years behind it.
QString OfProfile(const TagCall &call, const QString &title) {
    const qint64 year = call.row.Integer(u"ProdYear");
    if (year == 0) {
        return OfMovie(title);
    }
    return OfMovie(title) + u" AND (Year BETWEEN %1 AND %2)"_s.arg(year - 1).arg(year + 2);
}

} // namespace

std::optional<sql::Recordset> FindAwards(const TagCall &call, const AwardSelection &selection) {
    const QString title = OriginalOrTitle(call.row);
    if (title.isEmpty()) {
        return std::nullopt;
    }
    QString statement = selection.names_only ? u"SELECT DISTINCT Award "_s : u"SELECT * "_s;
    statement += u" FROM Awards WHERE "_s + (call.is_episode ? OfEpisode(call, title) : OfProfile(call, title));
    if (!selection.only_award.isEmpty()) {
        statement += u" AND Award = '"_s + EscapeSql(selection.only_award) + u'\'';
    }
    return call.Rows(statement + (selection.names_only ? u" ORDER BY Award"_s : u" ORDER BY Award, Category, Year"_s));
}

} // namespace ostrand
