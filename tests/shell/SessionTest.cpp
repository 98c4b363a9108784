// The state that a session starts with, and the texts of the user's language.
#include "database/CollectionFixture.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

class TranslateTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Owned', 'Besitz')");
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Drama', '')");
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Owner''s', 'des Eigners')");
        session.UseUserDefinedStrings = true;
    }
};

} // namespace

TEST(Session, FoldersAndLocaleComeFromTheServices) {
    test::TestServices services;
    services.locale.decimal_separator = u","_s;
    const Session session(services.services);
    const auto native = [](const QString &path) { return QDir::toNativeSeparators(path); };
    EXPECT_EQ(session.TempFolder, native(services.folders.Temp() + u"/OstrandApp"_s));
    EXPECT_EQ(session.DataFolder, native(services.folders.Documents() + u"/OstrandApp"_s));
    EXPECT_EQ(session.ProgramFolder, services.folders.Program());
    EXPECT_EQ(session.SettingsPath, native(session.DataFolder + u"/Settings.ini"_s));
    EXPECT_EQ(session.trace.path, native(session.DataFolder + u"/Debug.log"_s));
    EXPECT_EQ(session.trace.Mask, 1u);
    EXPECT_EQ(session.DecimalSeparator, u","_s);
    EXPECT_FALSE(session.Database);
    EXPECT_TRUE(session.ShowFrontCover);
    EXPECT_FALSE(session.StartingUp);
    EXPECT_FALSE(session.EndProgram);
    EXPECT_EQ(session.CountryNames.size(), 51);
}

TEST(Session, TheVersionIsThreeNumbers) {
    test::TestServices services;
    const Session session(services.services);
    EXPECT_EQ(session.AppVersion,
              u"%1.%2.%3"_s.arg(OSTRAND_VERSION_MAJOR).arg(OSTRAND_VERSION_MINOR).arg(OSTRAND_VERSION_PATCH));
}

TEST(Session, LongDatesLoseTheWeekdayInFront) {
    static constexpr struct {
        QStringView pattern;
        QStringView kept;
    } kPatterns[] = {{u"dddd, MMMM d, yyyy", u"MMMM d, yyyy"},
                     {u"dddd, d. MMMM yyyy", u"d. MMMM yyyy"},
                     {u"d MMMM yyyy", u"d MMMM yyyy"},
                     {u"d,MMMM", u"d,MMMM"},
                     {u"", u""}};
    for (const auto &row : kPatterns) {
        test::TestServices services;
        services.locale.long_date_pattern = row.pattern.toString();
        EXPECT_EQ(Session(services.services).LongDateFormat, row.kept);
    }
}

TEST(Session, SettingsOfTheInstallationAreKept) {
    test::TestServices services;
    const Session session(services.services);
    QDir().mkpath(session.DataFolder);
    EXPECT_EQ(GetINIString(session, u"Main"_s, u"Debug"_s, u"1"_s), u"1"_s);
    WriteINIString(session, u"Main"_s, u"Debug"_s, u"0x3"_s);
    EXPECT_EQ(GetINIString(session, u"main"_s, u"DEBUG"_s, u"1"_s), u"0x3"_s);
}

TEST(Session, MessagesGoToTheUser) {
    test::TestServices services;
    Session session(services.services);
    services.dialogs.ExpectMessage(u"Continue?"_s, MessageIcon::Question, MessageAnswer::Yes, u"Ask"_s);
    EXPECT_EQ(ShowMessage(session, {.text = u"Continue?"_s,
                                    .title = u"Ask"_s,
                                    .icon = MessageIcon::Question,
                                    .buttons = MessageButtons::YesNo,
                                    .neutral = MessageAnswer::No}),
              MessageAnswer::Yes);
}

TEST_F(TranslateTest, TextsAreLookedUp) {
    static constexpr struct {
        const char *what;
        QStringView text;
        QStringView shown;
    } kTexts[] = {
        {"a translated text", u"Owned", u"Besitz"},
        {"any case", u"OWNED", u"Besitz"},
        {"an empty translation", u"Drama", u"Drama"},
        {"an unknown text", u"Crime", u"Crime"},
        {"an apostrophe", u"Owner's", u"des Eigners"},
        {"an unknown apostrophe", u"O'Brien", u"O'Brien"},
        {"nothing", u"", u""},
    };
    for (const auto &row : kTexts) {
        EXPECT_EQ(Translate(session, row.text.toString()), row.shown) << row.what;
    }
    EXPECT_EQ(session.Database->RecordCount(u"Translation"), 3);
}

TEST_F(TranslateTest, UnknownTextsAreRecordedOnceWhenAsked) {
    session.TraceStrings = true;
    EXPECT_EQ(Translate(session, u"O'Brien's list"_s), u"O'Brien's list"_s);
    EXPECT_EQ(Translate(session, u"O'Brien's list"_s), u"O'Brien's list"_s);
    EXPECT_EQ(Rows(u"SELECT UserString FROM Translation WHERE OriginalString = 'O''Brien''s list'"),
              QStringList(QString()));
    EXPECT_EQ(session.Database->RecordCount(u"Translation"), 4);
}

TEST_F(TranslateTest, SwitchedOffTextsStayAndAreNotRecorded) {
    session.UseUserDefinedStrings = false;
    session.TraceStrings = true;
    EXPECT_EQ(Translate(session, u"Owned"_s), u"Owned"_s);
    EXPECT_EQ(Translate(session, u"Crime"_s), u"Crime"_s);
    EXPECT_EQ(session.Database->RecordCount(u"Translation"), 3);
}

TEST_F(TranslateTest, BackwardsTextsAreLookedUp) {
    EXPECT_EQ(ReverseTranslate(session, u"Besitz"_s), u"Owned"_s);
    EXPECT_EQ(ReverseTranslate(session, u"BESITZ"_s), u"Owned"_s);
    EXPECT_EQ(ReverseTranslate(session, u"des Eigners"_s), u"Owner's"_s);
    EXPECT_EQ(ReverseTranslate(session, u"Krimi"_s), u"Krimi"_s);
    EXPECT_EQ(ReverseTranslate(session, u"l'ami"_s), u"l'ami"_s);
    EXPECT_EQ(Translate(session, u"Besitz"_s, true), u"Owned"_s);
}

TEST_F(TranslateTest, SwitchedOffOnlyForceLooksBackwards) {
    session.UseUserDefinedStrings = false;
    EXPECT_EQ(ReverseTranslate(session, u"Besitz"_s), u"Besitz"_s);
    EXPECT_EQ(ReverseTranslate(session, u"Besitz"_s, true), u"Owned"_s);
    EXPECT_EQ(Translate(session, u"Besitz"_s, true), u"Owned"_s);
}

TEST_F(TranslateTest, TheProgressWindowClosesItselfAsTheDatabaseSays) {
    const auto run = [this](bool tick) {
        session.progress.Load({});
        session.progress.ShowDetails(true);
        const bool was = session.progress.CloseWhenFinished();
        session.progress.SetCloseWhenFinished(tick);
        session.progress.UnloadForm(true);
        return was;
    };
    EXPECT_FALSE(run(true));
    EXPECT_EQ(ReadDbInfo(session, u"ProgressWindowAutoClose"_s, {}), u"1"_s);
    EXPECT_FALSE(session.progress.IsShown());
    EXPECT_TRUE(run(false));
    EXPECT_EQ(ReadDbInfo(session, u"ProgressWindowAutoClose"_s, {}), u"0"_s);
    EXPECT_TRUE(session.progress.IsShown());
    EXPECT_FALSE(run(false));
}

TEST_F(TranslateTest, WithoutADatabaseTextsStay) {
    session.Database.reset();
    EXPECT_EQ(Translate(session, u"Owned"_s), u"Owned"_s);
    EXPECT_EQ(Translate(session, u"Besitz"_s, true), u"Besitz"_s);
    EXPECT_EQ(ReverseTranslate(session, u"Besitz"_s, true), u"Besitz"_s);
}

TEST_F(TranslateTest, WithoutTheTableTextsStay) {
    Run(u"DROP TABLE Translation");
    session.TraceStrings = true;
    EXPECT_EQ(Translate(session, u"Owned"_s), u"Owned"_s);
    EXPECT_EQ(ReverseTranslate(session, u"Besitz"_s, true), u"Besitz"_s);
}

} // namespace ostrand
