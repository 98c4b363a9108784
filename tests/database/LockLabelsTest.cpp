#include "database/LockLabels.h"

#include "CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QStringList Names(std::span<const LockLabel> labels) {
    QStringList names;
    for (const LockLabel &label : labels) {
        names += LockName(label.label);
    }
    return names;
}

TEST(LockLabels, NameTheLocksOfEpisodesAndProfiles) {
    const QStringList all = {u"Title"_s,          u"OriginalTitle"_s,  u"Overview"_s,
                             u"Cast"_s,           u"Crew"_s,           u"AudioTracks"_s,
                             u"Subtitles"_s,      u"RunningTime"_s,    u"VideoFormats"_s,
                             u"Rating"_s,         u"Notes"_s,          u"Studios"_s,
                             u"Genres"_s,         u"Features"_s,       u"Events"_s,
                             u"IMDbLink"_s,       u"Entire"_s,         u"Reviews"_s,
                             u"Tags"_s,           u"IMDbData"_s,       u"AdditionalInfo"_s,
                             u"AirDate"_s,        u"SeasonName"_s,     u"EpisodeNumber"_s,
                             u"Discs"_s,          u"BoxSet"_s,         u"SRPInfo"_s,
                             u"PurchaseInfo"_s,   u"EasterEggs"_s,     u"LoanInfo"_s,
                             u"Medium"_s,         u"DataSource"_s,     u"CollectionNumber"_s,
                             u"Description"_s,    u"CollectionType"_s, u"UPC"_s,
                             u"ProductionYear"_s, u"ReleaseDate"_s,    u"OriginalSortTitle"_s,
                             u"SortTitle"_s,      u"CaseType"_s,       u"WishListPriority"_s,
                             u"Locality"_s,       u"Regions"_s,        u"Covers"_s,
                             u"CountryOfOrigin"_s};
    EXPECT_EQ(Names(LockLabels()), all);
    EXPECT_EQ(Names(EpisodeLockLabels()), all.first(24));
}

} // namespace
} // namespace ostrand
