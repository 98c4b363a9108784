#include "browser/History.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using Entries = QList<HistoryEntry>;

HistoryEntry Entry(QChar key) {
    return {QString(key), u"Title "_s + key};
}

/// Entries of one letter each, the newest first.
Entries Of(const QString &keys) {
    Entries entries;
    for (const QChar key : keys) {
        entries << Entry(key);
    }
    return entries;
}

History Visited(const QString &oldest_first) {
    History history;
    for (const QChar key : oldest_first) {
        history.AddHistoryBack(QString(key), u"Title "_s + key, false);
    }
    return history;
}

TEST(History, TheNewestStandsAtTheTop) {
    EXPECT_EQ(Visited(u"abc"_s).Back(), Of(u"cba"_s));
}

TEST(History, ATitleVisitedTwiceStandsOnceAtTheTop) {
    EXPECT_EQ(Visited(u"aba"_s).Back(), Of(u"ab"_s));
    History history;
    history.AddHistoryBack(u"Key_1"_s, u"Old"_s, false);
    history.AddHistoryBack(u"KEY_1"_s, u"New"_s, false);
    EXPECT_EQ(history.Back(), (Entries{{u"KEY_1"_s, u"New"_s}})) << "keys compare without regard to case";
}

TEST(History, TheForwardListIsClearedOnlyOnRequest) {
    History history = Visited(u"a"_s);
    history.AddHistoryForward(u"x"_s, u"Title x"_s);
    history.AddHistoryForward(u"y"_s, u"Title y"_s);
    history.AddHistoryForward(u"x"_s, u"Title x"_s);
    EXPECT_EQ(history.Forward(), Of(u"xy"_s));
    history.AddHistoryBack(u"b"_s, u"Title b"_s, false);
    EXPECT_EQ(history.Forward(), Of(u"xy"_s));
    history.AddHistoryBack(u"c"_s, u"Title c"_s, true);
    EXPECT_EQ(history.Forward(), Of({}));
    EXPECT_EQ(history.Back(), Of(u"cba"_s));
}

TEST(History, GoesBackByTheFirstOrAFurtherEntry) {
    const struct {
        const char *name;
        int index;
        QString current, chosen, back, forward;
    } cases[] = {
        {"the first", 0, u"x"_s, u"d"_s, u"cba"_s, u"x"_s},
        {"a further one", 2, u"x"_s, u"b"_s, u"a"_s, u"cdx"_s},
        {"the last", 3, u"x"_s, u"a"_s, {}, u"bcdx"_s},
        {"from no title", 1, {}, u"c"_s, u"ba"_s, u"d"_s},
    };
    for (const auto &c : cases) {
        History history = Visited(u"abcd"_s);
        const HistoryEntry current = c.current.isEmpty() ? HistoryEntry() : Entry(c.current.front());
        EXPECT_EQ(history.GoBack(c.index, current), Entry(c.chosen.front())) << c.name;
        EXPECT_EQ(history.Back(), Of(c.back)) << c.name;
        EXPECT_EQ(history.Forward(), Of(c.forward)) << c.name;
    }
}

TEST(History, ForwardIsTheMirrorImage) {
    History history = Visited(u"abcd"_s);
    history.GoBack(3, Entry(u'x'));
    ASSERT_EQ(history.Forward(), Of(u"bcdx"_s));
    EXPECT_EQ(history.GoForward(2, Entry(u'a')), Entry(u'd'));
    EXPECT_EQ(history.Forward(), Of(u"x"_s));
    EXPECT_EQ(history.Back(), Of(u"cba"_s));
    EXPECT_EQ(history.GoForward(0, Entry(u'd')), Entry(u'x'));
    EXPECT_EQ(history.Back(), Of(u"dcba"_s));
    EXPECT_EQ(history.Forward(), Of({}));
}

TEST(History, AnEntryThatIsNotThereChangesNothing) {
    for (const int index : {-1, 2, 100}) {
        History history = Visited(u"ab"_s);
        EXPECT_EQ(history.GoBack(index, Entry(u'x')), HistoryEntry()) << index;
        EXPECT_EQ(history.GoForward(0, Entry(u'x')), HistoryEntry()) << index;
        EXPECT_EQ(history.Back(), Of(u"ba"_s)) << index;
        EXPECT_EQ(history.Forward(), Of({})) << index;
    }
}

TEST(History, IsClearedWhole) {
    History history = Visited(u"abc"_s);
    history.GoBack(0, Entry(u'x'));
    history.Clear();
    EXPECT_TRUE(history.Back().isEmpty());
    EXPECT_TRUE(history.Forward().isEmpty());
}

} // namespace
} // namespace ostrand
