#include "shell/Dialogs.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/StartUp.h"
#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::TestServices;

class DialogsTest : public ::testing::Test {
protected:
    void SetUp() override {
        PrepareStartUp(session, {});
        ASSERT_TRUE(NewCollectionDatabase(session, services.folders.dir / u"a.mdb"_s));
        session.Database->Execute(u"INSERT INTO Users (UserID) VALUES ('Zoe Sample')");
        session.Database->Execute(u"INSERT INTO Users (UserID) VALUES ('Ann Sample')");
    }

    TestServices services;
    Session session{services.services};
    bool cancelled = true;
};

TEST_F(DialogsTest, ListsValues) {
    services.dialogs.ExpectInput(u"Which?"_s, u"b"_s, u"Title"_s);
    EXPECT_EQ(InputCombo(session, u"Which?"_s, u"Title"_s, cancelled, u"a|b||c"_s, u"a"_s), u"b"_s);
    EXPECT_FALSE(cancelled);
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"a"_s, u"b"_s, u""_s, u"c"_s}));
    EXPECT_EQ(services.dialogs.last_preset, u"a"_s);
}

TEST_F(DialogsTest, ListsTheFirstFieldOfAStatement) {
    services.dialogs.ExpectInput(u"Who?"_s, u"Ann Sample"_s);
    InputCombo(session, u"Who?"_s, {}, cancelled, u"select UserID, IsActive from Users order by UserID"_s, {});
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"Ann Sample"_s, u"Zoe Sample"_s}));
}

TEST_F(DialogsTest, AStatementIsToldByItsLowerCaseWord) {
    services.dialogs.ExpectInput(u"Who?"_s, u""_s);
    InputCombo(session, u"Who?"_s, {}, cancelled, u"SELECT UserID FROM Users"_s, {});
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"SELECT UserID FROM Users"_s}));
}

TEST_F(DialogsTest, AFaultyStatementSaysSoAndListsNothing) {
    services.dialogs.ExpectMessage(u"An Error occured"_s);
    services.dialogs.ExpectInput(u"Who?"_s, u"x"_s);
    EXPECT_EQ(InputCombo(session, u"Who?"_s, {}, cancelled, u"select nothing from nowhere"_s, {}), u"x"_s);
    EXPECT_EQ(services.dialogs.last_values, QStringList());
    EXPECT_TRUE(test::ReadTestFile(session.trace.path).contains("Error:    InputCombo: "));
}

TEST_F(DialogsTest, WithoutADatabaseAStatementIsFaulty) {
    session.Database.reset();
    services.dialogs.ExpectMessage(u"An Error occured"_s);
    services.dialogs.ExpectInput(u"Who?"_s, u"x"_s);
    InputCombo(session, u"Who?"_s, {}, cancelled, u"select UserID from Users"_s, {});
}

TEST_F(DialogsTest, ClosingWithoutOkIsTold) {
    cancelled = false;
    services.dialogs.ExpectInput(u"Which?"_s, std::nullopt);
    EXPECT_EQ(InputCombo(session, u"Which?"_s, {}, cancelled, {}, u"preset"_s), u""_s);
    EXPECT_TRUE(cancelled);
}

TEST_F(DialogsTest, TextHasNoList) {
    services.dialogs.ExpectInputPreset(u"Name:"_s, u"Title"_s);
    EXPECT_EQ(InputText(session, u"Name:"_s, u"Title"_s, cancelled, u"preset"_s), u"preset"_s);
    EXPECT_FALSE(cancelled);
    services.dialogs.ExpectInput(u"Name:"_s, std::nullopt);
    EXPECT_EQ(InputText(session, u"Name:"_s, {}, cancelled, u"preset"_s), u""_s);
    EXPECT_TRUE(cancelled);
}

} // namespace
} // namespace ostrand
