// The bar of a profile's reviews.

#include "skin/EntryList.h"
#include "skin/SkinTags.h"

#include <cmath>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr double kCellsOfWidth = 20;
/// Far above what a review can be; keeps a faulty row from a page without end.
constexpr qint64 kMostRating = 1000;

struct ReviewPart {
    QStringView field;
    QLatin1String colour;
    QLatin1String half_cell_gap;
};

constexpr ReviewPart kParts[] = {
    {u"Film", "#0080FF"_L1, " "_L1},
    {u"Video", "#00FF80"_L1, " "_L1},
    {u"Audio", "#FF8080"_L1, "  "_L1}, // two blanks: deliberate
    {u"Extras", "#FFFF80"_L1, " "_L1},
};

/// Cells are written without the closing bracket of their own tag: deliberate.
QString Cell(double width, QLatin1String gap, QLatin1String colour) {
    constexpr int kDigits = 15;
    return "<TD WIDTH="_L1 + QString::number(width - 1, 'g', kDigits) + gap + "BGCOLOR=\""_L1 + colour + "\"</TD>"_L1;
}

/// Halves to even.
double Rounded(double number) {
    return std::nearbyint(number);
}

} // namespace

void GetDPReview(const TagCall &call, QString &text) {
    const int width = call.Number(u"Width", 100);
    const sql::Recordset rows = ProfileRows(call, u"Reviews"_s);
    if (rows.Eof()) {
        return;
    }
    text = "<TABLE CELLPADDING=0 CELLSPACING=0 WIDTH="_L1 + QString::number(width) + " HEIGHT="_L1 +
           call.Text(u"Height", u"20"_s) + " BORDER=1 BGCOLOR=\""_L1 + call.Text(u"BGColor") + "\"><TR>"_L1;
    const double cell = width / kCellsOfWidth;
    double used = 0;
    for (const ReviewPart &part : kParts) {
        qint64 rating = std::min(rows.Integer(part.field), kMostRating);
        if (rating != 0) {
            ++rating;
        }
        for (qint64 i = 0; i < rating / 2; ++i) {
            text += Cell(cell, " "_L1, part.colour);
            used = Rounded(used + cell);
        }
        if (rating % 2 != 0) {
            text += Cell(cell / 2, part.half_cell_gap, part.colour);
            used = Rounded(used + cell / 2);
        }
    }
    text += "<TD WIDTH="_L1 + QString::number(qint64(width - used)) + "></TD></TR></TABLE>"_L1;
}

} // namespace ostrand
