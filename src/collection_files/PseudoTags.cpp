// What users keep between tags in the notes of a profile.

#include "collection_files/ImportProfile.h"
#include "collection_files/Rows.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "xml/XmlText.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

struct PseudoTag {
    QStringView tag;
    const char *info;  ///< name of an AdditionalInfo
    const char *table; ///< or a table, which gets one row for each item
    const char *column;
};

constexpr auto kTags = std::to_array<PseudoTag>({
    {u"COUNTRY", "ProductionCountry", nullptr, nullptr},
    {u"TAGLINE", "TagLine", nullptr, nullptr},
    {u"STORAGE", "Storage", nullptr, nullptr},
    {u"COMMENTS", "Comments", nullptr, nullptr},
    {u"STUDIOS", nullptr, "Studios", "Studio"},
    {u"GENRES", nullptr, "Genres", "Genre"},
    {u"URL", "URL", nullptr, nullptr},
    {u"IMDB", "IMDb", nullptr, nullptr},
    {u"RATING", "IMDbRating", nullptr, nullptr},
    {u"VOTES", "IMDbVotes", nullptr, nullptr},
    {u"TRIVIA", "Trivia", nullptr, nullptr},
    {u"GOOFS", "Goofs", nullptr, nullptr},
    {u"REVIEWS", "Reviews", nullptr, nullptr},
});

// A row of Studios is dropped by its missing Type, deliberately: the section of the studios fills that table.
void InsertItems(const ImportProfile &profile, const PseudoTag &tag, const QString &text) {
    for (QString item : text.split(u',')) {
        if (item.startsWith(u' ')) {
            item.remove(0, 1);
        }
        InsertRow(profile.GetSession(), QLatin1String(tag.table),
                  {{QLatin1String("ProfileID"), profile.key}, {QLatin1String(tag.column), item}});
    }
}

} // namespace

void StorePseudoTags(ImportProfile &profile, const QString &notes) {
    if (!notes.contains(u'<')) {
        return;
    }
    for (const PseudoTag &tag : kTags) {
        const QString text = ExtractTag(notes, tag.tag);
        if (text.isEmpty()) {
            continue;
        }
        const QString lock = tag.info != nullptr ? u"AdditionalInfo"_s : QString::fromLatin1(tag.table);
        if (profile.locks.IsLocked(lock)) {
            continue;
        }
        if (tag.info != nullptr) {
            WriteAdditionalInfo(profile.GetSession(), profile.key, QString::fromLatin1(tag.info), text);
        } else {
            InsertItems(profile, tag, text);
            profile.may_have_rows = true; // which the sections replace
        }
    }
}

} // namespace ostrand
