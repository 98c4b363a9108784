#include "sql/Recordset.h"

#include "sql/Conversion.h"
#include "sql/DatabaseImpl.h"
#include "sql/SqlError.h"

namespace ostrand::sql {

namespace {

void RequireField(int ordinal, int count) {
    if (ordinal < 0 || ordinal >= count) {
        throw SqlError(ErrorCode::ItemNotFound, QStringLiteral("The result has no field %1.").arg(ordinal));
    }
}

SqlError NoRow() {
    return {ErrorCode::NoCurrentRecord, QStringLiteral("There is no current record.")};
}

Kind KindOf(const Value &value) {
    switch (value.GetType()) {
    case Value::Type::Null:
        return Kind::Null;
    case Value::Type::Integer:
        return Kind::Integer;
    case Value::Type::Real:
        return Kind::Real;
    case Value::Type::Text:
        break;
    }
    return Kind::Text;
}

} // namespace

int ResultShape::Find(QStringView name) const {
    for (size_t i = 0; i < fields.size(); ++i) {
        const QString &label = fields[i].label;
        if (label.size() == name.size() && name.compare(label, Qt::CaseInsensitive) == 0) {
            return int(i);
        }
    }
    for (size_t i = 0; i < fields.size(); ++i) {
        const QString &label = fields[i].label;
        const qsizetype point = label.size() - name.size() - 1;
        if (point > 0 && label[point] == u'.' && label.endsWith(name, Qt::CaseInsensitive)) {
            return int(i);
        }
    }
    return -1;
}

Recordset::Recordset(std::unique_ptr<Data> data) : data_(std::move(data)) {}
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::Eof() const {
    return data_->current >= data_->rows;
}

void Recordset::MoveNext() {
    if (Eof()) {
        throw NoRow();
    }
    CancelUpdate();
    ++data_->current;
}

void Recordset::MoveFirst() {
    CancelUpdate();
    data_->current = 0;
}

void Recordset::MoveTo(int row) {
    if (row < 0 || row >= data_->rows) {
        throw NoRow();
    }
    CancelUpdate();
    data_->current = row;
}

int Recordset::RecordCount() const {
    return data_->rows;
}
const std::vector<Field> &Recordset::Fields() const {
    return data_->shape->fields;
}

int Recordset::Ordinal(QStringView name) const {
    const int ordinal = data_->shape->Find(name);
    if (ordinal < 0) {
        throw SqlError(ErrorCode::ItemNotFound, QStringLiteral("The result has no field '%1'.").arg(name));
    }
    return ordinal;
}

int Recordset::FindOrdinal(QStringView name) const {
    return data_->shape->Find(name);
}

const Value &Recordset::Get(int ordinal) const {
    return GetAt(data_->current, ordinal);
}

QString Recordset::Text(int ordinal) const {
    return TextAt(data_->current, ordinal);
}

const Value &Recordset::GetAt(int row, int ordinal) const {
    if (row < 0 || row >= data_->rows) {
        throw NoRow();
    }
    RequireField(ordinal, data_->columns);
    return data_->cells[size_t(row) * size_t(data_->columns) + size_t(ordinal)];
}

QString Recordset::TextAt(int row, int ordinal) const {
    const Value &value = GetAt(row, ordinal);
    switch (value.GetType()) {
    case Value::Type::Null:
        return {};
    case Value::Type::Text:
        return value.Text();
    case Value::Type::Integer:
    case Value::Type::Real:
        break;
    }
    const Kind kind = data_->shape->fields[size_t(ordinal)].kind;
    if (kind == Kind::Boolean) {
        return value.Integer() != 0 ? QStringLiteral("True") : QStringLiteral("False");
    }
    if (kind == Kind::Date) {
        return DateToText(value.Real());
    }
    return value.GetType() == Value::Type::Integer ? QString::number(value.Integer()) : NumberToText(value.Real());
}

void Recordset::AddNew() {
    if (data_->shape->table.isEmpty()) {
        throw SqlError(ErrorCode::NotUpdatable, QStringLiteral("This result cannot be changed."));
    }
    data_->editing = Data::Editing::New;
    data_->pending.assign(data_->shape->fields.size(), std::nullopt);
}

void Recordset::Edit() {
    AddNew();
    data_->editing = Data::Editing::Current;
    if (Eof()) {
        CancelUpdate();
        throw NoRow();
    }
}

void Recordset::CancelUpdate() {
    data_->editing = Data::Editing::None;
}

void Recordset::Set(QStringView name, const Value &value) {
    Set(Ordinal(name), value);
}

void Recordset::Set(int ordinal, const Value &value) {
    if (data_->editing == Data::Editing::None) {
        throw SqlError(ErrorCode::NotUpdatable, QStringLiteral("No change of this row was begun."));
    }
    RequireField(ordinal, int(data_->pending.size()));
    const ColumnInfo *info = data_->database->PlanOf(data_->shape).Column(ordinal);
    if (!info) {
        throw SqlError(
            ErrorCode::NotUpdatable,
            QStringLiteral("The field '%1' cannot be changed.").arg(data_->shape->fields[size_t(ordinal)].label));
    }
    data_->pending[size_t(ordinal)] =
        ConvertForColumn(value, KindOf(value), info->kind, info->length, data_->database->environment);
}

void Recordset::Update() {
    if (data_->editing == Data::Editing::None) {
        throw SqlError(ErrorCode::NotUpdatable, QStringLiteral("No change of this row was begun."));
    }
    const bool is_new = data_->editing == Data::Editing::New;
    data_->database->PlanOf(data_->shape).RequireKey(is_new, data_->pending);
    const bool any = std::any_of(data_->pending.begin(), data_->pending.end(),
                                 [](const std::optional<Value> &value) { return value.has_value(); });
    if (!is_new && !any) {
        CancelUpdate();
        return;
    }
    const int changes = data_->database->RunRowEdit(*data_);
    if (changes == 0) {
        // The rules of the schema let a row fall without a word; here a word is due.
        throw SqlError(ErrorCode::ParentMissing,
                       QStringLiteral("The row is gone, or a reference between tables does not allow the change."));
    }
    if (!is_new) {
        for (size_t i = 0; i < data_->pending.size(); ++i) {
            if (data_->pending[i]) {
                data_->cells[size_t(data_->current) * size_t(data_->columns) + i] = *data_->pending[i];
            }
        }
    }
    CancelUpdate();
}

void Recordset::Delete() {
    if (data_->shape->table.isEmpty()) {
        throw SqlError(ErrorCode::NotUpdatable, QStringLiteral("This result cannot be changed."));
    }
    if (Eof()) {
        throw NoRow();
    }
    const QString sql =
        QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(QuoteName(data_->shape->table), data_->shape->row_id);
    if (data_->database->RunEdit(sql, {Value(data_->row_ids[size_t(data_->current)])}) == 0) {
        throw SqlError(ErrorCode::KeyViolatesReference,
                       QStringLiteral("The row is gone, or rows of another table refer to it."));
    }
}

} // namespace ostrand::sql
