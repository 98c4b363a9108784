#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FormatTagsTest : public ProfileTagTest {
protected:
    /// LetterBox, PanAndScan, FullFrame, F16X9.
    void SetFormat(const QString &flags) {
        Clear(u"VideoFormat"_s);
        AddRow(u"VideoFormat"_s, u"AspectRatio, VideoStandard, LetterBox, PanAndScan, FullFrame, F16X9"_s,
               u"'2.35', 'P<A>L', "_s + flags);
    }
};

TEST_F(FormatTagsTest, Widescreen) {
    Check(GetDPWidescreen, {{"no row", {}, {}}});
    SetFormat(u"Yes, No, No, No"_s);
    Check(GetDPWidescreen, {{"not anamorphic", uR"(Text="wide")"_s, {}}});
    SetFormat(u"No, No, No, Yes"_s);
    Check(GetDPWidescreen, {
                               {"anamorphic", {}, u"Anamorphic Widescreen"_s},
                               {"another text", uR"(Text="<b>wide</b>")"_s, u"<b>wide</b>"_s},
                           });
    CheckForEpisode(GetDPWidescreen, {{"an episode has none", {}, {}}});
}

TEST_F(FormatTagsTest, VideoStandard) {
    EXPECT_EQ(Produce(GetDPVidStandard), QString());
    SetFormat(u"No, No, No, No"_s);
    EXPECT_EQ(Produce(GetDPVidStandard), u"P<A>L"_s);
    Run(u"UPDATE VideoFormat SET VideoStandard = NULL");
    EXPECT_EQ(Produce(GetDPVidStandard), QString());
    EXPECT_EQ(ProduceForEpisode(GetDPVidStandard), QString());
}

TEST_F(FormatTagsTest, VideoFormats) {
    Check(GetDPVidFormats, {{"no row", {}, {}}});
    const struct {
        const char *name;
        QString flags;
        QString attributes;
        QString text;
    } cases[] = {
        {"none", u"No, No, No, No"_s, uR"(Ratios="YES")"_s, {}},
        {"anamorphic", u"No, No, No, Yes"_s, {}, u"Anamorphic Widescreen"_s},
        {"anamorphic before widescreen", u"Yes, No, No, Yes"_s, {}, u"Anamorphic Widescreen"_s},
        {"widescreen", u"Yes, No, No, No"_s, {}, u"Widescreen"_s},
        {"ratio", u"Yes, No, No, No"_s, uR"(Ratios="YES")"_s, u"Widescreen 2.35"_s},
        {"ratio of anamorphic", u"No, No, No, Yes"_s, uR"(Ratios="YES")"_s, u"Anamorphic Widescreen 2.35"_s},
        {"full frame", u"No, No, Yes, No"_s, {}, u"Full Frame 1.33:1"_s},
        {"pan and scan", u"No, Yes, No, No"_s, {}, u"Pan & Scan 1.33:1"_s},
        {"all", u"Yes, Yes, Yes, Yes"_s, {}, u"Anamorphic Widescreen, Full Frame 1.33:1, Pan & Scan 1.33:1"_s},
        {"another divider", u"Yes, Yes, Yes, No"_s, uR"(Divider="break" Ratios="YES")"_s,
         u"Widescreen 2.35<br/>Full Frame 1.33:1<br/>Pan & Scan 1.33:1"_s},
        {"room for one", u"Yes, Yes, Yes, No"_s, uR"(MaxList="1")"_s,
         u"Widescreen, Full Frame 1.33:1, Pan & Scan 1.33:1"_s},
        {"room for none", u"Yes, Yes, Yes, No"_s, uR"(MaxList="0")"_s,
         u"Widescreen, Full Frame 1.33:1, Pan & Scan 1.33:1"_s},
        {"less than none", u"Yes, Yes, Yes, No"_s, uR"(MaxList="-1")"_s, u"Widescreen"_s},
        {"less than none, nothing else", u"No, Yes, Yes, No"_s, uR"(MaxList="-1")"_s, {}},
        {"a word as a number", u"No, Yes, Yes, No"_s, uR"(MaxList="few")"_s, u"Full Frame 1.33:1, Pan & Scan 1.33:1"_s},
    };
    for (const auto &c : cases) {
        SetFormat(c.flags);
        EXPECT_EQ(Produce(GetDPVidFormats, c.attributes), c.text) << c.name;
    }
    Run(u"UPDATE VideoFormat SET AspectRatio = NULL");
    SetFormat(u"Yes, No, No, No"_s);
    Run(u"UPDATE VideoFormat SET AspectRatio = NULL");
    EXPECT_EQ(Produce(GetDPVidFormats, uR"(Ratios="YES")"_s), u"Widescreen "_s);
    CheckForEpisode(GetDPVidFormats, {{"an episode has none", {}, {}}});
    ExpectFailure(GetDPVidFormats, u"Ratios"_s);
}

TEST_F(FormatTagsTest, AudioFormats) {
    Check(GetDPAudioFormats, {{"no rows", {}, {}}});
    const struct {
        QString compression;
        QString channels;
        QString shown;
    } rows[] = {
        {u"DD (Dolby Digital)"_s, u"Mono"_s, u"DD 1"_s},
        {u"PCM (Pulse Code Modulation)"_s, u"Stereo"_s, u"PCM 2"_s},
        {u"DTS (Digital Theater Systems)"_s, u"Dolby Surround"_s, u"DTS 3"_s},
        {u"MPEG Audio Stream"_s, u"Pro-logic"_s, u"MPEG 4"_s},
        {u"Other"_s, u"5.0 Surround"_s, u"Other 5"_s},
        {u"dd (dolby digital)"_s, u"5.1 Surround"_s, u"dd (dolby digital) 5.1"_s},
        {u"DTS-HD"_s, u"6.1 Surround"_s, u"DTS-HD 6.1"_s},
        {u"DTS-HD"_s, u"7.1 Surround"_s, u"DTS-HD 7.1"_s},
        {u"DTS-HD"_s, u"<Two>"_s, u"DTS-HD <Two>"_s},
        {u"DTS-HD"_s, {}, u"DTS-HD"_s},
    };
    QStringList entries;
    for (const auto &row : rows) {
        AddRow(u"AudioFormats"_s, u"OrderPos, Language, Compression, Channels"_s,
               u"%1, 'Dutch', '%2', '%3'"_s.arg(entries.size()).arg(row.compression, row.channels));
        entries << u"Dutch: "_s + row.shown;
        const QStringList all = entries;
        EXPECT_EQ(Produce(GetDPAudioFormats), all.join(u", "_s)) << qPrintable(row.shown);
    }
    EXPECT_EQ(Produce(GetDPAudioFormats, uR"(Divider="break")"_s), entries.join(u"<br/>"_s));
    CheckForEpisode(GetDPAudioFormats, {{"an episode has none", {}, {}}});
    ExpectFailure(GetDPAudioFormats, u"Translate"_s);
}

TEST_F(FormatTagsTest, AudioFormatsTranslated) {
    TranslateAs(u"Dutch"_s, u"Niederl\u00E4ndisch"_s);
    TranslateAs(u"DD"_s, u"Dolby"_s);
    TranslateAs(u"Two"_s, u"Zwei"_s);
    AddRow(u"AudioFormats"_s, u"OrderPos, Language, Compression, Channels"_s,
           u"2, 'Dutch', 'DD (Dolby Digital)', 'Two'"_s);
    AddRow(u"AudioFormats"_s, u"OrderPos, Language, Compression, Channels"_s, u"1, 'Dutch', 'Plain', NULL"_s);
    AddRow(u"AudioFormats"_s, u"OrderPos, Language, Compression, Channels"_s, u"3, NULL, NULL, NULL"_s);
    Check(GetDPAudioFormats,
          {
              {"in their order, not translated", {}, u"Dutch: Plain, Dutch: DD Two, : "_s},
              {"language and compression, with a blank for no channels", uR"(Translate="YES" Divider="|")"_s,
               u"Niederl\u00E4ndisch: Plain |Niederl\u00E4ndisch: Dolby Two|:  "_s},
          });
}

} // namespace
} // namespace ostrand
