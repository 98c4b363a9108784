#include "people/HeadshotImport.h"

#include "base/Files.h"
#include "people/HeadshotFiles.h"
#include "people/HeadshotTools.h"
#include "people/ProgressJob.h"
#include "shell/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr QLatin1StringView kSection = "HeadhotWizard"_L1; // spelt so in every file: deliberate

#ifdef Q_OS_WIN
constexpr QLatin1StringView kApplications = "|*.exe"_L1;
#else
constexpr QLatin1StringView kApplications = "|*"_L1; // programs have no extension here
#endif

/// Where pictures go to, read once for all that are copied.
class Targets {
public:
    explicit Targets(const HeadshotImport &import, const QString &headshots) : heads(headshots) {
        if (import.also_copy && !import.additional_folder.isEmpty() && QFileInfo(import.additional_folder).isDir()) {
            additional_.emplace(import.additional_folder);
        }
    }

    PictureFolder heads;

    /// Writes a picture into both folders, in place of what is there. Empty, or why it could not be done.
    QString Store(const QString &source, const QString &name) {
        if (!heads.Copy(source, name)) {
            return heads.Error();
        }
        return additional_ && !additional_->Copy(source, name) ? additional_->Error() : QString();
    }

private:
    std::optional<PictureFolder> additional_;
};

/// Stores a picture as the first alternate that is free, as the primary where there is none.
int StoreAlternative(Targets &targets, const QString &source, const QString &target_name, QString &fault) {
    int number = 0;
    QString name = target_name;
    while (targets.heads.Has(name)) {
        name = target_name.chopped(4) + u'_' + QString::number(++number) + u".jpg"_s;
    }
    fault = targets.Store(source, name);
    return number;
}

} // namespace

HeadshotImport::HeadshotImport(Session &session) : session_(session) {
    const auto read = [&](const QString &key) { return GetINIString(session_, kSection, key, {}); };
    no_resize_left = IsTrueText(read(u"NoResizeImageLeft"_s));
    no_resize_right = IsTrueText(read(u"NoResizeImageRight"_s));
    additional_folder = read(u"AdditionalCopyFolder"_s);
    also_copy = IsTrueText(read(u"CheckAlsoCopy"_s));
    FileListImages.SetFolder(read(u"LastFolder"_s));
}

void HeadshotImport::KeepSettings() const {
    const auto write = [&](const QString &key, const QString &value) {
        WriteINIString(session_, kSection, key, value);
    };
    write(u"NoResizeImageLeft"_s, TruthText(no_resize_left));
    write(u"NoResizeImageRight"_s, TruthText(no_resize_right));
    write(u"CheckAlsoCopy"_s, TruthText(also_copy));
    write(u"LastFolder"_s, FileListImages.Folder());
    write(u"AdditionalCopyFolder"_s, additional_folder);
}

QString HeadshotImport::Text(const char16_t *english) const {
    return Translate(session_, QString::fromUtf16(english));
}

QString HeadshotImport::TargetName(const QString &source_name) {
    const qsizetype line = source_name.indexOf(u'_');
    return line <= 0 ? source_name : source_name.left(line) + u".jpg"_s;
}

QString HeadshotImport::ExistingPath() const {
    heads_.SetFolder(session_.HeadshotPath);
    return heads_.Find(TargetName());
}

QString HeadshotImport::CopyImageText() const {
    return u"<< "_s + (ExistingPath().isEmpty() ? Text(u"Copy Image") : Text(u"Replace Image"));
}

void HeadshotImport::LoadImage(int row) {
    row_ = row;
    if (TargetName() != primary_) {
        alternates_ = 1;
    }
    Q_EMIT PicturesChanged();
}

bool HeadshotImport::Told(const QString &fault) {
    if (!fault.isEmpty()) {
        Trace(session_, u"CopyAll: "_s + fault, kTraceError);
        ShowMessage(session_, {.text = Text(u"Error copying image"), .title = {}, .icon = MessageIcon::Critical});
    }
    return fault.isEmpty();
}

void HeadshotImport::Changed() {
    heads_.Invalidate();
    Q_EMIT PicturesChanged();
}

void HeadshotImport::CopyImage() {
    if (SourcePath().isEmpty()) {
        return;
    }
    Told(Targets(*this, session_.HeadshotPath).Store(SourcePath(), TargetName()));
    Changed();
}

int HeadshotImport::CopyAlternative() {
    if (SourcePath().isEmpty()) {
        return -1;
    }
    Targets targets(*this, session_.HeadshotPath);
    QString fault;
    const int number = StoreAlternative(targets, SourcePath(), TargetName(), fault);
    const bool stored = Told(fault);
    if (stored && number > 0) {
        alternates_ = number + 1;
        primary_ = TargetName();
    }
    Changed();
    return stored ? number : -1;
}

void HeadshotImport::MakePrimary() {
    if (!CanMakePrimary()) {
        return;
    }
    const QString newest = primary_.chopped(4) + u'_' + QString::number(alternates_ - 1) + u".jpg"_s;
    const QString primary = FindIgnoringCase(session_.HeadshotPath, primary_);
    ChangePlaces(session_, u"MakePrimary"_s, WithSeparator(session_.HeadshotPath) + newest,
                 primary.isEmpty() ? WithSeparator(session_.HeadshotPath) + primary_ : primary);
    alternates_ = 1;
    Changed();
}

bool HeadshotImport::Ask(const QString &text, const QString &title) {
    return ShowMessage(session_, {.text = text,
                                  .title = title,
                                  .icon = MessageIcon::Question,
                                  .buttons = MessageButtons::YesNo,
                                  .neutral = MessageAnswer::No}) == MessageAnswer::Yes;
}

void HeadshotImport::CopyAll(bool alternatives) {
    const QStringList names = FileListImages.Names();
    Targets targets(*this, session_.HeadshotPath);
    QString fault;
    {
        ProgressJob job(session_, u"Copying images..."_s, names.size());
        for (const QString &name : names) {
            if (job.Cancelled() || !fault.isEmpty()) {
                break;
            }
            const QString source = WithSeparator(FileListImages.Folder()) + name;
            if (alternatives) {
                StoreAlternative(targets, source, TargetName(name), fault);
            } else if (!targets.heads.Has(TargetName(name))) {
                fault = targets.Store(source, TargetName(name));
            }
            job.Step();
        }
    }
    if (Told(fault)) {
        ShowMessage(session_, {.text = Text(u"Finished copying images"), .title = Text(u"Done")});
    }
    alternates_ = 1;
    Changed();
}

void HeadshotImport::CopyWhereNone() {
    if (Ask(Text(u"Do you really want to copy copy all images where currently none exists in headshot folder?"),
            Text(u"Copy all?"))) {
        CopyAll(false);
    }
}

void HeadshotImport::CopyAllAlternative() {
    if (Ask(Text(u"Do you really want to copy copy all images as alternatives?") + u'\n' +
                Text(u"It is recommended, that you first call all other functions in this tool window!"),
            {})) {
        CopyAll(true);
    }
}

void HeadshotImport::RemoveIdenticalImages() {
    if (Ask(Text(u"This will delete all files in the source path which have an identical file in Headshot folder!") +
                u'\n' + Text(u"Proceed?"),
            Text(u"Removal of images"))) {
        RemoveIdenticals(session_, FileListImages.Folder());
        UpdateSourceImageList();
    }
}

void HeadshotImport::SetSourcePath(const QString &folder) {
    FileListImages.SetFolder(folder);
    LoadImage(-1);
}

void HeadshotImport::UpdateSourceImageList() {
    const QString name = FileListImages.NameAt(row_);
    FileListImages.Reload();
    LoadImage(FileListImages.RowOf(name));
}

void HeadshotImport::ChooseSourcePath() {
    const QString folder =
        session_.services.dialogs.BrowseFolder(Text(u"New Headshot Source"), FileListImages.Folder());
    if (!folder.isEmpty()) {
        SetSourcePath(folder);
        WriteINIString(session_, kSection, u"LastFolder"_s, folder);
    }
}

bool HeadshotImport::setAdditionalCopyFolder() {
    const QString folder =
        session_.services.dialogs.BrowseFolder(Text(u"Also copy images to following folder"), additional_folder);
    if (folder.isEmpty()) {
        return false;
    }
    additional_folder = folder;
    WriteINIString(session_, kSection, u"AdditionalCopyFolder"_s, folder);
    return true;
}

QString HeadshotImport::ImageEditor() const {
    return GetINIString(session_, kSection, u"ImageEditor"_s, {});
}

void HeadshotImport::SetImageEditor() {
    const QString program =
        session_.services.dialogs.OpenFile({.title = Text(u"Select your image editing application:"),
                                            .initial = ImageEditor(),
                                            .filters = {Text(u"Applications") + kApplications}});
    if (!program.isEmpty()) {
        WriteINIString(session_, kSection, u"ImageEditor"_s, program);
    }
}

void HeadshotImport::EditImage() {
    if (SourcePath().isEmpty()) {
        return;
    }
    if (ImageEditor().isEmpty()) {
        SetImageEditor();
    }
    QString error;
    if (!ImageEditor().isEmpty() &&
        !session_.services.processes.Start(ImageEditor(), {QDir::toNativeSeparators(SourcePath())}, &error)) {
        Trace(session_, u"EditImage: "_s + error, kTraceError);
        ShowMessage(session_, {.text = Text(u"The program cannot be started:") + u' ' + ImageEditor() + u'\n' + error,
                               .title = {},
                               .icon = MessageIcon::Warning});
    }
}

void HeadshotImport::OpenImage() {
    if (!SourcePath().isEmpty()) {
        session_.services.opener.OpenFile(SourcePath());
    }
}

} // namespace ostrand
