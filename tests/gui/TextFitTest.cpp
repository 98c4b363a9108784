// Every window in every language: no text is cut off.
#include "FindControl.h"
#include "MainWindowFixture.h"

#include "base/Text.h"
#include "browser/CollectionTabs.h"
#include "browser/CreditCommands.h"
#include "browser/ui/frmCover.h"
#include "browser/ui/frmFilterTags.h"
#include "database/ui/frmSwitchDatabase.h"
#include "html_export/ui/frmHTMLExport.h"
#include "people/HeadshotImport.h"
#include "people/ui/frmCompare.h"
#include "people/ui/frmComparerTools.h"
#include "people/ui/frmCrossLinks.h"
#include "people/ui/frmDropBox.h"
#include "people/ui/frmManageHeadshots.h"
#include "platform_qt/ElidedLabel.h"
#include "queries/LanguageFile.h"
#include "queries/ui/frmSQLQuery.h"
#include "queries/ui/frmSQLUserInput.h"
#include "shell/ui/LinkLabel.h"
#include "shell/ui/ProgressWindow.h"
#include "shell/ui/frmAbout.h"
#include "shell/ui/frmBrowseFolder.h"
#include "shell/ui/frmListView.h"
#include "shell/ui/frmSettings.h"

#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Where pictures of the windows go for those who want to look at them; none are made without it.
constexpr auto kPictureFolder = "OSTRAND_PICTURES";

class TextFit : public test::MainWindowTest, public testing::WithParamInterface<const char *> {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        language = QLatin1String(GetParam());
        if (language != u"English"_s) {
            Session other(services.services);
            other.Database = sql::Database::Open(database);
            ASSERT_TRUE(ImportStringsFromFile(other, QString::fromUtf8(OSTRAND_SOURCE_DIR) +
                                                         u"/resources/languages/%1.xml"_s.arg(language)));
            WriteDbInfo(other, u"UseUserDefinedStrings"_s, u"True"_s);
        }
        Start();
        ASSERT_EQ(session.UseUserDefinedStrings, language != u"English"_s);
    }
    QString Shown(const QString &text) { return Translate(session, text); }
    Translator Translated() {
        return [this](const QString &text) { return Shown(text); };
    }

    /// Shows the window, page by page where it has several, and finds what does not fit.
    void Check(QWidget &window, const QString &name) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        auto *pages = window.findChild<QTabWidget *>();
        const int count = pages == nullptr ? 1 : pages->count();
        for (int page = 0; page < count; ++page) {
            if (pages != nullptr) {
                pages->setCurrentIndex(page);
            }
            QApplication::processEvents();
            const QString shown_name = count == 1 ? name : name + u'-' + QString::number(page + 1);
            EXPECT_EQ(CutTexts(window).join(u'\n').toStdString(), std::string())
                << GetParam() << ' ' << qPrintable(shown_name);
            Photograph(window, shown_name);
        }
        // Of a screen of 1366 x 768 points at twice the scale.
        EXPECT_LE(window.minimumSizeHint().width(), 683) << GetParam() << ' ' << qPrintable(name);
        EXPECT_LE(window.minimumSizeHint().height(), 384) << GetParam() << ' ' << qPrintable(name);
    }
    void CheckAndClose(QWidget &window, const QString &name) {
        Check(window, name);
        window.close();
    }

    static QStringList CutTexts(const QWidget &window) {
        QStringList cut;
        const auto expect = [&cut](bool fits, const QWidget &control, const QString &text) {
            if (!fits) {
                cut += control.objectName() + u": "_s + text;
            }
        };
        for (const QWidget *control : window.findChildren<QWidget *>()) {
            if (!control->isVisibleTo(&window) || control->window() != &window) {
                continue;
            }
            if (const auto *label = qobject_cast<const QLabel *>(control)) {
                expect(Fits(*label), *label, label->text());
            } else if (const auto *button = qobject_cast<const QAbstractButton *>(control)) {
                expect(Fits(*button), *button, button->text());
            } else if (const auto *box = qobject_cast<const QGroupBox *>(control)) {
                expect(box->width() > box->fontMetrics().horizontalAdvance(box->title()), *box, box->title());
            } else if (const auto *tabs = qobject_cast<const QTabBar *>(control)) {
                for (int i = 0; i < tabs->count(); ++i) {
                    expect(tabs->tabRect(i).width() > tabs->fontMetrics().horizontalAdvance(tabs->tabText(i)), *tabs,
                           tabs->tabText(i));
                }
                expect(tabs->usesScrollButtons() || tabs->width() >= tabs->sizeHint().width(), *tabs, u"all tabs"_s);
            }
        }
        return cut;
    }
    static bool Fits(const QAbstractButton &button) {
        const int text = button.fontMetrics().horizontalAdvance(button.text());
        const bool narrow = button.text() == u"..."_s; // made so, without the room that styles leave around a text
        return button.text().isEmpty() || button.width() >= (narrow ? text + 4 : button.minimumSizeHint().width());
    }
    static bool Fits(const QLabel &label) {
        if (label.text().isEmpty() || qobject_cast<const ElidedLabel *>(&label) ||
            label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) {
            return true; // made to take what room there is
        }
        if (label.wordWrap()) {
            return label.height() >= label.heightForWidth(label.width());
        }
        return label.width() >= label.minimumSizeHint().width();
    }
    void Photograph(QWidget &window, const QString &name) const {
        const QString folder = qEnvironmentVariable(kPictureFolder);
        if (!folder.isEmpty()) {
            QDir().mkpath(folder);
            EXPECT_TRUE(window.grab().save(folder + u'/' + language + u'-' + name + u".png"_s));
        }
    }

    QString language;
};

TEST_P(TextFit, TheMainWindow) {
    main->resize(1280, 760);
    ClickRow(0);
    const auto *tabs = Control<QTabBar>("tabMain");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        Control<QTabBar>("tabMain")->setCurrentIndex(tab);
        QApplication::processEvents();
        EXPECT_EQ(CutTexts(*main).join(u'\n').toStdString(), std::string()) << GetParam() << ' ' << tab;
        Photograph(*main, u"frmMain-%1"_s.arg(tab + 1));
    }
    Trigger("mTVShows");
    QApplication::processEvents();
    EXPECT_EQ(CutTexts(*main).join(u'\n').toStdString(), std::string()) << GetParam() << " with series";
    Photograph(*main, u"frmMain-tv"_s);
}

TEST_P(TextFit, TheWindowsBesideIt) {
    for (const char *command : {"mSQLQuery", "mDropBox", "mShowCover"}) {
        Trigger(command);
    }
    auto *query = main->findChild<frmSQLQuery *>();
    test::FindControl<QPushButton>(*query, "cbListTables")->click();
    Check(*query, u"frmSQLQuery"_s);
    Check(*main->findChild<frmDropBox *>(), u"frmDropBox"_s);
    Check(*main->findChild<frmCover *>(), u"frmCover"_s);
    ChooseFilter(browser, Shown(u"Filter Profiles by Tags"_s));
    Check(*main->findChild<frmFilterTags *>(), u"frmFilterTags"_s);
    auto due = std::make_unique<ListTable>(Shown(u"Titles due to be returned"_s),
                                           QStringList{Shown(u"Title due"_s), Shown(u"day(s) overdue"_s)});
    due->Assign({{{u"A"_s, u"1"_s}, {}, ListRowKind::None}});
    main->ShowListView(std::move(due));
    Check(*main->findChild<frmListView *>(), u"frmListView"_s);
}

TEST_P(TextFit, TheDialogsOfTheProgram) {
    frmSettings settings(session);
    CheckAndClose(settings, u"frmSettings"_s);
    frmAbout about(session);
    CheckAndClose(about, u"frmAbout"_s);
    frmSwitchDatabase databases(session);
    CheckAndClose(databases, u"frmSwitchDatabase"_s);
    frmHTMLExport site(session, {});
    CheckAndClose(site, u"frmHTMLExport"_s);
    frmSQLUserInput input(Translated(),
                          Shown(u"Which divider should be used for columns?"_s) + u"\r\n"_s +
                              Shown(u"(Enter 'tab' for tabulator)"_s),
                          Shown(u"Divider"_s));
    CheckAndClose(input, u"frmSQLUserInput"_s);
    frmBrowseFolder folders(services.dialogs, Translated(), Shown(u"Select Folder"_s), {});
    CheckAndClose(folders, u"frmBrowseFolder"_s);
}

TEST_P(TextFit, TheProgressWindow) {
    ProgressWindow window;
    frmProgress job(window, services.pump);
    window.Attach(job, Translated());
    job.Load(Shown(u"Removing unneeded BirthYears"_s));
    job.SetLine(Shown(u"Removing unneeded BirthYears..."_s));
    job.ShowDetails(true);
    job.AddInfo(Shown(u"Profiles that could not be imported completely:"_s), {});
    Check(window, u"frmProgress"_s);
    job.Close();
}

TEST_P(TextFit, TheWindowsOfPersons) {
    frmCrossLinks links(session);
    CheckAndClose(links, u"frmCrossLinks"_s);
    frmManageHeadshots manage(session);
    test::FindControl<QLabel>(manage, "labelImageSizeExisting")->setText(u"1000 x 1400 / 1000.5 kBytes"_s);
    CheckAndClose(manage, u"frmManageHeadshots"_s);
    frmCompare compare(session);
    CheckAndClose(compare, u"frmCompare"_s);
    HeadshotImport import(session);
    frmComparerTools tools(session, import);
    CheckAndClose(tools, u"frmComparerTools"_s);
}

INSTANTIATE_TEST_SUITE_P(Languages, TextFit, testing::Values("English", "German", "French", "Spanish", "Dutch"),
                         [](const auto &language) { return std::string(language.param); });

} // namespace
} // namespace ostrand
