// The owner's review of a title.
#pragma once

#include "browser/SheetTitle.h"

namespace ostrand {

struct Session;

/// Marks from 0 for none up to kBestMark.
struct Review {
    int Film = 0;
    int Video = 0;
    int Audio = 0;
    int Extras = 0;

    bool operator==(const Review &) const = default;
};

inline constexpr int kBestMark = 9;
/// A mark above 0 fills this many half cells of a bar of ten, and one more.
inline constexpr int kHalfCells = 10;

/// How much of its bar a mark fills, in half cells: nothing for none, all for the best.
int FilledHalves(int mark);
/// The mark that fills so many half cells.
int MarkOfHalves(int halves);
/// The mark as a text: "4.5 / 5" by the user's decimal mark, "-" for none.
QString MarkText(const Session &session, int mark);

/// The row of a title, without marks where there is none; marks out of range count as the nearest. Throws SqlError.
Review ReadReview(Session &session, const SheetTitle &title);
/// Writes it in place of what was there. Throws SqlError, which leaves that.
void UpdateDbReview(Session &session, const SheetTitle &title, const Review &review);

} // namespace ostrand
