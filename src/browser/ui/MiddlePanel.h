// The third column of the main window: credits, details and technical data of a title.
#pragma once

#include <QTabBar>

class QStackedWidget;

namespace ostrand {

class Browser;
class CreditListView;
class CrewFrame;
class ProfileAV;
class ProfileDetails;
class SplitPanel;

/// The tabs of tabMain and what belongs to each: Split4 with the credits, Details, AV.
class MiddlePanel : public QWidget {
    Q_OBJECT
public:
    explicit MiddlePanel(Browser &browser, QWidget *parent = nullptr);
    SplitPanel *Split4() const { return Split4_; }
    CreditListView *ListCast() const { return ListCast_; }
    CrewFrame *FrameCrew() const { return FrameCrew_; }
    void TranslateNames();

Q_SIGNALS:
    /// The context menu of a field is asked for at a place of the screen.
    void FieldMenuWanted(const QString &control, const QPoint &place);
    /// A field is to be changed.
    void FieldChangeWanted(const QString &control);

private:
    void ShowTabs();

    Browser &browser_;
    QTabBar *tabMain_;
    QStackedWidget *pages_;
    SplitPanel *Split4_;
    CreditListView *ListCast_;
    CrewFrame *FrameCrew_;
    ProfileDetails *Details_;
    ProfileAV *AV_;
    bool following_ = false;
};

} // namespace ostrand
