// What the window of cross-links does.
#include "people/CrossLinkEditor.h"

#include "people/CrossLinks.h"

#include "database/CollectionFixture.h"
#include "support/FailingStatements.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class CrossLinkEditorTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Link(u"Ann"_s, u"Anny"_s, 0);
        Link(u"Ann"_s, u"Annette"_s, 0);
        Link(u"Ann"_s, u"Anny"_s, 1950);
        Link(u"Zoe O'Hara"_s, u"Zo"_s, 0);
        editor.emplace(session);
        QObject::connect(&*editor, &CrossLinkEditor::SelectionChanged, [this] { ++selections; });
    }
    void Link(const QString &common, const QString &alias, int year) {
        LinkAlias(session, common, alias, year, true, u"note"_s);
    }
    QStringList Links() {
        return Rows(u"SELECT AliasName, CommonName, BirthYear FROM Alias ORDER BY AliasName, BirthYear");
    }
    QStringList Names() {
        QStringList names;
        for (int row = 0; row < editor->listCommonNames.rowCount(); ++row) {
            const CommonNames::Row &at = editor->listCommonNames.At(row);
            names << at.name + u'|' + QString::number(at.birth_year);
        }
        return names;
    }
    QStringList Aliases() {
        QStringList aliases = editor->listAlias.stringList();
        aliases.sort();
        return aliases;
    }
    void Select(const QString &name, int year) { editor->Select(editor->listCommonNames.Find(name, year)); }
    QString Selected() { return Names().value(editor->Selected()); }
    void ExpectNewName(const QString &name, const std::optional<QString> &year) {
        services.dialogs.ExpectInput(u"Enter a new Common Name"_s, name, u"Enter Common Name"_s);
        services.dialogs.ExpectInput(u"Enter BirthYear or leave '0':"_s, year, u"BirthYear"_s);
    }
    std::optional<CrossLinkEditor> editor;
    int selections = 0;
};

} // namespace

TEST_F(CrossLinkEditorTest, ShowsNamesAndTheAliasesOfTheSelectedOne) {
    QStringList names = Names();
    names.sort();
    EXPECT_EQ(names, (QStringList{u"Ann|0"_s, u"Ann|1950"_s, u"Zoe O'Hara|0"_s}));
    EXPECT_EQ(editor->labelAliasNames, u"Alias Names for"_s);
    EXPECT_EQ(Aliases(), QStringList());
    Select(u"Ann"_s, 1950);
    EXPECT_EQ(editor->labelAliasNames, u"Alias Names for Ann (1950)"_s);
    EXPECT_EQ(Aliases(), QStringList{u"Anny"_s});
    Select(u"zoe o'hara"_s, 0);
    EXPECT_EQ(Aliases(), QStringList{u"Zo"_s});
    EXPECT_EQ(selections, 2);
    EXPECT_EQ(editor->listCommonNames.headerData(0, Qt::Horizontal, Qt::DisplayRole), u"CommonName"_s);
    EXPECT_EQ(editor->listCommonNames.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"BirthYear"_s);
}

TEST_F(CrossLinkEditorTest, TheSelectionStaysOnItsRowWhenTheListIsSorted) {
    Select(u"Ann"_s, 1950);
    editor->listCommonNames.sort(CommonNames::BirthYear, Qt::DescendingOrder);
    EXPECT_EQ(editor->Selected(), 0);
    EXPECT_EQ(Selected(), u"Ann|1950"_s);
    editor->listCommonNames.sort(CommonNames::CommonName, Qt::DescendingOrder);
    EXPECT_EQ(Names().first(), u"Zoe O'Hara|0"_s);
    EXPECT_EQ(Selected(), u"Ann|1950"_s);
    editor->listCommonNames.sort(CommonNames::CommonName, Qt::AscendingOrder);
    EXPECT_EQ(Names().last(), u"Zoe O'Hara|0"_s);
}

TEST_F(CrossLinkEditorTest, ANewCommonNameIsListedOnly) {
    ExpectNewName(u"Bo"_s, u"1960"_s);
    editor->AddCommonName();
    EXPECT_EQ(Selected(), u"Bo|1960"_s);
    EXPECT_EQ(Links().size(), 4);
    EXPECT_EQ(CrossLinkEditor(session).listCommonNames.Find(u"Bo"_s, 1960), -1);
}

TEST_F(CrossLinkEditorTest, NoNewCommonNameWithoutANameOrAYear) {
    services.dialogs.ExpectInput({}, std::nullopt);
    editor->AddCommonName();
    services.dialogs.ExpectInput({}, u"  "_s);
    editor->AddCommonName();
    ExpectNewName(u"Bo"_s, std::nullopt);
    editor->AddCommonName();
    for (const QString &text : {u"old"_s, u"-5"_s, u"19500"_s, u"1950.5"_s}) {
        ExpectNewName(u"Bo"_s, text);
        Expect(u"This is no year: "_s + text, u"BirthYear"_s, MessageIcon::Warning);
        editor->AddCommonName();
    }
    EXPECT_EQ(Names().size(), 3);
    ExpectNewName(u"Bo"_s, QString());
    editor->AddCommonName();
    EXPECT_EQ(Selected(), u"Bo|0"_s);
}

TEST_F(CrossLinkEditorTest, AnAliasIsNoNewCommonName) {
    ExpectNewName(u"Zo"_s, u"0"_s);
    Expect(u"Invalid Link Entry!\nZo is already used as an alias for Zoe O'Hara!\nTherefore it cannot be used as a "
           "common name."_s,
           u"Invalid Link Entry"_s, MessageIcon::Warning);
    editor->AddCommonName();
    ExpectNewName(u"Zo"_s, u"1970"_s);
    editor->AddCommonName();
    EXPECT_EQ(Selected(), u"Zo|1970"_s) << "another year is another person";
}

TEST_F(CrossLinkEditorTest, AListedNameIsSelected) {
    ExpectNewName(u"Ann"_s, u"1950"_s);
    Expect(u"Ann is already listed!"_s, u"Already listed"_s, MessageIcon::None);
    editor->AddCommonName();
    EXPECT_EQ(Selected(), u"Ann|1950"_s);
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(CrossLinkEditorTest, AnAliasIsAddedByTheRules) {
    editor->AddAlias(); // no row
    Select(u"Ann"_s, 1950);
    for (const std::optional<QString> &nothing : {std::optional<QString>(), std::optional(QString())}) {
        services.dialogs.ExpectInput(u"Enter a new alias for Ann:"_s, nothing, u"Enter Alias"_s);
        editor->AddAlias();
    }
    services.dialogs.ExpectInput({}, u"Anna"_s);
    editor->AddAlias();
    EXPECT_EQ(Aliases(), (QStringList{u"Anna"_s, u"Anny"_s}));
    EXPECT_EQ(Rows(u"SELECT Comment FROM Alias WHERE AliasName = 'Anna'"), QStringList{QString()});
    Select(u"Ann"_s, 0);
    services.dialogs.ExpectInput({}, u"Zo"_s);
    Expect(u"Duplicate Link Entry!\nZo already linked to Zoe O'Hara! Link to Ann not imported!"_s, {},
           MessageIcon::Warning);
    editor->AddAlias();
    EXPECT_EQ(Aliases(), (QStringList{u"Annette"_s, u"Anny"_s}));
}

TEST_F(CrossLinkEditorTest, AnAliasIsRemovedAfterAYes) {
    const QString question = u"Do you really want to remove Anny from the list?"_s;
    editor->RemoveAliasFromList(u"Anny"_s); // no row
    Select(u"Ann"_s, 0);
    editor->RemoveAliasFromList({});
    Expect(question, u"Remove Alias?"_s, MessageIcon::Question, MessageAnswer::No);
    editor->RemoveAliasFromList(u"Anny"_s);
    EXPECT_EQ(Aliases().size(), 2);
    Expect(question, u"Remove Alias?"_s, MessageIcon::Question, MessageAnswer::Yes);
    editor->RemoveAliasFromList(u"Anny"_s);
    EXPECT_EQ(Aliases(), QStringList{u"Annette"_s});
    EXPECT_TRUE(Links().contains(u"Anny|Ann|1950"_s));
}

TEST_F(CrossLinkEditorTest, TheRowOfANameWithoutAliasesStaysUntilTheWindowOpensAgain) {
    Select(u"Zoe O'Hara"_s, 0);
    Expect({}, {}, MessageIcon::Question, MessageAnswer::Yes);
    editor->RemoveAliasFromList(u"Zo"_s);
    EXPECT_EQ(Selected(), u"Zoe O'Hara|0"_s);
    EXPECT_EQ(CrossLinkEditor(session).listCommonNames.rowCount(), 2);
}

TEST_F(CrossLinkEditorTest, ACommonNameIsRemovedWithItsAliases) {
    editor->RemoveCommonName(); // no row
    editor->listCommonNames.sort(CommonNames::CommonName, Qt::AscendingOrder);
    editor->Select(2);
    const QString question = u"Do you really want to remove Zoe O'Hara (0)?\nIt will remove all related cross-links!"_s;
    Expect(question, u"Remove Common Name"_s, MessageIcon::Question, MessageAnswer::No);
    editor->RemoveCommonName();
    EXPECT_EQ(Names().size(), 3);
    Expect(question, u"Remove Common Name"_s, MessageIcon::Question, MessageAnswer::Yes);
    editor->RemoveCommonName();
    EXPECT_EQ(editor->Selected(), 1) << "the last one, since the last one went";
    editor->Select(0);
    const QString next = Names().at(1);
    Expect({}, {}, MessageIcon::Question, MessageAnswer::Yes);
    editor->RemoveCommonName();
    EXPECT_EQ(Selected(), next);
    EXPECT_FALSE(Aliases().isEmpty());
    Expect({}, {}, MessageIcon::Question, MessageAnswer::Yes);
    editor->RemoveCommonName();
    EXPECT_EQ(editor->Selected(), -1);
    EXPECT_EQ(Aliases(), QStringList());
    EXPECT_EQ(Links(), QStringList());
}

TEST_F(CrossLinkEditorTest, AnAliasBecomesTheCommonNameOfItsGroup) {
    Select(u"Ann"_s, 0);
    editor->SetAsCommon({});
    editor->SetAsCommon(u"Zo"_s); // of another group
    editor->SetAsCommon(u"Anny"_s);
    EXPECT_EQ(Selected(), u"Anny|0"_s);
    EXPECT_EQ(Aliases(), (QStringList{u"Ann"_s, u"Annette"_s}));
    EXPECT_EQ(Links(), (QStringList{u"Ann|Anny|0"_s, u"Annette|Anny|0"_s, u"Anny|Ann|1950"_s, u"Zo|Zoe O'Hara|0"_s}));
    EXPECT_EQ(Rows(u"SELECT DISTINCT Comment FROM Alias WHERE CommonName = 'Anny'"), QStringList{QString()});
    EXPECT_EQ(editor->listCommonNames.Find(u"Ann"_s, 0), -1);
}

TEST_F(CrossLinkEditorTest, AGroupMovesWhollyOrNotAtAll) {
    Select(u"Ann"_s, 0);
    const QStringList before = Links();
    test::FailFrom(*session.Database, u"INSERT"_s, 2);
    EXPECT_THROW(editor->SetAsCommon(u"Anny"_s), sql::SqlError);
    session.Database->SetObserver({});
    EXPECT_EQ(Links(), before);
    EXPECT_EQ(Selected(), u"Ann|0"_s);
    EXPECT_EQ(Aliases().size(), 2);
    editor->SetAsCommon(u"Anny"_s);
    EXPECT_EQ(Selected(), u"Anny|0"_s);
}

TEST_F(CrossLinkEditorTest, AChangedYearTakesTheRowsOfEveryYear) {
    editor->ChangeYear(); // no row
    Select(u"Ann"_s, 1950);
    for (const std::optional<QString> &same : {std::optional<QString>(), std::optional(u"1950"_s)}) {
        services.dialogs.ExpectInput(u"Enter new BirthYear:"_s, same, u"BirthYear"_s);
        editor->ChangeYear();
    }
    EXPECT_EQ(services.dialogs.last_preset, u"2024"_s);
    services.dialogs.ExpectInput({}, u"1960"_s);
    editor->ChangeYear();
    EXPECT_EQ(Selected(), u"Ann|1960"_s);
    // One of the two links of Anny breaks the key of the other and stays where it was.
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Alias WHERE CommonName = 'Ann' AND BirthYear = 1960"), QStringList{u"2"_s});
    EXPECT_EQ(Links().size(), 4);
    Select(u"Zoe O'Hara"_s, 0);
    services.dialogs.ExpectInput({}, u"1960"_s);
    editor->ChangeYear();
    EXPECT_EQ(editor->listCommonNames.Find(u"Zoe O'Hara"_s, 0), -1);
    EXPECT_EQ(Aliases(), QStringList{u"Zo"_s});
}

TEST_F(CrossLinkEditorTest, AYearOfANameThatIsListedOnlyChangesInTheList) {
    ExpectNewName(u"Bo"_s, u"0"_s);
    editor->AddCommonName();
    services.dialogs.ExpectInput({}, u"1970"_s);
    editor->ChangeYear();
    EXPECT_EQ(Selected(), u"Bo|1970"_s);
    EXPECT_EQ(editor->listCommonNames.Find(u"Bo"_s, 0), -1);
}

TEST_F(CrossLinkEditorTest, AllEntriesGoAfterAYes) {
    const QString question = u"Do you really want to delete all Alias entries from the database?"_s;
    Select(u"Ann"_s, 0);
    Expect(question, u"Delete all entries"_s, MessageIcon::Warning, MessageAnswer::No);
    editor->ClearAlias();
    EXPECT_EQ(Links().size(), 4);
    Expect(question, u"Delete all entries"_s, MessageIcon::Warning, MessageAnswer::Yes);
    editor->ClearAlias();
    EXPECT_EQ(Links(), QStringList());
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(Aliases(), QStringList());
    EXPECT_EQ(editor->Selected(), -1);
}

TEST_F(CrossLinkEditorTest, NoStatementOfARowScansATable) {
    for (const char *statement : {"SELECT AliasName FROM Alias WHERE CommonName = 'x' AND BirthYear = 1",
                                  "SELECT CommonName FROM Alias WHERE AliasName = 'x' OR AliasName = 'y'",
                                  "DELETE FROM Alias WHERE AliasName = 'x' AND BirthYear = 1"}) {
        const QString plan = session.Database->QueryPlan(QString::fromLatin1(statement)).join(u'\n');
        EXPECT_FALSE(plan.contains(u"SCAN"_s)) << statement << "\n" << qPrintable(plan);
    }
}

} // namespace ostrand
