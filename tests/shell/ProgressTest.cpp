#include "shell/Progress.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Writes down what a window would show.
class RecordingView : public ProgressView {
public:
    void Opened(const QString &title) override { lines += u"open "_s + title; }
    void TitleChanged(const QString &title) override { lines += u"title "_s + title; }
    void LineChanged(const QString &line) override { lines += u"line "_s + line; }
    void DetailChanged(const QString &detail) override { lines += u"detail "_s + detail; }
    void CounterChanged(const QString &counter) override { lines += u"counter "_s + counter; }
    void BarChanged(int value, int maximum) override { lines += u"bar %1/%2"_s.arg(value).arg(maximum); }
    void NodeAdded(const QString &key, const QString &parent, const QString &text) override {
        lines += u"node %1<%2 %3"_s.arg(key, parent, text);
    }
    void NodeTicked(const QString &key) override { lines += u"tick "_s + key; }
    void Finished() override { lines += u"finished"_s; }
    void Closed() override { lines += u"closed"_s; }

    QStringList Taken() { return std::exchange(lines, {}); }

    QStringList lines;
};

class CountingPump : public EventPump {
public:
    void Turn() override {
        ++turns;
        if (act) {
            act();
        }
    }
    int turns = 0;
    std::function<void()> act;
};

class ProgressTest : public ::testing::Test {
protected:
    ProgressTest() : progress(view, pump) {
        progress.read_auto_close = [this] { return auto_close; };
        progress.write_auto_close = [this](bool on) { auto_close = on; };
        progress.translate = [](const QString &text) { return u"<"_s + text + u">"_s; };
    }

    void LoadWithDetails() {
        progress.Load(u"Job"_s);
        progress.ShowDetails(true);
        view.Taken();
    }

    RecordingView view;
    CountingPump pump;
    frmProgress progress;
    bool auto_close = false;
};

TEST_F(ProgressTest, LoadEmptiesEverything) {
    EXPECT_TRUE(progress.ProgressCancelled());
    progress.Load(u"Job"_s);
    EXPECT_EQ(view.Taken(), (QStringList{u"open Job"_s, u"line "_s, u"detail "_s, u"counter "_s, u"bar 0/0"_s}));
    EXPECT_FALSE(progress.ProgressCancelled());
    EXPECT_TRUE(progress.IsLoaded());
}

TEST_F(ProgressTest, ShowsWhatTheJobTells) {
    progress.Load({});
    view.Taken();
    progress.SetTitle(u"T"_s);
    progress.SetLine(u"L"_s);
    progress.SetDetail(u"D"_s);
    progress.SetCounter(u"1 / 2"_s);
    progress.SetBar(1, 2);
    EXPECT_EQ(view.Taken(), (QStringList{u"title T"_s, u"line L"_s, u"detail D"_s, u"counter 1 / 2"_s, u"bar 1/2"_s}));
}

TEST_F(ProgressTest, AClosedWindowShowsNothing) {
    progress.SetLine(u"L"_s);
    progress.SetBar(1, 2);
    progress.AddInfo(u"a"_s);
    progress.UnloadForm(true);
    progress.Close();
    EXPECT_EQ(view.Taken(), QStringList());
    EXPECT_EQ(pump.turns, 0);
}

TEST_F(ProgressTest, ItemsAreTickedWhenTheNextOneComes) {
    LoadWithDetails();
    progress.AddInfo(u"first"_s);
    progress.AddInfo(u"second"_s);
    EXPECT_EQ(view.Taken(), (QStringList{u"node K1< first"_s, u"tick K1"_s, u"node K2< second"_s}));
    progress.ItemDone();
    progress.ItemDone();
    EXPECT_EQ(view.Taken(), (QStringList{u"tick K2"_s}));
}

TEST_F(ProgressTest, SubItemsStandUnderTheItem) {
    LoadWithDetails();
    progress.AddInfo(u"item"_s, u"Key_7"_s);
    progress.AddSubInfo(u"one"_s);
    progress.SubItemDone();
    progress.AddSubInfo(u"two"_s);
    progress.ItemDone();
    EXPECT_EQ(view.Taken(), (QStringList{u"node Key_7< item"_s, u"node K1<Key_7 one"_s, u"tick K1"_s,
                                         u"node K2<Key_7 two"_s, u"tick K2"_s, u"tick Key_7"_s}));
}

TEST_F(ProgressTest, AClashingKeyFallsBackToANumber) {
    LoadWithDetails();
    progress.AddInfo(u"a"_s, u"Key_7"_s);
    progress.AddInfo(u"b"_s, u"Key_7"_s);
    progress.AddInfo(u"c"_s, u"K2"_s);
    progress.AddInfo(u"d"_s);
    EXPECT_EQ(view.Taken(), (QStringList{u"node Key_7< a"_s, u"tick Key_7"_s, u"node K1< b"_s, u"tick K1"_s,
                                         u"node K2< c"_s, u"tick K2"_s, u"node K3< d"_s}));
}

TEST_F(ProgressTest, WithoutDetailsNoNodesButTurns) {
    progress.Load({});
    progress.ShowDetails(false);
    view.Taken();
    progress.AddInfo(u"a"_s);
    progress.AddSubInfo(u"b"_s);
    EXPECT_EQ(view.Taken(), QStringList());
    EXPECT_EQ(pump.turns, 2);
}

TEST_F(ProgressTest, DetailsTakeTheStoredState) {
    auto_close = true;
    progress.Load({});
    progress.ShowDetails(true);
    EXPECT_TRUE(progress.CloseWhenFinished());
    EXPECT_TRUE(progress.Details());
    progress.ShowDetails(false);
    EXPECT_FALSE(progress.CloseWhenFinished());
    EXPECT_FALSE(progress.Details());
}

TEST_F(ProgressTest, UnloadWithoutDetailsClosesAtOnce) {
    progress.Load({});
    view.Taken();
    progress.UnloadForm(true);
    EXPECT_EQ(view.Taken(), (QStringList{u"closed"_s}));
    EXPECT_TRUE(progress.ProgressCancelled());
}

TEST_F(ProgressTest, UnloadNotDoneClosesWithoutAWord) {
    LoadWithDetails();
    progress.UnloadForm(false);
    EXPECT_EQ(view.Taken(), (QStringList{u"closed"_s}));
}

TEST_F(ProgressTest, FinishedStaysForReadingUntilClosed) {
    LoadWithDetails();
    progress.AddInfo(u"a"_s);
    progress.UnloadForm(true);
    EXPECT_EQ(view.Taken(),
              (QStringList{u"node K1< a"_s, u"tick K1"_s, u"node K2< <Finished!>"_s, u"tick K2"_s, u"finished"_s}));
    EXPECT_FALSE(progress.ProgressCancelled());
    EXPECT_TRUE(progress.IsShown());
    EXPECT_FALSE(progress.IsLoaded()) << "the next job opens it anew";
    progress.Close();
    EXPECT_EQ(view.Taken(), (QStringList{u"closed"_s}));
    EXPECT_TRUE(progress.ProgressCancelled());
    LoadWithDetails();
    EXPECT_FALSE(progress.CloseWhenFinished());
}

TEST_F(ProgressTest, FinishedClosesWhenTicked) {
    LoadWithDetails();
    progress.SetCloseWhenFinished(true);
    progress.UnloadForm(true);
    EXPECT_EQ(view.Taken().last(), u"closed"_s);
    EXPECT_TRUE(auto_close) << "the state is stored";
    EXPECT_FALSE(progress.IsShown());
}

TEST_F(ProgressTest, UntickingIsStoredToo) {
    auto_close = true;
    LoadWithDetails();
    progress.SetCloseWhenFinished(false);
    progress.UnloadForm(true);
    EXPECT_FALSE(auto_close);
}

TEST_F(ProgressTest, ClosingWhileEventsRunCancelsTheJob) {
    LoadWithDetails();
    pump.act = [this] { progress.Close(); };
    progress.AddInfo(u"a"_s);
    EXPECT_TRUE(progress.ProgressCancelled());
    view.Taken();
    progress.AddInfo(u"b"_s);
    progress.UnloadForm(true);
    EXPECT_EQ(view.Taken(), QStringList());
}

TEST_F(ProgressTest, ClosingAtTheLastTurnIsNotUndone) {
    LoadWithDetails();
    pump.act = [this] { progress.Close(); };
    progress.UnloadForm(true);
    EXPECT_EQ(view.Taken(), (QStringList{u"node K1< <Finished!>"_s, u"closed"_s}));
}

TEST(ProgressKeys, ProfilesAreClickable) {
    EXPECT_TRUE(frmProgress::IsProfileKey(u"Key_0123456789012.16"_s));
    EXPECT_TRUE(frmProgress::IsProfileKey(u"OSV17"_s));
    EXPECT_FALSE(frmProgress::IsProfileKey(u"K12"_s));
    EXPECT_FALSE(frmProgress::IsProfileKey(u"key_1"_s));
    EXPECT_FALSE(frmProgress::IsProfileKey(u"Key"_s));
    EXPECT_FALSE(frmProgress::IsProfileKey({}));
}

} // namespace
} // namespace ostrand
