#include "collection_files/ImportCredits.h"

#include "collection_files/CreditReader.h"
#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/Session.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

/// The rows of one cast or crew, emptied when made.
class CreditRows {
public:
    CreditRows(Session &session, const QString &key, bool is_episode, bool is_cast, PresentRows present);
    void Add(const Credit &credit);

private:
    static sql::Recordset OpenEmptied(Session &session, const QString &key, bool is_episode, bool is_cast,
                                      PresentRows present);

    Session &session_;
    QString key_;
    bool is_episode_;
    bool is_cast_;
    sql::Recordset rows_;
    int name_, role_, position_, is_cast_column_, is_voice_, is_uncredited_, is_credit_only_, birth_year_, key_column_;
    int is_regular_ = -1;
    int next_position_ = 1;
};

sql::Recordset CreditRows::OpenEmptied(Session &session, const QString &key, bool is_episode, bool is_cast,
                                       PresentRows present) {
    const QString rows =
        (is_episode ? u"FROM TVCastCrew WHERE EpisodeID = '"_s : u"FROM CastCrew WHERE ProfileID = '"_s) +
        EscapeSql(key) + u"' AND IsCast = "_s + (is_cast ? u"true"_s : u"false"_s);
    if (present == PresentRows::Any) {
        session.Database->Execute(QString(u"DELETE "_s + rows));
    }
    return session.Database->OpenRecordset(QString(u"SELECT * "_s + rows));
}

CreditRows::CreditRows(Session &session, const QString &key, bool is_episode, bool is_cast, PresentRows present) :
    session_(session), key_(key), is_episode_(is_episode), is_cast_(is_cast),
    rows_(OpenEmptied(session, key, is_episode, is_cast, present)), name_(rows_.Ordinal(u"Name")),
    role_(rows_.Ordinal(u"Role")), position_(rows_.Ordinal(u"Position")), is_cast_column_(rows_.Ordinal(u"IsCast")),
    is_voice_(rows_.Ordinal(u"IsVoice")), is_uncredited_(rows_.Ordinal(u"IsUncredited")),
    is_credit_only_(rows_.Ordinal(u"IsCreditOnly")), birth_year_(rows_.Ordinal(u"BirthYear")),
    key_column_(rows_.Ordinal(is_episode ? u"EpisodeID" : u"ProfileID")) {
    if (is_episode) {
        is_regular_ = rows_.Ordinal(u"IsRegular");
    }
}

void CreditRows::Add(const Credit &credit) {
    rows_.AddNew();
    rows_.Set(name_, credit.StoredName());
    rows_.Set(role_, credit.role);
    rows_.Set(position_, next_position_);
    rows_.Set(is_cast_column_, is_cast_);
    rows_.Set(is_voice_, credit.is_voice);
    rows_.Set(is_uncredited_, credit.is_uncredited);
    rows_.Set(is_credit_only_, credit.is_credit_only);
    rows_.Set(birth_year_, credit.birth_year);
    rows_.Set(key_column_, key_);
    if (is_episode_) {
        rows_.Set(is_regular_, credit.is_regular);
    }
    try {
        rows_.Update();
        ++next_position_;
    } catch (const sql::SqlError &error) {
        if (error.Code() != sql::ErrorCode::DuplicateKey && error.Code() != sql::ErrorCode::NullNotAllowed) {
            throw;
        }
        rows_.CancelUpdate();
        Trace(session_, u"Credit dropped: "_s + credit.StoredName() + u": "_s + error.Text(), kTraceInfo);
    }
}

void LinkNames(Session &session, const Credit &credit, bool silent) {
    if (!credit.credited_as.isEmpty()) {
        LinkAlias(session, credit.full_name, credit.credited_as, credit.birth_year, silent, {});
    } else if (!credit.is_divider) {
        LinkNormalizedName(session, credit.full_name, credit.birth_year);
    }
}

/// Jobs that the crew tree does not know, with the credit types that tell their branches.
class LearnedRoles {
public:
    explicit LearnedRoles(Session &session) : session_(session) {}

    void Look(const Credit &credit) {
        const QString role = credit.role.trimmed();
        if (credit.is_divider || role.isEmpty() || credit.credit_type.isEmpty() || credit.credit_type == u"Other"_s ||
            session_.CrewRoles.HasCategory(role) || seen_.contains(role.toLower())) {
            return;
        }
        const QString pair = role + u'=' + credit.credit_type;
        // The marks of the mapping text cannot stand within a pair.
        if (pair.contains(u'|') || pair.count(u'=') > 1) {
            return;
        }
        seen_.insert(role.toLower());
        pairs_ += u'|' + pair;
        Trace(session_, u"Added "_s + pair + u" to CrewMapString"_s, kTraceInfo);
    }

    void Store() {
        if (pairs_.isEmpty()) {
            return;
        }
        const QString mapping = session_.CrewRoles.Mapping() + pairs_;
        WriteDbInfo(session_, u"CrewMapping"_s, mapping, u"Crew role mapping table for crew tree"_s);
        session_.CrewRoles.Load(mapping);
    }

private:
    Session &session_;
    QSet<QString> seen_;
    QString pairs_;
};

QString CallText(const QString &name, const QString &key, bool is_episode, bool silent) {
    const auto text = [](bool truth) { return truth ? u"True"_s : u"False"_s; };
    return name + u'(' + key + u", "_s + text(is_episode) + u", "_s + text(silent) + u')';
}

} // namespace

void ImportCast(Session &session, pugi::xml_node node, const QString &key, bool is_episode, bool silent,
                PresentRows present) {
    if (session.trace.Wants(kTraceEntry)) {
        Trace(session, CallText(u"ImportCast"_s, key, is_episode, silent), kTraceEntry);
    }
    CreditRows rows(session, key, is_episode, true, present);
    for (const pugi::xml_node element : node.children()) {
        if (const auto credit = ReadCastCredit(element)) {
            LinkNames(session, *credit, silent);
            rows.Add(*credit);
        }
    }
}

void ImportCrew(Session &session, pugi::xml_node node, const QString &key, bool is_episode, bool silent,
                PresentRows present) {
    if (session.trace.Wants(kTraceEntry)) {
        Trace(session, CallText(u"ImportCrew"_s, key, is_episode, silent), kTraceEntry);
    }
    CreditRows rows(session, key, is_episode, false, present);
    LearnedRoles learned(session);
    for (const pugi::xml_node element : node.children()) {
        if (const auto credit = ReadCrewCredit(element)) {
            learned.Look(*credit);
            LinkNames(session, *credit, silent);
            rows.Add(*credit);
        }
    }
    learned.Store();
}

} // namespace ostrand
