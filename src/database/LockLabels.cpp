#include "database/LockLabels.h"

#include <algorithm>

namespace ostrand {

namespace {

constexpr LockLabel kLabels[] = {
    {u"Title", false},
    {u"Original Title", false},
    {u"Overview", false},
    {u"Cast", false},
    {u"Crew", false},
    {u"Audio Tracks", false},
    {u"Subtitles", false},
    {u"Running Time", false},
    {u"Video Formats", false},
    {u"Rating", false},
    {u"Notes", false},
    {u"Studios", false},
    {u"Genres", false},
    {u"Features", false},
    {u"Events", false},
    {u"IMDb Link", false},
    {u"Entire", false},
    {u"Reviews", false},
    {u"Tags", false},
    {u"IMDb Data", false},
    {u"Additional Info", false},
    {u"Air Date", false},
    {u"Season Name", false},
    {u"Episode Number", false},
    {u"Discs", true},
    {u"BoxSet", true},
    {u"SRP Info", true},
    {u"Purchase Info", true},
    {u"Easter Eggs", true},
    {u"Loan Info", true},
    {u"Medium", true},
    {u"Data Source", true},
    {u"Collection Number", true},
    {u"Description", true},
    {u"Collection Type", true},
    {u"UPC", true},
    {u"Production Year", true},
    {u"Release Date", true},
    {u"Original Sort Title", true},
    {u"Sort Title", true},
    {u"Case Type", true},
    {u"Wish List Priority", true},
    {u"Locality", true},
    {u"Regions", true},
    {u"Covers", true},
    {u"Country Of Origin", true},
};

} // namespace

std::span<const LockLabel> LockLabels() {
    return kLabels;
}

std::span<const LockLabel> EpisodeLockLabels() {
    const auto *end = std::ranges::find_if(kLabels, &LockLabel::profiles_only);
    return {std::begin(kLabels), end};
}

QString LockName(QStringView label) {
    return label.toString().remove(u' ');
}

} // namespace ostrand
