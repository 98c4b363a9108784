#include "collection_files/AdditionalInfos.h"

#include "collection_files/ImportFixture.h"

namespace ostrand {

namespace {

class AdditionalInfos : public ImportTest {
protected:
    void SetUp() override {
        ImportTest::SetUp();
        session.AppVersion = u"1.2.3"_s;
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_2', 'Two')");
    }
    QStringList All() {
        return Rows(
            u"SELECT ProfileID, InfoName, InfoValue, InfoType FROM AdditionalInfo ORDER BY ProfileID, InfoName");
    }
    void Put(const QString &id, const QString &name, const QString &value, const QString &type = {}) {
        WriteAdditionalInfo(session, id, name, value, type);
    }
    void ImportText(const QByteArray &content) {
        ImportAdditionalInfos(session, folder_.Write(u"infos.xml"_s, content));
    }
};

TEST_F(AdditionalInfos, ExportWritesTheNamesAndTheirProfiles) {
    Put(u"Key_2"_s, u"Site"_s, u"b & <c>"_s, u"Link"_s);
    Put(u"Key_1"_s, u"Site"_s, u"a"_s);
    Put(u"Key_1"_s, u"Award"_s, u"line\r\nline"_s);
    ExportAdditionalInfos(session, Path(u"out.xml"_s), {});
    EXPECT_EQ(folder_.Read(u"out.xml"_s),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?><!-- Ostrand Version 1.2.3 Additional Info Export -->\r\n"
              "<AdditionalInfos>\r\n"
              "  <AdditionalInfo Name=\"Award\">\r\n"
              "    <Info ID=\"Key_1\">line\nline</Info>\r\n"
              "  </AdditionalInfo>\r\n"
              "  <AdditionalInfo Name=\"Site\">\r\n"
              "    <Info ID=\"Key_1\">a</Info>\r\n"
              "    <Info ID=\"Key_2\" Type=\"Link\">b &amp; &lt;c&gt;</Info>\r\n"
              "  </AdditionalInfo>\r\n"
              "</AdditionalInfos>\r\n");
    ExportAdditionalInfos(session, Path(u"one.xml"_s), u"Award"_s);
    EXPECT_FALSE(folder_.Read(u"one.xml"_s).contains("Site"));
}

TEST_F(AdditionalInfos, ExportOfNothingIsAnEmptyRoot) {
    ExportAdditionalInfos(session, Path(u"out.xml"_s), {});
    EXPECT_EQ(folder_.Read(u"out.xml"_s), "<?xml version=\"1.0\" encoding=\"utf-8\"?><!-- Ostrand Version 1.2.3 "
                                          "Additional Info Export -->\r\n<AdditionalInfos/>\r\n");
}

TEST_F(AdditionalInfos, AFileThatIsMissingIsTold) {
    services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"Invalid file"_s);
    ImportAdditionalInfos(session, Path(u"none.xml"_s));
    EXPECT_TRUE(services.dialogs.messages.back().text.startsWith(u"Invalid XML file!\n"_s));
    EXPECT_TRUE(services.dialogs.messages.back().text.endsWith(u"\nLine 0"_s));
}

TEST_F(AdditionalInfos, ExportAndImportAgree) {
    Put(u"Key_first"_s, u"Site"_s, u"a"_s, u"Link"_s);
    Put(u"Key_2"_s, u"It's"_s, u"b"_s);
    const QStringList before = All();
    ExportAdditionalInfos(session, Path(u"out.xml"_s), {});
    Run(u"DELETE FROM AdditionalInfo");
    ImportAdditionalInfos(session, Path(u"out.xml"_s));
    EXPECT_EQ(All(), before);
}

TEST_F(AdditionalInfos, UnknownProfilesAreSkippedUnlessWanted) {
    const QByteArray file =
        "<AdditionalInfos><AdditionalInfo Name='N'><Info ID='Key_2'>a</Info><Info ID='Key_9'>b</Info>"
        "</AdditionalInfo></AdditionalInfos>";
    ImportText(file);
    EXPECT_EQ(All(), QStringList{u"Key_2|N|a|"_s});
    WriteINIString(session, u"Settings"_s, u"ImportAllAdditionalInfos"_s, u"True"_s);
    ImportText(file);
    EXPECT_EQ(All(), (QStringList{u"Key_2|N|a|"_s, u"Key_9|N|b|"_s}));
}

TEST_F(AdditionalInfos, LockedProfilesAreLeftAlone) {
    const QByteArray file = "<AdditionalInfos><AdditionalInfo Name='N'><Info ID='Key_2'>new</Info><Info "
                            "ID='Key_first'>new</Info></AdditionalInfo></AdditionalInfos>";
    for (const char *lock : {"Entire", "AdditionalInfo"}) {
        Run(u"DELETE FROM Locks");
        Put(u"Key_2"_s, u"N"_s, u"old"_s);
        Put(u"Key_first"_s, u"N"_s, u"old"_s);
        Lock(QString::fromLatin1(lock), u"Key_2"_s);
        ImportText(file);
        EXPECT_EQ(All(), (QStringList{u"Key_2|N|old|"_s, u"Key_first|N|new|"_s})) << lock;
    }
}

TEST_F(AdditionalInfos, InvalidFilesAreTold) {
    Expect(u"Invalid XML file!\nno element found\nLine 1"_s, u"Invalid file"_s, MessageIcon::Warning);
    ImportText("");
    Expect(u"Invalid XML file!\nThe file holds no element AdditionalInfos.\nLine 1"_s, u"Invalid file"_s,
           MessageIcon::Warning);
    ImportText("<Other/>");
    session.Database.reset();
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    ImportText("<AdditionalInfos/>");
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    ExportAdditionalInfos(session, Path(u"out.xml"_s), {});
}

TEST_F(AdditionalInfos, ArchivesArePackedAndUnpacked) {
    Put(u"Key_2"_s, u"N"_s, u"a"_s);
    QByteArray packed;
    services.processes.behave = [&](const QStringList &run, QString *) {
        packed = test::ReadTestFile(run.last());
        return std::optional(0);
    };
    ExportAdditionalInfos(session, Path(u"out.7z"_s), {});
    EXPECT_TRUE(packed.contains("<Info ID=\"Key_2\">a</Info>"));
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/out.xml"_s));

    Run(u"DELETE FROM AdditionalInfo");
    folder_.Write(u"out.7z"_s, "packed");
    services.processes.behave = [&](const QStringList &, QString *) {
        QFile file(session.TempFolder + u"/unpacked/out.xml"_s);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(packed);
        return std::optional(0);
    };
    ImportAdditionalInfos(session, Path(u"out.7z"_s));
    EXPECT_EQ(All(), QStringList{u"Key_2|N|a|"_s});
}

} // namespace

} // namespace ostrand
