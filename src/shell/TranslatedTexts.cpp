#include "shell/TranslatedTexts.h"

#include "database/TextBatches.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

TranslatedTexts::TranslatedTexts(Session &session, const QStringList &texts) {
    if (!session.Database || !session.UseUserDefinedStrings) {
        return;
    }
    QStringList wanted = texts;
    wanted.removeAll(QString());
    wanted.removeDuplicates();
    try {
        ForEachRowOf(session,
                     QStringLiteral("SELECT OriginalString, UserString FROM Translation WHERE OriginalString IN "),
                     wanted, [this](const sql::Recordset &row) {
                         const QByteArray key = sql::SortKey(row.Text(0));
                         if (!translated_.contains(key)) {
                             translated_.insert(key, row.Text(1));
                         }
                     });
    } catch (const sql::SqlError &) {
        return;
    }
    if (session.TraceStrings) {
        for (const QString &text : wanted) {
            if (!translated_.contains(sql::SortKey(text))) {
                Translate(session, text); // records it for the translator
            }
        }
    }
}

QString TranslatedTexts::operator()(const QString &text) const {
    if (translated_.isEmpty()) {
        return text;
    }
    const QString found = translated_.value(sql::SortKey(text));
    return found.isEmpty() ? text : found;
}

} // namespace ostrand
