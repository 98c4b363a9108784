// The tab "Events/Review" of the profile window.
#pragma once

#include "browser/ProfileEvents.h"
#include "browser/ProfileReview.h"
#include "browser/ui/SheetPage.h"

#include <QDateTime>

class QComboBox;
class QDateTimeEdit;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QListView;

namespace ostrand {

class ReviewBar;

/// The events of a title with the fields to change them, and its review.
class ProfileEventsTab : public SheetPage {
    Q_OBJECT
public:
    ProfileEventsTab(Browser &browser, ProfileSheet &sheet, QWidget *parent = nullptr);
    /// Shows what the sheet holds.
    void ShowTitle();
    void SetBarColor(ReviewBar &bar, const QColor &colour);
    /// The bars and their texts tell the marks of the sheet.
    void ShowSetReview();

private:
    struct Mark {
        int Review::*mark;
        ReviewBar *bar;
        QLabel *text;
    };
    void AddLists(QGridLayout &layout);
    void AddFields(QGridLayout &layout);
    void AddButtons(QGridLayout &layout);
    QGroupBox *MakeReview();
    void ConnectFields();
    EventInput Input() const;
    QString SelectedEvent() const;
    /// The fields tell the selected event; the present time without one.
    void ShowEvent();
    void ShowTypes();
    void EnableButtons();
    /// Runs a change of the events; the fields are ready for the next one.
    void Change(const std::function<void()> &change);

    SheetTitle shown_;
    SheetList *listEvents_;
    QListView *listUsers_;
    QComboBox *comboEventType_;
    QDateTimeEdit *textEventTime_;
    QDateTime present_; ///< what the field shows of the present time; invalid where it shows that of an event
    QLineEdit *textEventComment_;
    QPushButton *cbAddEvent_ = nullptr;
    QPushButton *cbChangeEvent_ = nullptr;
    QPushButton *cbDeleteEvent_ = nullptr;
    std::vector<Mark> marks_;
};

} // namespace ostrand
