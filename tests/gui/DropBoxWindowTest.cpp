// The window that takes pictures: dropping, pasting, choosing.
#include "base/Files.h"
#include "people/ui/frmDropBox.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <QDropEvent>
#include <QFrame>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class DropBoxWindow : public testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        QDir().mkpath(folder / u"heads"_s);
        session.HeadshotPath = WithSeparator(folder / u"heads"_s);
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        ASSERT_TRUE(picture.save(folder / u"Ann Lee.jpg"_s, "PNG"));
        window.SetDropType(DropType::File);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// What a file manager or a browser does.
    Qt::DropAction Drop(const QMimeData &data) {
        QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window, &enter);
        if (!enter.isAccepted()) {
            return Qt::IgnoreAction;
        }
        QDropEvent drop({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window, &drop);
        QApplication::processEvents();
        return drop.dropAction();
    }
    QStringList Headshots() const { return QDir(session.HeadshotPath).entryList(QDir::Files, QDir::Name); }
    QUrl Picture() const { return QUrl::fromLocalFile(folder / u"Ann Lee.jpg"_s); }

    test::TempDir folder;
    test::TestServices services;
    Session session{services.services};
    frmDropBox window{session};
};

} // namespace

TEST_F(DropBoxWindow, StaysOnTopAndHasNamedControls) {
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(window.windowTitle(), u"Image Drop Box"_s);
    for (const QString &name : {u"frameDropZone"_s, u"cbChooseFile"_s, u"cbPaste"_s}) {
        const auto *control = window.findChild<QWidget *>(name);
        ASSERT_TRUE(control) << qPrintable(name);
        EXPECT_FALSE(control->accessibleName().isEmpty());
    }
    EXPECT_EQ(frmDropBox(session).DropType(), DropType::Person);
}

TEST_F(DropBoxWindow, ADroppedFileIsCopied) {
    const QSignalSpy stored(&window, &frmDropBox::PictureStored);
    QMimeData data;
    data.setUrls({Picture()});
    EXPECT_EQ(Drop(data), Qt::CopyAction) << "never moved, whatever is offered";
    EXPECT_EQ(Headshots(), QStringList(u"Ann Lee.jpg"_s));
    EXPECT_TRUE(folder.Has(u"Ann Lee.jpg"_s));
    ASSERT_EQ(stored.size(), 1);
    EXPECT_EQ(stored.first().first().toString(), session.HeadshotPath + u"Ann Lee.jpg"_s);
    EXPECT_EQ(window.findChild<QLabel *>(u"labelStored"_s)->text(), u"Ann Lee.jpg"_s);
}

TEST_F(DropBoxWindow, SeveralFilesAreEachTaken) {
    QMimeData data;
    data.setUrls({Picture(), QUrl::fromLocalFile(folder / u"notes.txt"_s), Picture()});
    Drop(data);
    EXPECT_EQ(Headshots(), (QStringList{u"Ann Lee.jpg"_s, u"Ann Lee_1.jpg"_s}));
}

TEST_F(DropBoxWindow, ADroppedTextNamesAFile) {
    QMimeData data;
    data.setText(folder / u"Ann Lee.jpg"_s);
    Drop(data);
    EXPECT_EQ(Headshots(), QStringList(u"Ann Lee.jpg"_s));
}

TEST_F(DropBoxWindow, ADroppedLinkOfTheNetIsAFault) {
    QMimeData data;
    data.setUrls({QUrl(u"https://host.example/ann.jpg"_s)});
    services.dialogs.ExpectMessage(u"An error occurred"_s);
    Drop(data);
    EXPECT_EQ(Headshots(), QStringList());
}

TEST_F(DropBoxWindow, OtherThingsAreNotTaken) {
    QMimeData data;
    data.setColorData(QColor(Qt::red));
    EXPECT_EQ(Drop(data), Qt::IgnoreAction);
}

TEST_F(DropBoxWindow, TheZoneLightsUpWhileSomethingHangsOverIt) {
    const auto *zone = window.findChild<QFrame *>(u"frameDropZone"_s);
    QMimeData data;
    data.setUrls({Picture()});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    EXPECT_EQ(zone->backgroundRole(), QPalette::Highlight);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&window, &leave);
    EXPECT_EQ(zone->backgroundRole(), QPalette::Base);
}

TEST_F(DropBoxWindow, CtrlVAndTheButtonTakeWhatTheClipboardNames) {
    services.clipboard.SetText(Picture().toString() + u"\r\n"_s);
    QTest::keyClick(&window, Qt::Key_V, Qt::ControlModifier);
    auto *paste = window.findChild<QPushButton *>(u"cbPaste"_s);
    QTest::mouseClick(paste, Qt::LeftButton);
    QTest::keyClick(paste, Qt::Key_Return);
    EXPECT_EQ(Headshots(), (QStringList{u"Ann Lee.jpg"_s, u"Ann Lee_1.jpg"_s, u"Ann Lee_2.jpg"_s}));
}

TEST_F(DropBoxWindow, AFileCanBeChosen) {
    services.dialogs.ExpectOpenFile({}, u"Choose file..."_s);
    services.dialogs.ExpectOpenFile(folder / u"Ann Lee.jpg"_s, u"Choose file..."_s);
    auto *button = window.findChild<QPushButton *>(u"cbChooseFile"_s);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(Headshots(), QStringList());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(Headshots(), QStringList(u"Ann Lee.jpg"_s));
    EXPECT_EQ(services.dialogs.file_requests.back().filters, QStringList(u"Pictures|*.jpg"_s));
}

TEST_F(DropBoxWindow, AsksForThePerson) {
    window.SetDropType(DropType::Person);
    services.dialogs.ExpectInput(u"Please enter name of person"_s, u"Bo"_s, u"CreditName"_s);
    QMimeData data;
    data.setUrls({Picture()});
    Drop(data);
    EXPECT_EQ(Headshots(), QStringList(u"Bo.jpg"_s));
}

TEST_F(DropBoxWindow, KeepsItsPlace) {
    window.setGeometry(30, 40, window.width() + 50, window.height() + 60);
    const QSize size = window.size();
    window.close();
    const frmDropBox again(session);
    EXPECT_EQ(again.size(), size);
    EXPECT_EQ(again.pos(), window.pos());
}

TEST_F(DropBoxWindow, EscCloses) {
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

} // namespace ostrand
