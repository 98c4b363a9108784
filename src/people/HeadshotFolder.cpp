#include "people/HeadshotFolder.h"

#include "base/FileNames.h"
#include "base/Files.h"
#include "platform/Services.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr QLatin1StringView kPictureExtension = ".jpg"_L1;
constexpr QLatin1StringView kTemporary = "TemporaryImage.tmp"_L1;

bool IsNumber(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// A place for a picture on its way. One that a swap left there, should the program have died in it, is somebody's
/// picture and stays.
QString TemporaryPlace(const QDir &folder) {
    const QString place = folder.filePath(kTemporary);
    for (int i = 1; QFileInfo::exists(place); ++i) {
        const QString aside = folder.filePath(u"TemporaryImage_%1.tmp"_s.arg(i));
        if (!QFileInfo::exists(aside) && !QFile::rename(place, aside)) {
            return {};
        }
    }
    return place;
}

bool Move(const QString &from, const QString &to, QString *error) {
    QFile file(from);
    const bool moved = file.rename(to);
    if (!moved && error != nullptr) {
        *error = file.errorString();
    }
    return moved;
}

QRegularExpression PatternOf(const QString &pattern) {
    QString expression;
    for (const QChar c : pattern) {
        expression += c == u'*' ? u".*"_s : c == u'?' ? u"."_s : QRegularExpression::escape(QString(c));
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

bool IsHeadshotName(const QString &file_name) {
    return file_name.endsWith(kPictureExtension, Qt::CaseInsensitive);
}

HeadshotName SplitHeadshotName(const QString &file_name) {
    const QString stem = IsHeadshotName(file_name) ? file_name.chopped(kPictureExtension.size()) : file_name;
    const qsizetype line = stem.lastIndexOf(u'_');
    if (line >= 0 && IsNumber(QStringView(stem).mid(line + 1))) {
        return {stem.left(line), stem.mid(line + 1)};
    }
    return {stem, {}};
}

bool IsIdenticalFile(const QString &a, const QString &b) {
    const QFileInfo first(a);
    const QFileInfo second(b);
    return first.isFile() && second.isFile() && first.size() == second.size();
}

bool SwapPictures(const QString &a, const QString &b, QString *error) {
    if (!QFileInfo::exists(b)) {
        return Move(a, b, error);
    }
    const QString temporary = TemporaryPlace(QFileInfo(a).dir());
    if (temporary.isEmpty()) {
        if (error != nullptr) {
            *error = QFileInfo(a).dir().filePath(kTemporary) + u" is in the way"_s;
        }
        return false;
    }
    if (!Move(a, temporary, error)) {
        return false;
    }
    if (!Move(b, a, error)) {
        Move(temporary, a, nullptr);
        return false;
    }
    if (!Move(temporary, b, error)) {
        Move(a, b, nullptr);
        Move(temporary, a, nullptr);
        return false;
    }
    return true;
}

PictureFolder::PictureFolder(const QString &folder) : folder_(WithSeparator(folder)) {
    if (folder.isEmpty()) {
        return; // it would be the one that the program was started in
    }
    for (const QString &name : FileNamesOf(folder)) {
        if (IsHeadshotName(name)) {
            QStringList &spelt = names_[name.toCaseFolded()];
            spelt += name;
            spelt.sort(); // so that it is always the same that is found
        }
    }
}

QString PictureFolder::Path(const QString &name) const {
    return folder_ + name;
}

QStringList PictureFolder::Names() const {
    QStringList names;
    for (const QStringList &spelt : names_) {
        names += spelt;
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString PictureFolder::Find(const QString &name) const {
    const QStringList spelt = names_.value(name.toCaseFolded());
    return spelt.contains(name) ? name : spelt.value(0);
}

QList<int> PictureFolder::AlternatesOf(const QString &stem) const {
    QList<int> numbers;
    for (int i = 1; i <= kMostAlternates; ++i) {
        if (Has(stem + u'_' + QString::number(i) + kPictureExtension)) {
            numbers += i;
        }
    }
    return numbers;
}

void PictureFolder::Forget(const QString &name) {
    const auto spelt = names_.find(name.toCaseFolded());
    spelt->removeOne(name);
    if (spelt->isEmpty()) {
        names_.erase(spelt);
    }
}

bool PictureFolder::Rename(const QString &from, const QString &to) {
    QFile file(Path(from));
    if (!file.rename(Path(to))) {
        error_ = file.errorString();
        return false;
    }
    Forget(from);
    names_[to.toCaseFolded()] += to;
    return true;
}

bool PictureFolder::Remove(const QString &name) {
    QFile file(Path(name));
    if (!file.remove()) {
        error_ = file.errorString();
        return false;
    }
    Forget(name);
    return true;
}

bool PictureFolder::Copy(const QString &source, const QString &name) {
    if (folder_.isEmpty() || !MakeFolderPath(folder_)) {
        error_ = u"cannot make the folder "_s + folder_;
        return false;
    }
    const std::optional<QByteArray> picture = ReadFile(source);
    if (!picture) {
        error_ = u"cannot read "_s + source;
        return false;
    }
    const QString present = Find(name);
    return present.isEmpty() ? WriteNew(name, *picture) : ReplaceFile(Path(present), *picture, &error_);
}

/// Not made durable one by one, which takes most of the time of many: the source still has them.
bool PictureFolder::WriteNew(const QString &name, const QByteArray &picture) {
    QFile file(Path(name));
    const bool opened = file.open(QIODevice::NewOnly);
    if (!opened || file.write(picture) != picture.size() || !file.flush()) {
        error_ = file.errorString();
        if (opened) {
            file.remove();
        }
        return false;
    }
    names_[name.toCaseFolded()] += name;
    return true;
}

int HeadshotFolder::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(shown_.size());
}

QVariant HeadshotFolder::data(const QModelIndex &index, int role) const {
    return index.isValid() && role == Qt::DisplayRole ? NameAt(index.row()) : QVariant();
}

void HeadshotFolder::SetFolder(const QString &folder) {
    folder_ = folder;
    Reload();
}

void HeadshotFolder::SetPattern(const QString &pattern) {
    pattern_ = pattern;
    Filter();
}

void HeadshotFolder::Reload() {
    names_ = folder_.isEmpty() ? QStringList() : FileNamesOf(folder_);
    names_.erase(
        std::remove_if(names_.begin(), names_.end(), [](const QString &name) { return !IsHeadshotName(name); }),
        names_.end());
    names_.sort(Qt::CaseInsensitive);
    Filter();
}

void HeadshotFolder::Filter() {
    const QRegularExpression pattern = PatternOf(pattern_);
    beginResetModel();
    shown_ = pattern_ == u"*.jpg"_s ? names_ : names_.filter(pattern);
    endResetModel();
}

QString HeadshotFolder::PathAt(int row) const {
    const QString name = NameAt(row);
    return name.isEmpty() ? QString() : WithSeparator(folder_) + name;
}

QString PictureSizeText(const Images &images, const QString &path, const QString &decimal_separator) {
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile()) {
        return {};
    }
    const auto [width, height] = images.Size(path).value_or(std::pair(0, 0));
    const double kilobytes = std::round(double(file.size()) / 1024.0 * 10.0) / 10.0;
    // One decimal at most, in the user's notation.
    const QString size = QString::number(kilobytes).replace(u'.', decimal_separator);
    return u"%1 x %2 / %3 kBytes"_s.arg(QString::number(width), QString::number(height), size);
}

} // namespace ostrand
