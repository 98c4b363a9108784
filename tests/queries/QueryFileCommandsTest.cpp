#include "queries/QueryFileCommands.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class QueryFileCommandsTest : public CollectionTest {
protected:
    void SetUp() override { Create(); }
    const FileRequest &LastRequest() const { return services.dialogs.file_requests.back(); }
};

TEST_F(QueryFileCommandsTest, QueriesGoOutAndComeBack) {
    Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Mine', 'one')");
    services.dialogs.ExpectSaveFile(Path(u"q.xml"_s), u"Please enter the name for the SQL file for export"_s);
    Expect(u"Export to SQL file completed"_s, u"Finished"_s, MessageIcon::Information);
    ChooseSQLToExport(session);
    EXPECT_EQ(LastRequest().filters, (QStringList{u"Compressed SQL XML File|*.7z"_s, u"SQL XML File|*.xml"_s}));
    EXPECT_TRUE(LastRequest().initial.endsWith(u"/SQLQueries.7z"_s));
    Run(u"DELETE FROM SQLQueries");
    services.dialogs.ExpectOpenFile(Path(u"q.xml"_s), u"Please select the SQL file for import"_s);
    Expect(u"Import finished."_s, u"Done"_s, MessageIcon::Information);
    ChooseSQLToImport(session);
    EXPECT_EQ(LastRequest().filters, QStringList(u"SQL File|*.7z;*.xml"_s));
    EXPECT_EQ(Rows(u"SELECT Name FROM SQLQueries"), QStringList(u"Mine"_s));
}

TEST_F(QueryFileCommandsTest, TranslationsGoOutAndComeBack) {
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Yes', 'Ja')");
    services.dialogs.ExpectSaveFile(Path(u"l.cfg"_s), u"Please enter the name for the Language file for export"_s);
    Expect(u"Export to language file completed"_s, u"Finished"_s, MessageIcon::Information);
    ChooseStringsToExport(session);
    EXPECT_EQ(LastRequest().filters, (QStringList{u"Compressed Language XML File|*.7z"_s, u"Language XML File|*.xml"_s,
                                                  u"Language File|*.cfg"_s}));
    Run(u"DELETE FROM Translation");
    services.dialogs.ExpectOpenFile(Path(u"l.cfg"_s), u"Please select the Language file for import"_s);
    Expect(u"Import finished."_s, u"Done"_s, MessageIcon::Information);
    ChooseStringsToImport(session);
    EXPECT_EQ(LastRequest().filters, QStringList(u"Language File|*.cfg;*.7z;*.xml"_s));
    EXPECT_EQ(LastRequest().initial, session.DataFolder) << "where no languages are installed";
    EXPECT_EQ(Rows(u"SELECT UserString FROM Translation"), QStringList(u"Ja"_s));
}

TEST_F(QueryFileCommandsTest, TheInstalledLanguagesAreOffered) {
    const QString languages = QDir(services.folders.Program()).filePath(u"languages"_s);
    QDir().mkpath(languages);
    services.dialogs.ExpectOpenFile({});
    ChooseStringsToImport(session);
    EXPECT_EQ(LastRequest().initial, languages);
}

TEST_F(QueryFileCommandsTest, CancellingDoesNothingAndAFaultIsNoSuccess) {
    for (auto *choose : {ChooseSQLToImport, ChooseStringsToImport}) {
        services.dialogs.ExpectOpenFile({});
        choose(session);
        services.dialogs.ExpectOpenFile(folder_.Write(u"bad.xml"_s, "<Other/>"));
        services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"Invalid file"_s);
        choose(session);
    }
    for (auto *choose : {ChooseSQLToExport, ChooseStringsToExport}) {
        services.dialogs.ExpectSaveFile({});
        choose(session);
        services.dialogs.ExpectSaveFile(Path(u"missing/x.xml"_s));
        services.dialogs.ExpectMessage({}, MessageIcon::Critical);
        choose(session);
    }
}

} // namespace
} // namespace ostrand
