// What the settings window shows and stores.
#pragma once

#include <QHash>
#include <QString>

#include <span>
#include <vector>

namespace ostrand {

struct Session;

enum class SettingsEntryKind {
    Check,       ///< a check box; its value is "True" or "False"
    WholeNumber, ///< stored when it is numeric
    FontName,
    FontSize, ///< in points, with the decimal mark of the user; stored when it is a size that can be read
    Folder,   ///< a path with a button to choose it
    CheckedList,
};

/// Where an entry stands: a page and a box on it.
enum class SettingsGroup {
    Lists,
    Window,
    Translation,
    Headshots,
    Covers,
    Search,
    Owned,
    Loans,
    Editing,
    Exchange,
    Progress,
};

struct SettingsGroupTexts {
    SettingsGroup group;
    const char16_t *page;
    const char16_t *caption;
};

struct SettingsEntry {
    const char16_t *control;
    const char16_t *caption;
    const char16_t *key;
    SettingsEntryKind kind;
    SettingsGroup group;
    const char16_t *tool_tip = u"";
    /// The button of a folder.
    const char16_t *button = nullptr;

    QString Control() const { return QString::fromUtf16(control); }
    QString Caption() const { return QString::fromUtf16(caption); }
    QString Key() const { return QString::fromUtf16(key); }
};

/// All entries in the order in which the window shows them.
std::span<const SettingsEntry> SettingsEntries();
/// All boxes in the order in which the window shows them; those of one page stand together.
std::span<const SettingsGroupTexts> SettingsGroups();

/// The values of the window, by the names of its controls.
class SettingsForm {
public:
    /// A collection type that the tab "Owned" may include.
    struct IncludedType {
        QString name;
        bool checked = false;
    };

    /// The values of the open database.
    void Load(Session &session);
    /// Writes all values to the database and takes them into the session; windows are told. A fault is shown, changes
    /// nothing and gives false.
    bool Store(Session &session) const;
    /// Lets the user pick a folder for the control of that name.
    void Browse(Session &session, const QString &control);

    QString Value(const QString &control) const { return values_.value(control); }
    void SetValue(const QString &control, const QString &value) { values_[control] = value; }
    bool IsChecked(const QString &control) const { return Value(control) == QStringLiteral("True"); }
    void SetChecked(const QString &control, bool checked);

    /// The entries of listIncludeInOwned.
    const std::vector<IncludedType> &IncludedTypes() const { return included_; }
    void SetIncluded(size_t index, bool checked) { included_[index].checked = checked; }

private:
    QHash<QString, QString> Texts(Session &session) const;
    void LoadIncludedTypes(Session &session);

    QHash<QString, QString> values_;
    std::vector<IncludedType> included_;
};

} // namespace ostrand
