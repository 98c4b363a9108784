#include "html_export/SiteTabs.h"

#include "SiteFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(ScriptName, IsOneThatAScriptCanHold) {
    const struct {
        QString text, name;
    } cases[] = {
        {u"Owned"_s, u"Owned"_s},       {u"Wish List"_s, u"WishList"_s},
        {u"Blu-ray"_s, u"Blu_ray"_s},   {u"4K UHD"_s, u"_4KUHD"_s},
        {u"HD DVD"_s, u"HDDVD"_s},      {u"a'b\"<c>"_s, u"a_b__c_"_s},
        {u"Größe"_s, u"Größe"_s},       {u"$x_1"_s, u"$x_1"_s},
        {u"var"_s, u"_var"_s},          {u"location"_s, u"_location"_s},
        {u"Location"_s, u"Location"_s}, {u" "_s, u"_"_s},
        {u"a\tb"_s, u"a_b"_s},          {u"a);alert(1)"_s, u"a__alert_1_"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(ScriptName(c.text), c.name);
    }
}

class SiteTabsTest : public SiteTest {};

TEST_F(SiteTabsTest, HaveIdsOfTheirOwn) {
    const std::vector<SiteTab> tabs =
        MakeSiteTabs(session, {u"A-B"_s, u"A B"_s, u"A_B"_s, u"A+B"_s, u""_s, u"unsorted"_s, u"OWNED"_s, u"Owned"_s});
    QStringList ids;
    for (const SiteTab &tab : tabs) {
        ids += tab.name + u'=' + tab.id;
    }
    EXPECT_EQ(ids, (QStringList{u"A-B=A_B"_s, u"A B=AB"_s, u"A_B=A_B_2"_s, u"A+B=A_B_3"_s, u"=unsorted"_s,
                                u"unsorted=unsorted_2"_s, u"OWNED=OWNED"_s}));
}

TEST_F(SiteTabsTest, AreShownInTheUsersLanguage) {
    TranslateAs(u"Owned"_s, u"Besitz"_s);
    const std::vector<SiteTab> tabs = MakeSiteTabs(session, {u"Owned"_s, u""_s, u"Sold"_s});
    EXPECT_EQ(tabs[0].shown, u"Besitz"_s);
    EXPECT_EQ(tabs[0].id, u"Owned"_s);
    EXPECT_EQ(tabs[1].shown, u"Unsorted"_s);
    EXPECT_EQ(tabs[2].shown, u"Sold"_s);
}

} // namespace
} // namespace ostrand
