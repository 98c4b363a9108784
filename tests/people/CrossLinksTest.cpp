#include "people/CrossLinks.h"

#include "database/CollectionFixture.h"
#include "support/FailingStatements.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class CrossLinks : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.trace.path = folder_ / u"Debug.log"_s;
        session.trace.Mask = kTraceInfo;
    }

    /// Links that stand, as "alias|common|year|comment".
    QStringList Aliases() { return Rows(u"SELECT * FROM Alias ORDER BY AliasName, BirthYear"); }
    void Link(const QString &common, const QString &alias, int year = 0, bool silent = true) {
        LinkAlias(session, common, alias, year, silent, {});
    }
    bool Traced(const QString &text) { return LogLines().join(u'\n').contains(text); }
};

TEST_F(CrossLinks, PlainLinkIsStored) {
    LinkAlias(session, u"Ann O'Smith"_s, u"A. O'Smith"_s, 1950, true, u"it's so"_s);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName, BirthYear, Comment FROM Alias"),
              QStringList{u"A. O'Smith|Ann O'Smith|1950|it's so"_s});
}

TEST_F(CrossLinks, EqualOrEmptyNamesAreNoLink) {
    Link(u"Ann"_s, u"Ann"_s);
    Link(u"Ann"_s, u"ANN"_s);
    Link(u"Ann Strauß"_s, u"ANN STRAUSS"_s);
    Link({}, u"Ann"_s);
    Link(u"Ann"_s, {});
    EXPECT_EQ(Aliases(), QStringList());
}

TEST_F(CrossLinks, TheSameLinkTwiceChangesNothing) {
    Link(u"Ann"_s, u"Anny"_s, 0, false);
    Link(u"Ann"_s, u"Anny"_s, 0, false);
    EXPECT_EQ(Aliases().size(), 1);
    EXPECT_EQ(LogLines(), QStringList());
}

TEST_F(CrossLinks, CommonNameThatIsAnAliasHandsItsAliasOn) {
    Link(u"Zoe"_s, u"Yan"_s);
    Link(u"Yan"_s, u"Xin"_s, 0, false);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName FROM Alias ORDER BY AliasName"),
              (QStringList{u"Xin|Zoe"_s, u"Yan|Zoe"_s}));
    EXPECT_TRUE(Traced(u"Invalid Link Entry: CommonName Yan is already used as an AliasName for Zoe and cannot be "
                       "imported as CommonName for Xin. Linked Alias Xin to CommonName Zoe instead."_s));
}

TEST_F(CrossLinks, CommonNameThatIsAnAliasIsRefusedForATakenAlias) {
    Link(u"Zoe"_s, u"Yan"_s);
    Link(u"Other"_s, u"Xin"_s);
    Expect(u"Invalid Link Entry!\nYan is already used as an AliasName\nTherefore it cannot be used as a common name. "
           "Link from Xin not imported!"_s,
           u"Invalid Link Entry"_s, MessageIcon::Warning);
    Link(u"Yan"_s, u"Xin"_s, 0, false);
    Link(u"Yan"_s, u"Xin"_s, 0, true);
    EXPECT_EQ(Aliases().size(), 2);
    EXPECT_TRUE(Traced(u"Invalid Link Entry: CommonName Yan is already used as an AliasName for Zoe and cannot be "
                       "imported as CommonName for Xin"_s));
}

TEST_F(CrossLinks, AliasOfAnotherIsRefused) {
    Link(u"Zoe"_s, u"Yan"_s);
    Expect(u"Duplicate Link Entry!\nYan already linked to Zoe! Link to Ann not imported!"_s, {}, MessageIcon::Warning);
    Link(u"Ann"_s, u"Yan"_s, 0, false);
    Link(u"Ann"_s, u"Yan"_s, 0, true);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName FROM Alias"), QStringList{u"Yan|Zoe"_s});
    EXPECT_TRUE(
        Traced(u"Invalid Link Entry: Alias Yan is already linked to CommonName Zoe. Link to Ann not imported"_s));
}

TEST_F(CrossLinks, AliasThatIsACommonNameTurnsThePair) {
    Link(u"Zoe"_s, u"Yan"_s);
    Link(u"Ann"_s, u"Zoe"_s, 0, false);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName FROM Alias ORDER BY AliasName"),
              (QStringList{u"Ann|Zoe"_s, u"Yan|Zoe"_s}));
    EXPECT_TRUE(Traced(u"Invalid Link Entry: Alias Zoe is already used as a CommonName. Imported Ann as Alias for Zoe "
                       "instead"_s));
}

TEST_F(CrossLinks, TwoCommonNamesBecomeOneGroup) {
    Link(u"Zoe"_s, u"Yan"_s);
    LinkAlias(session, u"Ann"_s, u"Anny"_s, 0, true, u"a nickname"_s);
    Link(u"Ann"_s, u"Annie"_s, 1950);
    Link(u"Ann"_s, u"Zoe"_s, 0, false);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName, BirthYear, Comment FROM Alias ORDER BY AliasName"),
              (QStringList{u"Ann|Zoe|0|"_s, u"Annie|Ann|1950|"_s, u"Anny|Zoe|0|a nickname"_s, u"Yan|Zoe|0|"_s}))
        << "no name is both an alias and a common name of one year";
}

TEST_F(CrossLinks, NoOrderOfLinksMakesACircleOrAChain) {
    const QStringList names = {u"Ann"_s, u"Bo"_s, u"Cy"_s, u"Dee"_s};
    // Every sequence of four links between four names; the first is always the same, the names being alike.
    for (int code = 0; code < 16 * 16 * 16; ++code) {
        Run(u"DELETE FROM Alias");
        Link(u"Ann"_s, u"Bo"_s);
        QStringList links;
        for (int rest = code; links.size() < 3; rest /= 16) {
            links += names[rest % 4] + u'|' + names[rest / 4 % 4];
            Link(names[rest % 4], names[rest / 4 % 4]);
        }
        QStringList aliases = Rows(u"SELECT AliasName FROM Alias");
        const QStringList commons = Rows(u"SELECT DISTINCT CommonName FROM Alias");
        EXPECT_EQ(aliases.removeDuplicates(), 0);
        for (const QString &alias : aliases) {
            ASSERT_FALSE(commons.contains(alias)) << qPrintable(alias) << " after " << qPrintable(links.join(u' '));
        }
    }
}

TEST_F(CrossLinks, YearsAreKeptApart) {
    Link(u"Zoe"_s, u"Yan"_s, 0);
    Link(u"Ann"_s, u"Yan"_s, 1950, false);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName, BirthYear FROM Alias ORDER BY BirthYear"),
              (QStringList{u"Yan|Zoe|0"_s, u"Yan|Ann|1950"_s}));
}

TEST_F(CrossLinks, CommonNameOfAYear) {
    Link(u"Zoe"_s, u"Yan"_s, 1950);
    EXPECT_EQ(GetCommonName(session, u"Yan"_s, 1950), u"Zoe"_s);
    EXPECT_EQ(GetCommonName(session, u"yan"_s, 1950), u"Zoe"_s);
    EXPECT_EQ(GetCommonName(session, u"Yan"_s, 0), u"Zoe"_s) << "year 0 finds a link of any year";
    EXPECT_EQ(GetCommonName(session, u"Yan"_s, 1951), u"Yan"_s);
    EXPECT_EQ(GetCommonName(session, u"O'Hara"_s, 0), u"O'Hara"_s);
}

TEST_F(CrossLinks, AnInsertShowsInTheDetailLine) {
    Link(u"Ann"_s, u"Anny"_s);
    EXPECT_EQ(services.progress.Of(u"detail"_s), QStringList());
    session.progress.Load(u"Job"_s);
    session.progress.ShowDetails(true);
    Link(u"Zoe"_s, u"Yan"_s);
    EXPECT_EQ(services.progress.Of(u"detail"_s).last(), u"Zoe <- Yan"_s);
}

TEST(NormalizedNames, FollowTheRules) {
    const std::pair<const char *, const char *> cases[] = {
        {"Ann Smith", "Ann Smith"},
        {"J.R. Smith", "J. R. Smith"},
        {"J.R.R. Smith", "J.R.R. Smith"},
        {"J.R.", "J.R."},
        {"John Smith Jr", "John Smith, Jr."},
        {"John Smith Jr.", "John Smith, Jr."},
        {"John Smith, Jr.", "John Smith, Jr."},
        {"John Smith, SR", "John Smith, SR."},
        {"John Smithjr", "John Smithjr"},
        {"Sir Ian Smith", "Ian Smith"},
        {"Ian, Prof. Smith", "Smith"},
        {"Casir Smith", "Smith"},
        {"Mr Smith", "Smith"},
        {"Sen. Ann Smith", "Ann Smith"},
        {"Inspector Smith", "Smith"},
        {"Senator Ann Smith", "Ann Smith"},
        {"King Ann", "King Ann"},
        {"Sir ", "Sir "},
        {"Dr. J.R. Smith Jr", "J.R. Smith, Jr."},
        {"", ""},
    };
    for (const auto &[name, normalized] : cases) {
        EXPECT_EQ(NormalizedName(QString::fromLatin1(name)), QString::fromLatin1(normalized)) << name;
    }
    EXPECT_EQ(NormalizedName(u"É.R. Smith"_s), u"É.R. Smith"_s) << "word characters are those of ASCII";
    for (const char *title :
         {"sir",      "lady",      "madame", "capt.", "lt.",       "captain", "mr.",      "miss",      "mrs.",
          "ms.",      "mr",        "mrs",    "dr.",   "ssgt.",     "dr",      "corporal", "constable", "sergeant",
          "reverend", "professor", "prof.",  "dame",  "inspector", "senator", "sen."}) {
        EXPECT_EQ(NormalizedName(QString::fromLatin1(title).toUpper() + u" Ann Lee"_s), u"Ann Lee"_s) << title;
    }
}

TEST_F(CrossLinks, NormalizedSpellingBecomesTheCommonName) {
    LinkNormalizedName(session, u"J.R. Smith"_s, 1940);
    LinkNormalizedName(session, u"Ann Smith"_s, 1940);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName, BirthYear FROM Alias"),
              QStringList{u"J.R. Smith|J. R. Smith|1940"_s});
}

class BirthYears : public CrossLinks {
protected:
    void Credit(const QString &name, int year, const QString &table = u"CastCrew"_s) {
        const QString key = table == u"CastCrew"_s ? u"ProfileID"_s : u"EpisodeID"_s;
        Run(QString(u"INSERT INTO "_s + table + u" (Name, "_s + key + u", Position, BirthYear, IsCast) VALUES ('"_s +
                    EscapeSql(name) + u"', 'K', "_s + QString::number(++position_) + u", "_s + QString::number(year) +
                    u", true)"_s));
    }
    QStringList Years() { return Rows(u"SELECT Name, BirthYear FROM CastCrew ORDER BY Position"); }
    int position_ = 0;
};

TEST_F(BirthYears, ALoneYearGoesAndTwoStay) {
    Credit(u"Ann O'Lone"_s, 1950);
    Credit(u"Ann O'Lone"_s, 1950);
    Credit(u"Bob Twice"_s, 1950);
    Credit(u"bob twice"_s, 1960);
    Credit(u"Bob Twice"_s, 0);
    Credit(u"Cat Once"_s, 1970);
    Credit(u"Cat Once"_s, 0);
    RemoveUnneededBirthYears(session);
    EXPECT_EQ(Years(), (QStringList{u"Ann O'Lone|0"_s, u"Ann O'Lone|0"_s, u"Bob Twice|1950"_s, u"bob twice|1960"_s,
                                    u"Bob Twice|0"_s, u"Cat Once|0"_s, u"Cat Once|0"_s}));
    EXPECT_EQ(services.progress.calls.first(), u"opened Removing unneeded BirthYears"_s);
    EXPECT_TRUE(services.progress.Has(u"line Removing unneeded BirthYears..."_s));
    EXPECT_TRUE(services.progress.Has(u"detail Identify BirthYears"_s));
    EXPECT_TRUE(services.progress.Has(u"detail Removing BY of Ann O'Lone"_s));
    EXPECT_EQ(services.progress.Of(u"counter"_s).last(), u"4/4 Checking BY"_s);
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
    EXPECT_TRUE(Traced(u"Removing BY of Cat Once"_s));
}

TEST_F(BirthYears, AnAliasOfAnotherYearKeepsTheYear) {
    Credit(u"Ann Smith"_s, 1950);
    Credit(u"Zoe Smith"_s, 1980);
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Zoe Smith', 'Ann Smith', 1980)");
    RemoveUnneededBirthYears(session);
    EXPECT_EQ(Years(), (QStringList{u"Ann Smith|1950"_s, u"Zoe Smith|0"_s}))
        << "the alias has no other year under its own name";
    EXPECT_EQ(Aliases().size(), 1) << "aliases are left as they are";
}

TEST_F(BirthYears, EpisodesCountToo) {
    Credit(u"Ann Smith"_s, 1950);
    Credit(u"Ann Smith"_s, 1960, u"TVCastCrew"_s);
    Credit(u"Bob Smith"_s, 1960, u"TVCastCrew"_s);
    RemoveUnneededBirthYears(session);
    EXPECT_EQ(Years(), QStringList{u"Ann Smith|1950"_s});
    EXPECT_EQ(Rows(u"SELECT Name, BirthYear FROM TVCastCrew ORDER BY Position"),
              (QStringList{u"Ann Smith|1960"_s, u"Bob Smith|0"_s}));
}

TEST_F(BirthYears, AFaultClosesTheWindow) {
    Credit(u"Ann Smith"_s, 1950);
    test::FailFrom(*session.Database, u"UPDATE CastCrew"_s);
    EXPECT_THROW(RemoveUnneededBirthYears(session), sql::SqlError);
    session.Database->SetObserver({});
    EXPECT_FALSE(session.progress.IsLoaded());
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
}

TEST_F(BirthYears, InAnotherJobItsWindowStaysOpen) {
    Credit(u"Ann Smith"_s, 1950);
    session.progress.Load(u"Job"_s);
    RemoveUnneededBirthYears(session);
    EXPECT_TRUE(session.progress.IsLoaded());
    EXPECT_TRUE(services.progress.Has(u"title Removing unneeded BirthYears"_s));
}

TEST_F(BirthYears, NoStatementOfARowScansATable) {
    for (const char *statement :
         {"SELECT c.Name FROM CastCrew c WHERE c.Name = 'x' AND c.BirthYear <> 1 AND c.BirthYear <> 0",
          "SELECT c.Name FROM Alias a INNER JOIN CastCrew c ON c.Name = a.AliasName WHERE a.CommonName = 'x' AND "
          "c.BirthYear <> 1 AND c.BirthYear <> 0",
          "UPDATE CastCrew SET BirthYear = 0 WHERE Name = 'x' AND BirthYear = 1950"}) {
        const QString plan = session.Database->QueryPlan(QString::fromLatin1(statement)).join(u'\n');
        EXPECT_FALSE(plan.contains(u"SCAN"_s)) << statement << "\n" << qPrintable(plan);
    }
}

} // namespace

} // namespace ostrand
