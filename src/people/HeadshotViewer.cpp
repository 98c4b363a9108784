#include "people/HeadshotViewer.h"

#include "base/Files.h"
#include "base/Text.h"
#include "people/CrossLinks.h"
#include "people/HeadshotFiles.h"
#include "shell/Dialogs.h"
#include "shell/Download.h"
#include "shell/Session.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace ostrand {

CreditPerson PersonOfTag(const QString &tag) {
    const qsizetype bar = tag.lastIndexOf(u'|'); // a name may hold one
    return bar < 0 ? CreditPerson{tag, {}} : CreditPerson{tag.left(bar), tag.mid(bar + 1)};
}

HeadshotViewer::HeadshotViewer(Session &session) : session_(session) {}

bool HeadshotViewer::LoadHeadShot(const QString &name, bool reset, const QString &birth_year) {
    Trace(session_,
          u"LoadHeadShot("_s + name + u", "_s + (reset ? u"True"_s : u"False"_s) + u", "_s + birth_year + u')',
          kTraceEntry);
    int alternate = reset ? 0 : alternate_;
    picture_ = name.isEmpty() ? QString() : FindHeadshot(session_, index_, name, birth_year, alternate);
    alternate_ = qint16(alternate);
    has_pictures_ = !picture_.isEmpty();
    if (!has_pictures_ && !name.isEmpty()) {
        int first_alternate = 1;
        has_pictures_ = !FindHeadshot(session_, index_, name, birth_year, first_alternate).isEmpty();
    }
    Q_EMIT PictureChanged();
    return !picture_.isEmpty();
}

void HeadshotViewer::AlternateHeadshot() {
    const std::optional<CreditPerson> person = selected ? selected() : std::nullopt;
    if (!person) {
        return;
    }
    alternate_ = alternate_ < std::numeric_limits<qint16>::max() ? qint16(alternate_ + 1) : qint16(0);
    LoadHeadShot(person->name, false, person->birth_year);
}

void HeadshotViewer::Clear() {
    picture_.clear();
    has_pictures_ = false;
    Q_EMIT PictureChanged();
}

void HeadshotViewer::SetHeadshotAsPrimary() {
    if (!CanSetAsPrimary()) {
        return;
    }
    const QString suffix = u'_' + QString::number(alternate_);
    const qsizetype at = picture_.lastIndexOf(suffix);
    if (at < 0) {
        return;
    }
    const QString primary = QString(picture_).remove(at, suffix.size());
    const QString found = FindIgnoringCase(session_.HeadshotPath, primary.mid(primary.lastIndexOf(u'/') + 1));
    ChangePlaces(session_, u"SetHeadshotAsPrimary"_s, picture_, found.isEmpty() ? primary : found);
    index_.Invalidate();
    if (const std::optional<CreditPerson> person = selected ? selected() : std::nullopt) {
        LoadHeadShot(person->name, true, person->birth_year);
    }
}

void HeadshotViewer::DownloadHeadshotFromURL() {
    const std::optional<CreditPerson> person = selected ? selected() : std::nullopt;
    if (!person || person->name.isEmpty()) {
        return;
    }
    bool cancelled = false;
    const QString url =
        InputText(session_, Translate(session_, u"Enter URL of new headshot for"_s) + u' ' + person->name, person->name,
                  cancelled, {});
    if (!cancelled && session_.Database) {
        DownloadHeadshot(url, GetCommonName(session_, person->name, person->birth_year.toInt()), session_.HeadshotPath);
    }
}

CreditPerson HeadshotViewer::Selected() const {
    return selected ? selected().value_or(CreditPerson()) : CreditPerson();
}

bool HeadshotViewer::IsHeadshotFolder(const QString &folder) const {
    return QDir::cleanPath(folder) == QDir::cleanPath(session_.HeadshotPath);
}

bool HeadshotViewer::Fetch(const QString &url, const QString &path) {
    if (!DownloadFile(session_, url, path)) {
        return false;
    }
    if (session_.services.images.Size(path)) {
        return true;
    }
    QFile::remove(path); // a page that says that there is no picture, as a rule
    return false;
}

bool HeadshotViewer::DownloadHeadshot(const QString &url, const QString &name, const QString &folder) {
    if (url.trimmed().isEmpty() || SafeFileName(name).trimmed().isEmpty() || folder.isEmpty() || fetching_) {
        return false;
    }
    const bool shown = IsHeadshotFolder(folder);
    MakeFolderPath(folder);
    const HeadshotPlace place = FreeHeadshotPlace(folder, name);
    const CreditPerson before = Selected();
    // The windows get their turns meanwhile, and must not begin a second transfer to the same place.
    fetching_ = true;
    const bool stored = Fetch(url.trimmed(), place.path);
    fetching_ = false;
    index_.Invalidate();
    const CreditPerson now = Selected();
    if (stored && shown && now.name == before.name && now.birth_year == before.birth_year) {
        alternate_ = qint16(place.alternate);
        LoadHeadShot(name, false, {});
    }
    return stored;
}

} // namespace ostrand
