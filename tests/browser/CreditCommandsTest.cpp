#include "browser/CreditCommands.h"

#include "BrowserFixture.h"

#include "browser/Credits.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CreditCommands : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        session.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
        session.view.mCrewTreeView = false;
        session.HeadshotPath = Path(u"headshots/"_s);
        AddProfile(u"P1"_s, u"Title = 'Amber', MD5 = 'abc'"_s);
        AddProfile(u"P2"_s, u"Title = 'Birch'"_s);
        Run(u"INSERT INTO TVSeries (SeriesID, OriginalTitle, Title, SortTitle) VALUES ('S1', '', 'Harbour', "
            u"'Harbour')");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('E1', 'S1', '1', "
            u"'1', 'Dust')");
        Credit(u"P1"_s, u"Mara Hale"_s, u"Keeper"_s);
        Credit(u"P1"_s, u"Ned Poole"_s, u"Baker"_s, false);
        Credit(u"E1"_s, u"Al Roe"_s, u"Guest"_s);
    }
    void Credit(const QString &id, const QString &name, const QString &role, bool cast = true) {
        const bool episode = id.startsWith(u'E');
        Run(u"INSERT INTO %1 (%2, Name, Role, Position, IsCast, BirthYear) VALUES ('%3', '%4', '%5', %6, %7, 0)"_s.arg(
            episode ? u"TVCastCrew"_s : u"CastCrew"_s, episode ? u"EpisodeID"_s : u"ProfileID"_s, id, name, role,
            QString::number(++position_), cast ? u"True"_s : u"False"_s));
    }
    void Show(const QString &id, bool is_episode = false) {
        if (!is_episode) {
            GetMovieNames(browser);
            browser.current_row = browser.listSeries.RowOfKey(id);
        }
        GetProfileInfos(browser, id, is_episode, false);
    }
    QString Clipboard() { return services.clipboard.Text(); }
    void SetClipboard(const QString &text) { services.clipboard.SetText(text); }
    void ExpectQuestion(MessageAnswer answer) {
        Expect(u"Paste clipboard content? This will overwrite existing data!"_s, u"Overwrite data?"_s,
               MessageIcon::Question, answer);
    }
    void ExpectImported(const QString &kind) {
        Expect(kind + u" successfully imported"_s, u"Import successfull"_s, MessageIcon::Information);
    }
    QStringList Names(const CreditList &list) {
        QStringList names;
        for (const CreditRow &row : list.Rows()) {
            names += row.name;
        }
        return names;
    }
    QStringList Cast() { return Names(browser.credits.ListCast); }
    QStringList Crew() { return Names(browser.credits.ListCrew); }

private:
    int position_ = 0;
};

const QString kOneActor = u"<CastInformation><Title>T</Title><Actors><Actor FirstName='Zoe' MiddleName='' "
                          "LastName='New' Role='Cook' BirthYear='0'/></Actors></CastInformation>"_s;
const QString kOneWorker = u"<CrewInformation><Credits><Credit FirstName='Zed' LastName='New' CreditType='Direction' "
                           "CreditSubtype='Director'/></Credits></CrewInformation>"_s;

TEST_F(CreditCommands, CopyTheCreditsThatAreShown) {
    session.Profiler3 = true;
    Show(u"P1"_s);
    CopyCredits(browser, CreditKind::Cast);
    EXPECT_TRUE(Clipboard().startsWith(u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<CastInformation>"_s));
    EXPECT_TRUE(Clipboard().contains(u"<Title>Amber</Title>"_s));
    EXPECT_TRUE(Clipboard().contains(u"<Name>Mara Hale</Name>"_s));
    EXPECT_FALSE(Clipboard().contains(u"Ned"_s));
    CopyCredits(browser, CreditKind::Crew);
    EXPECT_TRUE(Clipboard().contains(u"<CrewInformation>"_s));
    EXPECT_TRUE(Clipboard().contains(u"<Name>Ned Poole</Name>"_s));
    session.view.mCrewTreeView = true;
    session.view.mHideUnassignedCrew = true;
    RefillCredits(browser);
    CopyCredits(browser, CreditKind::Crew);
    EXPECT_TRUE(Clipboard().contains(u"<Name>Ned Poole</Name>"_s)) << "who is hidden is copied too";
}

TEST_F(CreditCommands, CopiesAreCalledAsTheTitleIs) {
    const struct {
        const char *name;
        QString title, shown;
    } cases[] = {
        {"as it is", u"Amber"_s, u"Amber"_s},
        {"without blanks around it", u"  Amber  "_s, u"Amber"_s},
        {"its first letters", QString(60, u'x'), QString(55, u'x')},
        {"none", {}, u"No Title"_s},
    };
    for (const auto &c : cases) {
        Show(u"P1"_s);
        TitleRow row = browser.listSeries.At(0);
        row.texts[TitleList::Title] = c.title;
        browser.listSeries.Assign({row});
        browser.current_row = 0;
        CopyCredits(browser, CreditKind::Cast);
        EXPECT_TRUE(Clipboard().contains(u"<Title>"_s + c.shown + u"</Title>"_s)) << c.name;
    }
    ChangeMode(browser, false);
    EXPECT_EQ(Cast(), QStringList{u"Al Roe"_s});
    CopyCredits(browser, CreditKind::Cast);
    EXPECT_TRUE(Clipboard().contains(u"<Title>Dust</Title>"_s)) << "the episode's";
}

TEST_F(CreditCommands, CtrlKeepsTheStoredNames) {
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Mara Hale', 'Mara Stone', 0)");
    Show(u"P1"_s);
    CopyCredits(browser, CreditKind::Cast);
    EXPECT_TRUE(Clipboard().contains(u"LastName=\"Stone\""_s));
    EXPECT_TRUE(Clipboard().contains(u" CreditedAs=\"Mara Hale\" Role="_s)) << "behind the name, before the role";
    services.keyboard.ctrl = true;
    CopyCredits(browser, CreditKind::Cast);
    EXPECT_TRUE(Clipboard().contains(u"LastName=\"Hale\""_s));
    EXPECT_FALSE(Clipboard().contains(u"CreditedAs"_s));
}

TEST_F(CreditCommands, PasteReplacesTheCast) {
    Show(u"P1"_s);
    SetClipboard(kOneActor);
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Cast"_s);
    PasteCredits(browser, CreditKind::Cast);
    EXPECT_EQ(Cast(), QStringList{u"Zoe New"_s});
    EXPECT_EQ(Crew(), QStringList{u"Ned Poole"_s});
    EXPECT_EQ(Rows(u"SELECT Name, ProfileID FROM CastCrew WHERE IsCast = True"), QStringList{u"Zoe New|P1"_s});
    EXPECT_EQ(Rows(u"SELECT MD5 FROM Profiles WHERE ProfileID = 'P1' AND LastEdited IS NOT NULL"),
              QStringList{QString()});
}

TEST_F(CreditCommands, PasteReplacesTheCrew) {
    Show(u"P1"_s);
    SetClipboard(kOneWorker);
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Crew"_s);
    PasteCredits(browser, CreditKind::Crew);
    EXPECT_EQ(Crew(), QStringList{u"Zed New"_s});
    EXPECT_EQ(Cast(), QStringList{u"Mara Hale"_s});
}

TEST_F(CreditCommands, PasteReplacesTheCastOfAnEpisode) {
    ChangeMode(browser, false);
    SetClipboard(kOneActor);
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Cast"_s);
    PasteCredits(browser, CreditKind::Cast);
    EXPECT_EQ(Cast(), QStringList{u"Zoe New"_s});
    EXPECT_EQ(Rows(u"SELECT Name, EpisodeID FROM TVCastCrew"), QStringList{u"Zoe New|E1"_s});
}

TEST_F(CreditCommands, PasteChangesNothing) {
    const struct {
        const char *name;
        CreditKind kind;
        QString text;
        MessageAnswer answer;
        QString fault; // empty: no message
    } cases[] = {
        {"after a no", CreditKind::Cast, kOneActor, MessageAnswer::No, {}},
        {"no XML", CreditKind::Cast, u"just words"_s, MessageAnswer::Yes, u"cast"_s},
        {"nothing", CreditKind::Crew, {}, MessageAnswer::Yes, u"crew"_s},
        {"another document", CreditKind::Cast, u"<Collection/>"_s, MessageAnswer::Yes, u"cast"_s},
        {"the other kind", CreditKind::Cast, kOneWorker, MessageAnswer::Yes, u"cast"_s},
        {"the other kind", CreditKind::Crew, kOneActor, MessageAnswer::Yes, u"crew"_s},
    };
    Show(u"P1"_s);
    const QStringList before = Rows(u"SELECT Name, Role, ProfileID FROM CastCrew ORDER BY Position");
    for (const auto &c : cases) {
        SetClipboard(c.text);
        ExpectQuestion(c.answer);
        if (!c.fault.isEmpty()) {
            Expect(u"Clipboard content is not a valid %1 data!"_s.arg(c.fault), u"Invalid content"_s,
                   MessageIcon::Warning);
        }
        PasteCredits(browser, c.kind);
        EXPECT_EQ(services.dialogs.Pending(), 0u) << c.name;
        EXPECT_EQ(Rows(u"SELECT Name, Role, ProfileID FROM CastCrew ORDER BY Position"), before) << c.name;
    }
    ClearAllProfileInfos(browser);
    SetClipboard(kOneActor);
    PasteCredits(browser, CreditKind::Cast); // no title, no question
    EXPECT_EQ(Rows(u"SELECT MD5 FROM Profiles WHERE ProfileID = 'P1'"), QStringList{u"abc"_s});
}

TEST_F(CreditCommands, PasteTakesAnyTextForWhatItIs) {
    const QString deep = QString(u"<a>"_s).repeated(100000);
    const struct {
        const char *name;
        QString text;
    } refused[] = {
        {"binary", QString(QChar(0)) + u"\x01\x02\xffff"_s},
        {"half a surrogate pair", QString(QChar(0xd83d)) + u"<CastInformation>"_s},
        {"a page", u"<!DOCTYPE html><html><body>Actors</body></html>"_s},
        {"no end", u"<CastInformation><Actors><Actor FirstName='Zoe'"_s},
        {"deep", deep},
        {"no actors", u"<CastInformation><Title>T</Title></CastInformation>"_s},
        {"an entity of entities",
         u"<!DOCTYPE x [<!ENTITY a 'b'><!ENTITY c '&a;&a;&a;'>]><CastInformation>&c;</CastInformation>"_s},
    };
    Show(u"P1"_s);
    for (const auto &c : refused) {
        SetClipboard(c.text);
        ExpectQuestion(MessageAnswer::Yes);
        Expect(u"Clipboard content is not a valid cast data!"_s, u"Invalid content"_s, MessageIcon::Warning);
        PasteCredits(browser, CreditKind::Cast);
        EXPECT_EQ(services.dialogs.Pending(), 0u) << c.name;
        EXPECT_EQ(Cast(), QStringList{u"Mara Hale"_s}) << c.name;
    }
    SetClipboard(u"<CastInformation><Actors><Actor FirstName='"_s + QString(u'x').repeated(1000) +
                 u"' LastName='' Role='"_s + QString(u'y').repeated(1000) +
                 u"' BirthYear='99999999999999'/><Actor/><Actor FirstName='Al' LastName=\"O'Roe\" BirthYear='soon'/>"
                 "</Actors></CastInformation>"_s);
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Cast"_s);
    PasteCredits(browser, CreditKind::Cast);
    EXPECT_TRUE(Cast().contains(u"Al O'Roe"_s)) << qPrintable(Cast().join(u'/'));
}

TEST_F(CreditCommands, PasteThatFailsLeavesTheCreditsOfBefore) {
    Show(u"P1"_s);
    const QStringList before = Rows(u"SELECT Name, Role, Position FROM CastCrew ORDER BY Position");
    Run(u"DROP TABLE Alias"); // names are linked behind the rows
    SetClipboard(QString(kOneActor).replace(u"Role='Cook'"_s, u"Role='Cook' CreditedAs='Zoë'"_s));
    ExpectQuestion(MessageAnswer::Yes);
    EXPECT_THROW(PasteCredits(browser, CreditKind::Cast), sql::SqlError);
    EXPECT_EQ(Rows(u"SELECT Name, Role, Position FROM CastCrew ORDER BY Position"), before);
    EXPECT_EQ(Rows(u"SELECT MD5 FROM Profiles WHERE ProfileID = 'P1'"), QStringList{u"abc"_s});
}

TEST_F(CreditCommands, PasteKeepsToTheTitleWhoseCreditsAreShown) {
    Show(u"P1"_s);
    GetProfileInfos(browser, u"P2"_s, false, true);
    SetClipboard(kOneActor);
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Cast"_s);
    PasteCredits(browser, CreditKind::Cast);
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM CastCrew WHERE Name = 'Zoe New'"), QStringList{u"P1"_s});
}

TEST_F(CreditCommands, WhatIsCopiedCanBePasted) {
    Show(u"P1"_s);
    CopyCredits(browser, CreditKind::Cast);
    Show(u"P2"_s);
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Cast"_s);
    PasteCredits(browser, CreditKind::Cast);
    EXPECT_EQ(Cast(), QStringList{u"Mara Hale"_s});
    CopyCredits(browser, CreditKind::Crew);
    EXPECT_TRUE(Clipboard().contains(u"<Title>empty</Title>"_s)) << "there is no crew";
    ExpectQuestion(MessageAnswer::Yes);
    ExpectImported(u"Crew"_s);
    PasteCredits(browser, CreditKind::Crew);
    EXPECT_EQ(Crew(), QStringList());
}

TEST_F(CreditCommands, LockTheCreditsThatAreShown) {
    EXPECT_FALSE(AreCreditsLocked(browser, CreditKind::Cast));
    ToggleCreditLock(browser, CreditKind::Cast); // there are none
    Show(u"P1"_s);
    ToggleCreditLock(browser, CreditKind::Cast);
    EXPECT_TRUE(AreCreditsLocked(browser, CreditKind::Cast));
    EXPECT_FALSE(AreCreditsLocked(browser, CreditKind::Crew));
    EXPECT_EQ(Rows(u"SELECT ProfileID, LockName FROM Locks"), QStringList{u"P1|Cast"_s});
    ToggleCreditLock(browser, CreditKind::Crew);
    ToggleCreditLock(browser, CreditKind::Cast);
    EXPECT_EQ(Rows(u"SELECT ProfileID, LockName FROM Locks"), QStringList{u"P1|Crew"_s});
}

TEST_F(CreditCommands, SwitchesFillThePanelAnew) {
    Show(u"P1"_s);
    int swaps = 0;
    QObject::connect(&browser.credits, &CreditsPanel::CrewViewChanged, [&swaps] { ++swaps; });
    EXPECT_EQ(Crew(), QStringList{u"Ned Poole"_s});
    ToggleCrewTreeView(browser);
    EXPECT_EQ(swaps, 1);
    EXPECT_EQ(Crew(), QStringList());
    EXPECT_EQ(browser.credits.treeCrew.rowCount(), 1);
    ToggleHideUnassignedCrew(browser);
    EXPECT_EQ(browser.credits.treeCrew.rowCount(), 0) << "a baker belongs to no category";
    ToggleCrewTreeView(browser);
    EXPECT_EQ(Crew(), QStringList{u"Ned Poole"_s});
    EXPECT_EQ(browser.credits.treeCrew.rowCount(), 0);
    ToggleReverseCredit(browser);
    EXPECT_EQ(browser.credits.ListCast.Rows()[0].text, u"Hale, Mara"_s);
    AddChild(u"P2"_s, u"P1"_s);
    Credit(u"P2"_s, u"Al Roe"_s, u"Diver"_s);
    ToggleFullBoxsetCredits(browser);
    EXPECT_EQ(Cast(), (QStringList{u"Mara Hale"_s, u"Al Roe"_s}));
    EXPECT_TRUE(session.view.mShowFullBoxsetCredits);
}

TEST_F(CreditCommands, WithoutADatabaseDoNothing) {
    session.Database.reset();
    for (const CreditKind kind : {CreditKind::Cast, CreditKind::Crew}) {
        CopyCredits(browser, kind);
        PasteCredits(browser, kind);
        ToggleCreditLock(browser, kind);
        EXPECT_FALSE(AreCreditsLocked(browser, kind));
    }
    ToggleCrewTreeView(browser);
    EXPECT_TRUE(session.view.mCrewTreeView);
}

TEST_F(CreditCommands, ASelectedPersonFillsTheOtherPanels) {
    QDir().mkpath(session.HeadshotPath);
    QFile picture(session.HeadshotPath + u"Mara Hale.jpg"_s);
    ASSERT_TRUE(picture.open(QIODevice::WriteOnly));
    Run(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Nominee, Won) VALUES ('Golden Gull', 2001, 'Actress', "
        u"'Amber', 'Mara Hale', True)");
    Show(u"P1"_s);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"0"_s);
    EXPECT_TRUE(browser.credits.picActor.Picture().endsWith(u"Mara Hale.jpg"_s));
    EXPECT_EQ(int(session.view.panel_mode), int(PanelMode::Appearances));
    EXPECT_EQ(browser.appearances.listAppearences.rowCount(), 1);
    EXPECT_EQ(browser.appearances.labelAwards, u"Awards for Mara Hale"_s);
    EXPECT_EQ(browser.appearances.treeAwards.rowCount(), 1);
    UpdateCastInfo(browser, {}, {}); // a caption
    EXPECT_EQ(browser.credits.picActor.Picture(), QString());
    EXPECT_EQ(browser.appearances.listAppearences.rowCount(), 1);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"0"_s);
    Show(u"P2"_s);
    EXPECT_EQ(browser.credits.picActor.Picture(), QString());
    EXPECT_EQ(browser.appearances.listAppearences.rowCount(), 0);
    EXPECT_EQ(browser.appearances.labelAwards, u"Awards"_s);
    EXPECT_EQ(browser.appearances.treeAwards.rowCount(), 0);
}

} // namespace
} // namespace ostrand
