// The query tool's window, on the sample collection.
#include "MainWindowFixture.h"

#include "queries/ui/frmSQLQuery.h"

#include <QClipboard>
#include <QHeaderView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SqlQueryWindow : public test::MainWindowTest {
protected:
    void Open(const QStringList &statements = {}) {
        Start(statements);
        Trigger("mSQLQuery");
        window = main->findChild<frmSQLQuery *>();
        ASSERT_TRUE(window);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        QApplication::processEvents();
    }
    template <typename T>
    T *In(const char *name) {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    QPlainTextEdit *Query() { return In<QPlainTextEdit>("textQuery"); }
    QPlainTextEdit *Error() { return In<QPlainTextEdit>("textError"); }
    QTableView *Result() { return In<QTableView>("listQueryResult"); }
    QListWidget *Queries() { return In<QListWidget>("listQueries"); }
    void Press(const char *name) { QTest::mouseClick(In<QPushButton>(name), Qt::LeftButton); }
    void Send(const QString &statement) {
        Query()->setPlainText(statement);
        Press("cbSendQuery");
    }
    void ClickResult(int row, int column = 0) {
        QTest::mouseClick(Result()->viewport(), Qt::LeftButton, {},
                          Result()->visualRect(Result()->model()->index(row, column)).center());
    }
    QString Copied(const char *action) {
        In<QAction>(action)->trigger();
        return services.clipboard.Text();
    }

    frmSQLQuery *window = nullptr;
};

TEST_F(SqlQueryWindow, TheEntryAndTheButtonOpenTheSameWindow) {
    Open();
    Action(u"SQL"_s)->trigger();
    EXPECT_EQ(main->findChildren<frmSQLQuery *>().size(), 1);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), u"SQL Query"_s);
    EXPECT_EQ(window->windowModality(), Qt::NonModal);
}

TEST_F(SqlQueryWindow, OnlyAResultCanBeSaved) {
    Open();
    const auto *save = In<QPushButton>("cbSaveResult");
    EXPECT_FALSE(save->isEnabled());
    Send(u"SELECT Title FROM Profiles WHERE Title = 'none'"_s);
    EXPECT_TRUE(save->isEnabled()) << "the headings are something";
}

TEST_F(SqlQueryWindow, TheEntryBringsTheMinimisedWindowBack) {
    Open();
    window->showMinimized();
    ASSERT_TRUE(window->isMinimized());
    Trigger("mSQLQuery");
    EXPECT_FALSE(window->isMinimized());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SqlQueryWindow, EachControlHasItsNameAndCanBeReachedByTheKeyboard) {
    Open();
    for (const char *name : {"textQuery", "textError", "listQueries", "listQueryResult", "cbSendQuery", "cbListTables",
                             "cbSave", "cbCreateFilter", "cbSaveResult"}) {
        const auto *control = In<QWidget>(name);
        EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
        EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << name;
    }
    for (const QString &name : {u"textQuery"_s, u"textError"_s}) {
        const QFont font = window->findChild<QPlainTextEdit *>(name)->font();
        EXPECT_EQ(font.families().front(), u"Courier New"_s);
        EXPECT_TRUE(font.fixedPitch());
    }
    EXPECT_EQ(window->focusWidget(), Query());
}

TEST_F(SqlQueryWindow, AStatementIsSentByButtonAndKeys) {
    Open();
    const std::function<void()> ways[] = {
        [this] { Press("cbSendQuery"); },
        [this] { QTest::keyClick(Query(), Qt::Key_F5); },
        [this] { QTest::keyClick(Query(), Qt::Key_Return, Qt::ControlModifier); },
        [this] { QTest::keyClick(Query(), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier); },
        [this] { QTest::keyClick(Result(), Qt::Key_F5); },
    };
    for (int rows = 1; const auto &way : ways) {
        Query()->setPlainText(u"SELECT TOP %1 ProfileID, Title FROM Profiles ORDER BY ProfileID"_s.arg(rows));
        way();
        EXPECT_EQ(Result()->model()->rowCount(), rows);
        EXPECT_EQ(window->windowTitle(), u"SQL Query (%1 records)"_s.arg(rows));
        ++rows;
    }
}

TEST_F(SqlQueryWindow, AFaultIsShownAndItsPlaceTakesTheCursor) {
    Open();
    Send(u"SELECT Title\nFROM Profiles\nWHERE )"_s);
    EXPECT_TRUE(Error()->toPlainText().endsWith(u"Line 3, column 7"_s)) << qPrintable(Error()->toPlainText());
    EXPECT_EQ(Query()->textCursor().blockNumber(), 2);
    EXPECT_EQ(Query()->textCursor().positionInBlock(), 6);
    EXPECT_EQ(window->focusWidget(), Query());
    EXPECT_TRUE(Error()->isReadOnly());
    const auto marked = [this] {
        const auto marks = Query()->extraSelections();
        return marks.isEmpty() ? QString() : marks.front().cursor.selectedText();
    };
    EXPECT_EQ(marked(), u")"_s);
    QTest::keyClick(Query(), Qt::Key_Space);
    EXPECT_EQ(marked(), QString()) << "the text is another one";
    Send(u"SELECT Title FROM Profiles WHERE Title LIKE"_s);
    EXPECT_EQ(marked(), u"LIKE"_s) << "where it ends too soon";
    Send(u"SELECT Title FROM Profiles"_s);
    EXPECT_EQ(Error()->toPlainText(), QString());
    EXPECT_EQ(marked(), QString());
}

TEST_F(SqlQueryWindow, AClickOnAProfileShowsItInTheMainWindow) {
    Open();
    Send(u"SELECT ProfileID, Title FROM Profiles ORDER BY ProfileID"_s);
    for (const int row : {3, 1}) {
        ClickResult(row, 1);
        EXPECT_EQ(session.CurrentProfileID, Result()->model()->index(row, 0).data().toString());
    }
    Result()->setCurrentIndex(Result()->model()->index(2, 0));
    EXPECT_NE(session.CurrentProfileID, Result()->model()->index(2, 0).data().toString()) << "looking is free";
    QTest::keyClick(Result(), Qt::Key_Return);
    EXPECT_EQ(session.CurrentProfileID, Result()->model()->index(2, 0).data().toString());
    const QString before = session.CurrentProfileID;
    Send(u"SELECT Title, ProfileID FROM Profiles ORDER BY ProfileID"_s);
    ClickResult(0);
    EXPECT_EQ(session.CurrentProfileID, before) << "this row begins with a title";
}

TEST_F(SqlQueryWindow, AHeaderSortsAndAnotherResultBeginsUnsorted) {
    Open();
    Send(u"SELECT ProfileID, Title FROM Profiles ORDER BY Title"_s);
    const auto titles = [this] {
        return QStringList{Result()->model()->index(0, 1).data().toString(),
                           Result()->model()->index(Result()->model()->rowCount() - 1, 1).data().toString()};
    };
    const QStringList ordered = titles();
    QHeaderView *header = Result()->horizontalHeader();
    const QPoint title(header->sectionViewportPosition(1) + 5, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    EXPECT_EQ(titles(), QStringList(ordered.crbegin(), ordered.crend()));
    Press("cbSendQuery");
    EXPECT_EQ(titles(), ordered);
    EXPECT_EQ(header->sortIndicatorSection(), -1);
}

TEST_F(SqlQueryWindow, ResultsAreCopiedAsTextAndXmlAndPrinted) {
    Open();
    Send(u"SELECT TOP 3 ProfileID, ProdYear FROM Profiles ORDER BY ProfileID"_s);
    EXPECT_EQ(Copied("mCopyToClipboard").count(u"\r\n"_s), 4);
    Result()->setFocus();
    Result()->selectRow(1);
    Result()->selectionModel()->select(Result()->model()->index(2, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    services.clipboard.SetText({});
    QTest::keyClick(Result(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(services.clipboard.Text().startsWith(u"ProfileID\tProdYear\r\n"_s));
    EXPECT_EQ(services.clipboard.Text().count(u"\r\n"_s), 3) << "the rows that are selected";
    EXPECT_EQ(Copied("mCopyXMLtoClipboard").count(u"<TableRow>"_s), 2);
    QList<int> printed;
    window->print = [&](const QAbstractItemModel &list, const QList<int> &rows) {
        EXPECT_EQ(list.columnCount(), 2);
        printed = rows;
    };
    In<QAction>("mPrint")->trigger();
    EXPECT_EQ(printed, (QList<int>{1, 2}));
    EXPECT_EQ(Result()->actions().size(), 3);
    EXPECT_EQ(Result()->contextMenuPolicy(), Qt::ActionsContextMenu);
}

TEST_F(SqlQueryWindow, QueriesAreSavedLoadedAndDeleted) {
    Open({u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Old', 'SELECT 1' & Chr(13) & Chr(10) & 'AS One')"_s});
    ASSERT_EQ(Queries()->count(), 1);
    QTest::mouseClick(Queries()->viewport(), Qt::LeftButton, {},
                      Queries()->visualItemRect(Queries()->item(0)).center());
    EXPECT_EQ(Query()->toPlainText(), u"SELECT 1\nAS One"_s);
    Query()->setPlainText(u"SELECT 2"_s);
    services.dialogs.ExpectInput(u"Enter a name for the query:"_s, u"New"_s);
    Press("cbSave");
    ASSERT_EQ(Queries()->count(), 2);
    EXPECT_EQ(Queries()->currentItem()->text(), u"New"_s);
    EXPECT_EQ(Query()->toPlainText(), u"SELECT 2"_s);
    Queries()->setFocus();
    services.dialogs.ExpectMessage(u"Do you really want to delete 'New'?"_s, MessageAnswer::Yes);
    QTest::keyClick(Queries(), Qt::Key_Delete);
    ASSERT_EQ(Queries()->count(), 1);
    EXPECT_EQ(Queries()->item(0)->text(), u"Old"_s);
    Query()->setFocus();
    QTest::keyClick(Query(), Qt::Key_Delete);
    EXPECT_EQ(Queries()->count(), 1) << "in the text the key deletes text";
}

TEST_F(SqlQueryWindow, TablesFilterAndResultHaveTheirButtons) {
    Open();
    Press("cbListTables");
    EXPECT_GT(Result()->model()->rowCount(), 25);
    EXPECT_TRUE(Error()->toPlainText().startsWith(u"Usage:\n"_s));
    Press("cbCreateFilter");
    EXPECT_EQ(Query()->toPlainText(), QueryTool::FilterTemplate());
    services.dialogs.ExpectSaveFile(services.folders.dir / u"r.txt"_s);
    services.dialogs.ExpectInputPreset({});
    Press("cbSaveResult");
    EXPECT_TRUE(services.folders.dir.Read(u"r.txt"_s).startsWith("Tables|Field|"));
}

TEST_F(SqlQueryWindow, WhatAStatementDidIsSaid) {
    Open();
    Send(u"UPDATE Profiles SET Title = Title WHERE ProfileID = 'none'"_s);
    EXPECT_EQ(In<QLabel>("labelInfo")->text(), u"Rows changed: 0"_s);
}

TEST_F(SqlQueryWindow, ClosingKeepsTheTextAndThePlace) {
    Open();
    Query()->setPlainText(u"SELECT 1"_s);
    window->resize(700, 500);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(GetINIString(session, u"SQLQueries"_s, u"Width"_s, {}), QString::number(700 * 15));
    EXPECT_EQ(GetINIString(session, u"SQLQueries"_s, u"Height"_s, {}), QString::number(500 * 15));
    EXPECT_FALSE(GetINIString(session, u"SQLQueries"_s, u"Left"_s, {}).isEmpty());
    Trigger("mSQLQuery");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Query()->toPlainText(), u"SELECT 1"_s);
}

TEST_F(SqlQueryWindow, AnotherDatabaseHasItsOwnQueries) {
    Open({u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Old', 'SELECT 1')"_s});
    Send(u"SELECT Title FROM Profiles"_s);
    const QString other = services.folders.dir / u"other.mdb"_s;
    ASSERT_TRUE(NewCollectionDatabase(session, other));
    EXPECT_EQ(Queries()->count(), 0);
    EXPECT_EQ(Result()->model()->rowCount(), 0);
    EXPECT_EQ(Query()->toPlainText(), u"SELECT Title FROM Profiles"_s);
}

TEST_F(SqlQueryWindow, ALargeResultNeedsNoTime) {
    Open();
    Send(u"SELECT TOP 200000 a.Name, b.Name FROM CastCrew a, CastCrew b"_s);
    EXPECT_GE(Result()->model()->rowCount(), 200000) << qPrintable(Error()->toPlainText());
    Result()->scrollToBottom();
    Result()->grab();
}

TEST_F(SqlQueryWindow, TheMainWindowClosesWithItOpen) {
    Open();
    main->close();
    EXPECT_FALSE(main->isVisible());
}

} // namespace
} // namespace ostrand
