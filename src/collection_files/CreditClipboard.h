// Credits as a document on the clipboard, in the form that the collection program pastes too.
#pragma once

#include "people/CreditRecord.h"

#include <pugixml.hpp>

#include <optional>
#include <vector>

namespace ostrand {

struct Session;

enum class CreditKind { Cast, Crew };

/// The document of a title's cast or crew, dividers among them. An empty title stands as the translated "No Title";
/// without credits it is "empty" whatever it was. Names are written as the common ones with the stored ones as the
/// credited ones, `stored_names` writes the stored ones alone. Throws SqlError.
QString CreditDocument(Session &session, CreditKind kind, const QString &title,
                       const std::vector<CreditRecord> &credits, bool stored_names);

/// The element of a document from the clipboard whose children are credits of that kind; nothing for a text that is
/// no such document. `document` holds it.
std::optional<pugi::xml_node> CreditsOfDocument(const QString &text, CreditKind kind, pugi::xml_document &document);

} // namespace ostrand
