// What the tests of the import share: an open collection, files written inline, and what the import told.
#pragma once

#include "collection_files/ProfilerImport.h"
#include "database/CollectionFixture.h"

namespace ostrand {

using namespace Qt::StringLiterals;

class ImportTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        QDir().mkpath(session.DataFolder);
        session.Profiler3 = true;
        services.random.numbers = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9};
        // The reminder of the cover path comes with the first file and is tested on its own.
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_first', 'First')");
    }

    /// A profile of a file of the third generation.
    static QByteArray Dvd(const QByteArray &id, const QByteArray &children) {
        return "<DVD><ID>" + id + "</ID><MediaTypes><DVD>true</DVD></MediaTypes>" + children + "</DVD>";
    }
    static QByteArray OldDvd(const QByteArray &id, const QByteArray &children) {
        return "<DVD><ID>" + id + "</ID>" + children + "</DVD>";
    }

    QString WriteFile(const QByteArray &dvds, const QString &name = u"collection.xml"_s) {
        return folder_.Write(name,
                             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<Collection>" + dvds + "</Collection>");
    }
    bool Import(const QByteArray &dvds) { return ImportProfilerData(session, WriteFile(dvds)); }
    /// Imports one profile with the identifier 1.
    bool ImportOne(const QByteArray &children) { return Import(Dvd("1", children)); }
    bool ImportOld(const QByteArray &children) {
        session.Profiler3 = false;
        return Import(OldDvd("1", children));
    }

    void Lock(const QString &name, const QString &key = u"Key_1"_s) {
        Run(QString(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('%1', '%2')"_s.arg(key, name)));
    }
    /// The fields of the profile 1, joined by "|".
    QString Fields(const QString &columns) {
        return Rows(QString(u"SELECT "_s + columns + u" FROM Profiles WHERE ProfileID = 'Key_1'"_s)).join(u'\n');
    }
    void ForgetDigests() { Run(u"UPDATE Profiles SET MD5 = ''"); }
};

} // namespace ostrand
