#include "browser/FindBox.h"

#include "browser/Browser.h"
#include "browser/ListFilling.h"
#include "browser/ProfileInfos.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kStep = 12;         // milliseconds
constexpr qint64 kNarrowEvery = 250; // milliseconds, while the index grows

FindOwners OwnersOf(const ViewState &view) {
    return view.mTVShows ? FindOwners::Series : FindOwners::Profiles;
}

/// The title or series that the panels tell of, be it one that the list does not hold; empty for none.
QString ShownTitle(const Session &session) {
    if (session.view.mTVShows) {
        return session.CurrentSeriesID;
    }
    return session.CurrentIsEpisode ? QString() : session.CurrentProfileID;
}

} // namespace

FindBox::FindBox(Browser &browser) : browser_(browser) {
    browser.listSeries.SetRowFilter([this] { return MakeTest(); });
}

FindBox::~FindBox() = default;

void FindBox::SetText(const QString &text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    const bool was_on = IsOn();
    words_ = FindWords(text);
    if (was_on || IsOn()) {
        Narrow();
    }
    Q_EMIT TextChanged();
}

void FindBox::Forget() {
    text_.clear();
    words_.clear();
    hidden_key_.clear();
    index_.reset();
    reader_.reset();
    Q_EMIT TextChanged();
}

void FindBox::Prepare() {
    FollowDatabase();
}

void FindBox::FollowChanges() {
    if (IsOn()) {
        FollowDatabase();
    }
}

const FindIndex *FindBox::Index() const {
    return index_ ? index_.get() : reader_ ? &reader_->Index() : nullptr;
}

/// Begins another index where the one that is there, or that is being made, does not tell of the present rows.
void FindBox::FollowDatabase() {
    Session &session = browser_.session;
    const FindOwners owners = OwnersOf(session.view);
    if (!session.Database || (index_ && (index_owners_ != owners || index_watch_.IsOver()))) {
        index_.reset();
    }
    if (!session.Database || (index_ && !index_watch_.Changed())) {
        reader_.reset();
        return;
    }
    if (!reader_ || reader_->Owners() != owners || reader_->Watch().Changed()) {
        reader_ = std::make_unique<FindIndexReader>(session, owners);
        Q_EMIT WorkWanted();
    }
}

bool FindBox::Step() {
    if (reader_) {
        FollowDatabase();
    }
    if (!reader_) {
        return false;
    }
    QElapsedTimer clock;
    clock.start();
    bool more = true;
    try {
        while (more && clock.elapsed() < kStep) {
            more = reader_->Step();
        }
    } catch (const sql::SqlError &error) {
        // What was read until then answers; a change of the tables leads to another try.
        Trace(browser_.session, u"FindBox: "_s + error.Text(), kTraceError);
        more = false;
    }
    if (!more) {
        index_owners_ = reader_->Owners();
        index_watch_ = reader_->Watch();
        index_ = std::make_unique<FindIndex>(reader_->TakeIndex());
        reader_.reset();
    }
    if (IsOn() && (!more || (!index_ && since_narrowed_.elapsed() > kNarrowEvery))) {
        Narrow();
    }
    return reader_ != nullptr;
}

std::function<bool(const TitleRow &)> FindBox::MakeTest() {
    if (!IsOn()) {
        return {};
    }
    FollowDatabase();
    const FindIndex *index = Index();
    if (!index) {
        return [](const TitleRow &) { return false; };
    }
    return [index, matching = index->Matching(words_)](const TitleRow &row) {
        const int owner = index->OwnerOf(ProfileOfKey(row.key));
        return owner >= 0 && matching[size_t(owner)];
    };
}

void FindBox::Narrow() {
    TitleList &list = browser_.listSeries;
    const int row = browser_.current_row;
    const QString key = row >= 0 && row < list.rowCount() ? list.At(row).key : hidden_key_;
    since_narrowed_.start();
    if (list.Narrow()) {
        ShowRow(key);
    }
    ShowFilterCount(browser_, list.TitleCount());
}

/// Makes the row of a key current again without reading its title anew, if the list shows it.
void FindBox::ShowRow(const QString &key) {
    const TitleList &list = browser_.listSeries;
    const QString shown = ShownTitle(browser_.session);
    int row = key.isEmpty() ? -1 : list.RowOfKey(key);
    if (row < 0 && !shown.isEmpty()) {
        row = list.RowOfTitle(shown);
    }
    hidden_key_ = row < 0 ? key : QString();
    browser_.current_row = row;
    Q_EMIT browser_.CurrentRowChanged();
    if (IsOn()) {
        return; // what is typed does not turn the page
    }
    // The list may be another one than that in which the title was current.
    if (row < 0 && (!key.isEmpty() || shown.isEmpty())) {
        ShowFirstTitle(browser_);
    } else if (row >= 0 && shown.isEmpty() && !list.At(row).header) {
        UpdateSeriesList(browser_, row);
    }
}

bool FindBox::GiveWayTo(const QString &id) {
    if (!IsOn() || browser_.listSeries.RowOfTitle(id) >= 0 || !browser_.listSeries.HoldsHidden(id)) {
        return false;
    }
    Clear();
    return true;
}

} // namespace ostrand
