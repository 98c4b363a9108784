// The names of the files that hold persons' pictures.
#pragma once

#include <QString>

namespace ostrand {

class FolderIndex;
struct Session;

/// What the name of a picture begins with: the name, and the birth year in brackets unless it is empty or "0".
QString HeadshotStem(const QString &name, const QString &birth_year);
/// The name of a picture in the headshot folder: the stem made safe, "_" and the alternate unless that is 0, ".jpg".
QString HeadshotFileName(const QString &stem, int alternate);

/// A place for one more picture.
struct HeadshotPlace {
    QString path;
    int alternate = 0; ///< 0 for the primary picture
};
/// The first free place of a name in a folder.
HeadshotPlace FreeHeadshotPlace(const QString &folder, const QString &stem);

/// SwapPictures with its fault traced for `routine` and shown.
void ChangePlaces(Session &session, const QString &routine, const QString &a, const QString &b);

/// The picture of a person; empty when there is none. An alternate that does not exist leads back to the primary, and
/// `alternate` is 0 then. `index` keeps the names of the headshot folder from call to call.
QString FindHeadshot(Session &session, FolderIndex &index, const QString &name, const QString &birth_year,
                     int &alternate);

} // namespace ostrand
