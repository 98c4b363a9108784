#include "shell/Dialogs.h"

#include "shell/Session.h"

namespace ostrand {

namespace {

QStringList FirstFields(Session &session, const QString &statement) {
    QStringList values;
    if (!session.Database) {
        throw sql::SqlError(sql::ErrorCode::CannotOpenDatabase, QStringLiteral("No database is open."));
    }
    for (sql::Recordset rows = session.Database->OpenRecordset(statement); !rows.Eof(); rows.MoveNext()) {
        values.append(rows.Text(0));
    }
    return values;
}

QString Answer(const std::optional<QString> &answer, bool &cancelled) {
    cancelled = !answer;
    return answer.value_or(QString());
}

} // namespace

QStringList ListedValues(Session &session, const QString &list) {
    if (!list.contains(QStringLiteral("select"))) {
        return list.split(u'|');
    }
    try {
        return FirstFields(session, list);
    } catch (const sql::SqlError &error) {
        Trace(session, QStringLiteral("InputCombo: ") + error.Text(), kTraceError);
        ShowMessage(session, {.text = Translate(session, QStringLiteral("An Error occured")),
                              .title = {},
                              .icon = MessageIcon::Critical});
        return {};
    }
}

QString InputCombo(Session &session, const QString &prompt, const QString &title, bool &cancelled, const QString &list,
                   const QString &preset) {
    if (list.isEmpty()) {
        return InputText(session, prompt, title, cancelled, preset);
    }
    const QStringList values = ListedValues(session, list);
    return Answer(session.services.dialogs.InputCombo(prompt, title, values, preset), cancelled);
}

QString InputText(Session &session, const QString &prompt, const QString &title, bool &cancelled,
                  const QString &preset) {
    return Answer(session.services.dialogs.InputText(prompt, title, preset), cancelled);
}

} // namespace ostrand
