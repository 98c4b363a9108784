#include "queries/SqlFile.h"

#include "database/CollectionFixture.h"
#include "shell/CommandFile.h"
#include "support/FailingStatements.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SqlFileTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.AppVersion = u"1.2.3"_s;
    }
    void Save(const QString &name, const QString &statement) {
        Run(QString(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('"_s + EscapeSql(name) + u"', '"_s +
                    EscapeSql(statement) + u"')"_s));
    }
    QStringList All() { return Rows(u"SELECT Name, SQLStatement FROM SQLQueries ORDER BY Name"); }
    bool Import(const QByteArray &content) { return ImportSQLFromFile(session, folder_.Write(u"in.xml"_s, content)); }
};

TEST_F(SqlFileTest, WritesEachQueryWithItsNameAndStatement) {
    Save(u"It's"_s, u"SELECT 'a' < 'b'\r\nFROM Profiles"_s);
    Save(u"Zed"_s, QString());
    EXPECT_TRUE(ExportSQLToFile(session, Path(u"out.xml"_s)));
    EXPECT_EQ(folder_.Read(u"out.xml"_s), "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                                          "<!-- Ostrand Version 1.2.3 SQL Queries Export -->\r\n"
                                          "<!-- Exported: 2024-05-17 10:20:30 -->\r\n"
                                          "<SQLQueries>\r\n"
                                          "  <SQLQuery>\r\n"
                                          "    <SQLName>It's</SQLName>\r\n"
                                          "    <SQLStatement>SELECT 'a' &lt; 'b'\nFROM Profiles</SQLStatement>\r\n"
                                          "  </SQLQuery>\r\n"
                                          "  <SQLQuery>\r\n"
                                          "    <SQLName>Zed</SQLName>\r\n"
                                          "    <SQLStatement/>\r\n"
                                          "  </SQLQuery>\r\n"
                                          "</SQLQueries>\r\n");
}

TEST_F(SqlFileTest, NoQueryIsAnEmptyRoot) {
    EXPECT_TRUE(ExportSQLToFile(session, Path(u"out.xml"_s)));
    EXPECT_TRUE(folder_.Read(u"out.xml"_s).endsWith("<SQLQueries/>\r\n"));
    EXPECT_TRUE(Import(folder_.Read(u"out.xml"_s)));
}

TEST_F(SqlFileTest, WhatIsWrittenIsReadTheSame) {
    Save(u"It's"_s, u"SELECT 'a'\r\n\r\n  FROM \"Profiles\" & <x>"_s);
    Save(u"Été"_s, u"one"_s);
    const QStringList before = All();
    ExportSQLToFile(session, Path(u"out.xml"_s));
    Run(u"DELETE FROM SQLQueries");
    EXPECT_TRUE(ImportSQLFromFile(session, Path(u"out.xml"_s)));
    EXPECT_EQ(All(), before);
}

TEST_F(SqlFileTest, AFileMergesByName) {
    Save(u"Mine"_s, u"stays"_s);
    Save(u"Both"_s, u"old"_s);
    EXPECT_TRUE(Import("<SQLQueries><SQLQuery><SQLName>BOTH</SQLName><SQLStatement>a\nb</SQLStatement></SQLQuery>"
                       "<Other/><SQLQuery><SQLName>New</SQLName></SQLQuery></SQLQueries>"));
    EXPECT_EQ(All(), (QStringList{u"BOTH|a\r\nb"_s, u"Mine|stays"_s, u"New|"_s}));
}

TEST_F(SqlFileTest, InvalidFilesAreTold) {
    Save(u"Mine"_s, u"stays"_s);
    Expect(u"Invalid SQL file!\r\nno element found\r\n\r\nLine 1"_s, u"Invalid file"_s, MessageIcon::Warning);
    EXPECT_FALSE(Import(""));
    for (const char *content : {"<Other/>", "<SQLQueries>\n<SQLQuery>\n</SQLQueries>", "text"}) {
        services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"Invalid file"_s);
        EXPECT_FALSE(Import(content)) << content;
    }
    EXPECT_TRUE(services.dialogs.messages[2].text.contains(u"\r\n</SQLQueries>\r\nLine 3"_s))
        << qPrintable(services.dialogs.messages[2].text);
    services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"Invalid file"_s);
    EXPECT_FALSE(ImportSQLFromFile(session, Path(u"none.xml"_s)));
    EXPECT_EQ(All(), QStringList(u"Mine|stays"_s));
}

TEST_F(SqlFileTest, AFaultTakesBackWhatCameBeforeIt) {
    Save(u"Mine"_s, u"stays"_s);
    test::FailFrom(*session.Database, u"INSERT"_s, 2);
    Expect(u"The disk is full."_s, u"ImportSQLFromFile"_s, MessageIcon::Critical);
    EXPECT_FALSE(Import("<SQLQueries><SQLQuery><SQLName>Mine</SQLName></SQLQuery><SQLQuery><SQLName>Two</SQLName>"
                        "</SQLQuery></SQLQueries>"));
    EXPECT_EQ(All(), QStringList(u"Mine|stays"_s));
}

TEST_F(SqlFileTest, NothingWithoutADatabase) {
    session.Database.reset();
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(Import("<SQLQueries/>"));
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(ExportSQLToFile(session, Path(u"out.xml"_s)));
    EXPECT_FALSE(folder_.Has(u"out.xml"_s));
}

TEST_F(SqlFileTest, ArchivesGoThroughTheTemporaryFolder) {
    Save(u"Mine"_s, u"one"_s);
    QByteArray packed;
    services.processes.behave = [&](const QStringList &run, QString *) {
        packed = test::ReadTestFile(run.last());
        folder_.Write(u"q.7z"_s, "packed");
        return std::optional(0);
    };
    EXPECT_TRUE(ExportSQLToFile(session, Path(u"q.7z"_s)));
    EXPECT_TRUE(packed.contains("<SQLName>Mine</SQLName>"));
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/q.xml"_s));
    Run(u"DELETE FROM SQLQueries");
    services.processes.behave = [&](const QStringList &, QString *) {
        QFile file(session.TempFolder + u"/unpacked/q.xml"_s);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(packed);
        return std::optional(0);
    };
    EXPECT_TRUE(ImportSQLFromFile(session, Path(u"q.7z"_s)));
    EXPECT_EQ(All(), QStringList(u"Mine|one"_s));
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/unpacked/q.xml"_s));
}

TEST_F(SqlFileTest, WhatCannotBeWrittenIsTold) {
    services.processes.behave = [](const QStringList &, QString *) { return std::optional(1); };
    for (const QString &name : {u"q.7z"_s, u"missing/q.xml"_s}) {
        Expect(u"The file cannot be written: "_s + Path(name), {}, MessageIcon::Critical);
        EXPECT_FALSE(ExportSQLToFile(session, Path(name)));
    }
}

TEST_F(SqlFileTest, CommandFilesMoveQueries) {
    Save(u"Mine"_s, u"one"_s);
    CallCommand(session, u"ExportSQLToFile "_s + Path(u"c.xml"_s));
    Run(u"DELETE FROM SQLQueries");
    CallCommand(session, u"importsqlfromfile  "_s + Path(u"c.xml"_s));
    EXPECT_EQ(All(), QStringList(u"Mine|one"_s));
}

} // namespace
} // namespace ostrand
