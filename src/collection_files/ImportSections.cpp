// The dependent rows of a profile, replaced section by section.

#include "collection_files/ImportCredits.h"
#include "collection_files/ImportProfile.h"
#include "collection_files/SectionReaders.h"
#include "shell/Session.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

PresentRows PresentRowsOf(const ImportProfile &profile) {
    return profile.may_have_rows ? PresentRows::Any : PresentRows::None;
}

void ImportProfileCast(const ImportProfile &profile) {
    ImportCast(profile.GetSession(), profile.dvd.child("Actors"), profile.key, false, false, PresentRowsOf(profile));
}

void ImportProfileCrew(const ImportProfile &profile) {
    ImportCrew(profile.GetSession(), profile.dvd.child("Credits"), profile.key, false, false, PresentRowsOf(profile));
}

struct Section {
    const char *lock; ///< null for a section that no lock keeps
    const char *word; ///< null for a section that is not told
    void (*import)(const ImportProfile &profile);
    const char *set_by_hand = nullptr; ///< the name under which the user sets that lock, where it is another one
};

constexpr auto kSections = std::to_array<Section>({
    {"Cast", "Cast", ImportProfileCast},
    {"Crew", "Crew", ImportProfileCrew},
    {"BoxSet", "Boxset Info", ImportBoxSet},
    {"Discs", "Disc Info", ImportDiscs},
    {"Regions", "Region Info", ImportRegions},
    {"VideoFormats", "Video Format", ImportVideoFormat},
    {"Features", "Features", ImportFeatures},
    {"Studios", "Studios", ImportStudios},
    {"Genres", "Genres", ImportGenres},
    {"Subtitles", "Subtitles", ImportSubtitles},
    {"AudioFormats", "Audio Tracks", ImportAudioFormats, "AudioTracks"},
    {"SRPInfo", "SRP Info", ImportSrpInfo},
    {"Reviews", "Review", ImportReviews},
    {nullptr, "Meta Info", ImportMetaInfo},
    {"PurchaseInfo", "Purchase Info", ImportPurchaseInfo},
    {"Events", "Events", ImportEvents},
    {"LoanInfo", "Loan Info", ImportLoanInfo},
    {"Tags", "Tags", ImportTags},
    {"AdditionalInfos", nullptr, ImportAdditionalInfoElements, "AdditionalInfo"},
});

bool IsLocked(const LockSet &locks, const Section &section) {
    const std::array names = {section.lock, section.set_by_hand};
    return std::any_of(names.begin(), names.end(), [&locks](const char *name) {
        return name != nullptr && locks.IsLocked(QString::fromLatin1(name));
    });
}

/// Without the long form of details the sections are told as two groups.
const char *GroupBefore(std::size_t section) {
    return section == 0 ? "Credits" : section == 2 ? "Other" : nullptr;
}

} // namespace

void ShowImportDetail(const ImportRun &run, const QString &word) {
    Session &session = run.session;
    const QString text = Translate(session, word);
    session.progress.SetDetail(text);
    if (run.show_details && run.show_more_details) {
        session.progress.SubItemDone();
        session.progress.AddSubInfo(text);
    }
}

void ImportSections(const ImportProfile &profile) {
    const bool all_words = profile.run.show_more_details;
    for (std::size_t i = 0; i < kSections.size(); ++i) {
        const Section &section = kSections[i];
        if (const char *word = all_words ? section.word : GroupBefore(i)) {
            ShowImportDetail(profile.run, QString::fromLatin1(word));
        }
        if (!IsLocked(profile.locks, section)) {
            section.import(profile);
        }
    }
}

} // namespace ostrand
