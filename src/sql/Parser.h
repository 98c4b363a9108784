// From the text of a statement to its syntax tree.
#pragma once

#include "sql/Ast.h"

#include <QStringView>

namespace ostrand::sql {

/// Parses one statement of the dialect. A semicolon may end it; a bare table name reads as SELECT * FROM that table.
/// Throws SqlError with the position of the fault.
ast::Statement Parse(QStringView text);

} // namespace ostrand::sql
