#include "queries/LanguageFile.h"

#include "database/CollectionFixture.h"
#include "shell/CommandFile.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class LanguageFileTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.AppVersion = u"1.2.3"_s;
    }
    void Put(const QString &original, const QString &user) {
        Run(QString(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('"_s + EscapeSql(original) +
                    u"', '"_s + EscapeSql(user) + u"')"_s));
    }
    QStringList All() { return Rows(u"SELECT OriginalString, UserString FROM Translation ORDER BY OriginalString"); }
    bool Import(const QString &name, const QByteArray &content) {
        return ImportStringsFromFile(session, folder_.Write(name, content));
    }
};

TEST_F(LanguageFileTest, OnlyWhatIsDoneIsWritten) {
    Put(u"Yes"_s, u"Ja"_s);
    Put(u"No"_s, QString());
    Put(u"DVD"_s, u"DVD"_s);
    Put(u"Drop & <do>"_s, u"Weg & \"<so>\""_s);
    EXPECT_TRUE(ExportStringsToFile(session, Path(u"out.xml"_s)));
    EXPECT_EQ(folder_.Read(u"out.xml"_s).toStdString(),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
              "<!-- Ostrand Version 1.2.3 Language File Export -->\r\n"
              "<!-- Exported: 2024-05-17 10:20:30 -->\r\n"
              "<Strings>\r\n"
              "  <String Original=\"Yes\">Ja</String>\r\n"
              "  <String Original=\"Drop &amp; &lt;do>\">Weg &amp; \"&lt;so&gt;\"</String>\r\n"
              "</Strings>\r\n");
    for (const QString &name : {u"out.cfg"_s, u"out.txt"_s, u"out"_s}) {
        EXPECT_TRUE(ExportStringsToFile(session, Path(name)));
        EXPECT_EQ(folder_.Read(name), "Yes|Ja\r\nDrop & <do>|Weg & \"<so>\"\r\n") << qPrintable(name);
    }
    EXPECT_TRUE(ExportStringsToFile(session, Path(u"UPPER.XML"_s)));
    EXPECT_TRUE(folder_.Read(u"UPPER.XML"_s).startsWith("<?xml"));
}

TEST_F(LanguageFileTest, AFileReplacesTheWholeTableAndAnotherReadingChangesNothing) {
    Put(u"Old"_s, u"Alt"_s);
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(Import(u"a.xml"_s, "<Strings><String Original=\"It's\">C'est</String><Other/>"
                                       "<String Original=\"&amp;File\">&amp;Datei</String></Strings>"));
        EXPECT_EQ(All().size(), 2);
        EXPECT_TRUE(All().contains(u"It's|C'est"_s));
        EXPECT_TRUE(All().contains(u"&File|&Datei"_s));
    }
    EXPECT_TRUE(Import(u"none.xml"_s, "<Strings/>"));
    EXPECT_EQ(All(), QStringList());
}

TEST_F(LanguageFileTest, LinesOfTextAreCutAtTheMark) {
    EXPECT_TRUE(Import(u"a.cfg"_s, "Yes|Ja\r\nNo|Nein\nA|B|C\r\n\r\nnothing\r\n|empty\r\nOpen|\r\nIt's|\xC3\x84h"));
    EXPECT_EQ(All(), (QStringList{u"A|B"_s, u"It's|Äh"_s, u"No|Nein"_s, u"Open|"_s, u"Yes|Ja"_s}));
    EXPECT_TRUE(Import(u"a.txt"_s, "Gate|T\xFCr\n"));
    EXPECT_EQ(All(), QStringList(u"Gate|Tür"_s)) << "in the user's code page";
}

TEST_F(LanguageFileTest, WhatIsWrittenIsReadTheSame) {
    Put(u"It's \"<&>\""_s, u"C'est \"<&>\""_s);
    Put(u"Two\nlines"_s, u"Deux lignes"_s);
    Put(u" blanks "_s, u" blancs "_s);
    const QStringList before = All();
    ExportStringsToFile(session, Path(u"out.xml"_s));
    EXPECT_TRUE(ImportStringsFromFile(session, Path(u"out.xml"_s)));
    EXPECT_EQ(All(), before);
}

TEST_F(LanguageFileTest, ATextWithTheMarkCannotTravelAsALine) {
    Put(u"a|b"_s, u"c|d"_s);
    ExportStringsToFile(session, Path(u"out.cfg"_s));
    EXPECT_TRUE(ImportStringsFromFile(session, Path(u"out.cfg"_s)));
    EXPECT_EQ(All(), QStringList(u"a|b"_s)) << "the first two pieces: a is b";
    EXPECT_EQ(Rows(u"SELECT OriginalString FROM Translation"), QStringList(u"a"_s));
}

TEST_F(LanguageFileTest, TheFirstOfTwoEntriesCounts) {
    EXPECT_TRUE(Import(u"a.xml"_s, "<Strings><String Original='Yes'>Ja</String><String Original='YES'>Jo</String>"
                                   "<String Original='No'>Nein</String><String>?</String></Strings>"));
    EXPECT_EQ(All(), (QStringList{u"No|Nein"_s, u"Yes|Ja"_s}));
}

TEST_F(LanguageFileTest, AFaultOfTheDatabaseLeavesTheTable) {
    Put(u"Yes"_s, u"Ja"_s);
    session.Database->SetObserver([](QStringView statement) {
        if (statement.contains(u"Nein")) {
            throw sql::SqlError(sql::ErrorCode::DiskFull, u"The disk is full."_s);
        }
    });
    Expect(u"The disk is full."_s, u"ImportStringsFromFile"_s, MessageIcon::Critical);
    EXPECT_FALSE(Import(u"a.cfg"_s, "Gate|Tor\nNo|Nein"));
    EXPECT_EQ(All(), QStringList(u"Yes|Ja"_s));
}

TEST_F(LanguageFileTest, InvalidFilesLeaveTheTable) {
    Put(u"Yes"_s, u"Ja"_s);
    Expect(u"Invalid Language XML file!\r\nno element found\r\n\r\nLine 1"_s, u"Invalid file"_s, MessageIcon::Warning);
    EXPECT_FALSE(Import(u"a.xml"_s, ""));
    for (const char *content : {"<Other/>", "<Strings><String></Strings>", "Yes|Jo"}) {
        services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"Invalid file"_s);
        EXPECT_FALSE(Import(u"a.xml"_s, content)) << content;
    }
    Expect(u"The file cannot be read: "_s + Path(u"none.cfg"_s), u"Invalid file"_s, MessageIcon::Warning);
    EXPECT_FALSE(ImportStringsFromFile(session, Path(u"none.cfg"_s)));
    EXPECT_EQ(All(), QStringList(u"Yes|Ja"_s));
}

TEST_F(LanguageFileTest, AFileOfAnotherKindLeavesTheTable) {
    Put(u"Yes"_s, u"Ja"_s);
    Expect(u"Invalid Language XML file!\r\nThe file holds no element 'Strings'.\r\n<SQLQueries>\r\nLine 1"_s,
           u"Invalid file"_s, MessageIcon::Warning);
    EXPECT_FALSE(Import(u"a.xml"_s, "<SQLQueries/>"));
    for (const QByteArray &content :
         {QByteArray("[Settings]\nA=1\n"), QByteArray("7z\0|x|y\n", 8), QByteArray("\xFF\xFEY\0e\0s\0|\0J\0a\0", 14)}) {
        Expect(u"This is no language file: "_s + Path(u"a.cfg"_s), u"Invalid file"_s, MessageIcon::Warning);
        EXPECT_FALSE(Import(u"a.cfg"_s, content)) << content.constData();
    }
    EXPECT_EQ(All(), QStringList(u"Yes|Ja"_s));
    EXPECT_TRUE(Import(u"a.cfg"_s, " \r\n")) << "no translation at all";
    EXPECT_EQ(All(), QStringList());
}

TEST_F(LanguageFileTest, NothingWithoutADatabase) {
    session.Database.reset();
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(Import(u"a.xml"_s, "<Strings/>"));
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(ExportStringsToFile(session, Path(u"out.xml"_s)));
}

TEST_F(LanguageFileTest, ArchivesGoThroughTheTemporaryFolder) {
    Put(u"Yes"_s, u"Ja"_s);
    QByteArray packed;
    services.processes.behave = [&](const QStringList &run, QString *) {
        packed = test::ReadTestFile(run.last());
        folder_.Write(u"l.7z"_s, "packed");
        return std::optional(0);
    };
    EXPECT_TRUE(ExportStringsToFile(session, Path(u"l.7z"_s)));
    Run(u"DELETE FROM Translation");
    services.processes.behave = [&](const QStringList &, QString *) {
        QFile file(session.TempFolder + u"/unpacked/l.xml"_s);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(packed);
        return std::optional(0);
    };
    EXPECT_TRUE(ImportStringsFromFile(session, Path(u"l.7z"_s)));
    EXPECT_EQ(All(), QStringList(u"Yes|Ja"_s));
}

TEST_F(LanguageFileTest, TheWindowSpeaksTheNewLanguageAtOnceWhereItIsSwitchedOn) {
    QStringList shown;
    session.window.MenuStrings = [&] { shown += Translate(session, u"Yes"_s); };
    int stored = 0;
    session.window.SettingsStored = [&] { ++stored; };
    Import(u"a.cfg"_s, "Yes|Oui");
    EXPECT_EQ(shown, QStringList());
    session.UseUserDefinedStrings = true;
    Import(u"a.cfg"_s, "Yes|Ja");
    EXPECT_EQ(shown, (QStringList{u"Yes"_s, u"Ja"_s})) << "by way of English";
    EXPECT_EQ(stored, 1) << "what lists tell is shown anew";
    EXPECT_EQ(Translate(session, u"Yes"_s), u"Ja"_s);
    session.UseUserDefinedStrings = false;
    session.TraceStrings = true;
    EXPECT_EQ(Translate(session, u"Never seen"_s), u"Never seen"_s);
    EXPECT_EQ(All(), QStringList(u"Yes|Ja"_s)) << "switched off, no text is recorded";
}

TEST_F(LanguageFileTest, AWordOfTwoOriginalsGoesBackToTheFirst) {
    session.UseUserDefinedStrings = true;
    Import(u"a.cfg"_s, "Cast|Team\nCrew|Team");
    EXPECT_EQ(ReverseTranslate(session, u"Team"_s), u"Cast"_s);
}

TEST_F(LanguageFileTest, CommandFilesMoveTranslations) {
    Put(u"Yes"_s, u"Ja"_s);
    CallCommand(session, u"exporttranslationtofile "_s + Path(u"c.xml"_s));
    Run(u"DELETE FROM Translation");
    CallCommand(session, u"ImportTranslationFromFile "_s + Path(u"c.xml"_s));
    EXPECT_EQ(All(), QStringList(u"Yes|Ja"_s));
}

} // namespace
} // namespace ostrand
