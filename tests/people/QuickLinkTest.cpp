// The quick link on the credits list.
#include "people/QuickLink.h"

#include "people/CrossLinks.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class QuickLink : public CollectionTest {
protected:
    void SetUp() override { Create(); }
    QStringList Links() {
        return Rows(u"SELECT AliasName, CommonName, BirthYear FROM Alias ORDER BY AliasName, BirthYear");
    }
    bool Add(const QString &name, int year, const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Enter the 'common' name for cross-linking:"_s, answer,
                                     u"Enter Common Name for "_s + name);
        return AddAlias(session, name, year);
    }
};

} // namespace

TEST_F(QuickLink, LinksChangesAndRemoves) {
    EXPECT_FALSE(Add(u"Anny O'Lee"_s, 1950, std::nullopt));
    EXPECT_EQ(services.dialogs.last_preset, u"Anny O'Lee"_s);
    EXPECT_FALSE(Add(u"Anny O'Lee"_s, 1950, u"Anny O'Lee"_s));
    EXPECT_EQ(Links(), QStringList());
    EXPECT_TRUE(Add(u"Anny O'Lee"_s, 1950, u"Ann O'Lee"_s));
    EXPECT_EQ(Links(), QStringList{u"Anny O'Lee|Ann O'Lee|1950"_s});
    EXPECT_FALSE(Add(u"Anny O'Lee"_s, 1950, u"Ann O'Lee"_s));
    EXPECT_EQ(services.dialogs.last_preset, u"Ann O'Lee"_s);
    EXPECT_TRUE(Add(u"Anny O'Lee"_s, 1950, u"Annette"_s));
    EXPECT_EQ(Links(), QStringList{u"Anny O'Lee|Annette|1950"_s});
    EXPECT_TRUE(Add(u"Anny O'Lee"_s, 1950, QString()));
    EXPECT_EQ(Links(), QStringList());
}

TEST_F(QuickLink, YearsAreKeptApart) {
    Add(u"Bo"_s, 1950, u"Bob"_s);
    Add(u"Bo"_s, 1960, u"Boris"_s);
    Add(u"Bo"_s, 1950, QString());
    EXPECT_EQ(Links(), QStringList{u"Bo|Boris|1960"_s});
}

TEST_F(QuickLink, ANameIsNoAliasOfItselfInOtherLetters) {
    EXPECT_FALSE(Add(u"Bo"_s, 0, u"BO"_s));
    EXPECT_EQ(Links(), QStringList());
}

TEST_F(QuickLink, WritesWithoutChecksAndReadersDoNotFollowACircle) {
    Add(u"Ann"_s, 0, u"Bo"_s);
    Add(u"Bo"_s, 0, u"Ann"_s);
    EXPECT_EQ(Links(), (QStringList{u"Ann|Bo|0"_s, u"Bo|Ann|0"_s}));
    EXPECT_EQ(GetCommonName(session, u"Ann"_s, 0), u"Bo"_s);
    EXPECT_EQ(GetCommonName(session, u"Bo"_s, 0), u"Ann"_s);
}

TEST_F(QuickLink, WithoutADatabaseOrANameNothingIsAsked) {
    EXPECT_FALSE(AddAlias(session, {}, 0));
    session.Database.reset();
    EXPECT_FALSE(AddAlias(session, u"Ann"_s, 0));
}

} // namespace ostrand
