#include "database/DatabaseFunctions.h"

#include "database/Schema.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString FindInfo(const QString &column, const QString &table, const QString &id, const QString &name) {
    return u"SELECT %1 FROM %2 WHERE ProfileID = '%3' AND InfoName = '%4'"_s.arg(column, table, EscapeSql(id),
                                                                                 EscapeSql(name));
}

QString ReadProfileInfo(Session &session, const QString &table, const QString &id, const QString &name,
                        const QString &preset) {
    if (!session.Database) {
        return preset;
    }
    const sql::Recordset rows = session.Database->OpenRecordset(FindInfo(u"*"_s, table, id, name));
    const QString value = rows.Eof() ? QString() : rows.Text(u"InfoValue");
    return value.isEmpty() ? preset : value;
}

void DeleteProfileInfo(Session &session, const QString &table, const QString &id, const QString &name) {
    session.Database->Execute(
        u"DELETE FROM %1 WHERE ProfileID = '%2' AND InfoName = '%3'"_s.arg(table, EscapeSql(id), EscapeSql(name)));
}

QString SelectDbInfo(Session &session, const QString &name, const QString &preset) {
    if (!session.Database) {
        return {};
    }
    try {
        const sql::Recordset rows = session.Database->OpenRecordset(
            u"SELECT InfoValue FROM DbInfo WHERE InfoName = '%1'"_s.arg(EscapeSql(name)));
        return rows.Eof() ? preset : rows.Text(0);
    } catch (const sql::SqlError &) {
        return {}; // a file from before the settings table
    }
}

} // namespace

QString EscapeSql(QString text) {
    return text.replace(u'\'', "''"_L1);
}

QString ReadDbInfo(Session &session, const QString &name, const QString &preset) {
    if (session.trace.Wants(kTraceEntry)) {
        Trace(session, u"ReadDbInfo(%1, %2)"_s.arg(name, preset), kTraceEntry);
    }
    QString value = SelectDbInfo(session, name, preset);
    if (session.trace.Wants(kTraceExit)) {
        Trace(session, u"ReadDbInfo: "_s + value, kTraceExit);
    }
    return value;
}

bool WriteDbInfo(Session &session, const QString &name, const QString &value, const QString &comment) {
    if (session.trace.Wants(kTraceEntry)) {
        Trace(session, u"WriteDbInfo(%1, %2, %3)"_s.arg(name, value, comment), kTraceEntry);
    }
    const bool open = session.Database != nullptr;
    if (open) {
        // A program that dies in between must not lose the setting.
        const sql::Database::Bracket bracket(*session.Database);
        session.Database->Execute(u"DELETE FROM DbInfo WHERE InfoName = '%1'"_s.arg(EscapeSql(name)));
        if (!value.isEmpty()) {
            session.Database->Execute(
                u"INSERT INTO DbInfo (InfoName, InfoValue, Comment) VALUES ('%1', '%2', '%3')"_s.arg(
                    EscapeSql(name), EscapeSql(value), EscapeSql(comment)));
        }
    }
    Trace(session, open ? u"WriteDbInfo: True"_s : u"WriteDbInfo: False"_s, kTraceExit);
    return open;
}

bool ReadDbInfoFlag(Session &session, const QString &name, bool preset) {
    const QString value = ReadDbInfo(session, name, {}).trimmed();
    const auto is = [&value](QStringView text) { return text.compare(value, Qt::CaseInsensitive) == 0; };
    if (is(u"True") || is(u"1") || is(u"-1")) {
        return true;
    }
    if (is(u"False") || is(u"0")) {
        return false;
    }
    return preset;
}

QString ReadAdditionalInfo(Session &session, const QString &id, const QString &name, const QString &preset) {
    return ReadProfileInfo(session, u"AdditionalInfo"_s, id, name, preset);
}

void WriteAdditionalInfo(Session &session, const QString &id, const QString &name, const QString &value,
                         const QString &type) {
    if (!session.Database) {
        return;
    }
    const sql::Database::Bracket bracket(*session.Database);
    DeleteProfileInfo(session, u"AdditionalInfo"_s, id, name);
    if (!value.isEmpty()) {
        session.Database->Execute(
            u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue, InfoType) VALUES ('%1', '%2', '%3', '%4')"_s
                .arg(EscapeSql(id), EscapeSql(name), EscapeSql(value), EscapeSql(type)));
    }
}

QString ReadMetaInfo(Session &session, const QString &id, const QString &name, const QString &preset) {
    return ReadProfileInfo(session, u"MetaInfo"_s, id, name, preset);
}

void WriteMetaInfo(Session &session, const QString &id, const QString &name, const QString &value) {
    if (!session.Database) {
        return;
    }
    const sql::Database::Bracket bracket(*session.Database);
    DeleteProfileInfo(session, u"MetaInfo"_s, id, name);
    if (!value.isEmpty()) {
        session.Database->Execute(
            u"INSERT INTO MetaInfo (ProfileID, InfoName, InfoValue) VALUES ('%1', '%2', '%3')"_s.arg(
                EscapeSql(id), EscapeSql(name), EscapeSql(value)));
    }
}

void CreateProfileTables(Session &session) {
    for (const TableSpec &table : ProfileTables()) {
        session.Database->Execute(table.CreateStatement());
    }
}

void CreateIndexes(Session &session) {
    for (const IndexSpec &index : SchemaIndexes()) {
        session.Database->Execute(index.CreateStatement());
    }
}

void MarkYesNoColumns(Session &) {}

} // namespace ostrand
