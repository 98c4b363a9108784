#include "platform_qt/QtDesktop.h"

#include "support/TempDir.h"

#include <QDesktopServices>
#include <QImage>
#include <QTextBrowser>
#include <QUrl>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Takes what would go to the desktop's applications; a text browser has the slot that this needs.
class UrlTaker : public QTextBrowser {
public:
    UrlTaker() {
        for (const QString &scheme : schemes_) {
            QDesktopServices::setUrlHandler(scheme, this, "setSource");
        }
    }
    ~UrlTaker() override {
        for (const QString &scheme : schemes_) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    QStringList taken;

protected:
    void doSetSource(const QUrl &url, QTextDocument::ResourceType) override { taken += url.toString(); }

private:
    const QStringList schemes_ = {u"http"_s, u"mailto"_s, u"file"_s};
};

TEST(QtDesktopTest, TheClipboardHoldsText) {
    QtClipboard clipboard;
    clipboard.SetText(u"a\tb\né"_s);
    EXPECT_EQ(clipboard.Text(), u"a\tb\né"_s);
}

TEST(QtDesktopTest, NoKeyIsHeld) {
    EXPECT_FALSE(QtKeyboard().CtrlHeld());
}

TEST(QtDesktopTest, LinksAndFilesGoToTheDesktop) {
    UrlTaker taker;
    QtOpener opener;
    const test::TempDir dir;
    const QString path = dir.Write(u"a b#1.txt"_s, "x");
    EXPECT_TRUE(opener.OpenUrl(u"http://ostrand.example/a?b=c"_s));
    EXPECT_TRUE(opener.OpenUrl(u"mailto:team@ostrand.example"_s));
    EXPECT_TRUE(opener.OpenFile(path));
    EXPECT_FALSE(opener.OpenFile(dir / u"missing.txt"_s));
    EXPECT_FALSE(opener.OpenUrl({}));
    EXPECT_EQ(taker.taken, (QStringList{u"http://ostrand.example/a?b=c"_s, u"mailto:team@ostrand.example"_s,
                                        QUrl::fromLocalFile(path).toString()}));
}

#ifdef Q_OS_UNIX
TEST(QtDesktopTest, AnApplicationIsChosenInTheFolder) {
    UrlTaker taker;
    const test::TempDir dir;
    QtOpener().ChooseApplication(dir.Write(u"a.xyz"_s, "x"));
    EXPECT_EQ(taker.taken, (QStringList{QUrl::fromLocalFile(dir.Path()).toString()}));
}
#endif

TEST(QtDesktopTest, ImagesTellTheirSize) {
    const test::TempDir dir;
    const QtImages images;
    for (const QString &name : {u"a.png"_s, u"a.jpg"_s, u"a.bmp"_s}) {
        ASSERT_TRUE(QImage(30, 20, QImage::Format_RGB32).save(dir / name)) << qPrintable(name);
        EXPECT_EQ(images.Size(dir / name), std::pair(30, 20)) << qPrintable(name);
    }
    ASSERT_TRUE(QImage(30, 20, QImage::Format_RGB32).save(dir / u"png.jpg"_s, "PNG"));
    EXPECT_EQ(images.Size(dir / u"png.jpg"_s), std::pair(30, 20));
    EXPECT_EQ(images.Size(dir.Write(u"b.jpg"_s, "no image")), std::nullopt);
    EXPECT_EQ(images.Size(dir / u"missing.jpg"_s), std::nullopt);
    EXPECT_EQ(images.Size({}), std::nullopt);
}

} // namespace
} // namespace ostrand
