#include "database/ChangeField.h"

#include "audit/Audit.h"
#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "database/TitleLocks.h"
#include "shell/Session.h"
#include "sql/Conversion.h"

#include <cmath>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The date that stands for none.
constexpr auto kNoDate = "1899-12-30"_L1;

QString Quoted(const QString &text) {
    return u'\'' + EscapeSql(text) + u'\'';
}

QString OfTitle(const FieldChange &change, const QString &id) {
    return (change.is_episode ? u" WHERE EpisodeID = "_s : u" WHERE ProfileID = "_s) + Quoted(id);
}

QString TableOf(const FieldChange &change) {
    return change.is_episode ? u"Episodes"_s : u"Profiles"_s;
}

QStringList ShownChoices(Session &session, const FieldChange &change) {
    if (change.answer == FieldChange::Answer::Value) {
        return change.choices;
    }
    QStringList shown;
    for (const QString &choice : change.choices) {
        shown += Translate(session, choice);
    }
    return shown;
}

/// A stored value as the user sees it in the question.
QString ShownValue(Session &session, const FieldChange &change, const QString &stored) {
    switch (change.answer) {
    case FieldChange::Answer::Translated:
        return Translate(session, stored);
    case FieldChange::Answer::Choice:
        return ShownChoices(session, change).value(stored.toInt() - 1);
    case FieldChange::Answer::Value:
        break;
    }
    return stored == kNoDate ? QString() : stored;
}

/// What the answer stands for; numbers and dates are still texts.
QString StoredText(Session &session, const FieldChange &change, const QString &answer) {
    switch (change.answer) {
    case FieldChange::Answer::Translated: {
        const qsizetype choice = ShownChoices(session, change).indexOf(answer);
        return choice < 0 ? ReverseTranslate(session, answer) : change.choices[choice];
    }
    case FieldChange::Answer::Choice: {
        const qsizetype choice = ShownChoices(session, change).indexOf(answer);
        return choice < 0 ? answer : QString::number(choice + 1);
    }
    case FieldChange::Answer::Value:
        break;
    }
    return answer;
}

std::optional<QString> NumberExpression(const QString &text, bool whole, QChar decimal_mark) {
    const QString number = text.trimmed();
    if (number.isEmpty()) {
        return u"Null"_s;
    }
    bool ok = false;
    if (whole) {
        number.toInt(&ok);
        return ok ? std::optional(number) : std::nullopt;
    }
    const std::optional<double> value = sql::TextToNumber(number, decimal_mark);
    return value ? std::optional(sql::NumberToText(*value)) : std::nullopt;
}

std::optional<QString> DateExpression(const QString &text, QChar decimal_mark) {
    if (text.trimmed().isEmpty()) {
        return Quoted(kNoDate);
    }
    // A number reads as a count of days, which nobody means who types a year.
    const std::optional<double> date =
        sql::TextToNumber(text, decimal_mark) ? std::nullopt : sql::TextToDate(text, decimal_mark);
    return date && *date == std::floor(*date) ? std::optional(Quoted(sql::DateToText(*date))) : std::nullopt;
}

/// The value as it stands in a statement; nothing for one that the column cannot hold.
std::optional<QString> Expression(const Session &session, const FieldChange &change, sql::Kind kind,
                                  const QString &text) {
    const QChar decimal_mark = session.Database->GetEnvironment().decimal_mark;
    if (change.required && text.trimmed().isEmpty()) {
        return std::nullopt;
    }
    if (change.answer == FieldChange::Answer::Choice && !text.isEmpty()) {
        const int choice = text.toInt();
        return choice >= 1 && choice <= change.choices.size() ? std::optional(QString::number(choice)) : std::nullopt;
    }
    if (sql::IsNumber(kind)) {
        return NumberExpression(text, kind == sql::Kind::Integer, decimal_mark);
    }
    return kind == sql::Kind::Date ? DateExpression(text, decimal_mark) : Quoted(text);
}

void Write(Session &session, const FieldChange &change, const QString &id, const QString &value) {
    WriteTogether(session, [&] {
        if (session.view.AutoLock && !change.lock_name.isEmpty()) {
            SetLock(session, id, change.lock_name);
        }
        session.Database->Execute(QString(u"UPDATE "_s + TableOf(change) + u" SET "_s + change.field + u" = "_s +
                                          value + OfTitle(change, id)));
        if (!change.is_episode) {
            MarkEdited(session, id);
        }
    });
    if (change.is_episode) {
        Audit::AuditUpdateEpisode(session, id, u"Update Episode Value "_s + change.field);
    } else {
        Audit::AuditUpdateProfile(session, id, u"Update Value "_s + change.field);
    }
}

std::optional<QString> AskForValue(Session &session, const FieldChange &change, const QString &preset) {
    const QString label = Translate(session, change.label);
    const QString prompt = Translate(session, u"Enter new value for"_s) + u' ' + label;
    if (change.choices.isEmpty()) {
        return session.services.dialogs.InputText(prompt, label, preset);
    }
    return session.services.dialogs.InputCombo(prompt, label, ShownChoices(session, change), preset);
}

void TellInvalid(Session &session, const FieldChange &change) {
    ShowMessage(session, {.text = Translate(session, u"The data you have entered is invalid for"_s) + u' ' +
                                  Translate(session, change.label),
                          .title = Translate(session, u"Invalid Input!"_s),
                          .icon = MessageIcon::Warning});
}

} // namespace

QStringList DistinctValues(Session &session, const QString &column) {
    QStringList values;
    sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT DISTINCT "_s + column + u" FROM Profiles ORDER BY "_s + column));
    for (; !rows.Eof(); rows.MoveNext()) {
        if (const QString value = rows.Text(0); !value.isEmpty()) {
            values += value;
        }
    }
    return values;
}

bool ChangeField(Session &session, const FieldChange &change) {
    const QString id = session.CurrentProfileID;
    if (id.isEmpty() || !session.Database) {
        return false;
    }
    QString stored;
    sql::Kind kind = sql::Kind::Text;
    {
        const sql::Recordset record =
            session.Database->OpenRecordset(QString(u"SELECT * FROM "_s + TableOf(change) + OfTitle(change, id)));
        if (record.Eof()) {
            return false;
        }
        const int ordinal = record.Ordinal(change.field);
        stored = record.Text(ordinal);
        kind = record.Fields()[size_t(ordinal)].kind;
    }
    const QString current = ShownValue(session, change, stored);
    const std::optional<QString> answer = AskForValue(session, change, current);
    if (!answer || *answer == current) {
        return false;
    }
    const std::optional<QString> value = Expression(session, change, kind, StoredText(session, change, *answer));
    if (!value) {
        TellInvalid(session, change);
        return false;
    }
    Write(session, change, id, *value);
    return true;
}

} // namespace ostrand
