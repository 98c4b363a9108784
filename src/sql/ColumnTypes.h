// The type words of the dialect.
#pragma once

#include "sql/Ast.h"
#include "sql/Catalogue.h"

#include <QStringView>

#include <optional>

namespace ostrand::sql {

/// The kind that a type word of CREATE TABLE, ALTER TABLE or PARAMETERS stands for; empty for an unknown word.
std::optional<Kind> KindOfTypeWord(QStringView word);

/// The column that a definition asks for. Texts without a length have 255 UTF-16 units. Throws UnknownType.
ColumnInfo ColumnOfDefinition(const ast::ColumnDef &definition);

} // namespace ostrand::sql
