// The second tab of the panels.
#pragma once

#include "browser/ui/TextPanel.h"

namespace ostrand {

class LinkLabel;

/// Details: titles, numbers and dates of a title, its genres, studios and features.
class ProfileDetails : public TextPanel {
    Q_OBJECT
public:
    explicit ProfileDetails(Browser &browser, QWidget *parent = nullptr);
    ~ProfileDetails() override;
    void TranslateNames();

private:
    void AddInfos();
    void ShowTitle();

    LinkLabel *UPC_;
    LinkLabel *urlIMDB_;
    std::vector<FieldText *> texts_;
    PanelList *listGenres_ = nullptr;
    PanelList *listStudios_ = nullptr;
    PanelList *listFeatures_ = nullptr;
};

} // namespace ostrand
