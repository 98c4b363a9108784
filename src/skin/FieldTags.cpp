// Tags that show a column of the row.

#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

namespace ostrand {

void GetField(const TagCall &call, QString &text) {
    text = call.Field(call.argument);
}

void GetTranslatedField(const TagCall &call, QString &text) {
    text = call.TranslateByTag(call.Field(call.argument));
}

void GetFieldWithBreaks(const TagCall &call, QString &text) {
    text = WithBreaks(call.Field(call.argument));
}

void GetNotes(const TagCall &call, QString &text) {
    text = FixRelativePaths(call.session, WithBreaks(call.Field(call.argument)));
}

} // namespace ostrand
