// Any text as a template and as a link of a page: the tags in it, their attributes, and where the link leads.

#include "services/ConsoleDialogs.h"
#include "services/ConsoleProgress.h"
#include "services/NoDesktop.h"
#include "services/QtProcessRunner.h"
#include "services/SystemFolders.h"
#include "services/SystemServices.h"
#include "shell/Session.h"
#include "skin/SkinLinks.h"
#include "skin/Template.h"
#include "skin/TextConversion.h"

#include <QBuffer>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace ostrand;

namespace {

/// A session that nothing is asked of but its folders.
struct World {
    QBuffer nowhere;
    SystemClock clock;
    ConsoleDialogs dialogs{nowhere, AnswerPolicy::Neutral};
    ConsoleProgress progress{nowhere, clock, ProgressStyle::Quiet};
    QtEventPump pump;
    SystemRandom random;
    QtProcessRunner processes;
    SystemFolders folders;
    SystemLocaleInfo locale;
    PrivateClipboard clipboard;
    NoKeyboard keyboard;
    NoOpener opener;
    ImageHeads images;
    NoDownloader downloader;
    Services services{dialogs, progress,  pump,     clock,  random, processes, folders,
                      locale,  clipboard, keyboard, opener, images, downloader};
    Session session{services};
};

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void ReadAttributes(const QString &tag) {
    Require(tag.startsWith(u'<') && tag.endsWith(u'>') && FindSkinTags(tag) == QStringList{tag});
    for (const QStringView name : {u"NAME", u"Divider", u"Translate", u"MaxList"}) {
        const QString value = GetTagAttribute(tag, name, u"preset"_s);
        Require(!value.isEmpty() && (value == "<br/>"_L1 || !value.contains(u'"')));
        GetTagNumber(tag, name, 7);
        try {
            GetTagFlag(tag, name, false);
        } catch (const SkinFailure &) {
            // a word that is no truth value
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static const World world;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    qsizetype at = 0;
    for (const QString &tag : FindSkinTags(text)) {
        at = text.indexOf(tag, at);
        Require(at >= 0);
        at += tag.size();
        ReadAttributes(tag);
    }
    const SkinLink any = ReadSkinLink(world.session, text);
    Require(any.kind == SkinLink::Kind::Ordinary ? any.parts.isEmpty() : true);
    const QString page = PathToFileUrl(world.session.TempFolder + u"/blank.html"_s);
    const SkinLink link = ReadSkinLink(world.session, page + text);
    Require(link.kind != SkinLink::Kind::Ordinary);
    Require(link.kind == SkinLink::Kind::Unknown || !link.parts.isEmpty());
    return 0;
}
