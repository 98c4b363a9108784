// A collection with a few titles, for pages of skins.
#pragma once

#include "../database/CollectionFixture.h"
#include "skin/SkinPage.h"
#include "skin/TagCall.h"
#include "support/ScriptedHtmlView.h"

namespace ostrand {

using RecordingView = test::ScriptedHtmlView;

class SkinTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        for (const char16_t *statement : {
                 u"INSERT INTO Profiles (ProfileID, Title, OriginalTitle, CustomTitle, SortTitle, ProdYear, Medium, "
                 u"ColNo, CountryOfOrigin, CaseType) VALUES ('Key_1', 'Amber', 'Ambre', 'Mine', 'Amber, The', 1999, "
                 u"'DVD', '7', 'Italy', 'Keep Case')",
                 u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_2', 'O''Brien')",
                 u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle, "
                 u"AirDate, Overview, Notes) VALUES ('E1', 'S1', 'One', '1', 'Storm', 'Sturm', #3/4/2001#, 'Rain', "
                 u"'Wind')",
             }) {
            Run(statement);
        }
    }

    sql::Recordset Row(const QString &key = QStringLiteral("Key_1"), bool is_episode = false) {
        return OpenSkinRow(session, key, is_episode);
    }
    /// What a producer writes for a tag of `row`.
    QString Produce(TagProducer producer, const sql::Recordset &row, const QString &argument = {},
                    const QString &tag = QStringLiteral("<DP NAME=\"X\">"), bool is_episode = false) {
        QString text;
        producer({session, skin, options, row, {}, is_episode, tag, argument}, text);
        return text;
    }
    /// The page of a template.
    QString Page(const QString &page, const QString &key = QStringLiteral("Key_1"), bool is_episode = false,
                 const QString &back = {}) {
        const sql::Recordset row = Row(key, is_episode);
        return RenderSkinText(session, skin, page, row, is_episode, back, options);
    }
    /// Lets a text be shown as another.
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(QStringLiteral("INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')")
                .arg(EscapeSql(english), EscapeSql(shown)));
    }
    void SetColumn(const QString &key, const QString &column, const QString &value) {
        ASSERT_EQ(Run(QStringLiteral("UPDATE Profiles SET %1 = '%2' WHERE ProfileID = '%3'")
                          .arg(column, EscapeSql(value), key)),
                  1);
    }

    SkinState skin;
    RenderOptions options;
};

} // namespace ostrand
