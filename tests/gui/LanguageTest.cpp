// The program in another language.
#include "MainWindowFixture.h"

#include "people/HeadshotImport.h"
#include "people/ui/frmComparerTools.h"
#include "queries/LanguageFile.h"

#include <QDialog>
#include <QTabBar>
#include <QTimer>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString LanguagePath(const QString &name) {
    return QString::fromUtf8(OSTRAND_SOURCE_DIR) + u"/resources/languages/%1.xml"_s.arg(name);
}

class LanguageTest : public test::MainWindowTest {
protected:
    /// Starts in a language, noting each text that has no translation.
    void StartIn(const QString &language) {
        {
            Session other(services.services);
            other.Database = sql::Database::Open(database);
            ASSERT_TRUE(ImportStringsFromFile(other, LanguagePath(language)));
            WriteDbInfo(other, u"UseUserDefinedStrings"_s, u"True"_s);
            WriteDbInfo(other, u"TraceStrings"_s, u"True"_s);
        }
        Start();
        ASSERT_TRUE(session.UseUserDefinedStrings);
        ASSERT_TRUE(session.TraceStrings);
    }
    void OpenAndClose(const char *command) {
        bool seen = false;
        QTimer::singleShot(0, main.get(), [&] {
            if (auto *window = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                seen = true;
                window->reject();
            }
        });
        Trigger(command);
        EXPECT_TRUE(seen) << command;
    }
    /// Ratings, roles, captions among credits and the names of the user's own tabs are data, and no texts of the
    /// program.
    QStringList Untranslated() {
        QStringList texts;
        sql::Recordset rows = session.Database->OpenRecordset(
            u"SELECT OriginalString FROM Translation WHERE UserString = '' AND OriginalString NOT IN (SELECT ColType "
            u"FROM Profiles) AND OriginalString NOT IN (SELECT Rating FROM Profiles WHERE Rating <> '') "
            u"AND OriginalString NOT IN (SELECT Role FROM CastCrew) "
            u"AND OriginalString NOT IN (SELECT Name FROM CastCrew)");
        for (; !rows.Eof(); rows.MoveNext()) {
            texts += rows.Text(0);
        }
        return texts;
    }
    QString FirstTab() { return Control<QTabBar>("tabColList")->tabText(0); }
};

TEST_F(LanguageTest, EveryTextThatIsMetHasATranslation) {
    for (const QString &language : {u"German"_s, u"French"_s, u"Spanish"_s, u"Dutch"_s}) {
        SCOPED_TRACE(qPrintable(language));
        StartIn(language);
        for (const char *command : {"mSQLQuery", "mDropBox", "mShowLoanDue", "mTVShows", "mMovies", "mShowFilter",
                                    "mBoxsetView", "mOrderByGenre", "mOrderByRating"}) {
            Trigger(command);
        }
        for (const char *command :
             {"mSettings", "mAbout", "mSwitchDatabase", "mEditCrossLinks", "mHeadshotImport", "mManageHeadshots"}) {
            OpenAndClose(command);
        }
        {
            HeadshotImport import(session);
            const frmComparerTools tools(session, import);
            EXPECT_NE(tools.windowTitle(), u"Tools"_s);
        }
        EXPECT_EQ(Untranslated().join(u'\n').toStdString(), std::string());
        TearDown();
        ASSERT_TRUE(QFile::remove(database));
        SetUp();
    }
}

TEST_F(LanguageTest, OneLanguageIsLeftForAnother) {
    StartIn(u"French"_s);
    EXPECT_EQ(Action(u"mFile"_s)->text().remove(u'&'), u"Fichier"_s);
    EXPECT_EQ(FirstTab(), u"Tous"_s);
    ASSERT_TRUE(ImportStringsFromFile(session, LanguagePath(u"German"_s)));
    EXPECT_EQ(Action(u"mFile"_s)->text().remove(u'&'), u"Datei"_s);
    EXPECT_EQ(FirstTab(), u"Alle"_s);
}

} // namespace
} // namespace ostrand
