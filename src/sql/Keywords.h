// The words that the grammar gives a meaning. A word is a keyword only where the grammar asks for it.
#pragma once

#include <QStringView>

#include <cstdint>

namespace ostrand::sql {

enum class Keyword : std::uint8_t {
    None, ///< a word without meaning for the grammar
    Action,
    Add,
    All,
    Alter,
    And,
    Any,
    As,
    Asc,
    Between,
    By,
    Cascade,
    Column,
    Comp,
    Compression,
    Constraint,
    Create,
    Default,
    Delete,
    Desc,
    Disallow,
    Distinct,
    DistinctRow,
    Drop,
    Eqv,
    Exists,
    False,
    Foreign,
    From,
    Group,
    Having,
    Ignore,
    Imp,
    In,
    Index,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Key,
    Left,
    Like,
    Mod,
    No,
    Not,
    Null,
    Off,
    On,
    Option,
    Or,
    Order,
    Outer,
    OwnerAccess,
    Parameters,
    Percent,
    Pivot,
    Primary,
    References,
    Right,
    Select,
    Set,
    Some,
    Table,
    Top,
    Transform,
    True,
    Union,
    Unique,
    Update,
    Values,
    Where,
    With,
    Xor,
    Yes,
};

/// The keyword of a word, letter case ignored.
Keyword FindKeyword(QStringView word);

/// True for a word that stands for itself nowhere: as a name it needs brackets.
bool IsReserved(Keyword keyword);

} // namespace ostrand::sql
