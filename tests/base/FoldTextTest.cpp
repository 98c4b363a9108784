#include "base/FoldText.h"

#include <QString>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

struct Case {
    QStringView text;
    const char *folded;
};

TEST(FoldText, LeavesOutWhatPeopleDoNotType) {
    const Case cases[] = {
        {u"", ""},
        {u"Amber", "amber"},
        {u"LÉON the ÄLTERE", "leon the altere"},
        {u"Le\u0301on", "leon"},
        {u"Ångström", "angstrom"},
        {u"Großstadt GROẞ", "grossstadt gross"},
        {u"Ærø Æon Œuvre Øre", "aero aeon oeuvre ore"},
        {u"Łódź Đorđe Þór Guðrún", "lodz dorde thor gudrun"},
        {u"İstanbul Iğdır", "istanbul igdir"},
        {u"Ocean's O’Hara d`Or", "oceans ohara dor"},
        {u"Marsh, Anna", "marsh anna"},
        {u"\"Quoted\" „so“ «so»", "quoted so so"},
        {u"A\u2013B\u2014C\u2010D-E", "a-b-c-d-e"},
        {u"  two \t blanks\r\nand\u00A0more ", "two blanks and more"},
        {u" ' , ", ""},
        {u"Ｗｉｄｅ ﬁne ²", "wide fine 2"},
        {u"ΣΊΣΥΦΟΣ", "σισυφοσ"},
        {u"Ёлка", "елка"},
        {u"東京", "東京"},
        {u"M*A*S*H: 9/11 & Co.", "m*a*s*h: 9/11 & co."},
        {u"\U00010400", "\xF0\x90\x90\xA8"},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(FoldText(row.text), row.folded) << qPrintable(row.text.toString());
    }
}

TEST(FoldText, AppendsBehindWhatIsThere) {
    std::string folded = "a\n";
    AppendFolded(u" B ", folded);
    EXPECT_EQ(folded, "a\nb");
}

} // namespace
} // namespace ostrand
