#include "html_export/SiteFilter.h"

#include "SiteFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(WhereClause, IsCutOut) {
    const struct {
        const char *name;
        QString statement, clause;
    } cases[] = {
        {"plain", u"SELECT * FROM Profiles p WHERE p.Title = 'a'"_s, u"p.Title = 'a'"_s},
        {"any case, white space", u"select * from Profiles\r\nwhere\tTitle = 'a'  "_s, u"Title = 'a'"_s},
        {"order", u"SELECT * FROM Profiles WHERE a = 1 ORDER BY Title"_s, u"a = 1"_s},
        {"group", u"SELECT a FROM Profiles WHERE a = 1 group by a"_s, u"a = 1"_s},
        {"union", u"SELECT a FROM P WHERE a = 1 UNION SELECT a FROM Q WHERE b = 2"_s, u"a = 1"_s},
        {"words in texts", u"SELECT * FROM P WHERE a = 'x ORDER BY where' AND b = \"GROUP\""_s,
         u"a = 'x ORDER BY where' AND b = \"GROUP\""_s},
        {"words in names", u"SELECT [where], wherever FROM P WHERE [order] = 1 AND ordered = 2"_s,
         u"[order] = 1 AND ordered = 2"_s},
        {"inner statements",
         u"SELECT (SELECT 1 FROM Q WHERE a = 2) FROM P WHERE b IN (SELECT c FROM Q WHERE d = 1 ORDER BY c) ORDER BY 1"_s,
         u"b IN (SELECT c FROM Q WHERE d = 1 ORDER BY c)"_s},
        {"doubled quotes", u"SELECT 'it''s where' FROM P WHERE a = 'it''s ORDER BY'"_s, u"a = 'it''s ORDER BY'"_s},
        {"dates", u"SELECT * FROM P WHERE a > #1/2/2003# ORDER BY 1"_s, u"a > #1/2/2003#"_s},
        {"semicolon", u"SELECT * FROM P WHERE a = 'x;y' AND b = 2 ;\r\n"_s, u"a = 'x;y' AND b = 2"_s},
        {"none", u"SELECT * FROM Profiles"_s, u""_s},
        {"only inside", u"SELECT * FROM (SELECT * FROM P WHERE a = 1) q"_s, u""_s},
        {"nothing behind it", u"SELECT * FROM P WHERE"_s, u""_s},
        {"open quote", u"SELECT * FROM P WHERE a = 'x"_s, u"a = 'x"_s},
        {"empty", u""_s, u""_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(WhereClause(c.statement), c.clause) << c.name;
    }
}

TEST(ColTypeCondition, JoinsTheTypes) {
    EXPECT_EQ(ColTypeCondition({u"Owned"_s}), u"(ColType = 'Owned')"_s);
    EXPECT_EQ(ColTypeCondition({u"Owned"_s, u"It's"_s}), u"(ColType = 'Owned' OR ColType = 'It''s')"_s);
    EXPECT_EQ(ColTypeCondition({u""_s}), u"(ColType = '' OR ColType Is NULL)"_s);
}

class SavedFilterTest : public SiteTest {
protected:
    void SetUp() override {
        SiteTest::SetUp();
        AddOwned(u"Key_1"_s, u"Amber"_s);
        AddOwned(u"Key_2"_s, u"Birch"_s);
        options.Filter = u"It's mine"_s;
    }
    void Save(const QString &statement) {
        Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('It''s mine', '"_s + EscapeSql(statement) + u"')"_s);
    }
};

TEST_F(SavedFilterTest, LimitsTheProfiles) {
    for (const QString &condition :
         {u"p.Title LIKE 'B*'"_s, u"p.Title LIKE 'B*';"_s, u"Title LIKE 'B*'"_s, u"Title = 'q' OR Title = 'Birch'"_s}) {
        for (const bool types : {true, false}) {
            Run(u"DELETE FROM SQLQueries");
            Save(u"SELECT p.ProfileID FROM Profiles p WHERE "_s + condition +
                 (condition.endsWith(u';') ? QString() : u" ORDER BY p.Title"_s));
            QDir(site).removeRecursively();
            QDir().mkpath(site);
            options.UseCollectionType = types;
            EXPECT_TRUE(Export()) << qPrintable(condition);
            EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList(u"2.html"_s)) << qPrintable(condition);
            EXPECT_TRUE(services.progress.Has(u"line Profile 0 of 1"_s));
        }
    }
}

TEST_F(SavedFilterTest, AsksForVariables) {
    Save(u"SELECT p.ProfileID FROM Profiles p WHERE p.Title = '$Which$' AND p.ColType = 'OSV_CurrentColType'"_s);
    host.CurrentColType = u"Owned"_s;
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'Which'"_s, u"Amber"_s);
    EXPECT_TRUE(Export());
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList(u"1.html"_s));
}

TEST_F(SavedFilterTest, ThatYieldsNothingEndsTheRun) {
    const struct {
        QString statement;
        bool asks;
    } cases[] = {
        {u""_s, false}, {u"SELECT * FROM Profiles"_s, false}, {u"SELECT * FROM Profiles WHERE Title = '$A$'"_s, true}};
    for (const auto &c : cases) {
        Run(u"DELETE FROM SQLQueries");
        if (!c.statement.isEmpty()) {
            Save(c.statement);
        }
        if (c.asks) {
            services.dialogs.ExpectInput({}, std::nullopt);
        }
        Expect(u"Error in Filter"_s, {}, MessageIcon::Warning);
        EXPECT_FALSE(Export());
        EXPECT_EQ(services.dialogs.Pending(), 0u);
        EXPECT_FALSE(Has(u"Profiles"_s));
    }
}

TEST_F(SavedFilterTest, AFaultyConditionIsCaught) {
    Log(kTraceError);
    Save(u"SELECT t.ProfileID FROM Tags t WHERE t.TagName = 'x'"_s);
    Expect({}, u"CreateOfflineHTML"_s, MessageIcon::Critical);
    EXPECT_FALSE(Export());
    EXPECT_FALSE(session.progress.IsLoaded());
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"CreateOfflineHTML: "_s + services.dialogs.messages.back().text));
}

} // namespace
} // namespace ostrand
