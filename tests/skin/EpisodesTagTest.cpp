// The episodes of a profile's page.
#include "ProducerFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class EpisodesTagTest : public ProducerTest {
protected:
    /// `date` as it stands in the statement.
    void Episode(const QString &id, const QString &number, const QString &title, const QString &original,
                 const QString &season = u"1"_s, const QString &date = u"NULL"_s, const QString &series = u"S1"_s) {
        const auto quoted = [](const QString &text) { return u'\'' + EscapeSql(text) + u'\''; };
        Run(QString(
            u"INSERT INTO Episodes (EpisodeID, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle, Season, SeriesID, "
            "AirDate) VALUES ("_s +
            QStringList(
                {quoted(id), quoted(number), quoted(title), quoted(original), quoted(season), quoted(series), date})
                .join(u',') +
            u')'));
        Run(QString(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_1', "_s + quoted(id) + u')'));
    }
    static QString Link(const QString &id, const QString &text) {
        return u"<NOBR><A HREF=\"blank.html?episodeid="_s + id + u"\">"_s + text + u"</A></NOBR>"_s;
    }
};

TEST_F(EpisodesTagTest, WithoutEpisodesThereIsNoText) {
    EXPECT_EQ(Render(GetOSVEpisodes), QString());
    Episode(u"Key_E2"_s, u"1"_s, u"High Water"_s, {});
    EXPECT_EQ(Render(GetOSVEpisodes, {}, {}, kEpisode), QString());
    EXPECT_EQ(Render(GetOSVEpisodes, u"ShowTitle=\"perhaps\""_s, {}, kEpisode), QString());
}

TEST_F(EpisodesTagTest, AttributesShapeAnEntry) {
    Episode(u"Key_A"_s, u"1"_s, u"Ebb"_s, u"Ebbe"_s, u"1"_s, u"#3/5/2020#"_s);
    Episode(u"Key_B"_s, u"2"_s, u"Flood"_s, {}, u"1"_s, u"0"_s);
    Episode(u"Key_C"_s, {}, {}, u"Flut's <b>"_s);
    const auto entries = [](const QString &c, const QString &a, const QString &b, const QString &divider = u"<br/>"_s) {
        return QStringList({Link(u"Key_C"_s, c), Link(u"Key_A"_s, a), Link(u"Key_B"_s, b)}).join(divider);
    };
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {{}, entries(u"Flut's <b>"_s, u"1. Ebb"_s, u"2. Flood"_s)},
        {u"ShowEpNumber=\"no\""_s, entries(u"Flut's <b>"_s, u"Ebb"_s, u"Flood"_s)},
        {u"ShowTitle=\"no\""_s, entries({}, u"1"_s, u"2"_s)},
        {u"UseOriginalTitle=\"yes\""_s, entries(u"Flut's <b>"_s, u"1. Ebbe"_s, u"2. Flood"_s)},
        {u"ShowAirDate=\"yes\""_s, entries(u"Flut's <b>"_s, u"1. Ebb (2020-03-05)"_s, u"2. Flood"_s)},
        {u"ShowAirDate=\"yes\" ShowTitle=\"no\" ShowEpNumber=\"no\""_s, entries({}, u" (2020-03-05)"_s, {})},
        {u"Divider=\", \""_s, entries(u"Flut's <b>"_s, u"1. Ebb"_s, u"2. Flood"_s, u", "_s)},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Render(GetOSVEpisodes, c.attributes), c.text) << qPrintable(c.attributes);
    }
    for (const auto &name : {u"ShowEpNumber"_s, u"ShowTitle"_s, u"UseOriginalTitle"_s, u"ShowAirDate"_s}) {
        EXPECT_THROW(Render(GetOSVEpisodes, name + u"=\"perhaps\""_s), SkinFailure) << qPrintable(name);
    }
}

TEST_F(EpisodesTagTest, EpisodesStandBySeriesSeasonAndNumber) {
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S0', 'Breakwater', '')");
    Episode(u"E1"_s, u"02"_s, u"a"_s, {}, u"1"_s);
    Episode(u"E2"_s, u"01"_s, u"b"_s, {}, u"2"_s);
    Episode(u"E3"_s, u"01"_s, u"c"_s, {}, u"1"_s);
    Episode(u"E4"_s, u"10"_s, u"d"_s, {}, u"1"_s);
    Episode(u"E5"_s, u"01"_s, u"e"_s, {}, u"1"_s, u"NULL"_s, u"S0"_s);
    EXPECT_EQ(Render(GetOSVEpisodes),
              QStringList({Link(u"E5"_s, u"01. e"_s), Link(u"E3"_s, u"01. c"_s), Link(u"E1"_s, u"02. a"_s),
                           Link(u"E4"_s, u"10. d"_s), Link(u"E2"_s, u"01. b"_s)})
                  .join(u"<br/>"_s));
}

TEST_F(EpisodesTagTest, TheSiteLinksToPagesThatItWrites) {
    Episode(u"Key_Tide 1: \"x\""_s, u"1"_s, u"Ebb"_s, u"Ebbe"_s);
    Episode(u"Key_Tide 2"_s, u"2"_s, {}, u"Flut"_s);
    QStringList written;
    options.write_episode_page = [&](const sql::Recordset &row) {
        written.append(row.Text(u"EpisodeID") + u'|' + row.Text(u"Title") + u'|' + row.Text(u"SeriesID"));
    };
    options.generate_episode_pages = true;
    EXPECT_EQ(Render(GetOSVEpisodes, u"Divider=\"; \""_s),
              Link(u"Key_Tide 1: \"x\""_s, u"1. Ebb"_s) + u"; "_s + Link(u"Key_Tide 2"_s, u"2. Flut"_s));
    EXPECT_EQ(written, QStringList());

    options.offline = true;
    session.progress.Load(u"Export"_s);
    EXPECT_EQ(Render(GetOSVEpisodes), u"<NOBR><A HREF='../Episodes/Tide%201%20-%20'x'.html'>1. Ebb</A></NOBR><br/>"
                                      "<NOBR><A HREF='../Episodes/Tide%202.html'>2. Flut</A></NOBR>"_s);
    EXPECT_EQ(written, QStringList({u"Key_Tide 1: \"x\"|Ebb|S1"_s, u"Key_Tide 2||S1"_s}));
    EXPECT_TRUE(services.progress.Has(u"detail Episode Ebb"_s));
    EXPECT_TRUE(services.progress.Has(u"detail Episode Flut"_s));

    written.clear();
    options.generate_episode_pages = false;
    EXPECT_EQ(Render(GetOSVEpisodes), u"<NOBR>1. Ebb</NOBR><br/><NOBR>2. Flut</NOBR>"_s);
    EXPECT_EQ(written, QStringList());
}

TEST_F(EpisodesTagTest, AFailedPageEndsTheTag) {
    Episode(u"Key_A"_s, u"1"_s, u"Ebb"_s, {});
    options.offline = true;
    options.generate_episode_pages = true;
    options.write_episode_page = [](const sql::Recordset &) { throw SkinFailure(u"no page"_s); };
    EXPECT_THROW(Render(GetOSVEpisodes), SkinFailure);
}

TEST_F(EpisodesTagTest, EpisodesAreLookedUp) {
    EXPECT_EQ(Scans([&] { Render(GetOSVEpisodes); }), QStringList());
}

} // namespace
} // namespace ostrand
