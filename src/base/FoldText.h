// Texts as they are compared where the user types only a part of one.
#pragma once

#include <QStringView>

#include <string>

namespace ostrand {

/// Appends a text as UTF-8 without what people leave out when they type: case, accents, apostrophes, commas and double
/// quotes. Letters of their own become those that are typed for them (ß ss, æ ae, œ oe, ø o, ł l, þ th ..), all hyphens
/// and dashes become "-". Runs of white space, line ends included, become one blank; none stands at either end.
void AppendFolded(QStringView text, std::string &folded);
std::string FoldText(QStringView text);

} // namespace ostrand
