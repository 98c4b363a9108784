// Files of the site. Each takes its place whole, so that nobody who looks at the site meanwhile sees half a page.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <exception>

namespace ostrand {

/// A file of the site that could not be written.
class SiteFault : public std::exception {
public:
    SiteFault(QString text, bool ends_run) : text_(std::move(text)), bytes_(text_.toUtf8()), ends_run_(ends_run) {}
    const QString &Text() const { return text_; }
    const char *what() const noexcept override { return bytes_.constData(); }
    /// Nothing further can be written: the disk is full, or the folder is closed to us.
    bool EndsRun() const { return ends_run_; }

private:
    QString text_;
    QByteArray bytes_;
    bool ends_run_;
};

/// UTF-8 with a byte order mark, as all texts of the site are.
QByteArray SiteBytes(const QString &text);

/// Writes a file unless it holds this already; false when it did. Throws SiteFault.
///
/// Does not wait for the disk: a page that a power failure takes is written again by the next run, as it differs then.
bool PutFile(const QString &path, const QByteArray &content);

/// Copies a file over another, with its date; nothing is done where size and date are equal. False when it cannot be
/// read or written; throws SiteFault on a full disk.
bool CopyInto(const QString &from, const QString &to);

/// A file that is written bit by bit and takes its place at the end. It is open while it is written only, so that there
/// may be hundreds. Throws SiteFault.
class StreamedFile {
public:
    /// `block` bytes wait to be written.
    explicit StreamedFile(const QString &path, qsizetype block = 1 << 16);
    /// Without Commit the old file stays.
    ~StreamedFile();
    StreamedFile(const StreamedFile &) = delete;
    StreamedFile &operator=(const StreamedFile &) = delete;
    void Write(const QString &text);
    void Commit();

private:
    void WriteWaiting();

    QString path_;
    QFile file_;
    QByteArray waiting_;
    qsizetype block_;
    bool committed_ = false;
};

} // namespace ostrand
