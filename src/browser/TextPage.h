// Texts of a title as pages.
#pragma once

#include <QString>

namespace ostrand {

class HtmlView;
struct Session;

/// The page that a text is shown as: line ends as breaks where the text has none of its own, relative paths of images
/// made absolute, and a page around it where the text is none.
QString TextPage(const Session &session, QString html);
/// The file of a page in the temp folder.
QString TextPageFile(const Session &session, const QString &name);
/// Stores a text as the page of that name and shows it in a view. An empty text shows nothing and needs no page. A file
/// that cannot be written is traced.
void ShowTextHTML(const Session &session, HtmlView &browser, const QString &html, const QString &name);

} // namespace ostrand
