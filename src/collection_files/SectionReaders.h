// The sections of a profile in a collection file, but for its credits. Each deletes the rows of the profile and writes
// those of the file.
#pragma once

namespace ostrand {

struct ImportProfile;

void ImportBoxSet(const ImportProfile &profile);
void ImportDiscs(const ImportProfile &profile);
void ImportRegions(const ImportProfile &profile);
void ImportVideoFormat(const ImportProfile &profile);
void ImportFeatures(const ImportProfile &profile);
void ImportStudios(const ImportProfile &profile);
void ImportGenres(const ImportProfile &profile);
void ImportSubtitles(const ImportProfile &profile);
void ImportAudioFormats(const ImportProfile &profile);
void ImportReviews(const ImportProfile &profile);
void ImportMetaInfo(const ImportProfile &profile);
void ImportTags(const ImportProfile &profile);
/// Entries under the names that the file gives; all others stay.
void ImportAdditionalInfoElements(const ImportProfile &profile);

// Sections that bring rows of the shared tables Currencies, Retailers and Users.
void ImportSrpInfo(const ImportProfile &profile);
void ImportPurchaseInfo(const ImportProfile &profile);
void ImportEvents(const ImportProfile &profile);
void ImportLoanInfo(const ImportProfile &profile);

} // namespace ostrand
