#include "browser/ProfileEvents.h"

#include "database/DatabaseFunctions.h"
#include "database/EventIds.h"
#include "database/RecordOperations.h"
#include "database/TitleLocks.h"
#include "shell/Session.h"

#include <QDate>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kDivider = u'|';
constexpr char16_t kBorrowed[] = u"Borrowed";
constexpr char16_t kReturned[] = u"Returned";

QStringList OwnTypes() {
    return {u"Watched"_s, QString::fromUtf16(kBorrowed), QString::fromUtf16(kReturned)};
}

bool Holds(const QStringList &texts, const QString &text) {
    return texts.contains(text, Qt::CaseInsensitive);
}

bool IsType(const QString &type, const char16_t *name) {
    return type.compare(QStringView(name), Qt::CaseInsensitive) == 0;
}

/// Keeps a setting, unless the database belongs to a newer program.
void Keep(Session &session, const QString &name, const QString &value) {
    if (!session.DatabaseTooNew) {
        WriteDbInfo(session, name, value);
    }
}

/// A value of a statement; the empty text for none.
QString Quoted(const QString &value) {
    return value.isEmpty() ? u"NULL"_s : u'\'' + EscapeSql(value) + u'\'';
}

/// The day count 0 stands for a missing time.
QString StampOf(const sql::Recordset &rows) {
    const bool none = rows.IsNull(u"EventTimeStamp") || rows.Real(u"EventTimeStamp") == 0;
    return none ? QString() : rows.Text(u"EventTimeStamp");
}

} // namespace

ProfileEvents::ProfileEvents(Session &session) : listEvents({}, {QString(), QString(), QString()}), session_(session) {
    TranslateHeaders();
}

void ProfileEvents::TranslateHeaders() {
    const auto shown = [this](const QString &text) { return Translate(session_, text); };
    listEvents.SetColumns({shown(u"Timestamp"_s), shown(u"Type"_s), shown(u"User"_s)});
}

void ProfileEvents::ReadUsers() {
    const QStringList selected = session_.view.SelectedUsers.split(kDivider, Qt::SkipEmptyParts);
    std::vector<CheckRow> rows;
    for (sql::Recordset found =
             session_.Database->OpenRecordset(u"SELECT UserID, IsActive from Users ORDER BY UserID"_s);
         !found.Eof(); found.MoveNext()) {
        if (found.Boolean(u"IsActive")) {
            const QString user = found.Text(u"UserID");
            rows.push_back({user, user, Holds(selected, user)});
        }
    }
    users.Assign(std::move(rows));
}

void ProfileEvents::ReadEvents(const SheetTitle &title) {
    Clear();
    std::vector<ListTableRow> rows;
    for (sql::Recordset found =
             session_.Database->OpenRecordset(RowsOf(u"Events", title) + u" ORDER BY EventTimeStamp"_s);
         !found.Eof(); found.MoveNext()) {
        const TitleEvent event = {.id = found.Text(u"EventID"),
                                  .user = found.Text(u"UserID"),
                                  .type = found.Text(u"EventType"),
                                  .stamp = StampOf(found),
                                  .comment = found.Text(u"Comment")};
        rows.push_back({.texts = {event.stamp, Translate(session_, event.type), event.user}, .key = event.id});
        events_.push_back(event);
    }
    listEvents.Assign(std::move(rows));
}

void ProfileEvents::Clear() {
    events_.clear();
    listEvents.Assign({});
}

void ProfileEvents::TickUser(const QString &user, bool on) {
    users.SetChecked(user, on);
    session_.view.SelectedUsers = users.Checked().join(kDivider);
    Keep(session_, u"SelectedUsers"_s, session_.view.SelectedUsers);
}

QStringList ProfileEvents::Types() const {
    QStringList types = OwnTypes();
    for (const QString &type : session_.view.EventTypes.split(kDivider)) {
        if (!type.trimmed().isEmpty() && !Holds(types, type.trimmed())) {
            types += type.trimmed();
        }
    }
    for (QString &type : types) {
        type = Translate(session_, type);
    }
    return types;
}

const TitleEvent *ProfileEvents::Find(const QString &id) const {
    const auto found = std::find_if(events_.begin(), events_.end(), [&](const auto &event) { return event.id == id; });
    return found == events_.end() ? nullptr : &*found;
}

TitleEvent ProfileEvents::FromInput(const EventInput &input) {
    // The divider of the stored types cannot be part of one.
    const QString type = QString(input.type).replace(kDivider, u' ').trimmed();
    return {.type = ReverseTranslate(session_, type), .stamp = input.stamp, .comment = input.comment};
}

void ProfileEvents::RememberType(const QString &type) {
    QStringList types = session_.view.EventTypes.split(kDivider, Qt::SkipEmptyParts);
    if (!Holds(OwnTypes(), type) && !Holds(types, type)) {
        types += type;
        session_.view.EventTypes = types.join(kDivider);
        Keep(session_, u"EventTypes"_s, session_.view.EventTypes);
    }
}

void ProfileEvents::Insert(const SheetTitle &title, const QString &user, const TitleEvent &event) {
    session_.Database->Execute(
        QString(u"INSERT INTO Events (EventID, UserID, EventType, EventTimeStamp, ProfileID, Comment) VALUES ('"_s +
                QString::number(NewEventId(session_)) + u"', "_s + Quoted(user) + u", "_s + Quoted(event.type) +
                u", "_s + Quoted(event.stamp) + u", "_s + Quoted(title.id) + u", "_s + Quoted(event.comment) + u')'));
}

void ProfileEvents::FollowLoan(const SheetTitle &title, const QString &user, const TitleEvent &event) {
    const bool borrowed = IsType(event.type, kBorrowed);
    if (title.is_episode || (!borrowed && !IsType(event.type, kReturned))) {
        return; // loans are told of profiles
    }
    session_.Database->Execute(QString(u"DELETE FROM LoanInfo WHERE ProfileID = '"_s + EscapeSql(title.id) + u'\''));
    if (borrowed) {
        const QDate due = QDate::fromString(event.stamp.left(10), Qt::ISODate).addDays(session_.view.LoanDue);
        session_.Database->Execute(QString(u"INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ("_s +
                                           Quoted(title.id) + u", "_s + Quoted(user) + u", "_s +
                                           Quoted(due.toString(Qt::ISODate)) + u')'));
    }
}

void ProfileEvents::Add(const SheetTitle &title, const EventInput &input) {
    if (!CanAdd(input)) {
        return;
    }
    const TitleEvent event = FromInput(input);
    Write(title, [&] {
        for (const QString &user : users.Checked()) {
            Insert(title, user, event);
            FollowLoan(title, user, event);
        }
    });
    RememberType(event.type);
}

void ProfileEvents::Change(const SheetTitle &title, const QString &id, const EventInput &input) {
    const TitleEvent *old = Find(id);
    if (!old || !HasType(input)) {
        return;
    }
    const TitleEvent event = FromInput(input);
    Write(title, [&] {
        session_.Database->Execute(QString(u"UPDATE Events SET EventType = "_s + Quoted(event.type) +
                                           u", EventTimeStamp = "_s + Quoted(event.stamp) + u", Comment = "_s +
                                           Quoted(event.comment) + u" WHERE EventID = "_s + old->id));
    });
    RememberType(event.type);
}

void ProfileEvents::Delete(const SheetTitle &title, const QString &id) {
    const TitleEvent *old = Find(id);
    if (!old) {
        return;
    }
    Write(title, [&] { session_.Database->Execute(QString(u"DELETE FROM Events WHERE EventID = "_s + old->id)); });
}

void ProfileEvents::Write(const SheetTitle &title, const std::function<void()> &changes) {
    WriteTogether(session_, [&] {
        changes();
        if (session_.view.AutoLockEvents) {
            SetLock(session_, title.id, u"Events"_s);
        }
        MarkEdited(session_, title, u"Events");
    });
    ReadEvents(title);
}

} // namespace ostrand
