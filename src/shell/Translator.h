// Translation for what lives longer than a session, or knows none.
#pragma once

#include <QString>

#include <functional>

namespace ostrand {

/// Gives the text to show for an English text. Empty for the English texts themselves.
using Translator = std::function<QString(const QString &text)>;

inline QString Translate(const Translator &translator, const QString &text) {
    return translator ? translator(text) : text;
}

} // namespace ostrand
