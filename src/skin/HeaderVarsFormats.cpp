#include "skin/HeaderVars.h"

#include "base/Text.h"

#include <QRegularExpression>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct FeatureFlag {
    const char16_t *feature;
    const char16_t *variable;
    /// Skins of before this feature know no false value of it.
    bool only_when_true = false;
};

constexpr FeatureFlag kFeatures[] = {
    {u"Outtakes", u"DP_FeatureBloopers"},
    {u"Closed Captioned", u"DP_FeatureClosedCaptioned"},
    {u"Commentary", u"DP_FeatureCommentary"},
    {u"Deleted Scenes", u"DP_FeatureDeletedScenes"},
    {u"DVD-ROM Content", u"DP_FeatureDVDROMContent"},
    {u"Featurettes", u"DP_FeatureFeaturette"},
    {u"Photo Gallery", u"DP_FeatureGallery"},
    {u"Interactive Game", u"DP_FeatureInteractiveGame"},
    {u"Interviews", u"DP_FeatureInterviews"},
    {u"Multi Angle", u"DP_FeatureMultiAngle"},
    {u"Music Videos", u"DP_FeatureMusicVideos"},
    {u"Production Notes", u"DP_FeatureProductionNotes"},
    {u"Scene Access", u"DP_FeatureSceneAccess"},
    {u"Storyboard Comparisons", u"DP_FeatureStoryboardComparisons"},
    {u"THX certified", u"DP_FeatureTHXCertified"},
    {u"Trailers", u"DP_FeatureTrailers"},
    {u"Bonus Trailers", u"DP_FeatureBonusTrailers", true},
    {u"Picture-in-picture", u"DP_FeaturePIP"},
    {u"BD-Live", u"DP_FeatureBDLive"},
    {u"Digital Copy", u"DP_FeatureDigitalCopy", true},
};

const FeatureFlag *FindFeature(const QString &feature) {
    for (const FeatureFlag &flag : kFeatures) {
        if (EqualsIgnoringCase(feature, flag.feature)) {
            return &flag;
        }
    }
    return nullptr;
}

/// The text as a script can read it as a number: a leading zero would make an octal number of it, or none at all.
QString AspectRatio(const QString &text) {
    static const QRegularExpression kNumber(uR"(^(?:0+(?=\d))?(\d+\.?\d*|\.\d+)$)"_s);
    const QRegularExpressionMatch match = kNumber.match(text.trimmed());
    return match.hasMatch() ? match.captured(1) : u"1"_s;
}

} // namespace

void WriteFormats(const TagCall &call, ScriptWriter &script) {
    const sql::Recordset format = KeyRows(call, u"VideoFormat"_s);
    const auto flag = [&](QStringView column) { return !format.Eof() && format.Boolean(column); };
    const auto text = [&](QStringView column) { return format.Eof() ? QString() : format.Text(column); };
    script.Section(u"Formats"_s);
    script.Flag(u"DP_VideoStandardNTSC"_s, text(u"VideoStandard") == "NTSC"_L1);
    script.Flag(u"DP_VideoStandardPAL"_s, text(u"VideoStandard") == "PAL"_L1);
    script.Flag(u"DP_VideoFormatWidescreen"_s, flag(u"LetterBox"));
    script.Flag(u"DP_VideoFormatPanScan"_s, flag(u"PanAndScan"));
    script.Flag(u"DP_VideoFormatFullFrame"_s, flag(u"FullFrame"));
    script.Flag(u"DP_VideoFormatAnamorphic"_s, flag(u"F16X9"));
    script.Value(u"DP_AspectRatio"_s, AspectRatio(text(u"AspectRatio")));
}

void WriteFeatures(const TagCall &call, ScriptWriter &script) {
    script.Section(u"Features"_s);
    for (const FeatureFlag &flag : kFeatures) {
        if (!flag.only_when_true) {
            script.Flag(QString::fromUtf16(flag.variable), false);
        }
    }
    QStringList others;
    for (const QString &feature : KeyTexts(call, u"Features"_s, u"Feature"_s)) {
        if (const FeatureFlag *flag = FindFeature(feature)) {
            script.Flag(QString::fromUtf16(flag->variable), true);
        } else if (!feature.isEmpty()) {
            others.append(feature);
        }
    }
    script.Text(u"DP_FeatureOther"_s, others.join(u", "_s));
    script.Text(u"DP_Overview"_s, RowText(call, u"Overview"));
    script.Text(u"DP_EasterEggs"_s, RowText(call, u"EasterEggs"));
}

} // namespace ostrand
