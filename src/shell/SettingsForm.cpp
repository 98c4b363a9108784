#include "shell/SettingsForm.h"

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "shell/Session.h"
#include "shell/Settings.h"
#include "shell/SettingsTable.h"

#include <QDir>

#include <cmath>
#include <limits>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;
using enum SettingsEntryKind;
using Group = SettingsGroup;

constexpr SettingsGroupTexts kGroups[] = {
    {Group::Lists, u"Display", u"Lists"},
    {Group::Window, u"Display", u"Main Window"},
    {Group::Translation, u"Display", u"Translation"},
    {Group::Headshots, u"Pictures", u"Headshots"},
    {Group::Covers, u"Pictures", u"Covers"},
    {Group::Search, u"Collection", u"Search"},
    {Group::Loans, u"Collection", u"Loans"},
    {Group::Owned, u"Collection", u"Collection Types"},
    {Group::Editing, u"Editing and Files", u"Locks"},
    {Group::Exchange, u"Editing and Files", u"Import and Export"},
    {Group::Progress, u"Editing and Files", u"Progress Window"},
};

constexpr SettingsEntry kEntries[] = {
    {u"comboFont", u"Font", u"FontName", FontName, Group::Lists, u"Font of all lists"},
    {u"textFontSize", u"Size", u"FontSize", FontSize, Group::Lists, u"Size of that font in points"},
    {u"chkShowToolbar", u"Show Toolbar", u"ShowToolbar", Check, Group::Window},
    {u"chkShowMediaIcon", u"Show Media Type Icon", u"ShowMediaIcon", Check, Group::Window},
    {u"chkEnableTranslation", u"Enable String Translation", u"UseUserDefinedStrings", Check, Group::Translation,
     u"Show the texts of the program's translation table"},
    {u"chkTraceStrings", u"Add New Strings to Translation Table", u"TraceStrings", Check, Group::Translation,
     u"Collect the texts that have no translation yet"},
    {u"textHeadshotFolder", u"Headshot Folder", u"HeadshotPath", Folder, Group::Headshots,
     u"Folder of persons' pictures", u"cbSetHeadshotPath"},
    {u"chkHighlightHeadshots", u"Highlight Persons with Headshots", u"HighlightHeadshots", Check, Group::Headshots},
    {u"chkDoNotResizeHeadshots", u"Do Not Resize Headshots", u"DoNotResizeHeadshots", Check, Group::Headshots,
     u"Show each headshot in its own size"},
    {u"textCoverPath", u"Cover Path", u"CoverPath", Folder, Group::Covers, u"Folder of cover pictures",
     u"cbSetCoverPath"},
    {u"chkSearchIncludeMovies", u"Include Movie Data in Search", u"IncludeMovies", Check, Group::Search},
    {u"chkSearchIncludeTV", u"Include TV Series Data in Search", u"IncludeTV", Check, Group::Search},
    {u"chkSearchIncludeAssignedEpisodes", u"Only Include Assigned Episodes in Search", u"IncludeAssignedEpisodesOnly",
     Check, Group::Search},
    {u"chkShowLoanOnStartUp", u"Show Loaned Due on StartUp", u"ShowLoanDueOnStartUp", Check, Group::Loans},
    {u"textLoanPeriod", u"Loan Period in Days", u"LoanDue", WholeNumber, Group::Loans},
    {u"chkUseProfilerColTypes", u"Use Profiler Collection Types", u"UseProfilerColTypes", Check, Group::Owned},
    {u"listIncludeInOwned", u"Also Show in Tab \"Owned\"", u"IncludeInOwned", CheckedList, Group::Owned,
     u"Collection types whose titles the tab shows too"},
    {u"chkAutoLock", u"Auto-Lock Quick-Edits", u"AutoLock", Check, Group::Editing,
     u"Protect from imports what was changed by a quick edit"},
    {u"chkAutoLockEvents", u"Auto-Lock Events", u"AutoLockEvents", Check, Group::Editing,
     u"Protect events that were changed here from imports"},
    {u"chkRemoveBirthYears", u"Remove unneeded BirthYears on Profiler Import", u"RemoveBirthYears", Check,
     Group::Exchange},
    {u"chkAdditionalInfosInProfilerExport", u"Include Additional Infos in Profiler Export",
     u"AdditionalInfosInProfilerExport", Check, Group::Exchange},
    {u"chkAwardsInProfilerExport", u"Include Awards in Profiler Export", u"AwardsInProfilerExport", Check,
     Group::Exchange},
    {u"chkShowProgressDetails", u"Show Progress Details", u"ShowProgressDetails", Check, Group::Progress},
    {u"chkMoreProgressDetails", u"Extended Details", u"ShowMoreProgressDetails", Check, Group::Progress},
};

const DbSetting &SettingOf(const SettingsEntry &entry) {
    const DbSetting *setting = FindDbSetting(entry.key);
    Q_ASSERT(setting);
    return *setting;
}

QString WithDecimalMark(const Session &session, QString text) {
    return session.DecimalSeparator.isEmpty() ? text : text.replace(u'.', session.DecimalSeparator);
}

/// A number as a user writes it; nothing for any other text.
std::optional<double> Number(const Session &session, QString text) {
    if (!session.DecimalSeparator.isEmpty()) {
        text.replace(session.DecimalSeparator, u"."_s);
    }
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<QString> WholeNumberText(const Session &session, const QString &text) {
    const std::optional<double> number = Number(session, text);
    if (!number || std::abs(*number) > std::numeric_limits<int>::max()) {
        return std::nullopt;
    }
    return QString::number(int(std::nearbyint(*number)));
}

std::optional<QString> FontSizeText(const Session &session, const QString &text) {
    constexpr double kSmallest = 1;
    constexpr double kLargest = 100; // beyond it no setting could be read any more, let alone mended
    const std::optional<double> size = Number(session, text);
    return size && *size >= kSmallest && *size <= kLargest ? std::optional(QString::number(*size)) : std::nullopt;
}

/// The folder as it is stored, made on the disk; empty for the default, nothing where it cannot be made.
std::optional<QString> FolderText(Session &session, const QString &text) {
    if (text.trimmed().isEmpty()) {
        return QString();
    }
    const QString folder = QDir::cleanPath(QDir(session.DataFolder).absoluteFilePath(text.trimmed()));
    if (!MakeFolderPath(folder)) {
        ShowMessage(session, {.text = Translate(session, u"The folder cannot be made:"_s) + "\r\n"_L1 +
                                      QDir::toNativeSeparators(folder),
                              .title = Translate(session, u"Settings"_s),
                              .icon = MessageIcon::Warning});
        return std::nullopt;
    }
    return WithSeparator(QDir::toNativeSeparators(folder));
}

/// What the database keeps of a truth value.
QString CheckText(const SettingsEntry &entry, bool checked) {
    if (SettingOf(entry).kind == SettingKind::OneZero) {
        return checked ? u"1"_s : u"0"_s;
    }
    return TruthText(checked);
}

void WriteTexts(Session &session, const QHash<QString, QString> &texts) {
    WriteTogether(session, [&] {
        for (const SettingsEntry &entry : kEntries) {
            if (texts.contains(entry.Key())) {
                WriteDbInfo(session, entry.Key(), texts.value(entry.Key()));
            }
        }
    });
    session.Database->Flush();
}

void TakeOver(Session &session) {
    for (const SettingsEntry &entry : kEntries) {
        const DbSetting &setting = SettingOf(entry);
        if (setting.load) {
            setting.load(session, setting);
        }
    }
    LoadImageFolders(session);
}

void TellWindows(Session &session) {
    for (const auto *hook : {&session.window.MenuStrings, &session.window.SettingsStored}) {
        if (*hook) {
            (*hook)();
        }
    }
}

} // namespace

std::span<const SettingsEntry> SettingsEntries() {
    return kEntries;
}

std::span<const SettingsGroupTexts> SettingsGroups() {
    return kGroups;
}

void SettingsForm::SetChecked(const QString &control, bool checked) {
    SetValue(control, TruthText(checked));
}

void SettingsForm::Load(Session &session) {
    values_.clear();
    for (const SettingsEntry &entry : kEntries) {
        const DbSetting &setting = SettingOf(entry);
        switch (entry.kind) {
        case Check: {
            const QString text = setting.save(session, setting);
            SetChecked(entry.Control(), text == u"True" || text == u"1");
            break;
        }
        case FontSize:
            SetValue(entry.Control(), WithDecimalMark(session, setting.save(session, setting)));
            break;
        case WholeNumber:
        case FontName:
            SetValue(entry.Control(), setting.save(session, setting));
            break;
        case Folder:
            SetValue(entry.Control(), entry.Key() == u"CoverPath" ? session.CoverPath : session.HeadshotPath);
            break;
        case CheckedList:
            break;
        }
    }
    LoadIncludedTypes(session);
}

void SettingsForm::LoadIncludedTypes(Session &session) {
    included_.clear();
    if (!session.Database) {
        return;
    }
    const QStringList stored = session.view.IncludeInOwned.split(u'|');
    try {
        sql::Recordset rows = session.Database->OpenRecordset(
            u"SELECT DISTINCT ColType FROM Profiles WHERE ColType <> 'Owned' ORDER BY ColType");
        for (; !rows.Eof(); rows.MoveNext()) {
            const QString type = rows.Text(0);
            if (!type.isEmpty()) { // a profile without a type: there is no text to keep of it
                included_.push_back({type, stored.contains(type, Qt::CaseInsensitive)});
            }
        }
    } catch (const sql::SqlError &error) {
        Trace(session, u"frmSettings: "_s + error.Text(), kTraceError);
    }
}

QHash<QString, QString> SettingsForm::Texts(Session &session) const {
    QHash<QString, QString> texts;
    const auto keep = [&texts](const SettingsEntry &entry, const std::optional<QString> &text) {
        if (text) {
            texts.insert(entry.Key(), *text);
        }
    };
    for (const SettingsEntry &entry : kEntries) {
        const QString value = Value(entry.Control());
        switch (entry.kind) {
        case Check:
            keep(entry, CheckText(entry, IsChecked(entry.Control())));
            break;
        case WholeNumber:
            keep(entry, WholeNumberText(session, value));
            break;
        case FontName:
            keep(entry, value.trimmed());
            break;
        case FontSize:
            keep(entry, FontSizeText(session, value));
            break;
        case Folder:
            keep(entry, FolderText(session, value));
            break;
        case CheckedList: {
            QStringList checked;
            for (const IncludedType &type : included_) {
                if (type.checked) {
                    checked << type.name;
                }
            }
            keep(entry, checked.join(u'|'));
            break;
        }
        }
    }
    return texts;
}

bool SettingsForm::Store(Session &session) const {
    Trace(session, u"frmSettings.Store()"_s, kTraceEntry);
    if (!session.Database || session.DatabaseTooNew) {
        return false;
    }
    try {
        WriteTexts(session, Texts(session));
        TakeOver(session);
    } catch (const sql::SqlError &error) {
        Trace(session, u"frmSettings: "_s + error.Text(), kTraceError);
        ShowMessage(session,
                    {.text = error.Text(), .title = Translate(session, u"Settings"_s), .icon = MessageIcon::Critical});
        return false;
    }
    TellWindows(session);
    return true;
}

void SettingsForm::Browse(Session &session, const QString &control) {
    for (const SettingsEntry &entry : kEntries) {
        if (entry.kind == Folder && entry.Control() == control) {
            const QString folder =
                session.services.dialogs.BrowseFolder(Translate(session, entry.Caption()), Value(control));
            if (!folder.isEmpty()) {
                SetValue(control, WithSeparator(folder));
            }
        }
    }
}

} // namespace ostrand
