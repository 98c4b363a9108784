#include "browser/Commands.h"

#include "browser/MenuStrings.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString Name(const MenuEntry &entry) {
    return QStringView(entry.name).toString();
}

class CommandsTest : public testing::Test {
protected:
    CommandsTest() {
        QObject::connect(&commands, &Commands::Changed, [this] { ++changes; });
        QObject::connect(&commands, &Commands::TextsChanged, [this] { ++text_changes; });
    }

    /// Gives every entry that can have one a handler that notes its name.
    void HandleAll() {
        for (const MenuEntry &entry : MenuEntries()) {
            if (!entry.IsSeparator() && !entry.is_menu && entry.same_as == nullptr) {
                commands.Handle(Name(entry), [this, name = Name(entry)] { ran << name; });
            }
        }
    }

    ViewState view;
    Commands commands{view};
    QStringList ran;
    int changes = 0;
    int text_changes = 0;
};

TEST_F(CommandsTest, AnEntryWithoutAHandlerCannotBeUsed) {
    EXPECT_FALSE(commands.IsEnabled(u"mAbout"_s));
    EXPECT_FALSE(commands.Run(u"mAbout"_s));
    EXPECT_FALSE(commands.HasHandler(u"mAbout"_s));
    commands.Handle(u"mAbout"_s, [this] { ran << u"about"_s; });
    EXPECT_TRUE(commands.HasHandler(u"mAbout"_s));
    EXPECT_TRUE(commands.IsEnabled(u"mAbout"_s));
    EXPECT_TRUE(commands.Run(u"mAbout"_s));
    EXPECT_EQ(ran, QStringList{u"about"_s});
}

TEST_F(CommandsTest, AMenuStaysOpenableWithoutAnyUsableEntry) {
    EXPECT_TRUE(commands.IsEnabled(u"mFile"_s));
    EXPECT_TRUE(commands.IsEnabled(u"mImport"_s));
    EXPECT_TRUE(commands.IsEnabled(u"mSortList"_s));
    EXPECT_FALSE(commands.Run(u"mFile"_s));
}

TEST_F(CommandsTest, ADisabledEntryDoesNotRun) {
    HandleAll();
    commands.SetEnabled(u"mEditTVEpisode"_s, false);
    EXPECT_FALSE(commands.Run(u"mEditTVEpisode"_s));
    commands.SetEnabled(u"mEditTVEpisode"_s, true);
    EXPECT_TRUE(commands.Run(u"mEditTVEpisode"_s));
    EXPECT_EQ(ran, QStringList{u"mEditTVEpisode"_s});
}

TEST_F(CommandsTest, WithoutADatabaseItsMenusAreDisabledAndTheOthersAreNot) {
    HandleAll();
    EnableDBMenues(commands, false);
    for (const QString &name : {u"mEdit"_s, u"mTools"_s, u"mSettings"_s, u"mUpdate"_s, u"mImport"_s, u"mExport"_s,
                                u"mView"_s, u"mEditUsers"_s, u"mSQLQuery"_s, u"mOnlineUpdateData"_s,
                                u"mUpdateMovieData"_s, u"mExportSQL"_s, u"mOrderByGenre"_s, u"mMoveSelected"_s}) {
        EXPECT_FALSE(commands.IsEnabled(name)) << qPrintable(name);
    }
    for (const QString &name :
         {u"mFile"_s, u"mInfo"_s, u"mExit"_s, u"mAbout"_s, u"mSwitchDatabase"_s, u"mCommandFile"_s}) {
        EXPECT_TRUE(commands.IsEnabled(name)) << qPrintable(name);
    }
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.is_context_menu || (entry.parent != nullptr && FindMenuEntry(entry.parent)->is_context_menu)) {
            EXPECT_TRUE(entry.IsSeparator() || !commands.IsEnabled(Name(entry))) << qPrintable(Name(entry));
        }
    }
    EnableDBMenues(commands, true);
    for (const MenuEntry &entry : MenuEntries()) {
        if (!entry.IsSeparator() && entry.view != InView::TV &&
            (entry.same_as == nullptr || FindMenuEntry(entry.same_as)->view != InView::TV)) {
            EXPECT_TRUE(commands.IsEnabled(Name(entry))) << qPrintable(Name(entry));
        }
    }
}

TEST_F(CommandsTest, EnablingTheMenusTellsOnce) {
    EnableDBMenues(commands, false);
    EXPECT_EQ(changes, 1);
    EnableDBMenues(commands, false);
    EXPECT_EQ(changes, 1);
}

TEST_F(CommandsTest, TheEntriesOfAViewFollowIt) {
    HandleAll();
    const QStringList of_movies = {u"mProfileInfoContext"_s,  u"mAssignEpisodes"_s,      u"mAssignEps"_s,
                                   u"mSpecialSorting"_s,      u"mShowFilter"_s,          u"mNewProfile"_s,
                                   u"mEditProfile"_s,         u"mRemoveProfileInEdit"_s, u"mEditSelected"_s,
                                   u"mOrderByGenreContext"_s, u"mAddProfile"_s,          u"mLockSelectedProfiles"_s};
    const QStringList of_tv = {u"mNewEpisode"_s,    u"mEditSeriesMain"_s,   u"mAddNewSeries"_s,  u"mRemoveTVSeries"_s,
                               u"mAddNewSeason"_s,  u"mRemoveTVSeason"_s,   u"mAddNewEpisode"_s, u"mAddBlankEpisode"_s,
                               u"mRemoveEpisode"_s, u"mDuplicateEpisode"_s, u"mEditSeries"_s};
    for (const bool movies : {true, false, true}) {
        commands.FollowView(movies);
        for (const QString &name : of_movies) {
            EXPECT_EQ(commands.IsEnabled(name), movies) << qPrintable(name);
        }
        for (const QString &name : of_tv) {
            EXPECT_EQ(commands.IsEnabled(name), !movies) << qPrintable(name);
        }
        EXPECT_TRUE(commands.IsEnabled(u"mTVShows"_s));
        EXPECT_TRUE(commands.IsEnabled(u"mMovies"_s));
        EXPECT_TRUE(commands.IsEnabled(u"mEditTVEpisode"_s));
    }
}

TEST_F(CommandsTest, AViewDoesNotEnableWhatIsDisabledOtherwise) {
    HandleAll();
    commands.SetEnabled(u"mEditProfile"_s, false);
    commands.FollowView(false);
    commands.FollowView(true);
    EXPECT_FALSE(commands.IsEnabled(u"mEditProfile"_s));
}

TEST_F(CommandsTest, StartsInTheViewThatTheStateTells) {
    view.mTVShows = true;
    Commands others(view);
    others.Handle(u"mNewProfile"_s, [] {});
    others.Handle(u"mAddNewSeries"_s, [] {});
    EXPECT_FALSE(others.IsEnabled(u"mNewProfile"_s));
    EXPECT_TRUE(others.IsEnabled(u"mAddNewSeries"_s));
}

TEST_F(CommandsTest, AContextEntryRunsWhatTheMenuEntryDoes) {
    commands.Handle(u"mOrderByGenre"_s, [this] { ran << u"genre"_s; });
    EXPECT_TRUE(commands.Run(u"mOrderByGenreContext"_s));
    commands.SetEnabled(u"mOrderByGenre"_s, false);
    EXPECT_FALSE(commands.Run(u"mOrderByGenreContext"_s));
    commands.Handle(u"mOrderByGenreContext"_s, [this] { ran << u"own"_s; });
    EXPECT_TRUE(commands.Run(u"mOrderByGenreContext"_s));
    EXPECT_EQ(ran, (QStringList{u"genre"_s, u"own"_s}));
}

TEST_F(CommandsTest, ChecksShowTheView) {
    EXPECT_TRUE(commands.IsChecked(u"mMovies"_s));
    EXPECT_FALSE(commands.IsChecked(u"mTVShows"_s));
    view.mTVShows = true;
    EXPECT_FALSE(commands.IsChecked(u"mMovies"_s));
    EXPECT_TRUE(commands.IsChecked(u"mTVShows"_s));
    view.mReverseCredit = true;
    EXPECT_TRUE(commands.IsChecked(u"mReverseCredit"_s));
    view.grid_lines.ListCast = false;
    EXPECT_FALSE(commands.IsChecked(u"mToogleGridlinesCast"_s));
    EXPECT_TRUE(commands.IsChecked(u"mToogleGridlinesCrew"_s));
    EXPECT_FALSE(commands.IsChecked(u"mLockEpisode"_s));
    commands.SetChecked(u"mLockEpisode"_s, true);
    EXPECT_TRUE(commands.IsChecked(u"mLockEpisode"_s));
    EXPECT_EQ(changes, 1);
}

TEST_F(CommandsTest, TheAuditTrailIsShownByName) {
    EXPECT_FALSE(commands.IsVisible(u"mShowAuditTrail"_s));
    EXPECT_FALSE(commands.IsVisible(u"mSVNAuditTrailDatabase"_s));
    EXPECT_TRUE(commands.IsVisible(u"mExportDatabaseTables"_s));
    EXPECT_TRUE(commands.IsVisible(u"mImportDatabaseTables"_s));
    ShowAuditMenus(commands, true);
    EXPECT_TRUE(commands.IsVisible(u"mShowAuditTrail"_s));
    EXPECT_TRUE(commands.IsVisible(u"mSVNAuditTrailDatabase"_s));
    EXPECT_EQ(changes, 1);
    ShowAuditMenus(commands, false);
    EXPECT_FALSE(commands.IsVisible(u"mShowAuditTrail"_s));
}

TEST_F(CommandsTest, ChangesMadeTogetherAreToldOnce) {
    commands.Together([&] {
        commands.SetEnabled(u"mExit"_s, false);
        commands.Together([&] { commands.SetText(u"mExit"_s, u"Leave"_s); });
        commands.FollowView(false);
        EXPECT_EQ(changes + text_changes, 0);
    });
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(text_changes, 1);
    commands.SetText(u"mExit"_s, u"Leave"_s);
    EXPECT_EQ(text_changes, 1);
}

TEST_F(CommandsTest, AHandlerMayReplaceItself) {
    commands.Handle(u"mAbout"_s, [this] {
        commands.Handle(u"mAbout"_s, [this] { ran << u"second"_s; });
        ran << u"first"_s;
    });
    commands.Run(u"mAbout"_s);
    commands.Run(u"mAbout"_s);
    EXPECT_EQ(ran, (QStringList{u"first"_s, u"second"_s}));
}

TEST_F(CommandsTest, AnUnknownNameIsAFault) {
    EXPECT_THROW(commands.IsEnabled(u"mNothing"_s), std::out_of_range);
    EXPECT_THROW(commands.Handle(u"mabout"_s, [] {}), std::out_of_range);
    EXPECT_THROW(commands.Run(QString()), std::out_of_range);
}

class MenuStringsTest : public testing::Test {
protected:
    void Open() { CreateCollectionDatabase(session, services.folders.dir / u"Menus.mdb"_s); }
    void Learn(const QString &english, const QString &other) {
        session.Database->Execute(u"DELETE FROM Translation WHERE OriginalString = '%1'"_s.arg(EscapeSql(english)));
        session.Database->Execute(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')"_s.arg(
            EscapeSql(english), EscapeSql(other)));
    }

    test::TestServices services;
    Session session{services.services};
    Commands commands{session.view};
};

TEST_F(MenuStringsTest, WithoutADatabaseTheTextsAreEnglish) {
    MenuStrings(session, commands);
    EXPECT_EQ(commands.Text(u"mFile"_s), u"&File");
    EXPECT_EQ(commands.ToolTip(u"mGotoProfile"_s), u"Shows a title by its name");
    EXPECT_EQ(commands.ToolTip(u"mFile"_s), QString());
}

TEST_F(MenuStringsTest, CaptionsAndToolTipsAreTranslated) {
    Open();
    session.UseUserDefinedStrings = true;
    Learn(u"&File"_s, u"&Datei"_s);
    Learn(u"Shows a title by its name"_s, u"Zeigt einen Titel"_s);
    int told = 0;
    QObject::connect(&commands, &Commands::TextsChanged, [&told] { ++told; });
    MenuStrings(session, commands);
    EXPECT_EQ(commands.Text(u"mFile"_s), u"&Datei");
    EXPECT_EQ(commands.Text(u"mEdit"_s), u"&Edit");
    EXPECT_EQ(commands.ToolTip(u"mGotoProfile"_s), u"Zeigt einen Titel");
    EXPECT_EQ(told, 1);
}

TEST_F(MenuStringsTest, AnotherLanguageStartsFromTheEnglishTexts) {
    Open();
    session.UseUserDefinedStrings = true;
    Learn(u"&File"_s, u"&Datei"_s);
    MenuStrings(session, commands);
    Learn(u"&File"_s, u"&Fichier"_s);
    MenuStrings(session, commands);
    EXPECT_EQ(commands.Text(u"mFile"_s), u"&Fichier");
    session.UseUserDefinedStrings = false;
    MenuStrings(session, commands);
    EXPECT_EQ(commands.Text(u"mFile"_s), u"&File");
}

TEST_F(MenuStringsTest, UnknownTextsAreRecordedForTheTranslator) {
    Open();
    session.UseUserDefinedStrings = true;
    session.TraceStrings = true;
    MenuStrings(session, commands);
    const auto count = [this](const QString &text) {
        return session.Database
            ->OpenRecordset(u"SELECT Count(*) FROM Translation WHERE OriginalString = '%1'"_s.arg(EscapeSql(text)))
            .Text(0);
    };
    EXPECT_EQ(count(u"&Settings..."_s), u"1");
    EXPECT_EQ(count(u"Shows a title by its name"_s), u"1");
    EXPECT_EQ(count(QString()), u"0");
    EXPECT_EQ(commands.Text(u"mSettings"_s), u"&Settings...");
}

} // namespace
} // namespace ostrand
