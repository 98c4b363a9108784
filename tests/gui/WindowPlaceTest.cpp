#include "shell/ui/WindowPlace.h"

#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(OntoScreensTest, APlaceThatCannotBeReachedIsMoved) {
    const QList<QRect> screens = {{0, 0, 1000, 800}, {1000, 0, 1000, 800}};
    const struct {
        const char *name;
        QRect place, expected;
    } cases[] = {
        {"on the first", {10, 10, 300, 200}, {10, 10, 300, 200}},
        {"on the second", {1500, 10, 300, 200}, {1500, 10, 300, 200}},
        {"across both", {900, 10, 300, 200}, {900, 10, 300, 200}},
        {"partly beyond the right edge", {1900, 10, 300, 200}, {1900, 10, 300, 200}},
        {"a screen that is gone", {2500, 100, 300, 200}, {1700, 100, 300, 200}},
        {"left of all", {-900, 100, 300, 200}, {0, 100, 300, 200}},
        {"title bar above", {100, -150, 300, 200}, {100, 0, 300, 200}},
        {"below", {100, 900, 300, 200}, {100, 600, 300, 200}},
        {"larger than the screen", {3000, 0, 1500, 900}, {1000, 0, 1000, 800}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(OntoScreens(c.place, screens), c.expected) << c.name;
    }
    EXPECT_EQ(OntoScreens({5000, 0, 3, 3}, {}), QRect(5000, 0, 3, 3));
}

class WindowPlaceTest : public ::testing::Test {
protected:
    void SetUp() override { QDir().mkpath(session.DataFolder); }
    void Store(const QString &height, const QString &width, const QString &top, const QString &left) {
        const QStringList keys = {u"Height"_s, u"Width"_s, u"Top"_s, u"Left"_s};
        const QStringList values = {height, width, top, left};
        for (int i = 0; i < 4; ++i) {
            WriteINIString(session, u"Awards"_s, keys[i], values[i]);
        }
    }
    QString Stored() {
        QStringList values;
        for (const QString &key : {u"Height"_s, u"Width"_s, u"Top"_s, u"Left"_s}) {
            values += GetINIString(session, u"Awards"_s, key, u"-"_s);
        }
        return values.join(u' ');
    }

    test::TestServices services;
    Session session{services.services};
    QWidget window;
};

TEST_F(WindowPlaceTest, AFirstWindowHasItsDesign) {
    new WindowPlace(session, u"Awards"_s, &window, {321, 123});
    EXPECT_EQ(window.size(), QSize(321, 123));
    EXPECT_EQ(Stored(), u"- - - -"_s); // reading writes nothing
}

TEST_F(WindowPlaceTest, AFirstWindowIsNoLargerThanTheScreen) {
    new WindowPlace(session, u"Awards"_s, &window, {5000, 123});
    const QSize screen = window.screen()->availableSize();
    EXPECT_LT(window.width(), screen.width());
    EXPECT_GT(window.width(), screen.width() / 2);
    EXPECT_EQ(window.height(), 123);
    new WindowPlace(session, u"Awards"_s, &window, {321, 4000});
    EXPECT_LT(window.height(), screen.height());
}

TEST_F(WindowPlaceTest, TakesWhatIsStored) {
    Store(u"3000"_s, u"4500"_s, u"150"_s, u"300"_s);
    new WindowPlace(session, u"Awards"_s, &window, {321, 123});
    EXPECT_EQ(window.geometry(), QRect(20, 10, 300, 200));
}

TEST_F(WindowPlaceTest, WhatIsNoPlaceIsTheDesign) {
    for (const QString &bad : {u""_s, u"abc"_s, u"-5"_s, u"0"_s, u"99999999999"_s}) {
        Store(bad, bad, u""_s, u"x"_s);
        ReadWindowPlace(session, u"Awards"_s, window, {321, 123});
        EXPECT_EQ(window.size(), QSize(321, 123)) << qPrintable(bad);
    }
}

TEST_F(WindowPlaceTest, APlaceOffTheScreensIsMoved) {
    Store(u"3000"_s, u"4500"_s, u"900000"_s, u"-900000"_s);
    ReadWindowPlace(session, u"Awards"_s, window, {321, 123});
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry()));
}

TEST_F(WindowPlaceTest, ClosingWritesIt) {
    new WindowPlace(session, u"Awards"_s, &window, {321, 123});
    window.show();
    window.move(30, 40);
    window.resize(310, 210);
    window.close();
    EXPECT_EQ(Stored(), u"3150 4650 600 450"_s);
}

TEST_F(WindowPlaceTest, AMinimisedWindowKeepsWhatIsThere) {
    Store(u"3000"_s, u"4500"_s, u"150"_s, u"300"_s);
    new WindowPlace(session, u"Awards"_s, &window, {321, 123});
    window.showMinimized();
    window.close();
    EXPECT_EQ(Stored(), u"3000 4500 150 300"_s);
}

TEST_F(WindowPlaceTest, AMaximisedWindowTellsWhereItGoesBackTo) {
    new WindowPlace(session, u"Awards"_s, &window, {321, 123});
    window.move(30, 40);
    window.show();
    window.showMaximized();
    QApplication::processEvents();
    if (window.width() <= 321) {
        GTEST_SKIP() << "no window manager that maximises";
    }
    window.close();
    EXPECT_EQ(Stored(), u"1845 4815 600 450"_s);
}

} // namespace
} // namespace ostrand
