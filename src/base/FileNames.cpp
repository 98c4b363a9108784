#include "base/FileNames.h"

#include <QFile>

#include <filesystem>

namespace ostrand {

namespace {

namespace fs = std::filesystem;

fs::path PathOf(const QString &folder) {
    if constexpr (std::is_same_v<fs::path::value_type, char>) {
        return fs::path(QFile::encodeName(folder).toStdString());
    } else {
        return fs::path(folder.toStdU16String());
    }
}

QString NameOf(const fs::path &path) {
    const fs::path name = path.filename();
    if constexpr (std::is_same_v<fs::path::value_type, char>) {
        return QFile::decodeName(name.c_str());
    } else {
        return QString::fromStdU16String(name.u16string());
    }
}

} // namespace

QStringList FileNamesOf(const QString &folder) {
    QStringList names;
    std::error_code error;
    for (fs::directory_iterator entry(PathOf(folder), error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown; // a link that leads nowhere
        if (entry->is_regular_file(unknown)) {
            names += NameOf(entry->path());
        }
    }
    return names;
}

} // namespace ostrand
