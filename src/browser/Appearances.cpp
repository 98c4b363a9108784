#include "browser/Appearances.h"

#include "base/Text.h"
#include "browser/Titles.h"
#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// All names that lead to the credits of a person: the common one first.
QStringList NamesOf(Session &session, const QString &name, int birth_year) {
    const QString common = GetCommonName(session, name, birth_year);
    QStringList names = {common};
    sql::Recordset rows = session.Database->OpenRecordset(
        u"SELECT DISTINCT AliasName FROM Alias WHERE CommonName = '"_s + EscapeSql(common) + u'\'');
    for (; !rows.Eof(); rows.MoveNext()) {
        if (const QString alias = rows.Text(0); !EqualsIgnoringCase(alias, common)) {
            names += alias;
        }
    }
    return names;
}

QString EpisodeStatement(const QString &name, bool assigned_only) {
    return u"SELECT s.OriginalTitle, s.Title, s.SortTitle, s.OriginalSortTitle, s.SeriesID, c.Role, c.Name, "
           "e.EpisodeTitle, e.EpisodeOriginalTitle, e.Season, e.EpisodeNo, c.IsCast, e.EpisodeID, c.BirthYear, "
           "c.IsVoice, c.IsUncredited FROM TVCastCrew c, TVSeries s, Episodes e"_s +
           (assigned_only ? u", Profile2Episodes ep"_s : QString()) + u" WHERE c.Name = '"_s + EscapeSql(name) +
           u"' AND s.SeriesID = e.SeriesID AND c.EpisodeID = e.EpisodeID"_s +
           (assigned_only ? u" AND c.EpisodeID = ep.EpisodeID"_s : QString()) + u" AND c.Role NOT LIKE '?Div*'"_s;
}

QString MovieStatement(const QString &name) {
    return u"SELECT m.Title, m.SortTitle, m.OriginalSortTitle, m.CustomTitle, m.CustomSortTitle, c.ProfileID, c.Role, "
           "c.Name, m.OriginalTitle, c.IsCast, c.BirthYear, c.IsVoice, c.IsUncredited FROM CastCrew c, Profiles m "
           "WHERE c.Name = '"_s +
           EscapeSql(name) + u"' AND c.ProfileID = m.ProfileID AND c.Role NOT LIKE '?Div*'"_s;
}

/// Two persons of one name are told apart by their birth years.
bool IsOfPerson(const sql::Recordset &credit, int birth_year) {
    return credit.Integer(u"BirthYear") == birth_year; // 0 without one
}

QString RoleText(Session &session, const sql::Recordset &credit) {
    const QString role = credit.Text(u"Role");
    if (!credit.Boolean(u"IsCast")) {
        return role;
    }
    QString text = Translate(session, role);
    if (credit.Boolean(u"IsVoice")) {
        text += u' ' + Translate(session, u"(voice)"_s);
    }
    if (credit.Boolean(u"IsUncredited")) {
        text += u' ' + Translate(session, u"(uncredited)"_s);
    }
    return text;
}

/// Empty for a title without any text to sort by.
QString SortText(const Session &session, const sql::Recordset &credit, bool ignore_custom) {
    try {
        return GetSortTitle(session.view, credit, ignore_custom);
    } catch (const sql::SqlError &) {
        return {};
    }
}

/// Gathers the rows for a name as it was asked for.
class Search {
public:
    Search(Session &session, const QString &name, int birth_year) :
        session_(session), asked_name_(name), birth_year_(birth_year) {}

    void Run() {
        const QStringList names = NamesOf(session_, asked_name_, birth_year_);
        const ViewState &view = session_.view;
        if (view.IncludeTV) {
            for (const QString &name : names) {
                Add(EpisodeStatement(name, view.IncludeAssignedEpisodesOnly),
                    [this](const sql::Recordset &credit) { return EpisodeRow(credit); });
            }
        }
        if (view.IncludeMovies) {
            for (const QString &name : names) {
                Add(MovieStatement(name), [this](const sql::Recordset &credit) { return MovieRow(credit); });
            }
        }
    }

    std::vector<ListTableRow> Sorted() && {
        std::vector<std::pair<QByteArray, ListTableRow>> keyed;
        for (ListTableRow &row : rows_) {
            keyed.emplace_back(sql::SortKey(row.texts[int(AppearanceText::Sort)]), std::move(row));
        }
        std::stable_sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
        rows_.clear();
        for (auto &[key, row] : keyed) {
            rows_.push_back(std::move(row));
        }
        return std::move(rows_);
    }

private:
    template <typename MakeRow>
    void Add(const QString &statement, MakeRow make_row) {
        for (sql::Recordset credit = session_.Database->OpenRecordset(statement); !credit.Eof(); credit.MoveNext()) {
            if (IsOfPerson(credit, birth_year_)) {
                rows_.push_back(make_row(credit));
            }
        }
    }

    QString CreditedAs(const sql::Recordset &credit) const {
        const QString name = credit.Text(u"Name");
        return name == asked_name_ ? QString() : name;
    }

    ListTableRow MovieRow(const sql::Recordset &credit) const {
        return {{GetTitle(session_.view, credit, false, false), RoleText(session_, credit), QString(),
                 CreditedAs(credit), SortText(session_, credit, false)},
                credit.Text(u"ProfileID"),
                ListRowKind::Movie};
    }

    ListTableRow EpisodeRow(const sql::Recordset &credit) const {
        const QString sort =
            SortText(session_, credit, true) + " - "_L1 + credit.Text(u"Season") + " - "_L1 + credit.Text(u"EpisodeNo");
        return {{GetTitle(session_.view, credit, true, false), RoleText(session_, credit),
                 GetEpisodeTitle(session_.view, credit), CreditedAs(credit), sort},
                credit.Text(u"EpisodeID"),
                ListRowKind::Episode};
    }

    Session &session_;
    const QString &asked_name_;
    const int birth_year_;
    std::vector<ListTableRow> rows_;
};

} // namespace

QStringList AppearanceColumns(Session &session) {
    return {Translate(session, u"Movie/Series"_s), Translate(session, u"Role"_s),
            Translate(session, u"Episode Title"_s), Translate(session, u"Credited as"_s)};
}

std::optional<std::vector<ListTableRow>> GetAppearances(Session &session, const QString &name, int birth_year) {
    if (name.isEmpty() || (!session.view.IncludeMovies && !session.view.IncludeTV)) {
        return std::nullopt;
    }
    Search search(session, name, birth_year);
    try {
        if (session.Database) {
            search.Run();
        }
    } catch (const sql::SqlError &error) {
        Trace(session, u"GetAppearances: "_s + error.Text(), kTraceError);
    }
    return std::move(search).Sorted();
}

namespace {

std::unique_ptr<ListTable> AppearancesTable(Session &session, const QString &name, int birth_year) {
    std::vector<ListTableRow> rows = GetAppearances(session, name, birth_year).value_or(std::vector<ListTableRow>());
    const QString caption =
        name + " ("_L1 + QString::number(rows.size()) + u' ' + Translate(session, u"entries"_s) + u')';
    auto table = std::make_unique<ListTable>(caption, AppearanceColumns(session));
    table->Assign(std::move(rows));
    table->again = [&session, name, birth_year] { return AppearancesTable(session, name, birth_year); };
    return table;
}

} // namespace

void ShowAppearances(Session &session, const QString &name, int birth_year) {
    if (session.window.ShowListView) {
        session.window.ShowListView(AppearancesTable(session, name, birth_year));
    }
}

} // namespace ostrand
