// The pieces of barcodes: margins, guards and digits, side by side without a gap.
#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace ostrand::barcodes {

struct Piece {
    QString name;
    /// One module a character, "1" for a bar.
    QString modules;
    /// Guards reach down between the digits.
    bool is_guard = false;
    /// The digit to be read below or beside the bars; -1 for none.
    int digit = -1;
};

QList<Piece> AllPieces();
QImage Draw(const Piece &piece);

} // namespace ostrand::barcodes
