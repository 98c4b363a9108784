// Cuts a text that arrives in pieces into SQL statements.
#pragma once

#include <QString>

#include <optional>

namespace ostrand {

/// A statement ends with a `;` that is the last character of its line but for blanks, outside of a text ('..', ".."),
/// a name ([..], `..`) or a date (#..#). Only texts may go over a line's end.
class StatementSplitter {
public:
    /// Adds text, in pieces of any size.
    void Feed(QStringView text);
    /// The text ends here: what is left is the last statement.
    void Finish();
    /// The next whole statement without the `;` that ended it and without blanks and line breaks around it; nothing
    /// while it is not there yet. A statement may be empty when a `;` stands alone.
    std::optional<QString> Next();

private:
    QString buffer_;
    qsizetype scanned_ = 0; ///< how far whole lines of the buffer are looked through
    QChar open_text_;       ///< the quote of a text that the scanned lines left open
    bool finished_ = false;
};

} // namespace ostrand
