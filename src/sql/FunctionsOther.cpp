// Questions about values, Partition, and the functions that the emitter turns into SQL.

#include "sql/Call.h"

#include <QByteArray>

#include <limits>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

void Never(Call &call) {
    call.ReturnTruth(false);
}

QString PartitionText(const QString &low, const QString &high, qsizetype width) {
    return low.rightJustified(width) + u':' + high.rightJustified(width);
}

/// The range "low:high" of equal steps from start to stop into which a number falls.
void Partition(Call &call) {
    const qint64 number = call.Long(0);
    const qint64 start = call.Long(1);
    const qint64 stop = call.Long(2);
    const qint64 step = call.Long(3);
    if (start < 0 || stop <= start || step < 1) {
        RaiseInvalidCall();
    }
    const QString before = QString::number(start - 1);
    const QString behind = QString::number(stop + 1);
    const qsizetype width = std::max(before.size(), behind.size());
    if (number < start) {
        return call.Return(PartitionText(QString(), before, width));
    }
    if (number > stop) {
        return call.Return(PartitionText(behind, QString(), width));
    }
    const qint64 low = start + (number - start) / step * step;
    const qint64 high = std::min(low + step - 1, stop);
    call.Return(PartitionText(QString::number(low), QString::number(high), width));
}

void VarType(Call &call) {
    constexpr qint64 kNull = 1;
    constexpr qint64 kLong = 3;
    constexpr qint64 kDouble = 5;
    constexpr qint64 kString = 8;
    call.Return(call.IsNull(0) ? kNull : call.IsText(0) ? kString : call.IsInteger(0) ? kLong : kDouble);
}

void TypeName(Call &call) {
    call.Return(call.IsNull(0)      ? u"Null"_s
                : call.IsText(0)    ? u"String"_s
                : call.IsInteger(0) ? u"Long"_s
                                    : u"Double"_s);
}

constexpr Function kOtherFunctions[] = {
    {{"isnull", 1, 1, ResultRule::Special}, nullptr},
    {{"nz", 1, 2, ResultRule::Special}, nullptr},
    {{"iif", 3, 3, ResultRule::Special}, nullptr},
    {{"switch", 2, -1, ResultRule::Special}, nullptr},
    {{"choose", 2, -1, ResultRule::Special}, nullptr},
    {{"cvar", 1, 1, ResultRule::Special}, nullptr},
    {{"isempty", 1, 1, ResultRule::Boolean}, Never, OnNull::IsPassedOn},
    {{"iserror", 1, 1, ResultRule::Boolean}, Never, OnNull::IsPassedOn},
    {{"isobject", 1, 1, ResultRule::Boolean}, Never, OnNull::IsPassedOn},
    {{"partition", 4, 4, ResultRule::Text}, Partition},
    {{"vartype", 1, 1, ResultRule::Integer}, VarType, OnNull::IsPassedOn},
    {{"typename", 1, 1, ResultRule::Text}, TypeName, OnNull::IsPassedOn},
};

} // namespace

std::span<const Function> OtherFunctions() {
    return kOtherFunctions;
}

} // namespace ostrand::sql
