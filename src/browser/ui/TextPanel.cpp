#include "browser/ui/TextPanel.h"

#include "browser/Browser.h"
#include "browser/SharedValues.h"
#include "browser/ui/FieldText.h"
#include "browser/ui/PanelList.h"
#include "shell/ui/Guarded.h"

namespace ostrand {

TextPanel::TextPanel(Browser &browser, const QString &name, QWidget *parent) :
    QScrollArea(parent), browser_(browser), column_(nullptr) {
    setObjectName(name);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::StyledPanel);
    auto *content = new QWidget;
    content->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    column_ = new QVBoxLayout(content);
    column_->setContentsMargins(4, 4, 4, 4);
    setWidget(content);
}

QVBoxLayout *TextPanel::AddFrame(const QString &name, int stretch) {
    auto *frame = new QFrame;
    frame->setObjectName(name);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    column_->addWidget(frame, stretch);
    return layout;
}

FieldText *TextPanel::AddText(QVBoxLayout &frame, const QString &name) {
    auto *text = new FieldText(name);
    frame.addWidget(text);
    OfferFieldMenu(*text);
    connect(text, &FieldText::ChangeWanted, this, [this, name] { Q_EMIT ChangeWanted(name); });
    return text;
}

void TextPanel::OfferFieldMenu(QWidget &control) {
    control.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&control, &QWidget::customContextMenuRequested, this, [this, &control](const QPoint &place) {
        Q_EMIT FieldMenuWanted(control.objectName(), control.mapToGlobal(place));
    });
}

PanelList *TextPanel::AddList(QVBoxLayout &frame, ListTable &table, const QString &name, const QString &category) {
    auto *list = new PanelList(browser_, table, name);
    frame.addWidget(list);
    connect(list, &PanelList::Chosen, this, [this, list, category] {
        Guarded(browser_.session, [&] { ListTitlesSharing(browser_, category, list->SelectedText()); });
    });
    return list;
}

QCheckBox *TextPanel::AddMark(QVBoxLayout &frame, const QString &name) {
    auto *mark = new QCheckBox;
    mark->setObjectName(name);
    mark->setFocusPolicy(Qt::NoFocus);
    mark->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame.addWidget(mark);
    return mark;
}

void TextPanel::ShowText(QLabel &label, const QString &text) {
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

QString TextPanel::Shown(const char16_t *text) const {
    return Translate(browser_.session, QString::fromUtf16(text));
}

void TextPanel::TranslateList(PanelList &list, const char16_t *name) {
    list.TranslateNames(Shown(name), Shown(u"&Copy"), Shown(u"&List Titles With This"), Shown(u"Loc&k"));
}

} // namespace ostrand
