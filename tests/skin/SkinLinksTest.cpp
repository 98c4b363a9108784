#include "skin/SkinLinks.h"

#include "../database/CollectionFixture.h"
#include "skin/TextConversion.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using Kind = SkinLink::Kind;

class SkinLinks : public CollectionTest {
protected:
    void SetUp() override { session.TempFolder = u"/tmp/o'h my/OstrandApp"_s; }
    QString Blank() const { return u"file:///tmp/o%27h%20my/OstrandApp/blank.html"_s; }
};

TEST_F(SkinLinks, AreReadByTheirKey) {
    const struct {
        const char *name;
        QString query;
        Kind kind;
        QStringList parts;
    } cases[] = {
        {"person", u"?actorid=Mara Hale|1950"_s, Kind::Person, {u"Mara Hale"_s, u"1950"_s}},
        {"escaped", u"?actorid=Mara%20Hale%7C1950"_s, Kind::Person, {u"Mara Hale"_s, u"1950"_s}},
        {"apostrophe", u"?actorid=Pat%20O%27Brien|0"_s, Kind::Person, {u"Pat O'Brien"_s, u"0"_s}},
        {"accent", u"?actorid=%C3%89mile|0"_s, Kind::Person, {u"\u00C9mile"_s, u"0"_s}},
        {"accent as it stands", u"?actorid=\u00C9mile|0"_s, Kind::Person, {u"\u00C9mile"_s, u"0"_s}},
        {"accent of a single byte", u"?actorid=%C9mile|0"_s, Kind::Person, {u"\u00C9mile"_s, u"0"_s}},
        {"beyond the first plane", u"?actorid=%F0%9F%98%80|0"_s, Kind::Person, {u"\U0001F600"_s, u"0"_s}},
        {"profile", u"?profileid=Key_1"_s, Kind::Profile, {u"Key_1"_s}},
        {"episode", u"?episodeid=E1"_s, Kind::Episode, {u"E1"_s}},
        {"no value", u"?profileid="_s, Kind::Profile, {QString()}},
        {"small and capital letters differ", u"?ProfileID=1"_s, Kind::Unknown, {u"1"_s}},
        {"unknown key", u"?x=1"_s, Kind::Unknown, {u"1"_s}},
        {"no query", {}, Kind::Unknown, {}},
        {"no equals sign", u"?profileid"_s, Kind::Unknown, {}},
        {"equals sign in front", u"=?x"_s, Kind::Unknown, {}},
        {"a value with an equals sign", u"?profileid=a=b"_s, Kind::Unknown, {u"b"_s}},
        {"a value with a question mark", u"?actorid=Who?"_s, Kind::Unknown, {}},
        {"no escape", u"?actorid=100%|5%2"_s, Kind::Person, {u"100%"_s, u"5%2"_s}},
        {"no hexadecimal digits", u"?actorid=%G0%0G%-1"_s, Kind::Person, {u"%G0%0G%-1"_s}},
        {"a blank escaped twice", u"?actorid=a%2520b"_s, Kind::Person, {u"a b"_s}},
        {"an escape escaped", u"?actorid=a%2541"_s, Kind::Person, {u"a%41"_s}},
        {"a mark behind the page", u"#top?profileid=1"_s, Kind::Profile, {u"1"_s}},
    };
    for (const auto &c : cases) {
        const SkinLink link = ReadSkinLink(session, Blank() + c.query);
        EXPECT_EQ(int(link.kind), int(c.kind)) << c.name;
        EXPECT_EQ(link.parts, c.parts) << c.name;
    }
}

TEST_F(SkinLinks, ToElsewhereAreOrdinary) {
    for (const QString &url :
         {u"about:blank"_s, u"https://example.org/?profileid=1"_s, u"file:///tmp/o%27h%20my/OstrandApp/Temp.html"_s,
          u"file:///elsewhere/blank.html?profileid=1"_s, QString(), u"%"_s, u"?="_s, u"blank.html?profileid=1"_s,
          u"https://example.org/"_s + Blank() + u"?profileid=1"_s}) {
        const SkinLink link = ReadSkinLink(session, url);
        EXPECT_EQ(int(link.kind), int(Kind::Ordinary)) << qPrintable(url);
        EXPECT_EQ(link.parts, QStringList()) << qPrintable(url);
    }
}

TEST_F(SkinLinks, AreKnownHoweverTheFolderIsEscaped) {
    for (const QString &page : {u"file:///tmp/o'h my/OstrandApp/blank.html"_s, Blank(),
                                u"file:///tmp/o%27h%20my/OstrandApp/%62lank.html"_s}) {
        EXPECT_EQ(int(ReadSkinLink(session, page + u"?profileid=1"_s).kind), int(Kind::Profile)) << qPrintable(page);
    }
    session.TempFolder = u"/tmp/50%41"_s;
    EXPECT_EQ(int(ReadSkinLink(session, PathToFileUrl(u"/tmp/50%41/blank.html?profileid=1"_s)).kind),
              int(Kind::Profile));
}

TEST_F(SkinLinks, OfAnyLengthAreRead) {
    const QString name = u"x%20"_s.repeated(500000);
    EXPECT_EQ(ReadSkinLink(session, Blank() + u"?actorid="_s + name).parts.value(0).size(), 1000000);
    EXPECT_EQ(ReadSkinLink(session, Blank() + u"?actorid="_s + u"|"_s.repeated(100000)).parts.size(), 100001);
}

} // namespace
} // namespace ostrand
