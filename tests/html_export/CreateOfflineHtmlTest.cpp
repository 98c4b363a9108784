#include "html_export/CreateOfflineHtml.h"

#include "SiteFixture.h"
#include "html_export/SiteQueries.h"
#include "shell/CommandFile.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CreateOfflineHtmlTest : public SiteTest {
protected:
    /// The titles of the listing, in their order.
    QStringList Titles() const {
        QStringList titles;
        const QString text = Listing();
        for (qsizetype at = text.indexOf(u"jslink(this);'>"_s); at >= 0;
             at = text.indexOf(u"jslink(this);'>"_s, at + 1)) {
            titles += text.mid(at + 15, text.indexOf(u"</a>"_s, at) - at - 15);
        }
        return titles;
    }
    QStringList Lines() const { return services.progress.Of(u"line"_s); }
};

TEST_F(CreateOfflineHtmlTest, WritesTheWholeSite) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    Run(u"UPDATE Profiles SET ColNo = '7'");
    Template("index.html", "index");
    Template(".htaccess", "access");
    Template("common/0.css", "css");
    Template("images/G7.png", "g");
    Template("images/reset.png", "r");
    Log(kTraceEntry | kTraceExit | kTraceError);
    EXPECT_TRUE(Export());
    for (const char16_t *file : {u"index.html", u".htaccess", u"common/0.css", u"common/G7.png", u"Images/reset.png",
                                 u"Covers", u"Headshots", u"crosslink"}) {
        EXPECT_TRUE(Has(QString::fromUtf16(file))) << qPrintable(QString::fromUtf16(file));
    }
    EXPECT_FALSE(Has(u"Episodes"_s));
    EXPECT_EQ(test::ReadTestFile(site + u"/index.html"_s), "index") << "a plain copy";
    EXPECT_EQ(Read(u"list.html"_s),
              u"L[<table id='Ownedlist' style='display: none;'>\r\n<thead>\r\n<tr><th>Title</th><th><abbr "
              "title='Collection Number' style='border: none;'>Coll&nbsp;#</abbr></th></tr></thead>\r\n<tbody>\r\n"
              "<tr><td><a href='./Profiles/1.html' target='profiles' onclick='return jslink(this);'>Amber</a></td>"
              "<td>7</td><td class='hide'>Amber</td></tr>\r\n</tbody>\r\n</table>\r\n"
              "]M[<li onclick='changetab(0)'>Owned</li>\r\n]S[Owned.sort(0,null,'CaseInsensitiveString');\r\n]"_s);
    EXPECT_TRUE(Read(u"common/0.js"_s).startsWith(u"T[        if (window.parent."_s));
    EXPECT_TRUE(Read(u"common/0.js"_s).endsWith(u"]N[1]"_s));
    EXPECT_TRUE(Read(u"common/1.js"_s).startsWith(u"Owned = new SortableTable("_s));
    EXPECT_TRUE(Read(u"index2.html"_s).startsWith(u"V[var Owned;\r\n]T[      Owned = "_s));
    EXPECT_TRUE(Read(u"index2.html"_s).endsWith(u"]I[0]"_s));
    EXPECT_EQ(Read(u"start.html"_s), u"U[Last Update: 2024-05-17 10:20]"_s);
    EXPECT_TRUE(Phone().endsWith(
        u"<ul id='Owned' title='Owned'>\r\n<li><a href='./Profiles/1.html'>Amber</a></li>\r\n</ul>\r\n"_s));
    const QString log = LogLines().join(u'\n');
    EXPECT_TRUE(log.contains(u"Start CreateOfflineHTML"_s));
    EXPECT_TRUE(log.contains(u"End CreateOfflineHTML"_s));
    EXPECT_TRUE(log.contains(u"Elapsed time 0"_s));
    EXPECT_TRUE(log.contains(u"Error copying folder "_s + services.folders.Program() + u"/html/common/iphonenav.js"_s))
        << "it is not there";
}

TEST_F(CreateOfflineHtmlTest, TellsItsSteps) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    Run(u"INSERT INTO CastCrew (Name, Role, ProfileID, Position, IsCast) VALUES ('Ann', 'Eve', 'Key_1', 1, true)");
    EXPECT_TRUE(Export());
    EXPECT_EQ(services.progress.Of(u"opened"_s), QStringList(u"Creating HTML Export..."_s));
    EXPECT_EQ(Lines(), (QStringList{u""_s, u"Preparing HTML Export"_s, u"Delete old Crosslink Files"_s,
                                    u"Create Crosslink Files"_s, u"Person 1 of 1"_s, u"Copy General Files"_s,
                                    u"Profile 0 of 1"_s, u"Profile 1 of 1"_s, u"Generate list"_s}));
    EXPECT_FALSE(session.progress.IsShown());
}

TEST_F(CreateOfflineHtmlTest, WhatIsMissingEndsTheRun) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    const struct {
        const char *name;
        QString skin;
        bool episodes;
        QString episode_skin, media_skin, text, title;
    } cases[] = {
        {"skin", u"Gone"_s, false, {}, {}, u"Skin Gone does not exist!"_s, u"Skin.html missing"_s},
        {"skin outside", u"../Blue"_s, false, {}, {}, u"Skin ../Blue does not exist!"_s, u"Skin.html missing"_s},
        {"episode skin",
         u"Blue"_s,
         true,
         u"Gone"_s,
         {},
         u"Episode Skin Gone does not exist!"_s,
         u"Skin.html missing"_s},
        {"no episode skin", u"Blue"_s, true, {}, {}, u"No episode skin given!"_s, u"No Episode Skin"_s},
        {"media skin", u"Blue"_s, false, {}, u"Gone"_s, u"Skin Gone does not exist!"_s, u"Skin.html missing"_s},
    };
    for (const auto &c : cases) {
        options.GenerateEpisodeHTML = c.episodes;
        options.SkinEpisode = c.episode_skin;
        options.MediaSkins.clear();
        if (!c.media_skin.isEmpty()) {
            options.MediaSkins = {{u"DVD"_s, c.media_skin}};
        }
        Expect(c.text, c.title, MessageIcon::Warning);
        EXPECT_FALSE(Export(c.skin)) << c.name;
        EXPECT_EQ(services.dialogs.Pending(), 0u) << c.name;
        EXPECT_FALSE(Has(u"Profiles"_s)) << c.name;
        EXPECT_FALSE(session.progress.IsLoaded()) << c.name;
    }
}

TEST_F(CreateOfflineHtmlTest, NoTypeEndsTheRun) {
    EXPECT_FALSE(Export()) << "no profile";
    AddOwned(u"Key_1"_s, u"Amber"_s);
    options.ExcludedColTypes = {u"Owned"_s};
    EXPECT_FALSE(Export());
    EXPECT_FALSE(Has(u"Profiles"_s));
    EXPECT_FALSE(session.progress.IsLoaded());
}

TEST_F(CreateOfflineHtmlTest, TheWindowTestsPathAndSkin) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    for (const QString &path : {Path(u"none"_s), QString()}) {
        Expect(u"Export Path does not exist!"_s, {}, MessageIcon::Warning);
        EXPECT_FALSE(StartOfflineHTML(session, path, u"Blue"_s, options, host));
    }
    EXPECT_FALSE(StartOfflineHTML(session, site, {}, options, host));
    EXPECT_FALSE(Has(u"Profiles"_s));
    EXPECT_TRUE(StartOfflineHTML(session, site, u"Blue"_s, options, host));
}

TEST_F(CreateOfflineHtmlTest, WithoutADatabaseItSaysSo) {
    session.Database.reset();
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(Export());
}

TEST_F(CreateOfflineHtmlTest, TabsOfTypesAndTheirOrder) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    AddProfile(u"Key_2"_s, u"Birch"_s, u", ColType"_s, u", 'It''s gone'"_s);
    AddProfile(u"Key_3"_s, u"Cedar"_s);
    AddProfile(u"Key_4"_s, u"Dogwood"_s, u", ColType"_s, u", 'Lent'"_s);
    options.ColTypesOrder = {u"It's gone"_s, u"Owned"_s};
    options.ExcludedColTypes = {u"Lent"_s};
    TranslateAs(u"Owned"_s, u"<Besitz>"_s);
    EXPECT_TRUE(Export());
    EXPECT_EQ(Titles(), (QStringList{u"Birch"_s, u"Amber"_s, u"Cedar"_s}));
    const QString list = Read(u"list.html"_s);
    EXPECT_TRUE(list.contains(u"<li onclick='changetab(0)'>It's gone</li>\r\n<li onclick='changetab(1)'>&lt;Besitz&gt;"
                              "</li>\r\n<li onclick='changetab(2)'>Unsorted</li>\r\n"_s));
    EXPECT_TRUE(list.contains(u"<table id='It_sgonelist'"_s));
    EXPECT_TRUE(list.contains(u"<table id='unsortedlist'"_s));
    EXPECT_TRUE(Phone().contains(u"<ul id='Owned' title='&lt;Besitz&gt;'>"_s));
    EXPECT_FALSE(Has(u"Profiles/4.html"_s));
}

TEST_F(CreateOfflineHtmlTest, TabsOfMedia) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    AddProfile(u"Key_2"_s, u"Birch"_s, u", ColType, Medium"_s, u", 'Owned', 'Blu-ray'"_s);
    AddProfile(u"Key_3"_s, u"Cedar"_s, u", ColType"_s, u", 'Owned'"_s);
    AddProfile(u"Key_4"_s, u"Dogwood"_s, u", ColType, Medium"_s, u", 'Owned', ''"_s);
    AddProfile(u"Key_5"_s, u"Elm"_s, u", ColType"_s, u", 'Lent'"_s);
    options.UseCollectionType = false;
    options.ExcludedColTypes = {u"Lent"_s};
    EXPECT_TRUE(Export());
    EXPECT_EQ(Titles(), (QStringList{u"Cedar"_s, u"Dogwood"_s, u"Birch"_s, u"Amber"_s}));
    EXPECT_TRUE(Read(u"list.html"_s)
                    .contains(u"changetab(0)'>Unsorted</li>\r\n<li onclick='changetab(1)'>Blu-ray</li>"
                              "\r\n<li onclick='changetab(2)'>DVD</li>"_s));
    EXPECT_TRUE(Phone().contains(u"<ul id='coltypes' title='Media Type' selected='true'>"_s));
}

TEST_F(CreateOfflineHtmlTest, RowsStandInTheChosenOrder) {
    const struct {
        const char *id, *title, *sort_title, *original, *original_sort, *custom, *col_no;
    } profiles[] = {
        {"1", "The B", "B", "Z", "", "", "9"},
        {"2", "A", "", "", "", "M", "10"},
        {"3", "C", "", "Y", "0", "", ""},
    };
    for (const auto &p : profiles) {
        AddProfile(u"Key_"_s + QString::fromUtf8(p.id), QString::fromUtf8(p.title),
                   u", SortTitle, OriginalTitle, OriginalSortTitle, CustomTitle, ColNo, ColType, Description"_s,
                   u", '%1', '%2', '%3', '%4', %5, 'Owned', 'Ed'"_s.arg(
                       QString::fromUtf8(p.sort_title), QString::fromUtf8(p.original),
                       QString::fromUtf8(p.original_sort), QString::fromUtf8(p.custom),
                       *p.col_no ? u'\'' + QString::fromUtf8(p.col_no) + u'\'' : u"NULL"_s));
    }
    const struct {
        const char *name;
        bool sort_by_title, title, custom, edition;
        QStringList titles;
    } cases[] = {
        {"title", true, true, false, false, {u"A"_s, u"The B"_s, u"C"_s}},
        {"original title", true, false, false, false, {u"Y"_s, u"A"_s, u"Z"_s}},
        {"custom title", true, true, true, false, {u"The B"_s, u"C"_s, u"M"_s}},
        {"custom before original", true, false, true, false, {u"Y"_s, u"M"_s, u"Z"_s}},
        {"number", false, true, false, false, {u"A"_s, u"The B"_s, u"C"_s}},
        {"edition", true, true, false, true, {u"A: Ed"_s, u"The B: Ed"_s, u"C: Ed"_s}},
    };
    for (const auto &c : cases) {
        options.SortByTitle = c.sort_by_title;
        options.UseTitle = c.title;
        options.UseCustomTitle = c.custom;
        options.AppendEdition = c.edition;
        EXPECT_TRUE(Export());
        EXPECT_EQ(Titles(), c.titles) << c.name;
    }
}

TEST_F(CreateOfflineHtmlTest, SortTextAndNumberMayBeMissing) {
    AddProfile(u"Key_1"_s, u""_s, u", ColType"_s, u", 'Owned'"_s);
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Listing().contains(u"jslink(this);'></a></td><td></td><td class='hide'></td></tr>"_s));
    options.SortByTitle = false;
    EXPECT_TRUE(Export());
}

TEST_F(CreateOfflineHtmlTest, BoxSetsHoldTheirTitles) {
    AddOwned(u"Key_1"_s, u"Box"_s);
    AddOwned(u"Key_2"_s, u"Inner"_s);
    AddOwned(u"Key_3"_s, u"Zebra"_s);
    AddOwned(u"Key_4"_s, u"Apple"_s);
    AddProfile(u"Key_5"_s, u"Other type"_s, u", ColType"_s, u", 'WishList'"_s);
    PutInBoxset(u"Key_2"_s, u"Key_1"_s);
    PutInBoxset(u"Key_3"_s, u"Key_2"_s);
    PutInBoxset(u"Key_4"_s, u"Key_2"_s);
    PutInBoxset(u"Key_5"_s, u"Key_1"_s);
    options.ExcludedColTypes = {u"WishList"_s};
    EXPECT_TRUE(Export());
    EXPECT_EQ(Titles(), (QStringList{u"Box"_s, u"Inner"_s, u"Apple"_s, u"Zebra"_s, u"Other type"_s}));
    EXPECT_TRUE(Listing().contains(u"<tr><td class='boxset'><a href='./Profiles/1.html'"_s));
    EXPECT_TRUE(Listing().contains(u"<span>Zebra</span><span></span></li>"_s));
    EXPECT_TRUE(Phone().contains(u"<ul id='2' title='Inner'>\r\n<li><a href='./Profiles/4.html'>Apple</a></li>"_s));
    EXPECT_EQ(FilesIn(u"Profiles"_s).size(), 5);
    EXPECT_EQ(Read(u"common/2.js"_s).count(u"\":["_s), 5);
    EXPECT_TRUE(services.progress.Has(u"line Profile 5 of 4"_s)) << "the total counts the types alone";
    EXPECT_TRUE(services.progress.Has(u"bar 4/4"_s));
}

TEST_F(CreateOfflineHtmlTest, ABoxSetWithoutTitlesIsAnOrdinaryRow) {
    AddOwned(u"Key_1"_s, u"Box"_s);
    PutInBoxset(u"Key_gone"_s, u"Key_1"_s);
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Listing().contains(u"<tr><td><a href='./Profiles/1.html'"_s));
}

TEST_F(CreateOfflineHtmlTest, CirclesOfBoxSetsEnd) {
    AddOwned(u"Key_1"_s, u"Self"_s);
    AddOwned(u"Key_2"_s, u"A"_s);
    AddOwned(u"Key_3"_s, u"B"_s);
    AddOwned(u"Key_4"_s, u"Free"_s);
    PutInBoxset(u"Key_1"_s, u"Key_1"_s);
    PutInBoxset(u"Key_2"_s, u"Key_3"_s);
    PutInBoxset(u"Key_3"_s, u"Key_2"_s);
    EXPECT_TRUE(Export());
    EXPECT_EQ(Titles(), QStringList(u"Free"_s)) << "what is in a box set stands only in it";
}

TEST_F(CreateOfflineHtmlTest, DeepBoxSetsEnd) {
    for (int i = 0; i <= 150; ++i) {
        AddOwned(u"Key_%1"_s.arg(i), u"T%1"_s.arg(i));
        if (i > 0) {
            PutInBoxset(u"Key_%1"_s.arg(i), u"Key_%1"_s.arg(i - 1));
        }
    }
    EXPECT_TRUE(Export());
    EXPECT_EQ(Titles().size(), 101);
}

TEST_F(CreateOfflineHtmlTest, BoxSetTitlesAreFoundByTheIndex) {
    const QString plan = session.Database->QueryPlan(BoxsetChildren(options, u"Key_1"_s)).join(u'\n');
    EXPECT_FALSE(plan.contains(u"SCAN"_s)) << qPrintable(plan);
}

TEST_F(CreateOfflineHtmlTest, ACancelLeavesANewSiteWithWhatWasWritten) {
    for (int i = 1; i <= 9; ++i) {
        AddOwned(u"Key_%1"_s.arg(i), u"T%1"_s.arg(i));
    }
    services.pump.At(7, [this] { session.progress.Close(); });
    EXPECT_FALSE(Export());
    const qsizetype pages = FilesIn(u"Profiles"_s).size();
    EXPECT_GT(pages, 0);
    EXPECT_LT(pages, 9);
    EXPECT_EQ(Titles().size(), pages);
    EXPECT_EQ(Read(u"common/2.js"_s).count(u"\":["_s), pages);
    EXPECT_TRUE(Has(u"iphone.html"_s));
}

TEST_F(CreateOfflineHtmlTest, ACancelKeepsTheListsOfASite) {
    for (int i = 1; i <= 9; ++i) {
        AddOwned(u"Key_%1"_s.arg(i), u"T%1"_s.arg(i));
    }
    EXPECT_TRUE(Export());
    const QString list = Read(u"list.html"_s), titles = Read(u"common/2.js"_s);
    services.pump.At(services.pump.Turns() + 7, [this] { session.progress.Close(); });
    EXPECT_FALSE(Export());
    EXPECT_EQ(Read(u"list.html"_s), list);
    EXPECT_EQ(Read(u"common/2.js"_s), titles);
    EXPECT_EQ(FilesIn(u"common"_s).filter(u"part"_s), QStringList());
}

TEST_F(CreateOfflineHtmlTest, ACancelInAnEpisodeWritesNoHalfProfile) {
    Skin(u"Blue"_s, "<OSV NAME=\"EPISODES\">");
    Skin(u"Part"_s, "<DP NAME=\"TITLE\">");
    options.GenerateEpisodeHTML = true;
    options.SkinEpisode = u"Part"_s;
    AddOwned(u"Key_1"_s, u"Amber"_s);
    for (int i = 1; i <= 5; ++i) {
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeNo, EpisodeTitle) VALUES ('E%1', 'S', '%1', 'x')"_s.arg(
            i));
        Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_1', 'E%1')"_s.arg(i));
    }
    services.pump.At(6, [this] { session.progress.Close(); });
    EXPECT_FALSE(Export());
    EXPECT_GT(FilesIn(u"Episodes"_s).size(), 0);
    EXPECT_LT(FilesIn(u"Episodes"_s).size(), 5);
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList());
    EXPECT_EQ(Titles(), QStringList());
}

TEST_F(CreateOfflineHtmlTest, AFolderThatCannotBeMadeIsTold) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    WriteTestFile(site + u"/Profiles"_s, "a file");
    Log(kTraceError);
    Expect({}, u"CreateOfflineHTML"_s, MessageIcon::Critical);
    EXPECT_FALSE(Export());
    EXPECT_FALSE(session.progress.IsLoaded());
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"CreateOfflineHTML: "_s));
}

TEST_F(CreateOfflineHtmlTest, MissingTemplatesArePassedOver) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    QDir(services.folders.Program() + u"/html"_s).removeRecursively();
    EXPECT_TRUE(Export());
    EXPECT_FALSE(Has(u"list.html"_s));
    EXPECT_TRUE(Has(u"common/1.js"_s));
    EXPECT_TRUE(Has(u"Profiles/1.html"_s));
}

TEST_F(CreateOfflineHtmlTest, TitlesThatLookLikePlaceholdersStay) {
    AddOwned(u"Key_1"_s, u"%CollectionTypeMenu%"_s);
    EXPECT_TRUE(Export());
    EXPECT_EQ(Titles(), QStringList(u"%CollectionTypeMenu%"_s));
}

TEST_F(CreateOfflineHtmlTest, ACommandFileMakesTheSite) {
    AddOwned(u"Key_1"_s, u"Amber"_s);
    CallCommand(session, u"setskin Blue"_s);
    CallCommand(session, u"CreateHTMLCollection "_s + site);
    EXPECT_TRUE(Has(u"Profiles/1.html"_s)) << "a skin without episodes needs no skin of episodes";
    EXPECT_FALSE(Has(u"Episodes"_s));
    Skin(u"Series"_s, "<OSV Name=\"EPISODES\">");
    CallCommand(session, u"setskin Series"_s);
    Expect(u"No episode skin given!"_s, u"No Episode Skin"_s, MessageIcon::Warning);
    CallCommand(session, u"createhtmlcollection "_s + site);
    WriteDbInfo(session, u"HTML_SkinEpisode"_s, u"Blue"_s);
    CallCommand(session, u"createhtmlcollection "_s + site);
    EXPECT_TRUE(Has(u"Episodes"_s));
    Expect(u"Export Path does not exist!"_s, {}, MessageIcon::Warning);
    CallCommand(session, u"createhtmlcollection "_s + Path(u"none"_s));
    CallCommand(session, u"setskin"_s);
    Expect(u"Skin  does not exist!"_s, u"Skin.html missing"_s, MessageIcon::Warning);
    CallCommand(session, u"createhtmlcollection "_s + site);
}

} // namespace
} // namespace ostrand
