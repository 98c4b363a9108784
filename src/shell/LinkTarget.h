// What a text that acts as a link leads to.
#pragma once

#include <QString>

namespace ostrand {

class Opener;

enum class LinkKind {
    None,
    Web,  ///< begins "www.", "https://" or "http://"
    Mail, ///< begins "mailto:"
    File, ///< begins "App:"; the rest is the path
};

struct LinkTarget {
    LinkKind kind = LinkKind::None;
    QString target; ///< the URL with its scheme, or the path
};

/// The beginnings are compared without regard to case.
LinkTarget ReadLink(const QString &text);

/// Hands a link to the system. For a file that exists and has no application the user may choose one. True when the
/// text is a link.
bool OpenLink(Opener &opener, const QString &text);

} // namespace ostrand
