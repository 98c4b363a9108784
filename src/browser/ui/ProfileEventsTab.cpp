#include "browser/ui/ProfileEventsTab.h"

#include "browser/Browser.h"
#include "browser/ProfileSheet.h"
#include "browser/ui/ReviewBar.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kLongestText = 255; // of the columns

struct MarkRow {
    const char *name;
    const char16_t *caption;
    int Review::*mark;
    QRgb colour;
};

/// In the colours that pages of skins give them.
constexpr MarkRow kMarkChoices[] = {
    {"ReviewFilm", u"Film", &Review::Film, 0xFF0080FF},
    {"ReviewVideo", u"Video", &Review::Video, 0xFF00FF80},
    {"ReviewAudio", u"Audio", &Review::Audio, 0xFFFF8080},
    {"ReviewExtras", u"Extras", &Review::Extras, 0xFFFFFF80},
};

} // namespace

ProfileEventsTab::ProfileEventsTab(Browser &browser, ProfileSheet &sheet, QWidget *parent) :
    SheetPage(browser, sheet, u"ProfileEvents"_s, parent), listEvents_(MakeList(sheet.events.listEvents)),
    listUsers_(new QListView), comboEventType_(new QComboBox), textEventTime_(new QDateTimeEdit),
    textEventComment_(new QLineEdit) {
    auto *layout = new QGridLayout(this);
    AddLists(*layout);
    AddFields(*layout);
    AddButtons(*layout);
    layout->addWidget(MakeReview(), 4, 0, 1, 2);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 1);
    ConnectFields();
    ShowTypes();
    ShowEvent();
    ShowTitle();
}

void ProfileEventsTab::AddLists(QGridLayout &layout) {
    layout.addWidget(LabelFor(*listEvents_, "listEvents", Text(u"Events"_s)), 0, 0);
    layout.addWidget(listEvents_, 1, 0);
    listUsers_->setModel(&sheet_.events.users);
    listUsers_->setToolTip(Text(u"Each ticked user gets the events that you add"_s));
    LetCopy(*listUsers_);
    layout.addWidget(LabelFor(*listUsers_, "listUsers", Text(u"Users"_s)), 0, 1);
    layout.addWidget(listUsers_, 1, 1);
}

void ProfileEventsTab::AddFields(QGridLayout &layout) {
    comboEventType_->setEditable(true);
    comboEventType_->setInsertPolicy(QComboBox::NoInsert);
    comboEventType_->lineEdit()->setMaxLength(kLongestText);
    comboEventType_->setToolTip(Text(u"A type of your own is offered from then on"_s));
    comboEventType_->setMinimumContentsLength(12);
    textEventTime_->setDisplayFormat(u"yyyy-MM-dd HH:mm:ss"_s);
    textEventTime_->setCalendarPopup(true);
    textEventComment_->setMaxLength(kLongestText);
    auto *fields = new QGridLayout;
    fields->addWidget(LabelFor(*comboEventType_, "comboEventType", Text(u"Type:"_s)), 0, 0);
    fields->addWidget(comboEventType_, 0, 1);
    fields->addWidget(LabelFor(*textEventTime_, "textEventTime", Text(u"Time:"_s)), 0, 2);
    fields->addWidget(textEventTime_, 0, 3);
    fields->addWidget(LabelFor(*textEventComment_, "textEventComment", Text(u"Comment:"_s)), 1, 0);
    fields->addWidget(textEventComment_, 1, 1, 1, 3);
    fields->setColumnStretch(1, 1);
    fields->setColumnStretch(3, 1);
    layout.addLayout(fields, 2, 0, 1, 2);
}

void ProfileEventsTab::AddButtons(QGridLayout &layout) {
    cbAddEvent_ = MakeButton("cbAddEvent", Text(u"Add Event"_s), Text(u"Adds an event of each ticked user"_s));
    cbChangeEvent_ = MakeButton("cbChangeEvent", Text(u"Change Event"_s),
                                Text(u"Gives the selected event this type, time and comment"_s));
    cbDeleteEvent_ = MakeButton("cbDeleteEvent", Text(u"Delete Event"_s), Text(u"Deletes the selected event"_s));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cbAddEvent_);
    buttons->addWidget(cbChangeEvent_);
    buttons->addWidget(cbDeleteEvent_);
    buttons->addStretch(1);
    layout.addLayout(buttons, 3, 0, 1, 2);
    const auto remove = [this] { Change([this] { sheet_.DeleteEvent(SelectedEvent()); }); };
    connect(cbAddEvent_, &QPushButton::clicked, this, [this] { Change([this] { sheet_.AddEvent(Input()); }); });
    connect(cbChangeEvent_, &QPushButton::clicked, this,
            [this] { Change([this] { sheet_.ChangeEvent(SelectedEvent(), Input()); }); });
    connect(cbDeleteEvent_, &QPushButton::clicked, this, remove);
    auto *key = new QShortcut(QKeySequence::Delete, listEvents_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, remove);
}

void ProfileEventsTab::Change(const std::function<void()> &change) {
    Do(change);
    ShowEvent();
}

QGroupBox *ProfileEventsTab::MakeReview() {
    auto *box = new QGroupBox(Text(u"Review"_s));
    auto *layout = new QGridLayout(box);
    int row = 0;
    for (const MarkRow &mark : kMarkChoices) {
        auto *bar = new ReviewBar;
        auto *text = new QLabel;
        layout->addWidget(LabelFor(*bar, mark.name, Text(QString::fromUtf16(mark.caption))), row, 0);
        layout->addWidget(bar, row, 1);
        layout->addWidget(text, row, 2);
        text->setMinimumWidth(fontMetrics().horizontalAdvance(u"0.5 / 5 "_s));
        SetBarColor(*bar, QColor::fromRgb(mark.colour));
        bar->setToolTip(Text(u"Click or use the arrow keys to give a mark"_s));
        connect(bar, &ReviewBar::MarkChosen, this, [this, member = mark.mark](int value) {
            Review marks = sheet_.review;
            marks.*member = value;
            Do([&] { sheet_.SetReview(marks); });
            ShowSetReview(); // also where it could not be written
        });
        marks_.push_back({mark.mark, bar, text});
        ++row;
    }
    layout->setColumnStretch(1, 1);
    return box;
}

void ProfileEventsTab::SetBarColor(ReviewBar &bar, const QColor &colour) {
    bar.SetBarColor(colour);
}

void ProfileEventsTab::ConnectFields() {
    connect(listEvents_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ProfileEventsTab::ShowEvent);
    connect(comboEventType_, &QComboBox::currentTextChanged, this, &ProfileEventsTab::EnableButtons);
    connect(&sheet_.events.users, &CheckList::Ticked, this, [this](const QString &user, bool on) {
        Do([&] { sheet_.events.TickUser(user, on); });
        EnableButtons();
    });
}

EventInput ProfileEventsTab::Input() const {
    // The window may stand open for long: a time that nobody has set goes on.
    const bool untouched = textEventTime_->dateTime() == present_;
    return {.type = comboEventType_->currentText(),
            .stamp = untouched ? sheet_.Now() : textEventTime_->dateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s),
            .comment = textEventComment_->text()};
}

QString ProfileEventsTab::SelectedEvent() const {
    const QModelIndex index = listEvents_->currentIndex();
    return index.isValid() ? sheet_.events.listEvents.Rows()[size_t(index.row())].key : QString();
}

void ProfileEventsTab::ShowEvent() {
    const TitleEvent *event = sheet_.events.Find(SelectedEvent());
    const bool has_time = event && !event->stamp.isEmpty();
    const QString stamp = has_time ? event->stamp : sheet_.Now();
    QDateTime time = QDateTime::fromString(stamp, u"yyyy-MM-dd HH:mm:ss"_s);
    if (!time.isValid()) {
        time = QDate::fromString(stamp.left(10), Qt::ISODate).startOfDay();
    }
    textEventTime_->setDateTime(time);
    present_ = has_time ? QDateTime() : time;
    textEventComment_->setText(event ? event->comment : QString());
    if (event) {
        comboEventType_->setCurrentText(Text(event->type));
    }
    EnableButtons();
}

void ProfileEventsTab::ShowTypes() {
    const QStringList types = sheet_.events.Types();
    QStringList shown;
    for (int i = 0; i < comboEventType_->count(); ++i) {
        shown += comboEventType_->itemText(i);
    }
    if (shown != types) {
        const QString text = comboEventType_->currentText();
        comboEventType_->clear();
        comboEventType_->addItems(types);
        comboEventType_->setCurrentText(text.isEmpty() ? types.front() : text);
    }
}

void ProfileEventsTab::EnableButtons() {
    const EventInput input = Input();
    const bool selected = sheet_.events.Find(SelectedEvent()) != nullptr;
    cbAddEvent_->setEnabled(sheet_.events.CanAdd(input));
    cbChangeEvent_->setEnabled(selected && ProfileEvents::HasType(input));
    cbDeleteEvent_->setEnabled(selected);
}

void ProfileEventsTab::ShowTitle() {
    setEnabled(!sheet_.Title().id.isEmpty());
    ShowTypes();
    if (std::exchange(shown_, sheet_.Title()) != sheet_.Title()) {
        ShowEvent();
    } else {
        EnableButtons(); // what was typed for this title stays
    }
    ShowSetReview();
}

void ProfileEventsTab::ShowSetReview() {
    for (const Mark &mark : marks_) {
        mark.bar->SetMark(sheet_.review.*mark.mark);
        mark.text->setText(MarkText(browser_.session, sheet_.review.*mark.mark));
    }
}

} // namespace ostrand
