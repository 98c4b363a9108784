#include "browser/ui/FileDrop.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace ostrand {

QStringList CollectionFilesIn(const QMimeData &data) {
    QStringList files;
    for (const QUrl &url : data.urls()) {
        const QString path = url.toLocalFile();
        const QString extension = QFileInfo(path).suffix();
        const bool known = extension.compare(QStringLiteral("xml"), Qt::CaseInsensitive) == 0 ||
                           extension.compare(QStringLiteral("7z"), Qt::CaseInsensitive) == 0;
        if (known && QFileInfo(path).isFile()) {
            files.append(path);
        }
    }
    return files;
}

} // namespace ostrand
