// All settings of a database and of the installation, each told once.
#pragma once

#include <QString>

#include <span>

namespace ostrand {

struct Session;

/// How the text of a setting is read and written.
enum class SettingKind {
    Text,
    TrueFalse, ///< "True" and "False"
    OneZero,   ///< "1" and "0"
    Number,
    Columns, ///< positions of columns joined by ","
    Folder,
};

/// When a setting is read into the session: not at all (it is read at its point of use), before the URL of IMDb is
/// read, or after it.
enum class SettingStep { PointOfUse, First, Rest };

/// A setting of the database. In the table they stand in the order in which they load.
struct DbSetting {
    const char16_t *key;
    /// The default; a folder's is relative to the data folder.
    const char16_t *preset;
    SettingKind kind;
    SettingStep step;
    /// Place among what is written at shutdown, from 1; 0 for those that are not.
    int save_order = 0;
    const char16_t *comment = u"";
    /// Take the text into the session, and give the text for what the session holds; null for those of `PointOfUse`.
    void (*load)(Session &, const DbSetting &) = nullptr;
    QString (*save)(const Session &, const DbSetting &) = nullptr;

    QString Key() const { return QString::fromUtf16(key); }
    QString Preset() const { return QString::fromUtf16(preset); }
};

std::span<const DbSetting> DbSettings();
/// Null for an unknown key. Keys compare exactly.
const DbSetting *FindDbSetting(QStringView key);

/// A setting of Settings.ini. The host of a URL and the data folder are put in front where the default says so.
struct IniSetting {
    enum class Base { None, DataFolder, DataServer, ImdbServer };

    const char16_t *section;
    const char16_t *key;
    const char16_t *preset;
    Base base = Base::None;

    QString Section() const { return QString::fromUtf16(section); }
    QString Key() const { return QString::fromUtf16(key); }
};

std::span<const IniSetting> IniSettings();
/// Reads a setting of Settings.ini with the default of the table, which must hold it.
QString ReadIniSetting(const Session &session, const char16_t *section, const char16_t *key);
void WriteIniSetting(const Session &session, const char16_t *section, const char16_t *key, const QString &value);

/// The host of the collection program's covers, for links to them.
QString CoverHost();
/// The page that tells who contributed what to a profile, without its query. Each of the two versions of the collection
/// program has its own.
QString ContributionNotesPage(bool profiler3);
/// The sections of Settings.ini that hold Height, Width, Top and Left of one window each, in twips. Their default is
/// the design of the window.
std::span<const char16_t *const> WindowSections();
bool IsWindowSection(QStringView section);

/// The positions in a text of that form; `preset` where it is not each number from 1 to the count of `preset` once.
QList<int> ParseColumns(QStringView text, const QList<int> &preset);
QString ColumnsText(const QList<int> &columns);

} // namespace ostrand
