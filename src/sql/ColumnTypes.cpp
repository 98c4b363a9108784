#include "sql/ColumnTypes.h"

#include "sql/SqlError.h"

namespace ostrand::sql {

namespace {

struct TypeWord {
    QStringView word;
    Kind kind;
};

constexpr TypeWord kTypeWords[] = {
    {u"varchar", Kind::Text},    {u"text", Kind::Text},         {u"char", Kind::Text},     {u"character", Kind::Text},
    {u"string", Kind::Text},     {u"alphanumeric", Kind::Text}, {u"nvarchar", Kind::Text}, {u"memo", Kind::Memo},
    {u"longtext", Kind::Memo},   {u"note", Kind::Memo},         {u"longchar", Kind::Memo}, {u"integer", Kind::Integer},
    {u"long", Kind::Integer},    {u"int", Kind::Integer},       {u"short", Kind::Integer}, {u"smallint", Kind::Integer},
    {u"byte", Kind::Integer},    {u"yesno", Kind::Boolean},     {u"bit", Kind::Boolean},   {u"logical", Kind::Boolean},
    {u"boolean", Kind::Boolean}, {u"date", Kind::Date},         {u"datetime", Kind::Date}, {u"time", Kind::Date},
    {u"timestamp", Kind::Date},  {u"numeric", Kind::Real},      {u"double", Kind::Real},   {u"float", Kind::Real},
    {u"real", Kind::Real},       {u"single", Kind::Real},       {u"currency", Kind::Real}, {u"money", Kind::Real},
    {u"decimal", Kind::Real},    {u"number", Kind::Real},
};

constexpr int kTextLength = 255;

} // namespace

std::optional<Kind> KindOfTypeWord(QStringView word) {
    for (const TypeWord &known : kTypeWords) {
        if (known.word.compare(word, Qt::CaseInsensitive) == 0) {
            return known.kind;
        }
    }
    return std::nullopt;
}

ColumnInfo ColumnOfDefinition(const ast::ColumnDef &definition) {
    const std::optional<Kind> kind = KindOfTypeWord(definition.type_word);
    if (!kind) {
        throw SqlError(
            ErrorCode::UnknownType,
            QStringLiteral("The type '%1' of field '%2' is not known.").arg(definition.type_word, definition.name),
            definition.position);
    }
    ColumnInfo column;
    column.name = definition.name;
    column.kind = *kind;
    column.not_null = definition.not_null && *kind != Kind::Boolean;
    if (*kind == Kind::Text && definition.length > kTextLength) {
        throw SqlError(ErrorCode::FieldTooLong,
                       QStringLiteral("The field '%1' is too long; a text takes up to %2 characters.")
                           .arg(definition.name)
                           .arg(kTextLength),
                       definition.position);
    }
    if (*kind == Kind::Text) {
        column.length = definition.length > 0 ? definition.length : kTextLength;
    }
    return column;
}

} // namespace ostrand::sql
