#include "html_export/SiteList.h"
#include "html_export/SiteFrame.h"

#include "../database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const std::vector<SiteTab> kTabs = {{u"Owned"_s, u"Owned"_s, u"Owned"_s}, {u"A&B"_s, u"A'&B"_s, u"A_B"_s}};
const SiteListTexts kTexts = {u"Title"_s, u"Collection Number"_s, u"Collection Type"_s};

TEST(SiteList, AnEmptyTab) {
    SiteList list(kTabs, true, kTexts);
    list.BeginTab(kTabs[0]);
    list.EndTab();
    EXPECT_EQ(list.Tables(), u"<table id='Ownedlist' style='display: none;'>\r\n<thead>\r\n<tr><th>Title</th><th><abbr "
                             "title='Collection Number' style='border: none;'>Coll&nbsp;#</abbr></th></tr></thead>\r\n"
                             "<tbody>\r\n</tbody>\r\n</table>\r\n"_s);
    EXPECT_EQ(list.Phone(),
              u"<a id='homeButton' class='button' href='#coltypes'>Collection Type</a>\r\n"
              "<ul id='coltypes' title='Collection Type' selected='true'>\r\n<li><a href='#Owned'>Owned</a></li>\r\n"
              "<li><a href='#A_B'>A'&amp;B</a></li>\r\n</ul>\r\n<ul id='Owned' title='Owned'>\r\n</ul>\r\n"_s);
}

TEST(SiteList, MediaAreTitledSo) {
    const SiteList list({}, false, {u"Titel"_s, u"Nr"_s, u"<Medien>"_s});
    EXPECT_EQ(list.Phone(), u"<a id='homeButton' class='button' href='#coltypes'>&lt;Medien&gt;</a>\r\n"
                            "<ul id='coltypes' title='Media Type' selected='true'>\r\n</ul>\r\n"_s);
}

TEST(SiteList, ScriptsOfTheTabs) {
    SiteList list(kTabs, true, kTexts);
    for (const SiteTab &tab : kTabs) {
        list.BeginTab(tab);
        list.EndTab();
    }
    EXPECT_EQ(list.Tabs(), 2);
    EXPECT_EQ(list.Menu(), u"<li onclick='changetab(0)'>Owned</li>\r\n<li onclick='changetab(1)'>A'&amp;B</li>\r\n"_s);
    EXPECT_EQ(list.Sorting(), u"Owned.sort(0,null,'CaseInsensitiveString');\r\n"
                              "A_B.sort(0,null,'CaseInsensitiveString');\r\n"_s);
    EXPECT_EQ(list.TableObjects(),
              u"Owned = new SortableTable(document.getElementById('Ownedlist'),['CaseInsensitiveString','Number',"
              "'CaseInsensitiveString']);\r\nOwned.onsort = colourTables;\r\n"
              "A_B = new SortableTable(document.getElementById('A_Blist'),['CaseInsensitiveString','Number',"
              "'CaseInsensitiveString']);\r\nA_B.onsort = colourTables;\r\n"_s);
    EXPECT_EQ(list.Variables(), u"var Owned;\r\nvar A_B;\r\n"_s);
    EXPECT_EQ(list.VariableTables(),
              u"      Owned = new SortableTable(document.getElementById('Ownedlist'), ['CaseInsensitiveString', "
              "'Number', 'CaseInsensitiveString']);\r\n"
              "      A_B = new SortableTable(document.getElementById('A_Blist'), ['CaseInsensitiveString', 'Number', "
              "'CaseInsensitiveString']);\r\n"_s);
    EXPECT_EQ(list.ClickSwitch().count(u"window.parent.A_B.sort"_s), 4);
}

TEST(SiteList, AClickSortsTheOtherWay) {
    SiteList list({kTabs[0]}, true, kTexts);
    list.BeginTab(kTabs[0]);
    EXPECT_EQ(list.ClickSwitch(),
              u"        if (window.parent.document.getElementById('Ownedlist').getElementsByTagName('img')[1]."
              "getAttribute('src').indexOf('Images/blank.png') > -1) {\r\n"
              "          window.parent.Owned.sort(0);\r\n          window.parent.Owned.sort(0);\r\n        }\r\n"
              "        else {\r\n          window.parent.Owned.sort(1);\r\n          window.parent.Owned.sort(1);\r\n"
              "        }\r\n"_s);
}

TEST(SiteList, OrdinaryRows) {
    SiteList list({kTabs[0]}, true, kTexts);
    list.BeginTab(kTabs[0]);
    const qsizetype table = list.Tables().size(), phone = list.Phone().size();
    list.Add({u"786936.4"_s, u"Amber's \"Day\""_s, u"7"_s, u"amber"_s});
    list.Add({u"a 'b' <i>&"_s, u"<script>"_s, u"<7>"_s, u"&"_s});
    EXPECT_EQ(list.Tables().mid(table),
              u"<tr><td><a href='./Profiles/786936.4.html' target='profiles' onclick='return jslink(this);'>Amber's "
              "\"Day\"</a></td><td>7</td><td class='hide'>amber</td></tr>\r\n"
              "<tr><td><a href='./Profiles/a%20%27b%27%20%3Ci%3E%26.html' target='profiles' onclick='return "
              "jslink(this);'>&lt;script&gt;</a></td><td>&lt;7&gt;</td><td class='hide'>&amp;</td></tr>\r\n"_s);
    EXPECT_EQ(list.Phone().mid(phone),
              u"<li><a href='./Profiles/786936.4.html'>Amber's \"Day\"</a></li>\r\n"
              "<li><a href='./Profiles/a%20%27b%27%20%3Ci%3E%26.html'>&lt;script&gt;</a></li>\r\n"_s);
}

TEST(SiteList, BoxSetsHoldTheirTitles) {
    SiteList list({kTabs[0]}, true, kTexts);
    list.BeginTab(kTabs[0]);
    const qsizetype table = list.Tables().size(), phone = list.Phone().size();
    list.BeginBoxset({u"1"_s, u"Box"_s, u"1"_s, u"box"_s});
    list.Add({u"2"_s, u"Two"_s, u"2"_s, u"two"_s});
    list.BeginBoxset({u"3"_s, u"Inner's"_s, u"3"_s, u"inner"_s});
    list.Add({u"4"_s, u"Four"_s, u"4"_s, u"four"_s});
    list.EndBoxset();
    list.EndBoxset();
    list.Add({u"5"_s, u"Five"_s, u"5"_s, u"five"_s});
    list.EndTab();
    const auto link = [](const QString &page, const QString &title) {
        return u"<a href='./Profiles/%1.html' target='profiles' onclick='return jslink(this);'>%2</a>"_s.arg(page,
                                                                                                             title);
    };
    EXPECT_EQ(list.Tables().mid(table),
              u"<tr><td class='boxset'>"_s + link(u"1"_s, u"Box"_s) + u"<ul>\r\n<li>"_s + link(u"2"_s, u"Two"_s) +
                  u"<span>two</span><span>2</span></li>\r\n<li class='boxset'>"_s + link(u"3"_s, u"Inner's"_s) +
                  u"<ul>\r\n<li>"_s + link(u"4"_s, u"Four"_s) +
                  u"<span>four</span><span>4</span></li>\r\n</ul><span>inner</span><span>3</span></li>\r\n"
                  "</ul></td><td>1</td><td class='hide'>box</td></tr>\r\n<tr><td>"_s +
                  link(u"5"_s, u"Five"_s) +
                  u"</td><td>5</td><td class='hide'>five</td></tr>\r\n</tbody>\r\n</table>\r\n"_s);
    EXPECT_EQ(list.Phone().mid(phone),
              u"<li><a href='#1'>Box</a></li>\r\n<li><a href='./Profiles/5.html'>Five</a></li>\r\n</ul>\r\n"
              "<ul id='3' title='Inner&#39;s'>\r\n<li><a href='./Profiles/4.html'>Four</a></li>\r\n</ul>\r\n"
              "<ul id='1' title='Box'>\r\n<li><a href='./Profiles/2.html'>Two</a></li>\r\n"
              "<li><a href='#3'>Inner's</a></li>\r\n</ul>\r\n"_s);
}

TEST(SiteList, PhoneListsHaveIdsOfTheirOwn) {
    SiteList list({kTabs[0]}, true, kTexts);
    list.BeginTab(kTabs[0]);
    for (const QString &page : {u"Owned"_s, u"coltypes"_s, u"a b"_s}) {
        list.BeginBoxset({page, u"x"_s, {}, {}});
        list.EndBoxset();
    }
    list.EndTab();
    for (const QString &text : {u"<ul id='Owned_2' "_s, u"href='#Owned_2'"_s, u"<ul id='coltypes_2' "_s,
                                u"<ul id='a b' "_s, u"href='#a%20b'"_s}) {
        EXPECT_TRUE(list.Phone().contains(text)) << qPrintable(text);
    }
}

TEST(FillSiteTemplate, FillsEachPlaceholderOnce) {
    const SiteValues values = {{"%A%"_L1, u"%B%"_s}, {"%B%"_L1, u"b"_s}};
    const struct {
        QString text, filled;
    } cases[] = {{u""_s, u""_s},
                 {u"x%A%y%B%z"_s, u"x%B%ybz"_s},
                 {u"%A%%A%"_s, u"%B%%B%"_s},
                 {u"100% %%A% %C%"_s, u"100% %%B% %C%"_s},
                 {u"%A"_s, u"%A"_s}};
    for (const auto &c : cases) {
        EXPECT_EQ(FillSiteTemplate(c.text, values), c.filled);
    }
}

} // namespace
} // namespace ostrand
