#include "collection_files/Rekeying.h"
#include "collection_files/ImportFixture.h"

namespace ostrand {

namespace {

class Rekeying : public ImportTest {
protected:
    void SetUp() override {
        ImportTest::SetUp();
        session.Profiler3 = false;
    }

    void Old(const QString &key, const QString &upc, const QString &disc_id = {}) {
        Run(QString(
            u"INSERT INTO Profiles (ProfileID, Title, UPC, Locality) VALUES ('%1', 'Old', '%2', 'United States')"_s.arg(
                key, upc)));
        Run(QString(u"INSERT INTO Discs (ProfileID, DiscNo, DiscIDSideA) VALUES ('%1', 1, '%2')"_s.arg(key, disc_id)));
        Run(QString(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('%1', 'Overview')"_s.arg(key)));
    }
    bool ImportFirst(const QByteArray &id, const QByteArray &children) {
        session.Profiler3 = false;
        services.dialogs.ExpectMessage({}, MessageAnswer::Ok, u"Import Profiler 3.x data"_s);
        return Import(Dvd(id, children));
    }
    QStringList Keys() { return Rows(u"SELECT ProfileID FROM Profiles WHERE Title <> 'First' ORDER BY ProfileID"); }
    QStringList Tagged() {
        return Rows(u"SELECT ProfileID, FullyQualifiedName FROM Tags WHERE TagName = 'Profile with old "
                    "ProfileID_UPC_DiscID'");
    }
};

TEST_F(Rekeying, AProfileIsFoundByItsDisc) {
    Old(u"Key_old"_s, u"1"_s, u"2374C5B71A880C87"_s);
    EXPECT_TRUE(ImportFirst("I2374C5B71A880C87.3", "<Title>New</Title>"));
    EXPECT_EQ(Keys(), QStringList{u"Key_I2374C5B71A880C87.3"_s});
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Locks"), QStringList{u"Key_I2374C5B71A880C87.3"_s});
    EXPECT_EQ(Tagged(), QStringList{u"Key_I2374C5B71A880C87.3|Profile with old ProfileID_UPC_DiscID"_s});
}

TEST_F(Rekeying, AnUnknownDiscIsANewProfile) {
    Old(u"Key_old"_s, u"1"_s, u"AAAA"_s);
    EXPECT_TRUE(ImportFirst("IBBBB.3", "<Title>New</Title>"));
    EXPECT_EQ(Keys(), (QStringList{u"Key_IBBBB.3"_s, u"Key_old"_s}));
    EXPECT_EQ(Tagged(), QStringList());
}

TEST_F(Rekeying, ADiscThatHasItsKeyAlreadyStays) {
    Old(u"Key_IAAAA"_s, u"1"_s, u"AAAA"_s);
    EXPECT_TRUE(ImportFirst("IAAAA", "<Title>New</Title>"));
    EXPECT_EQ(Keys(), QStringList{u"Key_IAAAA"_s});
    EXPECT_EQ(Tagged(), QStringList());
    Old(u"Key_other"_s, u"1"_s, u"AAAA"_s);
    EXPECT_TRUE(ImportFirst("IAAAA", "<Title>Newer</Title>"));
    EXPECT_EQ(Keys(), (QStringList{u"Key_IAAAA"_s, u"Key_other"_s})) << "two profiles are not made one";
}

TEST_F(Rekeying, AManualProfileIsFoundByItsKeyOnly) {
    Old(u"Key_old"_s, u"227"_s);
    EXPECT_TRUE(ImportFirst("M227", "<Title>New</Title><UPC>0227000000000</UPC>"));
    EXPECT_EQ(Keys(), (QStringList{u"Key_M227"_s, u"Key_old"_s}));
    EXPECT_EQ(Tagged(), QStringList());
}

TEST_F(Rekeying, AProfileIsFoundByItsOldUpc) {
    const std::pair<const char *, const char *> upcs[] = {
        {"0123456789012", "123456789012"},
        {"ab0123456789012", "123456789012"},
    };
    for (const auto &[upc, old_upc] : upcs) {
        Old(u"Key_old"_s, QString::fromLatin1(old_upc));
        EXPECT_TRUE(ImportFirst("77", "<Title>New</Title><UPC>" + QByteArray(upc) + "</UPC>"));
        EXPECT_EQ(Keys(), QStringList{u"Key_77"_s});
        EXPECT_EQ(Tagged(), QStringList()) << "told only where the old form was kept";
        Run(u"DELETE FROM Profiles WHERE Title <> 'First'");
        Run(u"DELETE FROM Discs");
        Run(u"DELETE FROM Locks");
    }
}

TEST_F(Rekeying, AnotherLocalityIsAnotherProfile) {
    Old(u"Key_old"_s, u"123456789012"_s);
    EXPECT_TRUE(ImportFirst("77.5", "<Title>New</Title><UPC>0123456789012</UPC>"));
    EXPECT_EQ(Keys(), (QStringList{u"Key_77.5"_s, u"Key_old"_s}));
}

TEST_F(Rekeying, ATakenKeyIsTold) {
    Old(u"Key_77"_s, u"1"_s);
    session.Profiler3 = false;
    services.dialogs.ExpectMessage({}, MessageAnswer::Ok, u"Import Profiler 3.x data"_s);
    Expect(u"ProfileID Key_77 is already used!"_s, u"Duplicate ProfileID"_s, MessageIcon::Warning);
    EXPECT_TRUE(Import(Dvd("77", "<Title>New</Title><UPC>0123456789012</UPC>")));
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE ProfileID = 'Key_77'"), QStringList{u"New"_s});
}

TEST_F(Rekeying, AnUnchangedUpcGetsTheTagEvenWhenSkipped) {
    const QByteArray children = "<Title>New</Title><UPC>12345</UPC>";
    EXPECT_TRUE(ImportFirst("77", children));
    EXPECT_EQ(Tagged().size(), 1);
    Run(u"DELETE FROM Tags");
    EXPECT_TRUE(ImportFirst("77", children));
    EXPECT_EQ(Tagged().size(), 1);
}

TEST_F(Rekeying, OnceTheFlagIsOnKeysAreTakenAsTheyAre) {
    Old(u"Key_old"_s, u"123456789012"_s);
    session.Profiler3 = true;
    EXPECT_TRUE(Import(Dvd("77", "<Title>New</Title><UPC>0123456789012</UPC>")));
    EXPECT_EQ(Keys(), (QStringList{u"Key_77"_s, u"Key_old"_s}));
    EXPECT_EQ(Tagged(), QStringList());
}

TEST_F(Rekeying, AllDependentRowsMove) {
    const std::pair<const char *, const char *> tables[] = {
        {"Features", "Feature"},
        {"Genres", "Genre"},
        {"Tags", "TagName"},
        {"AdditionalInfo", "InfoName"},
        {"Subtitles", "Subtitle"},
        {"AudioFormats", "OrderPos"},
        {"VideoFormat", "AspectRatio"},
        {"SRPInfo", "SRPValue"},
        {"PurchaseInfo", "Price"},
        {"Profile2Episodes", "EpisodeID"},
        {"Regions", "Region"},
        {"Locks", "LockName"},
        {"Reviews", "Film"},
        {"MetaInfo", "InfoName"},
        {"Discs", "DiscNo"},
    };
    for (const auto &[table, column] : tables) {
        Run(QString(u"INSERT INTO %1 (ProfileID, %2) VALUES ('Key_o''ld', '1')"_s.arg(QString::fromLatin1(table),
                                                                                      QString::fromLatin1(column))));
    }
    Run(u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_o''ld', 'A', '')");
    Run(u"INSERT INTO CastCrew (ProfileID, Name, Position, IsCast) VALUES ('Key_o''ld', 'A', 1, true)");
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_o''ld', 'Key_parent')");
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_child', 'Key_o''ld')");
    Run(u"INSERT INTO Users (UserID) VALUES ('Ann')");
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('Key_o''ld', 'Ann')");
    Run(u"INSERT INTO Events (EventID, ProfileID, UserID) VALUES (1, 'Key_o''ld', 'Ann')");
    Log(kTraceEntry);
    ConvertProfileData(session, u"Key_o'ld"_s, u"Key_new"_s);
    EXPECT_EQ(LogLines(), QStringList{u"Enter:    ConvertProfileData(Key_o'ld, Key_new)"_s});
    for (const char *table : {"Features", "Studios", "Genres", "Discs", "Tags", "CastCrew", "AdditionalInfo",
                              "Subtitles", "AudioFormats", "VideoFormat", "SRPInfo", "PurchaseInfo", "Events",
                              "Profile2Episodes", "Regions", "Locks", "Reviews", "LoanInfo", "MetaInfo"}) {
        EXPECT_EQ(Rows(QString(u"SELECT DISTINCT ProfileID FROM "_s + QString::fromLatin1(table))),
                  QStringList{u"Key_new"_s})
            << table;
    }
    EXPECT_EQ(Rows(u"SELECT ChildID, BoxSetID FROM BoxSet ORDER BY ChildID"),
              (QStringList{u"Key_child|Key_new"_s, u"Key_new|Key_parent"_s}));
}

} // namespace

} // namespace ostrand
