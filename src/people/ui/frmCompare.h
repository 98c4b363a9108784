// The wizard that brings pictures of persons in.
#pragma once

#include "people/HeadshotImport.h"
#include "people/ui/PeopleWindow.h"

class QLineEdit;
class QListView;

namespace ostrand {

class HeadshotView;

/// The picture that exists on the left, that of the source folder on the right, and the files of that folder.
class frmCompare : public PeopleWindow {
    Q_OBJECT
public:
    explicit frmCompare(Session &session, QWidget *parent = nullptr);

    /// Shows both pictures for the selected file of the source.
    void LoadImage();
    void CopyAlternative() { import_.CopyAlternative(); }
    void UpdateSourceImageList();
    /// What works on a selected picture can be used only with one.
    void EnableEditMode(bool on);
    void setAdditionalCopyFolder();
    void SetImageEditor() { import_.SetImageEditor(); }
    void done(int result) override;

private:
    struct Side {
        HeadshotView *picture = nullptr;
        QLabel *size = nullptr;
        QCheckBox *no_resize = nullptr;
    };
    Side MakeSide(QBoxLayout &layout, const char16_t *caption, const char *picture, const char *size, const char *box,
                  bool &no_resize);
    void MakeButtons(QBoxLayout &layout);
    void MakeList(QBoxLayout &layout);
    void MakeSource(QBoxLayout &layout);
    void MakeCopyRow(QBoxLayout &layout);
    /// Shows the list as it was read, and selects a row.
    void ShowList(int row);
    void ChooseSource();
    void OpenTools();
    void OpenDropBox();
    void ShowSide(const Side &side, const QString &path);
    void ShowPictures();

    HeadshotImport import_;
    Side left_;
    Side right_;
    QListView *FileListImages_ = nullptr;
    QLabel *labelSourceFolder_ = nullptr;
    QLabel *labelImageCount_ = nullptr;
    QLineEdit *textCopyFolder_ = nullptr;
    QCheckBox *checkAlsoCopyTo_ = nullptr;
    QPushButton *cbCopyImage_ = nullptr;
    QPushButton *cbCopyAlternative_ = nullptr;
    QPushButton *cbMakePrimary_ = nullptr;
    QString copy_caption_;
    QString replace_caption_;
    QList<QPushButton *> of_picture_; ///< for a selected picture
};

} // namespace ostrand
