// What the producer of a tag's text is given.
#pragma once

#include "base/FolderIndex.h"
#include "skin/Template.h"
#include "sql/Recordset.h"

namespace ostrand {

struct Session;

/// How a page is rendered: for a view of the program, or for the offline site with its options.
struct RenderOptions {
    bool offline = false;
    bool opUseMyProfilerScans = false;
    bool opUseCoverScansLocally = false;
    bool chkGenerateCrosslinks = false;
    bool generate_episode_pages = false;
    bool use_original_title = false;
    bool use_custom_title = false;
    /// Called with the file of each headshot that a page of the site shows, and with the row of each episode that it
    /// links to.
    std::function<void(const QString &file)> copy_headshot;
    std::function<void(const sql::Recordset &row)> write_episode_page;
};

/// What outlives a render.
struct SkinState {
    /// The skin of the last page.
    QString ActiveSkin;
    /// Where in the temp folder its pages are written.
    QString page_file = QStringLiteral("Temp.html");
    FolderIndex headshots;
    FolderIndex covers;
    /// Told of each attribute that a producer looks for, whether or not the tag has it; may be empty.
    std::function<void(const QString &tag, QStringView attribute)> attribute_read;
};

/// One tag of a page, the row it is filled from, and what it is rendered for.
struct TagCall {
    Session &session;
    SkinState &skin;
    const RenderOptions &options;
    const sql::Recordset &row;
    /// ProfileID, or EpisodeID of an episode.
    QString key;
    bool is_episode = false;
    QString tag;
    /// What the entry of the tag table adds: a category, a lock, a column.
    QString argument = {};

    QString Text(QStringView attribute, const QString &preset = {}) const {
        return GetTagAttribute(TagWith(attribute), attribute, preset);
    }
    bool Flag(QStringView attribute, bool preset) const { return GetTagFlag(TagWith(attribute), attribute, preset); }
    int Number(QStringView attribute, int preset) const { return GetTagNumber(TagWith(attribute), attribute, preset); }
    /// The raw text of a column of the row, NULL as empty.
    QString Field(QStringView column) const { return row.Text(column); }
    /// A text in the user's language when the tag's attribute `Translate` is true, else as it stands.
    QString TranslateByTag(const QString &text, bool preset = false) const;
    /// Always in the user's language.
    QString Translated(const QString &text) const;
    /// Opens the rows of a statement.
    sql::Recordset Rows(const QString &statement) const;
    /// `WHERE ProfileID = '...'` and the like: the key with quotes doubled, in single quotes.
    QString QuotedKey() const;
    QString KeyWithoutPrefix() const;
    /// The page of a profile in the site, seen from the page that is rendered.
    QString ProfilePage(const QString &key_without_prefix) const;

private:
    /// The tag, for a look into this attribute.
    const QString &TagWith(QStringView attribute) const {
        if (skin.attribute_read) {
            skin.attribute_read(tag, attribute);
        }
        return tag;
    }
};

/// Writes the text of a tag into `text`. A failure throws; what was written until then counts where the tag is guarded.
using TagProducer = void (*)(const TagCall &call, QString &text);

/// Runs a producer's body; a failure in it shows a box with `title`, is traced as one of `log_name`, and ends the body.
void Guard(const TagCall &call, const QString &log_name, const QString &title, const std::function<void()> &body);

} // namespace ostrand
