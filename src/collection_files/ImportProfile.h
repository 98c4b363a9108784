// The profile that an import has in hand.
#pragma once

#include "collection_files/LockSet.h"

#include <QString>

#include <pugixml.hpp>

namespace ostrand {

struct Session;

/// What holds for the whole run of an import.
struct ImportRun {
    Session &session;
    /// The file is of the third generation of its format, otherwise of the second.
    bool is_profiler3 = true;
    bool show_details = true;
    bool show_more_details = false;
    /// No table held a row of any profile when the run began.
    bool into_empty_tables = false;
    bool has_locks = true;
};

struct ImportProfile {
    const ImportRun &run;
    pugi::xml_node dvd;
    QString key;
    QString id;
    QString upc;
    QString title;
    QString hash;
    QString locality;
    QString medium;
    LockSet locks;
    /// The dependent tables may hold rows under the key, which the sections must delete.
    bool may_have_rows = true;

    Session &GetSession() const { return run.session; }
};

/// The media names of a profile joined by "/".
QString ReadMedium(pugi::xml_node dvd, bool is_profiler3);
/// A word of the progress window: its detail line, and an entry below the profile's own where such are shown.
void ShowImportDetail(const ImportRun &run, const QString &word);

/// Writes a new row of Profiles, or the present one `row` field by field under the locks. The row's MD5 is left empty
/// until the whole profile is written.
void WriteProfileRow(ImportProfile &profile, bool is_new);
/// Stores what the user keeps between tags in the notes.
void StorePseudoTags(ImportProfile &profile, const QString &notes);
/// Replaces the dependent rows of a profile, section by section under their locks.
void ImportSections(const ImportProfile &profile);

} // namespace ostrand
