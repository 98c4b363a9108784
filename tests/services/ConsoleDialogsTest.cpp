#include "services/ConsoleDialogs.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

struct AnswerCase {
    const char *name;
    AnswerPolicy policy;
    MessageButtons buttons;
    MessageAnswer neutral;
    MessageAnswer answer;
    int by_default;
};

class ConsoleAnswerTest : public ::testing::TestWithParam<AnswerCase> {};

TEST_P(ConsoleAnswerTest, Answers) {
    const AnswerCase &c = GetParam();
    QBuffer output;
    output.open(QIODevice::WriteOnly);
    ConsoleDialogs dialogs(output, c.policy);
    Message message;
    message.text = Text("Go on?");
    message.buttons = c.buttons;
    message.neutral = c.neutral;
    EXPECT_EQ(int(dialogs.Show(message)), int(c.answer));
    EXPECT_EQ(dialogs.AnsweredByDefault(), c.by_default);
    EXPECT_EQ(output.data().contains("-> "), c.buttons != MessageButtons::Ok);
}

using P = AnswerPolicy;
using B = MessageButtons;
using A = MessageAnswer;
INSTANTIATE_TEST_SUITE_P(
    Policies, ConsoleAnswerTest,
    ::testing::Values(AnswerCase{"Ok", P::Neutral, B::Ok, A::Ok, A::Ok, 0},
                      AnswerCase{"OkByNo", P::No, B::Ok, A::Ok, A::Ok, 0},
                      AnswerCase{"NeutralYes", P::Neutral, B::YesNo, A::Yes, A::Yes, 1},
                      AnswerCase{"NeutralNo", P::Neutral, B::YesNo, A::No, A::No, 1},
                      AnswerCase{"NeutralCancel", P::Neutral, B::YesNoCancel, A::Cancel, A::Cancel, 1},
                      AnswerCase{"NeutralOk", P::Neutral, B::OkCancel, A::Ok, A::Ok, 1},
                      AnswerCase{"NeutralThatIsNoButtonRefuses", P::Neutral, B::YesNo, A::Ok, A::No, 1},
                      AnswerCase{"NeutralThatIsNoButtonCancels", P::Neutral, B::OkCancel, A::No, A::Cancel, 1},
                      AnswerCase{"Yes", P::Yes, B::YesNo, A::No, A::Yes, 0},
                      AnswerCase{"YesOfThree", P::Yes, B::YesNoCancel, A::Cancel, A::Yes, 0},
                      AnswerCase{"YesIsOk", P::Yes, B::OkCancel, A::Cancel, A::Ok, 0},
                      AnswerCase{"No", P::No, B::YesNo, A::Yes, A::No, 0},
                      AnswerCase{"NoOfThree", P::No, B::YesNoCancel, A::Cancel, A::No, 0},
                      AnswerCase{"NoIsCancel", P::No, B::OkCancel, A::Ok, A::Cancel, 0}),
    [](const auto &info) { return info.param.name; });

class ConsoleDialogsTest : public ::testing::Test {
protected:
    void SetUp() override { output.open(QIODevice::WriteOnly); }
    QString Printed() const { return QString::fromUtf8(output.data()); }
    QBuffer output;
};

TEST_F(ConsoleDialogsTest, PrintsIconTitleTextAndAnswer) {
    ConsoleDialogs dialogs(output, AnswerPolicy::Yes);
    Message message{Text("Line 1\r\nLine ä"), Text("Import"), MessageIcon::Warning, MessageButtons::YesNo,
                    MessageAnswer::No};
    dialogs.Show(message);
    EXPECT_EQ(Printed(), Text("[Warning] Import: Line 1\nLine ä\n  -> Yes\n"));
}

TEST_F(ConsoleDialogsTest, CountsWhatANightlyRunShouldLookAt) {
    ConsoleDialogs dialogs(output, AnswerPolicy::Neutral);
    for (const MessageIcon icon : {MessageIcon::None, MessageIcon::Information, MessageIcon::Question,
                                   MessageIcon::Warning, MessageIcon::Warning, MessageIcon::Critical})
        dialogs.Show({Text("x"), {}, icon, MessageButtons::Ok, MessageAnswer::Ok});
    EXPECT_EQ(dialogs.Warnings(), 2);
    EXPECT_EQ(dialogs.Criticals(), 1);
    EXPECT_EQ(dialogs.AnsweredByDefault(), 0);
    EXPECT_EQ(Printed(), Text("[Message] x\n[Information] x\n[Question] x\n[Warning] x\n[Warning] x\n[Error] x\n"));
}

TEST_F(ConsoleDialogsTest, DataCannotSteerTheTerminal) {
    ConsoleDialogs dialogs(output, AnswerPolicy::Neutral);
    dialogs.Show({Text("a\x1B[2Jb\x07\u009B"
                       "c\rd"),
                  {},
                  MessageIcon::None,
                  MessageButtons::Ok,
                  MessageAnswer::Ok});
    EXPECT_EQ(Printed(), Text("[Message] a[2Jbcd\n"));
}

TEST_F(ConsoleDialogsTest, InputsTakeThePresetOrCancel) {
    ConsoleDialogs dialogs(output, AnswerPolicy::Yes);
    EXPECT_EQ(dialogs.InputText(Text("Name?"), Text("T"), Text("preset")), Text("preset"));
    EXPECT_EQ(dialogs.InputCombo(Text("Name?"), Text("T"), {Text("a")}, Text("b")), Text("b"));
    EXPECT_EQ(Printed(), Text("[Input] T: Name?\n  -> preset\n[Input] T: Name?\n  -> b\n"));
    EXPECT_EQ(dialogs.AnsweredByDefault(), 2);
    ConsoleDialogs cancelling(output, AnswerPolicy::Yes, InputPolicy::Cancel);
    EXPECT_EQ(cancelling.InputText(Text("Name?"), {}, Text("preset")), std::nullopt);
    EXPECT_EQ(cancelling.InputCombo(Text("Name?"), {}, {}, Text("preset")), std::nullopt);
}

TEST_F(ConsoleDialogsTest, FileDialogsAreCancelled) {
    ConsoleDialogs dialogs(output, AnswerPolicy::Yes);
    EXPECT_EQ(dialogs.OpenFile({Text("Open"), Text("a.xml"), {}}), QString());
    EXPECT_EQ(dialogs.SaveFile({Text("Save"), {}, {}}), QString());
    EXPECT_EQ(dialogs.AnsweredByDefault(), 2);
}

} // namespace
} // namespace ostrand
