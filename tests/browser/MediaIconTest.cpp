#include "browser/MediaIcon.h"

#include "BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(MediaIcon, EachTextOfAMediumLeadsToItsKey) {
    const struct {
        QString key, texts;
    } cases[] = {
        {u"DVDVideo"_s, u"dvd|dvd-video|dvd video"_s},
        {u"BluRay"_s, u"blu-ray disc|bluray|blu ray|blu-ray"_s},
        {u"HDDVD"_s, u"hd dvd|hd dvd/dvd|hd-dvd|hddvd|hd-dvd/dvd|hddvd/dvd"_s},
        {u"DVDAudio"_s, u"dvd-audio|dvd audio"_s},
        {u"Manga"_s, u"manga"_s},
        {u"LD"_s, u"ld|laserdisc|laser-disc"_s},
        {u"CD"_s, u"cd|compact disc"_s},
        {u"VHS"_s, u"vhs|video"_s},
        {u"SACD"_s, u"sacd|super audio cd"_s},
        {u"DVHS"_s, u"dvhs|d-vhs"_s},
        {u"DivX"_s, u"divx"_s},
        {u"Xvid"_s, u"xvid"_s},
        {u"VCD"_s, u"vcd|video cd|view cd|compact disc digital video"_s},
        {u"CDi"_s, u"cdi|cd-i|compact disc interactive"_s},
        {u"MD"_s, u"md|mini disc|mini-disc"_s},
        {u"CDR"_s, u"cdr|cd-r"_s},
        {u"CDRW"_s, u"cdrw|cd-rw"_s},
        {u"DCC"_s, u"dcc|digital compact cassette"_s},
        {u"DAT"_s, u"dat|digital audio tape"_s},
        {u"CC"_s, u"cc|compact cassette|mc|music cassette|tape"_s},
    };
    QStringList keys;
    for (const auto &c : cases) {
        keys << c.key;
        for (const QString &text : c.texts.split(u'|')) {
            EXPECT_EQ(MediaIconKey(text), c.key) << qPrintable(text);
            EXPECT_EQ(MediaIconKey(text.toUpper()), c.key) << qPrintable(text);
        }
    }
    EXPECT_EQ(MediaIconKeys(), keys);
}

TEST(MediaIcon, OtherTextsHaveNone) {
    for (const QString &text :
         {u""_s, u"DVD/Blu-ray Disc"_s, u" dvd"_s, u"dvds"_s, u"Film reel"_s, u"dvd|dvd-video"_s}) {
        EXPECT_EQ(MediaIconKey(text), QString()) << qPrintable(text);
    }
}

class MediaIconTest : public BrowserTest {};

TEST_F(MediaIconTest, ItIsShownInMovieViewBesideThePanels) {
    const struct {
        const char *name;
        bool wanted, tv, skin;
        QString shown;
    } cases[] = {
        {"movies", true, false, false, u"CD"_s},
        {"not wanted", false, false, false, {}},
        {"series", true, true, false, {}},
        {"a page", true, false, true, {}},
    };
    browser.picMedium = u"CD"_s;
    for (const auto &c : cases) {
        session.view.ShowMediaIcon = c.wanted;
        session.view.mTVShows = c.tv;
        session.view.mSkinEnable = c.skin;
        EXPECT_EQ(ShownMediaIcon(browser), c.shown) << c.name;
        EXPECT_EQ(IsMediaIconShown(browser), !c.shown.isEmpty()) << c.name;
    }
    session.view.mSkinEnable = false;
    browser.picMedium.clear();
    EXPECT_TRUE(IsMediaIconShown(browser)) << "its place stays";
}

} // namespace
} // namespace ostrand
