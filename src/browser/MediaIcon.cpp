#include "browser/MediaIcon.h"

#include "browser/Browser.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

/// The texts of a medium, separated by "|".
struct MediaIcon {
    const char16_t *key;
    const char16_t *texts;
};

constexpr MediaIcon kIcons[] = {
    {u"DVDVideo", u"dvd|dvd-video|dvd video"},
    {u"BluRay", u"blu-ray disc|bluray|blu ray|blu-ray"},
    {u"HDDVD", u"hd dvd|hd dvd/dvd|hd-dvd|hddvd|hd-dvd/dvd|hddvd/dvd"},
    {u"DVDAudio", u"dvd-audio|dvd audio"},
    {u"Manga", u"manga"},
    {u"LD", u"ld|laserdisc|laser-disc"},
    {u"CD", u"cd|compact disc"},
    {u"VHS", u"vhs|video"},
    {u"SACD", u"sacd|super audio cd"},
    {u"DVHS", u"dvhs|d-vhs"},
    {u"DivX", u"divx"},
    {u"Xvid", u"xvid"},
    {u"VCD", u"vcd|video cd|view cd|compact disc digital video"},
    {u"CDi", u"cdi|cd-i|compact disc interactive"},
    {u"MD", u"md|mini disc|mini-disc"},
    {u"CDR", u"cdr|cd-r"},
    {u"CDRW", u"cdrw|cd-rw"},
    {u"DCC", u"dcc|digital compact cassette"},
    {u"DAT", u"dat|digital audio tape"},
    {u"CC", u"cc|compact cassette|mc|music cassette|tape"},
};

} // namespace

QString MediaIconKey(const QString &medium) {
    const QString lower = medium.toLower();
    for (const MediaIcon &icon : kIcons) {
        for (const QStringView text : QStringView(icon.texts).split(u'|')) {
            if (text == lower) {
                return QString::fromUtf16(icon.key);
            }
        }
    }
    return {};
}

QStringList MediaIconKeys() {
    QStringList keys;
    for (const MediaIcon &icon : kIcons) {
        keys += QString::fromUtf16(icon.key);
    }
    return keys;
}

bool IsMediaIconShown(const Browser &browser) {
    const ViewState &view = browser.session.view;
    return view.ShowMediaIcon && !view.mTVShows && !view.mSkinEnable;
}

QString ShownMediaIcon(const Browser &browser) {
    return IsMediaIconShown(browser) ? browser.picMedium : QString();
}

} // namespace ostrand
