// The cover of a profile as markup.
#pragma once

#include "skin/TagCall.h"

namespace ostrand {

/// What a click on a cover leads to: a large view of it, or the profile, for those in a list of profiles.
enum class CoverLink { Zoom, Profile };

/// Writes the image of the cover side that the tag's attributes `Face`, `Width` and `Height` tell; nothing where there
/// is no such file. `key` is a ProfileID or EpisodeID. Throws SkinFailure when the page of the large view cannot be
/// written.
void WriteCoverImage(const TagCall &call, const QString &key, CoverLink link, QString &text);

} // namespace ostrand
