#include "browser/PanelFields.h"

#include "browser/Browser.h"
#include "browser/ProfileCommands.h"
#include "browser/ProfileContent.h"
#include "database/DatabaseFunctions.h"
#include "database/LockLabels.h"
#include "database/TitleLocks.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// How the user is asked for a value.
enum class Asks { Text, Values, TranslatedValues, Priority };

/// What a control shows of one kind of title. Without a label it shows nothing of it, without a column there is no one
/// value to change.
struct Shows {
    const char16_t *label = nullptr;
    const char16_t *column = nullptr;
    Asks asks = Asks::Text;
};

struct FieldRow {
    const char16_t *control;
    Shows profile;
    Shows episode;
};

constexpr Shows kRating = {u"Rating", u"Rating", Asks::Values};
constexpr Shows kRuntime = {u"Running Time", u"Runtime"};
constexpr Shows kGenres = {u"Genres"};
constexpr Shows kStudios = {u"Studios"};
constexpr Shows kFeatures = {u"Features"};
constexpr Shows kAudio = {u"Audio Tracks"};
constexpr Shows kSubtitles = {u"Subtitles"};
constexpr Shows kVideo = {u"Video Formats"};
constexpr Shows kLink = {u"IMDb Link"};
constexpr Shows kPriority = {u"Wish List Priority", u"WishListPriority", Asks::Priority};
constexpr Shows kOriginalEpisodeTitle = {u"Original Title", u"EpisodeOriginalTitle"};

constexpr FieldRow kFields[] = {
    {u"textTitle", {u"Title", u"Title"}, {u"Title", u"EpisodeTitle"}},
    {u"textSortTitle", {u"Sort Title", u"SortTitle"}, {}},
    {u"textOriginalTitle", {u"Original Title", u"OriginalTitle"}, {}},
    {u"textOriginalSortTitle", {u"Original Sort Title", u"OriginalSortTitle"}, {}},
    {u"textCollectionNumber", {u"Collection Number", u"ColNo"}, {}},
    {u"textCollectionType", {u"Collection Type", u"ColType", Asks::TranslatedValues}, {}},
    {u"textReleaseDate", {u"Release Date", u"Released"}, {u"Air Date", u"AirDate"}},
    {u"textRuntime", kRuntime, kRuntime},
    {u"textRating", kRating, kRating},
    {u"textCaseType", {u"Case Type", u"CaseType", Asks::TranslatedValues}, {}},
    {u"textRegions", {u"Regions"}, {}},
    {u"textLocality", {u"Locality", u"Locality", Asks::Values}, {}},
    {u"UPC", {u"UPC", u"UPC"}, {}},
    {u"urlIMDB", kLink, kLink},
    {u"listGenres", kGenres, kGenres},
    {u"listStudios", kStudios, kStudios},
    {u"listFeatures", kFeatures, kFeatures},
    {u"listAudio", kAudio, kAudio},
    {u"listSubtitles", kSubtitles, kSubtitles},
    {u"textRatio", kVideo, kVideo},
    {u"textVideoFormat", kVideo, kVideo},
    {u"frameVideo", kVideo, kVideo},
    {u"picMedium", {u"Medium", u"Medium", Asks::Values}, {}},
    {u"picCover", {u"Covers"}, {}},
};

sql::Recordset CurrentRecord(Browser &browser) {
    const Session &session = browser.session;
    const QString id = EscapeSql(session.CurrentProfileID);
    return browser.session.Database->OpenRecordset(
        session.CurrentIsEpisode ? u"SELECT EpisodeOriginalTitle FROM Episodes WHERE EpisodeID = '"_s + id + u'\''
                                 : u"SELECT ColType FROM Profiles WHERE ProfileID = '"_s + id + u'\'');
}

/// What a control shows of the current title, whose other fields decide for some.
Shows ShownBy(const FieldRow &row, const sql::Recordset &record, bool is_episode) {
    const Shows &shows = is_episode ? row.episode : row.profile;
    const QStringView control = row.control;
    if (is_episode && control == u"textTitle" && !record.Text(0).isEmpty()) {
        return kOriginalEpisodeTitle;
    }
    if (!is_episode && control == u"textCollectionNumber" && sql::Compare(record.Text(0), u"WishList") == 0) {
        return kPriority;
    }
    return shows;
}

FieldChange ChangeOf(const Session &session, const Shows &shows) {
    FieldChange change{.field = QString::fromUtf16(shows.column),
                       .label = QString::fromUtf16(shows.label),
                       .is_episode = session.CurrentIsEpisode,
                       .lock_name = LockName(shows.label),
                       .required = QStringView(shows.column) == u"Title"};
    if (shows.asks == Asks::TranslatedValues) {
        change.answer = FieldChange::Answer::Translated;
    } else if (shows.asks == Asks::Priority) {
        change.answer = FieldChange::Answer::Choice;
        change.choices = WishListPriorities();
    }
    return change;
}

} // namespace

std::optional<PanelField> FindPanelField(Browser &browser, const QString &control) {
    Session &session = browser.session;
    const auto row = std::ranges::find_if(kFields, [&](const FieldRow &field) { return control == field.control; });
    if (row == std::end(kFields) || !session.Database || session.CurrentProfileID.isEmpty()) {
        return std::nullopt;
    }
    const sql::Recordset record = CurrentRecord(browser);
    if (record.Eof()) {
        return std::nullopt;
    }
    const Shows shows = ShownBy(*row, record, session.CurrentIsEpisode);
    if (shows.label == nullptr) {
        return std::nullopt;
    }
    PanelField field{.label = QString::fromUtf16(shows.label), .lock_name = LockName(shows.label), .change = {}};
    if (shows.column != nullptr) {
        field.change = ChangeOf(session, shows);
        field.offers_values = shows.asks == Asks::Values || shows.asks == Asks::TranslatedValues;
    }
    return field;
}

bool PrepareFieldMenu(Browser &browser, const QString &control) {
    const std::optional<PanelField> field = FindPanelField(browser, control);
    browser.menu_field = control;
    const bool locked = field && IsLocked(browser.session, browser.session.CurrentProfileID, field->lock_name);
    browser.commands.Together([&] {
        for (const QString &entry : {u"mLockField"_s, u"mLockCovers"_s}) {
            browser.commands.SetEnabled(entry, field.has_value());
            browser.commands.SetChecked(entry, locked);
        }
        browser.commands.SetEnabled(u"mChangeField"_s, field && field->change);
    });
    return field.has_value();
}

void ToggleFieldLock(Browser &browser) {
    if (const auto field = FindPanelField(browser, browser.menu_field)) {
        ToggleLock(browser.session, browser.session.CurrentProfileID, field->lock_name);
    }
}

void ChangeMenuField(Browser &browser) {
    ChangePanelField(browser, browser.menu_field);
}

void ChangePanelField(Browser &browser, const QString &control) {
    auto field = FindPanelField(browser, control);
    if (!field || !field->change) {
        return;
    }
    if (field->offers_values) {
        field->change->choices = DistinctValues(browser.session, field->change->field);
    }
    if (ChangeField(browser.session, *field->change)) {
        ShowChangedTitle(browser);
    }
}

} // namespace ostrand
