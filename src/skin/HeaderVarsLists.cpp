#include "skin/HeaderVars.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QStringList AllTranslated(const TagCall &call, const QStringList &texts) {
    QStringList translated;
    for (const QString &text : texts) {
        translated.append(call.Translated(text));
    }
    return translated;
}

void WriteWithTranslation(const TagCall &call, ScriptWriter &script, const QString &name, const QStringList &texts) {
    script.Texts(name, texts);
    script.Texts(name + u"_Translated"_s, AllTranslated(call, texts));
}

void WriteAudioTracks(const TagCall &call, ScriptWriter &script) {
    QStringList tracks;
    for (sql::Recordset rows = KeyRows(call, u"AudioFormats"_s, u" ORDER BY OrderPos"_s); !rows.Eof();
         rows.MoveNext()) {
        const QStringList track{rows.Text(u"Language"), rows.Text(u"Compression"), rows.Text(u"Channels")};
        QStringList values;
        for (const QString &text : track + AllTranslated(call, track)) {
            values.append(ScriptString(text));
        }
        tracks.append(ScriptNew(u"DP_AudioTrack"_s, values));
    }
    script.List(u"DP_AudioTracks"_s, tracks);
}

void WriteDiscs(const TagCall &call, ScriptWriter &script) {
    QStringList discs;
    for (sql::Recordset rows = KeyRows(call, u"Discs"_s, u" ORDER BY DiscNo"_s); !rows.Eof(); rows.MoveNext()) {
        const auto text = [&](QStringView column) { return ScriptString(rows.Text(column)); };
        // Both sides tell the layers of side A: that is deliberate, skins have always got it so.
        const QString layered = ScriptFlag(rows.Boolean(u"DualLayered"));
        discs.append(ScriptNew(u"DP_Disc"_s, {text(u"Description"), text(u"DescriptionSideB"), text(u"DiscIDSideA"),
                                              text(u"DiscIDSideB"), text(u"LabelSideA"), text(u"LabelSideB"), layered,
                                              layered, text(u"Location"), text(u"Slot")}));
    }
    // The second blank is deliberate too.
    script.Line(u"var DP_Discs =  "_s + ScriptNew(u"Array"_s, {QString::number(discs.size())}) + u';');
    script.Elements(u"DP_Discs"_s, discs);
}

} // namespace

void WriteLists(const TagCall &call, ScriptWriter &script) {
    script.Section(u"Genres"_s);
    WriteWithTranslation(call, script, u"DP_Genres"_s, KeyTexts(call, u"Genres"_s, u"Genre"_s));
    script.Section(u"Studios"_s);
    script.Texts(u"DP_Studios"_s, KeyTexts(call, u"Studios"_s, u"Studio"_s, u" AND Type <> 'Media Company'"_s));
    script.Section(u"MediaCompanies"_s);
    script.Texts(u"DP_MediaCompanies"_s, KeyTexts(call, u"Studios"_s, u"Studio"_s, u" AND Type = 'Media Company'"_s));
    script.Section(u"Subtitles"_s);
    WriteWithTranslation(call, script, u"DP_Subtitles"_s, KeyTexts(call, u"Subtitles"_s, u"Subtitle"_s));
    script.Section(u"Audio Tracks"_s);
    WriteAudioTracks(call, script);
    script.Section(u"Discs"_s);
    WriteDiscs(call, script);
    script.Section(u"Tags"_s);
    script.Texts(u"DP_Tags"_s, KeyTexts(call, u"Tags"_s, u"TagName"_s, u" ORDER BY FullyQualifiedName"_s));
}

} // namespace ostrand
