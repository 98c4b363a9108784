#include "browser/ui/ProfileAV.h"

#include "browser/Browser.h"
#include "browser/ui/FieldText.h"
#include "browser/ui/PanelList.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct Mark {
    const char16_t *name;
    const char16_t *caption;
    bool AVContent::*checked;
};

constexpr Mark kMarks[] = {
    {u"cWidescreen", u"Widescreen", &AVContent::cWidescreen},
    {u"cAnamorph", u"Anamorphic", &AVContent::cAnamorph},
    {u"cFullFrame", u"Full Frame", &AVContent::cFullFrame},
    {u"cPanScan", u"Pan & Scan", &AVContent::cPanScan},
};

} // namespace

ProfileAV::ProfileAV(Browser &browser, QWidget *parent) : TextPanel(browser, u"AV"_s, parent) {
    listAudio_ = AddList(*AddFrame(u"frameAudio"_s, 1), browser_.AV.listAudio, u"listAudio"_s, u"AudioFormat"_s);
    listSubtitles_ =
        AddList(*AddFrame(u"frameSubtitles"_s, 1), browser_.AV.listSubtitles, u"listSubtitles"_s, u"Subtitle"_s);
    AddVideo();
    browser_.hooks.selected_audio = [this] { return listAudio_->SelectedText(); };
    browser_.hooks.selected_subtitle = [this] { return listSubtitles_->SelectedText(); };
    connect(&browser_, &Browser::TitleChanged, this, &ProfileAV::ShowTitle);
    TranslateNames();
    ShowTitle();
}

ProfileAV::~ProfileAV() {
    browser_.hooks.selected_audio = nullptr;
    browser_.hooks.selected_subtitle = nullptr;
}

void ProfileAV::AddVideo() {
    QVBoxLayout *frame = AddFrame(u"frameVideo"_s, 0);
    textRatio_ = AddText(*frame, u"textRatio"_s);
    textVideoFormat_ = AddText(*frame, u"textVideoFormat"_s);
    for (const Mark &mark : kMarks) {
        marks_.push_back(AddMark(*frame, QString::fromUtf16(mark.name)));
    }
    OfferFieldMenu(*frame->parentWidget()); // the marks let clicks through
}

void ProfileAV::TranslateNames() {
    setAccessibleName(Shown(u"Audio/Video"));
    TranslateList(*listAudio_, u"Audio");
    TranslateList(*listSubtitles_, u"Subtitles");
    for (size_t i = 0; i < marks_.size(); ++i) {
        marks_[i]->setText(Shown(kMarks[i].caption).replace(u'&', u"&&"_s)); // no key: it only shows
    }
}

void ProfileAV::ShowTitle() {
    ShowText(*textRatio_, browser_.AV.textRatio);
    ShowText(*textVideoFormat_, browser_.AV.textVideoFormat);
    for (size_t i = 0; i < marks_.size(); ++i) {
        marks_[i]->setChecked(browser_.AV.*kMarks[i].checked);
    }
}

} // namespace ostrand
