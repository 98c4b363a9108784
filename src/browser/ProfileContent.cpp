#include "browser/ProfileContent.h"

#include "browser/Browser.h"
#include "browser/Titles.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "skin/TextConversion.h"
#include "sql/Collation.h"

#include <QUrl>

#include <limits>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kMostAudioRows = 16;
constexpr int kMinutesPerHour = 60;

constexpr auto kNone = u"n/a";
constexpr auto kCollectionNumber = u"Collection Number:";
constexpr auto kReleaseDate = u"Release Date:";
constexpr auto kTitle = u"Title:";

/// The label of a text of Details.
struct Label {
    QString DetailsContent::*text;
    const char16_t *label;
};

constexpr Label kDetailLabels[] = {
    {&DetailsContent::textTitle, kTitle},
    {&DetailsContent::textSortTitle, u"STitle:"},
    {&DetailsContent::textOriginalTitle, u"Original Title:"},
    {&DetailsContent::textOriginalSortTitle, u"OSTitle:"},
    {&DetailsContent::textCollectionNumber, kCollectionNumber},
    {&DetailsContent::textCollectionType, u"Collection Type:"},
    {&DetailsContent::textReleaseDate, kReleaseDate},
    {&DetailsContent::textRuntime, u"Runtime:"},
    {&DetailsContent::textRating, u"Rating:"},
    {&DetailsContent::textCaseType, u"Case Type:"},
    {&DetailsContent::textRegions, u"Regions:"},
    {&DetailsContent::textLocality, u"Locality:"},
};

/// From 1.
constexpr const char16_t *kPriorities[] = {u"Vague interest", u"Like to have it", u"Want it", u"Really want it",
                                           u"Need it"};

QString Shown(Session &session, const char16_t *text) {
    return Translate(session, QString::fromUtf16(text));
}

QString Labelled(Session &session, const char16_t *label, const QString &value) {
    return Shown(session, label) + u' ' + value;
}

/// A label of Details with a value behind it.
void SetText(Browser &browser, QString DetailsContent::*text, const QString &value) {
    const auto *row = std::find_if(std::begin(kDetailLabels), std::end(kDetailLabels),
                                   [&](const Label &l) { return l.text == text; });
    browser.Details.*text = Labelled(browser.session, row->label, value);
}

sql::Recordset RowsOf(Browser &browser, const char16_t *select, const QString &id, const char16_t *behind = u"") {
    return browser.session.Database->OpenRecordset(QString::fromUtf16(select) + u'\'' + EscapeSql(id) + u'\'' +
                                                   QString::fromUtf16(behind));
}

/// A row with the translated values of some fields; the first is what it stands for.
ListTableRow RowOf(Session &session, const sql::Recordset &record, std::initializer_list<QStringView> fields) {
    ListTableRow row;
    for (const QStringView field : fields) {
        row.texts += Translate(session, record.Text(field));
    }
    row.key = record.Text(*fields.begin());
    return row;
}

void FillList(Browser &browser, ListTable &list, sql::Recordset rows, std::initializer_list<QStringView> fields,
              int most = std::numeric_limits<int>::max()) {
    std::vector<ListTableRow> shown;
    for (; !rows.Eof() && int(shown.size()) < most; rows.MoveNext()) {
        shown.push_back(RowOf(browser.session, rows, fields));
    }
    list.Assign(std::move(shown));
}

QString HoursAndMinutes(qint64 minutes) {
    const auto digits = [](qint64 number) { return QString::number(number).rightJustified(2, u'0'); };
    return digits(minutes / kMinutesPerHour) + u':' + digits(minutes % kMinutesPerHour);
}

/// A date as it is shown; the one that stands for none is empty.
QString ShownDate(const sql::Recordset &record, QStringView field) {
    const QString date = record.Text(field).remove(u" 00:00:00"_s);
    return date == "1899-12-30"_L1 ? QString() : date;
}

void FillVideo(Browser &browser, const QString &id) {
    AVContent &av = browser.AV;
    const sql::Recordset video = RowsOf(browser, u"SELECT * FROM VideoFormat WHERE ProfileID = ", id);
    if (video.Eof()) {
        av.textRatio = Shown(browser.session, u"Ratio:");
        av.textVideoFormat = Shown(browser.session, u"Format:");
        av.cAnamorph = av.cFullFrame = av.cPanScan = av.cWidescreen = false;
        return;
    }
    const QString ratio = video.Text(u"AspectRatio");
    av.textRatio =
        Labelled(browser.session, u"Ratio:", ratio.isEmpty() ? Shown(browser.session, kNone) : ratio + ":1"_L1);
    av.textVideoFormat = Labelled(browser.session, u"Format:", video.Text(u"VideoStandard"));
    av.cWidescreen = video.Boolean(u"LetterBox");
    av.cPanScan = video.Boolean(u"PanAndScan");
    av.cFullFrame = video.Boolean(u"FullFrame");
    av.cAnamorph = video.Boolean(u"F16X9");
}

/// Blu-rays know their regions by letters.
QString RegionText(const QString &region, bool blu_ray) {
    static constexpr QStringView kLetters = u"ABC";
    const int number = region.toInt();
    return blu_ray && number >= 1 && number <= kLetters.size() ? QString(kLetters[number - 1]) : region;
}

QString RegionsOf(Browser &browser, const QString &id, bool blu_ray) {
    sql::Recordset rows = RowsOf(browser, u"SELECT Region FROM Regions WHERE ProfileID = ", id, u" ORDER BY Region");
    QStringList regions;
    for (; !rows.Eof(); rows.MoveNext()) {
        regions += RegionText(rows.Text(0), blu_ray);
    }
    return regions.isEmpty() ? Shown(browser.session, kNone) : regions.join(u", "_s);
}

void FillRuntimeAndRating(Browser &browser, const sql::Recordset &record) {
    Session &session = browser.session;
    if (record.IsNull(u"Runtime")) {
        browser.Details.textRuntime = Shown(session, u"Runtime:");
    } else {
        SetText(browser, &DetailsContent::textRuntime,
                record.Text(u"Runtime") + u' ' + Shown(session, u"min") + " ("_L1 +
                    HoursAndMinutes(record.Integer(u"Runtime")) + u')');
    }
    SetText(browser, &DetailsContent::textRating, record.Text(u"Rating"));
    browser.Details.textRating_tool_tip = record.Text(u"RatingDetails");
}

/// The number in the collection, or how much a title of the wish list is wished for.
void FillCollection(Browser &browser, const sql::Recordset &record) {
    Session &session = browser.session;
    const QString type = record.Text(u"ColType");
    if (sql::Compare(type, u"WishList") == 0) {
        const qint64 priority = record.Integer(u"WishListPriority");
        const bool known = priority >= 1 && priority <= qint64(std::size(kPriorities));
        browser.Details.textCollectionNumber =
            Labelled(session, u"Wishlist Priority:", known ? Shown(session, kPriorities[priority - 1]) : QString());
    } else {
        SetText(browser, &DetailsContent::textCollectionNumber, record.Text(u"ColNo"));
    }
    SetText(browser, &DetailsContent::textCollectionType, Translate(session, type));
}

void FillProfileTexts(Browser &browser, const sql::Recordset &record) {
    SetText(browser, &DetailsContent::textCaseType, Translate(browser.session, record.Text(u"CaseType")));
    FillCollection(browser, record);
    SetText(browser, &DetailsContent::textTitle, record.Text(u"Title"));
    SetText(browser, &DetailsContent::textSortTitle, record.Text(u"SortTitle"));
    SetText(browser, &DetailsContent::textOriginalTitle, record.Text(u"OriginalTitle"));
    SetText(browser, &DetailsContent::textOriginalSortTitle, record.Text(u"OriginalSortTitle"));
    SetText(browser, &DetailsContent::textReleaseDate, ShownDate(record, u"Released"));
    SetText(browser, &DetailsContent::textLocality, record.Text(u"Locality"));
}

/// The title fields tell the episode and its series.
void FillEpisodeTexts(Browser &browser, const sql::Recordset &record) {
    Session &session = browser.session;
    DetailsContent &details = browser.Details;
    for (QString DetailsContent::*const text :
         {&DetailsContent::textCaseType, &DetailsContent::textCollectionNumber, &DetailsContent::textCollectionType,
          &DetailsContent::textLocality, &DetailsContent::textSortTitle, &DetailsContent::textOriginalSortTitle}) {
        (details.*text).clear();
    }
    details.textReleaseDate = Labelled(session, u"Original Airdate:", ShownDate(record, u"AirDate"));
    const QString original = record.Text(u"EpisodeOriginalTitle");
    SetText(browser, &DetailsContent::textTitle, original.isEmpty() ? record.Text(u"EpisodeTitle") : original);
    const sql::Recordset series = session.Database->OpenRecordset(u"SELECT * FROM TVSeries WHERE SeriesID = '"_s +
                                                                  EscapeSql(record.Text(u"SeriesID")) + u'\'');
    details.textOriginalTitle =
        Labelled(session, u"Series:", series.Eof() ? QString() : GetTitle(session.view, series, true, false));
}

} // namespace

DetailsContent::DetailsContent() :
    listGenres({}, {u"Genre"_s}), listStudios({}, {u"Studio"_s, u"Type"_s}), listFeatures({}, {u"Feature"_s}) {}

AVContent::AVContent() :
    listAudio({}, {u"Language"_s, u"Compression"_s, u"Channels"_s}), listSubtitles({}, {u"Subtitle"_s}) {}

QStringList WishListPriorities() {
    QStringList priorities;
    for (const char16_t *priority : kPriorities) {
        priorities += QString::fromUtf16(priority);
    }
    return priorities;
}

void TranslateContent(Browser &browser) {
    const auto set = [&](ListTable &list, std::initializer_list<const char16_t *> columns) {
        QStringList shown;
        for (const char16_t *column : columns) {
            shown += Shown(browser.session, column);
        }
        list.SetColumns(shown);
    };
    set(browser.Details.listGenres, {u"Genre"});
    set(browser.Details.listStudios, {u"Studio", u"Type"});
    set(browser.Details.listFeatures, {u"Feature"});
    set(browser.AV.listAudio, {u"Language", u"Compression", u"Channels"});
    set(browser.AV.listSubtitles, {u"Subtitle"});
}

void ClearProfileInfos(Browser &browser) {
    DetailsContent &details = browser.Details;
    for (ListTable *list : {&details.listGenres, &details.listStudios, &details.listFeatures, &browser.AV.listAudio,
                            &browser.AV.listSubtitles}) {
        list->Assign({});
    }
    details.UPC = {};
    details.urlIMDB = {};
    details.textRating_tool_tip.clear();
    for (const Label &label : kDetailLabels) {
        details.*label.text = Shown(browser.session, label.label);
    }
    AVContent &av = browser.AV;
    av.textRatio = Shown(browser.session, u"Ratio:");
    av.textVideoFormat = Shown(browser.session, u"Format:");
    av.cAnamorph = av.cFullFrame = av.cPanScan = av.cWidescreen = false;
}

void FillUPC(Browser &browser, const sql::Recordset &record, bool is_episode) {
    const QString upc = is_episode ? QString() : record.Text(u"UPC");
    if (upc.isEmpty()) {
        browser.Details.UPC = {};
        return;
    }
    QString number = record.Text(u"ProfileID");
    number.remove(u"Key_"_s).remove(u'-').remove(u"Disc ID:"_s);
    browser.Details.UPC = {FormatUPC(upc), ContributionNotesPage(browser.session.Profiler3) +
                                               "?task=contributionnotes&type=DVD&ProfileUPC="_L1 +
                                               QString::fromLatin1(QUrl::toPercentEncoding(number))};
}

void FillLinksAndGroups(Browser &browser, const QString &id) {
    DetailsContent &details = browser.Details;
    const sql::Recordset imdb =
        RowsOf(browser, u"SELECT InfoValue FROM AdditionalInfo WHERE ProfileID = ", id, u" AND InfoName = 'IMDb'");
    const QString value = imdb.Eof() ? QString() : imdb.Text(0);
    const bool linked = !value.isEmpty() && value != QStringView(kNone);
    details.urlIMDB = linked ? LinkContent{u"IMDb"_s, browser.session.URLIMDb + value} : LinkContent();
    FillList(browser, details.listGenres, RowsOf(browser, u"SELECT Genre FROM Genres WHERE ProfileID = ", id),
             {u"Genre"});
    FillList(browser, details.listStudios,
             RowsOf(browser, u"SELECT Studio, Type FROM Studios WHERE ProfileID = ", id, u" ORDER BY Type, Studio"),
             {u"Studio", u"Type"});
}

void FillAV(Browser &browser, const QString &id) {
    FillList(browser, browser.AV.listSubtitles,
             RowsOf(browser, u"SELECT Subtitle FROM Subtitles WHERE ProfileID = ", id), {u"Subtitle"});
    FillList(browser, browser.AV.listAudio,
             RowsOf(browser, u"SELECT * FROM AudioFormats WHERE ProfileID = ", id, u" ORDER BY OrderPos ASC"),
             {u"Language", u"Compression", u"Channels"}, kMostAudioRows);
    FillVideo(browser, id);
}

void FillTexts(Browser &browser, const sql::Recordset &record, const QString &id, bool is_episode) {
    FillList(browser, browser.Details.listFeatures,
             RowsOf(browser, u"SELECT * FROM Features WHERE ProfileID = ", id, u" ORDER BY Feature"), {u"Feature"});
    FillRuntimeAndRating(browser, record);
    if (!is_episode) {
        FillProfileTexts(browser, record);
    }
    // Which of the two a disc is, is compared exactly, deliberately: its icon is found in any spelling.
    const bool blu_ray = !is_episode && record.Text(u"Medium") == "Blu-ray Disc"_L1;
    SetText(browser, &DetailsContent::textRegions, RegionsOf(browser, id, blu_ray));
    if (is_episode) {
        FillEpisodeTexts(browser, record);
    }
}

} // namespace ostrand
