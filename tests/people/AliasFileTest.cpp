// Cross-links in files of each form: what is written, what is read, what is refused.
#include "people/AliasFile.h"

#include "people/CrossLinks.h"
#include "shell/CommandFile.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class AliasFile : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.AppVersion = u"1.2.3"_s;
        Log(kTraceInfo);
    }
    QStringList Links() {
        return Rows(u"SELECT AliasName, CommonName, Comment, BirthYear FROM Alias ORDER BY AliasName, BirthYear");
    }
    void Fill() {
        LinkAlias(session, u"Ann Lee"_s, u"A. Lee"_s, 0, true, u"it's \"so\" & <so>"_s);
        LinkAlias(session, u"Ann Lee"_s, u"Anny Lee"_s, 0, true, {});
        LinkAlias(session, u"Ann Lee"_s, u"A. Lee"_s, 1950, true, {});
        LinkAlias(session, u"Óscar O'Hara"_s, u"Oscar O'Hara"_s, 0, true, {});
    }
    void Import(const QString &name, const QByteArray &content, bool messages = false) {
        ImportAliasFromFile(session, folder_.Write(name, content), messages);
    }
    /// An archiver that copies.
    void PackByCopying() {
        services.processes.behave = [this](const QStringList &run, QString *) -> std::optional<int> {
            const QString line = run.join(u' ');
            const bool packs = line.contains(u" a "_s);
            const QString xml = QDir(session.TempFolder).filePath(u"Links.xml"_s);
            if (packs) {
                QFile::copy(xml, QDir(session.TempFolder).filePath(u"Links.7z"_s));
            } else {
                QFile::copy(Path(u"Links.7z"_s), QDir(session.TempFolder).filePath(u"unpacked/Links.xml"_s));
            }
            return 0;
        };
    }
};

} // namespace

TEST_F(AliasFile, TextHasALineOfFourFieldsForEachLink) {
    Fill();
    EXPECT_TRUE(ExportAliasToFile(session, Path(u"Alias.cfg"_s)));
    QStringList lines = QString::fromUtf8(folder_.Read(u"Alias.cfg"_s)).split(u"\r\n"_s);
    lines.sort();
    EXPECT_EQ(lines, (QStringList{{},
                                  u"A. Lee;Ann Lee;;1950"_s,
                                  u"A. Lee;Ann Lee;it's \"so\" & <so>;0"_s,
                                  u"Anny Lee;Ann Lee;;0"_s,
                                  u"Oscar O'Hara;Óscar O'Hara;;0"_s}));
}

TEST_F(AliasFile, ACommentOfSeveralLinesStaysOneLineOfText) {
    LinkAlias(session, u"Ann"_s, u"Anny"_s, 0, true, u"first\r\nsecond;third"_s);
    ExportAliasToFile(session, Path(u"Alias.cfg"_s));
    EXPECT_EQ(folder_.Read(u"Alias.cfg"_s), "Anny;Ann;first second;third;0\r\n");
}

TEST_F(AliasFile, TextIsReadLineByLine) {
    const struct {
        const char *name;
        QByteArray content;
        QStringList links;
    } cases[] = {
        {"all fields", "Anny;Ann;a friend;1950\r\n", {u"Anny|Ann|a friend|1950"_s}},
        {"no comment and year", "Anny;Ann", {u"Anny|Ann||0"_s}},
        {"no year", "Anny;Ann;x\n", {u"Anny|Ann|x|0"_s}},
        {"no alias or common name", ";Ann\nAnny;\nBo;Bob\n", {u"Bo|Bob||0"_s}},
        {"one field stops", "Anny;Ann\nnothing\nBo;Bob\n", {u"Anny|Ann||0"_s}},
        {"an empty line stops", "Anny;Ann\n\nBo;Bob\n", {u"Anny|Ann||0"_s}},
        {"more fields", "Anny;Ann;x;1;more\n", {u"Anny|Ann|x|1"_s}},
        {"a semicolon shifts the year", "Anny;Ann;x;y;1950\n", {u"Anny|Ann|x|0"_s}},
        {"another code page", "\xD3scar;Oscar\n", {u"Óscar|Oscar||0"_s}},
        {"a byte order mark",
         "\xEF\xBB\xBF"
         "Anny;Ann\n",
         {u"Anny|Ann||0"_s}},
        {"empty", "", {}},
    };
    for (const auto &row : cases) {
        Run(u"DELETE FROM Alias");
        Import(u"links.cfg"_s, row.content);
        EXPECT_EQ(Links(), row.links) << row.name;
    }
}

TEST_F(AliasFile, XmlGroupsByCommonNameAndYear) {
    Fill();
    EXPECT_TRUE(ExportAliasToFile(session, Path(u"Alias.XML"_s)));
    EXPECT_EQ(QString::fromUtf8(folder_.Read(u"Alias.XML"_s)),
              u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
              "<!-- Ostrand Version 1.2.3 Alias Export -->\r\n"
              "<!-- Exported: 2024-05-17 10:20:30 -->\r\n"
              "<Aliases>\r\n"
              "  <Common Name=\"Ann Lee\">\r\n"
              "    <Alias Name=\"A. Lee\" Comment=\"it's &quot;so&quot; &amp; &lt;so>\"/>\r\n"
              "    <Alias Name=\"Anny Lee\"/>\r\n"
              "  </Common>\r\n"
              "  <Common Name=\"Ann Lee\" BirthYear=\"1950\">\r\n"
              "    <Alias Name=\"A. Lee\"/>\r\n"
              "  </Common>\r\n"
              "  <Common Name=\"Óscar O'Hara\">\r\n"
              "    <Alias Name=\"Oscar O'Hara\"/>\r\n"
              "  </Common>\r\n"
              "</Aliases>\r\n"_s);
}

TEST_F(AliasFile, AnEmptyTableIsAFileWithoutLinks) {
    EXPECT_TRUE(ExportAliasToFile(session, Path(u"a.xml"_s)));
    EXPECT_TRUE(ExportAliasToFile(session, Path(u"a.cfg"_s)));
    EXPECT_EQ(folder_.Read(u"a.cfg"_s), "");
    ImportAliasFromFile(session, Path(u"a.xml"_s), true);
    EXPECT_EQ(Links(), QStringList());
}

TEST_F(AliasFile, WhatWasWrittenIsReadAgain) {
    PackByCopying();
    for (const QString &name : {u"Links.cfg"_s, u"Links.xml"_s, u"Links.7z"_s, u"Links.txt"_s}) {
        Run(u"DELETE FROM Alias");
        Fill();
        const QStringList links = Links();
        EXPECT_TRUE(ExportAliasToFile(session, Path(name))) << qPrintable(name);
        ImportAliasFromFile(session, Path(name), true);
        EXPECT_EQ(Links(), links) << "all is known already, in " << qPrintable(name);
        Run(u"DELETE FROM Alias");
        ImportAliasFromFile(session, Path(name), false);
        EXPECT_EQ(Links(), links) << qPrintable(name);
    }
    EXPECT_FALSE(QFile::exists(QDir(session.TempFolder).filePath(u"Links.xml"_s)));
}

TEST_F(AliasFile, XmlMayLackAllThatIsOptional) {
    Import(u"a.xml"_s, "<Aliases><Common><Alias Name='x'/></Common><Common Name='Ann' BirthYear='old'><Alias/>"
                       "<Alias Name='Anny'/></Common><Other Name='Bo'><Alias Name='Bob'/></Other></Aliases>");
    EXPECT_EQ(Links(), QStringList{u"Anny|Ann||0"_s});
}

TEST_F(AliasFile, AFaultyXmlFileIsToldAndNothingRead) {
    const QString fault = u"Invalid Alias XML file!\nThe file holds no element Aliases.\n<Other>\nLine 1"_s;
    Expect(fault, u"Invalid file"_s, MessageIcon::Warning);
    Import(u"a.xml"_s, "<Other><Common Name='Ann'><Alias Name='Anny'/></Common></Other>");
    Expect({}, u"Invalid file"_s, MessageIcon::Warning);
    Import(u"a.xml"_s, "<Aliases><Common Name='Ann'>\n<Alias Name='Anny'/></Aliases>");
    const QStringList lines = services.dialogs.messages.back().text.split(u'\n');
    EXPECT_EQ(lines.first(), u"Invalid Alias XML file!"_s);
    EXPECT_FALSE(lines.value(1).isEmpty());
    EXPECT_TRUE(lines.value(2).contains(u"Anny"_s)) << qPrintable(lines.value(2));
    EXPECT_EQ(lines.value(3), u"Line 2"_s);
    Expect({}, u"Invalid file"_s, MessageIcon::Warning);
    Import(u"a.7z"_s, "no archive");
    EXPECT_EQ(Links(), QStringList());
}

TEST_F(AliasFile, RefusedLinksAreTracedAndToldOnlyWhenAsked) {
    LinkAlias(session, u"Zoe"_s, u"Yan"_s, 0, true, {});
    const QByteArray links = "Yan;Ann\nBo;Bob\n";
    Import(u"a.cfg"_s, links);
    EXPECT_EQ(Links(), (QStringList{u"Bo|Bob||0"_s, u"Yan|Zoe||0"_s}));
    Expect(u"Duplicate Link Entry!\nYan already linked to Zoe! Link to Ann not imported!"_s, {}, MessageIcon::Warning);
    Import(u"a.cfg"_s, links, true);
    EXPECT_EQ(LogLines().filter(u"Alias Yan is already linked"_s).size(), 2);
}

TEST_F(AliasFile, CirclesAndChainsOfAFileAreResolved) {
    Import(u"a.cfg"_s, "Bo;Ann\nAnn;Bo\nCy;Bo\nAnn;Cy\nBo;Cy\n");
    EXPECT_EQ(Rows(u"SELECT a.AliasName FROM Alias a, Alias b WHERE a.AliasName = b.CommonName"), QStringList());
    EXPECT_EQ(Links(), (QStringList{u"Bo|Ann||0"_s, u"Cy|Ann||0"_s}));
}

TEST_F(AliasFile, ADatabaseThatIsLeftMeanwhileEndsTheImport) {
    QByteArray lines;
    QByteArray aliases;
    for (int i = 0; i < 200; ++i) {
        const QByteArray name = "Bo" + QByteArray::number(i);
        lines += name + ";Bob\n";
        aliases += "<Alias Name='" + name + "'/>";
    }
    for (const auto &[name, content] :
         {std::pair(u"a.cfg"_s, lines),
          std::pair(u"a.xml"_s, "<Aliases><Common Name='Bob'>" + aliases + "</Common></Aliases>")}) {
        Run(u"DELETE FROM Alias");
        std::unique_ptr<sql::Database> left;
        services.pump.At(services.pump.Turns() + 2, [&] { left = std::move(session.Database); });
        Import(name, content);
        EXPECT_FALSE(session.Database);
        ASSERT_TRUE(left);
        session.Database = std::move(left);
        EXPECT_EQ(Links().size(), 100) << qPrintable(name);
    }
}

TEST_F(AliasFile, WithoutADatabaseNothingHappens) {
    session.Database.reset();
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    Import(u"a.cfg"_s, "Bo;Bob\n");
    Expect(u"No open database!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(ExportAliasToFile(session, Path(u"b.cfg"_s)));
    EXPECT_FALSE(folder_.Has(u"b.cfg"_s));
}

TEST_F(AliasFile, AFileThatDoesNotExistIsPassedOver) {
    for (const QString &name : {u"gone.cfg"_s, u"gone.xml"_s, u"gone.7z"_s}) {
        ImportAliasFromFile(session, Path(name), true);
    }
    EXPECT_EQ(services.dialogs.messages.size(), 0u);
}

TEST_F(AliasFile, AFileThatCannotBeWrittenIsTold) {
    Fill();
    for (const QString &name : {u"gone/a.cfg"_s, u"gone/a.xml"_s}) {
        Expect(u"The file cannot be written: "_s + Path(name), {}, MessageIcon::Critical);
        EXPECT_FALSE(ExportAliasToFile(session, Path(name)));
    }
}

TEST_F(AliasFile, AnArchiverThatFailsLeavesTheOldArchive) {
    Fill();
    const QString path = folder_.Write(u"Links.7z"_s, "old");
    services.processes.behave = [](const QStringList &, QString *) -> std::optional<int> { return 2; };
    Expect(u"The file cannot be written: "_s + path, {}, MessageIcon::Critical);
    EXPECT_FALSE(ExportAliasToFile(session, path));
    EXPECT_EQ(folder_.Read(u"Links.7z"_s), "old");
}

TEST_F(AliasFile, TheMenuAsksForFiles) {
    Fill();
    services.dialogs.ExpectSaveFile({});
    ChooseAliasFileToExport(session);
    services.dialogs.ExpectSaveFile(Path(u"a.cfg"_s), u"Please enter the name for the Alias file for export"_s);
    Expect(u"Export to alias file completed"_s, u"Finished"_s, MessageIcon::None);
    ChooseAliasFileToExport(session);
    const FileRequest save = services.dialogs.file_requests.back();
    EXPECT_TRUE(save.initial.endsWith(u"Alias.7z"_s));
    EXPECT_EQ(save.filters,
              (QStringList{u"Compressed Alias XML File|*.7z"_s, u"Alias XML File|*.xml"_s, u"Alias File|*.cfg"_s}));
    services.dialogs.ExpectOpenFile({});
    ChooseAliasFileToImport(session);
    services.dialogs.ExpectOpenFile(Path(u"a.cfg"_s), u"Please select the Alias file for import"_s);
    Expect(u"Import finished."_s, u"Done"_s, MessageIcon::None);
    ChooseAliasFileToImport(session);
    EXPECT_EQ(services.dialogs.file_requests.back().filters, QStringList(u"Alias File|*.cfg;*.7z;*.xml"_s));
}

TEST_F(AliasFile, CommandFilesWriteAndRead) {
    Fill();
    const QStringList links = Links();
    CallCommand(session, u"exportaliastofile "_s + Path(u"a b.xml"_s));
    Run(u"DELETE FROM Alias");
    CallCommand(session, u"ImportAliasFromFile "_s + Path(u"a b.xml"_s));
    EXPECT_EQ(Links(), links);
}

} // namespace ostrand
