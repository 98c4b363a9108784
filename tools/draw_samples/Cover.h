// Covers of invented films.
#pragma once

#include <QImage>
#include <QString>

namespace ostrand::samples {

struct CoverText {
    QString id;
    QString title;
    QString genre;
    QString year;
    QString director;
    QString trait;
    QString tagline;
    bool black_and_white = false;
};

QImage DrawFront(const CoverText &text);
QImage DrawBack(const CoverText &text);

} // namespace ostrand::samples
