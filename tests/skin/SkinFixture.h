// A collection with a few titles, and a view that remembers what it is shown.
#pragma once

#include "../database/CollectionFixture.h"
#include "platform/HtmlView.h"
#include "skin/SkinPage.h"
#include "skin/TagCall.h"

namespace ostrand {

/// Keeps where it was led.
class RecordingView : public HtmlView {
public:
    void Navigate(const QString &url) override { urls += url; }
    void SetVisible(bool shown) override { visible = shown; }
    bool IsVisible() const override { return visible; }

    QStringList urls;
    bool visible = true;
};

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
