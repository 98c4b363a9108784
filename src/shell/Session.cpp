#include "shell/Session.h"

#include "base/IniFile.h"
#include "collection_files/Localities.h"
#include "database/DatabaseFunctions.h"

#include <QDir>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString In(const QString &folder, const QString &name) {
    return QDir::toNativeSeparators(folder + u'/' + name);
}

/// A long date pattern without its weekday, which stands first and ends in ", ".
QString WithoutWeekday(const QString &pattern) {
    const qsizetype comma = pattern.indexOf(", "_L1);
    return comma < 0 ? pattern : pattern.mid(comma + 2);
}

/// The first value that a statement gives; nothing without a row.
std::optional<QString> FirstText(Session &session, const QString &statement) {
    const sql::Recordset rows = session.Database->OpenRecordset(statement);
    return rows.Eof() ? std::nullopt : std::optional(rows.Text(0));
}

QString UserText(Session &session, const QString &text) {
    const std::optional<QString> found =
        FirstText(session, u"SELECT UserString FROM Translation WHERE OriginalString = '%1'"_s.arg(EscapeSql(text)));
    if (found) {
        return found->isEmpty() ? text : *found;
    }
    if (session.TraceStrings && !session.DatabaseTooNew) {
        session.Database->Execute(
            u"INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '')"_s.arg(EscapeSql(text)));
    }
    return text;
}

} // namespace

Session::Session(Services &all_services) : services(all_services), progress(services.progress, services.pump) {
    TempFolder = In(services.folders.Temp(), u"OstrandApp"_s);
    DataFolder = In(services.folders.Documents(), u"OstrandApp"_s);
    ProgramFolder = services.folders.Program();
    SettingsPath = In(DataFolder, u"Settings.ini"_s);
    AppVersion = u"%1.%2.%3"_s.arg(OSTRAND_VERSION_MAJOR).arg(OSTRAND_VERSION_MINOR).arg(OSTRAND_VERSION_PATCH);
    DecimalSeparator = services.locale.DecimalSeparator();
    LongDateFormat = WithoutWeekday(services.locale.LongDatePattern());
    FillCountryNames(*this);

    trace.path = In(DataFolder, u"Debug.log"_s);
    trace.seconds = [this] { return services.clock.SecondsSinceMidnight(); };
    progress.translate = [this](const QString &text) { return Translate(*this, text); };
    progress.read_auto_close = [this] { return ReadDbInfoFlag(*this, u"ProgressWindowAutoClose"_s, false); };
    progress.write_auto_close = [this](bool on) {
        WriteDbInfo(*this, u"ProgressWindowAutoClose"_s, on ? u"1"_s : u"0"_s);
    };
}

void Trace(const Session &session, const QString &message, int level) {
    session.trace.Write(message, level);
}

QString GetINIString(const Session &session, const QString &section, const QString &key, const QString &preset) {
    return IniFile(session.SettingsPath).Get(section, key, preset);
}

void WriteINIString(const Session &session, const QString &section, const QString &key, const QString &value) {
    IniFile(session.SettingsPath).Set(section, key, value);
}

QString Translate(Session &session, const QString &text, bool reverse) {
    if (!session.Database) {
        return text;
    }
    if (reverse) {
        return ReverseTranslate(session, text, true);
    }
    if (!session.UseUserDefinedStrings) {
        return text;
    }
    try {
        return UserText(session, text);
    } catch (const sql::SqlError &) {
        return text;
    }
}

QString ReverseTranslate(Session &session, const QString &text, bool force) {
    if (!session.Database || (!session.UseUserDefinedStrings && !force)) {
        return text;
    }
    try {
        return FirstText(session,
                         u"SELECT OriginalString FROM Translation WHERE UserString = '%1'"_s.arg(EscapeSql(text)))
            .value_or(text);
    } catch (const sql::SqlError &) {
        return text;
    }
}

MessageAnswer ShowMessage(Session &session, const Message &message) {
    return session.services.dialogs.Show(message);
}

} // namespace ostrand
