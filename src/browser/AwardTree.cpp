#include "browser/AwardTree.h"

#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kNoFilm = "[no specific film title]"_L1;

struct Nomination {
    QString text;
    QString movie_title;
    int movie_year = 0;
    int award_year = 0;
};

/// The nominations of one award, those that were won apart.
struct AwardGroup {
    QString award;
    std::vector<Nomination> won;
    std::vector<Nomination> nominated;
};

QString InBrackets(int year) {
    return u'(' + QString::number(year) + u')';
}

Nomination ReadNomination(const sql::Recordset &row, const QString &no_film) {
    Nomination nomination;
    nomination.award_year = int(row.Integer(u"Year"));
    nomination.movie_year = int(row.Integer(u"MovieYear"));
    const QString title = row.Text(u"MovieTitle");
    const bool film = !title.isEmpty() && title != kNoFilm;
    nomination.movie_title = film ? title : QString();
    QString &text = nomination.text;
    text = row.Text(u"Category") + u' ' + InBrackets(nomination.award_year) + u' ' + (film ? title : no_film);
    if (nomination.movie_year != 0) {
        text += u' ' + InBrackets(nomination.movie_year);
    }
    text = text.trimmed();
    return nomination;
}

std::vector<AwardGroup> ReadGroups(Session &session, sql::Recordset &awards) {
    const QString no_film = Translate(session, kNoFilm);
    std::vector<AwardGroup> groups;
    for (; !awards.Eof(); awards.MoveNext()) {
        const QString award = awards.Text(u"Award");
        if (groups.empty() || sql::Compare(groups.back().award, award) != 0) {
            groups.push_back({award, {}, {}});
        }
        AwardGroup &group = groups.back();
        (awards.Boolean(u"Won") ? group.won : group.nominated).push_back(ReadNomination(awards, no_film));
    }
    return groups;
}

} // namespace

QVariant AwardTree::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const AwardNode &node = At(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return node.text;
    case KeyRole:
        return node.key;
    case IconRole:
        return node.icon;
    case MovieTitleRole:
        return node.movie_title;
    case MovieYearRole:
        return node.movie_year;
    case AwardYearRole:
        return node.award_year;
    default:
        return {};
    }
}

void AwardTree::ShowAwards(Session &session, sql::Recordset &awards) {
    const std::vector<AwardGroup> groups = ReadGroups(session, awards);
    const QString won = Translate(session, u"Won"_s);
    const QString nominated = Translate(session, u"Nominated"_s);
    beginResetModel();
    RemoveNodes();
    const auto add = [this](int award, const QString &text, const QString &icon,
                            const std::vector<Nomination> &nominations) {
        if (nominations.empty()) {
            return;
        }
        AwardNode branch;
        branch.text = text;
        branch.icon = icon;
        const int above = AddNode(award, std::move(branch));
        for (const Nomination &nomination : nominations) {
            AwardNode leaf;
            leaf.text = nomination.text;
            leaf.key = "Movie|"_L1 + QString::number(NextNumber());
            leaf.icon = icon;
            leaf.movie_title = nomination.movie_title;
            leaf.movie_year = nomination.movie_year;
            leaf.award_year = nomination.award_year;
            AddNode(above, std::move(leaf));
        }
    };
    for (const AwardGroup &group : groups) {
        AwardNode node;
        node.text = group.award;
        const int award = AddNode(0, std::move(node));
        add(award, won, u"X"_s, group.won);
        add(award, nominated, u"NX"_s, group.nominated);
    }
    endResetModel();
}

void AwardTree::Clear() {
    beginResetModel();
    RemoveNodes();
    endResetModel();
}

} // namespace ostrand
