#include "support/Scripted.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using test::ScriptedDialogs;

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

Message Question(const char *text, const char *title) {
    return {Text(text), Text(title), MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::No};
}

TEST(ScriptedDialogsTest, AnswersInOrder) {
    ScriptedDialogs dialogs;
    dialogs.ExpectMessage(Text("One?"), MessageAnswer::Yes, Text("T"));
    dialogs.ExpectMessage({}, MessageIcon::Question, MessageAnswer::Cancel);
    dialogs.ExpectInput(Text("Name"), Text("x"));
    dialogs.ExpectInput(Text("Name"), std::nullopt);
    dialogs.ExpectInputPreset(Text("Name"));
    dialogs.ExpectOpenFile(Text("/a"), Text("Open"));
    dialogs.ExpectSaveFile(Text("/b"));
    EXPECT_EQ(int(dialogs.Show(Question("One?", "T"))), int(MessageAnswer::Yes));
    EXPECT_EQ(int(dialogs.Show(Question("Two?", "T"))), int(MessageAnswer::Cancel));
    EXPECT_EQ(dialogs.InputText(Text("Name"), {}, Text("p")), Text("x"));
    EXPECT_EQ(dialogs.InputCombo(Text("Name"), {}, {Text("v")}, Text("p")), std::nullopt);
    EXPECT_EQ(dialogs.last_values, QStringList(Text("v")));
    EXPECT_EQ(dialogs.InputText(Text("Name"), {}, Text("p")), Text("p"));
    EXPECT_EQ(dialogs.OpenFile({Text("Open"), {}, {}}), Text("/a"));
    EXPECT_EQ(dialogs.SaveFile({}), Text("/b"));
    EXPECT_EQ(dialogs.Pending(), 0u);
    EXPECT_EQ(dialogs.messages.size(), 2u);
}

TEST(ScriptedDialogsTest, FailsOnWhatWasNotExpected) {
    EXPECT_NONFATAL_FAILURE(ScriptedDialogs().Show(Question("One?", "T")), "unexpected dialog");
    EXPECT_NONFATAL_FAILURE(ScriptedDialogs().InputText({}, {}, {}), "unexpected dialog");
    EXPECT_NONFATAL_FAILURE(ScriptedDialogs().OpenFile({}), "unexpected dialog");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage(Text("One?"));
            dialogs.Show(Question("Two?", "T"));
        },
        "One?");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage({}, MessageAnswer::Ok, Text("Title"));
            dialogs.Show(Question("Two?", "T"));
        },
        "Title");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage({}, MessageIcon::Warning);
            dialogs.Show(Question("Two?", "T"));
        },
        "Two?");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectOpenFile(Text("/a"));
            dialogs.SaveFile({});
        },
        "another kind");
}

TEST(ScriptedDialogsTest, FailsOnWhatWasNeverAsked) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage(Text("One?"));
        },
        "never asked");
}

TEST(ScriptedServicesTest, RecordAndAct) {
    test::TestServices all;
    Services &services = all.services;
    services.progress.Opened(Text("T"));
    services.progress.BarChanged(1, 2);
    services.progress.NodeAdded(Text("K1"), {}, Text("n"));
    services.progress.NodeAdded(Text("K2"), Text("K1"), Text("m"));
    EXPECT_TRUE(all.progress.Has(Text("opened T")));
    EXPECT_EQ(all.progress.Of(Text("node")), QStringList({Text("K1 n"), Text("K1/K2 m")}));
    int acted = 0;
    all.pump.At(2, [&] { ++acted; });
    for (int i = 0; i < 3; ++i)
        services.pump.Turn();
    EXPECT_EQ(acted, 1);
    EXPECT_EQ(all.pump.Turns(), 3);
    all.random.numbers = {0.1, 0.2};
    EXPECT_EQ(services.random.Next() + services.random.Next() + services.random.Next(), 0.1 + 0.2 + 0.1);
    EXPECT_NEAR(services.clock.SecondsSinceMidnight(), 10 * 3600 + 20 * 60 + 30, 0.01);
    all.processes.behave = [](const QStringList &, QString *error) {
        *error = Text("gone");
        return std::optional<int>();
    };
    QString error;
    EXPECT_EQ(services.processes.Run(Text("p"), {Text("a")}, ProcessStyle::Hidden, nullptr, &error), std::nullopt);
    EXPECT_EQ(error, Text("gone"));
    EXPECT_EQ(all.processes.runs.at(0), QStringList({Text("p"), Text("a")}));
}

} // namespace
} // namespace ostrand
