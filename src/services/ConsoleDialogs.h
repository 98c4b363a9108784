// Dialogs of a program without a screen.
#pragma once

#include "platform/Services.h"

#include <QIODevice>

namespace ostrand {

/// What stands in for a person. Neutral takes the answer that changes nothing.
enum class AnswerPolicy { Neutral, Yes, No };
/// Whether input dialogs are closed with their preset or cancelled.
enum class InputPolicy { Preset, Cancel };

/// Prints what a person would be shown, with the answer taken, and counts what a nightly run should look at.
class ConsoleDialogs : public UserDialogs {
public:
    ConsoleDialogs(QIODevice &output, AnswerPolicy answers, InputPolicy inputs = InputPolicy::Preset) :
        output_(output), answers_(answers), inputs_(inputs) {}

    MessageAnswer Show(const Message &message) override;
    std::optional<QString> InputText(const QString &prompt, const QString &title, const QString &preset) override;
    std::optional<QString> InputCombo(const QString &prompt, const QString &title, const QStringList &values,
                                      const QString &preset) override;
    /// There is nobody to choose: all three are cancelled.
    QString OpenFile(const FileRequest &request) override;
    QString SaveFile(const FileRequest &request) override;
    QString BrowseFolder(const QString &title, const QString &current) override;

    int Warnings() const { return warnings_; }
    int Criticals() const { return criticals_; }
    /// Questions, input and file dialogs for which no option held the answer.
    int AnsweredByDefault() const { return answered_by_default_; }

private:
    MessageAnswer Answer(const Message &message);
    void Print(const QString &line);
    QString ChooseFile(const FileRequest &request);

    QIODevice &output_;
    AnswerPolicy answers_;
    InputPolicy inputs_;
    int warnings_ = 0;
    int criticals_ = 0;
    int answered_by_default_ = 0;
};

/// The text for a terminal: line ends of the terminal, and no other control character, so that data cannot steer it.
QString TerminalText(const QString &text);

} // namespace ostrand
