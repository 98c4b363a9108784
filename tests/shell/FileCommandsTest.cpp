#include "shell/FileCommands.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FileCommandsTest : public CollectionTest {
protected:
    void AddInfo() {
        Create();
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_1', 'A')");
        Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_1', 'Shelf', '7')");
    }
};

TEST_F(FileCommandsTest, ACommandFileIsChosenAndRun) {
    const QString created = Path(u"made.mdb"_s);
    const QString file = folder_.Write(u"go.txt"_s, (u"createdatabase "_s + created).toUtf8());
    services.dialogs.ExpectOpenFile(file, u"Please select a command file"_s);
    ChooseCommandFile(session);
    EXPECT_TRUE(QFile::exists(created));
    EXPECT_EQ(services.dialogs.file_requests.at(0).initial, u"command.txt"_s);
    EXPECT_EQ(services.dialogs.file_requests.at(0).filters.join(u'+').section(u'|', 1), u"*.*"_s);
}

TEST_F(FileCommandsTest, CancellingDoesNothing) {
    AddInfo();
    services.dialogs.ExpectOpenFile({});
    services.dialogs.ExpectOpenFile({});
    services.dialogs.ExpectSaveFile({});
    ChooseCommandFile(session);
    ChooseAdditionalInfosToImport(session);
    ChooseAdditionalInfosToExport(session);
    EXPECT_EQ(Rows(u"SELECT InfoValue FROM AdditionalInfo"), QStringList(u"7"_s));
}

TEST_F(FileCommandsTest, AdditionalInfosGoOutAndComeBack) {
    AddInfo();
    const QString file = Path(u"infos.xml"_s);
    services.dialogs.ExpectSaveFile(file);
    ChooseAdditionalInfosToExport(session);
    Run(u"DELETE FROM AdditionalInfo");
    services.dialogs.ExpectOpenFile(file);
    ChooseAdditionalInfosToImport(session);
    EXPECT_EQ(Rows(u"SELECT ProfileID, InfoName, InfoValue FROM AdditionalInfo"), QStringList(u"Key_1|Shelf|7"_s));
}

} // namespace
} // namespace ostrand
