// Faults of a statement or of a database file.
#pragma once

#include <QString>

#include <exception>

namespace ostrand::sql {

/// Numbers of the faults, in the numbering that users of the dialect know.
enum class ErrorCode {
    InvalidProcedureCall = 5,
    Overflow = 6,
    DivisionByZero = 11,
    TypeMismatch = 13,
    CannotOpenDatabase = 3024,
    DuplicateKey = 3022,
    ReadOnly = 3027,
    DiskError = 3043,
    DiskFull = 3183,
    DatabaseExists = 3204,
    NoCurrentRecord = 3021,
    Interrupted = 3059,
    CannotLock = 3260,
    TableExists = 3010,
    ParametersExpected = 3061,
    DuplicateOutputField = 3063,
    Syntax = 3075,
    UnknownTable = 3078,
    AmbiguousField = 3079,
    UndefinedFunction = 3085,
    InvalidPattern = 3093,
    AggregateInWhere = 3096,
    CircularAlias = 3103,
    NotInAggregate = 3122,
    InvalidStatement = 3129,
    FromSyntax = 3131,
    GroupBySyntax = 3132,
    InsertSyntax = 3134,
    JoinSyntax = 3135,
    OrderBySyntax = 3138,
    SelectSyntax = 3141,
    TextAfterStatement = 3142,
    UpdateSyntax = 3144,
    WhereSyntax = 3145,
    KeyViolatesReference = 3200,
    ParentMissing = 3201,
    FieldTooLong = 3163,
    ItemNotFound = 3265,
    FieldIndexed = 3280,
    UsedByReference = 3281,
    PrimaryKeyExists = 3283,
    DdlSyntax = 3290,
    UnknownType = 3292,
    NullNotAllowed = 3314,
    UnionColumnCount = 3307,
    InvalidSubquery = 3306,
    WrongValueCount = 3346,
    TooManyRows = 3354,
    TooComplex = 3360,
    IndexNotFound = 3372,
    IndexExists = 3375,
    FieldExists = 3380,
    FieldNotFound = 3381,
    NotADatabase = 3343,
    Damaged = 3049,
    CriteriaTypeMismatch = 3464,
    NotUpdatable = 3326,
    Internal = 3000,
};

/// A fault with its number, a text that a user can read, and the position in the statement's text where it was
/// noticed (UTF-16 units from 0), or -1 where no position can be told.
class SqlError : public std::exception {
public:
    SqlError(ErrorCode code, QString text, int position = -1) :
        code_(code), text_(std::move(text)), utf8_(text_.toStdString()), position_(position) {}

    ErrorCode Code() const { return code_; }
    int Number() const { return int(code_); }
    const QString &Text() const { return text_; }
    int Position() const { return position_; }
    const char *what() const noexcept override { return utf8_.c_str(); }

private:
    ErrorCode code_;
    QString text_;
    std::string utf8_;
    int position_;
};

} // namespace ostrand::sql
