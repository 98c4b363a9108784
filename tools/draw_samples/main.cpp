// Draws the covers and portraits of the sample collection: draw_samples LIST FOLDER.
#include "Cover.h"
#include "Portrait.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace ostrand::samples;

namespace {

constexpr int kCoverQuality = 72;
constexpr int kPortraitQuality = 80;

CoverText ReadCover(const QStringList &fields) {
    CoverText text{fields.value(1), fields.value(2), fields.value(3), fields.value(4),
                   fields.value(5), fields.value(6), fields.value(8)};
    text.black_and_white = fields.value(7) == "bw"_L1;
    return text;
}

bool Draw(const QString &line, const QDir &covers, const QDir &headshots) {
    const QStringList fields = line.split(u'|');
    const QString kind = fields.value(0);
    const QString name = fields.value(1);
    if (kind == "front"_L1) {
        return DrawFront(ReadCover(fields)).save(covers.filePath(name + u"f.jpg"_s), "JPG", kCoverQuality);
    }
    if (kind == "back"_L1) {
        return DrawBack(ReadCover(fields)).save(covers.filePath(name + u"b.jpg"_s), "JPG", kCoverQuality);
    }
    return DrawPortrait(name).save(headshots.filePath(name + u".jpg"_s), "JPG", kPortraitQuality);
}

int Fail(const QString &text) {
    QTextStream(stderr) << text << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char **argv) {
    // No screen is needed to draw into images.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        return Fail(u"Usage: draw_samples LIST FOLDER"_s);
    }
    QFile list(arguments.at(1));
    const QDir folder(arguments.at(2));
    if (!list.open(QIODevice::ReadOnly) || !folder.mkpath(u"covers"_s) || !folder.mkpath(u"headshots"_s)) {
        return Fail(u"Cannot read the list or make the folders"_s);
    }
    const QStringList lines = QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (!Draw(line, QDir(folder.filePath(u"covers"_s)), QDir(folder.filePath(u"headshots"_s)))) {
            return Fail(u"Cannot draw "_s + line);
        }
    }
    return 0;
}
