#include "queries/StatementSplitter.h"

namespace ostrand {

namespace {

bool IsQuote(QChar c) {
    return c == u'\'' || c == u'"';
}

/// The closing mark of a name or a date that begins with `c`; null for any other character.
QChar ClosingMark(QChar c) {
    switch (c.unicode()) {
    case u'[':
        return u']';
    case u'`':
    case u'#':
        return c;
    default:
        return {};
    }
}

/// Scans a line. `open_text` is the quote of a text that reaches into it, and of one that reaches out of it.
bool EndsStatement(QStringView line, QChar &open_text) {
    QChar last;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (!open_text.isNull()) {
            // A doubled quote closes the text and opens it again.
            if (c == open_text) {
                open_text = QChar();
            }
            last = QChar();
        } else if (IsQuote(c)) {
            open_text = c;
        } else if (const QChar closing = ClosingMark(c); !closing.isNull()) {
            const qsizetype end = line.indexOf(closing, i + 1);
            i = end < 0 ? i : end;
            last = c;
        } else if (!c.isSpace()) {
            last = c;
        }
    }
    return open_text.isNull() && last == u';';
}

} // namespace

void StatementSplitter::Feed(QStringView text) {
    buffer_.append(text);
}

void StatementSplitter::Finish() {
    finished_ = true;
}

std::optional<QString> StatementSplitter::Next() {
    while (true) {
        const qsizetype line_end = buffer_.indexOf(u'\n', scanned_);
        if (line_end < 0 && !finished_) {
            return std::nullopt;
        }
        const qsizetype end = line_end < 0 ? buffer_.size() : line_end;
        const qsizetype next_line = line_end < 0 ? end : end + 1;
        const bool ended = EndsStatement(QStringView(buffer_).mid(scanned_, end - scanned_), open_text_);
        if (!ended && line_end >= 0) {
            scanned_ = next_line;
            continue;
        }
        QString statement = buffer_.left(end).trimmed();
        buffer_.remove(0, next_line);
        scanned_ = 0;
        open_text_ = QChar();
        if (ended) {
            statement.chop(1);
            return statement.trimmed();
        }
        return statement.isEmpty() ? std::nullopt : std::optional(statement);
    }
}

} // namespace ostrand
