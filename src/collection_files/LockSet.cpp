#include "collection_files/LockSet.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

using namespace Qt::StringLiterals;

namespace ostrand {

LockSet::LockSet(Session &session, const QString &id) {
    sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT LockName FROM Locks WHERE ProfileID = '"_s + EscapeSql(id) + u'\''));
    for (; !rows.Eof(); rows.MoveNext()) {
        names_.insert(rows.Text(0).toLower());
    }
}

} // namespace ostrand
