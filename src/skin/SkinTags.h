// The producers of the tags' texts, by family. Each writes its text into `text`.
#pragma once

#include "skin/TagCall.h"

namespace ostrand {

// A column of the row, as it stands or changed. (FieldTags.cpp)
void GetField(const TagCall &call, QString &text);
void GetTranslatedField(const TagCall &call, QString &text);
/// Line ends become "<br/>".
void GetFieldWithBreaks(const TagCall &call, QString &text);
void GetNotes(const TagCall &call, QString &text);

// Lists. (ListTags.cpp) `argument` is the table.
void GetDPList(const TagCall &call, QString &text);
void GetDPStudios(const TagCall &call, QString &text); ///< argument "Media Company", or empty for the others
void GetOSVTags(const TagCall &call, QString &text);
void GetDPMediaPublisher(const TagCall &call, QString &text);
void GetDPLock(const TagCall &call, QString &text); ///< argument: the lock's name

// Titles. (TitleTags.cpp)
void GetDPTitle(const TagCall &call, QString &text);
void GetDPOriginalTitle(const TagCall &call, QString &text);
void GetOSVCustomTitle(const TagCall &call, QString &text);
void GetOSVOriginalSortTitle(const TagCall &call, QString &text);

// Numbers, dates and codes. (NumberTags.cpp, PurchaseTags.cpp)
void GetDPRating(const TagCall &call, QString &text);
void GetDPUPC(const TagCall &call, QString &text);
void GetDPRuntime(const TagCall &call, QString &text);
void GetDPRegions(const TagCall &call, QString &text);
void GetDPRegion(const TagCall &call, QString &text); ///< the lowest one only
void GetDPSRP(const TagCall &call, QString &text);
void GetDPReleaseDate(const TagCall &call, QString &text);
void GetDPOwnership(const TagCall &call, QString &text);
void GetDPPurchDate(const TagCall &call, QString &text);
void GetDPPurchPlace(const TagCall &call, QString &text);
void GetDPPurchPrice(const TagCall &call, QString &text);

// Discs and formats. (DiscTags.cpp, FormatTags.cpp)
void GetDPSides(const TagCall &call, QString &text);
void GetDPLayers(const TagCall &call, QString &text);
void GetDPWidescreen(const TagCall &call, QString &text);
void GetDPVidStandard(const TagCall &call, QString &text);
void GetDPVidFormats(const TagCall &call, QString &text);
void GetDPAudioFormats(const TagCall &call, QString &text);
void GetDPDiscs(const TagCall &call, QString &text);

// Box sets and images. (BoxsetTags.cpp, ImageTag.cpp)
void GetDPBoxsetContent(const TagCall &call, QString &text);
void GetOSVParent(const TagCall &call, QString &text);
void GetDPImage(const TagCall &call, QString &text);

// Loans, views, reviews. (LoanTags.cpp, ReviewTag.cpp)
void GetDPLastWatched(const TagCall &call, QString &text); ///< argument "UserID" or "EventTimestamp"
void GetDPLoanedTo(const TagCall &call, QString &text);
void GetDPLoanedDue(const TagCall &call, QString &text);
void GetDPReview(const TagCall &call, QString &text);

// Credits. (CastTag.cpp, CrewTags.cpp, PersonLinks.cpp) The crew tags guard themselves.
void GetDPCast(const TagCall &call, QString &text);
void GetDPStandardCrew(const TagCall &call, QString &text); ///< argument: the category
void GetDPMappedCrew(const TagCall &call, QString &text);   ///< the tag CREW
void GetHeadshotDisplay(const TagCall &call, QString &text);

// Awards, events, episodes, and what the program adds. (AwardsTag.cpp, EventsTag.cpp, EpisodesTag.cpp, InfoTags.cpp)
void GetOSVAwards(const TagCall &call, QString &text);
void GetOSVEvents(const TagCall &call, QString &text);
void GetOSVEpisodes(const TagCall &call, QString &text);
void GetOSVAdditionalInfo(const TagCall &call, QString &text);
void GetOSVCrewCategories(const TagCall &call, QString &text);

// The program and its files. (SystemTags.cpp)
void GetOSVProgramLanguage(const TagCall &call, QString &text);
void GetProgramBuild(const TagCall &call, QString &text);
void GetProgramVersion(const TagCall &call, QString &text);
void GetProgramLocation(const TagCall &call, QString &text);
void GetCoverPath(const TagCall &call, QString &text);
void GetHeadshotPath(const TagCall &call, QString &text);
void GetDbName(const TagCall &call, QString &text);
void GetDbSetting(const TagCall &call, QString &text); ///< argument: the key
void GetSkinName(const TagCall &call, QString &text);
void GetTranslation(const TagCall &call, QString &text);

// Script variables. (HeaderVars*.cpp)
void GetDPHeaderVars(const TagCall &call, QString &text);
void GetOSVHeaderVars(const TagCall &call, QString &text);

// The barcode. (Barcode.cpp)
void GetBarcode(const TagCall &call, QString &text);

} // namespace ostrand
