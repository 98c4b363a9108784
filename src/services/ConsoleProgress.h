// Progress on a terminal.
#pragma once

#include "platform/Services.h"

#include <QIODevice>

namespace ostrand {

/// Terminal draws one line over and over; Plain, for logs, prints titles and now and then the state; Quiet nothing.
enum class ProgressStyle { Terminal, Plain, Quiet };

class ConsoleProgress : public ProgressView {
public:
    ConsoleProgress(QIODevice &output, const Clock &clock, ProgressStyle style) :
        output_(output), clock_(clock), style_(style) {}

    void Opened(const QString &title) override;
    void TitleChanged(const QString &title) override;
    void LineChanged(const QString &line) override;
    void DetailChanged(const QString &detail) override;
    void CounterChanged(const QString &counter) override;
    void BarChanged(int value, int maximum) override;
    /// The tree is for reading afterwards; a terminal has no room for it.
    void NodeAdded(const QString &, const QString &, const QString &) override {}
    void NodeTicked(const QString &) override {}
    /// Nobody will press the button; the rules of the window close it.
    void Finished() override {}
    void Closed() override;

    /// Ends the drawn line, so that other output can start on its own; it is drawn again at the next change.
    void EndLine();

private:
    void Update();
    QString State() const;
    void Print(const QString &text);

    QIODevice &output_;
    const Clock &clock_;
    ProgressStyle style_;
    QString title_;
    QString line_;
    QString detail_;
    QString counter_;
    int value_ = 0;
    int maximum_ = 0;
    qint64 last_ = 0;
    qsizetype drawn_ = 0;
};

} // namespace ostrand
