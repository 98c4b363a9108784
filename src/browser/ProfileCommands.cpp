#include "browser/ProfileCommands.h"

#include "audit/Audit.h"
#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/KeySet.h"
#include "browser/ListFilling.h"
#include "browser/ProfileInfos.h"
#include "browser/SheetTitle.h"
#include "browser/TitleQueries.h"
#include "browser/Titles.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "database/LockLabels.h"
#include "database/RecordOperations.h"
#include "database/TitleLocks.h"
#include "people/ProgressJob.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Fewer are done before a window could be read.
constexpr int kManyProfiles = 20;

QString Entire() {
    return QString::fromUtf16(kLockEntire);
}

bool HasProfiles(const Browser &browser) {
    return browser.session.Database && !browser.session.view.mTVShows;
}

bool ShowsWholeTab(const Browser &browser) {
    return !browser.SpecialOrder && !browser.filtered_by_tags;
}

/// The profile of a row; empty for none and for the header of a group.
QString ProfileOfRow(const Browser &browser, int row) {
    const TitleList &list = browser.listSeries;
    return row < 0 || row >= list.rowCount() || list.At(row).header ? QString() : ProfileOfKey(list.At(row).key);
}

QString CurrentProfile(const Browser &browser) {
    return HasProfiles(browser) ? ProfileOfRow(browser, browser.current_row) : QString();
}

QString CurrentEpisode(const Browser &browser) {
    return browser.session.Database ? SelectedEpisode(browser).id : QString();
}

/// Each selected profile once, in the order of the rows.
QStringList SelectedProfiles(const Browser &browser) {
    QStringList ids;
    if (!HasProfiles(browser) || !browser.hooks.selected_rows) {
        return ids;
    }
    KeySet seen;
    for (const int row : browser.hooks.selected_rows()) {
        const QString id = ProfileOfRow(browser, row);
        if (!id.isEmpty() && seen.Add(id)) {
            ids += id;
        }
    }
    return ids;
}

bool Confirm(Session &session, const QString &question, const QString &what, const QString &title) {
    return ShowMessage(session, {.text = Translate(session, question) + u"\n\n"_s + what,
                                 .title = Translate(session, title),
                                 .icon = MessageIcon::Question,
                                 .buttons = MessageButtons::YesNo,
                                 .neutral = MessageAnswer::No}) == MessageAnswer::Yes;
}

/// The first row from the current one on whose profile is none of these, or else the last one before.
QString KeyBeside(const Browser &browser, const QStringList &ids) {
    KeySet left_out;
    for (const QString &id : ids) {
        left_out.Add(id);
    }
    const auto stays = [&](int row) {
        const QString id = ProfileOfRow(browser, row);
        return !id.isEmpty() && !left_out.Contains(id);
    };
    const int from = std::max(browser.current_row, 0);
    for (int row = from; row < browser.listSeries.rowCount(); ++row) {
        if (stays(row)) {
            return browser.listSeries.KeyAt(row);
        }
    }
    for (int row = std::min(from, browser.listSeries.rowCount()) - 1; row >= 0; --row) {
        if (stays(row)) {
            return browser.listSeries.KeyAt(row);
        }
    }
    return {};
}

/// The rows of deleted profiles go; where the current one is among them, the next becomes current.
void ForgetProfiles(Browser &browser, const QStringList &ids) {
    const QString key = KeyBeside(browser, ids);
    if (ShowsWholeTab(browser)) {
        RefillMovieNames(browser, {key}); // children of a boxset may stand alone now
    } else {
        TitleList &list = browser.listSeries;
        browser.current_row = -1;
        list.RemoveTitles(ids);
        ShowFilterCount(browser, list.TitleCount());
        ShowTitleOrRow(browser, {key}, 0);
    }
    Q_EMIT browser.TagsChanged(false);
}

/// Does something with each profile; the ones that were done, which are all unless the user cancels.
QStringList WithEach(Browser &browser, const QString &title, const QStringList &ids,
                     const std::function<void(const QString &)> &action) {
    Session &session = browser.session;
    std::optional<ProgressJob> job;
    if (ids.size() >= kManyProfiles) {
        job.emplace(session, title, ids.size());
    }
    QStringList done;
    for (const QString &id : ids) {
        if (job && job->Cancelled()) {
            break;
        }
        action(id);
        done += id;
        if (job) {
            job->Step();
        }
    }
    return done;
}

/// The answer of the user for all profiles that have images.
CoverImages AskOnce(Browser &browser, const QStringList &ids, KeySet &with_images) {
    Session &session = browser.session;
    FolderIndex covers(session.CoverPath);
    covers.Refresh();
    bool any = false;
    for (const QString &id : ids) {
        if (covers.Holds(id + u"f.jpg"_s) || covers.Holds(id + u"b.jpg"_s)) {
            with_images.Add(id);
            any = true;
        }
    }
    return any && AskToDeleteImages(session) ? CoverImages::Delete : CoverImages::Keep;
}

void LockAll(Browser &browser, bool locked) {
    Session &session = browser.session;
    WithEach(browser, locked ? u"Locking profiles"_s : u"Unlocking profiles"_s, SelectedProfiles(browser),
             [&](const QString &id) {
                 if (locked) {
                     SetLock(session, id, Entire());
                 } else {
                     RemoveLock(session, id, Entire());
                 }
                 Audit::AuditUpdateProfile(session, id, u"Edit Lock"_s);
             });
}

/// The types of the tabs, as they show, and what the user chooses of them or types; empty for none.
QString AskColType(Browser &browser) {
    Session &session = browser.session;
    const std::optional<QString> answer = session.services.dialogs.InputCombo(
        Translate(session, u"Move the selected profiles to:"_s), Translate(session, u"Collection Type"_s),
        browser.tabColList.mid(1),
        browser.tabColList_selected > 1 ? browser.tabColList[browser.tabColList_selected - 1] : QString());
    const QString type = answer ? ReverseTranslate(session, answer->trimmed()) : QString();
    // A profile in a type called "All" could not be shown apart.
    return sql::Compare(type, u"All") == 0 ? QString() : type;
}

void MoveProfile(Session &session, const QString &id, const QString &type) {
    WriteTogether(session, [&] {
        if (session.view.AutoLock) {
            SetLock(session, id, LockName(u"Collection Type"));
        }
        session.Database->Execute(QString(u"UPDATE Profiles SET ColType = '"_s + EscapeSql(type) +
                                          u"' WHERE ProfileID = '"_s + EscapeSql(id) + u'\''));
        MarkEdited(session, id);
    });
    Audit::AuditUpdateProfile(session, id, u"Update Value ColType"_s);
}

/// The rows of a title in a grouped list say its new texts, each in its place.
void RenameRows(Browser &browser, const QString &id) {
    const sql::Recordset record = browser.session.Database->OpenRecordset(TitleStatement({id, false}));
    if (record.Eof()) {
        return;
    }
    browser.listSeries.SetTexts(id, [&](const TitleRow &row) {
        const QString &shown = row.texts[TitleList::Title];
        const auto text = std::ranges::find_if(shown, [](QChar c) { return c != u' '; });
        return ListTitle(browser, record, 0, int(text - shown.begin()));
    });
}

/// The list after these profiles got other values; `renamed` is the one whose row may say something else, if any.
void ShowChangedProfiles(Browser &browser, const QStringList &ids, const QString &renamed) {
    const QString id = browser.session.CurrentProfileID;
    const QString tab = SelectedColType(browser);
    const QStringList keys = {browser.listSeries.KeyAt(browser.current_row), KeyBeside(browser, ids)};
    ReloadColTypeTabs(browser); // a type may have come or gone
    if (ShowsWholeTab(browser) || SelectedColType(browser) != tab) {
        RefillMovieNames(browser, keys);
        return;
    }
    if (!renamed.isEmpty()) {
        RenameRows(browser, renamed);
    }
    GetProfileInfos(browser, id, false, true);
}

void ShowChangedEpisode(Browser &browser) {
    Session &session = browser.session;
    const QString id = session.CurrentProfileID;
    if (const int row = browser.listEpisodes.RowOfKey(id); row >= 0) {
        const sql::Recordset record = session.Database->OpenRecordset(TitleStatement({id, true}));
        if (!record.Eof()) {
            browser.listEpisodes.SetTitle(row, GetEpisodeTitle(session.view, record));
        }
    }
    GetProfileInfos(browser, id, true, true);
}

} // namespace

void EnableProfileEntries(Browser &browser) {
    const bool profile = !CurrentProfile(browser).isEmpty();
    browser.commands.Together([&] {
        for (const QString &name : {u"mRemoveProfileInEdit"_s, u"mLockProfile"_s}) {
            browser.commands.SetEnabled(name, profile);
        }
    });
}

void RemoveCurrentProfile(Browser &browser) {
    Session &session = browser.session;
    const QString id = CurrentProfile(browser);
    if (id.isEmpty() ||
        !Confirm(session, u"Remove this profile and all its data from the database?"_s,
                 browser.listSeries.At(browser.current_row).texts[TitleList::Title].trimmed(), u"Remove Profile?"_s)) {
        return;
    }
    DeleteProfile(session, id, true);
    ForgetProfiles(browser, {id});
}

bool IsProfileLocked(Browser &browser) {
    const QString id = CurrentProfile(browser);
    return !id.isEmpty() && IsLocked(browser.session, id, Entire());
}

void ToggleProfileLock(Browser &browser) {
    if (const QString id = CurrentProfile(browser); !id.isEmpty()) {
        ToggleLock(browser.session, id, Entire());
    }
}

bool IsEpisodeLocked(Browser &browser) {
    const QString id = CurrentEpisode(browser);
    return !id.isEmpty() && IsLocked(browser.session, id, Entire());
}

void ToggleEpisodeLock(Browser &browser) {
    if (const QString id = CurrentEpisode(browser); !id.isEmpty()) {
        ToggleLock(browser.session, id, Entire());
    }
}

void RemoveSelectedProfiles(Browser &browser) {
    Session &session = browser.session;
    const QStringList ids = SelectedProfiles(browser);
    if (ids.isEmpty() ||
        !Confirm(session, u"Remove all selected profiles and their data from the database?"_s,
                 Translate(session, u"Profiles:"_s) + u' ' + QString::number(ids.size()), u"Remove Profiles?"_s)) {
        return;
    }
    KeySet with_images;
    const CoverImages images = AskOnce(browser, ids, with_images);
    QStringList gone;
    try {
        WithEach(browser, u"Removing profiles"_s, ids, [&](const QString &id) {
            DeleteProfile(session, id, with_images.Contains(id) ? images : CoverImages::Keep);
            gone += id;
        });
    } catch (const sql::SqlError &) {
        ForgetProfiles(browser, gone);
        throw;
    }
    ForgetProfiles(browser, gone);
}

void MoveSelectedProfiles(Browser &browser) {
    const QStringList ids = SelectedProfiles(browser);
    const QString type = ids.isEmpty() ? QString() : AskColType(browser);
    if (type.isEmpty()) {
        return;
    }
    try {
        WithEach(browser, u"Moving profiles"_s, ids,
                 [&](const QString &id) { MoveProfile(browser.session, id, type); });
    } catch (const sql::SqlError &) {
        ShowChangedProfiles(browser, ids, {}); // some may have moved
        throw;
    }
    ShowChangedProfiles(browser, ids, {});
}

void LockSelectedProfiles(Browser &browser) {
    LockAll(browser, true);
}

void UnlockSelectedProfiles(Browser &browser) {
    LockAll(browser, false);
}

void ShowChangedTitle(Browser &browser) {
    if (browser.session.CurrentIsEpisode) {
        ShowChangedEpisode(browser);
    } else {
        const QString id = browser.session.CurrentProfileID;
        ShowChangedProfiles(browser, {id}, id);
    }
}

} // namespace ostrand
