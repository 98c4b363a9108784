#include "database/TextBatches.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <bit>

namespace ostrand {

namespace {

constexpr qsizetype kBatch = 256;

} // namespace

void ForEachRowOf(Session &session, const QString &statement, QStringList texts,
                  const std::function<void(const sql::Recordset &row)> &take) {
    texts.removeDuplicates();
    for (qsizetype from = 0; from < texts.size(); from += kBatch) {
        const QStringList batch = texts.mid(from, kBatch);
        // A statement is prepared once for its shape: lists of a few lengths only, filled with a text that they hold.
        const auto places = qsizetype(std::bit_ceil(size_t(batch.size())));
        QString list;
        for (qsizetype i = 0; i < places; ++i) {
            list += i == 0 ? u"('" : u", '";
            list += EscapeSql(batch[std::min(i, batch.size() - 1)]) + u'\'';
        }
        sql::Recordset rows = session.Database->OpenRecordset(QString(statement + list + u')'));
        for (; !rows.Eof(); rows.MoveNext()) {
            take(rows);
        }
    }
}

} // namespace ostrand
