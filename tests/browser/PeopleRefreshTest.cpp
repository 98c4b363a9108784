// The selected person while credits, links and headshots change around it.
#include "browser/CreditCommands.h"

#include "BrowserFixture.h"

#include "base/Files.h"
#include "browser/AppearancesPanel.h"
#include "browser/Credits.h"
#include "browser/ProfileInfos.h"
#include "people/CrossLinks.h"
#include "people/HeadshotViewer.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QByteArray kPicture = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000030000000208060000009d74661a");

class PeopleRefresh : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        browser.tabMain = QStringList{u"Cast/Crew"_s, u"Details"_s, u"Audio/Video"_s};
        session.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
        session.view.mCrewTreeView = false;
        session.HeadshotPath = Path(u"headshots/"_s);
        QDir().mkpath(session.HeadshotPath);
        AddProfile(u"P1"_s);
        AddProfile(u"P2"_s);
        AddProfile(u"P3"_s);
        Credit(u"P1"_s, u"Mara Hale"_s, 1950);
        Credit(u"P1"_s, u"Al Roe"_s, 0);
        Credit(u"P2"_s, u"Mara Hale"_s, 1950);
        Credit(u"P3"_s, u"M. Hale"_s, 1950);
        Show(u"P1"_s);
    }
    void Credit(const QString &id, const QString &name, int year, const QString &role = u"R"_s) {
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('%1', '%2', '%3', %4, "
            "True, %5)"_s.arg(id, name, role, QString::number(++position_), QString::number(year)));
    }
    void Show(const QString &id) { GetProfileInfos(browser, id, false, false); }
    void Touch(const QString &name) {
        QFile file(session.HeadshotPath + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(kPicture);
    }
    QStringList Marked() {
        QStringList marked;
        for (const CreditRow &row : panel.ListCast.Rows()) {
            if (row.has_headshot) {
                marked += row.name;
            }
        }
        return marked;
    }
    QStringList Titles() {
        QStringList titles;
        for (const ListTableRow &row : appearances.listAppearences.Rows()) {
            titles += row.texts.value(0);
        }
        return titles;
    }
    QString Shown() const { return panel.picActor.Picture().mid(session.HeadshotPath.size()); }
    QString Selected() const { return panel.selected_name + u'|' + panel.selected_birth_year; }

    CreditsPanel &panel = browser.credits;
    AppearancesPanel &appearances = browser.appearances;

private:
    int position_ = 0;
};

TEST_F(PeopleRefresh, NobodyIsSelectedInTheCreditsOfAnotherTitle) {
    EXPECT_FALSE(panel.picActor.selected());
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    ASSERT_TRUE(panel.picActor.selected());
    EXPECT_EQ(panel.picActor.selected()->name, u"Mara Hale"_s);
    EXPECT_EQ(panel.picActor.selected()->birth_year, u"1950"_s);
    GetProfileInfos(browser, u"P2"_s, false, true);
    EXPECT_TRUE(panel.picActor.selected()) << "the credits stay";
    Show(u"P2"_s);
    EXPECT_FALSE(panel.picActor.selected());
    EXPECT_EQ(panel.picActor.Picture(), QString());
}

TEST_F(PeopleRefresh, SwitchesKeepThePersonAndThePicture) {
    Touch(u"Mara Hale.jpg"_s);
    Touch(u"Mara Hale_1.jpg"_s);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    panel.picActor.AlternateHeadshot();
    ASSERT_EQ(Shown(), u"Mara Hale_1.jpg"_s);
    ToggleReverseCredit(browser);
    EXPECT_EQ(Shown(), u"Mara Hale_1.jpg"_s);
    EXPECT_EQ(panel.selected_name, u"Mara Hale"_s);
    EXPECT_FALSE(panel.refilling);
    Run(u"DELETE FROM CastCrew WHERE Name = 'Mara Hale'");
    RefillCredits(browser);
    EXPECT_EQ(Selected(), u"|"_s);
    EXPECT_EQ(Shown(), QString()) << "the person is gone";
}

TEST_F(PeopleRefresh, FollowsLinks) {
    Touch(u"Common(1950).jpg"_s);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    ASSERT_EQ(Titles(), (QStringList{u"P1"_s, u"P2"_s}));
    ASSERT_EQ(Shown(), QString());
    SortAppearances(browser, 0);
    SortAppearances(browser, 0);
    appearances.current_row = 0; // P2
    LinkAlias(session, u"Common"_s, u"Mara Hale"_s, 1950, true, {});
    LinkAlias(session, u"Common"_s, u"M. Hale"_s, 1950, true, {});
    int told = 0;
    QObject::connect(&appearances, &AppearancesPanel::CurrentRowChanged, [&told] { ++told; });
    RefreshPeople(browser);
    EXPECT_EQ(Titles(), (QStringList{u"P3"_s, u"P2"_s, u"P1"_s})) << "sorted as before";
    EXPECT_EQ(appearances.current_row, 1);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(appearances.sort_order, Qt::DescendingOrder);
    EXPECT_EQ(Shown(), u"Common(1950).jpg"_s);
    EXPECT_EQ(Marked(), QStringList{u"Mara Hale"_s});
    EXPECT_EQ(Selected(), u"Mara Hale|1950"_s);
}

TEST_F(PeopleRefresh, ALoneNameMayLoseItsYear) {
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    Run(u"UPDATE CastCrew SET BirthYear = 0");
    RefreshPeople(browser);
    EXPECT_EQ(Selected(), u"Mara Hale|0"_s);
    EXPECT_EQ(Titles(), (QStringList{u"P1"_s, u"P2"_s}));
}

TEST_F(PeopleRefresh, OfTwoPersonsOfOneNameTheSameStays) {
    Credit(u"P1"_s, u"Mara Hale"_s, 1980, u"Other"_s);
    RefillCredits(browser);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1980"_s);
    RefreshPeople(browser);
    EXPECT_EQ(Selected(), u"Mara Hale|1980"_s);
    EXPECT_EQ(Titles(), QStringList{u"P1"_s});
}

TEST_F(PeopleRefresh, LeavesOtherListsAlone) {
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('P2', 'P1')");
    Show(u"P1"_s);
    ASSERT_EQ(Titles(), QStringList{u"P2"_s});
    RefreshPeople(browser);
    EXPECT_EQ(Titles(), QStringList{u"P2"_s}) << "the children of a boxset";
    GetAppearances(browser, u"M. Hale"_s, u"1950"_s, false);
    UpdateCastInfo(browser, u"Al Roe"_s, {});
    GetAppearances(browser, u"M. Hale"_s, u"1950"_s, false);
    RefreshPeople(browser);
    EXPECT_EQ(Titles(), QStringList{u"P3"_s}) << "those that were asked for, not those of the selected person";
    session.Database.reset();
    RefreshPeople(browser);
    EXPECT_EQ(Titles(), QStringList{u"P3"_s});
}

TEST_F(PeopleRefresh, AwardsFollowTheirNominees) {
    Run(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Nominee, Won) VALUES ('Gull', 2001, 'Actress', 'P1', "
        u"'Mara H.', True)");
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    ASSERT_EQ(appearances.treeAwards.rowCount(), 0);
    Run(u"UPDATE Awards SET Nominee = 'Mara Hale (1950)'");
    RefreshPeople(browser);
    EXPECT_EQ(appearances.treeAwards.rowCount(), 1);
}

TEST_F(PeopleRefresh, AHeaderSortsBelowTheSelectedRow) {
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    appearances.current_row = 0;
    SortAppearances(browser, 0);
    EXPECT_EQ(appearances.current_row, 0);
    SortAppearances(browser, 0);
    EXPECT_EQ(appearances.current_row, 1) << "P1 stands last now";
}

TEST_F(PeopleRefresh, TheQuickLinkShowsWhatFollows) {
    LinkSelectedPerson(browser); // nobody: nothing is asked
    UpdateCastInfo(browser, u"M. Hale"_s, u"1950"_s);
    services.dialogs.ExpectInput(u"Enter the 'common' name for cross-linking:"_s, u"Mara Hale"_s,
                                 u"Enter Common Name for M. Hale"_s);
    LinkSelectedPerson(browser);
    EXPECT_EQ(Rows(u"SELECT AliasName, CommonName, BirthYear FROM Alias"), QStringList{u"M. Hale|Mara Hale|1950"_s});
    EXPECT_EQ(Titles(), (QStringList{u"P1"_s, u"P2"_s, u"P3"_s}));
    services.dialogs.ExpectInput(u"Enter the 'common' name for cross-linking:"_s, std::nullopt,
                                 u"Enter Common Name for M. Hale"_s);
    UpdateCastInfo(browser, u"M. Hale"_s, u"1950"_s);
    LinkSelectedPerson(browser);
    EXPECT_EQ(services.dialogs.Pending(), 0u);
}

TEST_F(PeopleRefresh, ADownloadedHeadshotIsShownAndMarked) {
    DownloadHeadshot(browser); // nobody: nothing is asked
    Touch(u"Mara Hale(1950).jpg"_s);
    UpdateCastInfo(browser, u"Mara Hale"_s, u"1950"_s);
    for (const QString &name : {u"Mara Hale"_s, u"Al Roe"_s}) {
        services.downloader.pages[u"http://host/a"_s] = kPicture;
        services.dialogs.ExpectInput(u"Enter URL of new headshot for %1"_s.arg(name), u"http://host/a"_s, name);
        UpdateCastInfo(browser, name, name == u"Al Roe"_s ? QString() : u"1950"_s);
        DownloadHeadshot(browser);
        EXPECT_EQ(Shown(), name + u".jpg"_s) << "the new one, not the one of the year";
        EXPECT_EQ(panel.selected_name, name);
    }
    EXPECT_EQ(Marked(), (QStringList{u"Mara Hale"_s, u"Al Roe"_s}));
}

TEST_F(PeopleRefresh, AnAlternateThatBecomesPrimaryIsMarked) {
    Touch(u"Al Roe_1.jpg"_s);
    RefillCredits(browser);
    ASSERT_EQ(Marked(), QStringList());
    UpdateCastInfo(browser, u"Al Roe"_s, {});
    SetHeadshotAsPrimary(browser);
    EXPECT_EQ(Shown(), QString()) << "the alternate is not shown yet";
    panel.picActor.AlternateHeadshot();
    SetHeadshotAsPrimary(browser);
    EXPECT_EQ(Shown(), u"Al Roe.jpg"_s);
    EXPECT_EQ(Marked(), QStringList{u"Al Roe"_s});
}

TEST_F(PeopleRefresh, EntriesNeedAPerson) {
    for (const QString &name :
         {u"mNextHeadshot"_s, u"mSetHeadshotAsPrimary"_s, u"mDownloadHeadshotFromURL"_s, u"mDownloadHeadshotCast"_s,
          u"mDownloadHeadshotCrew"_s, u"mAddAliasCast"_s, u"mAddAliasCrew"_s}) {
        browser.commands.Handle(name, [] {});
    }
    const auto enabled = [this] {
        EnablePersonEntries(browser);
        QString letters;
        for (const auto &[name, letter] :
             std::initializer_list<std::pair<QString, QString>>{{u"mNextHeadshot"_s, u"n"_s},
                                                                {u"mSetHeadshotAsPrimary"_s, u"p"_s},
                                                                {u"mDownloadHeadshotFromURL"_s, u"d"_s},
                                                                {u"mDownloadHeadshotCast"_s, u"d"_s},
                                                                {u"mDownloadHeadshotCrew"_s, u"d"_s},
                                                                {u"mAddAliasCast"_s, u"a"_s},
                                                                {u"mAddAliasCrew"_s, u"a"_s}}) {
            letters += browser.commands.IsEnabled(name) ? letter : QString();
        }
        return letters;
    };
    EnableDBMenues(browser.commands, true);
    EXPECT_EQ(enabled(), QString());
    UpdateCastInfo(browser, u"Al Roe"_s, {});
    EXPECT_EQ(enabled(), u"ndddaa"_s);
    Touch(u"Al Roe.jpg"_s);
    Touch(u"Al Roe_1.jpg"_s);
    UpdateCastInfo(browser, u"Al Roe"_s, {});
    EXPECT_EQ(enabled(), u"ndddaa"_s) << "it is the primary one";
    panel.picActor.AlternateHeadshot();
    EXPECT_EQ(enabled(), u"npdddaa"_s);
    Show(u"P2"_s);
    EXPECT_EQ(enabled(), QString());
}

TEST_F(PeopleRefresh, EntriesOfTheListsNeedATitle) {
    const QStringList names = {u"mCopyCastList"_s, u"mPasteCastList"_s, u"mLockCast"_s,
                               u"mCopyCrewList"_s, u"mPasteCrewList"_s, u"mLockCrew"_s};
    for (const QString &name : names) {
        browser.commands.Handle(name, [] {});
    }
    EnableDBMenues(browser.commands, true);
    for (const bool title : {true, false, true}) {
        Show(title ? u"P1"_s : QString());
        EnablePersonEntries(browser);
        for (const QString &name : names) {
            EXPECT_EQ(browser.commands.IsEnabled(name), title) << qPrintable(name);
        }
    }
}

TEST_F(PeopleRefresh, TenThousandHeadshotsAreReadOnce) {
    for (int i = 0; i < 10000; ++i) {
        Touch(u"Person %1.jpg"_s.arg(i));
    }
    Touch(u"Al Roe.jpg"_s);
    for (int i = 0; i < 500; ++i) {
        Credit(u"P2"_s, u"Person %1"_s.arg(i * 30), 0);
    }
    RefillCredits(browser);
    const int reads = panel.headshots.Reads();
    Show(u"P2"_s);
    EXPECT_EQ(panel.headshots.Reads(), reads);
    EXPECT_EQ(Marked().size(), 334) << "the names up to 9990";
    UpdateCastInfo(browser, u"Al Roe"_s, {});
    EXPECT_EQ(Shown(), u"Al Roe.jpg"_s);
}

TEST_F(PeopleRefresh, AFolderThatIsGoneShowsNothing) {
    Touch(u"Al Roe.jpg"_s);
    UpdateCastInfo(browser, u"Al Roe"_s, {});
    ASSERT_EQ(Shown(), u"Al Roe.jpg"_s);
    ASSERT_TRUE(QDir(session.HeadshotPath).removeRecursively());
    RefreshPeople(browser);
    EXPECT_EQ(Shown(), QString());
    EXPECT_EQ(Marked(), QStringList());
    EXPECT_FALSE(panel.picActor.HasPictures());
    EXPECT_EQ(panel.selected_name, u"Al Roe"_s);
    session.CoverPath = Path(u"gone/"_s);
    ShowCover(browser, u"P1"_s);
    EXPECT_EQ(CurrentCoverFile(browser), QString());
    FlipCover(browser);
    EXPECT_EQ(CurrentCoverFile(browser), QString());
}

} // namespace
} // namespace ostrand
