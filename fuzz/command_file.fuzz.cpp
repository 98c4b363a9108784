// Command files and the cutting of statements, without anything being run.

#include "base/Text.h"
#include "queries/DisplayText.h"
#include "queries/StatementSplitter.h"
#include "shell/CommandFile.h"

#include <cstdlib>

using namespace ostrand;

namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void MatchLines(const QString &text) {
    for (const QString &line : CommandLines(text)) {
        const CommandCall call = MatchCommand(line);
        Require(!call.command || line.contains(call.argument));
    }
}

QStringList Split(const QString &text, qsizetype piece) {
    StatementSplitter splitter;
    QStringList statements;
    for (qsizetype i = 0; i <= text.size(); i += piece) {
        splitter.Feed(QStringView(text).mid(i, piece));
        while (const std::optional<QString> statement = splitter.Next()) {
            statements.append(*statement);
        }
    }
    splitter.Finish();
    while (const std::optional<QString> statement = splitter.Next()) {
        statements.append(*statement);
    }
    return statements;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString text = DecodeUserText(QByteArrayView(data, qsizetype(size)));
    MatchLines(text);
    const QStringList statements = Split(text, std::max<qsizetype>(1, text.size() + 1));
    Require(Split(text, 3) == statements); // the pieces in which input comes do not matter
    for (const QString &statement : statements) {
        for (const QChar c : HarmlessText(statement)) {
            Require(c.unicode() >= 0x20);
        }
        Require(DisplayWidth(statement) >= 0);
    }
    return 0;
}
