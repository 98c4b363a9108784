// What the tests of the tags of one profile share: a collection with a profile and an episode, and a short way to a
// tag's text.
#pragma once

#include "../database/CollectionFixture.h"
#include "skin/SkinTags.h"

namespace ostrand {

/// A tag's attributes and the text that they give.
struct TagCase {
    const char *name;
    QString attributes;
    QString text;
};

class ProfileTagTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        // The key holds a quote, so that no statement forgets to double it.
        AddProfile(kKey);
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID) VALUES ('OSVE''1', 'S1')");
    }

    void AddProfile(const QString &id) {
        Run(QStringLiteral("INSERT INTO Profiles (ProfileID, Title) VALUES ('%1', '')").arg(EscapeSql(id)));
    }
    /// Sets columns of the profile, `assignments` as "Name = 'value', ..".
    void SetProfile(const QString &assignments) {
        ASSERT_EQ(Run(QStringLiteral("UPDATE Profiles SET %1 WHERE ProfileID = '%2'").arg(assignments, Escaped())), 1)
            << qPrintable(assignments);
    }
    void SetEpisode(const QString &assignments) {
        ASSERT_EQ(Run(QStringLiteral("UPDATE Episodes SET %1 WHERE EpisodeID = 'OSVE''1'").arg(assignments)), 1);
    }
    /// A row of the profile in a table; `values` are all behind its key.
    void AddRow(const QString &table, const QString &columns, const QString &values) {
        ASSERT_EQ(Run(QStringLiteral("INSERT INTO %1 (ProfileID, %2) VALUES ('%3', %4)")
                          .arg(table, columns, Escaped(), values)),
                  1)
            << qPrintable(table) << " " << qPrintable(values);
    }
    void Clear(const QString &table) { Run(QStringLiteral("DELETE FROM ") + table); }
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(QStringLiteral("INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')")
                .arg(EscapeSql(english), EscapeSql(shown)));
    }

    QString Produce(TagProducer producer, const QString &attributes = {}, const QString &argument = {}) {
        return Produce(producer, kKey, false, attributes, argument);
    }
    QString ProduceForEpisode(TagProducer producer, const QString &attributes = {}, const QString &argument = {}) {
        return Produce(producer, QStringLiteral("OSVE'1"), true, attributes, argument);
    }
    QString Produce(TagProducer producer, const QString &key, bool is_episode, const QString &attributes,
                    const QString &argument) {
        const sql::Recordset row = session.Database->OpenRecordset(
            (is_episode ? QStringLiteral("SELECT *, EpisodeTitle as [Title], EpisodeOriginalTitle as [OriginalTitle], "
                                         "AirDate as [Released] FROM Episodes WHERE EpisodeID = '")
                        : QStringLiteral("SELECT * FROM Profiles WHERE ProfileID = '")) +
            EscapeSql(key) + u'\'');
        const TagCall call{session, skin, options, row, key, is_episode, Tag(attributes), argument};
        QString text;
        producer(call, text);
        return text;
    }
    void Check(TagProducer producer, std::initializer_list<TagCase> cases, const QString &argument = {}) {
        for (const TagCase &c : cases) {
            EXPECT_EQ(Produce(producer, c.attributes, argument), c.text) << c.name;
        }
    }
    void CheckForEpisode(TagProducer producer, std::initializer_list<TagCase> cases, const QString &argument = {}) {
        for (const TagCase &c : cases) {
            EXPECT_EQ(ProduceForEpisode(producer, c.attributes, argument), c.text) << c.name;
        }
    }
    /// An attribute that holds no truth value.
    void ExpectFailure(TagProducer producer, const QString &attribute, const QString &argument = {}) {
        EXPECT_THROW(Produce(producer, attribute + QStringLiteral("=\"perhaps\""), argument), SkinFailure)
            << qPrintable(attribute);
    }

    static QString Tag(const QString &attributes) { return QStringLiteral("<DP NAME=\"X\" ") + attributes + u'>'; }
    QString Escaped() const { return EscapeSql(kKey); }

    const QString kKey = QStringLiteral("Key_O'1");
    SkinState skin;
    RenderOptions options;
};

} // namespace ostrand
