// The program in another language.
#include "MainWindowFixture.h"

#include "browser/Appearances.h"
#include "browser/CollectionTabs.h"
#include "browser/CreditCommands.h"
#include "people/HeadshotImport.h"
#include "people/ui/frmComparerTools.h"
#include "queries/LanguageFile.h"
#include "queries/ui/frmSQLQuery.h"
#include "shell/SettingsForm.h"
#include "shell/ui/frmListView.h"
#include "shell/ui/frmSettings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMap>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTimer>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString LanguagePath(const QString &name) {
    return QString::fromUtf8(OSTRAND_SOURCE_DIR) + u"/resources/languages/%1.xml"_s.arg(name);
}

/// A text without what a control adds: keys, a colon, a shortcut.
QString Bare(QString text) {
    static const QRegularExpression added(u"( \\([A-Z][^ ]*\\)|\t.*|:)$"_s);
    return text.remove(u'&').remove(added);
}

QStringList Headings(const QAbstractItemView &view) {
    QStringList texts;
    for (int column = 0; view.model() != nullptr && column < view.model()->columnCount(); ++column) {
        texts += view.model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

/// All texts of a window and of those that belong to it, as far as they are no data.
QStringList TextsOf(const QWidget &window) {
    QStringList texts;
    for (const QAction *action : window.findChildren<QAction *>()) {
        texts += {action->text(), action->toolTip(), action->statusTip()};
    }
    QList<const QWidget *> controls = {&window};
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        controls += control;
    }
    for (const QWidget *control : controls) {
        texts += {control->windowTitle(), control->toolTip(), control->accessibleName()};
        if (const auto *label = qobject_cast<const QLabel *>(control)) {
            texts += label->isVisible() ? label->text() : QString(); // a panel fills itself when it is turned to
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(control)) {
            texts += button->text();
        } else if (const auto *box = qobject_cast<const QGroupBox *>(control)) {
            texts += box->title();
        } else if (const auto *combo = qobject_cast<const QComboBox *>(control)) {
            for (int i = 0; i < combo->count(); ++i) {
                texts += combo->itemText(i);
            }
            texts += combo->placeholderText();
        } else if (const auto *tabs = qobject_cast<const QTabBar *>(control)) {
            for (int i = 0; i < tabs->count(); ++i) {
                texts += tabs->tabText(i);
            }
        } else if (const auto *view = qobject_cast<const QAbstractItemView *>(control)) {
            texts += Headings(*view);
        } else if (const auto *text = qobject_cast<const QPlainTextEdit *>(control)) {
            texts += text->toPlainText().split(u'\n');
        }
    }
    return texts;
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
    /// Ratings, roles, captions among credits, studios, formats and the names of the user's own tabs are data, and no
    /// texts of the program.
    QStringList Untranslated() {
        QStringList texts;
        sql::Recordset rows = session.Database->OpenRecordset(
            u"SELECT OriginalString FROM Translation WHERE UserString = '' AND OriginalString NOT IN (SELECT ColType "
            u"FROM Profiles) AND OriginalString NOT IN (SELECT Rating FROM Profiles WHERE Rating <> '') "
            u"AND OriginalString NOT IN (SELECT Role FROM CastCrew) "
            u"AND OriginalString NOT IN (SELECT Name FROM CastCrew) AND OriginalString NOT IN (SELECT Studio FROM "
            u"Studios) AND OriginalString NOT IN (SELECT Medium FROM Profiles) AND OriginalString NOT IN (SELECT "
            u"Compression FROM AudioFormats) AND OriginalString NOT IN (SELECT Channels FROM AudioFormats)");
        for (; !rows.Eof(); rows.MoveNext()) {
            texts += rows.Text(0);
        }
        return texts;
    }
    /// Switches the translation on or off as the settings do.
    void SwitchTranslation(bool on) {
        SettingsForm form;
        form.Load(session);
        form.SetChecked(u"chkEnableTranslation"_s, on);
        ASSERT_TRUE(form.Store(session));
        QApplication::processEvents();
    }
    /// What is shown of the texts that are not the same in both languages: in English, or in the other one.
    QStringList Remaining(bool english) {
        QSet<QString> originals;
        QSet<QString> translations;
        sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM Translation");
        for (; !rows.Eof(); rows.MoveNext()) {
            originals += Bare(rows.Text(u"OriginalString"));
            translations += Bare(rows.Text(u"UserString"));
        }
        const QSet<QString> wanted = english ? originals - translations : translations - originals;
        QStringList found;
        for (const QString &text : TextsOf(*main)) {
            if (wanted.contains(Bare(text))) {
                found += text;
            }
        }
        found.removeDuplicates();
        return found;
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
        ChooseFilter(browser, Translate(session, u"Filter Profiles by Tags"_s));
        for (const char *command : {"mSettings", "mAbout", "mSwitchDatabase", "mExportHTMLCollection",
                                    "mEditCrossLinks", "mManageHeadshots", "mHeadshotImport"}) {
            OpenAndClose(command);
        }
        HeadshotImport import(session);
        const frmComparerTools tools(session, import);
        EXPECT_NE(tools.windowTitle(), u"Tools"_s);
        Trigger("mMovies");
        for (int tab = 0; tab < 3; ++tab) {
            Control<QTabBar>("tabMain")->setCurrentIndex(tab);
            ClickRow(tab);
        }
        EXPECT_EQ(Untranslated().join(u'\n').toStdString(), std::string());
        TearDown();
        ASSERT_TRUE(QFile::remove(database));
        SetUp();
    }
}

TEST_F(LanguageTest, OpenWindowsChangeTheirLanguage) {
    Start();
    ASSERT_TRUE(ImportStringsFromFile(session, LanguagePath(u"German"_s)));
    for (const char *command : {"mSQLQuery", "mDropBox", "mShowCover", "mShowFilter"}) {
        Trigger(command);
    }
    ShowAppearances(session, u"Nobody"_s, 0);
    auto *window = main->findChild<frmSQLQuery *>();
    window->findChild<QAbstractButton *>(u"cbListTables"_s)->click();
    EXPECT_EQ(Remaining(false), QStringList()) << "no German yet";
    ASSERT_GT(Remaining(true).size(), 200) << "the texts are found at all";

    SwitchTranslation(true);
    EXPECT_EQ(Remaining(true).join(u'\n').toStdString(), std::string());
    EXPECT_GT(Remaining(false).size(), 200);
    EXPECT_EQ(window->windowTitle(), u"SQL-Abfrage"_s);
    EXPECT_EQ(main->findChild<frmListView *>()->windowTitle(), u"Nobody (0 Einträge)"_s);

    SwitchTranslation(false);
    EXPECT_EQ(Remaining(false).join(u'\n').toStdString(), std::string());

    ClickRow(0);
    for (const int tab : {1, 2}) {
        Control<QTabBar>("tabMain")->setCurrentIndex(tab);
        for (const bool on : {true, false}) {
            SwitchTranslation(on);
            EXPECT_EQ(Remaining(on).join(u'\n').toStdString(), std::string()) << tab << on;
        }
    }
    SwitchTranslation(true);
    ASSERT_TRUE(ImportStringsFromFile(session, LanguagePath(u"Dutch"_s)));
    EXPECT_EQ(Remaining(true).join(u'\n').toStdString(), std::string()) << "from one language to another";
}

TEST_F(LanguageTest, WhatPanelsTellOfAPersonChangesToo) {
    Start(
        {u"INSERT INTO Profiles (ProfileID, Title, ColType) VALUES ('P9', 'Zulu', 'Owned')"_s,
         u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, IsVoice, BirthYear) VALUES ('P9', 'Ida Roe', "
         u"'Owl', 1, True, True, 0)"_s,
         u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, IsVoice, BirthYear) VALUES ('P9', 'Ada Roe', "
         u"'Cat', 2, True, False, 0)"_s});
    ASSERT_TRUE(ImportStringsFromFile(session, LanguagePath(u"German"_s)));
    ClickRow(RowOf(u"Zulu"_s));
    UpdateCastInfo(browser, u"Ida Roe"_s, u"0"_s);
    const auto role = [](const ListTable &list) { return list.Rows().at(0).texts.at(1); };
    EXPECT_EQ(role(browser.appearances.listAppearences), u"Owl (voice)"_s);
    SwitchTranslation(true);
    EXPECT_EQ(role(browser.appearances.listAppearences), u"Owl (Stimme)"_s);
    EXPECT_EQ(browser.appearances.labelAwards, u"Auszeichnungen für Ida Roe"_s);
    const auto *cast = Control<QAbstractItemView>("ListCast");
    EXPECT_EQ(cast->model()->index(0, 1).data().toString(), u"Owl (Stimme)"_s);
    ASSERT_TRUE(ImportStringsFromFile(session, LanguagePath(u"Dutch"_s)));
    EXPECT_EQ(role(browser.appearances.listAppearences), u"Owl (stem)"_s);
    EXPECT_EQ(cast->model()->index(0, 1).data().toString(), u"Owl (stem)"_s);
    EXPECT_EQ(browser.appearances.labelAwards, u"Prijzen voor Ida Roe"_s);
}

TEST_F(LanguageTest, TheSettingsNameTheTypesAsTheTabsDo) {
    StartIn(u"German"_s);
    const frmSettings settings(session);
    const auto *types = settings.findChild<QListWidget *>(u"listIncludeInOwned"_s);
    EXPECT_FALSE(types->findItems(u"Bestellt"_s, Qt::MatchExactly).isEmpty());
    EXPECT_TRUE(types->findItems(u"Ordered"_s, Qt::MatchExactly).isEmpty());
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
