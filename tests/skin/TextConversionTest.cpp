#include "skin/TextConversion.h"

#include "../database/CollectionFixture.h"
#include "base/Text.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

struct Case {
    const char *name;
    QString text, result;
};

template <typename Convert>
void Check(std::initializer_list<Case> cases, Convert convert) {
    for (const Case &c : cases) {
        EXPECT_EQ(convert(c.text), c.result) << c.name;
    }
}

TEST(PathToFileUrl, EscapesBlanksAndApostrophes) {
    Check(
        {
            {"an absolute path has three slashes", u"/home/user/x.html"_s, u"file:///home/user/x.html"_s},
            {"a drive", u"C:\\My Files\\x.html"_s, u"file:///C:/My%20Files/x.html"_s},
            {"a server", u"\\\\host\\my share\\x.html"_s, u"file:////host/my%20share/x.html"_s},
            {"an apostrophe", u"/o'brien's/"_s, u"file:///o%27brien%27s/"_s},
            {"a blank in front of an apostrophe", u"/a 'b"_s, u"file:///a%20%27b"_s},
            {"a percent sign stays", u"/100%/%20"_s, u"file:///100%/%20"_s},
            {"relative", u"x.html"_s, u"file:///x.html"_s},
            {"empty", {}, u"file:///"_s},
        },
        PathToFileUrl);
}

TEST_F(CollectionTest, RelativePathsOfNotesLeadToTheDataFolder) {
    session.DataFolder = u"/data of o'h"_s;
    const QString folder = u"file:///data%20of%20o%27h/"_s;
    Check(
        {
            {"slash", u"<a href=\"../doc/a.pdf\">"_s, u"<a href=\""_s + folder + u"doc/a.pdf\">"_s},
            {"backslash", u"..\\doc\\a.pdf"_s, folder + u"doc\\a.pdf"_s},
            {"several", u"../a ..\\b ../c"_s, folder + u"a "_s + folder + u"b "_s + folder + u"c"_s},
            {"two levels", u"../../a"_s, folder + folder + u"a"_s},
            {"none", u"a/b.c ... .."_s, u"a/b.c ... .."_s},
        },
        [this](const QString &text) { return FixRelativePaths(session, text); });
}

TEST(FixCurrencySymbol, ALoneQuestionMarkIsTheEuro) {
    Check(
        {
            {"question mark", u"?"_s, u"\u20AC"_s},
            {"two", u"??"_s, u"??"_s},
            {"dollar", u"$"_s, u"$"_s},
            {"word", u"SEK"_s, u"SEK"_s},
            {"empty", {}, {}},
        },
        FixCurrencySymbol);
}

TEST(EscapeScriptString, EscapesWhatEndsAStringOfAScript) {
    Check(
        {
            {"backslash", u"a\\b"_s, u"a\\\\b"_s},
            {"double quote", u"a\"b"_s, u"a\\\"b"_s},
            {"single quote", u"a'b"_s, u"a\\'b"_s},
            {"the escape of a quote is not escaped again", u"\\\""_s, u"\\\\\\\""_s},
            {"line end", u"a\r\nb"_s, u"a\\r\\nb"_s},
            {"lone line feed", u"a\nb"_s, u"a\\r\\nb"_s},
            {"both", u"\r\n\n"_s, u"\\r\\n\\r\\n"_s},
            {"lone carriage return stays", u"a\rb"_s, u"a\rb"_s},
            {"empty", {}, {}},
        },
        EscapeScriptString);
}

TEST(PersonCrossLinkId, IsLowerCaseWithoutBlanksAndApostrophes) {
    Check(
        {
            {"name", u"Mara O'Hale"_s, u"mara_ohale"_s},
            {"marks of file names go", u"A: \"B\" C?"_s, u"a_-_b_c"_s},
            {"markup", u"</b>Mara \\ | Hale*"_s, u"bmara__|_hale"_s},
            {"empty", {}, {}},
            {"accents stay", u"\u00C9mile L"_s, u"\u00E9mile_l"_s},
        },
        PersonCrossLinkId);
}

TEST(PeopleScriptFileName, HoldsTheFirstTwoCharacters) {
    Check(
        {
            {"name", u"Mara Hale"_s, u"people-ma.js"_s},
            {"a blank as the second", u"U Hale"_s, u"people-u_.js"_s},
            {"one character", u"Q"_s, u"people-q.js"_s},
            {"empty", {}, u"people-.js"_s},
            {"an accent", u"\u00C9mile L"_s, u"people-\u00E9m.js"_s},
            {"an apostrophe stays", u"O'Hale"_s, u"people-o'.js"_s},
            {"made safe", u"?:"_s, u"people- -.js"_s},
        },
        PeopleScriptFileName);
}

TEST(SplitNominees, SplitsAtEverySeparator) {
    const struct {
        const char *name;
        QString text;
        QStringList names;
    } cases[] = {
        {"comma and blank", u"Ann Lee, Bo Mire"_s, {u"Ann Lee"_s, u"Bo Mire"_s}},
        {"comma", u"Ann Lee,Bo Mire"_s, {u"Ann Lee"_s, u"Bo Mire"_s}},
        {"semicolon", u"Ann Lee; Bo Mire"_s, {u"Ann Lee"_s, u"Bo Mire"_s}},
        {"ampersand", u"Ann Lee & Bo Mire"_s, {u"Ann Lee"_s, u"Bo Mire"_s}},
        {"and", u"Ann Lee and Bo Mire"_s, {u"Ann Lee"_s, u"Bo Mire"_s}},
        {"and within a word", u"Sandy Lee"_s, {u"Sandy Lee"_s}},
        {"Jr", u"Al Roe, Jr, Bo Mire"_s, {u"Al Roe Jr"_s, u"Bo Mire"_s}},
        {"jr.", u"Al Roe, jr."_s, {u"Al Roe jr."_s}},
        {"Jr. and others", u"Al Roe, Jr., Bo Mire and Cy, Sr."_s, {u"Al Roe Jr."_s, u"Bo Mire"_s, u"Cy Sr."_s}},
        {"a name that begins with the suffix", u"Ann Lee, Srdja Mire"_s, {u"Ann Lee Srdja Mire"_s}},
        {"the suffix without a blank", u"Al Roe,Jr"_s, {u"Al Roe"_s, u"Jr"_s}},
        {"all separators",
         u"Ann, Bo; Cy & Dee and Eve,Fay"_s,
         {u"Ann"_s, u"Bo"_s, u"Cy"_s, u"Dee"_s, u"Eve"_s, u"Fay"_s}},
        {"the blank behind a comma is used up", u"Ann, and Bo"_s, {u"Ann"_s, u"and Bo"_s}},
        {"two commas", u"Ann,, Bo"_s, {u"Ann"_s, {}, u"Bo"_s}},
        {"Sr", u"Al Roe, Sr"_s, {u"Al Roe Sr"_s}},
        {"sr", u"Al Roe, sr"_s, {u"Al Roe sr"_s}},
        {"JR is a name of its own", u"Al Roe, JR"_s, {u"Al Roe"_s, u"JR"_s}},
        {"one", u"Ann Lee"_s, {u"Ann Lee"_s}},
        {"the mark itself splits", u"Ann|Bo"_s, {u"Ann"_s, u"Bo"_s}},
        {"semicolon without a blank", u"Ann;Bo"_s, {u"Ann;Bo"_s}},
        {"empty", {}, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(SplitNominees(c.text), c.names) << c.name;
    }
}

TEST(FormatUPC, GroupsTwelveAndThirteenDigits) {
    Check(
        {
            {"12 digits", u"012345678901"_s, u"0-12345-67890-1"_s},
            {"13 digits", u"4012345678901"_s, u"4-012345-678901"_s},
            {"grouped otherwise", u"01-2345678901"_s, u"0-12345-67890-1"_s},
            {"letters", u"01234567890A"_s, u"01234567890A"_s},
            {"a power is no number of digits", u"1234567890E1"_s, u"1234567890E1"_s},
            {"unchanged with its dashes", u"12-34"_s, u"12-34"_s},
            {"11 digits", u"01234567890"_s, u"01234567890"_s},
            {"14 digits", u"01234567890123"_s, u"01234567890123"_s},
            {"8 digits", u"01234567"_s, u"01234567"_s},
            {"a disc id", u"I0A1B2C3D"_s, u"I0A1B2C3D"_s},
            {"empty", {}, {}},
        },
        FormatUPC);
}

TEST(WithBreaks, ReplacesWholeLineEndsOnly) {
    Check(
        {
            {"line ends", u"a\r\nb\r\n"_s, u"a<br/>b<br/>"_s},
            {"lone line feed", u"a\nb"_s, u"a\nb"_s},
            {"lone carriage return", u"a\rb"_s, u"a\rb"_s},
        },
        WithBreaks);
}

TEST(SafeFileNames, OfTitles) {
    EXPECT_EQ(SafeFileName(u"Storm: Who?"), u"Storm - Who"_s);
}

} // namespace
} // namespace ostrand
