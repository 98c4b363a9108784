// Pictures and sound.

#include "skin/EntryList.h"
#include "skin/SkinTags.h"

#include <span>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

struct Shortening {
    QStringView text;
    QStringView shown;
};

constexpr Shortening kCompressions[] = {
    {u"DD (Dolby Digital)", u"DD"},
    {u"PCM (Pulse Code Modulation)", u"PCM"},
    {u"DTS (Digital Theater Systems)", u"DTS"},
    {u"MPEG Audio Stream", u"MPEG"},
};

constexpr Shortening kChannels[] = {
    {u"Mono", u"1"},         {u"Stereo", u"2"},         {u"Dolby Surround", u"3"}, {u"Pro-logic", u"4"},
    {u"5.0 Surround", u"5"}, {u"5.1 Surround", u"5.1"}, {u"6.1 Surround", u"6.1"}, {u"7.1 Surround", u"7.1"},
};

QString Shortened(std::span<const Shortening> table, const QString &text) {
    for (const Shortening &row : table) {
        if (text == row.text) {
            return row.shown.toString();
        }
    }
    return text;
}

QString Widescreen(const sql::Recordset &rows, bool ratios) {
    QString text;
    if (rows.Boolean(u"F16X9")) {
        text = u"Anamorphic Widescreen"_s;
    } else if (rows.Boolean(u"LetterBox")) {
        text = u"Widescreen"_s;
    }
    return ratios && !text.isEmpty() ? text + u' ' + rows.Text(u"AspectRatio") : text;
}

} // namespace

void GetDPWidescreen(const TagCall &call, QString &text) {
    const sql::Recordset rows = ProfileRows(call, u"VideoFormat"_s);
    if (!rows.Eof() && rows.Boolean(u"F16X9")) {
        text = call.Text(u"Text", u"Anamorphic Widescreen"_s);
    }
}

void GetDPVidStandard(const TagCall &call, QString &text) {
    const sql::Recordset rows = ProfileRows(call, u"VideoFormat"_s);
    if (!rows.Eof()) {
        text = rows.Text(u"VideoStandard");
    }
}

void GetDPVidFormats(const TagCall &call, QString &text) {
    // The formats written are deliberately not counted against it, so that only a number below 0 has an effect.
    const bool has_room = call.Number(u"MaxList", 0) >= 0;
    const bool ratios = call.Flag(u"Ratios", false);
    EntryList list(text, call.Text(u"Divider", u", "_s));
    const sql::Recordset rows = ProfileRows(call, u"VideoFormat"_s);
    if (rows.Eof()) {
        return;
    }
    if (const QString widescreen = Widescreen(rows, ratios); !widescreen.isEmpty()) {
        list.Add(widescreen);
    }
    if (rows.Boolean(u"FullFrame") && has_room) {
        list.Add(u"Full Frame 1.33:1"_s);
    }
    if (rows.Boolean(u"PanAndScan") && has_room) {
        list.Add(u"Pan & Scan 1.33:1"_s);
    }
    list.End();
}

void GetDPAudioFormats(const TagCall &call, QString &text) {
    EntryList list(text, call.Text(u"Divider", u", "_s));
    const bool translate = call.Flag(u"Translate", false);
    sql::Recordset rows = ProfileRows(call, u"AudioFormats"_s, u" ORDER BY OrderPos"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString language = rows.Text(u"Language");
        const QString compression = Shortened(kCompressions, rows.Text(u"Compression"));
        const QString channels = Shortened(kChannels, rows.Text(u"Channels"));
        if (translate) {
            // The blank stands even without channels: deliberate.
            list.Add(call.Translated(language) + ": "_L1 + call.Translated(compression) + u' ' + channels);
        } else {
            list.Add(language + ": "_L1 + compression + (channels.isEmpty() ? QString() : u' ' + channels));
        }
    }
    list.End();
}

} // namespace ostrand
