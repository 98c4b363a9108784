// Texts of the collection in their places in the site: between tags, in attributes, in addresses, in scripts.
#pragma once

#include <QString>

namespace ostrand {

/// Between tags. Quotes stay, as they mean nothing there.
QString HtmlText(const QString &text);
/// Between quotes of either kind in a tag.
QString HtmlAttribute(const QString &text);
/// One part of an address: percent escapes for all that would end it or the attribute around it. Letters of ASCII,
/// digits and the usual marks stay as they are.
QString UrlPart(const QString &text);
/// A literal of a script in the given quotes, which nothing in the text ends, not even a line end or a tag.
QString ScriptLiteral(const QString &text, QChar quote);

/// The key of a profile or an episode as the site knows it.
QString SiteKey(const QString &id);
/// The name of a key's page and images, without ending; that of an ordinary key is the key.
QString PageName(const QString &key);

} // namespace ostrand
