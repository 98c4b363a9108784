#include "people/CreditNames.h"

#include "database/CollectionFixture.h"
#include "people/Name.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

using CreditNames = CollectionTest;

TEST_F(CreditNames, FormatShowsTheFamilyNameFirstOnDemand) {
    const std::pair<const char *, const char *> cases[] = {
        {"Ann Smith", "Smith, Ann"},
        {"Ann Lee Smith", "Smith, Ann Lee"},
        {"Smith", "Smith"},
        {"The Rolling Bones", "The Rolling Bones"},
        {"", ""},
        {" Smith", " Smith"},
        {"John Smith Jr.", "Smith Jr., John"},
    };
    for (const auto &[text, reversed] : cases) {
        session.view.mReverseCredit = false;
        EXPECT_EQ(FormatCreditName(session, QString::fromLatin1(text)), QString::fromLatin1(text));
        session.view.mReverseCredit = true;
        EXPECT_EQ(FormatCreditName(session, QString::fromLatin1(text)), QString::fromLatin1(reversed));
    }
}

QString Attributes(const QString &full, bool separate) {
    Name name;
    name.SetFullName(full);
    QString text;
    for (const auto &[attribute, value] : WriteProfilerName(name, separate)) {
        text += attribute + u'=' + value + u';';
    }
    return text;
}

TEST(ProfilerName, CutsEachAttributeTo25Characters) {
    EXPECT_EQ(Attributes(u"Ann Lee Smith"_s, true), u"FirstName=Ann;MiddleName=Lee;LastName=Smith;"_s);
    EXPECT_EQ(Attributes(u"Ann Lee Smith"_s, false), u"FirstName=Ann Lee;LastName=Smith;"_s);
    EXPECT_EQ(Attributes(u"Ann Smith"_s, true), u"FirstName=Ann;LastName=Smith;"_s);
    EXPECT_EQ(Attributes(u"Ann"_s, true), u"FirstName=Ann;"_s);
    EXPECT_EQ(Attributes({}, true), u"FirstName=;"_s);
    EXPECT_EQ(
        Attributes(u"Abcdefghijklmnopqrstuvwxyz Abcdefghijklmnopqrstuvwxyy Abcdefghijklmnopqrstuvwxyx"_s, true),
        u"FirstName=Abcdefghijklmnopqrstuvwxy;MiddleName=Abcdefghijklmnopqrstuvwxy;LastName=Abcdefghijklmnopqrstuvwxy;"_s);
    EXPECT_EQ(Attributes(u"Abcdefghijklmnopqrst Bcdefghijkl Smith"_s, false),
              u"FirstName=Abcdefghijklmnopqrst Bcde;LastName=Smith;"_s)
        << "cut after the joining";
}

TEST(ExtractName, BringsTheFamilyNameBehind) {
    const std::pair<const char *, const char *> cases[] = {
        {"Smith, Ann", "Ann Smith"},
        {"Smith, Ann (II)", "Ann Smith"},
        {"Smith, Ann (X)", "Ann Smith"},
        {"Smith, Ann (XI)", "Ann (XI) Smith"},
        {"Smith", "Smith"},
        {"Smith, Jr., Ann", "Smith"},
        {"(aka Smith, Ann)", "Ann Smith"},
        {"Smith, Ann in Englishcredits", "Ann Smith"},
        {"", ""},
    };
    for (const auto &[text, name] : cases) {
        EXPECT_EQ(ExtractName(QString::fromLatin1(text)), QString::fromLatin1(name));
    }
}

TEST_F(CreditNames, ExtractTitleCutsTitleAndYear) {
    struct Case {
        const char *line;
        const char *kind;
        const char *result;
    };
    const Case cases[] = {
        {"12 Green Meadow (1999) 45", "IMDbRating", "Green Meadow (1999)|1999"},
        {"12 Green Meadow (1999)", "IMDbRating", "Green Meadow|1999"},
        {"12 Green Meadow", "IMDbRating", "Green Meadow|0"},
        {"Green Meadow (1999)", "IMDbTitles", "Green Meadow|1999"},
        {"Green Meadow (1999)", "IMDbMovieLinks", "Green Meadow|1999"},
        {"Green Meadow (TV) (1999)", "IMDbTitles", "Green Meadow|1999"},
        {"Green Meadow (V) (VG) (mini) (1999)", "IMDbTitles", "Green Meadow|1999"},
        {"Green Meadow (?\?\?\?)", "IMDbTitles", "Green Meadow|0000"},
        {"Green Meadow (1999) {Pilot (#1.1)}", "IMDbTitles", "Green Meadow|1999"},
        {"Meadow, The (1999)", "IMDbTitles", "The Meadow|1999"},
        {"Meadow, Their (1999)", "IMDbTitles", "Meadow, Their|1999"},
        {"\"Meadow\" (1999)", "IMDbTitles", "Meadow|1999"},
        {"Meadow (", "IMDbTitles", "Meadow|0"},
    };
    for (const Case &line : cases) {
        SCOPED_TRACE(line.line);
        EXPECT_EQ(IMDbExtractTitle(session, QString::fromLatin1(line.line), QString::fromLatin1(line.kind)),
                  QString::fromLatin1(line.result));
    }
}

TEST_F(CreditNames, ExtractTitleTracesALineWithoutYear) {
    session.trace.path = folder_ / u"Debug.log"_s;
    EXPECT_EQ(IMDbExtractTitle(session, u"Green Meadow"_s, u"IMDbTitles"_s), QString());
    ASSERT_EQ(LogLines().size(), 1);
    EXPECT_TRUE(LogLines()[0].contains(u"ExtractName: "_s));
}

} // namespace

} // namespace ostrand
