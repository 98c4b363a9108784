// Every tag of skins, told once.
#pragma once

#include "skin/TagCall.h"

#include <span>

namespace ostrand {

/// A tag: who writes its text, and what holds for it.
struct SkinTag {
    const char16_t *name;
    TagProducer producer;
    /// Category, lock or column that the producer is told.
    const char16_t *argument = u"";
    /// Gives the empty text for an episode.
    bool profiles_only = false;
    /// With a name for the log, failures of the producer are told in a box with the title and end nothing else.
    const char16_t *log_name = nullptr;
    const char16_t *box_title = nullptr;
};

/// All tags in the order in which a name is compared with them.
std::span<const SkinTag> SkinTags();
/// Null for an unknown name. Names are upper-cased before.
const SkinTag *FindSkinTag(QStringView upper_name);

/// The text that stands for a tag; empty for an unknown one. `call.argument` is filled here.
QString EvaluateSkinTag(const QString &upper_name, TagCall call);

} // namespace ostrand
