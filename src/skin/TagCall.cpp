#include "skin/TagCall.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void TellFailure(const TagCall &call, const QString &log_name, const QString &title, const QString &text) {
    ShowMessage(call.session, {.text = text, .title = title, .icon = MessageIcon::Warning});
    Trace(call.session, log_name + u": "_s + text, kTraceError);
}

} // namespace

QString TagCall::TranslateByTag(const QString &text, bool preset) const {
    return Flag(u"Translate", preset) ? Translated(text) : text;
}

QString TagCall::Translated(const QString &text) const {
    return Translate(session, text);
}

sql::Recordset TagCall::Rows(const QString &statement) const {
    return session.Database->OpenRecordset(statement);
}

QString TagCall::QuotedKey() const {
    return u'\'' + EscapeSql(key) + u'\'';
}

QString TagCall::ProfilePage(const QString &key_without_prefix) const {
    // Pages of episodes lie in a folder of their own.
    return QLatin1String(is_episode ? "../Profiles/" : "") + key_without_prefix + QLatin1String(".html");
}

QString TagCall::KeyWithoutPrefix() const {
    QString bare = key;
    return bare.remove(u"Key_"_s);
}

void Guard(const TagCall &call, const QString &log_name, const QString &title, const std::function<void()> &body) {
    try {
        body();
    } catch (const sql::SqlError &error) {
        TellFailure(call, log_name, title, error.Text());
    } catch (const SkinFailure &failure) {
        TellFailure(call, log_name, title, failure.Text());
    }
}

} // namespace ostrand
