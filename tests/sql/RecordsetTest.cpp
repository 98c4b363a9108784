// Result sets: reading, labels, editing, faults.

#include "SqlTestDatabase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ostrand::sql {

namespace {

class RecordsetTest : public testing::Test {
protected:
    RecordsetTest() {
        for (const QString &statement : {
                 u"CREATE TABLE Owners (Name varchar NOT NULL UNIQUE PRIMARY KEY, Active yesno)"_s,
                 u"CREATE TABLE Films (FilmID long PRIMARY KEY, Title varchar(12) NOT NULL, Seen date, Price NUMERIC, "
                 "Color yesno, Owner varchar REFERENCES Owners(Name), Notes memo)"_s,
                 u"CREATE TABLE Loose (A varchar, B integer)"_s,
                 u"INSERT INTO Owners VALUES ('Ann', true)"_s,
                 u"INSERT INTO Owners VALUES ('Bob', false)"_s,
                 u"INSERT INTO Films VALUES (1, 'Mill', '2009-11-23 20:15:00', 9.5, true, 'Ann', NULL)"_s,
                 u"INSERT INTO Films VALUES (2, 'Harbour', '2001-05-14', 0.1, false, NULL, 'note')"_s,
                 u"INSERT INTO Loose VALUES ('x', 1)"_s,
                 u"INSERT INTO Loose VALUES ('x', 1)"_s,
             }) {
            database_->Execute(statement);
        }
    }

    Recordset Open(const QString &sql) { return database_->OpenRecordset(sql); }

    /// The rows of a statement, cells parted by "|", rows by "/".
    QString Rows(const QString &sql) {
        Recordset rows = Open(sql);
        QStringList lines;
        for (; !rows.Eof(); rows.MoveNext()) {
            QStringList cells;
            for (int i = 0; i < int(rows.Fields().size()); ++i) {
                cells.append(rows.IsNull(i) ? u"NULL"_s : rows.Text(i));
            }
            lines.append(cells.join(u'|'));
        }
        return lines.join(u'/');
    }

    template <class Action>
    static int FaultOf(Action action) {
        try {
            action();
        } catch (const SqlError &error) {
            EXPECT_FALSE(error.Text().isEmpty());
            return error.Number();
        }
        return 0;
    }

    test::TestDatabase database_;
};

TEST_F(RecordsetTest, AnyRowIsReadWhereverTheCursorStands) {
    Recordset rows = Open(u"SELECT Title, Seen, Color, Notes FROM Films ORDER BY FilmID"_s);
    for (int turn = 0; turn < 3; ++turn) { // on the first row, on the second, at the end
        EXPECT_EQ(rows.TextAt(1, 0), u"Harbour");
        EXPECT_EQ(rows.TextAt(0, 1), u"2009-11-23 20:15:00");
        EXPECT_EQ(rows.TextAt(0, 2), u"True");
        EXPECT_TRUE(rows.GetAt(0, 3).IsNull());
        if (!rows.Eof()) {
            rows.MoveNext();
        }
    }
    for (const int row : {-1, 2}) {
        EXPECT_EQ(FaultOf([&] { rows.GetAt(row, 0); }), int(ErrorCode::NoCurrentRecord));
    }
    EXPECT_EQ(FaultOf([&] { rows.TextAt(0, 4); }), int(ErrorCode::ItemNotFound));
}

TEST_F(RecordsetTest, MovesToAnyRow) {
    Recordset rows = Open(u"SELECT Title FROM Films ORDER BY FilmID"_s);
    rows.MoveTo(1);
    EXPECT_EQ(rows.Text(0), u"Harbour"_s);
    rows.MoveTo(0);
    EXPECT_EQ(rows.Text(0), u"Mill"_s);
    for (const int row : {-1, 2}) {
        EXPECT_EQ(FaultOf([&] { rows.MoveTo(row); }), int(ErrorCode::NoCurrentRecord)) << row;
        EXPECT_EQ(rows.Text(0), u"Mill"_s) << "it stays where it was";
    }
}

TEST_F(RecordsetTest, ReadsValuesAndTheirTexts) {
    Recordset rows = Open(u"SELECT * FROM Films ORDER BY FilmID"_s);
    ASSERT_EQ(rows.RecordCount(), 2);
    EXPECT_FALSE(rows.IsEmpty());
    EXPECT_EQ(rows.Integer(u"filmid"), 1);
    EXPECT_EQ(rows.Text(u"FilmID"), u"1"_s);
    EXPECT_EQ(rows.Text(u"Seen"), u"2009-11-23 20:15:00"_s);
    EXPECT_DOUBLE_EQ(rows.Real(u"Seen"), 40140.84375);
    EXPECT_EQ(rows.Text(u"Price"), u"9.5"_s);
    EXPECT_TRUE(rows.Boolean(u"Color"));
    EXPECT_EQ(rows.Integer(u"Color"), -1);
    EXPECT_EQ(rows.Text(u"Color"), u"True"_s);
    EXPECT_TRUE(rows.IsNull(u"Notes"));
    EXPECT_EQ(rows.Text(u"Notes"), QString());
    rows.MoveNext();
    EXPECT_EQ(rows.Text(u"Seen"), u"2001-05-14"_s);
    EXPECT_EQ(rows.Text(u"Color"), u"False"_s);
    EXPECT_TRUE(rows.IsNull(u"Owner"));
    rows.MoveNext();
    EXPECT_TRUE(rows.Eof());
    rows.MoveFirst();
    EXPECT_EQ(rows.Text(u"Title"), u"Mill"_s);
}

TEST_F(RecordsetTest, TextsThatRepeatStandInMemoryOnce) {
    const Recordset rows = Open(u"SELECT a.A, b.Title FROM Loose a, Films b ORDER BY b.Title"_s);
    ASSERT_EQ(rows.RecordCount(), 4);
    EXPECT_EQ(rows.GetAt(0, 0).Text().constData(), rows.GetAt(3, 0).Text().constData());
    EXPECT_EQ(rows.GetAt(0, 1).Text().constData(), rows.GetAt(1, 1).Text().constData());
    EXPECT_EQ(rows.TextAt(1, 1) + rows.TextAt(2, 1), u"HarbourMill"_s);
}

TEST_F(RecordsetTest, FindsFieldsByLabelThenByTheEndOfALabel) {
    Recordset rows = Open(u"SELECT *, f.Title AS [Owner] FROM Films f INNER JOIN Loose l ON l.B = f.FilmID"_s);
    EXPECT_EQ(rows.Text(u"OWNER"), u"Mill"_s) << "an alias wins over fields of its name";
    EXPECT_EQ(rows.Text(u"f.Owner"), u"Ann"_s);
    Recordset twice = Open(u"SELECT a.FilmID, b.FilmID, a.Title FROM Films a, Films b WHERE a.FilmID < b.FilmID"_s);
    EXPECT_EQ(twice.Integer(u"FilmID"), 1) << "the first of two";
    EXPECT_EQ(twice.Integer(u"b.FilmID"), 2);
    EXPECT_EQ(twice.Ordinal(u"title"), 2);
    EXPECT_EQ(FaultOf([&] { twice.Ordinal(u"ilmID"); }), int(ErrorCode::ItemNotFound));
    EXPECT_EQ(FaultOf([&] { twice.Text(u"None"); }), int(ErrorCode::ItemNotFound));
    EXPECT_EQ(FaultOf([&] { twice.Ordinal(u""); }), int(ErrorCode::ItemNotFound));
    EXPECT_EQ(FaultOf([&] { twice.Get(3); }), int(ErrorCode::ItemNotFound));
    EXPECT_EQ(FaultOf([&] { twice.Get(-1); }), int(ErrorCode::ItemNotFound));
}

TEST_F(RecordsetTest, RefusesToReadAtTheEnd) {
    Recordset rows = Open(u"SELECT * FROM Films WHERE FilmID = 9"_s);
    EXPECT_TRUE(rows.Eof());
    EXPECT_TRUE(rows.IsEmpty());
    EXPECT_EQ(FaultOf([&] { rows.Get(0); }), int(ErrorCode::NoCurrentRecord));
    EXPECT_EQ(FaultOf([&] { rows.Text(u"Title"); }), int(ErrorCode::NoCurrentRecord));
    EXPECT_EQ(FaultOf([&] { rows.MoveNext(); }), int(ErrorCode::NoCurrentRecord));
    EXPECT_EQ(FaultOf([&] { rows.Edit(); }), int(ErrorCode::NoCurrentRecord));
    EXPECT_EQ(FaultOf([&] { rows.Delete(); }), int(ErrorCode::NoCurrentRecord));
    EXPECT_EQ(FaultOf([&] { rows.Set(u"Title", u"x"_s); }), int(ErrorCode::NotUpdatable));
}

TEST_F(RecordsetTest, AddsRows) {
    Recordset rows = Open(u"SELECT * FROM Films WHERE FilmID = 9"_s);
    rows.AddNew();
    rows.Set(u"FilmID", u"9"_s);
    rows.Set(u"title", u"A title of more than twelve"_s);
    rows.Set(u"Seen", u"2011-02-03 04:05:06"_s);
    rows.Set(u"Price", u"1.25"_s);
    rows.Set(u"Owner", u"ann"_s);
    rows.Update();
    EXPECT_TRUE(rows.Eof()) << "a result set does not grow";
    EXPECT_EQ(Rows(u"SELECT * FROM Films WHERE FilmID = 9"_s),
              u"9|A title of m|2011-02-03 04:05:06|1.25|False|ann|NULL"_s);
    rows.AddNew();
    rows.Set(u"FilmID", Value(10));
    rows.Set(u"Title", u"Given up"_s);
    rows.CancelUpdate();
    EXPECT_EQ(FaultOf([&] { rows.Update(); }), int(ErrorCode::NotUpdatable));
    EXPECT_EQ(database_->RecordCount(u"Films"), 3);
}

TEST_F(RecordsetTest, EditsTheCurrentRow) {
    Recordset rows = Open(u"SELECT Title, Seen, Color, Price FROM Films WHERE FilmID = 1"_s);
    rows.Edit();
    rows.Set(u"Title", u"MILL"_s);
    rows.Set(u"Color", u"False"_s);
    rows.Set(u"Seen", Value());
    rows.Set(u"Price", u"no number"_s);
    EXPECT_EQ(rows.Text(u"Title"), u"Mill"_s) << "nothing shows before Update";
    rows.Update();
    EXPECT_EQ(rows.Text(u"Title"), u"MILL"_s);
    EXPECT_FALSE(rows.Boolean(u"Color"));
    EXPECT_EQ(Rows(u"SELECT * FROM Films WHERE FilmID = 1"_s), u"1|MILL|NULL|NULL|False|Ann|NULL"_s);
    rows.Edit();
    rows.Update(); // nothing was set
    rows.Edit();
    rows.Set(0, u"x"_s);
    rows.MoveNext(); // gives the change up
    EXPECT_EQ(Rows(u"SELECT Title FROM Films WHERE FilmID = 1"_s), u"MILL"_s);
}

TEST_F(RecordsetTest, EditsTablesWithoutAKey) {
    Recordset rows = Open(u"SELECT * FROM Loose"_s);
    rows.MoveNext();
    rows.Edit();
    rows.Set(u"B", Value(2));
    rows.Update();
    EXPECT_EQ(Rows(u"SELECT * FROM Loose"_s), u"x|1/x|2"_s);
    rows.MoveFirst();
    rows.Delete();
    EXPECT_EQ(Rows(u"SELECT * FROM Loose"_s), u"x|2"_s);
}

TEST_F(RecordsetTest, DeletesAndStaysOnTheRow) {
    Recordset rows = Open(u"SELECT * FROM Films ORDER BY FilmID"_s);
    rows.Delete();
    EXPECT_EQ(database_->RecordCount(u"Films"), 1);
    EXPECT_EQ(FaultOf([&] { rows.Delete(); }), int(ErrorCode::KeyViolatesReference)) << "it is gone";
    rows.MoveNext();
    EXPECT_EQ(rows.Text(u"Title"), u"Harbour"_s);
    rows.Delete();
    EXPECT_EQ(database_->RecordCount(u"Films"), 0);
}

TEST_F(RecordsetTest, NamesTheRuleThatARowBreaks) {
    struct Row {
        QString sets; ///< Field=value, parted by ";"
        ErrorCode code;
    };
    const Row rows[] = {
        {u"FilmID=1;Title=x"_s, ErrorCode::DuplicateKey},
        {u"FilmID=5"_s, ErrorCode::NullNotAllowed},
        {u"Title=x"_s, ErrorCode::NullNotAllowed},
        {u"FilmID=soon;Title=x"_s, ErrorCode::NullNotAllowed},
        {u"FilmID=5;Title=x;Owner=Nobody"_s, ErrorCode::ParentMissing},
        {u"FilmID=5;Title=x;Owner="_s, ErrorCode::ParentMissing},
    };
    for (const Row &row : rows) {
        Recordset films = Open(u"SELECT * FROM Films WHERE FilmID = 2"_s);
        films.AddNew();
        for (const QString &set : row.sets.split(u';')) {
            films.Set(set.section(u'=', 0, 0), set.section(u'=', 1));
        }
        EXPECT_EQ(FaultOf([&] { films.Update(); }), int(row.code)) << row.sets.toStdString();
    }
    Recordset films = Open(u"SELECT * FROM Films WHERE FilmID = 2"_s);
    const auto edit = [&](const QString &field, const Value &value) {
        films.Edit();
        films.Set(field, value);
        return FaultOf([&] { films.Update(); });
    };
    EXPECT_EQ(edit(u"FilmID"_s, Value(1)), int(ErrorCode::DuplicateKey));
    EXPECT_EQ(edit(u"FilmID"_s, Value()), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(edit(u"Title"_s, Value()), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(edit(u"Owner"_s, u"Nobody"_s), int(ErrorCode::ParentMissing));
    EXPECT_EQ(edit(u"Owner"_s, u"BOB"_s), 0);
    EXPECT_EQ(Rows(u"SELECT FilmID, Title, Owner FROM Films"_s), u"1|Mill|Ann/2|Harbour|BOB"_s);
    Recordset owners = Open(u"SELECT * FROM Owners WHERE Name = 'Ann'"_s);
    EXPECT_EQ(FaultOf([&] { owners.Delete(); }), int(ErrorCode::KeyViolatesReference));
    owners.Edit();
    owners.Set(u"Name", u"Eve"_s);
    EXPECT_NE(FaultOf([&] { owners.Update(); }), 0);
    EXPECT_EQ(Rows(u"SELECT Name FROM Owners"_s), u"Ann/Bob"_s);
}

TEST_F(RecordsetTest, RefusesToChangeWhatIsNoRowOfATable) {
    for (const QString &sql :
         {u"SELECT DISTINCT * FROM Films"_s, u"SELECT COUNT(*) FROM Films"_s, u"SELECT 1"_s,
          u"SELECT Title FROM Films UNION SELECT Name FROM Owners"_s, u"SELECT * FROM Films, Owners"_s,
          u"SELECT Title FROM Films GROUP BY Title"_s, u"SELECT q.Title FROM (SELECT Title FROM Films) AS q"_s}) {
        Recordset rows = Open(sql);
        EXPECT_EQ(FaultOf([&] { rows.AddNew(); }), int(ErrorCode::NotUpdatable)) << sql.toStdString();
        EXPECT_EQ(FaultOf([&] { rows.Edit(); }), int(ErrorCode::NotUpdatable)) << sql.toStdString();
        EXPECT_EQ(FaultOf([&] { rows.Delete(); }), int(ErrorCode::NotUpdatable)) << sql.toStdString();
    }
    Recordset rows = Open(u"SELECT Title, UCase(Title) AS Upper FROM Films"_s);
    rows.Edit();
    EXPECT_EQ(FaultOf([&] { rows.Set(u"Upper", u"x"_s); }), int(ErrorCode::NotUpdatable));
    EXPECT_EQ(FaultOf([&] { rows.Set(5, u"x"_s); }), int(ErrorCode::ItemNotFound));
    EXPECT_EQ(FaultOf([&] { rows.Set(u"None", u"x"_s); }), int(ErrorCode::ItemNotFound));
}

TEST_F(RecordsetTest, RowsDoNotShiftWhileOthersAreWritten) {
    database_->Execute(u"CREATE INDEX byB ON Loose (B)");
    Recordset rows = Open(u"SELECT * FROM Loose WHERE B < 1000 ORDER BY B"_s);
    int walked = 0;
    for (; !rows.Eof() && walked < 100; rows.MoveNext(), ++walked) {
        rows.Edit();
        rows.Set(u"B", Value(rows.Integer(u"B") + 10)); // moves it behind in the index
        rows.Update();
        rows.AddNew();
        rows.Set(u"B", Value(20));
        rows.Update();
        database_->Execute(u"INSERT INTO Loose VALUES ('more', 30)");
    }
    EXPECT_EQ(walked, 2);
    EXPECT_EQ(database_->RecordCount(u"Loose"), 6);
    Recordset still = Open(u"SELECT * FROM Loose"_s);
    database_->Execute(u"DELETE FROM Loose");
    EXPECT_EQ(still.RecordCount(), 6);
    EXPECT_FALSE(still.IsNull(u"B"));
}

TEST_F(RecordsetTest, StatementsWithoutRowsGiveNoFields) {
    Recordset rows = Open(u"DELETE FROM Loose"_s);
    EXPECT_TRUE(rows.Fields().empty());
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ(FaultOf([&] { rows.AddNew(); }), int(ErrorCode::NotUpdatable));
    EXPECT_EQ(database_->RecordCount(u"Loose"), 0);
}

TEST_F(RecordsetTest, NamesTheRowIdApartFromTheColumns) {
    database_->Execute(u"CREATE TABLE Odd ([rowid] varchar, [oid] varchar, [_rowid_] varchar)");
    database_->Execute(u"INSERT INTO Odd VALUES ('a', 'b', 'c')");
    Recordset rows = Open(u"SELECT * FROM Odd"_s);
    EXPECT_EQ(rows.Text(u"rowid"), u"a"_s);
    EXPECT_EQ(FaultOf([&] { rows.Edit(); }), int(ErrorCode::NotUpdatable)) << "no name is left for the row's number";
    database_->Execute(u"CREATE TABLE Odd2 ([rowid] varchar, b integer)");
    database_->Execute(u"INSERT INTO Odd2 VALUES ('a', 1)");
    Recordset other = Open(u"SELECT * FROM Odd2"_s);
    other.Edit();
    other.Set(u"rowid", u"z"_s);
    other.Update();
    EXPECT_EQ(Rows(u"SELECT * FROM Odd2"_s), u"z|1"_s);
}

} // namespace

} // namespace ostrand::sql
