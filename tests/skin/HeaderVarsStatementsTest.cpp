// What the script variables ask the collection for.
#include "HeaderVarsFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class HeaderVarsStatements : public test::HeaderVarsFixture {
protected:
    /// The statements of all variables of a page, the one of its row apart.
    QStringList Sent(bool is_episode) {
        const QString everything =
            u"IncludeCast=\"yes\" IncludeCrew=\"yes\" IncludeAudio=\"yes\" IncludeAdditionalInfo=\"yes\" "
            "IncludeLinks=\"yes\" IncludeEvents=\"yes\" IncludeFeatures=\"yes\""_s;
        QStringList statements;
        session.Database->SetObserver([&](QStringView sql) { statements.append(sql.toString()); });
        DPVars(everything, is_episode);
        OSVVars(everything, is_episode);
        session.Database->SetObserver({});
        statements.removeIf([&](const QString &sql) {
            return sql.endsWith(is_episode ? u"FROM Episodes WHERE EpisodeID = 'E1'"_s
                                           : u"FROM Profiles WHERE ProfileID = 'Key_100.4'"_s);
        });
        return statements;
    }
};

TEST_F(HeaderVarsStatements, AreLookUps) {
    AddProfile(u", ProdYear"_s, u", 1999"_s);
    AddEpisode();
    for (const bool is_episode : {false, true}) {
        const QStringList statements = Sent(is_episode);
        EXPECT_GT(statements.size(), 25);
        for (const QString &sql : statements) {
            for (const QString &step : session.Database->QueryPlan(sql)) {
                EXPECT_FALSE(step.startsWith(u"SCAN"_s)) << sql.toStdString() << "\n" << step.toStdString();
            }
        }
    }
}

TEST_F(HeaderVarsStatements, AskForTheCreditsInTheirOrder) {
    AddProfile();
    AddEpisode();
    EXPECT_EQ(
        Sent(false).filter(u"CastCrew"_s),
        (QStringList{u"SELECT * FROM CastCrew WHERE ProfileID = 'Key_100.4' AND IsCast = true ORDER BY Position"_s,
                     u"SELECT * FROM CastCrew WHERE ProfileID = 'Key_100.4' AND IsCast = false ORDER BY Position"_s,
                     u"SELECT * FROM CastCrew WHERE ProfileID = 'Key_100.4' AND IsCast = true ORDER BY Position"_s,
                     u"SELECT * FROM CastCrew WHERE ProfileID = 'Key_100.4' AND IsCast = false ORDER BY Position"_s}));
    EXPECT_EQ(Sent(true).filter(u"CastCrew"_s),
              (QStringList{u"SELECT * FROM TVCastCrew WHERE EpisodeID = 'E1' AND IsCast = true ORDER BY Position"_s,
                           u"SELECT * FROM TVCastCrew WHERE EpisodeID = 'E1' AND IsCast = no ORDER BY Position"_s,
                           u"SELECT * FROM TVCastCrew WHERE EpisodeID = 'E1' AND IsCast = true ORDER BY Position"_s,
                           u"SELECT * FROM TVCastCrew WHERE EpisodeID = 'E1' AND IsCast = no ORDER BY Position"_s}));
}

TEST_F(HeaderVarsStatements, DoNotGrowWithTheLists) {
    AddProfile();
    const qsizetype few = Sent(false).size();
    for (int i = 0; i < 30; ++i) {
        Run(u"INSERT INTO Genres VALUES ('Key_100.4', 'Genre %1')"_s.arg(i));
        Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Feature %1')"_s.arg(i));
        Run(u"INSERT INTO Discs (ProfileID, DiscNo) VALUES ('Key_100.4', %1)"_s.arg(i));
        Run(u"INSERT INTO Locks VALUES ('Key_100.4', 'Lock %1')"_s.arg(i));
    }
    EXPECT_EQ(Sent(false).size(), few);
}

} // namespace
} // namespace ostrand
