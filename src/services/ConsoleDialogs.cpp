#include "services/ConsoleDialogs.h"

namespace ostrand {

namespace {

QString IconWord(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical:
        return QStringLiteral("Error");
    case MessageIcon::Question:
        return QStringLiteral("Question");
    case MessageIcon::Warning:
        return QStringLiteral("Warning");
    case MessageIcon::Information:
        return QStringLiteral("Information");
    case MessageIcon::None:
        break;
    }
    return QStringLiteral("Message");
}

QString AnswerWord(MessageAnswer answer) {
    switch (answer) {
    case MessageAnswer::Ok:
        return QStringLiteral("OK");
    case MessageAnswer::Cancel:
        return QStringLiteral("Cancel");
    case MessageAnswer::Yes:
        return QStringLiteral("Yes");
    case MessageAnswer::No:
        break;
    }
    return QStringLiteral("No");
}

bool HasButton(MessageButtons buttons, MessageAnswer answer) {
    switch (buttons) {
    case MessageButtons::Ok:
        return answer == MessageAnswer::Ok;
    case MessageButtons::OkCancel:
        return answer == MessageAnswer::Ok || answer == MessageAnswer::Cancel;
    case MessageButtons::YesNo:
        return answer == MessageAnswer::Yes || answer == MessageAnswer::No;
    case MessageButtons::YesNoCancel:
        break;
    }
    return answer != MessageAnswer::Ok;
}

/// The button that a refusal presses.
MessageAnswer Refusal(MessageButtons buttons) {
    return HasButton(buttons, MessageAnswer::No) ? MessageAnswer::No : MessageAnswer::Cancel;
}

QString Heading(const QString &word, const QString &title) {
    return u'[' + word + u']' + (title.isEmpty() ? QString() : u' ' + title + u':');
}

} // namespace

QString TerminalText(const QString &text) {
    QString result;
    result.reserve(text.size());
    for (const QChar c : text)
        if (c == u'\n' || c == u'\t' || c.category() != QChar::Other_Control)
            result += c;
    return result;
}

void ConsoleDialogs::Print(const QString &line) {
    output_.write(TerminalText(line).toUtf8() + '\n');
}

MessageAnswer ConsoleDialogs::Answer(const Message &message) {
    if (message.buttons == MessageButtons::Ok)
        return MessageAnswer::Ok;
    if (answers_ == AnswerPolicy::Yes)
        return message.buttons == MessageButtons::OkCancel ? MessageAnswer::Ok : MessageAnswer::Yes;
    if (answers_ == AnswerPolicy::No)
        return Refusal(message.buttons);
    ++answered_by_default_;
    return HasButton(message.buttons, message.neutral) ? message.neutral : Refusal(message.buttons);
}

MessageAnswer ConsoleDialogs::Show(const Message &message) {
    warnings_ += message.icon == MessageIcon::Warning ? 1 : 0;
    criticals_ += message.icon == MessageIcon::Critical ? 1 : 0;
    const MessageAnswer answer = Answer(message);
    Print(Heading(IconWord(message.icon), message.title) + u' ' + message.text);
    if (message.buttons != MessageButtons::Ok)
        Print(QStringLiteral("  -> ") + AnswerWord(answer));
    return answer;
}

std::optional<QString> ConsoleDialogs::InputText(const QString &prompt, const QString &title, const QString &preset) {
    const bool cancelled = inputs_ == InputPolicy::Cancel;
    ++answered_by_default_;
    Print(Heading(QStringLiteral("Input"), title) + u' ' + prompt);
    Print(QStringLiteral("  -> ") + (cancelled ? AnswerWord(MessageAnswer::Cancel) : preset));
    return cancelled ? std::nullopt : std::optional(preset);
}

std::optional<QString> ConsoleDialogs::InputCombo(const QString &prompt, const QString &title,
                                                  const QStringList & /*values*/, const QString &preset) {
    return InputText(prompt, title, preset);
}

QString ConsoleDialogs::ChooseFile(const FileRequest &request) {
    ++answered_by_default_;
    Print(Heading(QStringLiteral("File"), request.title) + u' ' + request.initial);
    Print(QStringLiteral("  -> ") + AnswerWord(MessageAnswer::Cancel));
    return {};
}

QString ConsoleDialogs::OpenFile(const FileRequest &request) {
    return ChooseFile(request);
}

QString ConsoleDialogs::SaveFile(const FileRequest &request) {
    return ChooseFile(request);
}

QString ConsoleDialogs::BrowseFolder(const QString &title, const QString &current) {
    return ChooseFile({.title = title, .initial = current, .filters = {}});
}

} // namespace ostrand
