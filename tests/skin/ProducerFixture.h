// A collection and short ways to render one tag of it.
#pragma once

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "skin/SkinTags.h"
#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {

class ProducerTest : public testing::Test {
protected:
    static constexpr bool kEpisode = true;

    void SetUp() override {
        CreateCollectionDatabase(session, folder / QStringLiteral("films.mdb"));
        session.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
        session.HeadshotPath = WithSeparator(folder / QStringLiteral("heads"));
        folder.Write(QStringLiteral("heads/nobody.jpg"), "x");
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_1', 'Quiet Harbour')");
        Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S1', 'Tideline', '')");
        Run(u"INSERT INTO Episodes (EpisodeID, EpisodeTitle, SeriesID) VALUES ('Key_E1', 'Low Water', 'S1')");
    }

    int Run(QStringView statement) { return session.Database->Execute(statement); }

    sql::Recordset Row(bool is_episode) {
        return session.Database->OpenRecordset(
            is_episode ? QStringLiteral("SELECT *, EpisodeTitle as [Title], EpisodeOriginalTitle as [OriginalTitle], "
                                        "AirDate as [Released] FROM Episodes WHERE EpisodeID = '") +
                             EscapeSql(episode_id) + u'\''
                       : QStringLiteral("SELECT * FROM Profiles WHERE ProfileID = '") + EscapeSql(profile_id) + u'\'');
    }

    /// The text of a tag with these attributes, such as `Divider="; " ShowRoles="yes"`.
    QString Render(TagProducer producer, const QString &attributes = {}, const QString &argument = {},
                   bool is_episode = false) {
        const sql::Recordset row = Row(is_episode);
        const TagCall call{session,
                           skin,
                           options,
                           row,
                           is_episode ? episode_id : profile_id,
                           is_episode,
                           QStringLiteral("<DP NAME=\"X\" ") + attributes + u'>',
                           argument};
        QString text;
        producer(call, text);
        return text;
    }

    void TranslateTo(const QString &original, const QString &shown) {
        Run(QStringLiteral("INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')")
                .arg(EscapeSql(original), EscapeSql(shown)));
        session.UseUserDefinedStrings = true;
    }

    /// The steps of the plans of all statements of a render that walk through a whole table.
    QStringList Scans(const std::function<void()> &render) {
        QStringList statements;
        session.Database->SetObserver([&](QStringView sql) { statements.append(sql.toString()); });
        render();
        session.Database->SetObserver({});
        EXPECT_FALSE(statements.isEmpty());
        QStringList scans;
        for (const QString &statement : std::as_const(statements)) {
            for (const QString &step : session.Database->QueryPlan(statement)) {
                if (step.startsWith(QStringLiteral("SCAN"))) {
                    scans.append(statement + QStringLiteral(": ") + step);
                }
            }
        }
        return scans;
    }

    test::TempDir folder;
    test::TestServices services;
    Session session{services.services};
    SkinState skin;
    RenderOptions options;
    QString profile_id = QStringLiteral("Key_1");
    QString episode_id = QStringLiteral("Key_E1");
};

} // namespace ostrand

// Readable texts in the messages of failed tests.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << qPrintable(text) << '"';
}
inline void PrintTo(const QStringList &texts, std::ostream *out) {
    *out << "{\n  " << qPrintable(texts.join(QStringLiteral("\n  "))) << "\n}";
}
QT_END_NAMESPACE
