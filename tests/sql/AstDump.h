// A syntax tree as a short text, for tests.
#pragma once

#include "sql/Ast.h"

#include <string>

namespace ostrand::sql {

/// An expression with every operator in round brackets; literals carry their index behind "#".
std::string Dump(const ast::ExprPtr &expr);
/// A statement in a fixed spelling with all brackets that its tree holds.
std::string Dump(const ast::Statement &statement);

} // namespace ostrand::sql
