// The rules that drop single rows: references, and NULL in a primary key.
#pragma once

namespace ostrand::sql {

class Catalogue;
class Connection;

/// Makes the triggers of the file those that the catalogue asks for: a row without its parent, a row with NULL in its
/// primary key, and the removal or re-keying of a parent that rows refer to are dropped without a fault. Triggers that
/// are right already stay as they are. NOT NULL and unique keys are no matter of triggers.
void SyncRowRules(Connection &connection, const Catalogue &catalogue);

/// Takes all such triggers away, for changes of the schema that SQLite refuses while a trigger names a column.
void DropRowRules(Connection &connection);

} // namespace ostrand::sql
