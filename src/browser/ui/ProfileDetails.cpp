#include "browser/ui/ProfileDetails.h"

#include "browser/Browser.h"
#include "browser/ui/FieldText.h"
#include "browser/ui/PanelList.h"
#include "shell/Session.h"
#include "shell/ui/LinkLabel.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The texts in their order; the tool tip tells what a short label means.
struct Text {
    const char16_t *name;
    QString DetailsContent::*text;
    const char16_t *tool_tip = nullptr;
};

constexpr Text kTexts[] = {
    {u"textTitle", &DetailsContent::textTitle},
    {u"textSortTitle", &DetailsContent::textSortTitle, u"The title by which the list is sorted"},
    {u"textOriginalTitle", &DetailsContent::textOriginalTitle},
    {u"textOriginalSortTitle", &DetailsContent::textOriginalSortTitle,
     u"The title by which the list is sorted while it shows original titles"},
    {u"textCollectionNumber", &DetailsContent::textCollectionNumber},
    {u"textCollectionType", &DetailsContent::textCollectionType},
    {u"textReleaseDate", &DetailsContent::textReleaseDate},
    {u"textRuntime", &DetailsContent::textRuntime},
    {u"textRating", &DetailsContent::textRating},
    {u"textCaseType", &DetailsContent::textCaseType},
    {u"textRegions", &DetailsContent::textRegions},
    {u"textLocality", &DetailsContent::textLocality},
};

bool IsRating(const Text &text) {
    return text.text == &DetailsContent::textRating;
}

} // namespace

ProfileDetails::ProfileDetails(Browser &browser, QWidget *parent) :
    TextPanel(browser, u"Details"_s, parent), UPC_(new LinkLabel(browser.session.services.opener)),
    urlIMDB_(new LinkLabel(browser.session.services.opener)) {
    AddInfos();
    listGenres_ = AddList(*AddFrame(u"frameGenres"_s, 2), browser_.Details.listGenres, u"listGenres"_s, u"Genre"_s);
    listStudios_ =
        AddList(*AddFrame(u"frameStudios"_s, 2), browser_.Details.listStudios, u"listStudios"_s, u"Studio"_s);
    listFeatures_ =
        AddList(*AddFrame(u"frameFeatures"_s, 3), browser_.Details.listFeatures, u"listFeatures"_s, u"Feature"_s);
    // Features are shown translated, and found by their English text; studios stand in the database as they are.
    browser_.hooks.selected_feature = [this] { return listFeatures_->SelectedText(); };
    browser_.hooks.selected_studio = [this] { return listStudios_->SelectedKey(); };
    connect(&browser_, &Browser::TitleChanged, this, &ProfileDetails::ShowTitle);
    TranslateNames();
    ShowTitle();
}

ProfileDetails::~ProfileDetails() {
    browser_.hooks.selected_feature = nullptr;
    browser_.hooks.selected_studio = nullptr;
}

void ProfileDetails::AddInfos() {
    QVBoxLayout *frame = AddFrame(u"frameInfos"_s, 0);
    auto *links = new QHBoxLayout;
    UPC_->setObjectName(u"UPC"_s);
    UPC_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    UPC_->setMinimumWidth(1); // a long text does not widen the panel
    urlIMDB_->setObjectName(u"urlIMDB"_s);
    links->addWidget(UPC_);
    links->addStretch(1);
    links->addWidget(urlIMDB_);
    frame->addLayout(links);
    OfferFieldMenu(*UPC_);
    OfferFieldMenu(*urlIMDB_);
    for (const Text &text : kTexts) {
        texts_.push_back(AddText(*frame, QString::fromUtf16(text.name)));
    }
}

void ProfileDetails::TranslateNames() {
    setAccessibleName(Shown(u"Details"));
    UPC_->setAccessibleName(Shown(u"UPC"));
    urlIMDB_->setAccessibleName(Shown(u"IMDb"));
    TranslateList(*listGenres_, u"Genres");
    TranslateList(*listStudios_, u"Studios");
    TranslateList(*listFeatures_, u"Features");
    for (size_t i = 0; i < texts_.size(); ++i) {
        if (kTexts[i].tool_tip) {
            texts_[i]->setToolTip(Shown(kTexts[i].tool_tip));
        }
    }
}

void ProfileDetails::ShowTitle() {
    const DetailsContent &details = browser_.Details;
    UPC_->SetLink(details.UPC.target, details.UPC.text);
    urlIMDB_->SetLink(details.urlIMDB.target, details.urlIMDB.text);
    UPC_->setVisible(!details.UPC.text.isEmpty());
    urlIMDB_->setVisible(!details.urlIMDB.text.isEmpty());
    for (size_t i = 0; i < texts_.size(); ++i) {
        ShowText(*texts_[i], details.*kTexts[i].text);
        if (IsRating(kTexts[i])) {
            texts_[i]->setToolTip(details.textRating_tool_tip.toHtmlEscaped());
        }
    }
}

} // namespace ostrand
