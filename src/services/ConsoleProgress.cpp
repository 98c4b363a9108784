#include "services/ConsoleProgress.h"

#include "services/ConsoleDialogs.h"

namespace ostrand {

namespace {

constexpr qint64 kTerminalPause = 100; // milliseconds between two drawings
constexpr qint64 kPlainPause = 10'000;
constexpr qsizetype kWidth = 79;

QString OneLine(const QString &text) {
    return TerminalText(QString(text).replace(u'\n', u' ').replace(u'\t', u' '));
}

} // namespace

void ConsoleProgress::Opened(const QString &title) {
    line_.clear();
    detail_.clear();
    counter_.clear();
    value_ = 0;
    maximum_ = 0;
    last_ = clock_.Milliseconds();
    TitleChanged(title);
}

void ConsoleProgress::TitleChanged(const QString &title) {
    if (title == title_)
        return;
    title_ = title;
    if (title.isEmpty() || style_ == ProgressStyle::Quiet)
        return;
    EndLine();
    Print(OneLine(title) + u'\n');
}

void ConsoleProgress::LineChanged(const QString &line) {
    line_ = line;
    Update();
}

void ConsoleProgress::DetailChanged(const QString &detail) {
    detail_ = detail;
    Update();
}

void ConsoleProgress::CounterChanged(const QString &counter) {
    counter_ = counter;
    Update();
}

void ConsoleProgress::BarChanged(int value, int maximum) {
    value_ = value;
    maximum_ = maximum;
    Update();
}

void ConsoleProgress::Closed() {
    EndLine();
    title_.clear();
}

void ConsoleProgress::EndLine() {
    if (drawn_ > 0)
        Print(QStringLiteral("\n"));
    drawn_ = 0;
}

QString ConsoleProgress::State() const {
    QStringList parts;
    if (maximum_ > 0)
        parts += QStringLiteral("%1 %").arg(qint64(std::clamp(value_, 0, maximum_)) * 100 / maximum_, 3);
    for (const QString &part : {counter_, line_, detail_})
        if (!part.isEmpty())
            parts += OneLine(part);
    return parts.join(QStringLiteral("  ")).left(kWidth);
}

void ConsoleProgress::Update() {
    if (style_ == ProgressStyle::Quiet)
        return;
    const qint64 now = clock_.Milliseconds();
    if (now - last_ < (style_ == ProgressStyle::Terminal ? kTerminalPause : kPlainPause))
        return;
    last_ = now;
    const QString state = State();
    if (style_ == ProgressStyle::Plain) {
        Print(state + u'\n');
        return;
    }
    Print(u'\r' + state.leftJustified(drawn_));
    drawn_ = state.size();
}

void ConsoleProgress::Print(const QString &text) {
    output_.write(text.toUtf8());
}

} // namespace ostrand
