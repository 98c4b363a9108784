#include "browser/ProfileSheet.h"

#include "browser/ProfileInfos.h"
#include "database/DatabaseFunctions.h"
#include "database/LockLabels.h"
#include "database/TitleLocks.h"
#include "shell/Session.h"
#include "sql/Format.h"

#include <QSet>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t *kCaptions[kSheetTabs] = {u"Main",          u"Overview",         u"Notes", u"Easter Eggs",
                                                   u"Events/Review", u"Additional Infos", u"Skins"};

} // namespace

QString SheetTabCaption(SheetTab tab) {
    return QString::fromUtf16(kCaptions[size_t(tab) - 1]);
}

ProfileSheet::ProfileSheet(Session &session) : tags(session), events(session), session_(session) {
    Restart();
}

void ProfileSheet::Restart() {
    listDiscs.Rebuild(DiscColumns(session_));
    listInfos.Rebuild({Translate(session_, u"Name"_s)});
    events.TranslateHeaders();
    if (session_.Database) {
        tags.ReadTree();
        events.ReadUsers();
    }
    Show(SheetTitle(title_));
}

void ProfileSheet::Show(const SheetTitle &title) {
    if (title.id.isEmpty() || !session_.Database) {
        ClearProfileInfos();
        return;
    }
    const sql::Recordset record = session_.Database->OpenRecordset(TitleStatement(title));
    if (record.Eof()) {
        ClearProfileInfos();
        return;
    }
    title_ = title;
    title_caption_ = title.is_episode ? EpisodeCaption(record) : MakeWindowCaption(record);
    overview_ = record.Text(u"Overview");
    notes_ = record.Text(u"Notes");
    easter_eggs_ = title.is_episode ? QString() : record.Text(u"EasterEggs"); // no column of episodes
    Forget();
    Q_EMIT TitleChanged();
    EnableTab(tab_);
}

void ProfileSheet::ClearProfileInfos() {
    title_ = {};
    for (QString *text : {&title_caption_, &overview_, &notes_, &easter_eggs_}) {
        text->clear();
    }
    Forget();
    Q_EMIT TitleChanged();
    EnableTab(tab_);
}

bool ProfileSheet::EnableTab(SheetTab tab) {
    tab_ = tab;
    if (IsRead(tab)) {
        return false;
    }
    ReadTab(tab);
    read_[size_t(tab) - 1] = true;
    Q_EMIT TabRead(tab);
    return true;
}

bool ProfileSheet::SelectTab(SheetTab tab) {
    if (std::exchange(session_.view.ProfileInfoLastTab, int(tab)) != int(tab) && !session_.DatabaseTooNew) {
        WriteDbInfo(session_, u"ProfileInfoLastTab"_s, QString::number(int(tab)));
    }
    return EnableTab(tab);
}

void ProfileSheet::ReadTab(SheetTab tab) {
    const bool empty = !HasTitle();
    switch (tab) {
    case SheetTab::Main:
        ReadLocks();
        prices = ReadPrices(session_, empty ? SheetTitle() : title_);
        listDiscs.Assign(empty ? std::vector<ListTableRow>() : ReadDiscs(session_, title_));
        empty ? tags.ClearTags() : tags.ReadTags(title_);
        break;
    case SheetTab::Events:
        empty ? events.Clear() : events.ReadEvents(title_);
        review = empty ? Review() : ReadReview(session_, title_);
        break;
    case SheetTab::AdditionalInfos:
        ReadInfos();
        break;
    case SheetTab::Overview:
    case SheetTab::Notes:
    case SheetTab::EasterEggs:
    case SheetTab::Skins:
        break;
    }
}

void ProfileSheet::ReadLocks() {
    QSet<QString> names;
    if (HasTitle()) {
        for (sql::Recordset rows = session_.Database->OpenRecordset(RowsOf(u"Locks", title_)); !rows.Eof();
             rows.MoveNext()) {
            names.insert(rows.Text(u"LockName").toCaseFolded());
        }
    }
    std::vector<CheckRow> rows;
    for (const LockLabel &lock : title_.is_episode ? EpisodeLockLabels() : LockLabels()) {
        const QString label = QString::fromUtf16(lock.label);
        const QString name = LockName(label);
        rows.push_back({name, Translate(session_, label), names.contains(name.toCaseFolded())});
    }
    listLocks.Assign(std::move(rows));
}

void ProfileSheet::ReadInfos() {
    infos_.clear();
    std::vector<ListTableRow> rows;
    if (HasTitle()) {
        for (sql::Recordset found =
                 session_.Database->OpenRecordset(RowsOf(u"AdditionalInfo", title_) + u" ORDER BY InfoName"_s);
             !found.Eof(); found.MoveNext()) {
            infos_.push_back({found.Text(u"InfoName"), found.Text(u"InfoValue")});
            rows.push_back({.texts = {infos_.back().name}, .key = infos_.back().name});
        }
    }
    listInfos.Assign(std::move(rows));
}

QString ProfileSheet::InfoValue(const QString &name) const {
    for (const AdditionalInfo &info : infos_) {
        if (info.name == name) {
            return info.value;
        }
    }
    return {};
}

QString ProfileSheet::Caption() const {
    const QString caption = Translate(session_, u"Profile Information"_s);
    return title_caption_.isEmpty() ? caption : caption + ": "_L1 + title_caption_;
}

QString ProfileSheet::TextOf(SheetTab tab) const {
    switch (tab) {
    case SheetTab::Overview:
        return overview_;
    case SheetTab::Notes:
        return notes_;
    case SheetTab::EasterEggs:
        return easter_eggs_;
    default:
        return {};
    }
}

QString ProfileSheet::PageName(SheetTab tab) {
    switch (tab) {
    case SheetTab::Overview:
        return u"Overview"_s;
    case SheetTab::Notes:
        return u"Notes"_s;
    case SheetTab::EasterEggs:
        return u"EasterEggs"_s;
    case SheetTab::AdditionalInfos:
        return u"InfoValue"_s;
    default:
        return {};
    }
}

/// A database that could not be opened takes the place of the one that the title is from.
bool ProfileSheet::HasTitle() const {
    return session_.Database && !title_.id.isEmpty();
}

bool ProfileSheet::IsThere(const SheetTitle &title) const {
    return !session_.Database->OpenRecordset(TitleStatement(title)).Eof();
}

void ProfileSheet::Write(const std::function<void()> &change) {
    if (!HasTitle()) {
        return;
    }
    if (!IsThere(title_)) {
        ClearProfileInfos();
        return;
    }
    change();
    Q_EMIT TabRead(tab_);
}

void ProfileSheet::SetTag(const QString &full_name, bool on) {
    Write([&] { tags.SetTag(title_, full_name, on); });
}

void ProfileSheet::SetLock(const QString &lock_name, bool on) {
    Write([&] {
        if (IsLocked(session_, title_.id, lock_name) != on) {
            ClearMD5(session_, title_);
            ToggleLock(session_, title_.id, lock_name);
        }
        ReadLocks();
    });
}

void ProfileSheet::AddEvent(const EventInput &input) {
    Write([&] {
        events.Add(title_, input);
        read_[size_t(SheetTab::Main) - 1] = false; // it may have got a lock
    });
}

void ProfileSheet::ChangeEvent(const QString &id, const EventInput &input) {
    Write([&] {
        events.Change(title_, id, input);
        read_[size_t(SheetTab::Main) - 1] = false;
    });
}

void ProfileSheet::DeleteEvent(const QString &id) {
    if (!events.Find(id)) {
        return;
    }
    const MessageAnswer answer = ShowMessage(session_, {.text = Translate(session_, u"Delete the selected event?"_s),
                                                        .title = Translate(session_, u"Delete Event"_s),
                                                        .icon = MessageIcon::Question,
                                                        .buttons = MessageButtons::YesNo,
                                                        .neutral = MessageAnswer::No});
    if (answer == MessageAnswer::Yes) {
        Write([&] {
            events.Delete(title_, id);
            read_[size_t(SheetTab::Main) - 1] = false;
        });
    }
}

void ProfileSheet::SetReview(const Review &marks) {
    Write([&] {
        UpdateDbReview(session_, title_, marks);
        review = marks;
    });
}

QString ProfileSheet::Now() const {
    return sql::FormatDate(session_.services.clock.Now(), u"yyyy-mm-dd hh:nn:ss", {});
}

} // namespace ostrand
