#include "browser/CollectionTypes.h"

#include "ShelfFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/Views.h"
#include "support/FailingStatements.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CollectionTypes : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        LoadTabs(browser);
        ChangeMode(browser, true);
    }
    void Select(const QString &caption) {
        SelectColTypeTab(browser, int(browser.tabColList.indexOf(caption)) + 1);
        ASSERT_EQ(browser.tabColList.value(browser.tabColList_selected - 1), caption);
    }
    void ExpectNewName(const std::optional<QString> &name) {
        services.dialogs.ExpectInput(u"Enter new collection type name:"_s, name, u"Collection Type"_s);
    }
    void ExpectAddedName(const std::optional<QString> &name) {
        services.dialogs.ExpectInput(u"Enter new Collection Type Name:"_s, name, u"Collection Type"_s);
    }
    QStringList Types() { return Rows(u"SELECT ProfileID, ColType FROM Profiles ORDER BY ProfileID"); }
};

TEST_F(CollectionTypes, AddingMakesATabAndWritesNothing) {
    const QStringList before = Types();
    const QStringList tabs = browser.tabColList;
    ExpectAddedName(u" Bob's shelf "_s);
    AddColType(browser);
    EXPECT_EQ(browser.tabColList, tabs + QStringList{u"Bob's shelf"_s});
    EXPECT_EQ(Types(), before);
}

TEST_F(CollectionTypes, AddingNeedsANameThatIsNew) {
    const QStringList tabs = browser.tabColList;
    for (const std::optional<QString> &answer : {std::optional<QString>(), std::optional(u""_s), std::optional(u"  "_s),
                                                 std::optional(u"archive"_s), std::optional(u"All"_s)}) {
        ExpectAddedName(answer);
        AddColType(browser);
        EXPECT_EQ(browser.tabColList, tabs) << qPrintable(answer.value_or(u"(cancelled)"_s));
    }
}

TEST_F(CollectionTypes, RenamingGivesTheNameToEachProfileOfTheType) {
    Select(u"Lent out"_s);
    ExpectNewName(u"Bob's shelf"_s);
    RenameCollectionType(browser);
    EXPECT_EQ(services.dialogs.last_preset, u"Lent out"_s);
    EXPECT_EQ(Types(),
              (QStringList{u"A1|Owned"_s, u"B1|Owned"_s, u"C1|Ordered"_s, u"E1|Archive"_s, u"Key_D1|Bob's shelf"_s}));
    EXPECT_EQ(browser.tabColList.value(browser.tabColList_selected - 1), u"Bob's shelf"_s);
    EXPECT_FALSE(browser.tabColList.contains(u"Lent out"_s));
}

TEST_F(CollectionTypes, RenamingToAnotherTypeJoinsThem) {
    Select(u"Lent out"_s);
    ExpectNewName(u"Archive"_s);
    RenameCollectionType(browser);
    EXPECT_EQ(browser.tabColList, (QStringList{u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s, u"Archive"_s}));
    EXPECT_EQ(browser.tabColList_selected, 5);
    EXPECT_EQ(Keys(), (QStringList{u"Key_D1"_s, u"E1"_s}));
}

TEST_F(CollectionTypes, AFaultOfRenamingLeavesTheTabAndAllProfiles) {
    Run(u"UPDATE Profiles SET ColType = 'Lent out' WHERE ProfileID = 'E1'");
    Select(u"Lent out"_s);
    const QStringList types = Types();
    const QStringList tabs = browser.tabColList;
    ExpectNewName(u"Archive"_s);
    test::FailFrom(*session.Database, u"UPDATE"_s, 2);
    EXPECT_THROW(RenameCollectionType(browser), sql::SqlError);
    session.Database->SetObserver({});
    EXPECT_EQ(Types(), types);
    EXPECT_EQ(browser.tabColList, tabs);
    EXPECT_EQ(SelectedColType(browser), u"Lent out"_s);
}

TEST_F(CollectionTypes, TheTabOfARenamedDefaultTypeStays) {
    Select(u"Owned"_s);
    ExpectNewName(u"Shelf"_s);
    RenameCollectionType(browser);
    EXPECT_EQ(browser.tabColList, (QStringList{u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s, u"Archive"_s,
                                               u"Lent out"_s, u"Shelf"_s}));
    EXPECT_EQ(Keys(), (QStringList{u"A1"_s, u"B1"_s}));
    EXPECT_EQ(browser.tabColList_selected, 7);
}

TEST_F(CollectionTypes, OnlyTheCaseOfANameCanChange) {
    Select(u"Archive"_s);
    ExpectNewName(u"ARCHIVE"_s);
    RenameCollectionType(browser);
    EXPECT_EQ(Rows(u"SELECT ColType FROM Profiles WHERE ProfileID = 'E1'"), QStringList{u"ARCHIVE"_s});
    EXPECT_TRUE(browser.tabColList.contains(u"ARCHIVE"_s));
    EXPECT_FALSE(browser.tabColList.contains(u"Archive"_s));
}

TEST_F(CollectionTypes, RenamingWithoutANewNameWritesNothing) {
    const QStringList before = Types();
    const QStringList tabs = browser.tabColList;
    Select(u"Archive"_s);
    for (const std::optional<QString> &answer :
         {std::optional<QString>(), std::optional(u""_s), std::optional(u"Archive"_s), std::optional(u"all"_s)}) {
        ExpectNewName(answer);
        RenameCollectionType(browser);
        EXPECT_EQ(Types(), before) << qPrintable(answer.value_or(u"(cancelled)"_s));
        EXPECT_EQ(browser.tabColList, tabs);
    }
}

TEST_F(CollectionTypes, TheTabOfAllTitlesHasNoTypeToRename) {
    Select(u"All"_s);
    RenameCollectionType(browser);
    ChangeMode(browser, false);
    RenameCollectionType(browser);
    AddColType(browser);
    RemoveColType(browser);
    EXPECT_EQ(Types().size(), 5);
    EXPECT_EQ(browser.tabColList, QStringList{u"TV"_s});
}

TEST_F(CollectionTypes, DefaultTypesCannotBeRemoved) {
    const QStringList tabs = browser.tabColList;
    for (const QString &type : {u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s}) {
        Select(type);
        Expect(u"Removing of default collection types not possible!"_s, u"Removing not possible"_s,
               MessageIcon::Warning);
        RemoveColType(browser);
        EXPECT_EQ(browser.tabColList, tabs) << qPrintable(type);
    }
}

TEST_F(CollectionTypes, ATypeWithProfilesCannotBeRemoved) {
    const QStringList tabs = browser.tabColList;
    Select(u"Archive"_s);
    Expect(u"Removing of Collection Type not possible\r\nThere are still profiles assigned to it!"_s,
           u"Removing not possible"_s, MessageIcon::Warning);
    RemoveColType(browser);
    EXPECT_EQ(browser.tabColList, tabs);
}

TEST_F(CollectionTypes, AnEmptyTypeIsRemoved) {
    const QStringList tabs = browser.tabColList;
    ExpectAddedName(u"Spare"_s);
    AddColType(browser);
    Select(u"Spare"_s);
    EXPECT_EQ(Keys(), QStringList());
    RemoveColType(browser);
    EXPECT_EQ(browser.tabColList, tabs);
    EXPECT_EQ(browser.tabColList_selected, 1);
    EXPECT_EQ(Keys().size(), 5);
}

} // namespace
} // namespace ostrand
