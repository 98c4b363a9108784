// The events of a title: who watched, borrowed or returned it, and when.
#pragma once

#include "browser/CheckList.h"
#include "browser/SheetTitle.h"
#include "shell/ListTable.h"

namespace ostrand {

/// An event as the database has it.
struct TitleEvent {
    QString id;
    QString user;
    QString type;  ///< English where the program knows the type
    QString stamp; ///< "yyyy-mm-dd hh:nn:ss", empty for none
    QString comment;
};

/// What is asked for of an event; the type as shown.
struct EventInput {
    QString type;
    QString stamp;
    QString comment;
};

/// The events of one title, and the people that events can name. All members that ask the database throw SqlError.
class ProfileEvents {
public:
    explicit ProfileEvents(Session &session);

    /// The headers of listEvents in the user's language.
    void TranslateHeaders();
    /// Reads the active users; those that SelectedUsers names are ticked.
    void ReadUsers();
    void ReadEvents(const SheetTitle &title);
    void Clear();

    /// Ticks a user and remembers it.
    void TickUser(const QString &user, bool on);
    /// The types that are offered, as shown: the program's own, then those of EventTypes.
    QStringList Types() const;
    /// Null for an unknown one.
    const TitleEvent *Find(const QString &id) const;
    /// An event needs a type and, when it is new, somebody.
    static bool HasType(const EventInput &input) { return !input.type.trimmed().isEmpty(); }
    bool CanAdd(const EventInput &input) const { return HasType(input) && !users.Checked().isEmpty(); }

    /// An event of each ticked user. One that lends the title notes the loan, and one that brings it back ends it. A
    /// fault leaves events and loans as they were.
    void Add(const SheetTitle &title, const EventInput &input);
    /// Gives an event another type, time and comment; loans stay as they are.
    void Change(const SheetTitle &title, const QString &id, const EventInput &input);
    void Delete(const SheetTitle &title, const QString &id);

    /// Columns "Timestamp", "Type", "User"; the keys of the rows are the numbers of the events.
    ListTable listEvents;
    CheckList users;

private:
    void Insert(const SheetTitle &title, const QString &user, const TitleEvent &event);
    void FollowLoan(const SheetTitle &title, const QString &user, const TitleEvent &event);
    TitleEvent FromInput(const EventInput &input);
    void RememberType(const QString &type);
    void Write(const SheetTitle &title, const std::function<void()> &changes);

    Session &session_;
    std::vector<TitleEvent> events_;
};

} // namespace ostrand
