// What the panels Details and Audio/Video tell of a title.
#pragma once

#include "shell/ListTable.h"

#include <QString>

namespace ostrand {

class Browser;
namespace sql {
class Recordset;
}

/// A text that leads somewhere; both are empty for none.
struct LinkContent {
    QString text;
    QString target;
};

/// The members keep the names of the controls that show them. A text holds its translated label, a blank and the value;
/// the label alone without a title, and nothing at all for what the kind of title does not have.
struct DetailsContent {
    DetailsContent();

    // The keys of the rows are the values as the database has them.
    ListTable listGenres;
    ListTable listStudios;
    ListTable listFeatures;

    LinkContent UPC;
    LinkContent urlIMDB;

    QString textTitle;
    QString textSortTitle;
    QString textOriginalTitle;
    QString textOriginalSortTitle;
    QString textCollectionNumber;
    QString textCollectionType;
    QString textReleaseDate;
    QString textRuntime;
    QString textRating;
    QString textRating_tool_tip;
    QString textCaseType;
    QString textRegions;
    QString textLocality;
};

struct AVContent {
    AVContent();

    ListTable listAudio;
    ListTable listSubtitles;

    QString textRatio;
    QString textVideoFormat;

    bool cAnamorph = false;
    bool cFullFrame = false;
    bool cPanScan = false;
    bool cWidescreen = false;
};

/// How much a title of the wish list is wished for, in English; `WishListPriority` counts them from 1.
QStringList WishListPriorities();
/// The headers of the lists in the user's language.
void TranslateContent(Browser &browser);
/// Empties Details and AV: the texts are their bare labels.
void ClearProfileInfos(Browser &browser);
/// The link of the UPC, which leads to what is told of a profile's data; an episode has none.
void FillUPC(Browser &browser, const sql::Recordset &record, bool is_episode);
/// The link to IMDb, the genres and the studios.
void FillLinksAndGroups(Browser &browser, const QString &id);
/// All of AV.
void FillAV(Browser &browser, const QString &id);
/// The features and the texts of Details. `record` is one of `Profiles` or of `Episodes`.
void FillTexts(Browser &browser, const sql::Recordset &record, const QString &id, bool is_episode);

} // namespace ostrand
