#include "collection_files/ProfilerImport.h"

#include "audit/Audit.h"
#include "collection_files/ImportProfile.h"
#include "collection_files/KnownDigests.h"
#include "collection_files/Rekeying.h"
#include "collection_files/Rows.h"
#include "collection_files/UnpackedFile.h"
#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/Session.h"
#include "xml/ElementScanner.h"
#include "xml/XmlNodes.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

/// After these faults nothing further can be stored, and going on would only take rows away.
bool EndsImport(sql::ErrorCode code) {
    switch (code) {
    case sql::ErrorCode::CannotOpenDatabase:
    case sql::ErrorCode::ReadOnly:
    case sql::ErrorCode::DiskFull:
    case sql::ErrorCode::Interrupted:
    case sql::ErrorCode::CannotLock:
    case sql::ErrorCode::NotADatabase:
    case sql::ErrorCode::Damaged:
        return true;
    default:
        return false;
    }
}

/// The tables whose rows of a profile the import replaces.
constexpr auto kSectionTables = std::to_array<QStringView>(
    {u"CastCrew", u"BoxSet", u"Discs", u"Regions", u"Features", u"Studios", u"Genres", u"Subtitles", u"AudioFormats",
     u"SRPInfo", u"Reviews", u"MetaInfo", u"PurchaseInfo", u"Events", u"LoanInfo", u"Tags"});

/// The first child of the root decides, as the files of both generations look alike otherwise.
bool IsProfiler3File(const ElementScanner &scanner) {
    return scanner.Elements().front().marked;
}

class CollectionImport {
public:
    explicit CollectionImport(Session &session) : session_(session), run_{.session = session} {}

    bool Run(const QString &path);

private:
    enum class Outcome { Done, Cancelled, Failed };

    QString AskForFile();
    bool Load(ElementScanner &scanner);
    void TellInvalidFile(const XmlResult &fault);
    bool ConfirmGeneration();
    bool ConfirmOlderFile();
    bool ConfirmFirstNewFile();
    Outcome ImportElements(ElementScanner &scanner);
    void LookAtTables();
    bool ImportElement(ElementScanner &scanner, const ScannedElement &element);
    void ImportOne(const ScannedElement &element, const pugi::xml_node &dvd);
    void WriteProfile(ImportProfile &profile, const FoundProfile &found);
    void NoteFault(const QString &text);
    void TellFaults();
    void Finish();
    void ReloadTitles();
    QString Text(const QString &text) { return Translate(session_, text); }
    QString Lines(const QStringList &texts);

    Session &session_;
    ImportRun run_;
    KnownDigests known_;
    bool rekey_ = false;
    int faults_ = 0;
    QString first_fault_;
};

bool CollectionImport::Run(const QString &asked_path) {
    if (!session_.Database) {
        ShowMessage(session_, {.text = Text(u"No open database!"_s), .icon = MessageIcon::Warning});
        return false;
    }
    const QString path = asked_path.isEmpty() ? AskForFile() : asked_path;
    if (path.isEmpty()) {
        return false;
    }
    const UnpackedFile file(session_, path, u"xml"_s);
    if (!QFileInfo(file.Path()).isFile()) {
        ShowMessage(session_, {.text = Text(u"Entered file does not exist"_s),
                               .title = Text(u"Wrong Path"_s),
                               .icon = MessageIcon::Warning});
        return false;
    }
    WriteINIString(session_, u"Main"_s, u"CollectionFile"_s, path);

    frmProgress &progress = session_.progress;
    progress.Load(Text(u"Loading XML"_s));
    run_.show_details = ReadDbInfoFlag(session_, u"ShowProgressDetails"_s, true);
    run_.show_more_details = ReadDbInfoFlag(session_, u"ShowMoreProgressDetails"_s, false);
    progress.ShowDetails(run_.show_details);
    progress.SetLine(Text(u"Loading XML..."_s));

    ElementScanner scanner(file.Path(),
                           {.root = "Collection", .element = "DVD", .text_child = "ID", .marked_child = "MediaTypes"});
    if (!Load(scanner) || scanner.Elements().empty()) {
        progress.UnloadForm(false);
        return false;
    }
    const QString total = QString::number(scanner.Elements().size());
    progress.SetBar(0, int(scanner.Elements().size()));
    progress.SetLine(Text(u"Processing XML..."_s));
    progress.SetCounter(u"0/"_s + total);
    run_.is_profiler3 = IsProfiler3File(scanner);
    if (!ConfirmGeneration()) {
        progress.UnloadForm(false);
        return false;
    }
    const Outcome outcome = ImportElements(scanner);
    TellFaults();
    if (outcome == Outcome::Done) {
        Finish();
        return true;
    }
    ReloadTitles();
    progress.UnloadForm(false);
    return false;
}

QString CollectionImport::AskForFile() {
    const QString preset = QDir(session_.DataFolder).filePath(u"collection.xml"_s);
    return session_.services.dialogs.OpenFile(
        {.title = Text(u"Please select your DVD Profiler collection file"_s),
         .initial = GetINIString(session_, u"Main"_s, u"CollectionFile"_s, preset),
         .filters = {Text(u"DVD Profiler Collection File"_s) + u"|*.xml;*.7z"_s}});
}

bool CollectionImport::Load(ElementScanner &scanner) {
    const XmlResult result = scanner.Scan([this] {
        session_.services.pump.Turn();
        return !session_.progress.ProgressCancelled();
    });
    if (!result.ok && !session_.progress.ProgressCancelled()) {
        TellInvalidFile(result);
    }
    return result.ok;
}

void CollectionImport::TellInvalidFile(const XmlResult &fault) {
    Trace(session_, u"ImportProfilerData: "_s + fault.reason, kTraceError);
    ShowMessage(session_, {.text = Text(u"Invalid collection file!"_s) + u'\n' + fault.reason + u'\n' + fault.source +
                                   u'\n' + Text(u"Line"_s) + u' ' + QString::number(fault.line),
                           .title = Text(u"Invalid file"_s),
                           .icon = MessageIcon::Warning});
}

QString CollectionImport::Lines(const QStringList &texts) {
    QStringList translated;
    for (const QString &text : texts) {
        translated.append(Text(text));
    }
    return translated.join(u'\n');
}

bool CollectionImport::ConfirmGeneration() {
    const bool has_profiles = session_.Database->RecordCount(u"Profiles") > 0;
    if (!run_.is_profiler3) {
        return !has_profiles || !session_.Profiler3 || ConfirmOlderFile();
    }
    if (!has_profiles) {
        ShowMessage(session_, {.text = Text(u"Don't forget to point 'Tools->Settings...->Path Settings->Cover Path' to "
                                            "the image folder of your Profiler database!"_s),
                               .icon = MessageIcon::Information});
        return true;
    }
    return session_.Profiler3 || ConfirmFirstNewFile();
}

bool CollectionImport::ConfirmOlderFile() {
    const MessageAnswer answer =
        ShowMessage(session_, {.text = Lines({u"You already have imported Profiler 3.x data previously."_s,
                                              u"It is not recommended to import DVD Profiler 2.x data on top of it!"_s,
                                              u"You will get duplicate entries!"_s, u"Continue regardless?"_s}),
                               .title = Text(u"Import not recommended!"_s),
                               .icon = MessageIcon::Warning,
                               .buttons = MessageButtons::YesNo,
                               .neutral = MessageAnswer::No});
    return answer == MessageAnswer::Yes;
}

bool CollectionImport::ConfirmFirstNewFile() {
    const MessageAnswer answer = ShowMessage(
        session_, {.text = Lines({u"This is the first time you are importing Profiler 3.x data."_s,
                                  u"After this it is not recommended to import DVD Profiler 2.x data again!"_s,
                                  u"You will get duplicate entries otherwise!"_s}),
                   .title = Text(u"Import Profiler 3.x data"_s),
                   .icon = MessageIcon::Information,
                   .buttons = MessageButtons::OkCancel,
                   .neutral = MessageAnswer::Cancel});
    return answer == MessageAnswer::Ok;
}

CollectionImport::Outcome CollectionImport::ImportElements(ElementScanner &scanner) {
    rekey_ = run_.is_profiler3 && !session_.Profiler3;
    std::optional<RekeyingIndexes> indexes;
    if (rekey_) {
        indexes.emplace(session_);
    } else {
        known_.Load(session_);
    }
    LookAtTables();
    const int total = int(scanner.Elements().size());
    const QString of_total = u'/' + QString::number(total);
    int done = 0;
    for (const ScannedElement &element : scanner.Elements()) {
        if (!known_.IsUnchanged(element) && !ImportElement(scanner, element)) {
            return Outcome::Failed;
        }
        ++done;
        session_.progress.SetBar(done, total);
        session_.progress.SetCounter(QString::number(done) + of_total);
        session_.services.pump.Turn();
        session_.Database->FlushIfDue();
        if (session_.progress.ProgressCancelled()) {
            return Outcome::Cancelled;
        }
    }
    return Outcome::Done;
}

/// What a first import need not ask for each profile.
void CollectionImport::LookAtTables() {
    sql::Database &database = *session_.Database;
    run_.has_locks = database.RecordCount(u"Locks") > 0;
    run_.into_empty_tables = database.RecordCount(u"Profiles") == 0 &&
                             std::all_of(kSectionTables.begin(), kSectionTables.end(),
                                         [&](QStringView table) { return database.RecordCount(table) == 0; });
}

/// False when nothing further can be stored.
bool CollectionImport::ImportElement(ElementScanner &scanner, const ScannedElement &element) {
    const auto document = scanner.Read(element);
    if (!document) {
        NoteFault(u"the file has changed while it was read"_s);
        return true;
    }
    try {
        const sql::Database::Bracket bracket(*session_.Database);
        ImportOne(element, document->document_element());
    } catch (const sql::SqlError &error) {
        NoteFault(error.Text());
        return !EndsImport(error.Code());
    }
    return true;
}

void CollectionImport::ImportOne(const ScannedElement &element, const pugi::xml_node &dvd) {
    constexpr int kLongestKey = 255;
    constexpr int kPrefixLength = 4; // "Key_"
    ImportProfile profile{.run = run_,
                          .dvd = dvd,
                          .key = {},
                          .id = XmlChildText(dvd, "ID"),
                          .upc = XmlChildText(dvd, "UPC"),
                          .title = XmlChildText(dvd, "Title"),
                          .hash = element.DigestText(),
                          .locality = u"United States"_s,
                          .medium = {},
                          .locks = {}};
    // A longer key would be cut by its column and not be found again.
    profile.key = (u"Key_"_s + profile.id).left(kLongestKey);
    if (const qsizetype dot = profile.id.lastIndexOf(u'.'); dot >= 0) {
        profile.locality = session_.CountryNames.value(profile.id.mid(dot + 1).toInt());
    }
    const FoundProfile found = FindProfileRow(profile, rekey_);
    if (run_.has_locks) {
        profile.locks = LockSet(session_, profile.key);
    }
    profile.may_have_rows = found.exists || !run_.into_empty_tables;
    const bool skipped = found.exists && (found.md5 == profile.hash || profile.locks.IsLocked(u"Entire"_s));
    if (!skipped) {
        // Known under the stored spelling only: another one in the file would leave a second, stale entry.
        const std::string stored = (found.exists ? found.key : profile.key).mid(kPrefixLength).toStdString();
        known_.Forget(stored);
        WriteProfile(profile, found);
        if (!rekey_) {
            known_.Store(stored, element.digest);
        }
    }
    if (found.wants_tag) {
        InsertRow(session_, QLatin1String("Tags"),
                  {{QLatin1String("ProfileID"), profile.key},
                   {QLatin1String("TagName"), u"Profile with old ProfileID_UPC_DiscID"_s},
                   {QLatin1String("FullyQualifiedName"), u"Profile with old ProfileID_UPC_DiscID"_s}});
    }
}

void CollectionImport::WriteProfile(ImportProfile &profile, const FoundProfile &found) {
    Trace(session_, u"Updating \""_s + profile.title + u"\", "_s + profile.id, kTraceInfo);
    session_.progress.SetLine(profile.title);
    session_.progress.AddInfo(profile.title, profile.key);
    ShowImportDetail(run_, u"Main Profile"_s);
    profile.medium = ReadMedium(profile.dvd, run_.is_profiler3);
    WriteProfileRow(profile, !found.exists);
    ImportSections(profile);
    // Only now, so that a profile that a fault cut short is taken up again by the next import.
    session_.Database->Execute(QString(u"UPDATE Profiles SET MD5 = '"_s + profile.hash + u"' WHERE ProfileID = '"_s +
                                       EscapeSql(profile.key) + u'\''));
    if (Audit::Enabled(session_)) {
        ShowImportDetail(run_, u"Export SVN Audit Info"_s);
        Audit::AuditWriteProfile(session_, profile.key);
    }
}

void CollectionImport::NoteFault(const QString &text) {
    Trace(session_, u"ImportProfilerData: "_s + text, kTraceError);
    if (faults_++ == 0) {
        first_fault_ = text;
    }
}

void CollectionImport::TellFaults() {
    if (faults_ > 0) {
        ShowMessage(session_, {.text = Text(u"Profiles that could not be imported completely:"_s) + u' ' +
                                       QString::number(faults_) + u'\n' + first_fault_,
                               .title = Text(u"Import"_s),
                               .icon = MessageIcon::Critical});
    }
}

void CollectionImport::Finish() {
    frmProgress &progress = session_.progress;
    if (Audit::Enabled(session_)) {
        progress.SetTitle(Text(u"Syncing SVN Audit Trail"_s));
        progress.SetLine(Text(u"Syncing SVN Audit Trail..."_s));
        Audit::AuditSync(session_, u"Import Profiler XML"_s);
    }
    if (ReadDbInfoFlag(session_, u"RemoveBirthYears"_s, false)) {
        RemoveUnneededBirthYears(session_);
    }
    ReloadTitles();
    progress.UnloadForm(true);
    session_.Profiler3 = run_.is_profiler3;
    WriteDbInfo(session_, u"Profiler3"_s, run_.is_profiler3 ? u"True"_s : u"False"_s);
}

void CollectionImport::ReloadTitles() {
    if (session_.window.ReloadTitles) {
        session_.window.ReloadTitles();
    }
}

} // namespace

bool ImportProfilerData(Session &session, const QString &path) {
    Trace(session, u"ImportProfilerData("_s + path + u')', kTraceEntry);
    bool done = false;
    try {
        done = CollectionImport(session).Run(path);
    } catch (const sql::SqlError &error) {
        Trace(session, u"ImportProfilerData: "_s + error.Text(), kTraceError);
        session.progress.UnloadForm(false);
        ShowMessage(session, {.text = error.Text(), .title = u"ImportProfilerData"_s, .icon = MessageIcon::Critical});
    }
    Trace(session, u"ImportProfilerData: "_s + (done ? u"True"_s : u"False"_s), kTraceExit);
    return done;
}

} // namespace ostrand
