// The rules by which a title reaches the screen.
#pragma once

#include <QString>

#include <array>

namespace ostrand {

namespace sql {
class Recordset;
}
struct ViewState;

/// The title of a record of `Profiles` or `TVSeries`, by the switches for custom and original titles and, where it is
/// asked for, with the description behind it. Fields that are read and that the record does not have throw SqlError, as
/// do all below; only the custom titles may be missing, since a filter need not give them: they count as empty then.
QString GetTitle(const ViewState &view, const sql::Recordset &record, bool ignore_custom, bool with_description);
/// The text that sorts a title.
QString GetSortTitle(const ViewState &view, const sql::Recordset &record, bool ignore_custom);
/// The title of a record of `Episodes`; a "* " in front of an original title that stands in for a missing one.
QString GetEpisodeTitle(const ViewState &view, const sql::Recordset &record);

/// The same rules for many records of one result set, whose fields are looked up once. Reads the current record; the
/// result set and the view state must outlive the reader.
class TitleReader {
public:
    TitleReader(const ViewState &view, const sql::Recordset &record) : view_(view), record_(record) {
        ordinals_.fill(kNotLookedUp);
    }

    QString GetTitle(bool ignore_custom, bool with_description) const;
    QString GetSortTitle(bool ignore_custom) const;
    /// The original title, or the title where that is empty.
    QString OriginalOrTitle() const;

private:
    enum Field { Title, OriginalTitle, CustomTitle, SortTitle, OriginalSortTitle, CustomSortTitle, Description };
    static constexpr int kFields = 7;
    static constexpr int kNotLookedUp = -2;
    static constexpr int kMissing = -1;

    QString Text(Field field) const;
    QString FirstNonEmpty(std::initializer_list<Field> fields) const;
    QString WithDescription(const QString &title) const;

    const ViewState &view_;
    const sql::Recordset &record_;
    mutable std::array<int, kFields> ordinals_;
};

} // namespace ostrand
