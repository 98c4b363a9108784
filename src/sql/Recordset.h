// The rows of a statement, read whole when it is opened.
#pragma once

#include "sql/Types.h"
#include "sql/Value.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

namespace ostrand::sql {

class Database;

struct Field {
    QString label; ///< alias, bare name, `p.Name` where a name stands twice, or Expr1000 and up
    Kind kind = Kind::Text;
};

/// A result set with a cursor. A fresh one stands on its first row, or at the end when it is empty.
///
/// Fields are named by their exact label, else by the first label that ends in ".name", without regard to case; an
/// unknown name throws SqlError (ItemNotFound). Reading at the end throws NoCurrentRecord.
///
/// Editing works on rows of one table (no DISTINCT, GROUP BY, UNION): AddNew or Edit, then Set, then Update. The
/// result set itself does not change its rows by AddNew; Edit and Delete show in it.
class Recordset {
public:
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&) noexcept;
    ~Recordset();

    bool Eof() const;
    void MoveNext();
    void MoveFirst();
    /// To any row, counted from 0; throws NoCurrentRecord for one that is not there.
    void MoveTo(int row);
    int RecordCount() const;
    bool IsEmpty() const { return RecordCount() == 0; }

    const std::vector<Field> &Fields() const;
    /// The place of a field, for reading many rows; throws on an unknown name.
    int Ordinal(QStringView name) const;
    /// The same; -1 for an unknown name.
    int FindOrdinal(QStringView name) const;

    const Value &Get(int ordinal) const;
    const Value &Get(QStringView name) const { return Get(Ordinal(name)); }
    bool IsNull(int ordinal) const { return Get(ordinal).IsNull(); }
    bool IsNull(QStringView name) const { return Get(name).IsNull(); }
    /// The value joined to the empty string: NULL is "", truth values "True" and "False", dates "yyyy-mm-dd" with
    /// " hh:nn:ss" behind where there is a time, numbers with a point as decimal mark.
    QString Text(int ordinal) const;
    QString Text(QStringView name) const { return Text(Ordinal(name)); }
    /// Any row, counted from 0, wherever the cursor stands; throws NoCurrentRecord for one that is not there.
    const Value &GetAt(int row, int ordinal) const;
    QString TextAt(int row, int ordinal) const;
    qint64 Integer(QStringView name) const { return Get(name).Integer(); }
    double Real(QStringView name) const { return Get(name).Real(); }
    bool Boolean(QStringView name) const { return Get(name).Integer() != 0; }

    /// Begins a new row, all columns NULL (truth values False).
    void AddNew();
    /// Begins a change of the current row.
    void Edit();
    /// Sets a field of the row begun; a text is converted to the column's kind as INSERT does it.
    void Set(QStringView name, const Value &value);
    void Set(int ordinal, const Value &value);
    /// Writes the row begun. Throws where it breaks a key, a NOT NULL or a reference (DuplicateKey, NullNotAllowed,
    /// ParentMissing); nothing is changed then.
    void Update();
    void CancelUpdate();
    /// Deletes the current row and leaves the cursor on it; MoveNext goes on.
    void Delete();

private:
    friend class Database;
    struct Data;
    explicit Recordset(std::unique_ptr<Data> data);
    std::unique_ptr<Data> data_;
};

} // namespace ostrand::sql
