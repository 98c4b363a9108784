#include "html_export/SiteFiles.h"

#include "base/Files.h"

#include <QFileInfo>

#include <filesystem>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

fs::path FsPath(const QString &path) {
    return QFileInfo(path).filesystemFilePath();
}

/// Where the content stands until it is whole. One name a folder, so that a run that was killed leaves one at most.
QString PartOf(const QString &path) {
    return QFileInfo(path).path() + u"/.ostrand-part"_s;
}

SiteFault FaultOf(const QString &path, const QFile &file) {
    const bool disk = file.error() == QFile::ResourceError || file.error() == QFile::WriteError;
    return {path + ": "_L1 + file.errorString(), disk || !QFileInfo(QFileInfo(path).path()).isWritable()};
}

[[noreturn]] void RaiseFault(const QString &path, const std::error_code &error) {
    throw SiteFault(path + ": "_L1 + QString::fromLocal8Bit(error.message().c_str()),
                    error == std::errc::no_space_on_device || error == std::errc::read_only_file_system);
}

/// A new file at `path`, never one that a link leads to.
bool OpenNew(QFile &file, QIODevice::OpenMode more = {}) {
    const QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::NewOnly | more;
    return file.open(mode) || (QFile::remove(file.fileName()) && file.open(mode));
}

/// Once more where only a part was taken, as only that tells why.
bool WriteAll(QFile &file, const QByteArray &content) {
    qsizetype at = 0;
    while (at < content.size()) {
        const qint64 written = file.write(content.constData() + at, content.size() - at);
        if (written <= 0) {
            return false;
        }
        at += qsizetype(written);
    }
    return true;
}

void TakePlace(const QString &part, const QString &path) {
    std::error_code error;
    fs::rename(FsPath(part), FsPath(path), error);
    if (error) {
        QFile::remove(part);
        RaiseFault(path, error);
    }
}

/// Asks for the size first: of most pages that changed nothing is read.
bool Holds(const QString &path, const QByteArray &content) {
    const QFileInfo info(path);
    return info.isFile() && info.size() == content.size() && ReadFile(path) == content;
}

bool SameSizeAndDate(const fs::path &a, const fs::path &b) {
    std::error_code error;
    const auto size = fs::file_size(a, error);
    if (error || fs::file_size(b, error) != size || error) {
        return false;
    }
    const auto date = fs::last_write_time(a, error);
    return !error && fs::last_write_time(b, error) == date && !error;
}

} // namespace

QByteArray SiteBytes(const QString &text) {
    return "\xEF\xBB\xBF" + text.toUtf8();
}

bool PutFile(const QString &path, const QByteArray &content) {
    if (Holds(path, content)) {
        return false;
    }
    QFile part(PartOf(path));
    if (!OpenNew(part, QIODevice::Unbuffered)) {
        throw FaultOf(path, part);
    }
    if (!WriteAll(part, content)) {
        const SiteFault fault = FaultOf(path, part);
        part.remove();
        throw fault;
    }
    part.close();
    TakePlace(part.fileName(), path);
    return true;
}

bool CopyInto(const QString &from, const QString &to) {
    const fs::path source = FsPath(from);
    if (SameSizeAndDate(source, FsPath(to))) {
        return true;
    }
    const QString part = PartOf(to);
    const fs::path copy = FsPath(part);
    std::error_code error;
    fs::remove(copy, error);
    if (!fs::copy_file(source, copy, error)) {
        std::error_code ignored;
        fs::remove(copy, ignored);
        if (error == std::errc::no_space_on_device) {
            RaiseFault(to, error);
        }
        return false;
    }
    // Dates and permissions are a convenience: where they cannot be set, the next run copies once more.
    fs::permissions(copy, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, error);
    const auto date = fs::last_write_time(source, error);
    fs::last_write_time(copy, date, error);
    fs::rename(copy, FsPath(to), error);
    if (error) {
        std::error_code ignored;
        fs::remove(copy, ignored);
    }
    return !error;
}

StreamedFile::StreamedFile(const QString &path, qsizetype block) :
    path_(path), file_(QFileInfo(path).path() + u"/.ostrand-part-"_s + QFileInfo(path).fileName()),
    waiting_("\xEF\xBB\xBF"), block_(block) {
    if (!OpenNew(file_)) {
        throw FaultOf(path_, file_);
    }
    file_.close();
}

StreamedFile::~StreamedFile() {
    if (!committed_) {
        file_.remove();
    }
}

void StreamedFile::Write(const QString &text) {
    waiting_ += text.toUtf8();
    if (waiting_.size() >= block_) {
        WriteWaiting();
    }
}

void StreamedFile::Commit() {
    WriteWaiting();
    committed_ = true;
    TakePlace(file_.fileName(), path_);
}

void StreamedFile::WriteWaiting() {
    if (!file_.open(QIODevice::Append | QIODevice::Unbuffered) || !WriteAll(file_, waiting_)) {
        throw FaultOf(path_, file_);
    }
    file_.close();
    waiting_.clear();
}

} // namespace ostrand
