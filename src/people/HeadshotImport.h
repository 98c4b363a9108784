// Bringing pictures of persons in from another folder.
#pragma once

#include "base/FolderIndex.h"
#include "people/HeadshotFolder.h"

#include <QObject>

namespace ostrand {

struct Session;

/// What the wizard and its tools do, without their windows. The state of its check boxes and its folders are kept in
/// Settings.ini.
class HeadshotImport : public QObject {
    Q_OBJECT
public:
    /// Reads what is kept.
    explicit HeadshotImport(Session &session);
    /// Writes it.
    void KeepSettings() const;

    /// The pictures of the source folder.
    HeadshotFolder FileListImages;
    bool no_resize_left = false;
    bool no_resize_right = false;
    bool also_copy = false;
    QString additional_folder;

    /// Selects a row of the source; -1 for none.
    void LoadImage(int row);
    QString SourcePath() const { return FileListImages.PathAt(row_); }
    /// The name that the selected picture gets: cut at the first "_", so that alternates meet the same primary.
    QString TargetName() const { return TargetName(FileListImages.NameAt(row_)); }
    static QString TargetName(const QString &source_name);
    /// The picture that the headshot folder has under that name; empty for none.
    QString ExistingPath() const;
    /// "<< Replace Image" or "<< Copy Image".
    QString CopyImageText() const;
    bool CanMakePrimary() const { return alternates_ > 1; }

    void CopyImage();
    /// The alternate's number; 0 for a primary picture, -1 after a fault, which is shown.
    int CopyAlternative();
    /// Lets the newest alternate and the primary picture change places.
    void MakePrimary();
    void CopyWhereNone();
    void CopyAllAlternative();
    void RemoveIdenticalImages();

    void SetSourcePath(const QString &folder);
    void UpdateSourceImageList();
    /// Asks for the source folder.
    void ChooseSourcePath();
    /// Asks for the folder that copies go to; false when the user chose none.
    bool setAdditionalCopyFolder();
    /// Asks for the program that edits pictures.
    void SetImageEditor();
    void EditImage();
    void OpenImage();

Q_SIGNALS:
    /// The selected picture, or the one that exists, is to be shown anew.
    void PicturesChanged();

private:
    QString Text(const char16_t *english) const;
    QString ImageEditor() const;
    /// Shows and traces a fault of copying; true when there is none.
    bool Told(const QString &fault);
    bool Ask(const QString &text, const QString &title);
    void CopyAll(bool alternatives);
    /// The headshot folder has other files.
    void Changed();

    Session &session_;
    mutable FolderIndex heads_;
    int row_ = -1;
    int alternates_ = 1; ///< one more than the number of the newest alternate
    QString primary_;    ///< what that is an alternate of
};

} // namespace ostrand
