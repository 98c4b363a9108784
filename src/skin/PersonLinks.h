// One person of a page: the linked name and the picture.
#pragma once

#include "skin/TagCall.h"

namespace ostrand {

/// How a person is printed.
struct PersonStyle {
    bool color_names = false;
    bool show_headshot = false;
    /// The text of the image's WIDTH.
    QString headshot_width;
    /// Behind the name instead of in front of it.
    bool headshot_right = false;
    bool show_birth_years = false;
};

/// The link to a person, with the picture where one is wanted and exists. `birth_year` is the text of the field, which
/// may be empty. Names are not encoded: skins may hold markup in them.
QString displayCrossLink(const TagCall &call, const QString &credit_name, const QString &birth_year,
                         const PersonStyle &style);

/// The image of a person, filed under the common name; empty without a file.
QString GetOSVHeadshot(const TagCall &call, const QString &credit_name, const QString &width, int birth_year);

} // namespace ostrand
