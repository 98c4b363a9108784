// textFind: narrows listSeries to the titles that hold what is typed, or a person of that name.
#pragma once

#include "browser/FindIndexReader.h"

#include <QElapsedTimer>
#include <QObject>

#include <tuple>

namespace ostrand {

class Browser;
struct TitleRow;

/// The state of the find box. What the list shows, be it a tab, groups or a filter, is narrowed and nothing else; an
/// empty text shows all of it again.
///
/// The index is made at the first use, in steps that the window runs while it has nothing else to do, and anew after
/// the tables changed. Meanwhile the one before answers, or the part that is there.
class FindBox : public QObject {
    Q_OBJECT
public:
    explicit FindBox(Browser &browser);
    ~FindBox() override;

    const QString &Text() const { return text_; }
    /// The list is narrowed.
    bool IsOn() const { return !words_.empty(); }
    /// The list is narrowed by what does not know everything yet.
    bool IsPartial() const { return IsOn() && reader_; }

    /// Narrows the list. The current title stays so while the list shows it, and is so again when it does once more.
    void SetText(const QString &text);
    void Clear() { SetText({}); }
    /// Empties the box without touching the list, for another database.
    void Forget();
    /// Begins the index, since it will be needed soon.
    void Prepare();
    /// To be called now and then while the box is on, for changes that did not reach the list.
    void FollowChanges();
    /// Works on the index for some milliseconds; false when there is nothing more to do.
    bool Step();

    /// Where the current title is one that the list does not show now, its key.
    const QString &HiddenKey() const { return hidden_key_; }
    /// Shows the list whole where that brings a title into it which is looked for. True where it did.
    bool GiveWayTo(const QString &id);
    /// The index that answers now; null without one.
    const FindIndex *Index() const;

Q_SIGNALS:
    void TextChanged();
    /// Step has something to do.
    void WorkWanted();

private:
    /// By row, whether it has the words; empty while the box is off.
    std::vector<bool> Matching(const std::vector<TitleRow> &rows, int order);
    /// By row, its owner in the index, -1 without one.
    const std::vector<int> &OwnersOfRows(const FindIndex &index, const std::vector<TitleRow> &rows, int order);
    void FollowDatabase();
    void TryToFollowDatabase();
    void Narrow();
    void Restore();

    Browser &browser_;
    QString text_;
    std::vector<std::string> words_;
    QString hidden_key_;
    std::unique_ptr<FindIndex> index_;
    FindOwners index_owners_ = FindOwners::Profiles;
    sql::TableWatch index_watch_;
    std::unique_ptr<FindIndexReader> reader_;
    std::vector<int> row_owners_;
    int index_number_ = 0; ///< rises with each index
    /// What the owners of the rows are for: the number and size of the index, the order of the rows.
    std::tuple<int, int, int> owners_for_;
    QElapsedTimer since_narrowed_;
};

} // namespace ostrand
