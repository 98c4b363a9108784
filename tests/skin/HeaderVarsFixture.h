// A collection with script variables to be read.
#pragma once

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "skin/SkinTags.h"
#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand::test {

class HeaderVarsFixture : public testing::Test {
protected:
    void SetUp() override {
        session.DatabaseFile = folder / QStringLiteral("films.mdb");
        CreateCollectionDatabase(session, session.DatabaseFile);
        session.HeadshotPath = WithSeparator(folder / QStringLiteral("heads"));
        session.CoverPath = QStringLiteral("/covers/");
    }

    void Run(const QString &statement) { session.Database->Execute(statement); }
    /// A profile; `columns` and `values` as in an INSERT, each with a comma in front.
    void AddProfile(const QString &columns = {}, const QString &values = {}) {
        Run(QStringLiteral("INSERT INTO Profiles (ProfileID, Title") + columns +
            QStringLiteral(") VALUES ('Key_100.4', 'The Kite'") + values + u')');
    }
    void AddEpisode(const QString &columns = {}, const QString &values = {}) {
        Run(QStringLiteral("INSERT INTO TVSeries (SeriesID, OriginalTitle, Title) VALUES ('S1', 'Moss', 'Moss DE')"));
        Run(QStringLiteral("INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle") + columns +
            QStringLiteral(") VALUES ('E1', 'S1', 'Spores'") + values + u')');
    }

    QString Vars(TagProducer producer, const QString &attributes, bool is_episode) {
        const QString statement =
            is_episode ? QStringLiteral("SELECT *, EpisodeTitle as [Title], EpisodeOriginalTitle as [OriginalTitle], "
                                        "AirDate as [Released] FROM Episodes WHERE EpisodeID = 'E1'")
                       : QStringLiteral("SELECT * FROM Profiles WHERE ProfileID = '") + EscapeSql(profile_id) + u'\'';
        const sql::Recordset row = session.Database->OpenRecordset(statement);
        QString text;
        producer({.session = session,
                  .skin = skin,
                  .options = options,
                  .row = row,
                  .key = is_episode ? QStringLiteral("E1") : profile_id,
                  .is_episode = is_episode,
                  .tag = QStringLiteral("<DP Name=\"HEADER_VARS\" ") + attributes + QStringLiteral("/>")},
                 text);
        return text;
    }
    QString DPVars(const QString &attributes = {}, bool is_episode = false) {
        return Vars(GetDPHeaderVars, attributes, is_episode);
    }
    QString OSVVars(const QString &attributes = {}, bool is_episode = false) {
        return Vars(GetOSVHeaderVars, attributes, is_episode);
    }
    /// The value that a variable was given last, without the semicolon; "none" for one that is not there.
    static QString ValueOf(const QString &text, const QString &name) {
        const QString start = QStringLiteral("\tvar ") + name + QStringLiteral(" = ");
        const qsizetype at = text.lastIndexOf(start);
        if (at < 0) {
            return QStringLiteral("none");
        }
        const qsizetype from = at + start.size();
        return text.mid(from, text.indexOf(QStringLiteral(";\r\n"), from) - from);
    }
    /// The lines below a caption, up to the next blank line.
    static QStringList SectionOf(const QString &text, const QString &caption) {
        const QString start = QStringLiteral("\r\n\t// ") + caption + QStringLiteral("\r\n");
        const qsizetype at = text.indexOf(start);
        if (at < 0) {
            return {QStringLiteral("none")};
        }
        QStringList lines = text.mid(at + start.size()).split(QStringLiteral("\r\n"));
        return lines.mid(0, lines.indexOf(QString()));
    }

    TempDir folder;
    TestServices services;
    Session session{services.services};
    SkinState skin;
    RenderOptions options;
    /// Whose variables are read.
    QString profile_id = QStringLiteral("Key_100.4");
};

} // namespace ostrand::test
