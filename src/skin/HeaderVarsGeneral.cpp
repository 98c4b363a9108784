#include "skin/HeaderVars.h"

#include "base/Files.h"
#include "base/Text.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The nth number of the program's version.
qint64 VersionNumber(const TagCall &call, int place) {
    return call.session.AppVersion.section(u'.', place, place).toLongLong();
}

QString DatabaseFileName(const TagCall &call) {
    QString name = QFileInfo(QDir::fromNativeSeparators(call.session.DatabaseFile)).fileName();
    if (name.endsWith(u".mdb"_s, Qt::CaseInsensitive)) {
        name.chop(4);
    }
    return name;
}

QString DatabaseFolder(const TagCall &call) {
    const QString &file = call.session.DatabaseFile;
    return file.isEmpty() ? QString() : QDir::toNativeSeparators(QFileInfo(file).path());
}

void WriteRegions(const TagCall &call, ScriptWriter &script) {
    QSet<qint64> regions;
    for (sql::Recordset rows = call.Rows(u"SELECT Region FROM Regions WHERE ProfileID = "_s + call.QuotedKey());
         !rows.Eof(); rows.MoveNext()) {
        regions.insert(rows.Integer(u"Region"));
    }
    const bool all = regions.contains(0);
    const bool blu_ray = RowText(call, u"Medium") == "Blu-ray Disc"_L1;
    script.Flag(u"DP_RegionAll"_s, all);
    for (int region = 1; region <= 6; ++region) {
        script.Flag(u"DP_Region%1"_s.arg(region), !all && !blu_ray && regions.contains(region));
    }
    QString letters;
    for (int region = 1; blu_ray && region <= 3; ++region) {
        if (regions.contains(region)) {
            letters += QChar(u'A' + region - 1);
        }
    }
    script.Text(u"DP_RegionBD"_s, letters);
}

void WriteMedium(const TagCall &call, ScriptWriter &script) {
    const QString medium = RowText(call, u"Medium");
    const bool dvd = medium == "DVD"_L1;
    const bool hd_dvd = medium == "HD DVD"_L1;
    const bool blu_ray = medium == "Blu-ray Disc"_L1;
    script.Flag(u"DP_MediaTypeDVD"_s, dvd);
    script.Flag(u"DP_MediaTypeHDDVD"_s, hd_dvd);
    script.Flag(u"DP_MediaTypeBluRay"_s, blu_ray);
    script.Text(u"DP_CustomMediaType"_s, dvd || hd_dvd || blu_ray ? QString() : medium);
}

void WriteCase(const TagCall &call, ScriptWriter &script) {
    const QString slip_cover = u", Slip Cover"_s;
    QString type = RowText(call, u"CaseType");
    const bool has_slip_cover = type.endsWith(slip_cover);
    if (has_slip_cover) {
        type.chop(slip_cover.size());
    }
    script.Text(u"DP_CaseType"_s, type);
    script.Flag(u"DP_CaseSlipCover"_s, has_slip_cover);
    script.Text(u"DP_CaseType_Translated"_s, call.Translated(type));
}

QString BannerSetting(const TagCall &call, const QString &name) {
    return ReadMetaInfo(call.session, call.key, name, {}) == "Automatic"_L1 ? u"auto"_s : u"off"_s;
}

QString SuggestedPrice(const TagCall &call) {
    const sql::Recordset price = KeyRows(call, u"SRPInfo"_s);
    if (price.Eof()) {
        return u"$0.00"_s;
    }
    const sql::Recordset currency =
        call.Rows(u"SELECT * FROM Currencies WHERE CurrencyID = '"_s + EscapeSql(price.Text(u"CurrencyID")) + u'\'');
    return (currency.Eof() ? QString() : currency.Text(u"CurrencySymbol")) + price.Text(u"SRPValue");
}

} // namespace

void WriteSystemInformation(const TagCall &call, ScriptWriter &script) {
    const Session &session = call.session;
    script.Section(u"System Information"_s);
    script.Number(u"DP_ProgramVersionMajor"_s, VersionNumber(call, 0));
    script.Number(u"DP_ProgramVersionMinor"_s, VersionNumber(call, 1));
    // A version has three numbers: the last one is the release and the build.
    script.Number(u"DP_ProgramVersionRelease"_s, VersionNumber(call, 2));
    script.Number(u"DP_ProgramVersionBuild"_s, VersionNumber(call, 2));
    script.Flag(u"DP_ProgramVersionIsBeta"_s, false);
    script.Text(u"DP_ProgramLayoutName"_s, call.skin.ActiveSkin);
    script.Text(u"DP_ProgramDatabaseName"_s, DatabaseFileName(call));
    script.Text(u"DP_ProgramPathDatabase"_s, DatabaseFolder(call));
    script.Text(u"DP_ProgramPathImages"_s, session.CoverPath);
    script.Text(u"DP_ProgramPathThumbnails"_s, session.CoverPath + u"Thumbnails"_s);
    script.Text(u"DP_ProgramPathLayouts"_s, WithSeparator(WithSeparator(session.DataFolder) + u"Skins"_s));
    script.Text(u"DP_ProgramPathTemp"_s, session.TempFolder);
    script.Text(u"DP_ProgramPathProgram"_s, session.ProgramFolder);
    script.Flag(u"DP_IsComparing"_s, false);
}

void WriteGeneralInformation(const TagCall &call, ScriptWriter &script) {
    script.Section(u"General Information"_s);
    script.Text(u"DP_UPC"_s, RowText(call, u"UPC"));
    script.Text(u"DP_Locality"_s, RowText(call, u"Locality"));
    WriteRegions(call, script);
    const QString cover = SafeFileName(call.KeyWithoutPrefix());
    script.Text(u"DP_ImageFileFront"_s, cover + u"f.jpg"_s);
    script.Text(u"DP_ImageFileBack"_s, cover + u"b.jpg"_s);
    script.Text(u"DP_Title"_s, RowText(call, u"Title"));
    script.Text(u"DP_RatingSystem"_s, RowText(call, u"RatingSystem"));
    script.Text(u"DP_Rating"_s, RowText(call, u"Rating"));
    script.Text(u"DP_RatingAge"_s, ReadMetaInfo(call.session, call.key, u"RatingAge"_s, {}));
    script.Text(u"DP_RatingDetails"_s, RowText(call, u"RatingDetails"));
    script.Text(u"DP_OriginalTitle"_s, RowText(call, u"OriginalTitle"));
    script.Text(u"DP_Edition"_s, RowText(call, u"Description"));
    WriteMedium(call, script);
    script.Number(u"DP_ProductionYear"_s, RowValue(call, u"ProdYear").Integer());
    script.Text(u"DP_CountryOfOrigin"_s, RowText(call, u"CountryOfOrigin"));
    script.Number(u"DP_RunTime"_s, RowValue(call, u"Runtime").Integer());
    WriteCase(call, script);
    script.Text(u"DP_Front_Banner_Setting"_s, BannerSetting(call, u"MediaBannerFront"_s));
    script.Text(u"DP_Back_Banner_Setting"_s, BannerSetting(call, u"MediaBannerBack"_s));
    script.Value(u"DP_ReleaseDate"_s, ScriptDate(RowValue(call, call.is_episode ? u"AirDate" : u"Released")));
    script.Text(u"DP_SRP"_s, SuggestedPrice(call));
}

} // namespace ostrand
