#include "Arguments.h"

#include "services/SystemServices.h"

namespace ostrand::batch {

namespace {

struct Option {
    const char *name;
    const char *value; ///< what its value is called; null for an option without one
    const char *help;
    void (*apply)(Arguments &arguments, const QString &value);
};

void SetFormat(Arguments &arguments, const QString &value) {
    arguments.format = ParseSqlFormat(value);
    if (!arguments.format) {
        arguments.fault = QStringLiteral("There is no format \"%1\".").arg(value);
    }
}

void SetLocale(Arguments &arguments, const QString &value) {
    arguments.locale = value;
    if (value != QStringLiteral("C") && !SystemLocaleInfo::IsKnown(value)) {
        arguments.fault = QStringLiteral("There is no locale \"%1\".").arg(value);
    }
}

void SetAnswer(Arguments &arguments, bool answer) {
    if (arguments.answer && *arguments.answer != answer) {
        arguments.fault = QStringLiteral("--yes and --no exclude each other.");
    }
    arguments.answer = answer;
}

void SetSqlFile(Arguments &arguments, const QString &value) {
    arguments.sql = true;
    arguments.sql_file = value;
}

using A = Arguments;
constexpr Option kOptions[] = {
    {"--help", nullptr, "shows this text", [](A &a, const QString &) { a.help = true; }},
    {"--version", nullptr, "shows the version", [](A &a, const QString &) { a.version = true; }},
    {"--sql", "FILE.mdb", "runs the statements of standard input on a database", SetSqlFile},
    {"--create", nullptr, "with --sql: makes the database, which must not exist",
     [](A &a, const QString &) { a.create = true; }},
    {"--format", "text|csv|json", "with --sql: form of the results, text by default", SetFormat},
    {"--render", "SKIN", "writes the page of a profile or an episode, whose key stands beside",
     [](A &a, const QString &value) { a.render = value; }},
    {"--database", "FILE.mdb", "with --render: the collection that holds it",
     [](A &a, const QString &value) { a.database = value; }},
    {"--offline", nullptr, "with --render: the page as the site has it, with links of its own",
     [](A &a, const QString &) { a.offline = true; }},
    {"-o", "FILE.html", "with --render: the file to write", [](A &a, const QString &value) { a.page_file = value; }},
    {"--yes", nullptr, "answers questions with Yes or OK", [](A &a, const QString &) { SetAnswer(a, true); }},
    {"--no", nullptr, "answers questions with No or Cancel", [](A &a, const QString &) { SetAnswer(a, false); }},
    {"--locale", "NAME", "takes the decimal mark and the date pattern of that locale, such as de_DE", SetLocale},
    {"--quiet", nullptr, "shows no progress", [](A &a, const QString &) { a.quiet = true; }},
};

const Option *FindOption(const QString &name) {
    const auto *found = std::find_if(std::begin(kOptions), std::end(kOptions),
                                     [&](const Option &option) { return name == QLatin1String(option.name); });
    return found == std::end(kOptions) ? nullptr : found;
}

void TakeTarget(Arguments &parsed, const QString &text) {
    if (!parsed.target.isEmpty()) {
        parsed.fault = QStringLiteral("More than one file is named.");
    }
    parsed.target = text;
}

/// Takes the option at `index` with its value, which stands behind "=" or in the next argument.
void TakeOption(Arguments &parsed, const QStringList &arguments, qsizetype &index) {
    const QString &argument = arguments[index];
    const qsizetype equals = argument.indexOf(u'=');
    const QString name = argument.left(equals < 0 ? argument.size() : equals);
    const Option *option = FindOption(name);
    if (!option) {
        parsed.fault = QStringLiteral("There is no option %1.").arg(name);
        return;
    }
    QString value;
    if (option->value && equals < 0) {
        value = ++index < arguments.size() ? arguments[index] : QString();
    } else if (equals >= 0) {
        value = argument.mid(equals + 1);
    }
    if (!option->value && equals >= 0) {
        parsed.fault = QStringLiteral("%1 takes no value.").arg(name);
    } else if (option->value && value.isEmpty()) {
        parsed.fault = QStringLiteral("%1 needs a value.").arg(name);
    } else {
        option->apply(parsed, value);
    }
}

QString FindRenderFault(const Arguments &parsed) {
    if (parsed.sql) {
        return QStringLiteral("--sql and --render exclude each other.");
    }
    if (parsed.target.isEmpty()) {
        return QStringLiteral("--render needs the key of a profile or an episode.");
    }
    if (parsed.database.isEmpty() || parsed.page_file.isEmpty()) {
        return QStringLiteral("--render needs --database and -o.");
    }
    return {};
}

QString FindContradiction(const Arguments &parsed) {
    if (parsed.sql && parsed.render.isEmpty() && !parsed.target.isEmpty()) {
        return QStringLiteral("--sql takes no further file.");
    }
    if (!parsed.sql && (parsed.create || parsed.format)) {
        return QStringLiteral("--create and --format need --sql.");
    }
    if (!parsed.render.isEmpty()) {
        return FindRenderFault(parsed);
    }
    if (parsed.offline || !parsed.database.isEmpty() || !parsed.page_file.isEmpty()) {
        return QStringLiteral("--database, --offline and -o need --render.");
    }
    if (!parsed.sql && parsed.target.isEmpty()) {
        return QStringLiteral("No command file is named.");
    }
    return {};
}

} // namespace

Arguments ParseArguments(const QStringList &arguments) {
    Arguments parsed;
    bool options_over = false;
    for (qsizetype i = 0; i < arguments.size() && parsed.fault.isEmpty(); ++i) {
        const bool option = arguments[i].startsWith(QStringLiteral("--")) || arguments[i] == QStringLiteral("-o");
        if (options_over || !option) {
            TakeTarget(parsed, arguments[i]);
        } else if (arguments[i] == QStringLiteral("--")) {
            options_over = true;
        } else {
            TakeOption(parsed, arguments, i);
        }
    }
    if (parsed.fault.isEmpty() && !parsed.help && !parsed.version) {
        parsed.fault = FindContradiction(parsed);
    }
    return parsed;
}

QString HelpText() {
    QString text =
        QStringLiteral("Usage: ostrand-batch [options] COMMANDFILE\n"
                       "       ostrand-batch [options] DATABASE.mdb\n"
                       "       ostrand-batch --sql FILE.mdb [--create] [--format text|csv|json]\n"
                       "       ostrand-batch --render SKIN KEY --database FILE.mdb [--offline] -o FILE.html\n"
                       "\n"
                       "Runs a command file, opens a database (which brings it up to date), runs SQL\n"
                       "statements, each ended by ; at the end of a line, or writes the page of a title.\n"
                       "SKIN is the name of a skin or a folder that holds a Skin.html.\n\n");
    for (const Option &option : kOptions) {
        QString name = QLatin1String(option.name);
        if (option.value) {
            name += u' ' + QString(QLatin1String(option.value));
        }
        text += QStringLiteral("  %1  %2\n").arg(name, -24).arg(QLatin1String(option.help));
    }
    return text + QStringLiteral("\nExit status: 0 all done; 1 a statement failed, or a warning, an error or an "
                                 "unanswered\nquestion stood in the way; 2 wrong usage, or a file that cannot be "
                                 "opened; 128 and its\nnumber when a signal ended the program.\n");
}

} // namespace ostrand::batch
