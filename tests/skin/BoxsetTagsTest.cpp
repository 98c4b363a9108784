#include "CoverFixture.h"

#include "shell/SettingsTable.h"

#include <QRegularExpression>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class BoxsetTagsTest : public CoverTest {
protected:
    void AddChild(const QString &id, const QString &assignments) {
        AddProfile(id);
        Run(u"UPDATE Profiles SET %1 WHERE ProfileID = '%2'"_s.arg(assignments, EscapeSql(id)));
        Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', '%2')"_s.arg(EscapeSql(id), Escaped()));
    }
    void AddTwoChildren() {
        AddChild(u"Key_c'1"_s, u"Title = 'Zeal', SortTitle = 'B', OriginalTitle = 'A1', CustomTitle = 'Mine', "
                               "UPC = '012345678901'"_s);
        AddChild(u"OSV2"_s, u"Title = 'Alder <&>', SortTitle = '', UPC = 'none'"_s);
    }
    static QString Entry(const QString &target, const QString &content) {
        return u"<NOBR><A HREF=\"%1\">%2</A></NOBR>"_s.arg(target, content);
    }
    QString Image(const QString &file, const QString &size = u" WIDTH=160"_s) const {
        return u"<IMG SRC=\"%1\"%2>"_s.arg(Url(file), size);
    }
};

TEST_F(BoxsetTagsTest, Contents) {
    Check(GetDPBoxsetContent, {{"no children", {}, {}}});
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_9', '%1')"_s.arg(Escaped()));
    Check(GetDPBoxsetContent, {{"a child that is not in the collection", {}, {}}});
    AddTwoChildren();
    const QString zeal = u"blank.html?profileid=Key_c'1"_s;
    const QString alder = u"blank.html?profileid=OSV2"_s;
    Check(GetDPBoxsetContent,
          {
              {"by sort title, else title", {}, Entry(alder, u"Alder <&>"_s) + u", "_s + Entry(zeal, u"Zeal"_s)},
              {"divider", uR"(Divider="break")"_s, Entry(alder, u"Alder <&>"_s) + u"<br/>"_s + Entry(zeal, u"Zeal"_s)},
              {"numbers", uR"(ShowUPCs="YES")"_s,
               Entry(alder, u"Alder <&> (none)"_s) + u", "_s + Entry(zeal, u"Zeal (0-12345-67890-1)"_s)},
          });
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_other', 'OSVE''1')");
    AddProfile(u"Key_other"_s);
    CheckForEpisode(GetDPBoxsetContent, {{"an episode has none", {}, {}}});
    ExpectFailure(GetDPBoxsetContent, u"ShowUPCs"_s);
    ExpectFailure(GetDPBoxsetContent, u"ShowCovers"_s);
}

TEST_F(BoxsetTagsTest, ContentsOnASite) {
    AddTwoChildren();
    options.offline = true;
    EXPECT_EQ(Produce(GetDPBoxsetContent),
              Entry(u"OSV2.html"_s, u"Alder <&>"_s) + u", "_s + Entry(u"c'1.html"_s, u"Zeal"_s));
}

TEST_F(BoxsetTagsTest, OrderAndTitlesFollowTheMenus) {
    AddChild(u"1"_s, u"Title = 'D', SortTitle = 'Q', OriginalTitle = 'E', OriginalSortTitle = 'A'"_s);
    AddChild(u"2"_s, u"Title = 'C', SortTitle = 'R', OriginalTitle = 'B', CustomTitle = 'S', CustomSortTitle = ''"_s);
    AddChild(u"3"_s, u"Title = 'F', SortTitle = 'P', CustomTitle = 'A', CustomSortTitle = 'T'"_s);
    AddChild(u"4"_s, u"Title = 'O', Description = 'Wide'"_s);
    session.view.mShowDescription = true;
    const struct {
        bool custom;
        bool original;
        QStringList titles;
    } cases[] = {
        {false, false, {u"O"_s, u"F"_s, u"D"_s, u"C"_s}}, // O P Q R
        {false, true, {u"E"_s, u"B"_s, u"O"_s, u"F"_s}},  // A B O P
        {true, false, {u"O"_s, u"D"_s, u"S"_s, u"A"_s}},  // O Q S T
        {true, true, {u"E"_s, u"O"_s, u"S"_s, u"A"_s}},   // A O S T
    };
    for (const auto &c : cases) {
        session.view.mUseCustomTitle = c.custom;
        session.view.mUseOriginalTitle = c.original;
        QString text = Produce(GetDPBoxsetContent, uR"(Divider="|")"_s);
        static const QRegularExpression kMarkup(u"<[^>]*>"_s);
        EXPECT_EQ(text.remove(kMarkup).split(u'|'), c.titles) << c.custom << c.original;
    }
}

TEST_F(BoxsetTagsTest, Covers) {
    AddTwoChildren();
    AddCover(u"c'1f.jpg"_s);
    AddCover(u"c'1b.jpg"_s);
    AddCover(u"OSV2f.jpg"_s);
    Check(GetDPBoxsetContent,
          {
              {"fronts", uR"(ShowCovers="YES")"_s,
               Entry(u"blank.html?profileid=OSV2"_s, Image(u"OSV2f.jpg"_s)) + u", "_s +
                   Entry(u"blank.html?profileid=c'1"_s, Image(u"c%271f.jpg"_s))},
              {"backs, one of them missing", uR"(ShowCovers="YES" Face="BACK" Width="10" Height="20" Divider="|")"_s,
               u"<NOBR></NOBR>|"_s +
                   Entry(u"blank.html?profileid=c'1"_s, Image(u"c%271b.jpg"_s, u" WIDTH=10 HEIGHT=20"_s))},
              {"no numbers with covers", uR"(ShowCovers="YES" ShowUPCs="YES" Face="BACK")"_s,
               u"<NOBR></NOBR>, "_s + Entry(u"blank.html?profileid=c'1"_s, Image(u"c%271b.jpg"_s))},
          });
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/f.html"_s)) << "no page with the large view";
}

TEST_F(BoxsetTagsTest, CoversOnASite) {
    AddTwoChildren();
    AddChild(u"Key_x/9"_s, u"SortTitle = 'C'"_s);
    AddCover(u"OSV2f.jpg"_s);
    AddCover(u"c'1f.jpg"_s);
    options.offline = true;
    const auto entry = [](const QString &page, const QString &source) {
        return Entry(page, u"<IMG SRC=\""_s + source + u"\" WIDTH=160>"_s);
    };
    EXPECT_EQ(Produce(GetDPBoxsetContent, uR"(ShowCovers="YES")"_s),
              entry(u"OSV2.html"_s, u"../Covers/OSV2f.jpg"_s) + u", "_s + entry(u"c'1.html"_s, Url(u"c%271f.jpg"_s)) +
                  u", <NOBR></NOBR>"_s);
    options.opUseCoverScansLocally = true;
    EXPECT_EQ(Produce(GetDPBoxsetContent, uR"(ShowCovers="YES")"_s),
              entry(u"OSV2.html"_s, Url(u"OSV2f.jpg"_s)) + u", "_s + entry(u"c'1.html"_s, Url(u"c%271f.jpg"_s)) +
                  u", <NOBR></NOBR>"_s);
    options.opUseCoverScansLocally = false;
    options.opUseMyProfilerScans = true;
    EXPECT_EQ(Produce(GetDPBoxsetContent, uR"(ShowCovers="YES")"_s),
              entry(u"OSV2.html"_s, u"../Covers/OSV2f.jpg"_s) + u", "_s +
                  entry(u"c'1.html"_s, CoverHost() + u"/mpimages/c'/c'1f.jpg"_s) + u", "_s +
                  entry(u"x/9.html"_s, CoverHost() + u"/mpimages/x//x9f.jpg"_s));
    EXPECT_EQ(Produce(GetDPBoxsetContent, uR"(ShowCovers="YES" Face="SPINE")"_s),
              u"<NOBR></NOBR>, <NOBR></NOBR>, <NOBR></NOBR>"_s);
}

TEST_F(BoxsetTagsTest, ParentOfAProfile) {
    Check(GetOSVParent, {{"no parent", {}, {}}});
    AddProfile(u"Key_box'1"_s);
    Run(u"UPDATE Profiles SET Title = 'Box', OriginalTitle = 'Kiste', UPC = '1234567890123' WHERE ProfileID = "
        "'Key_box''1'");
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', 'Key_box''1')"_s.arg(Escaped()));
    const QString target = u"blank.html?profileid=Key_box'1"_s;
    Check(GetOSVParent, {
                            {"title", {}, Entry(target, u"Box"_s)},
                            {"number", uR"(ShowUPCs="YES")"_s, Entry(target, u"Box (1-234567-890123)"_s)},
                            {"no cover", uR"(ShowCover="YES")"_s, u"<NOBR></NOBR>"_s},
                            {"another attribute", uR"(ShowCovers="YES")"_s, Entry(target, u"Box"_s)},
                        });
    AddCover(u"box'1b.jpg"_s);
    Check(GetOSVParent, {{"cover", uR"(ShowCover="YES" Face="BACK" Height="50")"_s,
                          Entry(u"blank.html?profileid=box'1"_s, Image(u"box%271b.jpg"_s, u" HEIGHT=50"_s))}});
    session.view.mUseOriginalTitle = true;
    Check(GetOSVParent, {{"original title", {}, Entry(target, u"Kiste"_s)}});
    options.offline = true;
    Check(GetOSVParent, {{"on a site", {}, Entry(u"box'1.html"_s, u"Kiste"_s)}});
    ExpectFailure(GetOSVParent, u"ShowUPCs"_s);
    ExpectFailure(GetOSVParent, u"ShowCover"_s);
}

TEST_F(BoxsetTagsTest, ParentsOfAnEpisode) {
    CheckForEpisode(GetOSVParent, {{"on no disc", {}, {}}});
    AddProfile(u"Key_2"_s);
    Run(u"UPDATE Profiles SET Title = 'Season', CustomTitle = 'Mine' WHERE ProfileID = 'Key_2'");
    SetProfile(u"OriginalTitle = 'All of it', UPC = '9'"_s);
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_2', 'OSVE''1')");
    const QString season = u"blank.html?profileid=Key_2"_s;
    CheckForEpisode(GetOSVParent, {{"one", {}, Entry(season, u"Season"_s)}});
    session.view.mUseCustomTitle = true;
    CheckForEpisode(GetOSVParent, {{"custom title", {}, Entry(season, u"Mine"_s)}});
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('%1', 'OSVE''1')"_s.arg(Escaped()));
    CheckForEpisode(GetOSVParent, {{"two", uR"(ShowUPCs="1" Divider="|")"_s,
                                    Entry(season, u"Mine ()"_s) + u'|' +
                                        Entry(u"blank.html?profileid=Key_O'1"_s, u"All of it (9)"_s)}});
    options.offline = true;
    CheckForEpisode(GetOSVParent, {{"on a site", uR"(Divider="|")"_s,
                                    Entry(u"../Profiles/2.html"_s, u"Mine"_s) + u'|' +
                                        Entry(u"../Profiles/O'1.html"_s, u"All of it"_s)}});
}

} // namespace
} // namespace ostrand
