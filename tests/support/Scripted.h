// The services of a program under test: a user who follows a script, a clock that stands, numbers that are known.
#pragma once

#include "platform/Services.h"
#include "services/NoDesktop.h"
#include "support/TempDir.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

namespace ostrand::test {

/// An ordered list of expected dialogs with their answers. The test fails on a dialog that is not next, and at the end
/// of the object's life on each one that was never shown. Empty texts of an expectation match anything; others must be
/// equal.
class ScriptedDialogs : public UserDialogs {
public:
    ~ScriptedDialogs() override;

    /// A box of any icon with these buttons' answer.
    void ExpectMessage(const QString &text, MessageAnswer answer = MessageAnswer::Ok, const QString &title = {});
    /// The same with the icon checked.
    void ExpectMessage(const QString &text, MessageIcon icon, MessageAnswer answer = MessageAnswer::Ok,
                       const QString &title = {});
    /// `answer` empty: the user closes without OK.
    void ExpectInput(const QString &prompt, const std::optional<QString> &answer, const QString &title = {});
    /// The user takes what is proposed.
    void ExpectInputPreset(const QString &prompt, const QString &title = {});
    void ExpectOpenFile(const QString &answer, const QString &title = {});
    void ExpectSaveFile(const QString &answer, const QString &title = {});
    void ExpectBrowseFolder(const QString &answer, const QString &title = {});

    MessageAnswer Show(const Message &message) override;
    std::optional<QString> InputText(const QString &prompt, const QString &title, const QString &preset) override;
    std::optional<QString> InputCombo(const QString &prompt, const QString &title, const QStringList &values,
                                      const QString &preset) override;
    QString OpenFile(const FileRequest &request) override;
    QString SaveFile(const FileRequest &request) override;
    QString BrowseFolder(const QString &title, const QString &current) override;

    /// What was shown so far.
    std::vector<Message> messages;
    std::vector<FileRequest> file_requests;
    /// The values and the preset of the last input dialog.
    QStringList last_values;
    QString last_preset;
    /// Expectations not yet met.
    size_t Pending() const { return expected_.size(); }

private:
    enum class Kind { Message, Input, OpenFile, SaveFile, BrowseFolder };
    struct Expectation {
        Kind kind = Kind::Message;
        QString text;
        QString title;
        std::optional<MessageIcon> icon;
        MessageAnswer answer = MessageAnswer::Ok;
        std::optional<QString> input;
        bool take_preset = false;
    };
    std::optional<Expectation> Next(Kind kind, const QString &text, const QString &title);
    QString ChooseFile(Kind kind, const FileRequest &request);

    std::deque<Expectation> expected_;
};

/// Records what a job told of itself: each call as a line such as "title Importing..." or "bar 3/10".
class ScriptedProgress : public ProgressView {
public:
    void Opened(const QString &title) override { calls += QStringLiteral("opened ") + title; }
    void TitleChanged(const QString &title) override { calls += QStringLiteral("title ") + title; }
    void LineChanged(const QString &line) override { calls += QStringLiteral("line ") + line; }
    void DetailChanged(const QString &detail) override { calls += QStringLiteral("detail ") + detail; }
    void CounterChanged(const QString &counter) override { calls += QStringLiteral("counter ") + counter; }
    void BarChanged(int value, int maximum) override { calls += QStringLiteral("bar %1/%2").arg(value).arg(maximum); }
    void NodeAdded(const QString &key, const QString &parent, const QString &text) override;
    void NodeTicked(const QString &key) override { calls += QStringLiteral("tick ") + key; }
    void Finished() override { calls += QStringLiteral("finished"); }
    void Closed() override { calls += QStringLiteral("closed"); }

    bool Has(const QString &call) const { return calls.contains(call); }
    /// The calls of one kind, without the word.
    QStringList Of(const QString &kind) const;

    QStringList calls;
};

/// Counts the turns of the event loop and acts at chosen ones.
class ScriptedPump : public EventPump {
public:
    /// Runs an action at the n-th turn, the first being 1.
    void At(int turn, std::function<void()> action) { actions_.emplace_back(turn, std::move(action)); }
    void Turn() override;
    int Turns() const { return turns_; }

private:
    std::vector<std::pair<int, std::function<void()>>> actions_;
    int turns_ = 0;
};

/// Stands at 2024-05-17 10:20:30 until it is moved.
class FakeClock : public Clock {
public:
    double Now() const override { return now; }
    double SecondsSinceMidnight() const override;
    qint64 Milliseconds() const override { return milliseconds; }

    double now = 45429.0 + (10 * 3600 + 20 * 60 + 30) / 86400.0;
    qint64 milliseconds = 0;
};

/// Gives the numbers of the list over and over.
class FakeRandom : public RandomNumbers {
public:
    double Next() override { return numbers[next_++ % numbers.size()]; }
    std::vector<double> numbers = {0.5};

private:
    size_t next_ = 0;
};

/// Records the programs started and gives the answer of `behave`.
class ScriptedProcesses : public ProcessRunner {
public:
    std::optional<int> Run(const QString &program, const QStringList &arguments, ProcessStyle style, EventPump *pump,
                           QString *error) override;
    std::optional<int> RunCommandLine(const QString &command, ProcessStyle style, EventPump *pump,
                                      QString *error) override;

    /// Notes the start; false where `behave` gives no exit code.
    bool Start(const QString &program, const QStringList &arguments, QString *error) override;

    /// Each start as program and arguments; a command line as one text.
    std::vector<QStringList> runs;
    /// What happens: takes the start, returns the exit code, or nothing after it set the error.
    std::function<std::optional<int>(const QStringList &run, QString *error)> behave;
};

/// Folders below one temporary folder; all exist.
class TempFolders : public Folders {
public:
    TempFolders();
    QString Documents() const override { return dir / QStringLiteral("documents"); }
    QString Temp() const override { return dir / QStringLiteral("temp"); }
    QString Program() const override { return dir / QStringLiteral("program"); }
    QStringList Resources() const override { return {Program()}; }
    QString UserName() const override { return user_name; }

    TempDir dir;
    QString user_name = QStringLiteral("tester");
};

class FakeLocale : public SystemLocale {
public:
    QString DecimalSeparator() const override { return decimal_separator; }
    QString LongDatePattern() const override { return long_date_pattern; }
    QString DefaultLanguage() const override { return default_language; }

    QString decimal_separator = QStringLiteral(".");
    QString long_date_pattern = QStringLiteral("dddd, MMMM d, yyyy");
    QString default_language = QStringLiteral("en-US");
};

class FakeKeyboard : public Keyboard {
public:
    bool CtrlHeld() const override { return ctrl; }
    bool ctrl = false;
};

/// Records what was handed over, and answers as it is told.
class ScriptedOpener : public Opener {
public:
    bool OpenUrl(const QString &url) override;
    bool OpenFile(const QString &path) override;
    void ChooseApplication(const QString &path) override { opened += QStringLiteral("choose ") + path; }

    /// Each call as "url ..", "file .." or "choose ..".
    QStringList opened;
    bool answer = true;
};

/// A net of pages that the test names.
class ScriptedDownloader : public Downloader {
public:
    bool Fetch(const QString &url, const QString &path, EventPump &pump, QString *error) override;

    /// URL to content; others are not found.
    QMap<QString, QByteArray> pages;
    QStringList fetched;
};

/// All of them with the struct that a session takes.
struct TestServices {
    ScriptedDialogs dialogs;
    ScriptedProgress progress;
    ScriptedPump pump;
    FakeClock clock;
    FakeRandom random;
    ScriptedProcesses processes;
    TempFolders folders;
    FakeLocale locale;
    PrivateClipboard clipboard;
    FakeKeyboard keyboard;
    ScriptedOpener opener;
    ImageHeads images;
    ScriptedDownloader downloader;
    Services services{dialogs, progress,  pump,     clock,  random, processes, folders,
                      locale,  clipboard, keyboard, opener, images, downloader};
};

} // namespace ostrand::test
