// What the tests of the collection database share: a scratch folder, a session, and short ways to ask the database.
#pragma once

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace ostrand {

class CollectionTest : public testing::Test {
protected:
    QString Path(const QString &name) const { return folder_ / name; }

    int Run(QStringView statement) { return session.Database->Execute(statement); }

    /// The rows of a query, the fields of each joined by "|".
    QStringList Rows(QStringView query) {
        sql::Recordset rows = session.Database->OpenRecordset(query);
        QStringList lines;
        for (; !rows.Eof(); rows.MoveNext()) {
            QStringList fields;
            for (int i = 0; i < int(rows.Fields().size()); ++i) {
                fields << rows.Text(i);
            }
            lines << fields.join(u'|');
        }
        return lines;
    }

    /// A new, empty collection, open.
    void Create(const QString &name = QStringLiteral("New.mdb")) { CreateCollectionDatabase(session, Path(name)); }

    void Expect(const QString &text, const QString &title, MessageIcon icon, MessageAnswer answer = MessageAnswer::Ok) {
        services.dialogs.ExpectMessage(text, icon, answer, title);
    }

    /// Lets the log hold the lines of these levels.
    void Log(std::uint32_t levels) {
        QDir().mkpath(session.DataFolder);
        session.trace.Mask = levels;
    }

    QStringList LogLines() const {
        QFile log(session.trace.path);
        if (!log.open(QIODevice::ReadOnly)) {
            return {};
        }
        QStringList lines = QString::fromUtf8(log.readAll()).split(QStringLiteral("\r\n"));
        lines.removeAll(QString());
        return lines;
    }

    test::TempDir folder_;
    test::TestServices services;
    Session session{services.services};
};

} // namespace ostrand

// Readable texts in the messages of failed tests.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << qPrintable(text) << '"';
}
inline void PrintTo(QStringView text, std::ostream *out) {
    PrintTo(text.toString(), out);
}
inline void PrintTo(const QStringList &texts, std::ostream *out) {
    *out << "{\n  " << qPrintable(texts.join(QStringLiteral("\n  "))) << "\n}";
}
QT_END_NAMESPACE
