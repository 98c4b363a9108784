#include "support/Scripted.h"

#include <QDir>

#include <cmath>
#include <gtest/gtest.h>

namespace ostrand::test {

void ScriptedDialogs::ExpectMessage(const QString &text, MessageAnswer answer, const QString &title) {
    expected_.push_back({Kind::Message, text, title, std::nullopt, answer, std::nullopt, false});
}

void ScriptedDialogs::ExpectMessage(const QString &text, MessageIcon icon, MessageAnswer answer, const QString &title) {
    expected_.push_back({Kind::Message, text, title, icon, answer, std::nullopt, false});
}

void ScriptedDialogs::ExpectInput(const QString &prompt, const std::optional<QString> &answer, const QString &title) {
    expected_.push_back({Kind::Input, prompt, title, std::nullopt, MessageAnswer::Ok, answer, false});
}

void ScriptedDialogs::ExpectInputPreset(const QString &prompt, const QString &title) {
    expected_.push_back({Kind::Input, prompt, title, std::nullopt, MessageAnswer::Ok, std::nullopt, true});
}

void ScriptedDialogs::ExpectOpenFile(const QString &answer, const QString &title) {
    expected_.push_back({Kind::OpenFile, {}, title, std::nullopt, MessageAnswer::Ok, answer, false});
}

void ScriptedDialogs::ExpectSaveFile(const QString &answer, const QString &title) {
    expected_.push_back({Kind::SaveFile, {}, title, std::nullopt, MessageAnswer::Ok, answer, false});
}

void ScriptedDialogs::ExpectBrowseFolder(const QString &answer, const QString &title) {
    expected_.push_back({Kind::BrowseFolder, {}, title, std::nullopt, MessageAnswer::Ok, answer, false});
}

ScriptedDialogs::~ScriptedDialogs() {
    for (const Expectation &expectation : expected_)
        ADD_FAILURE() << "never asked: \"" << qPrintable(expectation.text) << "\" under \""
                      << qPrintable(expectation.title) << '"';
}

std::optional<ScriptedDialogs::Expectation> ScriptedDialogs::Next(Kind kind, const QString &text,
                                                                  const QString &title) {
    if (expected_.empty()) {
        ADD_FAILURE() << "unexpected dialog: \"" << qPrintable(text) << "\" under \"" << qPrintable(title) << '"';
        return std::nullopt;
    }
    Expectation next = expected_.front();
    expected_.pop_front();
    EXPECT_EQ(int(next.kind), int(kind)) << "another kind of dialog: " << qPrintable(text) << qPrintable(title);
    if (!next.text.isEmpty())
        EXPECT_EQ(next.text.toStdString(), text.toStdString());
    if (!next.title.isEmpty())
        EXPECT_EQ(next.title.toStdString(), title.toStdString());
    return next;
}

MessageAnswer ScriptedDialogs::Show(const Message &message) {
    messages.push_back(message);
    const auto next = Next(Kind::Message, message.text, message.title);
    if (!next)
        return message.neutral;
    if (next->icon)
        EXPECT_EQ(int(*next->icon), int(message.icon)) << qPrintable(message.text);
    return next->answer;
}

std::optional<QString> ScriptedDialogs::InputCombo(const QString &prompt, const QString &title,
                                                   const QStringList &values, const QString &preset) {
    last_values = values;
    last_preset = preset;
    const auto next = Next(Kind::Input, prompt, title);
    if (!next)
        return std::nullopt;
    return next->take_preset ? std::optional(preset) : next->input;
}

std::optional<QString> ScriptedDialogs::InputText(const QString &prompt, const QString &title, const QString &preset) {
    return InputCombo(prompt, title, {}, preset);
}

QString ScriptedDialogs::ChooseFile(Kind kind, const FileRequest &request) {
    file_requests.push_back(request);
    const auto next = Next(kind, {}, request.title);
    return next ? next->input.value_or(QString()) : QString();
}

QString ScriptedDialogs::OpenFile(const FileRequest &request) {
    return ChooseFile(Kind::OpenFile, request);
}

QString ScriptedDialogs::SaveFile(const FileRequest &request) {
    return ChooseFile(Kind::SaveFile, request);
}

QString ScriptedDialogs::BrowseFolder(const QString &title, const QString &current) {
    return ChooseFile(Kind::BrowseFolder, {.title = title, .initial = current, .filters = {}});
}

bool ScriptedOpener::OpenUrl(const QString &url) {
    opened += QStringLiteral("url ") + url;
    return answer;
}

bool ScriptedOpener::OpenFile(const QString &path) {
    opened += QStringLiteral("file ") + path;
    return answer;
}

void ScriptedProgress::NodeAdded(const QString &key, const QString &parent, const QString &text) {
    calls += parent.isEmpty() ? QStringLiteral("node ") + key + u' ' + text
                              : QStringLiteral("node ") + parent + u'/' + key + u' ' + text;
}

QStringList ScriptedProgress::Of(const QString &kind) const {
    QStringList found;
    for (const QString &call : calls)
        if (call.startsWith(kind + u' '))
            found += call.mid(kind.size() + 1);
    return found;
}

void ScriptedPump::Turn() {
    ++turns_;
    // By index: an action may add actions.
    for (size_t i = 0; i < actions_.size(); ++i)
        if (actions_[i].first == turns_)
            std::function<void()>(actions_[i].second)();
}

double FakeClock::SecondsSinceMidnight() const {
    return std::round((now - std::floor(now)) * 86'400'000.0) / 1000.0;
}

std::optional<int> ScriptedProcesses::Run(const QString &program, const QStringList &arguments, ProcessStyle,
                                          EventPump *pump, QString *error) {
    runs.push_back(QStringList(program) + arguments);
    if (pump != nullptr)
        pump->Turn();
    return behave ? behave(runs.back(), error) : std::optional(0);
}

std::optional<int> ScriptedProcesses::RunCommandLine(const QString &command, ProcessStyle style, EventPump *pump,
                                                     QString *error) {
    return Run(command, {}, style, pump, error);
}

bool ScriptedProcesses::Start(const QString &program, const QStringList &arguments, QString *error) {
    return Run(program, arguments, ProcessStyle::Hidden, nullptr, error).has_value();
}

bool ScriptedDownloader::Fetch(const QString &url, const QString &path, EventPump &pump, QString *error) {
    fetched += url;
    pump.Turn();
    const auto page = pages.constFind(url);
    QFile file(path);
    if (page == pages.constEnd() || !file.open(QIODevice::WriteOnly)) {
        if (error != nullptr) {
            *error = QStringLiteral("not found");
        }
        return false;
    }
    file.write(*page);
    return true;
}

TempFolders::TempFolders() {
    for (const QString &path : {Documents(), Temp(), Program()})
        EXPECT_TRUE(QDir().mkpath(path));
}

} // namespace ostrand::test
