#include "queries/QueryVariables.h"

#include "database/DatabaseFunctions.h"
#include "queries/StatementWatch.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"

#include <QStringList>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kMostVariables = 100;

struct BuiltInName {
    QLatin1String name;
    QString value;
};

/// In one pass, so that a value is never taken for a name.
QString ReplaceBuiltInNames(const Session &session, const QString &col_type, const QString &statement) {
    // A name that begins with another one stands before it.
    const BuiltInName names[] = {
        {"OSV_CurrentIDIsEpisode"_L1, session.CurrentIsEpisode ? u"True"_s : u"False"_s},
        {"OSV_CurrentID"_L1, EscapeSql(session.CurrentProfileID)},
        {"OSV_CurrentSeriesID"_L1, EscapeSql(session.CurrentSeriesID)},
        {"OSV_CurrentColType"_L1, EscapeSql(col_type)},
    };
    QString result;
    for (qsizetype at = 0; at < statement.size();) {
        const QStringView rest = QStringView(statement).sliced(at);
        const auto *name = std::find_if(std::begin(names), std::end(names), [rest](const BuiltInName &candidate) {
            return rest.startsWith(candidate.name, Qt::CaseInsensitive);
        });
        if (name == std::end(names)) {
            result += rest[0];
            ++at;
        } else {
            result += name->value;
            at += name->name.size();
        }
    }
    return result;
}

struct Variable {
    QString name;
    QString value;
};

/// The names between pairs of "$", each once.
std::vector<Variable> FindVariables(const QString &sql) {
    std::vector<Variable> variables;
    const QStringList parts = sql.split(u'$');
    for (qsizetype i = 1; i + 1 < parts.size() && qsizetype(variables.size()) < kMostVariables; i += 2) {
        const bool known = std::any_of(variables.begin(), variables.end(),
                                       [&](const Variable &variable) { return variable.name == parts[i]; });
        if (!known) {
            variables.push_back({parts[i], {}});
        }
    }
    return variables;
}

/// The text between the two double quotes that follow the name in a declaration; empty without one.
QString DeclaredValues(const QStringList &declarations, const QString &name) {
    const QString marked = u'$' + name + u'$';
    for (const QString &declaration : declarations) {
        const qsizetype at = declaration.indexOf(marked);
        const qsizetype open = at < 0 ? -1 : declaration.indexOf(u'"', at + marked.size());
        const qsizetype close = open < 0 ? -1 : declaration.indexOf(u'"', open + 1);
        if (close >= 0) {
            return declaration.mid(open + 1, close - open - 1);
        }
    }
    return {};
}

QString AskForVariable(Session &session, const QString &name, const QString &list, bool &cancelled) {
    constexpr auto kSelect = "select"_L1;
    const QString prompt = Translate(session, u"Please enter the value for the variable"_s) + " '"_L1 + name + u'\'';
    const QString title = Translate(session, u"Enter Value For Variable"_s);
    if (list.isEmpty()) {
        return InputText(session, prompt, title, cancelled, {});
    }
    QStringList values = list.split(u'|'); // a value may hold the word by which the dialog knows a statement
    if (list.startsWith(kSelect, Qt::CaseInsensitive)) {
        std::optional<StatementWatch> watch; // it ends before the dialog opens
        if (session.Database) {
            watch.emplace(session);
        }
        values = ListedValues(session, kSelect + list.mid(kSelect.size()));
    }
    const std::optional<QString> answer = session.services.dialogs.InputCombo(prompt, title, values, {});
    cancelled = !answer;
    return answer.value_or(QString());
}

/// Puts the values in, in one pass, so that a value which holds "$" stays as it was entered.
QString InsertValues(const QString &sql, const std::vector<Variable> &variables) {
    const QStringList parts = sql.split(u'$');
    QString result = parts[0];
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const bool is_name = i % 2 == 1 && i + 1 < parts.size();
        const auto variable = std::find_if(variables.begin(), variables.end(), [&](const Variable &candidate) {
            return is_name && candidate.name == parts[i];
        });
        if (variable == variables.end()) {
            result += u'$' + parts[i];
        } else {
            result += EscapeSql(variable->value) + parts[++i];
        }
    }
    return result;
}

} // namespace

QString NormalizeSqlBooleans(QString statement) {
    for (const auto text : {"'true'"_L1, "'True'"_L1, "'yes'"_L1, "'X'"_L1, "'x'"_L1}) {
        statement.replace(text, "True"_L1);
    }
    for (const auto text : {"'false'"_L1, "'False'"_L1, "'no'"_L1}) {
        statement.replace(text, "False"_L1);
    }
    return statement;
}

QString ResolveQueryVariables(Session &session, const QString &current_col_type, const QString &statement,
                              bool &cancelled) {
    cancelled = false;
    // A ";" inside a text of the statement cuts it too, deliberately.
    QStringList pieces = ReplaceBuiltInNames(session, current_col_type, statement).split(u';');
    const QString sql = pieces.takeFirst();
    std::vector<Variable> variables = FindVariables(sql);
    for (Variable &variable : variables) {
        variable.value = AskForVariable(session, variable.name, DeclaredValues(pieces, variable.name), cancelled);
        if (cancelled) {
            return {};
        }
    }
    return NormalizeSqlBooleans(InsertValues(sql, variables));
}

} // namespace ostrand
