#include "database/ChangeField.h"

#include "CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ChangeFieldTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Run(u"INSERT INTO Profiles (ProfileID, Title, Rating, Runtime, Released, CaseType, ColType, WishListPriority, "
            u"MD5) VALUES ('P''1', 'Amber', 'PG', 95, '2001-02-03', 'Tin', 'WishList', 2, 'abc')");
        Run(u"INSERT INTO Profiles (ProfileID, Title, Rating, CaseType, MD5) VALUES ('P2', 'Birch', 'R', 'Box', "
            u"'def')");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle, Runtime) VALUES ('E''1', 'S1', 'Dust', 20)");
        session.CurrentProfileID = u"P'1"_s;
    }
    FieldChange Of(const QString &field, const QString &label = u"Label"_s) const {
        return {.field = field, .label = label, .is_episode = session.CurrentIsEpisode, .lock_name = u"Lock"_s};
    }
    bool Answer(const FieldChange &change, const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Enter new value for "_s + Translate(session, change.label), answer);
        return ChangeField(session, change);
    }
    void ExpectInvalid(const QString &label = u"Label"_s) {
        Expect(u"The data you have entered is invalid for "_s + label, u"Invalid Input!"_s, MessageIcon::Warning);
    }
    QString Value(const QString &field) {
        return Rows(u"SELECT %1 FROM Profiles WHERE ProfileID = 'P''1'"_s.arg(field)).join(u';');
    }
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')"_s.arg(english, shown));
    }
};

TEST_F(ChangeFieldTest, WritesWhatTheColumnCanHold) {
    const struct {
        const char *name;
        QString field;
        QString answer;
        std::optional<QString> stored; ///< nothing for an answer that is refused
    } cases[] = {
        {"text", u"Rating"_s, u"Nora's"_s, u"Nora's"_s},
        {"text with a number", u"Rating"_s, u"16"_s, u"16"_s},
        {"no text", u"Rating"_s, QString(), QString()},
        {"number", u"Runtime"_s, u"120"_s, u"120"_s},
        {"number with blanks", u"Runtime"_s, u" 121 "_s, u"121"_s},
        {"no number", u"Runtime"_s, QString(), QString()},
        {"not a number", u"Runtime"_s, u"long"_s, {}},
        {"an expression", u"Runtime"_s, u"1, Title = 'x'"_s, {}},
        {"a broken number", u"Runtime"_s, u"1.5"_s, {}},
        {"too large a number", u"Runtime"_s, u"99999999999"_s, {}},
        {"date", u"Released"_s, u"2002-12-31"_s, u"2002-12-31"_s},
        {"date with points", u"Released"_s, u"24.12.2003"_s, u"2003-12-24"_s},
        {"date with strokes", u"Released"_s, u"12/25/2003"_s, u"2003-12-25"_s},
        {"no date", u"Released"_s, QString(), u"1899-12-30"_s},
        {"a year alone", u"Released"_s, u"2004"_s, {}},
        {"a time", u"Released"_s, u"10:30"_s, {}},
        {"not a date", u"Released"_s, u"soon"_s, {}},
    };
    for (const auto &c : cases) {
        const QString before = Value(c.field);
        Run(u"UPDATE Profiles SET MD5 = 'abc', LastEdited = Null WHERE ProfileID = 'P''1'");
        services.dialogs.ExpectInput(u"Enter new value for Label"_s, c.answer, u"Label"_s);
        if (!c.stored) {
            ExpectInvalid();
        }
        EXPECT_EQ(ChangeField(session, Of(c.field)), c.stored.has_value()) << c.name;
        EXPECT_EQ(Value(c.field), c.stored.value_or(before)) << c.name;
        EXPECT_EQ(Value(u"MD5"_s), c.stored ? QString() : u"abc"_s) << c.name;
        EXPECT_EQ(Value(u"LastEdited"_s), c.stored ? u"2024-05-17 10:20:30"_s : QString()) << c.name;
    }
    EXPECT_EQ(Rows(u"SELECT Rating, MD5 FROM Profiles WHERE ProfileID = 'P2'"), QStringList{u"R|def"_s});
}

TEST_F(ChangeFieldTest, TheStatementsComeInTheirOrder) {
    session.view.AutoLock = true;
    QStringList sent;
    session.Database->SetObserver([&](QStringView sql) {
        if (!sql.startsWith(u"SELECT")) {
            sent += sql.toString();
        }
    });
    EXPECT_TRUE(Answer(Of(u"Rating"_s), u"Nora's"_s));
    session.CurrentProfileID = u"E'1"_s;
    session.CurrentIsEpisode = true;
    EXPECT_TRUE(Answer(Of(u"Runtime"_s), u"21"_s));
    session.Database->SetObserver({});
    EXPECT_EQ(sent, (QStringList{u"INSERT INTO Locks (ProfileID, LockName) VALUES ('P''1', 'Lock')"_s,
                                 u"UPDATE Profiles SET Rating = 'Nora''s' WHERE ProfileID = 'P''1'"_s,
                                 u"UPDATE Profiles SET LastEdited = '2024-05-17 10:20:30' WHERE ProfileID = 'P''1'"_s,
                                 u"UPDATE Profiles SET MD5 = '' WHERE ProfileID = 'P''1'"_s,
                                 u"INSERT INTO Locks (ProfileID, LockName) VALUES ('E''1', 'Lock')"_s,
                                 u"UPDATE Episodes SET Runtime = 21 WHERE EpisodeID = 'E''1'"_s}));
    EXPECT_EQ(Rows(u"SELECT Runtime FROM Episodes"), QStringList{u"21"_s});
}

TEST_F(ChangeFieldTest, NothingIsWrittenWithoutAChange) {
    session.view.AutoLock = true;
    int writes = 0;
    session.Database->SetObserver([&](QStringView sql) { writes += !sql.startsWith(u"SELECT"); });
    EXPECT_FALSE(Answer(Of(u"Rating"_s), std::nullopt)) << "cancelled";
    EXPECT_FALSE(Answer(Of(u"Rating"_s), u"PG"_s)) << "unchanged";
    EXPECT_FALSE(Answer(Of(u"Released"_s), u"2001-02-03"_s)) << "unchanged";
    session.CurrentProfileID = u"gone"_s;
    EXPECT_FALSE(ChangeField(session, Of(u"Rating"_s)));
    session.CurrentProfileID.clear();
    EXPECT_FALSE(ChangeField(session, Of(u"Rating"_s)));
    session.Database->SetObserver({});
    EXPECT_EQ(writes, 0);
    session.Database.reset();
    session.CurrentProfileID = u"P'1"_s;
    EXPECT_FALSE(ChangeField(session, Of(u"Rating"_s)));
}

TEST_F(ChangeFieldTest, TheLockComesOnlyWhereTheSettingsAskForIt) {
    EXPECT_TRUE(Answer(Of(u"Rating"_s), u"G"_s));
    EXPECT_EQ(Rows(u"SELECT LockName FROM Locks"), QStringList());
    session.view.AutoLock = true;
    EXPECT_TRUE(Answer(Of(u"Rating"_s), u"PG"_s));
    EXPECT_TRUE(Answer(Of(u"Rating"_s), u"G"_s));
    EXPECT_EQ(Rows(u"SELECT ProfileID, LockName FROM Locks"), QStringList{u"P'1|Lock"_s});
    FieldChange bad = Of(u"Runtime"_s);
    bad.lock_name = u"RunningTime"_s;
    services.dialogs.ExpectInput(u"Enter new value for Label"_s, u"x"_s);
    ExpectInvalid();
    EXPECT_FALSE(ChangeField(session, bad));
    EXPECT_EQ(Rows(u"SELECT LockName FROM Locks"), QStringList{u"Lock"_s});
}

TEST_F(ChangeFieldTest, OffersTheValuesOfAllProfiles) {
    FieldChange change = Of(u"Rating"_s);
    change.choices = DistinctValues(session, u"Rating"_s);
    EXPECT_TRUE(Answer(change, u"Free"_s));
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"PG"_s, u"R"_s}));
    EXPECT_EQ(services.dialogs.last_preset, u"PG"_s);
    EXPECT_EQ(Value(u"Rating"_s), u"Free"_s);
}

TEST_F(ChangeFieldTest, TranslatedValuesAreStoredInEnglish) {
    TranslateAs(u"Tin"_s, u"Blech"_s);
    TranslateAs(u"Box"_s, u"Schachtel"_s);
    TranslateAs(u"Label"_s, u"Hülle"_s);
    FieldChange change = Of(u"CaseType"_s);
    change.choices = DistinctValues(session, u"CaseType"_s);
    change.answer = FieldChange::Answer::Translated;
    EXPECT_TRUE(Answer(change, u"Schachtel"_s));
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"Schachtel"_s, u"Blech"_s}));
    EXPECT_EQ(services.dialogs.last_preset, u"Blech"_s);
    EXPECT_EQ(Value(u"CaseType"_s), u"Box"_s);
    EXPECT_FALSE(Answer(change, u"Schachtel"_s)) << "unchanged";
    EXPECT_TRUE(Answer(change, u"Tüte"_s));
    EXPECT_EQ(Value(u"CaseType"_s), u"Tüte"_s);
}

TEST_F(ChangeFieldTest, ChoicesMayBeNumbered) {
    FieldChange change = Of(u"WishListPriority"_s);
    change.choices = {u"Low"_s, u"Middle"_s, u"High"_s};
    change.answer = FieldChange::Answer::Choice;
    EXPECT_TRUE(Answer(change, u"High"_s));
    EXPECT_EQ(services.dialogs.last_preset, u"Middle"_s);
    EXPECT_EQ(Value(u"WishListPriority"_s), u"3"_s);
    EXPECT_TRUE(Answer(change, u"1"_s));
    EXPECT_EQ(Value(u"WishListPriority"_s), u"1"_s);
    for (const QString &answer : {u"4"_s, u"Never"_s}) {
        services.dialogs.ExpectInput(u"Enter new value for Label"_s, answer);
        ExpectInvalid();
        EXPECT_FALSE(ChangeField(session, change)) << qPrintable(answer);
    }
    EXPECT_TRUE(Answer(change, QString()));
    EXPECT_EQ(Value(u"WishListPriority"_s), QString());
}

TEST_F(ChangeFieldTest, ATitleIsNeverEmpty) {
    FieldChange change = Of(u"Title"_s, u"Title"_s);
    change.required = true;
    services.dialogs.ExpectInput(u"Enter new value for Title"_s, u" "_s);
    ExpectInvalid(u"Title"_s);
    EXPECT_FALSE(ChangeField(session, change));
    EXPECT_EQ(Value(u"Title"_s), u"Amber"_s);
}

} // namespace
} // namespace ostrand
