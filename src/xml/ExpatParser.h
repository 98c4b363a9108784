// The parser's handle, freed by itself.
#pragma once

#include "xml/ExpatEncoding.h"

#include <expat.h>

#include <memory>
#include <type_traits>

namespace ostrand {

struct ExpatParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ExpatParser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ExpatParserDeleter>;

/// A new parser that knows the 8-bit code pages and fetches nothing from outside.
inline ExpatParser MakeExpatParser() {
    ExpatParser parser(XML_ParserCreate(nullptr));
    XML_SetUnknownEncodingHandler(parser.get(), &UnknownEncodingHandler, nullptr);
    return parser;
}

} // namespace ostrand
