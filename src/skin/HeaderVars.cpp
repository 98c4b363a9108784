#include "skin/HeaderVars.h"

#include "skin/SkinTags.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void WriteObjectTypes(ScriptWriter &script, bool cast, bool crew, bool rest) {
    script.Section(u"Object Types"_s);
    if (cast) {
        script.Type(u"DP_CastEntry(firstName, middleName, lastName, role, voice, uncredited, creditedAs, hasImage, "
                    "birthYear)"_s);
    }
    if (crew) {
        script.Type(u"DP_CrewEntry(firstName, middleName, lastName, creditType, creditSubtype, creditedAs, "
                    "creditType_Translated, creditSubtype_Translated, customRole, hasImage, birthYear)"_s);
    }
    if (rest) {
        script.Type(u"DP_AudioTrack(audioContents, audioFormat, audioChannels, audioContents_Translated, "
                    "audioFormat_Translated, audioChannels_Translated)"_s);
        script.Type(u"DP_Disc(descriptionSideA, descriptionSideB, discIDSideA, discIDSideB, labelSideA, labelSideB, "
                    "dualLayeredSideA, dualLayeredSideB, location, slot)"_s);
    }
}

void WriteRest(const TagCall &call, ScriptWriter &script) {
    WriteSystemInformation(call, script);
    WriteGeneralInformation(call, script);
    WriteFormats(call, script);
    WriteFeatures(call, script);
    WritePersonalInformation(call, script);
    WriteReview(call, script);
    WriteLocks(call, script);
    script.Section(u"Temporary Data"_s);
    script.Flag(u"DP_IsFlagged"_s, false);
    WriteLists(call, script);
}

} // namespace

sql::Value RowValue(const TagCall &call, QStringView column) {
    const int ordinal = call.row.FindOrdinal(column);
    return ordinal < 0 ? sql::Value() : call.row.Get(ordinal);
}

QString RowText(const TagCall &call, QStringView column) {
    const int ordinal = call.row.FindOrdinal(column);
    return ordinal < 0 ? QString() : call.row.Text(ordinal);
}

sql::Recordset KeyRows(const TagCall &call, const QString &table, const QString &tail) {
    return call.Rows(u"SELECT * FROM "_s + table + u" WHERE ProfileID = "_s + call.QuotedKey() + tail);
}

QStringList KeyTexts(const TagCall &call, const QString &table, const QString &column, const QString &tail) {
    QStringList texts;
    for (sql::Recordset rows = KeyRows(call, table, tail); !rows.Eof(); rows.MoveNext()) {
        texts.append(rows.Text(column));
    }
    return texts;
}

void GetDPHeaderVars(const TagCall &call, QString &text) {
    const bool comments = call.Flag(u"Comments", true);
    const bool cast = call.Flag(u"IncludeCast", false);
    const bool crew = call.Flag(u"IncludeCrew", false);
    const bool rest = call.Flag(u"IncludeRest", true);
    ScriptWriter script(text, comments);
    WriteObjectTypes(script, cast, crew, rest);
    if (rest) {
        WriteRest(call, script);
    }
    if (cast) {
        WriteCast(call, script);
    }
    if (crew) {
        WriteCrew(call, script);
    }
}

} // namespace ostrand
