// A small collection with a browser over it: five profiles in three types, a box set, two series.
#pragma once

#include "browser/Browser.h"

#include "../database/CollectionFixture.h"

namespace ostrand {

class ShelfTest : public CollectionTest {
protected:
    void SetUp() override {
        Create(QStringLiteral("Shelf.mdb"));
        Log(kTraceEntry | kTraceError);
        for (const char *statement : {
                 "INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType, ColNo) VALUES ('A1', 'Amber', 'Amber', "
                 "'Owned', '1')",
                 "INSERT INTO Profiles (ProfileID, Title, OriginalTitle, SortTitle, ColType, ColNo) VALUES ('B1', "
                 "'Birch', 'Bouleau', 'Birch', 'Owned', '2')",
                 "INSERT INTO Profiles (ProfileID, Title, CustomTitle, SortTitle, ColType) VALUES ('C1', 'Cedar', 'My "
                 "Cedar', 'Cedar', 'Ordered')",
                 "INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('Key_D1', 'Dune''s End', 'Dunes "
                 "End', 'Lent out')",
                 "INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('E1', 'Elm', 'Elm', 'Archive')",
                 "INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle, OriginalSortTitle) VALUES ('S1', "
                 "'Harbour', 'Hafen', 'Harbour', 'Hafen')",
                 "INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle, OriginalSortTitle) VALUES ('S2', "
                 "'Glade', '', 'Glade', 'Waldung')",
                 "INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('H11', 'S1', "
                 "'One', '1', 'Arrival')",
                 "INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeOriginalTitle) VALUES ('H13', "
                 "'S1', 'One', '3+4', 'Ebbe')",
                 "INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle) "
                 "VALUES ('H110', 'S1', 'One', '10', 'Storm', 'Sturm')",
                 "INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('H21', 'S1', "
                 "'Captain''s cut', '1', 'Return')",
             }) {
            Run(QString::fromUtf8(statement));
        }
    }

    QStringList Keys() const {
        QStringList keys;
        for (const TitleRow &row : browser.listSeries.Rows()) {
            keys << row.key;
        }
        return keys;
    }
    QString CurrentKey() const {
        return browser.current_row < 0 ? QString() : browser.listSeries.At(browser.current_row).key;
    }
    QStringList BackKeys() const { return KeysOf(browser.history.Back()); }
    QStringList ForwardKeys() const { return KeysOf(browser.history.Forward()); }
    static QStringList KeysOf(const QList<HistoryEntry> &entries) {
        QStringList keys;
        for (const HistoryEntry &entry : entries) {
            keys << entry.key;
        }
        return keys;
    }
    /// Lets a text be shown as another.
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(QStringLiteral("INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')")
                .arg(EscapeSql(english), EscapeSql(shown)));
    }

    Browser browser{session};
};

} // namespace ostrand
