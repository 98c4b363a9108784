#include "people/HeadshotManager.h"

#include "base/Files.h"
#include "people/HeadshotFiles.h"
#include "people/ProgressJob.h"
#include "shell/Settings.h"

#include <QFile>

#include <optional>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr QLatin1StringView kManagerSection = "HeadhotWizard"_L1; // spelt so in every file: deliberate

constexpr qsizetype kManyFiles = 100; ///< more of them take a moment, so that the user sees how far it is

} // namespace

HeadshotManager::HeadshotManager(Session &session) : session_(session) {
    no_resize_left = IsTrueText(GetINIString(session_, kManagerSection, u"NoResizeImageLeft"_s, {}));
    FileListImages.SetFolder(session_.HeadshotPath);
}

void HeadshotManager::KeepSettings() const {
    WriteINIString(session_, kManagerSection, u"NoResizeImageLeft"_s, TruthText(no_resize_left));
}

QString HeadshotManager::Text(const char16_t *english) const {
    return Translate(session_, QString::fromUtf16(english));
}

QString HeadshotManager::labelImageCount() const {
    return QString::number(FileListImages.rowCount()) + u' ' + Text(u"Images");
}

void HeadshotManager::ShowLetter(const QString &letter) {
    FileListImages.SetPattern(letter + u"*.jpg"_s);
}

void HeadshotManager::ShowFilter(const QString &text, bool substring) {
    FileListImages.SetPattern(substring && !text.isEmpty() ? u'*' + text + u"*.jpg"_s : text + u"*.jpg"_s);
}

QString HeadshotManager::DeleteFiles(const QStringList &names) {
    std::optional<ProgressJob> job;
    if (names.size() > kManyFiles) {
        job.emplace(session_, u"Delete Images"_s, names.size());
    }
    QString fault;
    for (const QString &name : names) {
        QFile file(WithSeparator(FileListImages.Folder()) + name);
        if (!file.remove() && file.exists()) {
            fault = name + u": "_s + file.errorString();
            Trace(session_, u"DeleteImages: "_s + fault, kTraceError);
        }
        if (job) {
            job->Step();
            if (job->Cancelled()) {
                break;
            }
        }
    }
    return fault;
}

bool HeadshotManager::DeleteImages(const QStringList &names) {
    if (names.isEmpty()) {
        return false;
    }
    const Message question = {.text = Text(u"Delete all selected images?"),
                              .title = Text(u"Delete Images"),
                              .icon = MessageIcon::Question,
                              .buttons = MessageButtons::YesNo,
                              .neutral = MessageAnswer::No};
    if (IsTrueText(GetINIString(session_, kManagerSection, u"AskOnDelete"_s, u"True"_s)) &&
        ShowMessage(session_, question) != MessageAnswer::Yes) {
        return false;
    }
    const QString fault = DeleteFiles(names);
    FileListImages.Reload();
    if (!fault.isEmpty()) {
        ShowMessage(session_, {.text = Text(u"A picture cannot be deleted:") + u'\n' + fault,
                               .title = Text(u"Delete Images"),
                               .icon = MessageIcon::Warning});
    }
    return true;
}

bool HeadshotManager::CanMakePrimary(const QString &name) {
    const HeadshotName parts = SplitHeadshotName(name);
    return !parts.tail.isEmpty() && !parts.stem.isEmpty();
}

void HeadshotManager::MakePrimary(const QString &name) {
    if (!CanMakePrimary(name)) {
        return;
    }
    const QString folder = WithSeparator(FileListImages.Folder());
    const QString wanted = SplitHeadshotName(name).stem + u".jpg"_s;
    const QString found = FindIgnoringCase(folder, wanted);
    ChangePlaces(session_, u"MakePrimary"_s, folder + name, found.isEmpty() ? folder + wanted : found);
    FileListImages.Reload();
}

void HeadshotManager::Run(void (*tool)(Session &session, const QString &folder)) {
    tool(session_, FileListImages.Folder());
    FileListImages.Reload();
}

} // namespace ostrand
