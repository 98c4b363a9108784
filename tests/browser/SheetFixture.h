// A profile and an episode with something to tell, and the sheet that shows them.
#pragma once

#include "browser/ProfileSheet.h"

#include "ShelfFixture.h"

namespace ostrand {

class SheetTest : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        Run(u"UPDATE Profiles SET MD5 = 'abc'");
        for (const char *user : {"Ada Quill", "Ben Moor", "Cleo D''Arc"}) {
            Run(QStringLiteral("INSERT INTO Users (UserID, IsActive) VALUES ('%1', true)").arg(QLatin1String(user)));
        }
    }
    void AddTag(const QString &id, const QString &full_name) {
        Run(QStringLiteral("INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('%1', '%2', '%3')")
                .arg(id, full_name.section(u'/', -1), full_name));
    }
    QString MD5Of(const QString &id) {
        return Rows(QStringLiteral("SELECT MD5 FROM Profiles WHERE ProfileID = '%1'").arg(id)).value(0);
    }
    QStringList LocksOf(const QString &id) {
        return Rows(QStringLiteral("SELECT LockName FROM Locks WHERE ProfileID = '%1' ORDER BY LockName").arg(id));
    }
    /// The rows of a table, the cells of each joined by "|".
    static QStringList Lines(const ListTable &table) {
        QStringList lines;
        for (const ListTableRow &row : table.Rows()) {
            lines += row.texts.join(u'|');
        }
        return lines;
    }
    static QStringList Headers(const ListTable &table) {
        QStringList headers;
        for (int column = 0; column < table.columnCount(); ++column) {
            headers += table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        return headers;
    }
    static QStringList Texts(const CheckList &list) {
        QStringList texts;
        for (const CheckRow &row : list.Rows()) {
            texts += row.text;
        }
        return texts;
    }
};

} // namespace ostrand
