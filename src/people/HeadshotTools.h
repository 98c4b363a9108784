// Tools that tidy a folder of pictures.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

// Each walks over the files of a folder that end in ".jpg", counts on the progress window and stops at its cancel. A
// file is only ever deleted when another of the same length holds its place; a fault is traced, and that file stays.

/// "Ann_Lee .jpg" becomes "Ann Lee.jpg". A number of an alternate stays.
void RemoveTrailingSpaces(Session &session, const QString &folder);
/// Pictures under an alias move to the common name.
void RenameAlias(Session &session, const QString &folder);
/// "Ann1.jpg" becomes an alternate of "Ann.jpg".
void RenameAlternatives(Session &session, const QString &folder);
/// Of pictures of one person that are identical one stays; the alternates are numbered without gaps then.
void DeleteDuplicateImages(Session &session, const QString &folder);
/// Deletes the files of a source folder that are identical with a picture of the same person in the headshot folder.
void RemoveIdenticals(Session &session, const QString &source_folder);

} // namespace ostrand
