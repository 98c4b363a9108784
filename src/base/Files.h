// Files and folders.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class QSaveFile;

namespace ostrand {

/// Puts a file that was written in the place of the old one. False where not all of it reached the disk, which leaves
/// the old file; QSaveFile alone loses the fault of its last buffer.
bool CommitFile(QSaveFile &file);

/// Writes a new file beside the old one, makes it durable and puts it in the old one's place, so that a crash leaves
/// either the one or the other. False on a fault, which leaves the old file; `error` then says why.
bool ReplaceFile(const QString &path, const QByteArray &content, QString *error = nullptr);

/// The same for content that comes in pieces, until an empty one. No piece at all ends it and leaves the old file; it
/// then gives false with an empty `error`.
bool ReplaceFile(const QString &path, const std::function<std::optional<QByteArray>()> &next_piece,
                 QString *error = nullptr);

/// True for a pipe or a device: whoever opens or reads one may wait for ever.
bool IsEndless(const QString &path);

/// The whole file; nothing when it cannot be read, or is endless.
std::optional<QByteArray> ReadFile(const QString &path);

/// Creates every missing folder of a path. False when one cannot be created.
bool MakeFolderPath(const QString &path);

/// The path of the entry of that name in a folder, looked up without regard to case, the exact spelling first. Empty
/// when there is none, or when the name is not the name of an entry (it holds a separator, or is "." or "..").
QString FindIgnoringCase(const QString &folder, const QString &name);

/// The path with the separator behind it, unless it is empty or ends in one.
QString WithSeparator(const QString &folder);

} // namespace ostrand
