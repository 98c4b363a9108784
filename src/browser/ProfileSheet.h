// Everything that is known of one title: what the profile window shows, without the window.
#pragma once

#include "browser/ProfileDiscs.h"
#include "browser/ProfileEvents.h"
#include "browser/ProfileReview.h"
#include "browser/ProfileTags.h"

namespace ostrand {

/// The tabs in their order, counted from 1 as ProfileInfoLastTab is.
enum class SheetTab { Main = 1, Overview, Notes, EasterEggs, Events, AdditionalInfos, Skins };
inline constexpr int kSheetTabs = 7;
/// What a tab is called, in English.
QString SheetTabCaption(SheetTab tab);

/// Something that was noted of a title under a name.
struct AdditionalInfo {
    QString name;
    QString value;
};

/// Holds one title at a time and reads of it what the tab that is shown needs. Members that ask the database throw
/// SqlError; what writes does nothing without a title, and shows the empty view when the title is gone.
class ProfileSheet : public QObject {
    Q_OBJECT
public:
    explicit ProfileSheet(Session &session);

    /// Shows a profile or an episode; one that is nowhere gives the empty view.
    void GetProfileInfo(const QString &id) { Show({id, false}); }
    void GetEpisodeInfo(const QString &id) { Show({id, true}); }
    void Show(const SheetTitle &title);
    /// Shows no title.
    void ClearProfileInfos();
    /// Reads what a tab shows and tells of it; false when that was done for this title.
    bool EnableTab(SheetTab tab);
    /// The same for a tab that the user chose, which is remembered.
    bool SelectTab(SheetTab tab);
    /// The language or the database changed: headers and lists that stand beside all titles are read anew.
    void Restart();

    const SheetTitle &Title() const { return title_; }
    /// The caption of the window.
    QString Caption() const;
    /// The text that a tab shows as a page, and the name of that page; empty for other tabs.
    QString TextOf(SheetTab tab) const;
    static QString PageName(SheetTab tab);
    SheetTab Tab() const { return tab_; }

    void SetTag(const QString &full_name, bool on);
    void SetLock(const QString &lock_name, bool on);
    void AddEvent(const EventInput &input);
    void ChangeEvent(const QString &id, const EventInput &input);
    /// Asks before it deletes.
    void DeleteEvent(const QString &id);
    void SetReview(const Review &marks);
    /// The present time, as events have it.
    QString Now() const;

    ProfileTags tags;
    CheckList listLocks;
    ListTable listDiscs;
    QList<PriceLine> prices;
    ProfileEvents events;
    Review review;
    /// Column "Name"; the keys are the names.
    ListTable listInfos;
    QString InfoValue(const QString &name) const;

Q_SIGNALS:
    /// Another title, or none; the tab that is shown is read behind it.
    void TitleChanged();
    /// What a tab shows was read anew.
    void TabRead(SheetTab tab);

private:
    void ReadTab(SheetTab tab);
    void ReadLocks();
    void ReadInfos();
    bool IsRead(SheetTab tab) const { return read_[size_t(tab) - 1]; }
    /// Forgets what was read of the tabs.
    void Forget() { read_.fill(false); }
    /// Runs a change of the title, and tells of the tab that it belongs to.
    void Write(const std::function<void()> &change);
    bool IsThere(const SheetTitle &title) const;
    bool HasTitle() const;

    Session &session_;
    SheetTitle title_;
    QString title_caption_;
    QString overview_;
    QString notes_;
    QString easter_eggs_;
    SheetTab tab_ = SheetTab::Main;
    std::array<bool, kSheetTabs> read_ = {};
    std::vector<AdditionalInfo> infos_;
};

} // namespace ostrand
