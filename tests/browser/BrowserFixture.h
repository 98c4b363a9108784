// A browser over a collection of a few titles, with the tabs of the three built-in types.
#pragma once

#include "browser/Browser.h"
#include "browser/TitleQueries.h"
#include "database/CollectionFixture.h"

namespace ostrand {

class BrowserTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        browser.tabColList = QStringList{QStringLiteral("All"), QStringLiteral("Owned"), QStringLiteral("Ordered"),
                                         QStringLiteral("WishList")};
    }

    /// `columns` as "Name = 'value', .."; the title of a profile is its id unless they tell another.
    void AddProfile(const QString &id, const QString &columns = {}) {
        Run(QStringLiteral("INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('%1', '%1', '%1', "
                           "'Owned')")
                .arg(id));
        if (!columns.isEmpty()) {
            ASSERT_EQ(Run(QStringLiteral("UPDATE Profiles SET %1 WHERE ProfileID = '%2'").arg(columns, id)), 1);
        }
    }
    void AddChild(const QString &child, const QString &boxset) {
        Run(QStringLiteral("INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', '%2')").arg(child, boxset));
    }
    /// Lets a child stand under several parents, as a file may have it that another program changed.
    void AllowManyParents() {
        Run(u"DROP TABLE BoxSet");
        Run(u"CREATE TABLE BoxSet (ChildID varchar NOT NULL, BoxSetID varchar NOT NULL)");
    }
    void SelectTab(const QString &caption) {
        browser.tabColList_selected = int(browser.tabColList.indexOf(caption)) + 1;
    }

    /// The shown texts of a column, row by row.
    QStringList Column(TitleList::Column column = TitleList::Title) const {
        QStringList texts;
        for (const TitleRow &row : browser.listSeries.Rows()) {
            texts << row.texts[size_t(column)];
        }
        return texts;
    }
    QStringList Keys() const {
        QStringList keys;
        for (const TitleRow &row : browser.listSeries.Rows()) {
            keys << row.key;
        }
        return keys;
    }
    QStringList Movies() {
        GetMovieNames(browser);
        return Column();
    }
    QStringList Groups(const QString &category) {
        SpecialProfileOrder(browser, category);
        return Column();
    }
    /// The widths of the columns "#", "Year", "P.Date" and "Released".
    std::vector<double> OptionalWidths() const {
        const TitleList &list = browser.listSeries;
        return {list.Width(TitleList::Number), list.Width(TitleList::Year), list.Width(TitleList::PurchaseDate),
                list.Width(TitleList::ReleaseDate)};
    }

    Browser browser{session};
};

} // namespace ostrand
