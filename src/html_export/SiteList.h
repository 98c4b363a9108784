// The markup and scripts of the site's lists.
#pragma once

#include "html_export/SiteTabs.h"

namespace ostrand {

/// A title in the lists, all texts as the collection has them.
struct SiteEntry {
    QString page; ///< of its file, without ending
    QString title;
    QString col_no;
    QString real_sort;
};

/// Texts of the lists in the user's language.
struct SiteListTexts {
    QString title;
    QString collection_number;
    QString tabs; ///< "Collection Type" or "Media Type"
};

/// Collects the lists of all tabs. Box sets may hold box sets.
class SiteList {
public:
    /// `collection_types` tells what the tabs are.
    SiteList(const std::vector<SiteTab> &tabs, bool collection_types, SiteListTexts texts);

    void BeginTab(const SiteTab &tab);
    void EndTab();
    /// A row of the tab, or of the box set that is open.
    void Add(const SiteEntry &entry);
    /// The same, with what is added until the end in it.
    void BeginBoxset(const SiteEntry &entry);
    void EndBoxset();

    int Tabs() const { return tabs_; }
    const QString &Tables() const { return tables_; }
    const QString &Menu() const { return menu_; }
    /// Lines that sort each table when the list is loaded.
    const QString &Sorting() const { return sorting_; }
    /// Lines that make the objects of the tables.
    const QString &TableObjects() const { return objects_; }
    /// Lines that sort all tables by the direction in which they stand.
    const QString &ClickSwitch() const { return clicks_; }
    /// Declarations and assignments of the frame's variables.
    const QString &Variables() const { return variables_; }
    const QString &VariableTables() const { return variable_tables_; }
    const QString &Phone() const { return phone_; }

private:
    /// A box set whose titles are being added.
    struct OpenBoxset {
        SiteEntry entry;
        QString phone; ///< its own list
    };
    void WriteScripts(const SiteTab &tab);
    static QString TitleLink(const SiteEntry &entry);
    QString EndOfRow(const SiteEntry &entry) const;
    QString &PhoneList() { return boxsets_.empty() ? phone_ : boxsets_.back().phone; }

    SiteListTexts texts_;
    int tabs_ = 0;
    QSet<QString> phone_ids_;
    std::vector<OpenBoxset> boxsets_;
    QString phone_below_; ///< the lists of the tab's box sets, which stand beside its own
    QString tables_, menu_, sorting_, objects_, clicks_, variables_, variable_tables_, phone_;
};

} // namespace ostrand
