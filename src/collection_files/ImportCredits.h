// Cast and crew from a collection file.
#pragma once

#include <QString>

#include <pugixml.hpp>

namespace ostrand {

struct Session;

/// Whether the table may hold rows of the profile, or of the episode, that are to be replaced.
enum class PresentRows { Any, None };

/// Replaces the cast of a profile, or of an episode, by the child elements of `node`, which may be missing. `silent`
/// keeps back the messages of refused aliases.
void ImportCast(Session &session, pugi::xml_node node, const QString &key, bool is_episode, bool silent,
                PresentRows present = PresentRows::Any);
/// The same with the crew; jobs that the crew tree does not know yet are learned from their credit type.
void ImportCrew(Session &session, pugi::xml_node node, const QString &key, bool is_episode, bool silent,
                PresentRows present = PresentRows::Any);

} // namespace ostrand
