// The shape of a statement: its tokens with each literal replaced by its kind. Texts that differ only in their
// literals share one prepared statement.
#pragma once

#include "sql/Types.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace ostrand::sql {

/// A literal token of a statement. Texts are undoubled, numbers and dates converted. The n-th element belongs to the
/// ast::Literal of index n; tokens that no ast::Literal refers to (of TOP, of a text alias, of a column's length) have
/// their place here too.
struct LiteralToken {
    Kind kind = Kind::Null; ///< Text, Integer, Real or Date
    QString text;           ///< of a Text: its content; of the others: the token as written
    double number = 0;
};

struct Shape {
    QString key;
    std::vector<LiteralToken> literals;
};

/// Scans a statement into its shape, in one pass and without looking at its grammar. White space, letter case of
/// words and a closing semicolon do not count; names in brackets are kept as written. Both members of `shape` are
/// overwritten, so that one object can be used again without new memory. Returns false where the text holds no tokens
/// of the dialect (an unclosed literal, a character that begins no token); the parser then finds the fault.
bool ScanShape(QStringView text, Shape &shape);

} // namespace ostrand::sql
