#include "browser/CreditCommands.h"

#include "audit/Audit.h"
#include "browser/AppearancesPanel.h"
#include "browser/Browser.h"
#include "browser/Credits.h"
#include "collection_files/ImportCredits.h"
#include "database/RecordOperations.h"
#include "database/TitleLocks.h"
#include "people/QuickLink.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kCaptionLength = 55;

void ToggleCreditView(Browser &browser, bool ViewState::*state) {
    ViewState &view = browser.session.view;
    view.*state = !(view.*state);
    browser.commands.Refresh();
    RefillCredits(browser);
}

/// What the list that the title was selected in calls it.
QString Caption(const Browser &browser) {
    QString text;
    const int row = browser.current_row;
    const auto &episodes = browser.listEpisodes.Rows();
    const int episode = browser.listEpisodes.RowOfKey(browser.credits.shown_key);
    if (browser.credits.shown_is_episode) {
        text = episode < 0 ? QString() : episodes[size_t(episode)].title;
    } else if (row >= 0 && row < browser.listSeries.rowCount()) {
        text = browser.listSeries.At(row).texts[TitleList::Title];
    }
    return text.trimmed().left(kCaptionLength);
}

bool IsCast(CreditKind kind) {
    return kind == CreditKind::Cast;
}

QString LockName(CreditKind kind) {
    return IsCast(kind) ? u"Cast"_s : u"Crew"_s;
}

bool ConfirmOverwrite(Session &session) {
    return ShowMessage(session,
                       {.text = Translate(session, u"Paste clipboard content? This will overwrite existing data!"_s),
                        .title = Translate(session, u"Overwrite data?"_s),
                        .icon = MessageIcon::Question,
                        .buttons = MessageButtons::YesNo,
                        .neutral = MessageAnswer::No}) == MessageAnswer::Yes;
}

void TellInvalid(Session &session, CreditKind kind) {
    ShowMessage(session, {.text = Translate(session, IsCast(kind) ? u"Clipboard content is not a valid cast data!"_s
                                                                  : u"Clipboard content is not a valid crew data!"_s),
                          .title = Translate(session, u"Invalid content"_s),
                          .icon = MessageIcon::Warning});
}

void TellImported(Session &session, CreditKind kind) {
    ShowMessage(session, {.text = Translate(session, IsCast(kind) ? u"Cast successfully imported"_s
                                                                  : u"Crew successfully imported"_s),
                          .title = Translate(session, u"Import successfull"_s),
                          .icon = MessageIcon::Information});
}

void Replace(Browser &browser, CreditKind kind, pugi::xml_node credits) {
    Session &session = browser.session;
    const QString id = browser.credits.shown_key;
    const bool is_episode = browser.credits.shown_is_episode;
    if (IsCast(kind)) {
        ImportCast(session, credits, id, is_episode, false);
    } else {
        ImportCrew(session, credits, id, is_episode, false);
    }
    const QString done = LockName(kind);
    if (is_episode) {
        Audit::AuditUpdateEpisode(session, id, u"Paste Episode "_s + done);
    } else {
        MarkEdited(session, id);
        Audit::AuditUpdateProfile(session, id, u"Paste "_s + done);
    }
}

void AddLines(const QAbstractItemModel &tree, const QModelIndex &parent, qsizetype level, QString &text) {
    for (int row = 0; row < tree.rowCount(parent); ++row) {
        const QModelIndex node = tree.index(row, 0, parent);
        text += QString(level, u'\t') + node.data().toString().simplified() + "\r\n"_L1;
        AddLines(tree, node, level + 1, text);
    }
}

} // namespace

void UpdateCastInfo(Browser &browser, const QString &name, const QString &birth_year) {
    CreditsPanel &panel = browser.credits;
    panel.selected_name = name;
    panel.selected_birth_year = birth_year;
    panel.picActor.LoadHeadShot(name, true, birth_year);
    GetAppearances(browser, name, birth_year, false);
    if (!name.isEmpty()) {
        FindAwardsForActor(browser, name, birth_year);
    }
}

void EnablePersonEntries(Browser &browser) {
    const CreditsPanel &panel = browser.credits;
    const bool person = !panel.selected_name.isEmpty();
    browser.commands.Together([&] {
        for (const char16_t *name : {u"mNextHeadshot", u"mDownloadHeadshotFromURL", u"mDownloadHeadshotCast",
                                     u"mDownloadHeadshotCrew", u"mAddAliasCast", u"mAddAliasCrew"}) {
            browser.commands.SetEnabled(QString::fromUtf16(name), person);
        }
        for (const char16_t *name :
             {u"mCopyCastList", u"mPasteCastList", u"mLockCast", u"mCopyCrewList", u"mPasteCrewList", u"mLockCrew"}) {
            browser.commands.SetEnabled(QString::fromUtf16(name), !panel.shown_key.isEmpty());
        }
        browser.commands.SetEnabled(u"mSetHeadshotAsPrimary"_s, person && panel.picActor.CanSetAsPrimary());
    });
}

void LinkSelectedPerson(Browser &browser) {
    const CreditsPanel &panel = browser.credits;
    if (AddAlias(browser.session, QString(panel.selected_name), panel.selected_birth_year.toInt())) {
        RefreshPeople(browser);
    }
}

void DownloadHeadshot(Browser &browser) {
    CreditsPanel &panel = browser.credits;
    panel.picActor.DownloadHeadshotFromURL();
    panel.headshots.Invalidate();
    RefillCredits(browser);
}

void SetHeadshotAsPrimary(Browser &browser) {
    CreditsPanel &panel = browser.credits;
    panel.picActor.SetHeadshotAsPrimary();
    panel.headshots.Invalidate();
    RefillCredits(browser); // an alternate alone marks nobody, and a primary picture does
}

void FindCreditAppearances(Browser &browser, const QString &name) {
    if (!name.isEmpty()) {
        FindAppearances(browser, name);
    }
}

void CopyTreeToClipboard(Browser &browser, const QAbstractItemModel &tree) {
    QString text;
    AddLines(tree, {}, 0, text);
    browser.session.services.clipboard.SetText(text);
}

void CopyCredits(Browser &browser, CreditKind kind) {
    Session &session = browser.session;
    if (!session.Database) {
        return;
    }
    const CreditsPanel &panel = browser.credits;
    session.services.clipboard.SetText(CreditDocument(
        session, kind, Caption(browser), IsCast(kind) ? panel.cast : panel.crew, session.services.keyboard.CtrlHeld()));
}

void PasteCredits(Browser &browser, CreditKind kind) {
    Session &session = browser.session;
    if (!session.Database || browser.credits.shown_key.isEmpty() || !ConfirmOverwrite(session)) {
        return;
    }
    pugi::xml_document document;
    const auto credits = CreditsOfDocument(session.services.clipboard.Text(), kind, document);
    if (!credits) {
        TellInvalid(session, kind);
        return;
    }
    WriteTogether(session, [&] { Replace(browser, kind, *credits); });
    RefillCredits(browser);
    TellImported(session, kind);
}

bool AreCreditsLocked(Browser &browser, CreditKind kind) {
    Session &session = browser.session;
    const QString &id = browser.credits.shown_key;
    return session.Database && !id.isEmpty() && IsLocked(session, id, LockName(kind));
}

void ToggleCreditLock(Browser &browser, CreditKind kind) {
    Session &session = browser.session;
    const QString &id = browser.credits.shown_key;
    if (session.Database && !id.isEmpty()) {
        ToggleLock(session, id, LockName(kind));
    }
}

void ToggleReverseCredit(Browser &browser) {
    ToggleCreditView(browser, &ViewState::mReverseCredit);
}

void ToggleFullBoxsetCredits(Browser &browser) {
    ToggleCreditView(browser, &ViewState::mShowFullBoxsetCredits);
}

void ToggleCrewTreeView(Browser &browser) {
    ToggleCreditView(browser, &ViewState::mCrewTreeView);
    Q_EMIT browser.credits.CrewViewChanged();
}

void ToggleHideUnassignedCrew(Browser &browser) {
    ToggleCreditView(browser, &ViewState::mHideUnassignedCrew);
}

} // namespace ostrand
