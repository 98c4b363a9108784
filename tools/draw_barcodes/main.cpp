// Draws the pieces of which pages put barcodes together: draw_barcodes FOLDER.
#include "Pieces.h"

#include <QDir>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char **argv) {
    QTextStream errors(stderr);
    if (argc != 2) {
        errors << "Usage: draw_barcodes FOLDER" << Qt::endl;
        return 1;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(u"."_s)) {
        errors << "Cannot make the folder" << Qt::endl;
        return 1;
    }
    for (const ostrand::barcodes::Piece &piece : ostrand::barcodes::AllPieces()) {
        if (!ostrand::barcodes::Draw(piece).save(folder.filePath(piece.name + u".png"_s), "PNG")) {
            errors << "Cannot write " << piece.name << Qt::endl;
            return 1;
        }
    }
    return 0;
}
