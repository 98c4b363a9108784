#include "collection_files/Rows.h"

#include "collection_files/ImportProfile.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

using namespace Qt::StringLiterals;

namespace ostrand {

RowValue::RowValue(const QString &text) : sql_(u'\'' + EscapeSql(text) + u'\'') {}
RowValue::RowValue(int number) : sql_(u'\'' + QString::number(number) + u'\'') {}
RowValue::RowValue(bool truth) : sql_(truth ? u"true"_s : u"false"_s) {}

RowValue RowValue::Null() {
    RowValue value(false);
    value.sql_ = u"NULL"_s;
    return value;
}

RowValue RowValue::TextOrNull(const QString &text) {
    return text.isEmpty() ? Null() : RowValue(text);
}

void InsertRow(Session &session, QLatin1String table, std::initializer_list<ColumnValue> values) {
    QString columns;
    QString texts;
    for (const ColumnValue &value : values) {
        columns += (columns.isEmpty() ? u""_s : u", "_s) + value.column;
        texts += (texts.isEmpty() ? u""_s : u", "_s) + value.value.Sql();
    }
    session.Database->Execute(QString(u"INSERT INTO "_s + table + u" ("_s + columns + u") VALUES ("_s + texts + u')'));
}

void DeleteRows(const ImportProfile &profile, QLatin1String table, QLatin1String key_column) {
    if (profile.may_have_rows) {
        profile.GetSession().Database->Execute(QString(u"DELETE FROM "_s + table + u" WHERE "_s + key_column +
                                                       u" = '"_s + EscapeSql(profile.key) + u'\''));
    }
}

void StoreMetaInfo(const ImportProfile &profile, const QString &name, const QString &value) {
    if (profile.may_have_rows || !value.isEmpty()) {
        WriteMetaInfo(profile.GetSession(), profile.key, name, value);
    }
}

} // namespace ostrand
