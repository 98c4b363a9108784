// Titles, roles and overviews of a generated collection, in the file's code page.
#pragma once

#include "Random.h"

#include <QByteArray>

namespace ostrand::generator {

QByteArray MakeTitle(Random &random);
QByteArray MakeRole(Random &random);
/// About `length` bytes of sentences, in paragraphs.
QByteArray MakeOverview(Random &random, int length);

} // namespace ostrand::generator
