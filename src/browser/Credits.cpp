#include "browser/Credits.h"

#include "browser/AppearancesPanel.h"
#include "browser/Browser.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "people/CreditNames.h"
#include "people/HeadshotFiles.h"
#include "people/LinkedNames.h"
#include "shell/Session.h"
#include "shell/TranslatedTexts.h"

#include <QScopedValueRollback>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kBlanksOfDivider = 2;
constexpr qsizetype kPositionPlaces = 3;

struct CreditRecords {
    std::vector<CreditRecord> cast;
    std::vector<CreditRecord> crew;
};

bool IsRole(const CreditRecord &credit, QLatin1String role) {
    return credit.role.compare(role, Qt::CaseInsensitive) == 0;
}

CreditRecords ReadRecords(sql::Recordset &rows, bool is_tv) {
    const int name = rows.Ordinal(u"Name");
    const int role = rows.Ordinal(u"Role");
    const int position = rows.Ordinal(u"Position");
    const int is_cast = rows.Ordinal(u"IsCast");
    const int is_uncredited = rows.Ordinal(u"IsUncredited");
    const int is_voice = rows.Ordinal(u"IsVoice");
    const int birth_year = rows.Ordinal(u"BirthYear");
    const int is_credit_only = rows.Ordinal(u"IsCreditOnly");
    const int is_regular = is_tv ? rows.Ordinal(u"IsRegular") : -1;
    const auto flag = [&rows](int ordinal) { return ordinal >= 0 && rows.Get(ordinal).Integer() != 0; };
    CreditRecords records;
    for (; !rows.Eof(); rows.MoveNext()) {
        CreditRecord credit;
        credit.name = rows.Text(name);
        credit.role = rows.Text(role);
        credit.birth_year = rows.Text(birth_year);
        credit.position = int(rows.Get(position).Integer());
        credit.is_uncredited = flag(is_uncredited);
        credit.is_voice = flag(is_voice);
        credit.is_credit_only = flag(is_credit_only);
        credit.is_regular = flag(is_regular);
        (flag(is_cast) ? records.cast : records.crew).push_back(std::move(credit));
    }
    return records;
}

/// What the texts of many rows are made with, read for all of them at once.
class CreditTexts {
public:
    CreditTexts(Session &session, FolderIndex &headshots, const CreditRecords &records) :
        session_(session), headshots_(headshots), translated_(session, TextsOf(session, records)) {
        if (session.view.HighlightHeadshots && !session.HeadshotPath.isEmpty()) {
            headshots_.SetFolder(session.HeadshotPath);
            headshots_.Refresh();
            names_.emplace(session, NamesOf(records));
        }
    }

    QString Translated(const QString &text) const { return translated_(text); }
    QString Name(const CreditRecord &credit) const { return FormatCreditName(session_, credit.name); }

    QString Role(const CreditRecord &credit) const {
        QString text = translated_(credit.role);
        const auto add = [&](bool on, const QString &mark) {
            if (on) {
                text += (text.isEmpty() ? QString() : u" "_s) + translated_(mark);
            }
        };
        add(credit.is_uncredited, u"(uncredited)"_s);
        add(credit.is_voice, u"(voice)"_s);
        add(credit.is_credit_only, u"(credit only)"_s);
        return text;
    }

    bool HasHeadshot(const CreditRecord &credit) {
        return names_ && !credit.name.isEmpty() && FindPrimaryHeadshot(credit);
    }

private:
    static QStringList TextsOf(const Session &session, const CreditRecords &records) {
        QStringList texts = {u"(uncredited)"_s, u"(voice)"_s, u"(credit only)"_s, u"Other"_s};
        texts += session.CrewRoles.Categories();
        for (const auto *credits : {&records.cast, &records.crew}) {
            for (const CreditRecord &credit : *credits) {
                texts += credit.IsDivider() ? credit.name : credit.role;
            }
        }
        return texts;
    }

    static QStringList NamesOf(const CreditRecords &records) {
        QStringList names;
        for (const auto *credits : {&records.cast, &records.crew}) {
            for (const CreditRecord &credit : *credits) {
                if (!credit.IsDivider()) {
                    names += credit.name;
                }
            }
        }
        return names;
    }

    bool FindPrimaryHeadshot(const CreditRecord &credit) {
        const QString common = names_->Common(credit.name, credit.birth_year.toInt());
        const auto exists = [this](const QString &stem) { return headshots_.Holds(HeadshotFileName(stem, 0)); };
        return exists(HeadshotStem(common, credit.birth_year)) ||
               (credit.name != common && exists(HeadshotStem(credit.name, credit.birth_year))) ||
               (HeadshotStem(common, credit.birth_year) != common && exists(common));
    }

    const Session &session_;
    FolderIndex &headshots_;
    TranslatedTexts translated_;
    std::optional<LinkedNames> names_;
};

/// The rows of a list, with the levels that dividers make.
class RowBuilder {
public:
    RowBuilder(CreditTexts &texts, std::vector<CreditRow> rows) : texts_(texts), rows_(std::move(rows)) {}

    void Add(const CreditRecord &credit) {
        if (credit.IsDivider()) {
            AddDivider(credit);
        } else {
            AddPerson(credit);
        }
    }
    std::vector<CreditRow> Rows() && { return std::move(rows_); }

private:
    void AddPerson(const CreditRecord &credit) {
        CreditRow row;
        row.text = QString(indent_ * kBlanksOfDivider, u' ') + texts_.Name(credit);
        row.name = credit.name;
        row.role = texts_.Role(credit);
        row.birth_year = credit.birth_year;
        row.position = credit.position;
        row.position_text = QString::number(credit.position).rightJustified(kPositionPlaces);
        row.flags = QString(credit.is_uncredited ? u"c"_s : QString()) + (credit.is_voice ? u"v"_s : QString()) +
                    (credit.is_credit_only ? u"o"_s : QString()) + (credit.is_regular ? u"r"_s : QString());
        row.has_headshot = texts_.HasHeadshot(credit);
        rows_.push_back(std::move(row));
    }

    void AddDivider(const CreditRecord &credit) {
        const bool first = rows_.empty();
        CreditRow blank;
        blank.position = credit.position;
        if (!first) {
            rows_.push_back(blank);
        }
        if (first || !credit.name.isEmpty()) {
            CreditRow caption = blank;
            caption.text = texts_.Translated(credit.name);
            caption.caption = !credit.name.isEmpty();
            rows_.push_back(std::move(caption));
        }
        const bool ends =
            IsRole(credit, "[DivEnd]"_L1) || IsRole(credit, "[Divider]"_L1) || IsRole(credit, "[DivEpisode]"_L1);
        indent_ = ends ? 0 : 1;
    }

    CreditTexts &texts_;
    std::vector<CreditRow> rows_;
    qsizetype indent_ = 0;
};

/// The crew by categories, with a new set of them for each team.
class TeamBuilder {
public:
    TeamBuilder(Session &session, CreditTexts &texts, std::vector<CrewTeam> teams) :
        session_(session), texts_(texts), teams_(std::move(teams)) {
        if (teams_.empty()) {
            AddCrewTreeCategories({});
        }
        level_ = 0;
    }

    void Add(const CreditRecord &credit) {
        if (IsRole(credit, "[DivTeam]"_L1)) {
            AddCrewTreeCategories(texts_.Translated(credit.name));
        } else if (IsRole(credit, "[DivEnd]"_L1)) {
            level_ = 0;
        } else if (!credit.IsDivider()) {
            AddMember(credit);
        }
    }
    std::vector<CrewTeam> Teams() && { return std::move(teams_); }

private:
    void AddCrewTreeCategories(const QString &caption) {
        level_ = teams_.size();
        CrewTeam &team = teams_.emplace_back();
        team.caption = caption;
        team.members.resize(size_t(session_.CrewRoles.Categories().size()));
    }

    void AddMember(const CreditRecord &credit) {
        const bool assigned = session_.CrewRoles.HasCategory(credit.role);
        if (!assigned && session_.view.mHideUnassignedCrew) {
            return;
        }
        CrewMember member;
        member.text = texts_.Name(credit) + ": "_L1 + texts_.Translated(credit.role);
        member.tag = credit.name + u'|' + credit.birth_year;
        member.position = credit.position;
        member.has_headshot = texts_.HasHeadshot(credit);
        CrewTeam &team = teams_[level_];
        if (assigned) {
            const qsizetype category =
                session_.CrewRoles.Categories().indexOf(session_.CrewRoles.Category(credit.role));
            team.members[size_t(category)].push_back(std::move(member));
        } else {
            team.unassigned.push_back(std::move(member));
        }
    }

    Session &session_;
    CreditTexts &texts_;
    std::vector<CrewTeam> teams_;
    size_t level_ = 0;
};

void Empty(CreditsPanel &panel) {
    panel.cast.clear();
    panel.crew.clear();
    panel.teams.clear();
}

void ShowCrewTree(Browser &browser, CreditTexts &texts, const std::vector<CreditRecord> &crew) {
    CreditsPanel &panel = browser.credits;
    TeamBuilder builder(browser.session, texts, std::move(panel.teams));
    for (const CreditRecord &credit : crew) {
        builder.Add(credit);
    }
    panel.teams = std::move(builder).Teams();
    QStringList categories;
    for (const QString &category : browser.session.CrewRoles.Categories()) {
        categories += texts.Translated(category);
    }
    panel.treeCrew.Assign(categories, texts.Translated(u"Other"_s), panel.teams);
}

void ShowList(CreditList &list, CreditTexts &texts, const std::vector<CreditRecord> &credits, bool clear) {
    RowBuilder builder(texts, clear ? std::vector<CreditRow>() : list.Rows());
    for (const CreditRecord &credit : credits) {
        builder.Add(credit);
    }
    list.Assign(std::move(builder).Rows());
}

/// Adds the credits of a statement, if there are any.
void AddCredits(Browser &browser, const QString &statement, bool is_tv) {
    sql::Recordset credits = browser.session.Database->OpenRecordset(statement);
    if (!credits.Eof()) {
        UpdateCreditControls(browser, credits, false, is_tv);
    }
}

void AddFullBoxsetCredits(Browser &browser, const QString &id) {
    const QString quoted = u'\'' + EscapeSql(id) + u'\'';
    AddCredits(browser,
               u"SELECT Name, Role, Position, IsCast, IsUncredited, IsVoice, BirthYear, IsCreditOnly FROM Profiles p, "
               "BoxSet b INNER JOIN CastCrew c ON c.ProfileID = b.ChildID WHERE b.BoxSetID = "_s +
                   quoted +
                   u" AND p.ProfileID = c.ProfileID GROUP BY Name, Role, Position, IsCast, SortTitle, IsUncredited, "
                   "IsVoice, BirthYear, IsCreditOnly ORDER BY SortTitle, Position"_s,
               false);
    AddCredits(browser,
               u"SELECT Name, Role, Position, IsCast, IsUncredited, IsVoice, BirthYear, IsRegular, IsCreditOnly FROM "
               "Profile2Episodes p INNER JOIN TVCastCrew c ON c.EpisodeID = p.EpisodeID WHERE p.ProfileID = "_s +
                   quoted +
                   u" GROUP BY Name, Role, Position, IsCast, c.EpisodeID, IsUncredited, IsVoice, BirthYear, IsRegular, "
                   "IsCreditOnly ORDER BY c.EpisodeID, Position"_s,
               true);
}

void Select(CreditsPanel &panel, const QString &name, const QString &birth_year) {
    panel.selected_name = name;
    panel.selected_birth_year = birth_year;
}

/// The selected person among the credits, with the year that they tell now: a lone name may have lost it.
const CreditRecord *FindSelected(const CreditsPanel &panel) {
    const CreditRecord *of_name = nullptr;
    for (const auto *credits : {&panel.cast, &panel.crew}) {
        for (const CreditRecord &credit : *credits) {
            if (credit.IsDivider() || credit.name != panel.selected_name) {
                continue;
            }
            if (credit.birth_year.toInt() == panel.selected_birth_year.toInt()) {
                return &credit;
            }
            of_name = of_name ? of_name : &credit;
        }
    }
    return of_name;
}

void Fill(Browser &browser, const QString &id, bool is_episode) {
    CreditsPanel &panel = browser.credits;
    panel.stale = false;
    if (!panel.refilling) {
        Select(panel, {}, {});
    }
    if (is_episode) {
        UpdateTVCredits(browser, {}, {}, {}, id);
    } else {
        UpdateCredits(browser, id);
        if (browser.session.view.mShowFullBoxsetCredits) {
            AddFullBoxsetCredits(browser, id);
        }
    }
    panel.shown_key = id;
    panel.shown_is_episode = is_episode;
}

} // namespace

CreditsPanel::CreditsPanel(Session &session) : picActor(session) {
    picActor.selected = [this] {
        return selected_name.isEmpty() ? std::nullopt : std::optional(CreditPerson{selected_name, selected_birth_year});
    };
}

void UpdateCredits(Browser &browser, const QString &profile_id) {
    Trace(browser.session, u"UpdateCredits("_s + profile_id + u')', kTraceEntry);
    sql::Recordset credits = browser.session.Database->OpenRecordset(u"SELECT * FROM CastCrew WHERE ProfileID = '"_s +
                                                                     EscapeSql(profile_id) + u"' ORDER BY Position"_s);
    UpdateCreditControls(browser, credits, true, false);
}

void UpdateTVCredits(Browser &browser, const QString &series_id, const QString &season, const QString &episode_title,
                     const QString &episode_id) {
    Trace(browser.session,
          u"UpdateTVCredits("_s + QStringList{series_id, season, episode_title, episode_id}.join(u", "_s) + u')',
          kTraceEntry);
    const QString statement =
        episode_id.isEmpty() ? u"SELECT * FROM TVCastCrew c, Episodes e WHERE e.SeriesID = '"_s + EscapeSql(series_id) +
                                   u"' AND e.Season = '"_s + EscapeSql(season) + u"' AND e.EpisodeTitle = '"_s +
                                   EscapeSql(episode_title) + u"' AND c.EpisodeID = e.EpisodeID"_s
                             : u"SELECT * FROM TVCastCrew WHERE EpisodeID = '"_s + EscapeSql(episode_id) + u'\'';
    sql::Recordset credits = browser.session.Database->OpenRecordset(statement + u" ORDER BY Position"_s);
    UpdateCreditControls(browser, credits, true, true);
}

void UpdateCreditControls(Browser &browser, sql::Recordset &credits, bool clear, bool is_tv) {
    Session &session = browser.session;
    CreditsPanel &panel = browser.credits;
    if (!panel.refilling) {
        panel.picActor.Clear();
    }
    if (clear) {
        Empty(panel);
    }
    CreditRecords records = ReadRecords(credits, is_tv);
    CreditTexts texts(session, panel.headshots, records);
    ShowList(panel.ListCast, texts, records.cast, clear);
    if (session.view.mCrewTreeView) {
        ShowCrewTree(browser, texts, records.crew);
        panel.ListCrew.Assign({});
    } else {
        ShowList(panel.ListCrew, texts, records.crew, clear);
        panel.treeCrew.Clear();
    }
    const auto append = [](std::vector<CreditRecord> &all, std::vector<CreditRecord> &added) {
        all.insert(all.end(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    };
    append(panel.cast, records.cast);
    append(panel.crew, records.crew);
}

void ShowCredits(Browser &browser, const QString &id, bool is_episode) {
    if (browser.tabMain_selected == 1) {
        Fill(browser, id, is_episode);
    } else {
        ClearCredits(browser);
        browser.credits.stale = true;
    }
}

void ShowStaleCredits(Browser &browser) {
    const Session &session = browser.session;
    if (browser.credits.stale && session.Database && !session.CurrentProfileID.isEmpty()) {
        Fill(browser, QString(session.CurrentProfileID), session.CurrentIsEpisode);
    }
}

void ClearCredits(Browser &browser) {
    CreditsPanel &panel = browser.credits;
    Empty(panel);
    panel.ListCast.Assign({});
    panel.ListCrew.Assign({});
    panel.treeCrew.Clear();
    panel.picActor.Clear();
    panel.shown_key.clear();
    Select(panel, {}, {});
    panel.stale = false;
}

void RefillCredits(Browser &browser) {
    CreditsPanel &panel = browser.credits;
    if (!browser.session.Database || panel.shown_key.isEmpty()) {
        return;
    }
    {
        const QScopedValueRollback<bool> refill(panel.refilling, true);
        Fill(browser, QString(panel.shown_key), panel.shown_is_episode);
    }
    const CreditRecord *person = panel.selected_name.isEmpty() ? nullptr : FindSelected(panel);
    if (person == nullptr) {
        Select(panel, {}, {});
        panel.picActor.Clear();
    } else {
        Select(panel, person->name, person->birth_year);
    }
}

void RefreshPeople(Browser &browser) {
    if (!browser.session.Database) {
        return;
    }
    if (browser.session.view.mSkinEnable) {
        Redisplay(browser); // a page tells people, too
    }
    CreditsPanel &panel = browser.credits;
    AppearancesPanel &appearances = browser.appearances;
    const bool of_selected =
        appearances.shown_name == panel.selected_name && appearances.shown_birth_year == panel.selected_birth_year;
    panel.headshots.Invalidate(); // pictures may have come and gone within the time that the folder's date tells apart
    RefillCredits(browser);
    if (of_selected && !panel.selected_name.isEmpty()) {
        appearances.shown_birth_year = panel.selected_birth_year;
    }
    RefreshAppearances(browser);
    if (!panel.selected_name.isEmpty()) {
        panel.picActor.LoadHeadShot(panel.selected_name, false, panel.selected_birth_year);
        FindAwardsForActor(browser, panel.selected_name, panel.selected_birth_year);
    }
}

void ShowCreditHeaders(Browser &browser) {
    QStringList headers;
    for (const QString &header : {u"Name"_s, u"Role"_s, u"Position"_s}) {
        headers += Translate(browser.session, header);
    }
    browser.credits.ListCast.SetHeaders(headers);
    browser.credits.ListCrew.SetHeaders(headers);
}

} // namespace ostrand
