// A file within an archive, unpacked for as long as it is read.
#pragma once

#include "collection_files/Archives.h"

#include <QString>

namespace ostrand {

struct Session;

/// What the archive routines need, from the session.
ArchiveTools ArchiveToolsOf(Session &session);
/// True for a path with the extension 7z.
bool IsArchivePath(const QString &path);

/// A path to read from: that of a plain file, or of the file in an archive that has the archive's base name and the
/// extension given, which lies in a folder of its own until this object goes.
class UnpackedFile {
public:
    UnpackedFile(Session &session, const QString &path, const QString &extension);
    ~UnpackedFile();
    UnpackedFile(const UnpackedFile &) = delete;
    UnpackedFile &operator=(const UnpackedFile &) = delete;

    /// There may be no such file, where the archive holds none or could not be read.
    const QString &Path() const { return path_; }

private:
    QString path_;
    QString folder_;
};

} // namespace ostrand
