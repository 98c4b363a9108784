// The values of the lists of GetOSVHeaderVars, each as script that makes one object.
#pragma once

#include "skin/TagCall.h"

#include <QStringList>

namespace ostrand {

QStringList OsvCast(const TagCall &call);
QStringList OsvCrew(const TagCall &call);
QStringList OsvAwards(const TagCall &call);
QStringList OsvAudioTracks(const TagCall &call);
QStringList OsvAdditionalInfos(const TagCall &call);
QStringList OsvLinks(const TagCall &call);
QStringList OsvEvents(const TagCall &call);

} // namespace ostrand
