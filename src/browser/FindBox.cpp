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
    browser.listSeries.SetRowFilter(
        [this](const std::vector<TitleRow> &rows, int order) { return Matching(rows, order); });
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
    TryToFollowDatabase();
}

void FindBox::FollowChanges() {
    if (IsOn()) {
        TryToFollowDatabase();
    }
}

const FindIndex *FindBox::Index() const {
    return index_ ? index_.get() : reader_ ? &reader_->Index() : nullptr;
}

/// As FollowDatabase; a fault of the database, which some other statement will tell, leaves the index that is there.
void FindBox::TryToFollowDatabase() {
    try {
        FollowDatabase();
    } catch (const sql::SqlError &error) {
        Trace(browser_.session, u"FindBox: "_s + error.Text(), kTraceError);
    }
}

/// Begins another index where the one that is there, or that is being made, does not tell of the present rows.
void FindBox::FollowDatabase() {
    Session &session = browser_.session;
    const FindOwners owners = OwnersOf(session.view);
    if (!session.Database || (index_ && (index_owners_ != owners || index_watch_.IsOver()))) {
        index_.reset();
        ++index_number_;
    }
    if (!session.Database || (index_ && !index_watch_.Changed())) {
        reader_.reset();
        return;
    }
    if (!reader_ || reader_->Owners() != owners || reader_->Watch().Changed()) {
        reader_ = std::make_unique<FindIndexReader>(session, owners);
        ++index_number_;
        Q_EMIT WorkWanted();
    }
}

bool FindBox::Step() {
    if (reader_) {
        TryToFollowDatabase();
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
        ++index_number_;
        reader_.reset();
    }
    if (IsOn() && (!more || (!index_ && since_narrowed_.elapsed() > kNarrowEvery))) {
        Narrow();
    }
    return reader_ != nullptr;
}

std::vector<bool> FindBox::Matching(const std::vector<TitleRow> &rows, int order) {
    if (!IsOn()) {
        return {};
    }
    TryToFollowDatabase();
    std::vector<bool> passes(rows.size());
    if (const FindIndex *index = Index()) {
        const std::vector<int> &owners = OwnersOfRows(*index, rows, order);
        const std::vector<bool> matching = index->Matching(words_);
        for (size_t i = 0; i < rows.size(); ++i) {
            passes[i] = owners[i] >= 0 && matching[size_t(owners[i])];
        }
    }
    return passes;
}

const std::vector<int> &FindBox::OwnersOfRows(const FindIndex &index, const std::vector<TitleRow> &rows, int order) {
    const std::tuple asked(index_number_, index.OwnerCount(), order);
    if (std::exchange(owners_for_, asked) != asked) {
        row_owners_.clear();
        for (const TitleRow &row : rows) {
            row_owners_.push_back(row.header ? -1 : index.OwnerOf(ProfileOfKey(row.key)));
        }
    }
    return row_owners_;
}

void FindBox::Narrow() {
    TitleList &list = browser_.listSeries;
    const int number = list.NumberOf(browser_.current_row);
    const QString key = number >= 0 ? list.At(browser_.current_row).key : hidden_key_;
    since_narrowed_.start();
    if (list.Narrow()) {
        const int row = number >= 0 ? list.RowOfNumber(number) : key.isEmpty() ? -1 : list.RowOfKey(key);
        hidden_key_ = row < 0 ? key : QString();
        browser_.current_row = row;
        Q_EMIT browser_.CurrentRowChanged();
        if (!IsOn()) {
            Restore();
        }
    }
    // A list that was filled before the index was there came without a title.
    if (IsOn() && !reader_ && browser_.current_row < 0 && key.isEmpty() && ShownTitle(browser_.session).isEmpty()) {
        ShowFirstTitle(browser_);
    }
    ShowFilterCount(browser_, list.TitleCount());
}

/// The whole list is shown again. It may be another one than that in which the title was current.
void FindBox::Restore() {
    TitleList &list = browser_.listSeries;
    const bool was_hidden = !std::exchange(hidden_key_, QString()).isEmpty();
    const QString shown = ShownTitle(browser_.session);
    if (browser_.current_row < 0 && !shown.isEmpty()) {
        browser_.current_row = list.RowOfTitle(shown);
        Q_EMIT browser_.CurrentRowChanged();
    }
    const int row = browser_.current_row;
    if (row < 0 && (was_hidden || shown.isEmpty())) {
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
