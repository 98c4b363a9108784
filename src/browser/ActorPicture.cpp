#include "browser/ActorPicture.h"

#include "people/HeadshotFiles.h"
#include "shell/Session.h"

#include <limits>

namespace ostrand {

using namespace Qt::StringLiterals;

bool ActorPicture::LoadHeadShot(const QString &name, bool reset, const QString &birth_year) {
    Trace(session_, u"LoadHeadShot(%1, %2, %3)"_s.arg(name, reset ? u"True"_s : u"False"_s, birth_year), kTraceEntry);
    name_ = name;
    birth_year_ = birth_year;
    if (reset) {
        alternate_ = 0;
    }
    path_ = name.isEmpty() ? QString() : FindHeadshot(session_, index_, name, birth_year, alternate_);
    has_pictures_ = !path_.isEmpty();
    if (path_.isEmpty() && !name.isEmpty()) {
        int first_alternate = 1;
        has_pictures_ = !FindHeadshot(session_, index_, name, birth_year, first_alternate).isEmpty();
    }
    Q_EMIT PictureChanged();
    return !path_.isEmpty();
}

void ActorPicture::AlternateHeadshot() {
    if (name_.isEmpty()) {
        return;
    }
    alternate_ = alternate_ < std::numeric_limits<qint16>::max() ? alternate_ + 1 : 0;
    LoadHeadShot(name_, false, birth_year_);
}

void ActorPicture::Clear() {
    const bool shown = has_pictures_;
    name_.clear();
    birth_year_.clear();
    path_.clear();
    alternate_ = 0;
    has_pictures_ = false;
    if (shown) {
        Q_EMIT PictureChanged();
    }
}

} // namespace ostrand
