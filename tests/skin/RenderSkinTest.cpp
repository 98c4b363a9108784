#include "SkinFixture.h"

#include <random>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class RenderSkin : public SkinTest {
protected:
    void SetUp() override {
        SkinTest::SetUp();
        skin.ActiveSkin = u"Plain"_s;
    }
};

TEST_F(RenderSkin, FillsEveryTag) {
    const struct {
        const char *name;
        QString page, result;
    } cases[] = {
        {"one", u"a<DP NAME=\"PRODYEAR\">b"_s, u"a1999b"_s},
        {"any case, both prefixes, closed or not",
         u"<dp name=\"prodyear\" ><OSV NAME=\"ProdYear\"/><Dp NAME=\"PRODYEAR\"\t/>"_s, u"199919991999"_s},
        {"the same twice", u"<DP NAME=\"PRODYEAR\">-<DP NAME=\"PRODYEAR\">"_s, u"1999-1999"_s},
        {"unknown ones vanish", u"[<DP NAME=\"NONE\">][<DP NAME=\"CREDITS_OTHER\">][<DP NAME=\"AWARDS_LIST\">]"_s,
         u"[][][]"_s},
        {"in comments and scripts", u"<!-- <DP NAME=\"MEDIUM\"> --><script>'<DP NAME=\"COLLNUM\">'</script>"_s,
         u"<!-- DVD --><script>'7'</script>"_s},
        {"what is no tag stays", u"<DP  NAME=\"TITLE\"><DP NAME='TITLE'><DP NAME=\"MEDIUM\">"_s,
         u"<DP  NAME=\"TITLE\"><DP NAME='TITLE'>DVD"_s},
        {"markup passes through", u"<html>\r\n&amp;%20\t<DP NAME=\"MEDIUM\">\n</html>"_s,
         u"<html>\r\n&amp;%20\tDVD\n</html>"_s},
        {"values are not decoded", u"<DP NAME=\"TRANSLATION\" Original=\"<i>&lt;</i>\">"_s, u"<i>&lt;</i>"_s},
        {"a no is false for texts too", u"<DP NAME=\"TRANSLATION\" Original=\"No\">"_s, u"false"_s},
        {"a break is one for texts too", u"<DP NAME=\"TRANSLATION\" Original=\"Break\">"_s, u"<br/>"_s},
        {"an empty value is none", u"[<DP NAME=\"TRANSLATION\" Original=\"\">]"_s, u"[]"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Page(c.page), c.result) << c.name;
    }
}

TEST_F(RenderSkin, SkinsCountOnTheseRules) {
    TranslateAs(u"TV"_s, u"Fernsehen"_s);
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_1', 'Drama')");
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_1', 'Opera')");
    Run(u"INSERT INTO Retailers (Name) VALUES ('Shop')");
    Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchasePlace) VALUES ('Key_1', 'Shop')");
    for (const QString &name : {u"Mara Hale"_s, u"Bo Mire"_s}) {
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, IsCast, BirthYear, Position) VALUES ('Key_1', '%1', 'Tree', "
            "True, 0, 1)"_s.arg(name));
    }
    const QString bo = u"<NOBREAK><A HREF=\"blank.html?actorid=Bo Mire|0\">Bo Mire</A> as Tree</NOBREAK>"_s;
    const QString mara = u"<NOBREAK><A HREF=\"blank.html?actorid=Mara Hale|0\">Mara Hale</A> as Tree</NOBREAK>"_s;
    const struct {
        const char *name;
        QString page, profile, episode;
    } cases[] = {
        {"one tag in three spellings", u"<DP Name=\"TITLE\"/>|<dp name=\"TITLE\" >|<OSV NAME=\"TITLE\">"_s,
         u"Amber|Amber|Amber"_s, u"Storm|Storm|Storm"_s},
        {"no tags", u"<DP  NAME=\"TITLE\"><DP NAME='TITLE'>[<DP NAME=\"NONE\">]"_s,
         u"<DP  NAME=\"TITLE\"><DP NAME='TITLE'>[]"_s, u"<DP  NAME=\"TITLE\"><DP NAME='TITLE'>[]"_s},
        {"a tag stands on one line", u"<DP NAME=\"TITLE\"\r\n ShowDesc=\"yes\">[<DP NAME=\"NONE\">]"_s,
         u"<DP NAME=\"TITLE\"\r\n ShowDesc=\"yes\">[]"_s, u"<DP NAME=\"TITLE\"\r\n ShowDesc=\"yes\">[]"_s},
        {"two attributes", u"<DP NAME=\"CAST\" Divider=\"; \" ShowRoles=\"yes\">"_s, mara + u"; "_s + bo, {}},
        {"an empty divider is the default",
         u"<DP NAME=\"CAST\" Divider=\"\" ShowRoles=\"yes\">"_s,
         mara + u", "_s + bo,
         {}},
        {"a break", u"<DP NAME=\"GENRES\" Divider=\"break\">"_s, u"Drama<br/>Opera"_s, {}},
        {"a no of a text", u"<DP NAME=\"PURCHPLACE\" Prefix=\"No\">"_s, u"falseShop"_s, {}},
        {"a sort title is one of profiles", u"<DP NAME=\"SORTTITLE\">"_s, u"Amber, The"_s, {}},
        {"an episode belongs to television", u"<DP NAME=\"OWNERSHIP\" Translate=\"yes\">|<DP NAME=\"STATUS\">"_s,
         u"|"_s, u"Fernsehen|TV"_s},
        {"an attribute without quotes takes the tag behind it",
         u"<DP NAME=\"TITLE\" ShowDesc=no> <DP NAME=\"MEDIUM\">"_s, u"Amber"_s, u"Storm"_s},
        {"a value ends a tag where a bracket follows it", u"<DP NAME=\"TITLE\">\">"_s, u"Amber\">"_s, u"Storm\">"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Page(c.page), c.profile) << c.name;
        EXPECT_EQ(Page(c.page, u"E1"_s, true), c.episode) << c.name;
    }
}

TEST_F(RenderSkin, TagsInTextsOfTheDatabaseAreInert) {
    SetColumn(u"Key_1"_s, u"Overview"_s, u"<DP NAME=\"COLLNUM\">"_s);
    EXPECT_EQ(Page(u"<DP NAME=\"OVERVIEW\">"_s), u"<DP NAME=\"COLLNUM\">"_s);
    EXPECT_EQ(Page(u"<DP NAME=\"COLLNUM\">|<DP NAME=\"OVERVIEW\">"_s), u"7|<DP NAME=\"COLLNUM\">"_s);
    EXPECT_EQ(Page(u"<DP NAME=\"OVERVIEW\">|<DP NAME=\"COLLNUM\">"_s), u"7|7"_s)
        << "unless the page holds the very same tag further down";
    EXPECT_EQ(Page(u"<DP NAME=\"OVERVIEW\">|<dp NAME=\"COLLNUM\">"_s), u"<DP NAME=\"COLLNUM\">|7"_s)
        << "another spelling is another text";
}

TEST_F(RenderSkin, ReplacesTheExactTextOnly) {
    EXPECT_EQ(Page(u"<DP NAME=\"MEDIUM\"> <DP NAME=\"medium\"> <!<DP NAME=\"MEDIUM\">>"_s), u"DVD DVD <!DVD>"_s);
}

TEST_F(RenderSkin, EvaluatesATagThatStandsTwiceTwice) {
    // The first evaluation fills both places; the second finds what a producer's text brought in.
    SetColumn(u"Key_1"_s, u"Overview"_s, u"[<DP NAME=\"OVERVIEW\">]"_s);
    EXPECT_EQ(Page(u"<DP NAME=\"OVERVIEW\">"_s), u"[<DP NAME=\"OVERVIEW\">]"_s);
    EXPECT_EQ(Page(u"<DP NAME=\"OVERVIEW\"> <DP NAME=\"OVERVIEW\">"_s),
              u"[[<DP NAME=\"OVERVIEW\">]] [[<DP NAME=\"OVERVIEW\">]]"_s);
}

TEST_F(RenderSkin, ABackButtonStandsInAFrameAbove) {
    TranslateAs(u"Back"_s, u"Zur\u00FCck"_s);
    EXPECT_EQ(Page(u"x<DP NAME=\"MEDIUM\">y"_s, u"Key_1"_s, false, u"Key_2"_s),
              u"<HTML><BODY>\r\n<frameset rows='20,*' border='0'>\r\n<frame><INPUT TYPE='button' "
              "onClick=\"self.location.href='blank.html?profileid=Key_2'\" VALUE=' < Zur\u00FCck '><BR></frame>\r\n"
              "<frame>xDVDy</frame> </frameset>"_s);
}

TEST_F(RenderSkin, AnEpisodeHasNoFieldsOfProfiles) {
    EXPECT_EQ(Page(u"[<DP NAME=\"SORTTITLE\">][<DP NAME=\"OVERVIEW\">][<DP NAME=\"PRODYEAR\">]"_s, u"E1"_s, true),
              u"[][Rain][]"_s);
}

TEST_F(RenderSkin, FailsWithoutATag) {
    for (const QString &page : {u"<html>plain</html>"_s, u"<DP NAME='TITLE'>"_s, QString()}) {
        EXPECT_THROW(Page(page), SkinFailure) << qPrintable(page);
        EXPECT_THROW(Page(page, u"Key_1"_s, false, u"Key_2"_s), SkinFailure) << qPrintable(page);
    }
}

TEST_F(RenderSkin, FailsWithATagThatIsNotGuarded) {
    EXPECT_THROW(Page(u"<DP NAME=\"CASETYPE\" Translate=\"maybe\">"_s), SkinFailure);
    EXPECT_THROW(Page(u"<DP NAME=\"MEDIUM\">"_s, u"Key_none"_s), sql::SqlError) << "there is no such row";
    EXPECT_EQ(Page(u"<DP NAME=\"SKIN_NAME\">"_s, u"Key_none"_s), u"Plain"_s) << "and this one needs none";
}

TEST_F(RenderSkin, AGuardedTagThatFailsIsEmptyAndToldByItsTitle) {
    const struct {
        QString tag, title;
        QString table = {}; ///< that is missing
    } cases[] = {
        {u"TITLE\" ShowTitle=\"perhaps"_s, u"TITLE"_s},
        {u"ORIGINAL_TITLE\" ShowDesc=\"perhaps"_s, u"ORIGINAL_TITLE"_s},
        {u"ORIGINAL_SORTTITLE\" UseSortTitleIfBlank=\"perhaps"_s, u"ORIGINALTITLE"_s},
        {u"CUSTOM_TITLE\" UseTitleIfBlank=\"perhaps"_s, u"CUSTOM_TITLE"_s},
        {u"RATING\" ShowDetails=\"perhaps"_s, u"RATING"_s},
        {u"ACTORS\" ShowRoles=\"perhaps"_s, u"CAST"_s},
        {u"DIRECTORS\" ShowRoles=\"perhaps"_s, u"CREW_Direction"_s},
        {u"CREW\" ShowRoles=\"perhaps\" Category=\"Head"_s, u"CREW_Head"_s},
        {u"CREW\" ShowRoles=\"perhaps"_s, u"CREW_"_s},
        {u"UPC\" Formatted=\"perhaps"_s, u"UPC"_s},
        {u"RUNTIME\" MinsOnly=\"perhaps"_s, u"RUNTIME"_s},
        {u"REGION"_s, u"REGIONS"_s, u"Regions"_s},
        {u"REGIONS"_s, u"REGIONS"_s, u"Regions"_s},
        {u"SRP"_s, u"SRP"_s, u"SRPInfo"_s},
        {u"RELDATE\" YearOnly=\"perhaps"_s, u"RELEASEDATE"_s},
        {u"SIDES"_s, u"SIDES_LAYERS"_s, u"Discs"_s},
        {u"LAYERS"_s, u"SIDES_LAYERS"_s, u"Discs"_s},
        {u"VIDFORMATS\" Ratios=\"perhaps"_s, u"VIDFORMATS"_s},
        {u"AUDIOTRACKS\" Translate=\"perhaps"_s, u"AUDIOTRACKS"_s},
        {u"BOXSETCONTENTS\" ShowUPCs=\"perhaps"_s, u"BOXSETCONTENTS"_s},
        {u"PARENT\" ShowCover=\"perhaps"_s, u"PARENT"_s},
        {u"LAST_WATCHED_BY"_s, u"LASTWATCHED"_s, u"Events"_s},
        {u"LAST_WATCHED_ON"_s, u"LASTWATCHED"_s, u"Events"_s},
        {u"LOANDUE"_s, u"LOANEDDUE"_s, u"LoanInfo"_s},
        {u"DISCS\" ShowSides=\"perhaps"_s, u"DISCS"_s},
        {u"REVIEW"_s, u"REVIEW"_s, u"Reviews"_s},
    };
    QSet<QString> missing;
    for (const auto &c : cases) {
        if (!c.table.isEmpty() && !missing.contains(c.table)) {
            missing.insert(c.table);
            Run(u"DROP TABLE "_s + c.table);
        }
        // Twice the same tag tells it twice.
        Expect({}, c.title, MessageIcon::Warning);
        Expect({}, c.title, MessageIcon::Warning);
        const QString tag = u"<DP NAME=\""_s + c.tag + u"\">"_s;
        EXPECT_EQ(Page(u"["_s + tag + u"]<DP NAME=\"MEDIUM\">["_s + tag + u']'), u"[]DVD[]"_s) << qPrintable(c.tag);
    }
}

TEST_F(RenderSkin, APageDoesNotGrowWithoutEnd) {
    // Each tag multiplies what the one before it wrote.
    const QString tag = u"<DP NAME=\"OVERVIEW\">"_s;
    SetColumn(u"Key_1"_s, u"Overview"_s, tag + tag);
    EXPECT_EQ(Page(tag.repeated(3)), tag.repeated(24));
    SetColumn(u"Key_1"_s, u"Overview"_s, tag.repeated(4000));
    EXPECT_THROW(Page(tag.repeated(60)), SkinFailure);
}

TEST_F(RenderSkin, TextsThatHoldTagsOrPiecesOfThemAreReplacedAsTheyStand) {
    const QStringList pieces = {u"<DP NAME=\"OVERVIEW\">"_s,
                                u"<DP NAME=\"MEDIUM\">"_s,
                                u"<DP NAME=\"NONE\">"_s,
                                u"<DP NA"_s,
                                u"ME=\"MEDIUM\">"_s,
                                u"<"_s,
                                u"DP NAME=\"MEDIUM\">"_s,
                                u"\">"_s,
                                u"x"_s,
                                u"<DP NAME=\"MEDIUM\" X=1> "_s};
    std::mt19937 random(11);
    const auto any_text = [&](unsigned most) {
        QString text;
        for (unsigned i = 0, count = random() % most; i < count; ++i) {
            text += pieces[qsizetype(random() % size_t(pieces.size()))];
        }
        return text;
    };
    for (int round = 0; round < 400; ++round) {
        const QString overview = any_text(4);
        SetColumn(u"Key_1"_s, u"Overview"_s, overview);
        const QString page = any_text(7);
        const QStringList tags = FindSkinTags(page);
        if (tags.isEmpty()) {
            continue;
        }
        QString expected = page;
        for (const QString &tag : tags) {
            const QString name = GetTagAttribute(tag, u"NAME", {});
            expected.replace(tag, name == u"OVERVIEW"_s ? overview : name == u"MEDIUM"_s ? u"DVD"_s : QString());
        }
        ASSERT_EQ(Page(page), expected) << qPrintable(page) << " with " << qPrintable(overview);
    }
}

TEST_F(RenderSkin, ManyTagsTakeNoTimeToSpeakOf) {
    QString page;
    for (int i = 0; i < 2000; ++i) {
        page += u"<DP NAME=\"MEDIUM\" No%1=\"x\">"_s.arg(i);
    }
    EXPECT_EQ(Page(page), u"DVD"_s.repeated(2000));
    EXPECT_EQ(Page(u"<DP NAME=\"MEDIUM\">"_s + u"<DP NAME=\"NONE\">"_s.repeated(20000)), u"DVD"_s);
}

} // namespace
} // namespace ostrand
