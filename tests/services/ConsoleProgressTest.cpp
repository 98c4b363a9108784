#include "services/ConsoleProgress.h"

#include "support/Scripted.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

class ConsoleProgressTest : public ::testing::Test {
protected:
    void SetUp() override { output.open(QIODevice::WriteOnly); }
    /// A job of three hundred items, one every 50 milliseconds.
    std::string Job(ProgressStyle style) {
        ConsoleProgress progress(output, clock, style);
        progress.Opened(Text("Import"));
        for (int i = 1; i <= 300; ++i) {
            clock.milliseconds += 50;
            progress.LineChanged(QStringLiteral("Title %1").arg(i));
            progress.BarChanged(i, 300);
        }
        progress.NodeAdded(Text("K1"), {}, Text("node"));
        progress.NodeTicked(Text("K1"));
        progress.Finished();
        progress.Closed();
        return output.data().toStdString();
    }
    QBuffer output;
    test::FakeClock clock;
};

TEST_F(ConsoleProgressTest, QuietPrintsNothing) {
    EXPECT_EQ(Job(ProgressStyle::Quiet), "");
}

TEST_F(ConsoleProgressTest, PlainPrintsTheTitleAndRarelyTheState) {
    EXPECT_EQ(Job(ProgressStyle::Plain), "Import\n 66 %  Title 200\n");
}

TEST_F(ConsoleProgressTest, TerminalDrawsOneLineOverAndOver) {
    const QString printed = QString::fromStdString(Job(ProgressStyle::Terminal));
    EXPECT_TRUE(printed.startsWith(Text("Import\n\r")));
    EXPECT_EQ(printed.count(u'\r'), 150) << "every 100 milliseconds";
    EXPECT_EQ(printed.count(u'\n'), 2);
    EXPECT_TRUE(printed.endsWith(Text("\r 99 %  Title 300\n"))) << printed.right(40).toStdString();
}

TEST_F(ConsoleProgressTest, ShorterStatesCoverLongerOnes) {
    ConsoleProgress progress(output, clock, ProgressStyle::Terminal);
    progress.Opened({});
    clock.milliseconds += 100;
    progress.LineChanged(Text("long\r\nline\x1B"));
    clock.milliseconds += 100;
    progress.LineChanged(Text("x"));
    progress.EndLine();
    progress.EndLine();
    EXPECT_EQ(output.data(), QByteArray("\rlong line\rx        \n"));
}

TEST_F(ConsoleProgressTest, CutsTheLineAtTheWidthOfATerminal) {
    ConsoleProgress progress(output, clock, ProgressStyle::Terminal);
    progress.Opened({});
    clock.milliseconds += 100;
    progress.DetailChanged(QString(200, u'x'));
    EXPECT_EQ(output.data().size(), 80);
}

TEST_F(ConsoleProgressTest, TellsANewTitleOnce) {
    ConsoleProgress progress(output, clock, ProgressStyle::Plain);
    progress.Opened(Text("A"));
    progress.TitleChanged(Text("A"));
    progress.TitleChanged(Text("B"));
    progress.CounterChanged(Text("1 of 2"));
    progress.Closed();
    progress.Opened(Text("B"));
    EXPECT_EQ(output.data(), QByteArray("A\nB\nB\n"));
}

} // namespace
} // namespace ostrand
