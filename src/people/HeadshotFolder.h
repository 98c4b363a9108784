// The pictures of one folder.
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QStringList>

#include <optional>

namespace ostrand {

/// A file name of a picture taken apart: what stands before ".jpg", cut at its last "_" when a number follows.
struct HeadshotName {
    QString stem;
    QString tail; ///< the digits behind "_"; empty for a primary picture
    QString Joined() const { return tail.isEmpty() ? stem : stem + u'_' + tail; }
};
HeadshotName SplitHeadshotName(const QString &file_name);
/// Ends in ".jpg", in any letters.
bool IsHeadshotName(const QString &file_name);

/// Both files exist and have the same length. Their content is not compared: deliberate.
bool IsIdenticalFile(const QString &a, const QString &b);

/// Lets two pictures of a folder change places through "TemporaryImage.tmp" in it. Where the second does not exist, the
/// first just takes its place. At every moment both pictures are in the folder; false on a fault, which changes
/// nothing.
bool SwapPictures(const QString &a, const QString &b, QString *error);

/// The names of a folder's pictures, looked up without regard to case and kept up to date by its own changes. No change
/// overwrites a file.
class PictureFolder {
public:
    explicit PictureFolder(const QString &folder);

    QString Path(const QString &name) const;
    /// The names in order, as they were when the folder was read.
    QStringList Names() const;
    /// The name as on disk; empty when there is none.
    QString Find(const QString &name) const;
    bool Has(const QString &name) const { return !Find(name).isEmpty(); }
    /// Up to this number alternates are known.
    static constexpr int kMostAlternates = 100;
    /// The numbers of the alternates of a stem, rising; there may be gaps.
    QList<int> AlternatesOf(const QString &stem) const;
    /// False with the fault in Error(), and nothing changed.
    bool Rename(const QString &from, const QString &to);
    bool Remove(const QString &name);
    /// Copies a file from elsewhere, in place of the one that has the name.
    bool Copy(const QString &source, const QString &name);
    const QString &Error() const { return error_; }

private:
    void Forget(const QString &name);
    bool WriteNew(const QString &name, const QByteArray &picture);

    QString folder_;
    QHash<QString, QStringList> names_; // folded to those that are spelt so
    QString error_;
};

/// What a list of files shows: the pictures of a folder whose names fit a pattern with "*" and "?".
class HeadshotFolder : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    void SetFolder(const QString &folder);
    const QString &Folder() const { return folder_; }
    void SetPattern(const QString &pattern);
    const QString &Pattern() const { return pattern_; }
    /// Reads the folder again.
    void Reload();

    /// Empty outside the list.
    QString NameAt(int row) const { return shown_.value(row); }
    QString PathAt(int row) const;
    /// -1 when the name is not shown.
    int RowOf(const QString &name) const { return int(shown_.indexOf(name)); }
    const QStringList &Names() const { return shown_; }

private:
    void Filter();

    QString folder_;
    QString pattern_ = QStringLiteral("*.jpg");
    QStringList names_;
    QStringList shown_;
};

/// Width, height and size of a picture for the label beneath it; empty for no file.
QString PictureSizeText(const class Images &images, const QString &path, const QString &decimal_separator);

} // namespace ostrand
