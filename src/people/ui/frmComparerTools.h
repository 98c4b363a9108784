// Tools of the wizard that work on all files of its source folder.
#pragma once

#include "people/ui/PeopleWindow.h"

namespace ostrand {

class HeadshotImport;

class frmComparerTools : public PeopleWindow {
    Q_OBJECT
public:
    frmComparerTools(Session &session, HeadshotImport &import, QWidget *parent = nullptr);

private:
    void AddTool(QBoxLayout &layout, const char *name, const char16_t *caption, const char16_t *tool_tip,
                 void (*tool)(Session &session, const QString &folder));

    HeadshotImport &import_;
};

} // namespace ostrand
