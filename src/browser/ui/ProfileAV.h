// The third tab of the panels.
#pragma once

#include "browser/ui/TextPanel.h"

namespace ostrand {

/// AV: sound, subtitles and picture of a title.
class ProfileAV : public TextPanel {
    Q_OBJECT
public:
    explicit ProfileAV(Browser &browser, QWidget *parent = nullptr);
    ~ProfileAV() override;
    void TranslateNames();

private:
    void AddVideo();
    void ShowTitle();

    FieldText *textRatio_ = nullptr;
    FieldText *textVideoFormat_ = nullptr;
    std::vector<QCheckBox *> marks_;
    PanelList *listAudio_ = nullptr;
    PanelList *listSubtitles_ = nullptr;
};

} // namespace ostrand
