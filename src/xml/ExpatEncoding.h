// Encodings that expat does not know of itself.
#pragma once

#include <expat.h>

#include <array>
#include <optional>
#include <string_view>

namespace ostrand {

/// The character of each byte of an 8-bit code page such as "windows-1252", -1 where there is none; nothing for an
/// encoding that is not known or that takes more than one byte for a character.
std::optional<std::array<int, 256>> EightBitEncoding(std::string_view name);

/// The handler for XML_SetUnknownEncodingHandler; it needs no data.
int XMLCALL UnknownEncodingHandler(void *data, const XML_Char *name, XML_Encoding *encoding);

} // namespace ostrand
