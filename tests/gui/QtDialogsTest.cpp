#include "platform_qt/QtDialogs.h"

#include "FindControl.h"
#include "support/TempDir.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class PlainDialogs : public QtDialogs {
public:
    std::optional<QString> InputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> InputCombo(const QString &, const QString &, const QStringList &, const QString &) override {
        return {};
    }
    QString BrowseFolder(const QString &, const QString &) override { return {}; }
};

/// Acts on the modal window as soon as it is up.
template <typename T>
void WithModal(std::function<void(T &)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto *window = qobject_cast<T *>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        act(*window);
    });
}

TEST(NameFilterTest, IsInTheToolkitsForm) {
    const struct {
        QString filter, expected;
    } cases[] = {
        {u"Collection|*.xml"_s, u"Collection (*.xml)"_s},
        {u"Images|*.jpg;*.png"_s, u"Images (*.jpg *.png)"_s},
        {u"Everything|*.*"_s, u"Everything (*)"_s},
        {u"|*.*"_s, u"All files (*)"_s},
        {u"Database (*.mdb)|*.mdb"_s, u"Database (*.mdb)"_s},
        {u"Images| *.jpg ; *.png;"_s, u"Images (*.jpg *.png)"_s},
        {u"Anything"_s, u"Anything (*)"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(NameFilter(c.filter, u"All files"_s), c.expected) << qPrintable(c.filter);
    }
}

TEST(QtDialogsTest, AMessageBehindADialogBelongsToTheSameWindow) {
    PlainDialogs dialogs;
    QWidget owner;
    owner.show();
    owner.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&owner));
    QApplication::setActiveWindow(nullptr); // until the desktop has turned to the window again
    QWidget *parent = nullptr;
    WithModal<QMessageBox>([&](QMessageBox &box) {
        parent = box.parentWidget();
        box.button(QMessageBox::Ok)->click();
    });
    dialogs.Show({.text = u"Done"_s});
    EXPECT_EQ(parent, &owner);
}

TEST(QtDialogsTest, AMessageShowsTextTitleIconAndButtons) {
    const struct {
        MessageIcon icon;
        MessageButtons buttons;
        QMessageBox::Icon shown_icon;
        QMessageBox::StandardButtons shown_buttons;
    } cases[] = {
        {MessageIcon::None, MessageButtons::Ok, QMessageBox::NoIcon, QMessageBox::Ok},
        {MessageIcon::Critical, MessageButtons::OkCancel, QMessageBox::Critical, QMessageBox::Ok | QMessageBox::Cancel},
        {MessageIcon::Question, MessageButtons::YesNo, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No},
        {MessageIcon::Warning, MessageButtons::YesNoCancel, QMessageBox::Warning,
         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
        {MessageIcon::Information, MessageButtons::Ok, QMessageBox::Information, QMessageBox::Ok},
    };
    PlainDialogs dialogs;
    for (const auto &c : cases) {
        WithModal<QMessageBox>([&](QMessageBox &box) {
            EXPECT_EQ(box.text(), u"<b>Text</b>\r\nmore"_s);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), u"Title"_s);
            EXPECT_EQ(box.icon(), c.shown_icon);
            EXPECT_EQ(box.standardButtons(), c.shown_buttons);
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        dialogs.Show({u"<b>Text</b>\r\nmore"_s, u"Title"_s, c.icon, c.buttons, MessageAnswer::Ok});
    }
}

TEST(QtDialogsTest, EveryButtonHasItsAnswer) {
    const struct {
        MessageButtons buttons;
        QMessageBox::StandardButton pressed;
        MessageAnswer answer;
    } cases[] = {
        {MessageButtons::Ok, QMessageBox::Ok, MessageAnswer::Ok},
        {MessageButtons::OkCancel, QMessageBox::Ok, MessageAnswer::Ok},
        {MessageButtons::OkCancel, QMessageBox::Cancel, MessageAnswer::Cancel},
        {MessageButtons::YesNo, QMessageBox::Yes, MessageAnswer::Yes},
        {MessageButtons::YesNo, QMessageBox::No, MessageAnswer::No},
        {MessageButtons::YesNoCancel, QMessageBox::Cancel, MessageAnswer::Cancel},
    };
    PlainDialogs dialogs;
    for (const auto &c : cases) {
        WithModal<QMessageBox>([&](QMessageBox &box) { box.button(c.pressed)->click(); });
        EXPECT_EQ(int(dialogs.Show({u"?"_s, {}, MessageIcon::Question, c.buttons, MessageAnswer::Ok})), int(c.answer));
    }
}

TEST(QtDialogsTest, EscAndEnterGiveTheNeutralAnswer) {
    const struct {
        MessageButtons buttons;
        MessageAnswer neutral, answer;
    } cases[] = {
        {MessageButtons::Ok, MessageAnswer::Ok, MessageAnswer::Ok},
        {MessageButtons::OkCancel, MessageAnswer::Cancel, MessageAnswer::Cancel},
        {MessageButtons::OkCancel, MessageAnswer::Ok, MessageAnswer::Ok},
        {MessageButtons::YesNo, MessageAnswer::No, MessageAnswer::No},
        {MessageButtons::YesNo, MessageAnswer::Yes, MessageAnswer::Yes},
        {MessageButtons::YesNo, MessageAnswer::Ok, MessageAnswer::No}, // the box has no such button
        {MessageButtons::YesNoCancel, MessageAnswer::No, MessageAnswer::No},
    };
    PlainDialogs dialogs;
    for (const auto &c : cases) {
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
            WithModal<QMessageBox>([&](QMessageBox &box) { QTest::keyClick(&box, key); });
            EXPECT_EQ(int(dialogs.Show({u"?"_s, {}, MessageIcon::Question, c.buttons, c.neutral})), int(c.answer));
        }
    }
}

TEST(QtDialogsTest, ButtonsAreTranslated) {
    PlainDialogs dialogs;
    dialogs.translate = [](const QString &text) { return text == u"Yes" ? u"Ja"_s : text; };
    WithModal<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.button(QMessageBox::Yes)->text(), u"Ja"_s);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    dialogs.Show({u"?"_s, {}, MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::No});
}

class FileDialogTest : public ::testing::Test {
protected:
    test::TempDir dir;
    PlainDialogs dialogs;
};

TEST_F(FileDialogTest, OpensAnExistingFile) {
    const QString path = dir.Write(u"a.xml"_s, "x");
    WithModal<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Import"_s);
        EXPECT_EQ(dialog.nameFilters(), (QStringList{u"Collection (*.xml)"_s, u"All files (*)"_s}));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog.directory().path(), dir.Path());
        EXPECT_EQ(dialog.selectedFiles().value(0), path);
        static_cast<QDialog &>(dialog).accept();
    });
    EXPECT_EQ(dialogs.OpenFile({u"Import"_s, path, {u"Collection|*.xml"_s, u"|*.*"_s}}), path);
}

TEST_F(FileDialogTest, SavesUnderANewNameWithItsExtension) {
    WithModal<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.selectFile(u"new"_s);
        static_cast<QDialog &>(dialog).accept();
    });
    EXPECT_EQ(dialogs.SaveFile({u"Export"_s, dir.Path(), {u"Collection|*.xml"_s}}), dir / u"new.xml"_s);
}

TEST_F(FileDialogTest, CancelGivesNothing) {
    for (const bool save : {false, true}) {
        WithModal<QFileDialog>([](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        const FileRequest request{u"Any"_s, dir.Path(), {}};
        EXPECT_EQ(save ? dialogs.SaveFile(request) : dialogs.OpenFile(request), QString());
    }
}

} // namespace
} // namespace ostrand
