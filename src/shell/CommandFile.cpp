#include "shell/CommandFile.h"

#include "base/Files.h"
#include "base/Text.h"
#include "collection_files/AdditionalInfos.h"
#include "collection_files/ProfilerImport.h"
#include "database/DatabaseFunctions.h"
#include "html_export/CreateOfflineHtml.h"
#include "people/AliasFile.h"
#include "queries/LanguageFile.h"
#include "queries/SqlFile.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

// Files may nest as the user likes; only a file that calls itself comes here.
constexpr int kDeepestNest = 200;

void Warn(Session &session, const QString &first, const QString &second) {
    ShowMessage(session, {.text = Translate(session, first) + QStringLiteral("\r\n") + second,
                          .title = {},
                          .icon = MessageIcon::Warning});
}

void RunShellCommand(Session &session, const QString &argument) {
    QString error;
    if (!session.services.processes.RunCommandLine(argument, ProcessStyle::Minimised, &session.services.pump, &error)) {
        Trace(session, QStringLiteral("CallCommand: ") + error, kTraceError);
    }
}

void RequestClose(Session &session, const QString &) {
    session.EndProgram = true;
}

void SetSkin(Session &session, const QString &argument) {
    session.CurrentSkin = argument;
}

// The first keyword that a line begins with wins. exporttvasprofiler3dataseparated is therefore never reached:
// deliberate, files in use rely on the shorter keyword taking the line.
constexpr FileCommand kCommands[] = {
    {u"exportprofiler2database", nullptr},
    {u"importawardfile", nullptr},
    {u"exportviewercollectionfiles", nullptr},
    {u"exportviewercollection", nullptr},
    {u"importprofilerdatabase", [](Session &s, const QString &file) { ImportProfilerData(s, file); }},
    {u"exportaliastofile", [](Session &s, const QString &file) { ExportAliasToFile(s, file); }},
    {u"importaliasfromfile", [](Session &s, const QString &file) { ImportAliasFromFile(s, file, false); }},
    {u"exportsqltofile", [](Session &s, const QString &file) { ExportSQLToFile(s, file); }},
    {u"importsqlfromfile", [](Session &s, const QString &file) { ImportSQLFromFile(s, file); }},
    {u"importtranslationfromfile", [](Session &s, const QString &file) { ImportStringsFromFile(s, file); }},
    {u"exporttranslationtofile", [](Session &s, const QString &file) { ExportStringsToFile(s, file); }},
    {u"opendatabase", [](Session &s, const QString &file) { OpenCollectionDatabase(s, file); }},
    {u"close", RequestClose},
    {u"runcommandfile", RunCommandFile},
    {u"shellcommand", RunShellCommand},
    {u"exporttvasprofiler3data", nullptr},
    {u"exporttvasprofiler3dataseparated", nullptr},
    {u"createdatabase", [](Session &s, const QString &file) { NewCollectionDatabase(s, file); }},
    {u"exportprofiler3database", nullptr},
    {u"createhtmlcollection", CreateHTMLCollection},
    {u"compactdatabase", [](Session &s, const QString &file) { CompactCollectionDatabase(s, file); }},
    {u"exportawardsfile", nullptr},
    {u"setskin", SetSkin},
    {u"exportadditionalinfos", [](Session &s, const QString &file) { ExportAdditionalInfos(s, file, {}); }},
    {u"importadditionalinfos", [](Session &s, const QString &file) { ImportAdditionalInfos(s, file); }},
    {u"exportallawards", nullptr},
    {u"exportstoreit", nullptr},
};

/// Counts how deep files nest, whichever way a run ends.
class Nest {
public:
    explicit Nest(CommandFileState &state) : state_(state) { ++state_.depth; }
    ~Nest() {
        if (--state_.depth == 0) {
            state_.abandoned = false;
        }
    }
    Nest(const Nest &) = delete;
    Nest &operator=(const Nest &) = delete;

private:
    CommandFileState &state_;
};

} // namespace

std::span<const FileCommand> FileCommands() {
    return kCommands;
}

CommandCall MatchCommand(const QString &line) {
    const QString trimmed = line.trimmed();
    for (const FileCommand &command : kCommands) {
        const QStringView keyword(command.keyword);
        if (trimmed.startsWith(keyword, Qt::CaseInsensitive)) {
            return {&command, trimmed.mid(keyword.size()).trimmed()};
        }
    }
    return {};
}

QStringList CommandLines(const QString &text) {
    QString unified = text;
    unified.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return unified.split(u'\n');
}

void RunCommandFile(Session &session, const QString &path) {
    Trace(session, QStringLiteral("RunCommandFile(") + path + u')', kTraceEntry);
    const std::optional<QByteArray> content = ReadFile(path);
    if (!content) {
        return;
    }
    if (session.commands.depth >= kDeepestNest) {
        session.commands.abandoned = true;
        Warn(session, QStringLiteral("The command files call each other without end:"), path);
        return;
    }
    const QStringList lines = CommandLines(DecodeUserText(*content));
    const Nest nest(session.commands);
    for (const QString &line : lines) {
        if (session.EndProgram || session.commands.abandoned) {
            break;
        }
        CallCommand(session, line);
        session.services.pump.Turn();
    }
}

void CallCommand(Session &session, const QString &line) {
    Trace(session, QStringLiteral("CallCommand: ") + line, kTraceEntry);
    const CommandCall call = MatchCommand(line);
    if (!call.command) {
        return;
    }
    if (!call.command->run) {
        Warn(session, QStringLiteral("This command is not available in this version:"), line.trimmed());
        return;
    }
    try {
        call.command->run(session, call.argument);
    } catch (const sql::SqlError &error) {
        Trace(session, QStringLiteral("CallCommand: ") + error.Text(), kTraceError);
        ShowMessage(session, {.text = error.Text(), .title = {}, .icon = MessageIcon::Critical});
    }
}

} // namespace ostrand
