// The window that tidies the headshot folder.
#pragma once

#include "people/HeadshotManager.h"
#include "people/ui/PeopleWindow.h"

class QLineEdit;
class QListView;
class QListWidget;

namespace ostrand {

class HeadshotView;

/// The folder's files by letter or part of their names, the selected picture, and the tools.
class frmManageHeadshots : public PeopleWindow {
    Q_OBJECT
public:
    explicit frmManageHeadshots(Session &session, QWidget *parent = nullptr);

    /// Shows the current file of the list.
    void LoadImage();
    void done(int result) override;

private:
    void MakeFilter(QBoxLayout &layout);
    void MakeList(QBoxLayout &layout);
    void MakePicture(QBoxLayout &layout);
    void MakeButtons(QBoxLayout &layout);
    void AddTool(QBoxLayout &layout, const char *name, const char16_t *caption, const char16_t *tool_tip,
                 void (*tool)(Session &session, const QString &folder));
    void ShowFilter();
    void DeleteSelected();
    void MakePrimary();
    /// Does something that changes the list, and selects a file of it afterwards.
    void KeepPlace(const std::function<void()> &change);
    void SelectFile(const QString &name, int place);
    QString CurrentName() const;

    HeadshotManager manager_;
    QListWidget *listAlphabeth_ = nullptr;
    QLineEdit *textFilter_ = nullptr;
    QCheckBox *checkFilterSubstring_ = nullptr;
    QListView *FileListImages_ = nullptr;
    QLabel *labelImageCount_ = nullptr;
    HeadshotView *picExisting_ = nullptr;
    QLabel *labelImageSizeExisting_ = nullptr;
    QCheckBox *checkNoResizeLeft_ = nullptr;
    QPushButton *cbMakePrimary_ = nullptr;
};

} // namespace ostrand
