// What the program asks of a person and of the system. Each interface has a console form (src/services), a scripted
// form for tests (tests/support), and on a desktop a form with windows.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace ostrand {

/// The numbers are those that message texts are told with.
enum class MessageIcon { None = 0, Critical = 16, Question = 32, Warning = 48, Information = 64 };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

/// A message box. Its texts are already translated.
struct Message {
    QString text;
    QString title;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    /// The answer that changes nothing: what a program without a person takes, and the button that Esc presses.
    MessageAnswer neutral = MessageAnswer::Ok;
};

/// A file dialog. `filters` is a list of "Text|*.a;*.b".
struct FileRequest {
    QString title;
    QString initial;
    QStringList filters;
};

class UserDialogs {
public:
    virtual ~UserDialogs() = default;
    virtual MessageAnswer Show(const Message &message) = 0;
    /// One value asked for; nothing when the user closed without OK.
    virtual std::optional<QString> InputText(const QString &prompt, const QString &title, const QString &preset) = 0;
    /// The same with values to choose from; free text is allowed too.
    virtual std::optional<QString> InputCombo(const QString &prompt, const QString &title, const QStringList &values,
                                              const QString &preset) = 0;
    /// The chosen path; empty when the user cancelled.
    virtual QString OpenFile(const FileRequest &request) = 0;
    virtual QString SaveFile(const FileRequest &request) = 0;
    /// A folder chosen by the user, without a trailing separator; empty when the user cancelled.
    virtual QString BrowseFolder(const QString &title, const QString &current) = 0;
};

/// The look of the progress window; its rules are those of frmProgress (shell/Progress.h).
class ProgressView {
public:
    virtual ~ProgressView() = default;
    virtual void Opened(const QString &title) = 0;
    virtual void TitleChanged(const QString &title) = 0;
    virtual void LineChanged(const QString &line) = 0;
    virtual void DetailChanged(const QString &detail) = 0;
    virtual void CounterChanged(const QString &counter) = 0;
    virtual void BarChanged(int value, int maximum) = 0;
    /// A node of the tree; `parent` is empty for a root node.
    virtual void NodeAdded(const QString &key, const QString &parent, const QString &text) = 0;
    virtual void NodeTicked(const QString &key) = 0;
    /// The job is done and the window stays until the user closes it: the close button is enabled and has the focus.
    virtual void Finished() = 0;
    virtual void Closed() = 0;
};

/// Gives the event loop a turn. A long job calls it between items.
class EventPump {
public:
    virtual ~EventPump() = default;
    virtual void Turn() = 0;
    /// True when the system asked the program to end; who waits for another program ends it then.
    virtual bool Stopping() const { return false; }
};

class Clock {
public:
    virtual ~Clock() = default;
    /// Local time as a day count since 1899-12-30.
    virtual double Now() const = 0;
    /// Seconds since local midnight, with their fraction.
    virtual double SecondsSinceMidnight() const = 0;
    /// A steady count of milliseconds, for measuring.
    virtual qint64 Milliseconds() const = 0;
};

class RandomNumbers {
public:
    virtual ~RandomNumbers() = default;
    /// From 0 to below 1.
    virtual double Next() = 0;
};

/// How a command's window shows, where the system has windows for commands.
enum class ProcessStyle { Hidden, Minimised };

class ProcessRunner {
public:
    virtual ~ProcessRunner() = default;
    /// Runs a program with its arguments to its end, giving `pump` a turn between polls when it is not null. Returns
    /// its exit code; nothing when it could not be started, and then `error` says why.
    virtual std::optional<int> Run(const QString &program, const QStringList &arguments, ProcessStyle style,
                                   EventPump *pump, QString *error) = 0;
    /// The same with one line for the system's command interpreter.
    virtual std::optional<int> RunCommandLine(const QString &command, ProcessStyle style, EventPump *pump,
                                              QString *error) = 0;
    /// Starts a program that lives on by itself. False when it could not be started, and then `error` says why.
    virtual bool Start(const QString &program, const QStringList &arguments, QString *error) = 0;
};

class Folders {
public:
    virtual ~Folders() = default;
    /// The user's documents folder; the home folder where there is none.
    virtual QString Documents() const = 0;
    /// A folder for scratch files, private to the user.
    virtual QString Temp() const = 0;
    /// The folder of the program file.
    virtual QString Program() const = 0;
    /// Where the program's own files may lie (html, samples, skins), best first: beside the program, its share folder.
    virtual QStringList Resources() const = 0;
    /// The account name of the user.
    virtual QString UserName() const = 0;
};

class SystemLocale {
public:
    virtual ~SystemLocale() = default;
    virtual QString DecimalSeparator() const = 0;
    /// The long date pattern in the letters d, M, y of the system.
    virtual QString LongDatePattern() const = 0;
    /// The default language such as "de-DE".
    virtual QString DefaultLanguage() const = 0;
};

/// The clipboard as text.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void SetText(const QString &text) = 0;
    virtual QString Text() const = 0;
};

/// The state of the keyboard, read at any moment and not from an event.
class Keyboard {
public:
    virtual ~Keyboard() = default;
    virtual bool CtrlHeld() const = 0;
};

/// Hands something to the application that the system has for it.
class Opener {
public:
    virtual ~Opener() = default;
    /// True when an application took it.
    virtual bool OpenUrl(const QString &url) = 0;
    virtual bool OpenFile(const QString &path) = 0;
    /// Lets the user choose an application for a file that has none.
    virtual void ChooseApplication(const QString &path) = 0;
};

/// What the core must know of an image file.
class Images {
public:
    virtual ~Images() = default;
    /// Width and height in pixels, read from the file's head; nothing when it is no image.
    virtual std::optional<std::pair<int, int>> Size(const QString &path) const = 0;
};

/// Fetches files from servers.
class Downloader {
public:
    virtual ~Downloader() = default;
    /// Fetches an http or https URL into a file by one GET past all caches, giving `pump` turns while it waits; when
    /// the pump tells that the program is to end, the transfer ends too. False on a fault, which leaves a file of that
    /// name as it was, and then `error` says why.
    virtual bool Fetch(const QString &url, const QString &path, EventPump &pump, QString *error) = 0;
};

/// All of them, handed in once.
struct Services {
    UserDialogs &dialogs;
    ProgressView &progress;
    EventPump &pump;
    Clock &clock;
    RandomNumbers &random;
    ProcessRunner &processes;
    Folders &folders;
    SystemLocale &locale;
    Clipboard &clipboard;
    Keyboard &keyboard;
    Opener &opener;
    Images &images;
    Downloader &downloader;
};

} // namespace ostrand
