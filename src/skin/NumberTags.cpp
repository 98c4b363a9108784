// Ratings, codes, times and regions.

#include "base/Dates.h"
#include "skin/Barcode.h"
#include "skin/EntryList.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"
#include "sql/Format.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMinutesPerHour = 60;
constexpr int kShortYear = 2;
constexpr int kLongYear = 4;

QString YearPattern(int digits) {
    return digits == kShortYear ? u"yy"_s : digits == kLongYear ? u"yyyy"_s : QString();
}

/// The letters of regions on discs of that medium.
void NameRegions(const QString &medium, QString &regions) {
    if (medium == "BluRay"_L1 || medium == "Blu-ray Disc"_L1) {
        regions.replace(u'1', u'A').replace(u'2', u'B').replace(u'3', u'C');
    }
}

void WriteRegions(const TagCall &call, bool only_lowest, QString &text) {
    const QString prefix = call.Text(u"Prefix");
    const QString no_region = call.Text(u"NoRegion", u"Region 0"_s);
    QString regions;
    sql::Recordset rows = ProfileRows(call, u"Regions"_s, u" ORDER BY Region DESC"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString region = rows.Text(u"Region");
        regions = only_lowest ? region : region + u',' + regions;
    }
    // Takes the last comma away, and deliberately the last digit of a lowest region of several digits too.
    if (regions.size() > 1) {
        regions.chop(1);
    }
    NameRegions(call.Field(u"Medium"), regions);
    text = regions.isEmpty() || regions == "0"_L1 ? no_region : prefix + regions;
}

} // namespace

void GetDPRating(const TagCall &call, QString &text) {
    const bool show_details = call.Flag(u"ShowDetails", false);
    text = call.Field(u"Rating");
    if (call.is_episode || !show_details) {
        return;
    }
    const QString details = call.Field(u"RatingDetails");
    if (!details.isEmpty()) {
        text += u' ' + call.Translated(u"for"_s) + u' ' + details;
    }
}

void GetDPUPC(const TagCall &call, QString &text) {
    const bool formatted = call.Flag(u"Formatted", true);
    const bool encoded = call.Flag(u"BarcodeEncoding", false);
    if (encoded && !call.is_episode) {
        text = EncodeBarcodeBits(call.Field(u"UPC"));
    } else if (formatted) {
        text = call.is_episode ? call.Field(u"EpisodeNo") : FormatUPC(call.Field(u"UPC"));
    } else {
        // The key and not the bare number: deliberate.
        text = call.KeyWithoutPrefix();
    }
}

void GetDPRuntime(const TagCall &call, QString &text) {
    const bool total = call.Flag(u"TotalInMins", false);
    const bool minutes_only = call.Flag(u"MinsOnly", false);
    const bool hours_only = call.Flag(u"HoursOnly", false);
    QString runtime = call.Field(u"Runtime");
    if (runtime.isEmpty()) {
        runtime = u"0"_s;
    }
    const qint64 all_minutes = runtime.toLongLong();
    const QString hours = QString::number(all_minutes / kMinutesPerHour);
    const QString minutes = QString::number(all_minutes % kMinutesPerHour);
    if (total) {
        text = runtime;
    } else if (hours_only) {
        text = hours;
    } else if (minutes_only) {
        text = minutes;
    } else {
        text = hours + u':' + minutes.rightJustified(2, u'0');
    }
}

void GetDPRegions(const TagCall &call, QString &text) {
    WriteRegions(call, false, text);
}

void GetDPRegion(const TagCall &call, QString &text) {
    WriteRegions(call, true, text);
}

void GetDPReleaseDate(const TagCall &call, QString &text) {
    const QString blank = call.Text(u"Blank");
    const bool year_only = call.Flag(u"YearOnly", false);
    const QString pattern = year_only ? YearPattern(call.Number(u"YearDigits", kShortYear)) : call.Text(u"DateFormat");
    const QString released = call.Field(u"Released");
    const std::optional<double> date = DayCountFromText(released);
    if (released.isEmpty() || (date && DayCountToDate(*date) == "1899-12-30"_L1)) {
        text = blank;
    } else if (date && !pattern.isEmpty()) {
        text = sql::FormatDate(*date, pattern, {});
    } else if (!year_only) {
        text = released;
    }
}

} // namespace ostrand
