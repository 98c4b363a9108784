// One value of a title, changed where it is shown.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand {

struct Session;

/// A column of `Profiles` or `Episodes` and how the user is asked for its value.
struct FieldChange {
    /// What the column makes of the answer.
    enum class Answer {
        Value,      ///< the text, number or date itself
        Translated, ///< a value that is shown translated, as the choices are
        Choice,     ///< the number of the choice, from 1
    };

    QString field;
    QString label; ///< English
    bool is_episode = false;
    /// English values to choose from; without any the user types.
    QStringList choices = {};
    QString lock_name = {};
    Answer answer = Answer::Value;
    /// An empty text is refused.
    bool required = false;
};

/// The values that profiles have in a column, each once.
QStringList DistinctValues(Session &session, const QString &column);

/// Asks for a new value of the current title's column and writes it, with its lock where the settings ask for one. An
/// answer that the column cannot hold is told. True when a value was written; a cancel, an unchanged value and no
/// current title change nothing. A fault of the database throws SqlError and changes nothing either.
bool ChangeField(Session &session, const FieldChange &change);

} // namespace ostrand
