// Where a window stood the last time.
#pragma once

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

class QWidget;

namespace ostrand {

struct Session;

/// A place that can be reached: the same where its upper edge lies on one of the screens, else moved onto the nearest
/// one and made no larger than it. In pixels at 100 %.
QRect OntoScreens(const QRect &place, const QList<QRect> &screens);

/// Whether the window system tells and takes positions.
bool HasWindowPositions();

/// Reads Height, Width, Top and Left (twips) of a window's section of Settings.ini and places the window; what is not
/// there stays as designed: `design`, and a position that the window system chooses.
void ReadWindowPlace(const Session &session, const QString &section, QWidget &window, QSize design);
/// Writes them, unless the window is minimised. A maximised window tells the place it would go back to.
void WriteWindowPlace(const Session &session, const QString &section, const QWidget &window);

/// Reads the place when it is made and writes it whenever the window closes. A child of the window.
class WindowPlace : public QObject {
    Q_OBJECT
public:
    /// `section` is one of WindowSections() (shell/SettingsTable.h). On a small screen a first window has less than its
    /// design.
    WindowPlace(const Session &session, QString section, QWidget *window, QSize design);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Session &session_;
    QString section_;
    QWidget *window_;
};

} // namespace ostrand
