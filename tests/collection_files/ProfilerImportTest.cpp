#include "base/Md5.h"
#include "collection_files/ImportFixture.h"

#include <QDir>

namespace ostrand {

namespace {

class ProfilerImport : public ImportTest {
protected:
    QString SettingOfFile() { return GetINIString(session, u"Main"_s, u"CollectionFile"_s, {}); }
};

TEST_F(ProfilerImport, WithoutADatabaseItSaysSo) {
    session.Database.reset();
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(ImportProfilerData(session, u"x.xml"_s));
}

TEST_F(ProfilerImport, AMissingFileIsToldAndNotRemembered) {
    Expect(u"Entered file does not exist"_s, u"Wrong Path"_s, MessageIcon::Warning);
    EXPECT_FALSE(ImportProfilerData(session, Path(u"none.xml"_s)));
    EXPECT_EQ(SettingOfFile(), QString());
    EXPECT_EQ(services.progress.calls, QStringList());
}

TEST_F(ProfilerImport, AnEmptyPathAsksForTheFile) {
    const QString path = WriteFile(Dvd("1", "<Title>One</Title>"));
    services.dialogs.ExpectOpenFile({}, u"Please select your DVD Profiler collection file"_s);
    EXPECT_FALSE(ImportProfilerData(session, {}));
    EXPECT_EQ(services.dialogs.file_requests[0].initial, QDir(session.DataFolder).filePath(u"collection.xml"_s));
    EXPECT_EQ(services.dialogs.file_requests[0].filters, QStringList{u"DVD Profiler Collection File|*.xml;*.7z"_s});

    services.dialogs.ExpectOpenFile(path, u"Please select your DVD Profiler collection file"_s);
    EXPECT_TRUE(ImportProfilerData(session, {}));
    EXPECT_EQ(SettingOfFile(), path);

    services.dialogs.ExpectOpenFile({}, {});
    EXPECT_FALSE(ImportProfilerData(session, {}));
    EXPECT_EQ(services.dialogs.file_requests[2].initial, path);
}

TEST_F(ProfilerImport, AnArchiveIsUnpacked) {
    const QString archive = folder_.Write(u"My Films.7Z"_s, "packed");
    services.processes.behave = [&](const QStringList &, QString *) {
        const QDir folder(session.TempFolder + u"/unpacked"_s);
        QFile file(folder.filePath(u"my films.XML"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<Collection>" + Dvd("1", "<Title>One</Title>") + "</Collection>");
        return std::optional(0);
    };
    EXPECT_TRUE(ImportProfilerData(session, archive));
    EXPECT_EQ(services.processes.runs.size(), 1u);
    EXPECT_EQ(Fields(u"Title"_s), u"One"_s);
    EXPECT_EQ(SettingOfFile(), archive);
    EXPECT_FALSE(QDir(session.TempFolder + u"/unpacked"_s).exists());

    services.processes.behave = [](const QStringList &, QString *) { return std::optional(2); };
    Expect(u"Entered file does not exist"_s, u"Wrong Path"_s, MessageIcon::Warning);
    EXPECT_FALSE(ImportProfilerData(session, archive));
}

TEST_F(ProfilerImport, InvalidFilesAreToldAndChangeNothing) {
    struct Case {
        QByteArray content;
        QString text;
    };
    const Case cases[] = {
        {"not XML", u"Invalid collection file!\nsyntax error\nnot XML\nLine 1"_s},
        {"<Collection>\r\n<DVD><ID>1</ID></DVD>\r\n<DVD>",
         u"Invalid collection file!\nno element found\n<DVD>\nLine 3"_s},
        {"<Aliases>\n</Aliases>", u"Invalid collection file!\nthe root element is \"Aliases\"\n<Aliases>\nLine 1"_s},
        {"", u"Invalid collection file!\nno element found\n\nLine 1"_s},
        {"<?xml version='1.0' encoding='martian'?>",
         u"Invalid collection file!\nunknown encoding\n<?xml version='1.0' encoding='martian'?>\nLine 1"_s},
        {"<Collection>\n<DVD><Title>Caf\xE9</Title></DVD></Collection>",
         u"Invalid collection file!\nnot well-formed (invalid token)\n"
         "<DVD><Title>Caf\uFFFD</Title></DVD></Collection>\nLine 2"_s},
        {"<Collection>\n<DVD><Title>&#1;</Title></DVD></Collection>",
         u"Invalid collection file!\nreference to invalid character number\n"
         "<DVD><Title>&#1;</Title></DVD></Collection>\nLine 2"_s},
        {"<Collection>\n<DVD><Title>&#xFFFE;</Title></DVD></Collection>",
         u"Invalid collection file!\nreference to invalid character number\n"
         "<DVD><Title>&#xFFFE;</Title></DVD></Collection>\nLine 2"_s},
        {"<Collection>\n<DVD><Title>&#xD800;</Title></DVD></Collection>",
         u"Invalid collection file!\nreference to invalid character number\n"
         "<DVD><Title>&#xD800;</Title></DVD></Collection>\nLine 2"_s},
    };
    for (const Case &invalid : cases) {
        Expect(invalid.text, u"Invalid file"_s, MessageIcon::Warning);
        EXPECT_FALSE(ImportProfilerData(session, folder_.Write(u"bad.xml"_s, invalid.content)));
        EXPECT_FALSE(session.progress.IsLoaded());
    }
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles"), QStringList{u"Key_first"_s});
}

TEST_F(ProfilerImport, AFileCutShortAnywhereChangesNothing) {
    EXPECT_TRUE(ImportOne("<Title>One</Title><Genres><Genre>Drama</Genre></Genres>"));
    const QByteArray whole = "<Collection>" + Dvd("1", "<Title>&lt;Two</Title><!--c--><Genres/>") + "</Collection>";
    for (qsizetype length = 0; length < whole.size(); ++length) {
        services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"Invalid file"_s);
        EXPECT_FALSE(ImportProfilerData(session, folder_.Write(u"cut.xml"_s, whole.left(length)))) << length;
    }
    EXPECT_EQ(Fields(u"Title"_s), u"One"_s);
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList{u"Drama"_s});
    EXPECT_TRUE(ImportProfilerData(session, folder_.Write(u"cut.xml"_s, whole)));
    EXPECT_EQ(Fields(u"Title"_s), u"<Two"_s);
}

TEST_F(ProfilerImport, AFileThatChangesUnderwayIsToldAndLosesNothing) {
    EXPECT_TRUE(Import(Dvd("2", "<Title>Two</Title><Genres><Genre>Drama</Genre></Genres>")));
    const QString path = WriteFile(Dvd("1", "<Title>One</Title>") + Dvd("2", "<Title>New</Title><Genres/>"));
    services.pump.At(services.pump.Turns() + 2, [&] {
        QFile file(path);
        EXPECT_TRUE(file.resize(120));
    });
    Expect(u"Profiles that could not be imported completely: 1\nthe file has changed while it was read"_s, u"Import"_s,
           MessageIcon::Critical);
    EXPECT_TRUE(ImportProfilerData(session, path));
    EXPECT_EQ(Fields(u"Title"_s), u"One"_s);
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE ProfileID = 'Key_2'"), QStringList{u"Two"_s});
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList{u"Drama"_s});
}

TEST_F(ProfilerImport, AnArchiveWithoutTheNamedFileIsAMissingFile) {
    const QString archive = folder_.Write(u"films.7z"_s, "packed");
    services.processes.behave = [&](const QStringList &, QString *) {
        QFile file(session.TempFolder + u"/unpacked/other.xml"_s);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<Collection>" + Dvd("1", "") + "</Collection>");
        return std::optional(0);
    };
    Expect(u"Entered file does not exist"_s, u"Wrong Path"_s, MessageIcon::Warning);
    EXPECT_FALSE(ImportProfilerData(session, archive));

    services.processes.behave = [](const QStringList &, QString *error) {
        *error = u"no such program"_s;
        return std::optional<int>();
    };
    Log(kTraceError);
    Expect(u"Entered file does not exist"_s, u"Wrong Path"_s, MessageIcon::Warning);
    EXPECT_FALSE(ImportProfilerData(session, archive));
    EXPECT_EQ(LogLines(), QStringList{u"Error:    Extract7z: no such program"_s});
}

TEST_F(ProfilerImport, NothingOutsideTheFileIsRead) {
    folder_.Write(u"secret.txt"_s, "secret");
    const QByteArray path = Path(u"secret.txt"_s).toUtf8();
    EXPECT_TRUE(ImportProfilerData(
        session,
        folder_.Write(u"a.xml"_s, "<!DOCTYPE Collection SYSTEM 'file://" + path + "' [<!ENTITY e SYSTEM 'file://" +
                                      path + "'>]><Collection>" + Dvd("1", "<Title>T&e;</Title>") + "</Collection>")));
    EXPECT_EQ(Fields(u"Title"_s), u"T"_s);
}

TEST_F(ProfilerImport, AProfileWithoutIdentifierHasTheBareKey) {
    const QByteArray dvd = "<DVD><MediaTypes><DVD>true</DVD></MediaTypes><Genres><Genre>Drama</Genre></Genres></DVD>";
    EXPECT_TRUE(Import(dvd));
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Rows(u"SELECT ProfileID, Title, Locality FROM Profiles WHERE ProfileID <> 'Key_first'"),
              QStringList{u"Key_||United States"_s});
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Genres"), QStringList{u"Key_"_s});
}

TEST_F(ProfilerImport, AnEmptyCollectionStopsWithoutAWord) {
    EXPECT_FALSE(Import(""));
    EXPECT_EQ(services.progress.calls.first(), u"opened Loading XML"_s);
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
    EXPECT_EQ(services.dialogs.messages.size(), 0u);
}

TEST_F(ProfilerImport, TheFirstFileBringsTheReminderOfTheCoverPath) {
    Run(u"DELETE FROM Profiles");
    Expect(
        u"Don't forget to point 'Tools->Settings...->Path Settings->Cover Path' to the image folder of your Profiler "
        "database!"_s,
        {}, MessageIcon::Information);
    EXPECT_TRUE(ImportOne("<Title>One</Title>"));
    EXPECT_TRUE(ImportOne("<Title>Two</Title>"));
}

TEST_F(ProfilerImport, AnOlderFileOnNewerDataIsAskedFor) {
    const QString text = u"You already have imported Profiler 3.x data previously.\n"
                         "It is not recommended to import DVD Profiler 2.x data on top of it!\n"
                         "You will get duplicate entries!\nContinue regardless?"_s;
    Expect(text, u"Import not recommended!"_s, MessageIcon::Warning, MessageAnswer::No);
    EXPECT_FALSE(Import(OldDvd("1", "<Title>One</Title>")));
    EXPECT_EQ(Fields(u"Title"_s), QString());
    EXPECT_TRUE(session.Profiler3);
    EXPECT_EQ(services.dialogs.messages.back().buttons, MessageButtons::YesNo);

    Expect(text, u"Import not recommended!"_s, MessageIcon::Warning, MessageAnswer::Yes);
    EXPECT_TRUE(Import(OldDvd("1", "<Title>One</Title>")));
    EXPECT_EQ(Fields(u"Title, Medium"_s), u"One|DVD"_s);
    EXPECT_FALSE(session.Profiler3);
    EXPECT_EQ(ReadDbInfo(session, u"Profiler3"_s, {}), u"False"_s);
    EXPECT_TRUE(Import(OldDvd("1", "<Title>Two</Title>"))) << "the flag is off now";
}

TEST_F(ProfilerImport, TheFirstNewerFileOnOlderDataIsAskedFor) {
    session.Profiler3 = false;
    const QString text = u"This is the first time you are importing Profiler 3.x data.\n"
                         "After this it is not recommended to import DVD Profiler 2.x data again!\n"
                         "You will get duplicate entries otherwise!"_s;
    Expect(text, u"Import Profiler 3.x data"_s, MessageIcon::Information, MessageAnswer::Cancel);
    EXPECT_FALSE(ImportOne("<Title>One</Title>"));
    EXPECT_FALSE(session.Profiler3);
    Expect(text, u"Import Profiler 3.x data"_s, MessageIcon::Information, MessageAnswer::Ok);
    EXPECT_TRUE(ImportOne("<Title>One</Title>"));
    EXPECT_TRUE(session.Profiler3);
    EXPECT_EQ(ReadDbInfo(session, u"Profiler3"_s, {}), u"True"_s);
}

TEST_F(ProfilerImport, TheFirstElementDecidesTheGeneration) {
    EXPECT_TRUE(Import(Dvd("1", "<Title>One</Title>") + OldDvd("2", "<Title>Two</Title>")));
    EXPECT_EQ(Rows(u"SELECT Title, Medium FROM Profiles WHERE DataSource = 'DVDProfiler' ORDER BY Title"),
              (QStringList{u"One|DVD"_s, u"Two|"_s}));
}

TEST_F(ProfilerImport, ProgressIsTold) {
    WriteDbInfo(session, u"ProgressWindowAutoClose"_s, u"True"_s);
    EXPECT_TRUE(Import(Dvd("1", "<Title>One</Title>") + Dvd("2", "<Title>Two</Title>")));
    const QStringList &calls = services.progress.calls;
    EXPECT_EQ(services.progress.Of(u"opened"_s), QStringList{u"Loading XML"_s});
    EXPECT_TRUE(services.progress.Of(u"line"_s).contains(u"Loading XML..."_s));
    EXPECT_LT(calls.indexOf(u"line Loading XML..."_s), calls.indexOf(u"line Processing XML..."_s));
    EXPECT_EQ(services.progress.Of(u"counter"_s).mid(1), (QStringList{u"0/2"_s, u"1/2"_s, u"2/2"_s}));
    EXPECT_EQ(services.progress.Of(u"bar"_s).mid(1), (QStringList{u"0/2"_s, u"1/2"_s, u"2/2"_s}));
    const QStringList details = services.progress.Of(u"detail"_s);
    EXPECT_EQ(details.mid(1),
              (QStringList{u"Main Profile"_s, u"Credits"_s, u"Other"_s, u"Main Profile"_s, u"Credits"_s, u"Other"_s}));
    EXPECT_TRUE(services.progress.calls.join(u'\n').contains(u"Key_2"_s)) << "the item carries the profile's key";
    EXPECT_TRUE(services.progress.calls.contains(u"line Two"_s));
    EXPECT_EQ(calls.last(), u"closed"_s);
}

TEST_F(ProfilerImport, AllSectionsAreToldOnDemand) {
    WriteDbInfo(session, u"ShowMoreProgressDetails"_s, u"True"_s);
    EXPECT_TRUE(ImportOne("<Title>One</Title>"));
    EXPECT_EQ(services.progress.Of(u"detail"_s).mid(1),
              (QStringList{u"Main Profile"_s, u"Cast"_s, u"Crew"_s, u"Boxset Info"_s, u"Disc Info"_s, u"Region Info"_s,
                           u"Video Format"_s, u"Features"_s, u"Studios"_s, u"Genres"_s, u"Subtitles"_s,
                           u"Audio Tracks"_s, u"SRP Info"_s, u"Review"_s, u"Meta Info"_s, u"Purchase Info"_s,
                           u"Events"_s, u"Loan Info"_s, u"Tags"_s}));
}

TEST_F(ProfilerImport, WithoutDetailsNoItemIsShown) {
    WriteDbInfo(session, u"ShowProgressDetails"_s, u"False"_s);
    EXPECT_TRUE(ImportOne("<Title>One</Title>"));
    EXPECT_FALSE(services.progress.calls.join(u'\n').contains(u"Key_1"_s));
    EXPECT_TRUE(services.progress.calls.contains(u"line One"_s));
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
}

TEST_F(ProfilerImport, CancelKeepsWhatIsDone) {
    WriteDbInfo(session, u"ShowProgressDetails"_s, u"False"_s);
    WriteDbInfo(session, u"Profiler3"_s, u"kept"_s);
    int reloads = 0;
    session.window.ReloadTitles = [&] { ++reloads; };
    QByteArray dvds;
    for (const char *id : {"1", "2", "3"}) {
        dvds += Dvd(id, "<Title>T</Title>");
    }
    // A turn for the item of each profile and one behind each profile.
    services.pump.At(3, [&] { session.progress.Close(); });
    EXPECT_FALSE(Import(dvds));
    const qsizetype done = Rows(u"SELECT ProfileID FROM Profiles WHERE Title = 'T'").size();
    EXPECT_GE(done, 1);
    EXPECT_LT(done, 3);
    EXPECT_EQ(reloads, 1);
    EXPECT_EQ(ReadDbInfo(session, u"Profiler3"_s, {}), u"kept"_s);
}

TEST_F(ProfilerImport, TheTitlesAreReloadedAtTheEnd) {
    int reloads = 0;
    session.window.ReloadTitles = [&] { ++reloads; };
    EXPECT_TRUE(ImportOne("<Title>One</Title>"));
    EXPECT_EQ(reloads, 1);
}

TEST_F(ProfilerImport, UnneededBirthYearsGoOnDemand) {
    const QByteArray dvd = Dvd("1", "<Actors><Actor FirstName='Ann' LastName='Smith' BirthYear='1950'/></Actors>");
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Rows(u"SELECT BirthYear FROM CastCrew"), QStringList{u"1950"_s});
    WriteDbInfo(session, u"RemoveBirthYears"_s, u"True"_s);
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Rows(u"SELECT BirthYear FROM CastCrew"), QStringList{u"0"_s});
    EXPECT_TRUE(services.progress.calls.contains(u"title Removing unneeded BirthYears"_s));
}

TEST_F(ProfilerImport, UnchangedProfilesAreSkipped) {
    Log(kTraceInfo);
    const QByteArray dvd = Dvd("1", "<Title>One</Title><Genres><Genre>Drama</Genre></Genres>");
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Fields(u"MD5"_s), MD5(QString::fromUtf8(dvd)));
    EXPECT_EQ(LogLines().filter(u"Updating \"One\", 1"_s).size(), 1);
    Run(u"UPDATE Profiles SET Title = 'Mine' WHERE ProfileID = 'Key_1'");
    Run(u"DELETE FROM Genres");
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Fields(u"Title"_s), u"Mine"_s);
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList());
    EXPECT_EQ(LogLines().filter(u"Updating"_s).size(), 1);

    ForgetDigests();
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Fields(u"Title"_s), u"One"_s);
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList{u"Drama"_s});
}

TEST_F(ProfilerImport, OneIdentifierTwiceInAFileEndsWithTheLast) {
    EXPECT_TRUE(Import(Dvd("1", "<Title>One</Title>") + Dvd("1", "<Title>Two</Title>")));
    EXPECT_EQ(Fields(u"Title"_s), u"Two"_s);
    EXPECT_TRUE(Import(Dvd("a1", "<Title>One</Title>") + Dvd("A1", "<Title>Two</Title>")));
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE ProfileID = 'key_a1'"), QStringList{u"Two"_s});
    // The digest that stood at the start decides no more once another spelling has been written.
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_TRUE(Import(Dvd("A1", "<Title>One</Title>") + Dvd("a1", "<Title>Two</Title>") +
                           Dvd("A1", "<Title>One</Title>")));
        EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE ProfileID = 'key_a1'"), QStringList{u"One"_s});
        EXPECT_TRUE(Import(Dvd("a1", "<Title>Two</Title>") + Dvd("A1", "<Title>One</Title>") +
                           Dvd("a1", "<Title>Two</Title>")));
        EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE ProfileID = 'key_a1'"), QStringList{u"Two"_s});
    }
}

TEST_F(ProfilerImport, TheLockEntireKeepsTheProfile) {
    EXPECT_TRUE(ImportOne("<Title>One</Title><Genres><Genre>Drama</Genre></Genres>"));
    const QString before = Fields(u"MD5"_s);
    Lock(u"entire"_s);
    EXPECT_TRUE(ImportOne("<Title>Two</Title><Genres><Genre>Comedy</Genre></Genres>"));
    EXPECT_EQ(Fields(u"Title"_s), u"One"_s);
    EXPECT_EQ(Fields(u"MD5"_s), before);
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList{u"Drama"_s});
}

TEST_F(ProfilerImport, AnIdentifierLongerThanItsColumnIsFoundAgain) {
    const QByteArray dvd = Dvd(QByteArray(400, 'x'), "<Title>Long</Title>");
    EXPECT_TRUE(Import(dvd));
    ForgetDigests();
    EXPECT_TRUE(Import(dvd));
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE Title = 'Long'").size(), 1);
}

TEST_F(ProfilerImport, HostileTextsAreStoredAsTheyStand) {
    EXPECT_TRUE(Import(Dvd("1'; DROP TABLE Profiles; --", "<Title>O'Neil \"[*?#]\" ' OR ''='</Title>")));
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles WHERE ProfileID LIKE '*DROP*'"),
              QStringList{u"O'Neil \"[*?#]\" ' OR ''='"_s});
    for (const char *id : {"O'Neil", "a\"b", "../../up", "..\\up", "a|b", "[x]*?#", "%s%n", "\xF0\x9F\x98\x80"}) {
        const QString key = u"Key_"_s + QString::fromUtf8(id);
        const QByteArray dvd = Dvd(id, "<Title>T</Title><Genres><Genre>" + QByteArray(id) + "</Genre></Genres>");
        for (int pass = 0; pass < 2; ++pass) {
            ForgetDigests();
            EXPECT_TRUE(Import(dvd));
            EXPECT_EQ(
                Rows(QString(u"SELECT ProfileID, Genre FROM Genres WHERE ProfileID = '"_s + EscapeSql(key) + u'\'')),
                QStringList{key + u'|' + QString::fromUtf8(id)});
        }
    }
}

TEST_F(ProfilerImport, BigProfilesAreTaken) {
    QByteArray actors;
    for (int i = 0; i < 20000; ++i) {
        actors += "<Actor FirstName='A" + QByteArray::number(i) + "' LastName='Smith' Role='R'/>";
    }
    EXPECT_TRUE(
        ImportOne("<Title>One</Title><Actors>" + actors + "</Actors><Notes>" + QByteArray(5000000, 'n') + "</Notes>"));
    EXPECT_EQ(Rows(u"SELECT COUNT(*) AS [N] FROM CastCrew"), QStringList{u"20000"_s});
    EXPECT_EQ(Fields(u"Notes"_s).size(), 5000000);
}

TEST_F(ProfilerImport, AFaultOfTheDatabaseIsToldOnceAndLeavesTheRest) {
    // A table that is missing makes statements of each profile fail.
    Run(u"DROP TABLE Genres");
    Log(kTraceError);
    services.dialogs.ExpectMessage({}, MessageIcon::Critical, MessageAnswer::Ok, u"Import"_s);
    EXPECT_TRUE(Import(Dvd("1", "<Title>One</Title>") + Dvd("2", "<Title>Two</Title>")));
    EXPECT_TRUE(
        services.dialogs.messages.back().text.startsWith(u"Profiles that could not be imported completely: 2\n"_s));
    EXPECT_EQ(LogLines().size(), 2);
    EXPECT_EQ(Rows(u"SELECT MD5 FROM Profiles WHERE Title = 'One' OR Title = 'Two'"),
              (QStringList{QString(), QString()}))
        << "the next import takes them up again";
}

/// Takes every question's first answer and keeps the texts.
class AgreeingUser : public UserDialogs {
public:
    MessageAnswer Show(const Message &message) override {
        texts.append(message.text);
        return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok;
    }
    std::optional<QString> InputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> InputCombo(const QString &, const QString &, const QStringList &, const QString &) override {
        return {};
    }
    QString OpenFile(const FileRequest &) override { return {}; }
    QString SaveFile(const FileRequest &) override { return {}; }
    QString BrowseFolder(const QString &, const QString &) override { return {}; }

    QStringList texts;
};

bool IsToldMessage(const QString &text) {
    for (const char *start : {"Duplicate Link Entry!\n", "Invalid Link Entry!\n", "Don't forget to point ",
                              "This is the first time ", "You already have imported "}) {
        if (text.startsWith(QString::fromLatin1(start))) {
            return true;
        }
    }
    return false;
}

TEST_F(ProfilerImport, SampleCollectionsAreSkippedTheSecondTime) {
    const QDir folder(QDir(test::SharedFolder()).filePath(u"collections"_s));
    if (!folder.exists()) {
        GTEST_SKIP() << "no sample collections";
    }
    AgreeingUser user;
    Services agreeing{user,
                      services.progress,
                      services.pump,
                      services.clock,
                      services.random,
                      services.processes,
                      services.folders,
                      services.locale,
                      services.clipboard,
                      services.keyboard,
                      services.opener,
                      services.images,
                      services.downloader};
    Session all(agreeing);
    all.trace.Mask = kTraceError | kTraceInfo;
    CreateCollectionDatabase(all, Path(u"All.mdb"_s));
    const auto digests = [&] {
        QStringList lines;
        sql::Recordset rows = all.Database->OpenRecordset(u"SELECT ProfileID, MD5 FROM Profiles ORDER BY ProfileID");
        for (; !rows.Eof(); rows.MoveNext()) {
            lines.append(rows.Text(0) + u' ' + rows.Text(1));
        }
        return lines;
    };
    for (const QString &name : folder.entryList({u"*.xml"_s})) {
        SCOPED_TRACE(qPrintable(name));
        services.progress.calls.clear();
        EXPECT_TRUE(ImportProfilerData(all, folder.filePath(name)));
        const QStringList first = digests();
        EXPECT_FALSE(first.isEmpty());
        QFile::remove(all.trace.path);
        EXPECT_TRUE(ImportProfilerData(all, folder.filePath(name)));
        EXPECT_EQ(LogLines().filter(u"Updating"_s), QStringList());
        EXPECT_EQ(digests(), first);
    }
    for (const QString &text : user.texts) {
        EXPECT_TRUE(IsToldMessage(text)) << qPrintable(text);
    }
}

} // namespace

} // namespace ostrand
