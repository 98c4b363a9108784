// The titles of a profile or an episode.

#include "skin/SkinTags.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

void AddDescription(const TagCall &call, QString &text) {
    const QString description = call.is_episode ? QString() : call.Field(u"Description");
    if (!description.isEmpty()) {
        text = text.isEmpty() ? description : text + ": "_L1 + description;
    }
}

} // namespace

void GetDPTitle(const TagCall &call, QString &text) {
    const bool show_title = call.Flag(u"ShowTitle", true);
    const bool show_description = call.Flag(u"ShowDesc", false);
    const bool use_original = call.Flag(u"UseOriginalTitleIfBlank", true);
    if (show_title) {
        text = call.Field(u"Title");
        if (text.isEmpty() && use_original) {
            text = call.Field(u"OriginalTitle");
        }
    }
    if (show_description) {
        AddDescription(call, text);
    }
}

void GetDPOriginalTitle(const TagCall &call, QString &text) {
    const bool use_title = call.Flag(u"UseTitleIfBlank", true);
    const bool show_description = call.Flag(u"ShowDesc", false);
    text = call.Field(u"OriginalTitle");
    if (text.isEmpty() && use_title) {
        text = call.Field(u"Title");
    }
    if (show_description) {
        AddDescription(call, text);
    }
}

void GetOSVCustomTitle(const TagCall &call, QString &text) {
    if (call.is_episode) {
        text = call.Field(u"Title");
        return;
    }
    const bool use_title = call.Flag(u"UseTitleIfBlank", true);
    const bool use_original = call.Flag(u"UseOriginalTitleIfBlank", false);
    const bool show_description = call.Flag(u"ShowDesc", false);
    text = call.Field(u"CustomTitle");
    if (text.isEmpty() && use_original) {
        text = call.Field(u"OriginalTitle");
    }
    if (text.isEmpty() && use_title) {
        text = call.Field(u"Title");
    }
    if (show_description) {
        AddDescription(call, text);
    }
}

void GetOSVOriginalSortTitle(const TagCall &call, QString &text) {
    const bool use_sort_title = call.Flag(u"UseSortTitleIfBlank", true);
    if (call.is_episode) {
        return;
    }
    text = call.Field(u"OriginalSortTitle");
    if (text.isEmpty() && use_sort_title) {
        text = call.Field(u"SortTitle");
    }
}

} // namespace ostrand
