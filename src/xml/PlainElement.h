// A quick way to the tree of an element that a first pass has found well formed.
#pragma once

#include "xml/MarkupDigest.h"

#include <pugixml.hpp>

#include <optional>

namespace ostrand {

/// The tree of an element, its root being the element, as TreeBuilder makes it. Nothing where the markup holds what the
/// two would read differently (comments, CDATA, processing instructions, references by number), where its encoding is
/// neither UTF-8 nor of single bytes, and where it is not well formed. It must need no entities but XML's own.
std::optional<pugi::xml_document> ReadPlainElement(QByteArrayView markup, const MarkupEncoding &encoding);

} // namespace ostrand
