// listSeries as groups, and as the titles that share a value.
#include "browser/BoxsetRows.h"
#include "browser/Browser.h"
#include "browser/ListFilling.h"
#include "browser/TitleQueries.h"
#include "browser/TitleRows.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kIndent = 5;
constexpr auto kHeaderTag = "OrderCategory"_L1;
constexpr auto kGroupFields = "SELECT Title, ColNo, SortTitle, OriginalSortTitle, Description, p.ProfileID, "
                              "OriginalTitle, "_L1;

/// A category with a group for each of its values.
struct Grouping {
    QLatin1String category;
    QLatin1String column;
    /// The header of the titles without a value, and what joins those with a null value to them.
    QLatin1String empty_header;
    QLatin1String or_null;
    /// A field that the statement of the rows names besides those of every category.
    QLatin1String field;
};

constexpr Grouping kGroupings[] = {
    {"Genre"_L1, "Genre"_L1, "No Genre given"_L1, " OR Genre Is Null "_L1, "Genre"_L1},
    {"Rating"_L1, "Rating"_L1, "No Rating given"_L1, " OR Rating Is Null "_L1, "Rating"_L1},
    {"Medium"_L1, "Medium"_L1, "No Medium given"_L1, " OR Medium Is Null "_L1, "Rating"_L1},
    {"CaseType"_L1, "CaseType"_L1, "No Case Type specified"_L1, " OR CaseType Is Null "_L1, "CaseType"_L1},
    {"Locality"_L1, "Locality"_L1, "No Locality given"_L1, " OR Locality Is NULL "_L1, "Locality"_L1},
};

/// A category that lists the titles which share the value selected in a panel.
struct Sharing {
    QLatin1String category;
    QLatin1String join;
    QLatin1String column;
    bool distinct;
    bool translated;
    std::function<QString()> Browser::Hooks::*selected;
};

const Sharing kSharings[] = {
    {"Subtitle"_L1, "Subtitles s ON s"_L1, "Subtitle"_L1, false, true, &Browser::Hooks::selected_subtitle},
    {"Feature"_L1, "Features f ON f"_L1, "Feature"_L1, false, true, &Browser::Hooks::selected_feature},
    {"AudioFormat"_L1, "AudioFormats a ON a"_L1, "Language"_L1, true, true, &Browser::Hooks::selected_audio},
    {"Studio"_L1, "Studios s ON s"_L1, "Studio"_L1, true, false, &Browser::Hooks::selected_studio},
};

/// Collects the rows of one category.
class SpecialOrderRows {
public:
    explicit SpecialOrderRows(Browser &browser) : session_(browser.session) {
        const ViewState &view = session_.view;
        order_ = (view.mUseCustomTitle ? u"CustomSortTitle, CustomTitle, "_s : QString()) +
                 (view.mUseOriginalTitle ? "OriginalSortTitle, OriginalTitle, SortTitle, Title"_L1
                                         : "SortTitle, Title, OriginalSortTitle, OriginalTitle"_L1);
        const QString tab = SelectedColType(browser);
        if (tab != "All"_L1) {
            tab_clause_ = " ColType = '"_L1 + tab + "' "_L1;
            tab_and_ = tab_clause_ + "AND "_L1;
        }
    }

    void AddGroups(const Grouping &grouping);
    void AddSharing(const Sharing &sharing, const QString &value);
    std::vector<TitleRow> &Rows() { return rows_; }

private:
    QString GroupsStatement(const Grouping &grouping) const;
    void AddHeader(const QString &text);
    void AddTitles(const QString &statement, int indent);
    TitleRow GroupRow(const TitleRowReader &reader, int indent) const;
    void AddGroupTitles(const Grouping &grouping, const QString &value, const QString &or_null);
    void AddLocalityTitles(const QString &value, const QString &or_null);

    Session &session_;
    QString order_;
    QString tab_clause_;
    QString tab_and_;
    int number_ = 0; ///< of the group
    std::vector<TitleRow> rows_;
};

QString SpecialOrderRows::GroupsStatement(const Grouping &grouping) const {
    if (grouping.category == "Genre"_L1) {
        return u"SELECT DISTINCT Genre FROM Genres ORDER BY Genre"_s;
    }
    const QString where = tab_clause_.isEmpty() ? QString() : " WHERE "_L1 + tab_clause_ + u' ';
    return u"SELECT DISTINCT %1 FROM Profiles %2ORDER BY %1"_s.arg(grouping.column, where);
}

void SpecialOrderRows::AddGroups(const Grouping &grouping) {
    const bool locality = grouping.category == "Locality"_L1;
    sql::Recordset values = session_.Database->OpenRecordset(GroupsStatement(grouping));
    for (bool first = true; !values.Eof(); values.MoveNext(), first = false) {
        const QString value = values.Text(0);
        if (value.isEmpty() && !first && !locality) {
            continue;
        }
        ++number_;
        AddHeader(value.isEmpty() ? QString(grouping.empty_header) : value);
        const QString or_null = value.isEmpty() ? QString(grouping.or_null) : QString();
        if (locality) {
            AddLocalityTitles(value, or_null);
        } else {
            AddGroupTitles(grouping, value, or_null);
        }
    }
}

void SpecialOrderRows::AddHeader(const QString &text) {
    TitleRow row;
    row.key = QString::number(number_);
    row.tag = kHeaderTag;
    row.group = text;
    row.tool_tip = Translate(session_, text);
    row.texts[TitleList::Title] = row.tool_tip;
    row.header = true;
    rows_.push_back(std::move(row));
}

void SpecialOrderRows::AddTitles(const QString &statement, int indent) {
    sql::Recordset record = session_.Database->OpenRecordset(statement);
    const TitleRowReader reader(session_.view, record);
    for (; !record.Eof(); record.MoveNext()) {
        rows_.push_back(GroupRow(reader, indent));
    }
}

/// A title below the header of the group; in a list without groups, one without.
TitleRow SpecialOrderRows::GroupRow(const TitleRowReader &reader, int indent) const {
    TitleRow row = reader.GroupRow(number_, indent);
    if (number_ > 0) {
        row.parent_key = QString::number(number_);
    }
    return row;
}

// Titles without a value join their group from every tab, deliberately: "OR" stands behind the tab's "AND".
void SpecialOrderRows::AddGroupTitles(const Grouping &grouping, const QString &value, const QString &or_null) {
    const auto join = grouping.category == "Genre"_L1 ? "INNER JOIN Genres g ON p.ProfileID = g.ProfileID "_L1 : ""_L1;
    AddTitles(kGroupFields + grouping.field + ", CustomTitle, CustomSortTitle FROM Profiles p "_L1 + join +
                  "WHERE "_L1 + tab_and_ + u' ' + grouping.column + " = '"_L1 + EscapeSql(value) + u'\'' + or_null +
                  " ORDER BY "_L1 + order_,
              kIndent);
}

// The value goes in unescaped, deliberately: a locality with a quote makes a faulty statement.
void SpecialOrderRows::AddLocalityTitles(const QString &value, const QString &or_null) {
    const QString condition = tab_and_ + " Locality = '"_L1 + value + u'\'' + or_null;
    const QString titles = kGroupFields + "Locality, CustomTitle, CustomSortTitle FROM Profiles p WHERE "_L1;
    if (!session_.view.BoxsetView) {
        AddTitles(titles + condition + " ORDER BY SortTitle"_L1, kIndent);
        return;
    }
    // The brackets keep the children of boxsets with a locality apart from all titles without one.
    sql::Recordset child =
        session_.Database->OpenRecordset(kGroupFields +
                                         "Locality, b.BoxSetID, CustomTitle, CustomSortTitle FROM Profiles p, Boxset b "
                                         "WHERE ("_L1 +
                                         condition + ") AND b.ChildID = p.ProfileID ORDER BY "_L1 + order_);
    const TitleRowReader child_reader(session_.view, child);
    const int boxset = child.Ordinal(u"BoxSetID");
    std::vector<TitleRow> children;
    RowsByKey by_boxset;
    for (; !child.Eof(); child.MoveNext()) {
        by_boxset.Add(child.Text(boxset), int(children.size()));
        children.push_back(GroupRow(child_reader, 2 * kIndent));
    }
    sql::Recordset record = session_.Database->OpenRecordset(
        titles + u'(' + condition +
        ") AND ProfileID NOT IN (SELECT ChildID FROM BoxSet b, Profiles p WHERE b.ChildID = p.ProfileID) ORDER BY "_L1 +
        order_);
    const TitleRowReader reader(session_.view, record);
    for (; !record.Eof(); record.MoveNext()) {
        rows_.push_back(GroupRow(reader, kIndent));
        const QString key = rows_.back().key;
        for (const int row : by_boxset.Find(ProfileOfKey(key))) {
            rows_.push_back(children[size_t(row)]);
            rows_.back().parent_key = key;
        }
    }
}

void SpecialOrderRows::AddSharing(const Sharing &sharing, const QString &value) {
    const auto fields =
        sharing.distinct ? "SELECT DISTINCT p.ProfileID, Title, ColNo, SortTitle, OriginalSortTitle, Description, "_L1
                         : "SELECT Title, ColNo, SortTitle, OriginalSortTitle, Description, p.ProfileID, "_L1;
    AddTitles(fields + "OriginalTitle, CustomTitle, CustomSortTitle FROM Profiles p INNER JOIN "_L1 + sharing.join +
                  ".ProfileID = p.ProfileID WHERE "_L1 + tab_and_ + u' ' + sharing.column + " = '"_L1 +
                  EscapeSql(value) + "' ORDER BY "_L1 + order_,
              0);
}

/// The value that is selected in a panel, in English where the panel shows it translated.
QString SelectedValue(Browser &browser, const Sharing &sharing) {
    const std::function<QString()> &selected = browser.hooks.*sharing.selected;
    const QString text = selected ? selected() : QString();
    return sharing.translated ? ReverseTranslate(browser.session, text) : text;
}

void CollectRows(Browser &browser, const QString &category, SpecialOrderRows &rows) {
    for (const Grouping &grouping : kGroupings) {
        if (grouping.category == category) {
            rows.AddGroups(grouping);
        }
    }
    for (const Sharing &sharing : kSharings) {
        if (sharing.category == category) {
            rows.AddSharing(sharing, SelectedValue(browser, sharing));
        }
    }
}

} // namespace

void ShowSpecialOrder(Browser &browser, std::vector<TitleRow> rows) {
    TitleList &list = browser.listSeries;
    list.Assign(std::move(rows));
    ShowFilterCount(browser, list.TitleCount());
    if (browser.session.view.mcolorlist) {
        ApplyListColors(browser, true);
    }
    const int sort_column = StoredSortColumn(browser);
    ShowSortColumn(list, sort_column == TitleList::SortTitle ? int(TitleList::Number) : sort_column);
    ShowFirstTitle(browser);
}

void SpecialProfileOrder(Browser &browser, const QString &category) {
    Trace(browser.session, u"SpecialProfileOrder(%1)"_s.arg(category), kTraceEntry);
    if (category == "Filter"_L1) {
        ShowSavedFilter(browser);
        return;
    }
    BeginList(browser);
    browser.SpecialOrder = true;
    SpecialOrderRows rows(browser);
    try {
        if (browser.session.Database) {
            CollectRows(browser, category, rows);
        }
    } catch (const sql::SqlError &) {
        browser.listSeries.Assign(std::move(rows.Rows()));
        Q_EMIT browser.CurrentRowChanged();
        throw;
    }
    ShowSpecialOrder(browser, std::move(rows.Rows()));
}

} // namespace ostrand
