#include "html_export/SiteText.h"

#include "../database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(SiteText, IsSafeInItsPlace) {
    const struct {
        QString text, html, attribute, url, script;
    } cases[] = {
        {u""_s, u""_s, u""_s, u""_s, u"\"\""_s},
        {u"786936.4"_s, u"786936.4"_s, u"786936.4"_s, u"786936.4"_s, u"\"786936.4\""_s},
        {u"a b"_s, u"a b"_s, u"a b"_s, u"a%20b"_s, u"\"a b\""_s},
        {u"<b>&\"'"_s, u"&lt;b&gt;&amp;\"'"_s, u"&lt;b&gt;&amp;&quot;&#39;"_s, u"%3Cb%3E%26%22%27"_s,
         u"\"\\u003Cb>&\\u0022'\""_s},
        {u"#?%/"_s, u"#?%/"_s, u"#?%/"_s, u"%23%3F%25%2F"_s, u"\"#?%/\""_s},
        {u"\\\r\n\t"_s, u"\\\r\n\t"_s, u"\\\r\n\t"_s, u"%5C%0D%0A%09"_s, u"\"\\u005C\\u000D\\u000A\\u0009\""_s},
        {u"Gr\u00FCn"_s, u"Gr\u00FCn"_s, u"Gr\u00FCn"_s, u"Gr%C3%BCn"_s, u"\"Gr\u00FCn\""_s},
        {u"\u2028\u2029"_s, u"\u2028\u2029"_s, u"\u2028\u2029"_s, u"%E2%80%A8%E2%80%A9"_s, u"\"\\u2028\\u2029\""_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(HtmlText(c.text), c.html);
        EXPECT_EQ(HtmlAttribute(c.text), c.attribute);
        EXPECT_EQ(UrlPart(c.text), c.url);
        EXPECT_EQ(ScriptLiteral(c.text, u'"'), c.script);
    }
    EXPECT_EQ(ScriptLiteral(u"O'B\"x"_s, u'\''), u"'O\\u0027B\"x'"_s);
}

TEST(SiteText, PagesAreNamedAfterTheirKeys) {
    const struct {
        QString id, key, page;
    } cases[] = {
        {u"Key_123.4"_s, u"123.4"_s, u"123.4"_s},
        {u"Key_../../etc/x"_s, u"../../etc/x"_s, u"....etcx"_s},
        {u"Key_.."_s, u".."_s, u"__"_s},
        {u"E1"_s, u"E1"_s, u"E1"_s},
        {u"Key_a:b\"c"_s, u"a:b\"c"_s, u"a -b'c"_s},
        {u"Key_<x>"_s, u"<x>"_s, u"x"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(SiteKey(c.id), c.key);
        EXPECT_EQ(PageName(c.key), c.page);
    }
}

} // namespace
} // namespace ostrand
