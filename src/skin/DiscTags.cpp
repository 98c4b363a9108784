// The discs of a profile.

#include "skin/EntryList.h"
#include "skin/SkinTags.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

/// The rows of the discs, standing on the last one; at the end without discs and for an episode.
std::optional<sql::Recordset> LastDisc(const TagCall &call) {
    if (call.is_episode) {
        return std::nullopt;
    }
    sql::Recordset rows = ProfileRows(call, u"Discs"_s);
    if (rows.IsEmpty()) {
        return std::nullopt;
    }
    for (int i = 1; i < rows.RecordCount(); ++i) {
        rows.MoveNext();
    }
    return rows;
}

/// What of each disc is shown.
struct DiscText {
    explicit DiscText(const TagCall &tag) :
        call(tag), ids(tag.Flag(u"ShowDiscIDs", false)), sides(tag.Flag(u"ShowSides", false)),
        labels(tag.Flag(u"ShowLabels", false)), slots_shown(tag.Flag(u"ShowSlots", false)),
        locations(tag.Flag(u"ShowLocations", false)), descriptions(tag.Flag(u"ShowDescriptions", false)),
        subdivider(tag.Text(u"Subdivider", u" - "_s)) {}

    void AddField(bool shown, const QString &field, QString &item) const {
        if (shown && !field.isEmpty()) {
            item += field + subdivider;
        }
    }
    void AddBothSides(const QString &side_a, const QString &side_b, QString &item) const {
        item += side_a;
        if (!side_b.isEmpty()) {
            // Side A again where side B is told: deliberate.
            item += ", "_L1 + side_a;
        }
        if (!side_a.isEmpty() || !side_b.isEmpty()) {
            item += subdivider;
        }
    }
    void AddSides(const sql::Recordset &row, QString &item) const {
        const QString sides_text = row.Boolean(u"Flipper")     ? u"Flipper"_s
                                   : row.Boolean(u"DualSided") ? u"Double-Sided"_s
                                                               : u"Single-Sided"_s;
        const QString layers_text = row.Boolean(u"DualLayered") ? u"Double-Layered"_s : u"Single-Layered"_s;
        item += call.TranslateByTag(sides_text) + subdivider + call.TranslateByTag(layers_text) + subdivider;
    }
    void Add(const sql::Recordset &row, QString &item) const {
        AddField(descriptions, row.Text(u"Description"), item);
        AddField(locations, row.Text(u"Location"), item);
        AddField(slots_shown, row.Text(u"Slot"), item);
        if (ids) {
            AddBothSides(row.Text(u"DiscIDSideA"), row.Text(u"DiscIDSideB"), item);
        }
        if (labels) {
            AddBothSides(row.Text(u"LabelSideA"), row.Text(u"LabelSideB"), item);
        }
        if (sides) {
            AddSides(row, item);
        }
        if (item.endsWith(subdivider)) {
            item.chop(subdivider.size());
        }
    }

    const TagCall &call;
    bool ids;
    bool sides;
    bool labels;
    bool slots_shown;
    bool locations;
    bool descriptions;
    QString subdivider;
};

} // namespace

void GetDPSides(const TagCall &call, QString &text) {
    const std::optional<sql::Recordset> disc = LastDisc(call);
    if (!disc) {
        return;
    }
    if (disc->Boolean(u"Flipper")) {
        text = call.Text(u"Flipper", u"Flipper"_s);
    } else if (disc->Boolean(u"DualSided")) {
        text = call.Text(u"Dual", u"Double-Sided"_s);
    } else {
        text = call.Text(u"Single", u"Single-Sided"_s);
    }
}

void GetDPLayers(const TagCall &call, QString &text) {
    if (const std::optional<sql::Recordset> disc = LastDisc(call)) {
        // Two layers are called sides: deliberate.
        text = disc->Boolean(u"DualLayered") ? call.Text(u"Dual", u"Double-Sided"_s)
                                             : call.Text(u"Single", u"Single-Layered"_s);
    }
}

void GetDPDiscs(const TagCall &call, QString &text) {
    const DiscText disc(call);
    EntryList list(text, call.Text(u"Divider", u", "_s));
    sql::Recordset rows = ProfileRows(call, u"Discs"_s, u" ORDER BY DiscNo"_s);
    // Never cleared, so that the text of each disc builds on the one before it: deliberate.
    QString item;
    for (; !rows.Eof(); rows.MoveNext()) {
        disc.Add(rows, item);
        list.Add(item);
    }
    list.End();
}

} // namespace ostrand
