// What the program is.
#pragma once

#include <QDialog>

namespace ostrand {

struct Session;

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(Session &session, QWidget *parent = nullptr);
};

} // namespace ostrand
