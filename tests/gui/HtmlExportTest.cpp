// The window of the offline site, used with mouse and keys.
#include "html_export/ui/frmHTMLExport.h"

#include "../html_export/SiteFixture.h"
#include "FindControl.h"
#include "MainWindowFixture.h"
#include "shell/ui/ProgressWindow.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class HtmlExportWindow : public SiteTest {
protected:
    void SetUp() override {
        SiteTest::SetUp();
        session.CurrentSkin = u"Blue"_s;
        Skin(u"Red"_s, "<html><DP NAME=\"TITLE\"><DP Name=\"Episodes\"></html>");
        Template("index.html", "entry");
        AddOwned(u"Key_1"_s, u"One"_s);
        AddProfile(u"Key_2"_s, u"Two"_s, u", ColType, Medium"_s, u", 'Sold', 'Blu-ray'"_s);
        AddProfile(u"Key_3"_s, u"Three"_s, u", ColType, Medium"_s, u", 'WishList', 'DVD'"_s);
    }
    void Show() {
        window = std::make_unique<frmHTMLExport>(session, SiteHost());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    template <typename T>
    T *Find(const char *name) const {
        return test::FindControl<T>(*window, name);
    }
    QPushButton *Button(const char *name) const { return Find<QPushButton>(name); }
    QComboBox *Combo(const char *name) const { return Find<QComboBox>(name); }
    QCheckBox *Check(const char *name) const { return Find<QCheckBox>(name); }
    QRadioButton *Radio(const char *name) const { return Find<QRadioButton>(name); }
    QListView *Types() const { return Find<QListView>("listColTypes"); }
    QTreeView *Media() const { return Find<QTreeView>("listMediaTypes"); }
    void ShowPage(int page) { Find<QTabWidget>("tabHTMLExport")->setCurrentIndex(page); }
    void Click(const char *name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    QString TypesText() const {
        QString text;
        for (int row = 0; row < Types()->model()->rowCount(); ++row) {
            const QModelIndex index = Types()->model()->index(row, 0);
            text += (index.data(Qt::CheckStateRole) == Qt::Checked ? u'+' : u'-') + index.data().toString() + u' ';
        }
        return text.trimmed();
    }
    QString MediaText() const {
        QStringList rows;
        for (int row = 0; row < Media()->model()->rowCount(); ++row) {
            const QModelIndex index = Media()->model()->index(row, 0);
            rows += index.data().toString() + u'=' + index.siblingAtColumn(1).data().toString();
        }
        return rows.join(u'|');
    }
    /// Chooses an entry as a user does who goes down from the first.
    void Choose(const char *name, const QString &entry) {
        QComboBox *combo = Combo(name);
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_Home);
        for (int i = combo->findText(entry); i > 0; --i) {
            QTest::keyClick(combo, Qt::Key_Down);
        }
        EXPECT_EQ(combo->currentText(), entry);
    }
    void DoubleClickMedium(int row) {
        const QPoint place = Centre(Media(), row);
        QTest::mouseClick(Media()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(Media()->viewport(), Qt::LeftButton, {}, place);
    }
    static QStringList Entries(const QComboBox *combo) {
        QStringList entries;
        for (int i = 0; i < combo->count(); ++i) {
            entries += combo->itemText(i);
        }
        return entries;
    }
    static QPoint Centre(QAbstractItemView *view, int row) {
        view->scrollTo(view->model()->index(row, 0));
        return view->visualRect(view->model()->index(row, 0)).center();
    }

    std::unique_ptr<frmHTMLExport> window;
};

constexpr const char *kControls[] = {
    "textExportPath",
    "cbSelectExportPath",
    "comboSkin",
    "checkGenerateEpisodes",
    "comboSkinEpisode",
    "chkGenerateCrosslinks",
    "opUseLocalCoverScans",
    "opUseMyProfilerScans",
    "opUseCoverScansLocally",
    "listMediaTypes",
    "comboFilter",
    "listColTypes",
    "cbColTypeUp",
    "cbColTypeDown",
    "opUseCollectionType",
    "opUseMediaType",
    "opSortBySortTitle",
    "opSortByColNo",
    "opUseTitle",
    "opUseOriginalTitle",
    "checkUseCustomTitle",
    "checkAppendEdition",
    "cbSaveSettings",
    "cbStart",
    "cbCancel",
};

} // namespace

TEST_F(HtmlExportWindow, HasEachControlOnceWithNameAndToolTip) {
    Show();
    EXPECT_EQ(window->windowTitle(), u"HTML Export"_s);
    for (const char *name : kControls) {
        const auto found = window->findChildren<QWidget *>(QLatin1String(name));
        ASSERT_EQ(found.size(), 1) << name;
        EXPECT_FALSE(found.first()->accessibleName().isEmpty()) << name;
        EXPECT_FALSE(found.first()->toolTip().isEmpty()) << name;
        EXPECT_NE(found.first()->focusPolicy(), Qt::NoFocus) << name;
    }
    EXPECT_TRUE(Button("cbStart")->isDefault());
    EXPECT_TRUE(Find<QLineEdit>("textExportPath")->hasFocus());
}

TEST_F(HtmlExportWindow, TheTabKeyGoesThroughTheControlsInTheirOrder) {
    Show();
    QStringList seen;
    for (int page = 0; page < 2; ++page) {
        ShowPage(page);
        QWidget *const first = Find<QLineEdit>("textExportPath");
        first->setFocus();
        do {
            if (const QString name = window->focusWidget()->objectName(); !seen.contains(name)) {
                seen += name;
            }
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        } while (window->focusWidget() != first);
    }
    QStringList expected;
    for (const char *name : kControls) {
        // Of radio buttons the chosen one; what cannot be used is passed over.
        const auto *radio = window->findChild<QRadioButton *>(QLatin1String(name));
        const auto *control = window->findChild<QWidget *>(QLatin1String(name));
        if (control->isEnabled() && (!radio || radio->isChecked())) {
            expected += QLatin1String(name);
        }
    }
    QStringList ends{u"cbSaveSettings"_s, u"cbStart"_s, u"cbCancel"_s};
    for (const QString &end : ends) {
        EXPECT_TRUE(seen.removeOne(end)) << qPrintable(end);
        expected.removeOne(end);
    }
    EXPECT_TRUE(seen.removeOne(u"qt_tabwidget_tabbar"_s));
    EXPECT_EQ(seen, expected);
}

TEST_F(HtmlExportWindow, EachControlOfAPageHasItsKey) {
    Show();
    auto *tabs = Find<QTabWidget>("tabHTMLExport");
    for (int page = 0; page < tabs->count(); ++page) {
        QStringList keys;
        const auto take = [&](const QString &text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            EXPECT_FALSE(key.isEmpty()) << qPrintable(text);
            EXPECT_FALSE(keys.contains(key)) << qPrintable(text);
            keys << key;
        };
        ShowPage(page);
        for (int i = 0; i < tabs->count(); ++i) {
            take(tabs->tabText(i));
        }
        for (const auto *button : window->findChildren<QAbstractButton *>()) {
            // These have keys of their own: Tab and Space, Alt+Up, Alt+Down, Esc.
            const QStringList others{u"cbSelectExportPath"_s, u"cbColTypeUp"_s, u"cbColTypeDown"_s, u"cbCancel"_s};
            if (button->isVisible() && !button->text().isEmpty() && !others.contains(button->objectName())) {
                take(button->text());
            }
        }
        for (const auto *box : window->findChildren<QGroupBox *>()) {
            if (box->isVisible() && box->findChild<QTreeView *>()) {
                take(box->title());
            }
        }
        for (const auto *label : window->findChildren<QLabel *>()) {
            if (label->isVisible()) {
                take(label->text());
                EXPECT_TRUE(label->buddy()) << qPrintable(label->text());
            }
        }
    }
}

TEST_F(HtmlExportWindow, ShowsTheDefaults) {
    for (const bool original : {false, true}) {
        session.view.mUseOriginalTitle = original;
        session.view.mShowDescription = original;
        Show();
        EXPECT_EQ(Find<QLineEdit>("textExportPath")->text(), QString());
        EXPECT_EQ(Combo("comboSkin")->currentText(), u"Blue"_s);
        EXPECT_EQ(Entries(Combo("comboSkin")), (QStringList{u"Blue"_s, u"Red"_s}));
        EXPECT_EQ(Combo("comboSkinEpisode")->currentText(), QString());
        EXPECT_EQ(Entries(Combo("comboSkinEpisode")), (QStringList{u"Blue"_s, u"Red"_s}));
        EXPECT_EQ(Combo("comboFilter")->currentText(), QString());
        EXPECT_EQ(Entries(Combo("comboFilter")), QStringList(QString()));
        for (const char *on : {"opSortBySortTitle", "opUseCollectionType", "opUseLocalCoverScans"}) {
            EXPECT_TRUE(Radio(on)->isChecked()) << on;
        }
        EXPECT_TRUE(Radio(original ? "opUseOriginalTitle" : "opUseTitle")->isChecked());
        EXPECT_EQ(Check("checkAppendEdition")->isChecked(), original);
        EXPECT_TRUE(Check("checkGenerateEpisodes")->isChecked());
        EXPECT_TRUE(Check("chkGenerateCrosslinks")->isChecked());
        EXPECT_FALSE(Check("checkUseCustomTitle")->isChecked());
        EXPECT_TRUE(Combo("comboSkinEpisode")->isEnabled());
        EXPECT_EQ(TypesText(), u"+Owned +Sold +WishList"_s);
        EXPECT_EQ(MediaText(), u"Blu-ray=<use default>|DVD=<use default>"_s);
    }
}

TEST_F(HtmlExportWindow, SavesEachControlAndShowsItAgain) {
    Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Mine', 'SELECT * FROM Profiles WHERE ProdYear > 0')");
    Show();
    Find<QLineEdit>("textExportPath")->setText(site);
    Choose("comboSkin", u"Red"_s);
    Choose("comboSkinEpisode", u"Blue"_s);
    Check("chkGenerateCrosslinks")->click();
    Radio("opUseCoverScansLocally")->click();
    services.dialogs.ExpectInput({}, u"Red"_s);
    DoubleClickMedium(1);
    ShowPage(1);
    Choose("comboFilter", u"Mine"_s);
    for (const char *radio : {"opUseMediaType", "opSortByColNo", "opUseOriginalTitle"}) {
        Radio(radio)->click();
    }
    Check("checkUseCustomTitle")->click();
    Check("checkAppendEdition")->click();
    QTest::keyClick(Types(), Qt::Key_Space); // the first
    Click("cbColTypeDown");
    EXPECT_EQ(ReadDbInfo(session, u"HTML_Skin"_s, u"-"_s), u"-"_s);
    Click("cbSaveSettings");
    EXPECT_TRUE(window->isVisible());
    Show();
    EXPECT_EQ(Find<QLineEdit>("textExportPath")->text(), site);
    EXPECT_EQ(Combo("comboSkin")->currentText(), u"Red"_s);
    EXPECT_EQ(Combo("comboSkinEpisode")->currentText(), u"Blue"_s);
    EXPECT_EQ(Combo("comboFilter")->currentText(), u"Mine"_s);
    for (const char *radio : {"opUseMediaType", "opSortByColNo", "opUseOriginalTitle", "opUseCoverScansLocally"}) {
        EXPECT_TRUE(Radio(radio)->isChecked()) << radio;
    }
    EXPECT_TRUE(Check("checkGenerateEpisodes")->isChecked());
    EXPECT_FALSE(Check("chkGenerateCrosslinks")->isChecked());
    EXPECT_TRUE(Check("checkUseCustomTitle")->isChecked());
    EXPECT_TRUE(Check("checkAppendEdition")->isChecked());
    EXPECT_EQ(TypesText(), u"+Sold -Owned +WishList"_s);
    EXPECT_EQ(MediaText(), u"Blu-ray=<use default>|DVD=Red"_s);
    Radio("opUseMyProfilerScans")->click();
    Radio("opUseTitle")->click();
    Click("cbSaveSettings");
    EXPECT_EQ(ReadDbInfo(session, u"HTML_CoverSource"_s, {}), u"2"_s);
    EXPECT_EQ(ReadDbInfo(session, u"HTML_UseTitle"_s, {}), u"1"_s);
}

TEST_F(HtmlExportWindow, WhatIsGoneIsShownAsItIsStored) {
    WriteDbInfo(session, u"HTML_Skin"_s, u"Lost"_s);
    WriteDbInfo(session, u"HTML_SkinEpisode"_s, u"red"_s);
    WriteDbInfo(session, u"HTML_Filter"_s, u"Dropped"_s);
    Show();
    EXPECT_EQ(Combo("comboSkin")->currentText(), u"Lost"_s);
    EXPECT_EQ(Combo("comboSkinEpisode")->currentText(), u"Red"_s);
    EXPECT_EQ(Combo("comboFilter")->currentText(), u"Dropped"_s);
}

TEST_F(HtmlExportWindow, EpisodesFollowTheSkinThatIsChosen) {
    Show();
    EXPECT_TRUE(Check("checkGenerateEpisodes")->isChecked()) << "as it is stored, until a skin is chosen";
    Choose("comboSkin", u"Red"_s);
    EXPECT_TRUE(Check("checkGenerateEpisodes")->isChecked());
    EXPECT_TRUE(Combo("comboSkinEpisode")->isEnabled());
    Choose("comboSkin", u"Blue"_s);
    EXPECT_FALSE(Check("checkGenerateEpisodes")->isChecked());
    EXPECT_TRUE(Check("checkGenerateEpisodes")->isEnabled()) << "it is only an offer";
    EXPECT_FALSE(Combo("comboSkinEpisode")->isEnabled());
    Check("checkGenerateEpisodes")->click();
    EXPECT_TRUE(Combo("comboSkinEpisode")->isEnabled());
    Check("checkGenerateEpisodes")->click();
    Choose("comboSkin", u"Red"_s);
    EXPECT_TRUE(Check("checkGenerateEpisodes")->isChecked());
    EXPECT_TRUE(Combo("comboSkinEpisode")->isEnabled());
}

TEST_F(HtmlExportWindow, TypesMoveByButtonsAndKeys) {
    Show();
    const QAbstractItemModelTester tester(Types()->model()); // warns of a faulty model
    ShowPage(1);
    EXPECT_FALSE(Button("cbColTypeUp")->isEnabled());
    QTest::mouseClick(Types()->viewport(), Qt::LeftButton, {}, Centre(Types(), 2));
    EXPECT_FALSE(Button("cbColTypeDown")->isEnabled());
    Click("cbColTypeUp");
    EXPECT_EQ(TypesText(), u"+Owned +WishList +Sold"_s);
    EXPECT_EQ(Types()->currentIndex().row(), 1);
    QTest::keyClick(Button("cbColTypeUp"), Qt::Key_Space);
    EXPECT_EQ(TypesText(), u"+WishList +Owned +Sold"_s);
    EXPECT_FALSE(Button("cbColTypeUp")->isEnabled());
    EXPECT_TRUE(Types()->hasFocus()) << "not on the button that moves it back";
    QTest::keyClick(Types(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(TypesText(), u"+WishList +Owned +Sold"_s);
    QTest::keyClick(Types(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(TypesText(), u"+Owned +WishList +Sold"_s);
    QTest::keyClick(Types(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(TypesText(), u"+Owned +Sold +WishList"_s);
    QTest::keyClick(Types(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(TypesText(), u"+Owned +WishList +Sold"_s);
}

TEST_F(HtmlExportWindow, WithoutProfilesTheListsAreEmpty) {
    Run(u"DELETE FROM Profiles");
    Show();
    ShowPage(1);
    EXPECT_EQ(TypesText(), QString());
    EXPECT_FALSE(Button("cbColTypeUp")->isEnabled());
    EXPECT_FALSE(Button("cbColTypeDown")->isEnabled());
    ShowPage(0);
    Media()->setFocus();
    QTest::keyClick(Media(), Qt::Key_Return);
    EXPECT_TRUE(services.dialogs.messages.empty()) << "nor does the key start the export";
}

TEST_F(HtmlExportWindow, TheSkinOfAMediumIsChosenByDoubleClickOrEnter) {
    Show();
    const QAbstractItemModelTester tester(Media()->model());
    services.dialogs.ExpectInput(u"Select Skin for media type"_s, u"Red"_s, u"Skin Selection"_s);
    DoubleClickMedium(1);
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"<use default>"_s, u"Blue"_s, u"Red"_s}));
    EXPECT_EQ(services.dialogs.last_preset, u"<use default>"_s);
    EXPECT_EQ(MediaText(), u"Blu-ray=<use default>|DVD=Red"_s);
    Media()->setFocus();
    QTest::keyClick(Media(), Qt::Key_Home);
    for (const auto &[key, skin] :
         {std::pair(Qt::Key_Return, u"Blue"_s), std::pair(Qt::Key_Enter, u"<use default>"_s)}) {
        services.dialogs.ExpectInput(u"Select Skin for media type"_s, skin, u"Skin Selection"_s);
        QTest::keyClick(Media(), key);
        EXPECT_EQ(MediaText(), u"Blu-ray="_s + skin + u"|DVD=Red"_s);
    }
    EXPECT_TRUE(services.dialogs.messages.empty()) << "the key does not start the export";
    EXPECT_EQ(services.dialogs.Pending(), 0U);
}

TEST_F(HtmlExportWindow, TheFolderButtonFillsTheField) {
    Show();
    services.dialogs.ExpectBrowseFolder(site, u"Export Path"_s);
    Click("cbSelectExportPath");
    EXPECT_EQ(Find<QLineEdit>("textExportPath")->text(), QDir::toNativeSeparators(site));
    services.dialogs.ExpectBrowseFolder({}, u"Export Path"_s);
    Button("cbSelectExportPath")->setFocus();
    QTest::keyClick(Button("cbSelectExportPath"), Qt::Key_Return);
    EXPECT_EQ(Find<QLineEdit>("textExportPath")->text(), QDir::toNativeSeparators(site));
    EXPECT_EQ(services.dialogs.Pending(), 0U);
}

TEST_F(HtmlExportWindow, WithoutAFolderNothingStarts) {
    Show();
    Find<QLineEdit>("textExportPath")->setText(Path(u"nowhere"_s));
    Expect(u"Export Path does not exist!"_s, {}, MessageIcon::Warning);
    QTest::keyClick(Find<QLineEdit>("textExportPath"), Qt::Key_Return);
    EXPECT_EQ(services.dialogs.Pending(), 0U) << "Enter is Start";
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Button("cbStart")->isEnabled());
    EXPECT_TRUE(Find<QLineEdit>("textExportPath")->hasFocus());
}

TEST_F(HtmlExportWindow, WithoutASkinStartGoesToItsBox) {
    session.CurrentSkin.clear();
    Show();
    EXPECT_EQ(Combo("comboSkin")->currentText(), QString());
    Find<QLineEdit>("textExportPath")->setText(site);
    ShowPage(1);
    Click("cbStart");
    EXPECT_TRUE(services.progress.calls.isEmpty());
    EXPECT_FALSE(QFile::exists(site + u"/index.html"_s));
    EXPECT_TRUE(Combo("comboSkin")->hasFocus());
}

TEST_F(HtmlExportWindow, StartWritesTheSiteWithWhatIsShown) {
    Show();
    Find<QLineEdit>("textExportPath")->setText(site);
    Check("checkGenerateEpisodes")->setChecked(false);
    ShowPage(1);
    Types()->setCurrentIndex(Types()->model()->index(2, 0));
    QTest::keyClick(Types(), Qt::Key_Space);
    Button("cbStart")->setFocus();
    QTest::keyClick(Button("cbStart"), Qt::Key_Space);
    EXPECT_TRUE(QFile::exists(site + u"/index.html"_s));
    EXPECT_EQ(FilesIn(u"Profiles"_s), (QStringList{u"1.html"_s, u"2.html"_s}));
    EXPECT_TRUE(services.progress.Has(u"opened Creating HTML Export..."_s));
    EXPECT_TRUE(services.progress.Has(u"closed"_s));
    EXPECT_TRUE(services.dialogs.messages.empty());
    EXPECT_EQ(Rows(u"SELECT InfoName FROM DbInfo WHERE InfoName LIKE 'HTML_*'"), QStringList()) << "nothing is kept";
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Button("cbStart")->isEnabled());
    EXPECT_TRUE(Button("cbStart")->hasFocus());
}

TEST_F(HtmlExportWindow, ASecondStartWaitsForTheFirst) {
    Show();
    Find<QLineEdit>("textExportPath")->setText(site);
    Check("checkGenerateEpisodes")->setChecked(false);
    bool tried = false;
    services.pump.At(2, [&] {
        tried = true;
        EXPECT_FALSE(Button("cbStart")->isEnabled());
        EXPECT_FALSE(Button("cbSaveSettings")->isEnabled());
        QTest::keyClick(Find<QLineEdit>("textExportPath"), Qt::Key_Return);
        Click("cbStart");
    });
    Click("cbStart");
    EXPECT_TRUE(tried);
    EXPECT_EQ(services.progress.Of(u"opened"_s).size(), 1);
    EXPECT_TRUE(Button("cbSaveSettings")->isEnabled());
}

TEST_F(HtmlExportWindow, TheProgressWindowLiesAboveAndGoes) {
    ProgressWindow progress;
    Services shown{services.dialogs,   progress,         services.pump,      services.clock,     services.random,
                   services.processes, services.folders, services.locale,    services.clipboard, services.keyboard,
                   services.opener,    services.images,  services.downloader};
    Session other(shown);
    progress.Attach(other.progress, [](const QString &text) { return text; });
    other.Database = std::move(session.Database);
    other.CurrentSkin = u"Blue"_s;
    other.CoverPath = session.CoverPath;
    other.HeadshotPath = session.HeadshotPath;
    frmHTMLExport dialog(other, SiteHost());
    bool above = false;
    services.pump.At(2, [&] {
        QCoreApplication::processEvents();
        above = progress.isVisible() && QApplication::activeModalWidget() == &progress;
    });
    QTimer::singleShot(0, &dialog, [&] {
        dialog.findChild<QLineEdit *>(u"textExportPath"_s)->setText(site);
        dialog.findChild<QCheckBox *>(u"checkGenerateEpisodes"_s)->setChecked(false);
        dialog.findChild<QPushButton *>(u"cbStart"_s)->click();
        EXPECT_FALSE(progress.isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        dialog.reject();
    });
    dialog.exec();
    EXPECT_TRUE(above);
    EXPECT_EQ(FilesIn(u"Profiles"_s).size(), 3);
    session.Database = std::move(other.Database);
}

TEST_F(HtmlExportWindow, CancelDuringARunEndsTheRunAlone) {
    Show();
    Find<QLineEdit>("textExportPath")->setText(site);
    Check("checkGenerateEpisodes")->setChecked(false);
    services.pump.At(1, [&] { Click("cbCancel"); });
    Click("cbStart");
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList());
    EXPECT_TRUE(window->isVisible());
    Click("cbCancel");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HtmlExportWindow, TheEndOfTheProgramClosesIt) {
    Show();
    Find<QLineEdit>("textExportPath")->setText(site);
    Check("checkGenerateEpisodes")->setChecked(false);
    services.pump.At(1, [&] {
        session.EndProgram = true;
        session.progress.Close();
    });
    Click("cbStart");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HtmlExportWindow, CancelAndEscLeaveEverything) {
    for (const bool escape : {false, true}) {
        Show();
        Find<QLineEdit>("textExportPath")->setText(site);
        if (escape) {
            QTest::keyClick(window.get(), Qt::Key_Escape);
        } else {
            Click("cbCancel");
        }
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(ReadDbInfo(session, u"HTML_ExportPath"_s, u"-"_s), u"-"_s);
    }
}

TEST_F(HtmlExportWindow, ADatabaseOfANewerProgramKeepsItsSettings) {
    session.DatabaseTooNew = true;
    Show();
    EXPECT_FALSE(Button("cbSaveSettings")->isEnabled());
}

TEST_F(HtmlExportWindow, RemembersItsPlace) {
    session.SettingsPath = Path(u"Settings.ini"_s);
    Show();
    window->resize(700, 600);
    window->close();
    Show();
    EXPECT_EQ(window->size(), QSize(700, 600));
}

TEST_F(HtmlExportWindow, TextsAreTranslated) {
    TranslateAs(u"Append Edition"_s, u"Ausgabe & mehr"_s);
    TranslateAs(u"Owned"_s, u"Besitz"_s);
    Show();
    EXPECT_EQ(Check("checkAppendEdition")->accessibleName(), u"Ausgabe & mehr"_s);
    EXPECT_TRUE(Check("checkAppendEdition")->text().contains(u"&&"_s));
    EXPECT_EQ(TypesText(), u"+Besitz +Sold +WishList"_s);
}

TEST_F(HtmlExportWindow, FitsASmallScreenAtTwiceTheScale) {
    Show();
    EXPECT_LE(window->minimumSizeHint().width(), 683);
    EXPECT_LE(window->minimumSizeHint().height(), 384);
    EXPECT_LE(window->height(), 720);
    auto *tabs = Find<QTabWidget>("tabHTMLExport");
    for (int i = 0; i < tabs->count(); ++i) {
        const auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
        ASSERT_TRUE(area);
        EXPECT_LE(area->widget()->minimumSizeHint().width(), 640) << i;
    }
}

TEST_F(HtmlExportWindow, CtrlTabTurnsThePages) {
    Show();
    auto *tabs = Find<QTabWidget>("tabHTMLExport");
    const int count = tabs->count();
    for (const auto &[from, widget] : {std::pair(0, static_cast<QWidget *>(Find<QLineEdit>("textExportPath"))),
                                       std::pair(count - 1, static_cast<QWidget *>(Button("cbStart")))}) {
        tabs->setCurrentIndex(from);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), (from + 1) % count);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(tabs->currentIndex(), from);
    }
}

TEST_F(HtmlExportWindow, OnANarrowScreenThePagesScrollDownOnly) {
    Show();
    auto *tabs = Find<QTabWidget>("tabHTMLExport");
    auto *tab_boxes = Find<QRadioButton>("opUseCollectionType")->parentWidget();
    auto *sort_boxes = Find<QRadioButton>("opSortByColNo")->parentWidget();
    tabs->setCurrentIndex(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(tab_boxes->y(), sort_boxes->y()) << "beside each other where there is room";
    const QFontMetrics font = window->fontMetrics();
    window->resize(font.averageCharWidth() * 58, window->height());
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QCoreApplication::processEvents();
        const auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
        ASSERT_TRUE(area);
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << i;
    }
    EXPECT_EQ(tab_boxes->x(), sort_boxes->x());
    EXPECT_LT(tab_boxes->geometry().bottom(), sort_boxes->y());
    window->resize(font.averageCharWidth() * 100, window->height());
    QCoreApplication::processEvents();
    EXPECT_EQ(tab_boxes->y(), sort_boxes->y());
}

class HtmlExportCommand : public test::MainWindowTest {};

TEST_F(HtmlExportCommand, TheMenuOpensTheWindow) {
    Start();
    bool seen = false;
    QTimer::singleShot(0, main.get(), [&] {
        auto *window = qobject_cast<frmHTMLExport *>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        EXPECT_EQ(window->objectName(), u"frmHTMLExport"_s);
        EXPECT_EQ(window->parentWidget(), main.get());
        seen = true;
        window->reject();
    });
    Trigger("mExportHTMLCollection");
    EXPECT_TRUE(seen);
}

TEST_F(HtmlExportCommand, AFaultOnTheWayIsTold) {
    Start();
    session.Database->Execute(u"DROP TABLE SQLQueries");
    services.dialogs.ExpectMessage({}, MessageIcon::Critical);
    Trigger("mExportHTMLCollection");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace ostrand
